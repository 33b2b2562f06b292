// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QJsonArray>
#include <QtTest>

#include <fishbone/editor/subjectsnapshot.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

namespace {

QString titleOf(const QJsonValue &node)
{
    return node.toObject().value(QStringLiteral("title")).toString();
}

QJsonArray childrenOf(const QJsonValue &node)
{
    return node.toObject().value(QStringLiteral("children")).toArray();
}

} // namespace

/** Subjects as the copy buffer and the commands have them. */
class TestSubjectSnapshot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeTheNodeOfOneSubject();
    void shouldListSeveralInTheirOrder();
    void shouldBeEmptyOfNone();
    void shouldGiveUuidsWhereThereAreNone();
};

void TestSubjectSnapshot::shouldBeTheNodeOfOneSubject()
{
    const Drawing drawing(QStringLiteral("H[A[B],C]"));
    TreeItem *const a = drawing.node(QStringLiteral("A"));
    const QJsonObject snapshot = SubjectSnapshot::of({a});
    QCOMPARE(titleOf(snapshot), QStringLiteral("A"));
    QCOMPARE(titleOf(childrenOf(snapshot).at(0)), QStringLiteral("B"));
    QCOMPARE(SubjectSnapshot::uuids(snapshot), QStringList{a->uuid()});
}

void TestSubjectSnapshot::shouldListSeveralInTheirOrder()
{
    const Drawing drawing(QStringLiteral("H[A[B],C]"));
    TreeItem *const a = drawing.node(QStringLiteral("A"));
    TreeItem *const c = drawing.node(QStringLiteral("C"));
    const QJsonObject snapshot = SubjectSnapshot::of({c, a});
    QCOMPARE(snapshot.keys(), QStringList{QStringLiteral("children")});
    QCOMPARE(childrenOf(snapshot).count(), 2);
    QCOMPARE(titleOf(childrenOf(snapshot).at(0)), QStringLiteral("C"));
    QCOMPARE(titleOf(childrenOf(snapshot).at(1)), QStringLiteral("A"));
    QCOMPARE(SubjectSnapshot::uuids(snapshot), QStringList({c->uuid(), a->uuid()}));
}

void TestSubjectSnapshot::shouldBeEmptyOfNone()
{
    QCOMPARE(SubjectSnapshot::of({}), QJsonObject());
    QCOMPARE(SubjectSnapshot::uuids({}), QStringList());
}

void TestSubjectSnapshot::shouldGiveUuidsWhereThereAreNone()
{
    const Drawing drawing(QStringLiteral("H[A[B]]"));
    TreeItem *const a = drawing.node(QStringLiteral("A"));
    TreeItem *const head = drawing.node(QStringLiteral("H"));
    for (TreeItem *subject : {a, head})
        subject->setUuid(QString());
    const QJsonObject snapshot = SubjectSnapshot::of({a});
    QVERIFY(!a->uuid().isEmpty());
    QVERIFY(!head->uuid().isEmpty());
    QCOMPARE(SubjectSnapshot::uuids(snapshot), QStringList{a->uuid()});
}

FISHBONE_TEST(TestSubjectSnapshot)
#include "tst_subjectsnapshot.moc"
