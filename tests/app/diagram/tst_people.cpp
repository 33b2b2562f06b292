// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/people.h>

#include <QtTest>

#include <fishbone/model/treeitem.h>
#include <tests/program/testprogram.h>

class TestPeople : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKnowWhoIsNamedAnywhere();
    void shouldKnowNobodyWithoutADocument();
    void shouldSpellNamesAsTheDocumentDoes();
};

void TestPeople::shouldKnowWhoIsNamedAnywhere()
{
    TreeItem root;
    root.setManagerName(QStringLiteral("Ada"));
    auto *const child = new TreeItem(); // owned by its parent
    root.appendChild(child);
    child->setManagerName(QStringLiteral("Ada"));
    child->setManagerId(QStringLiteral("7"));
    child->setCreatorName(QStringLiteral("Bo"));
    child->setFollowers(QStringList(QStringLiteral("Cy")));
    const People people = People::in(&root);
    QCOMPARE(people.names(),
             QStringList({QStringLiteral("Ada"), QStringLiteral("Bo"), QStringLiteral("Cy")}));
    QCOMPARE(people.idOf(QStringLiteral("Ada")), QStringLiteral("7"));
    QCOMPARE(people.idOf(QStringLiteral("Bo")), QString());
    QCOMPARE(people.idOf(QStringLiteral("Dee")), QString());
}

void TestPeople::shouldKnowNobodyWithoutADocument()
{
    QCOMPARE(People::in(nullptr).names(), QStringList());
}

void TestPeople::shouldSpellNamesAsTheDocumentDoes()
{
    TreeItem root;
    root.setFollowers(QStringList({QStringLiteral("Ada"), QStringLiteral("ada b")}));
    const People people = People::in(&root);
    QCOMPARE(people.spelled(QStringLiteral("ada")), QStringLiteral("Ada"));
    QCOMPARE(people.spelled(QStringLiteral("ADA B")), QStringLiteral("ada b"));
    QCOMPARE(people.spelled(QStringLiteral("ada b")), QStringLiteral("ada b"));
    QCOMPARE(people.spelled(QStringLiteral("Dee")), QStringLiteral("Dee"));
    QCOMPARE(people.spelled(QString()), QString());
}

FISHBONE_GUILESS_TEST(TestPeople)
#include "tst_people.moc"
