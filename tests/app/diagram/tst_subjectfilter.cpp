// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/subjectfilter.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>

#include <QDateTime>
#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(SubjectFilter)

namespace {

const QDate today(2026, 5, 4);

/** "Pump worn", number 7, of Ann, under way, suspected, with two votes, due the day before. */
std::unique_ptr<TreeItem> pump()
{
    auto subject = std::make_unique<TreeItem>(QStringLiteral("Pump worn"), QStringLiteral("{p}"),
                                              QString(), QString(), 0);
    subject->setShowid(QStringLiteral("No. 7"));
    subject->setDetail(QStringLiteral("since March"));
    subject->setManagerName(QStringLiteral("Ann"));
    subject->setStatus(tsRunning);
    subject->setPlanEndDate(QDateTime(today.addDays(-1), QTime(12, 0)).toMSecsSinceEpoch());
    SubjectMarks::setVerdict(*subject, Verdict::Suspected);
    SubjectMarks::setVotes(*subject, 2);
    return subject;
}

} // namespace

/** What each of the things that can be wanted accepts. */
class TestSubjectFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAcceptWhatIsWanted_data();
    void shouldAcceptWhatIsWanted();
    void shouldAcceptWhatFitsAllThatIsWanted();
    void shouldTakeNothingThatIsDoneForOverdue_data();
    void shouldTakeNothingThatIsDoneForOverdue();
};

void TestSubjectFilter::shouldAcceptWhatIsWanted_data()
{
    QTest::addColumn<SubjectFilter>("filter");
    QTest::addColumn<bool>("accepted");
    const auto row = [](const char *name, bool accepted, auto set) {
        SubjectFilter filter;
        set(filter);
        QTest::newRow(name) << filter << accepted;
    };
    using F = SubjectFilter;
    row("nothing", true, [](F &) {});
    row("title", true, [](F &f) { f.text = QStringLiteral("PUMP"); });
    row("number", true, [](F &f) { f.text = QStringLiteral("no. 7"); });
    row("details", true, [](F &f) { f.text = QStringLiteral("march"); });
    row("another text", false, [](F &f) { f.text = QStringLiteral("valve"); });
    row("status", true, [](F &f) { f.status = tsRunning; });
    row("another status", false, [](F &f) { f.status = tsFinish; });
    row("no status", false, [](F &f) { f.status = -1; });
    row("verdict", true, [](F &f) { f.verdict = Verdict::Suspected; });
    row("another verdict", false, [](F &f) { f.verdict = Verdict::RootCause; });
    row("no verdict", false, [](F &f) { f.verdict = Verdict::None; });
    row("person", true, [](F &f) { f.person = QStringLiteral("Ann"); });
    row("nobody", false, [](F &f) { f.person = QString(); });
    row("overdue", true, [](F &f) { f.isOverdue = true; });
    row("two votes", true, [](F &f) { f.votes = 2; });
    row("three votes", false, [](F &f) { f.votes = 3; });
}

void TestSubjectFilter::shouldAcceptWhatIsWanted()
{
    QFETCH(SubjectFilter, filter);
    QTEST(filter.accepts(*pump(), today), "accepted");
}

void TestSubjectFilter::shouldAcceptWhatFitsAllThatIsWanted()
{
    SubjectFilter filter;
    QVERIFY(filter.isEmpty());
    filter.text = QStringLiteral("pump");
    filter.person = QStringLiteral("Ann");
    QVERIFY(!filter.isEmpty());
    QVERIFY(filter.accepts(*pump(), today));
    filter.status = tsFinish;
    QVERIFY(!filter.accepts(*pump(), today));
}

void TestSubjectFilter::shouldTakeNothingThatIsDoneForOverdue_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("overdue");
    QTest::newRow("waiting") << int(tsWaitting) << true;
    QTest::newRow("no status") << -1 << true;
    QTest::newRow("postponed") << int(tsPostpone) << true;
    QTest::newRow("finished") << int(tsFinish) << false;
    QTest::newRow("finished late") << int(tsFinishDelay) << false;
    QTest::newRow("cancelled") << int(tsCancel) << false;
}

void TestSubjectFilter::shouldTakeNothingThatIsDoneForOverdue()
{
    QFETCH(int, status);
    SubjectFilter filter;
    filter.isOverdue = true;
    const auto subject = pump();
    subject->setStatus(status);
    QTEST(filter.accepts(*subject, today), "overdue");
    subject->setPlanEndDate(QDateTime(today, QTime(12, 0)).toMSecsSinceEpoch());
    QVERIFY(!filter.accepts(*subject, today)); // there is still the rest of the day
}

FISHBONE_GUILESS_TEST(TestSubjectFilter)
#include "tst_subjectfilter.moc"
