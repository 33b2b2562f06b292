// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/htmlpicture.h>

#include <tests/program/testprogram.h>
#include <tests/support/clearpictures.h>
#include <tests/support/sourcefolder.h>

#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString hostile =
    QStringLiteral("</script></svg><script>document.title='owned'</script>"
                   "<img src=x onerror=\"document.title='owned'\">\" onfocus=\"x\" '<!--");

/** A head, three categories and causes below them. */
ClearPictureContent content(int subjects)
{
    std::vector<ClearSubject> all;
    for (int i = 0; i < subjects; ++i) {
        ClearSubject subject;
        subject.title = i == 5 ? hostile : QStringLiteral("Subject %1").arg(i);
        subject.parent = i == 0 ? -1 : i % 20 == 1 ? 0 : i - (i - 1) % 20;
        subject.hasStatus = i > 0;
        subject.hasLink = i == 3 || i == 4;
        all.push_back(subject);
    }
    ClearPictureContent made = ClearPictures::contentOf(all);
    for (std::size_t i = 0; i < made.meanings.size(); ++i) {
        made.meanings[i].level = i == 0 ? 0 : i % 20 == 1 ? 1 : 2;
        made.meanings[i].state = QStringLiteral("under way");
    }
    if (subjects > 5) {
        made.meanings[2].detail = QStringLiteral("Seen in the night shift ") + hostile;
        made.meanings[3].link = QStringLiteral("https://example.org/3");
        made.meanings[4].link = QStringLiteral("javascript:document.title='owned'");
    }
    return made;
}

QByteArray pageOf(const ClearPictureContent &content,
                  DiagramLook::Palette palette = DiagramLook::DistinctColors,
                  const QString &language = QStringLiteral("en"))
{
    const ClearFonts fonts(QFont(QStringLiteral("Noto Sans CJK SC")));
    const ClearTree tree(content.subjects);
    ClearTextCache cache;
    const ClearLayout layout(tree, fonts, {}, cache);
    const ClearPicture picture(content, layout, fonts, ClearColors(palette));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const bool isWritten =
        HtmlPicture::write(picture, QStringLiteral("Effect <b>"), language, buffer);
    return isWritten ? buffer.data() : QByteArray();
}

/** What a browser makes of @p page; null when there is no browser. */
QString shownInBrowser(const QByteArray &page, const QString &fragment = {},
                       const QStringList &options = {})
{
    const QString browser = QStandardPaths::findExecutable(QStringLiteral("chromium"));
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("page.html")));
    if (browser.isEmpty() || !file.open(QIODevice::WriteOnly))
        return {};
    file.write(page);
    file.close();
    QProcess process;
    process.start(browser,
                  options +
                      QStringList{QStringLiteral("--headless"), QStringLiteral("--no-sandbox"),
                                  QStringLiteral("--disable-gpu"), QStringLiteral("--dump-dom"),
                                  QStringLiteral("--window-size=1280,800"),
                                  QStringLiteral("--user-data-dir=") + folder.path(),
                                  QStringLiteral("file://") + file.fileName() + fragment});
    return process.waitForFinished(120000) ? QString::fromUtf8(process.readAllStandardOutput())
                                           : QStringLiteral("it took too long");
}

/** @p page with a script at its end that uses it, which its policy would forbid. */
QByteArray drivenPage(QByteArray page)
{
    QFile script(TestSupport::sourceFile(QStringLiteral("tests/exchange/pagedriver.js")));
    if (!script.open(QIODevice::ReadOnly))
        return {};
    page.replace("http-equiv=\"Content-Security-Policy\"", "name=\"policy\"");
    return page.replace("</body>", "<script>" + script.readAll() + "</script></body>");
}

} // namespace

class TestHtmlPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStaySmall();
    void shouldNeedNothingElse();
    void shouldStayReadableInTheDark();
    void shouldLeaveGreyOnPaper();
    void shouldReadFromTheRightWhereTheLanguageDoes();
    void shouldWorkInABrowser_data();
    void shouldWorkInABrowser();
    void shouldBeUsedByMouseAndKeyboard_data();
    void shouldBeUsedByMouseAndKeyboard();
};

void TestHtmlPicture::shouldStaySmall()
{
    const qint64 few = pageOf(content(1)).size();
    const qint64 many = pageOf(content(2001)).size();
    qInfo("%lld bytes and %lld a bone", few, (many - few) / 2000);
    QVERIFY(few > 1000);
    QVERIFY(few <= 100 * 1024);
    QVERIFY((many - few) / 2000 <= 1024);
}

