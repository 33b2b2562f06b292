// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/filecontent.h>

#include <fishbone/exchange/meetingreport.h>

#include <QDateTime>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

using namespace ExchangeFixture;

namespace {
using TestSupport::contentOf;

const QDate today(2024, 1, 31);

/** "Late" with causes about which something was found out, and what is to be done. */
std::unique_ptr<TreeItem> reviewed()
{
    auto head = treeFrom("Late[People[Few[Ill],New],Machines[Belt,Gear],Money]");
    TreeItem *const people = head->childAtIndex(0);
    TreeItem *const machines = head->childAtIndex(1);
    TreeItem *const ill = people->childAtIndex(0)->childAtIndex(0);
    SubjectMarks::setVotes(*ill, 2);
    SubjectMarks::setVotes(*people->childAtIndex(1), 5);
    SubjectMarks::setVerdict(*machines->childAtIndex(0), Verdict::RootCause);
    SubjectMarks::setVerdict(*machines->childAtIndex(1), Verdict::RuledOut);
    SubjectMarks::setVotes(*machines->childAtIndex(1), 9);
    machines->childAtIndex(0)->setDetail(QStringLiteral("Torn | <twice>\nin May"));
    machines->childAtIndex(0)->setManagerName(QStringLiteral("Li"));
    machines->childAtIndex(0)->setStatus(5);
    machines->childAtIndex(0)->setProgress(40);
    machines->childAtIndex(0)->setPlanEndDate(
        QDateTime(QDate(2024, 1, 30), QTime(12, 0)).toMSecsSinceEpoch());
    people->childAtIndex(1)->setManagerName(QStringLiteral("Bo"));
    ill->setManagerName(QStringLiteral("Li"));
    ill->setStatus(2);
    ill->setPlanEndDate(QDateTime(QDate(2024, 1, 2), QTime(12, 0)).toMSecsSinceEpoch());
    head->childAtIndex(2)->setPlanEndDate(QDateTime(today, QTime(12, 0)).toMSecsSinceEpoch());
    return head;
}

} // namespace

/** What is mailed after the meeting. */
class TestMeetingReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void shouldRankCauses();
    void shouldListActionsByPersonAndDate();
    void shouldHaveAllOfItInAPage();
    void shouldHaveAllOfItInMarkdown();
    void shouldLetNoTextBecomeMarkup();
    void shouldLinkNowhereHarmful();
    void shouldWritePages();
    void shouldWriteTheActionsAlone();
    void shouldReadFromTheRightWhereTheLanguageDoes();
    void shouldSeparateTheCellsAsItIsTold();
    void shouldSortPeopleAsTheLanguageDoes_data();
    void shouldSortPeopleAsTheLanguageDoes();
    void shouldSayWhyNothingIsWritten();
    void shouldSayThatThereIsNothing();
};

void TestMeetingReport::shouldRankCauses()
{
    const auto head = reviewed();
    QStringList ranked;
    const MeetingReport report(head.get(), today);
    for (const MeetingReport::Cause &cause : report.causes())
        ranked.append(QStringLiteral("%1/%2 %3")
                          .arg(cause.above.join(QLatin1Char('/')), cause.subject->title())
                          .arg(cause.votes));
    QCOMPARE(ranked, QStringList({QStringLiteral("Machines/Belt 0"), QStringLiteral("People/New 5"),
                                  QStringLiteral("People/Few/Ill 2"),
                                  QStringLiteral("Machines/Gear 9")})); // which is ruled out
}

void TestMeetingReport::shouldListActionsByPersonAndDate()
{
    const auto head = reviewed();
    QStringList actions;
    const MeetingReport report(head.get(), today);
    for (const MeetingReport::Action &action : report.actions())
        actions.append(action.person + QLatin1Char(':') + action.subject->title() +
                       QLatin1String(action.isOverdue ? "!" : ""));
    // What is done is not late, nor is what is to be done today.
    QCOMPARE(actions, QStringList({QStringLiteral("Bo:New"), QStringLiteral("Li:Ill"),
                                   QStringLiteral("Li:Belt!"), QStringLiteral(":Money")}));
}

void TestMeetingReport::shouldHaveAllOfItInAPage()
{
    const auto head = reviewed();
    const QString page = MeetingReport(head.get(), today).html(QStringLiteral("<svg/>"));
    int place = 0;
    for (const char *part : {"<h1>Late</h1>",
                             "<svg/>",
                             "<h2>Ranked causes</h2>",
                             "Belt<br>Machines",
                             "root cause",
                             "Torn | &lt;twice&gt;<br>in May",
                             "New<br>People",
                             "\u2588 5",
                             "\u2588 2",
                             "ruled out",
                             "<h2>Actions</h2>",
                             "<h3>Bo</h3>",
                             "<h3>Li</h3>",
                             "Ill",
                             "finished",
                             "under way",
                             "40 %",
                             "overdue",
                             "<h3>Nobody yet</h3>",
                             "Money",
                             "<h2>Legend</h2>",
                             "all comes from it",
                             "it does not contribute"}) {
        const int found = page.indexOf(QString::fromUtf8(part), place);
        QVERIFY2(found >= 0, part);
        place = found;
    }
}

