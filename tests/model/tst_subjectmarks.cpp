// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/subjectmarks.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>

#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>

#include <QColor>
#include <QJsonDocument>
#include <QtTest>

using namespace TestSupport;

namespace {

QJsonObject objectFrom(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

/** Verdicts, votes and colours. */
class TestSubjectMarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteVerdicts_data();
    void shouldWriteVerdicts();
    void shouldWriteVotesAndColours();
    void shouldSayNothingOfWhatItDoesNotKnow_data();
    void shouldSayNothingOfWhatItDoesNotKnow();
    void shouldLeaveOtherFieldsAlone();
    void shouldBeUndoable();
};

void TestSubjectMarks::shouldWriteVerdicts_data()
{
    QTest::addColumn<int>("verdict");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](Verdict verdict, const char *written) {
        QTest::newRow(written) << int(verdict) << QByteArray(written);
    };
    row(Verdict::None, "{}");
    row(Verdict::Suspected, R"({"verdict": "suspected"})");
    row(Verdict::Checking, R"({"verdict": "checking"})");
    row(Verdict::Confirmed, R"({"verdict": "confirmed"})");
    row(Verdict::RuledOut, R"({"verdict": "ruledout"})");
    row(Verdict::RootCause, R"({"verdict": "rootcause"})");
}

void TestSubjectMarks::shouldWriteVerdicts()
{
    QFETCH(int, verdict);
    QFETCH(QByteArray, written);
    TreeItem subject;
    SubjectMarks::setVerdict(subject, Verdict::Confirmed);
    SubjectMarks::setVerdict(subject, Verdict(verdict));
    QCOMPARE(subject.otherFields(), objectFrom(written));
    QCOMPARE(int(SubjectMarks::verdict(subject)), verdict);
}

void TestSubjectMarks::shouldWriteVotesAndColours()
{
    TreeItem subject;
    QCOMPARE(SubjectMarks::votes(subject), 0);
    QVERIFY(!SubjectMarks::colour(subject).isValid());
    SubjectMarks::setVotes(subject, 3);
    SubjectMarks::setColour(subject, QColor(1, 16, 255, 7));
    QCOMPARE(subject.otherFields(), objectFrom(R"({"votes": 3, "colour": "#0110ff"})"));
    QCOMPARE(SubjectMarks::votes(subject), 3);
    QCOMPARE(SubjectMarks::colour(subject), QColor(1, 16, 255));
    SubjectMarks::setVotes(subject, -1);
    SubjectMarks::setColour(subject, QColor());
    QVERIFY(!subject.hasOtherFields());
}

void TestSubjectMarks::shouldSayNothingOfWhatItDoesNotKnow_data()
{
    QTest::addColumn<QByteArray>("fields");
    for (const char *fields :
         {R"({"verdict": "perhaps"})", R"({"verdict": 3})", R"({"verdict": ""})",
          R"({"votes": "3"})", R"({"votes": -3})", R"({"votes": 2.5})", R"({"votes": 1e12})",
          R"({"colour": "red"})", R"({"colour": "#fff"})", R"({"colour": "#0110ff "})",
          R"({"colour": 255})"})
        QTest::newRow(fields) << QByteArray(fields);
}

void TestSubjectMarks::shouldSayNothingOfWhatItDoesNotKnow()
{
    QFETCH(QByteArray, fields);
    const TreeItem subject(objectFrom(fields));
    QCOMPARE(SubjectMarks::verdict(subject), Verdict::None);
    QCOMPARE(SubjectMarks::votes(subject), 0);
    QVERIFY(!SubjectMarks::colour(subject).isValid());
    QCOMPARE(subject.otherFields(), objectFrom(fields)); // others may know it
}

void TestSubjectMarks::shouldLeaveOtherFieldsAlone()
{
    TreeItem subject(objectFrom(R"({"title": "A", "x": 1, "votes": 2})"));
    SubjectMarks::setVerdict(subject, Verdict::RootCause);
    SubjectMarks::setVotes(subject, 0);
    QCOMPARE(subject.otherFields(), objectFrom(R"({"x": 1, "verdict": "rootcause"})"));
    QCOMPARE(subject.title(), QStringLiteral("A"));
}

void TestSubjectMarks::shouldBeUndoable()
{
    CommandFixture f(QStringLiteral("H[A]"));
    const QJsonObject before = EditAttributes::stateOf(*f.node("A"));
    QJsonObject after = before;
    SubjectMarks::setVerdict(after, Verdict::RuledOut);
    SubjectMarks::setVotes(after, 4);
    SubjectMarks::setColour(after, Qt::red);
    QCOMPARE(f.roundTripFault(new EditAttributes(f.model.get(), f.index("A"), before, after)),
             QString());
    QCOMPARE(SubjectMarks::verdict(*f.node("A")), Verdict::RuledOut);
    QCOMPARE(SubjectMarks::votes(*f.node("A")), 4);
    QCOMPARE(SubjectMarks::colour(*f.node("A")), QColor(Qt::red));
    f.stack->undo();
    QVERIFY(!f.node("A")->hasOtherFields());
}

FISHBONE_TEST(TestSubjectMarks)

#include "tst_subjectmarks.moc"