void TestHtmlPicture::shouldNeedNothingElse()
{
    const QByteArray page = pageOf(content(60));
    QVERIFY(page.contains("default-src 'none'"));
    QVERIFY(!page.contains("unsafe-inline"));
    QVERIFY(!page.contains("javascript:document"));
    QCOMPARE(page.count("<script"), 2); // its data and its own
    QVERIFY(!page.contains("<img"));
    const QRegularExpression loads(QStringLiteral("(src|srcset|action)\\s*=|@import|url\\("));
    const QString text = QString::fromUtf8(page).remove(hostile);
    QVERIFY(!text.left(text.indexOf(QLatin1String("<svg"))).contains(loads));
}

/** Also where subjects have colours of their own, which no palette knows. */
void TestHtmlPicture::shouldStayReadableInTheDark()
{
    ClearPictureContent made = content(41);
    made.looks[1].colour = QColor(0x8a8f3c);
    made.looks[21].colour = QColor(0xf2e85c);
    made.looks[4].colour = QColor(0x202020);
    const QString page = QString::fromUtf8(pageOf(made));
    QHash<QString, QColor> dark;
    const QRegularExpression rule(QStringLiteral("\\.(k\\d+)\\{fill:(#[0-9a-f]{6});"));
    for (auto it = rule.globalMatch(page); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        dark.insert(match.captured(1), QColor(match.captured(2)));
    }
    QVERIFY(dark.size() >= 4);
    const QColor paper = ClearColors(DiagramLook::DarkColors).paper();
    QVERIFY(page.contains(QStringLiteral("--paper: ") + paper.name()));
    const QRegularExpression element(QStringLiteral(
        "<(g|rect|text) [^>]*?(?: class=\"(k\\d+)\"[^>]*?)?(?: fill=\"(#[0-9a-f]+)\"[^>]*)?>"));
    QColor below = paper;
    int texts = 0;
    for (auto it = element.globalMatch(page); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const QString name = match.captured(2);
        QVERIFY(name.isEmpty() || match.captured(1) == QLatin1String("g") || dark.contains(name));
        const QColor fill = name.isEmpty() ? QColor(match.captured(3)) : dark.value(name);
        if (match.captured(1) == QLatin1String("g")) {
            below = paper;
        } else if (match.captured(1) == QLatin1String("rect")) {
            below = fill;
        } else {
            QVERIFY2(ClearColors::contrast(fill, below) >= ClearColors::enoughForText,
                     qPrintable(match.captured() + fill.name() + below.name()));
            ++texts;
        }
    }
    QVERIFY(texts >= 41);
}

void TestHtmlPicture::shouldLeaveGreyOnPaper()
{
    const QByteArray page = pageOf(content(5), DiagramLook::GrayColors);
    QVERIFY(page.contains("main > svg { background: #ffffff; }"));
    QVERIFY(!page.contains(".k0{"));
}

/** A title with words of both directions is in its own order, in the drawing and beside it. */
void TestHtmlPicture::shouldReadFromTheRightWhereTheLanguageDoes()
{
    ClearSubject subject;
    subject.title = QString::fromUtf8("تأخر 12% من server01 في /var/log");
    const QByteArray page = pageOf(ClearPictures::contentOf({subject}), DiagramLook::DistinctColors,
                                   QStringLiteral("ar"));
    QVERIFY(page.startsWith("<!DOCTYPE html>\n<html lang=\"ar\" dir=\"rtl\">"));
    QVERIFY(page.contains("unicode-bidi: plaintext"));
    QVERIFY(page.contains("direction=\"rtl\"")); // of the text in the drawing
    QVERIFY(page.contains("display: block; direction: ltr;"));
    const QByteArray english = pageOf(content(1));
    QVERIFY(english.startsWith("<!DOCTYPE html>\n<html lang=\"en\">"));
    QVERIFY(!english.contains("direction=\"rtl\""));
}

void TestHtmlPicture::shouldWorkInABrowser_data()
{
    QTest::addColumn<QString>("fragment");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("count");
    QTest::newRow("ready") << QString() << QStringLiteral("data-ready=\"yes\"") << 1;
    QTest::newRow("all are there") << QString() << QStringLiteral("role=\"treeitem\"") << 60;
    QTest::newRow("no script of a title ran")
        << QString() << QStringLiteral("<title>Effect &lt;b&gt;</title>") << 1;
    QTest::newRow("folding hides what is below")
        << QStringLiteral("#fold=1") << QStringLiteral("class=\"hidden\"") << 56;
    QTest::newRow("and says how many")
        << QStringLiteral("#fold=1") << QStringLiteral(">+19</text>") << 2;
    QTest::newRow("search marks what it finds")
        << QStringLiteral("#q=subject%204") << QStringLiteral("class=\"hit\"") << 11;
    QTest::newRow("in details, too")
        << QStringLiteral("#q=night%20shift") << QStringLiteral("class=\"hit\"") << 1;
    QTest::newRow("details of one")
        << QStringLiteral("#show=3") << QStringLiteral("<h2 id=\"title\">Subject 3</h2>") << 1;
    QTest::newRow("with its link")
        << QStringLiteral("#show=3")
        << QStringLiteral("rel=\"noopener noreferrer\" href=\"https://example.org/3\"") << 1;
    QTest::newRow("but no script")
        << QStringLiteral("#show=4") << QStringLiteral("href=\"javascript") << 0;
    QTest::newRow("hostile details are text")
        << QStringLiteral("#show=2") << QStringLiteral("<img") << 0;
}