void TestMeetingReport::shouldHaveAllOfItInMarkdown()
{
    const auto head = reviewed();
    const QString page = MeetingReport(head.get(), today).markdown(QStringLiteral("a b.svg"));
    QVERIFY(page.startsWith(QLatin1String("# Late\n\n![Late](a%20b.svg)\n\n## Ranked causes\n\n"
                                          "| # | Cause | Verdict | Votes | Evidence |\n"
                                          "|---|---|---|---|---|\n"
                                          "| 1 | Belt<br>Machines | root cause |  | "
                                          "Torn \\| \\<twice\\><br>in May |\n")));
    QVERIFY(page.contains(QLatin1String("\n## Actions\n\n### Bo\n\n")));
}

void TestMeetingReport::shouldLetNoTextBecomeMarkup()
{
    auto head = treeFrom("Late[a]");
    const QString hostile = QStringLiteral("</td><script>alert(1)</script>&\"|[x](y)");
    head->setTitle(hostile);
    TreeItem *const bone = head->childAtIndex(0);
    bone->setTitle(hostile);
    bone->setDetail(hostile);
    bone->setManagerName(hostile);
    SubjectMarks::setVotes(*bone, 1);
    const MeetingReport report(head.get(), today);
    QVERIFY(!report.html(QString()).contains(QLatin1String("<script")));
    const QString text = report.markdown(QStringLiteral("a.svg"));
    QVERIFY(text.contains(QLatin1String("\\<script\\>")));
    QVERIFY(!QString(text).remove(QLatin1String("\\<")).contains(QLatin1String("<script")));
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.startsWith(QLatin1String("| 1 ")))
            QCOMPARE(QString(line).remove(QLatin1String("\\|")).count(QLatin1Char('|')), 6);
    }
}

void TestMeetingReport::shouldLinkNowhereHarmful()
{
    auto head = treeFrom("Late[a,b]");
    head->childAtIndex(0)->setUrl(QStringLiteral("javascript:alert(1)"));
    head->childAtIndex(1)->setUrl(QStringLiteral("https://example.org/a?b=1&c=2"));
    SubjectMarks::setVotes(*head->childAtIndex(0), 1);
    SubjectMarks::setVotes(*head->childAtIndex(1), 1);
    const QString page = MeetingReport(head.get(), today).html(QString());
    QVERIFY(!page.contains(QLatin1String("javascript")));
    QVERIFY(page.contains(QLatin1String("<a href=\"https://example.org/a?b=1&amp;c=2\">b</a>")));
}

void TestMeetingReport::shouldWritePages()
{
    const auto head = reviewed();
    const QTemporaryDir folder;
    const MeetingReport report(head.get(), today);
    for (const char *name : {"a.html", "a.pdf", "a.md"}) {
        QString error;
        QVERIFY(MeetingReport::canWrite(QLatin1String(name)));
        QVERIFY2(report.write(folder.filePath(QLatin1String(name)), &error), qPrintable(error));
        QCOMPARE(error, QString());
    }
    const QByteArray page = contentOf(folder.filePath(QStringLiteral("a.html")));
    QVERIFY(page.contains("<svg"));
    QVERIFY(!page.contains("<?xml")); // which stands nowhere within a page
    const QByteArray drawing = contentOf(folder.filePath(QStringLiteral("a.md.svg")));
    QXmlStreamReader xml(drawing);
    while (!xml.atEnd())
        xml.readNext();
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(contentOf(folder.filePath(QStringLiteral("a.md"))).contains("](a.md.svg)"));

    QProcess text;
    text.start(QStringLiteral("pdftotext"),
               {folder.filePath(QStringLiteral("a.pdf")), QStringLiteral("-")});
    QVERIFY(text.waitForFinished());
    const QByteArray words = text.readAllStandardOutput();
    for (const char *word : {"Ranked causes", "root cause", "Belt", "Actions", "overdue", "Legend"})
        QVERIFY2(words.contains(word), words.constData());
    if (const QString target = qEnvironmentVariable("FISHBONE_REPORT"); !target.isEmpty())
        QFile::copy(folder.filePath(QStringLiteral("a.pdf")), target);
}

void TestMeetingReport::shouldWriteTheActionsAlone()
{
    const auto head = reviewed();
    head->childAtIndex(2)->setTitle(QStringLiteral("=1+1")); // no formula
    const QTemporaryDir folder;
    const MeetingReport report(head.get(), today);
    QVERIFY(!MeetingReport::canWriteActions(QStringLiteral("a.html")));
    for (const char *name : {"a.csv", "a.md"}) {
        QString error;
        QVERIFY(MeetingReport::canWriteActions(QLatin1String(name)));
        QVERIFY2(report.writeActions(folder.filePath(QLatin1String(name)), &error),
                 qPrintable(error));
    }
    QCOMPARE(contentOf(folder.filePath(QStringLiteral("a.csv"))),
             QByteArray("\xef\xbb\xbf"
                        "Action,In,Responsible,Until,Status,Progress,Overdue\r\n"
                        "New,People,Bo,,,0,\r\n"
                        "Ill,Few,Li,2024-01-02,finished,0,\r\n"
                        "Belt,Machines,Li,2024-01-30,under way,40,yes\r\n"
                        "'=1+1,Late,,2024-01-31,,0,\r\n"));
    const QByteArray text = contentOf(folder.filePath(QStringLiteral("a.md")));
    QVERIFY2(text.startsWith("# Late\n\n## Actions\n\n### Bo\n"), text.constData());
    QVERIFY(text.contains("| Belt | under way | 40 % | **"));
    QString error;
    QVERIFY(!report.writeActions(QStringLiteral("a.html"), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!report.writeActions(QStringLiteral("/nowhere/a.csv"), &error));
}

void TestMeetingReport::shouldReadFromTheRightWhereTheLanguageDoes()
{
    const auto head = reviewed();
    const auto pageIn = [&head](const char *language) {
        const QLocale locale;
        QLocale::setDefault(QLocale(QLatin1String(language)));
        const QString page = MeetingReport(head.get(), today).html(QStringLiteral("<svg/>"));
        QLocale::setDefault(locale);
        return page;
    };
    QVERIFY(pageIn("ar").contains(QLatin1String("\" dir=\"rtl\">")));
    QVERIFY(!pageIn("de").contains(QLatin1String("rtl")));
    // Each title in its own direction, and the picture as it is.
    QVERIFY(pageIn("ar").contains(QLatin1String("h1,td{unicode-bidi:plaintext}")));
    QVERIFY(pageIn("ar").contains(QLatin1String("svg{direction:ltr}")));
}

void TestMeetingReport::shouldSeparateTheCellsAsItIsTold()
{
    const auto head = reviewed();
    head->childAtIndex(2)->setTitle(QStringLiteral("a,b;c"));
    const QTemporaryDir folder;
    MeetingReport report(head.get(), today);
    report.setCellSeparator(QLatin1Char(';'));
    const QString name = folder.filePath(QStringLiteral("a.csv"));
    QVERIFY(report.writeActions(name));
    const QList<QByteArray> lines = contentOf(name).split('\n');
    QCOMPARE(lines.at(0), QByteArray("\xef\xbb\xbf"
                                     "Action;In;Responsible;Until;Status;Progress;Overdue\r"));
    QCOMPARE(lines.at(4), QByteArray("\"a,b;c\";Late;;2024-01-31;;0;\r"));
}

void TestMeetingReport::shouldSortPeopleAsTheLanguageDoes_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("people");

    const QString oddOne = QString::fromUtf8("\u00c4rmel"); // A with two dots
    QTest::newRow("German") << QStringLiteral("de")
                            << QStringList({oddOne, QStringLiteral("Zoe"), QString()});
    QTest::newRow("Swedish") << QStringLiteral("sv")
                             << QStringList({QStringLiteral("Zoe"), oddOne, QString()});
}

void TestMeetingReport::shouldSortPeopleAsTheLanguageDoes()
{
    QFETCH(QString, language);
    QFETCH(QStringList, people);
    const auto head = reviewed();
    const MeetingReport before(head.get(), today);
    QVERIFY(before.actions().size() >= 3);
    QStringList names = people;
    names.sort();
    for (const MeetingReport::Action &action : before.actions())
        const_cast<TreeItem *>(action.subject)
            ->setManagerName(names.isEmpty() ? QString() : names.takeLast());
    const QLocale locale;
    QLocale::setDefault(QLocale(language));
    const MeetingReport report(head.get(), today);
    QLocale::setDefault(locale);
    QStringList sorted;
    for (const MeetingReport::Action &action : report.actions())
        sorted.append(action.person);
    sorted.removeDuplicates();
    QCOMPARE(sorted, people);
}

void TestMeetingReport::shouldSayWhyNothingIsWritten()
{
    const auto head = reviewed();
    const MeetingReport report(head.get(), today);
    QString error;
    QVERIFY(!MeetingReport::canWrite(QStringLiteral("a.txt")));
    QVERIFY(!report.write(QStringLiteral("a.txt"), &error));
    QVERIFY(!error.isEmpty());
    for (const char *name : {"/nowhere/a.html", "/nowhere/a.pdf", "/nowhere/a.md"}) {
        error.clear();
        QVERIFY(!report.write(QLatin1String(name), &error));
        QVERIFY(!error.isEmpty());
    }
}

void TestMeetingReport::shouldSayThatThereIsNothing()
{
    const auto head = treeFrom("Late[a]");
    const QString page = MeetingReport(head.get(), today).html(QString());
    QVERIFY(page.contains(QLatin1String("No cause has a verdict or votes.")));
    QVERIFY(page.contains(QLatin1String("Nobody is to do anything.")));
    QVERIFY(!page.contains(QLatin1String("Legend")));
}

FISHBONE_TEST(TestMeetingReport)
#include "tst_meetingreport.moc"