void TestHtmlPicture::shouldWorkInABrowser()
{
    QFETCH(QString, fragment);
    QFETCH(QString, expected);
    QFETCH(int, count);
    const QString shown = shownInBrowser(pageOf(content(60)), fragment);
    if (shown.isNull())
        QSKIP("the browser is not installed");

    // The page's own script is in the dump as well.
    const QString dump = shown.section(QStringLiteral("<script>\n\"use strict\""), 0, 0);
    QCOMPARE(dump.count(expected), count);
}

void TestHtmlPicture::shouldBeUsedByMouseAndKeyboard_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<bool>("isDark");
    QTest::newRow("light") << QStringList() << false;
    QTest::newRow("dark") << QStringList(QStringLiteral("--blink-settings=preferredColorScheme=0"))
                          << true;
}

/** In a browser that prefers light and in one that prefers dark colours. */
void TestHtmlPicture::shouldBeUsedByMouseAndKeyboard()
{
    QFETCH(QStringList, options);
    QFETCH(bool, isDark);
    const QString dump = shownInBrowser(drivenPage(pageOf(content(60))), {}, options);
    if (dump.isNull())
        QSKIP("the browser is not installed");
    const QStringList seen = dump.section(QStringLiteral("<pre id=\"result\">"), 1, 1)
                                 .section(QStringLiteral("</pre>"), 0, 0)
                                 .split(u'\n');
    const QStringList expected{
        QStringLiteral("shown at first: nothing"),
        QStringLiteral("a click shows: Subject 6"),
        QStringLiteral("its path: Subject 0 \u203a Subject 1"),
        QStringLiteral("a click focuses: 6"),
        QStringLiteral("focusable: 1"),
        QStringLiteral("Escape leaves: nothing"),
        QStringLiteral("ArrowDown: 7"),
        QStringLiteral("ArrowUp: 6"),
        QStringLiteral("ArrowLeft: 1"),
        QStringLiteral("ArrowRight: 2"),
        QStringLiteral("Home: 0"),
        QStringLiteral("Enter shows: Subject 0"),
        QStringLiteral("closed: nothing"),
        QStringLiteral("unfolded: true 60 of 60"),
        QStringLiteral("space: false 41 of 60"),
        QStringLiteral("level: 2"),
        QStringLiteral("past what is folded: 21"),
        QStringLiteral("ArrowRight: true 60 of 60"),
        QStringLiteral("double click: false 41 of 60"),
        QStringLiteral("click on the number: true 60 of 60"),
        QStringLiteral("a leaf: null"),
        QStringLiteral("fold: false 4 of 60"),
        QStringLiteral("expand: true 60 of 60"),
        QStringLiteral("plus: 1.25"),
        QStringLiteral("in: 1.56"),
        QStringLiteral("out again: 1.00"),
        QStringLiteral("zero: 1.00"),
        QStringLiteral("wheel: 2.72"),
        QStringLiteral("keeps its place: true"),
        QStringLiteral("drag: 50 30"),
        QStringLiteral("shown after a drag: nothing"),
        QStringLiteral("fit: 1.00"),
        QStringLiteral("found: 1"),
        QStringLiteral("search shows: Subject 7"),
        QStringLiteral("and focuses: 7"),
    };
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(seen.value(i), expected.at(i));

    const QStringList colors = seen.mid(expected.size());
    QCOMPARE(colors.size(), 3);
    QCOMPARE(colors.at(0), isDark ? QStringLiteral("dark: true") : QStringLiteral("dark: false"));
    const QRegularExpression rgb(QStringLiteral("rgb\\((\\d+), (\\d+), (\\d+)\\)$"));
    const auto color = [&](const QString &line) {
        const QRegularExpressionMatch match = rgb.match(line);
        return QColor(match.captured(1).toInt(), match.captured(2).toInt(),
                      match.captured(3).toInt());
    };
    const QColor paper = color(colors.at(1));
    const QColor ink = color(colors.at(2));
    QCOMPARE(paper.lightness() < 128, isDark);
    QVERIFY(ClearColors::contrast(ink, paper) >= ClearColors::enoughForText);
}

FISHBONE_TEST(TestHtmlPicture)
#include "tst_htmlpicture.moc"
