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
    void shouldSortAsTheLanguageDoes_data();
    void shouldSortAsTheLanguageDoes();
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

void TestPeople::shouldSortAsTheLanguageDoes_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("sorted");
    QTest::newRow("German") << QStringLiteral("de")
                            << QString::fromUtf8("adam|Ärmel|Bo|Team 9|Team 10|Zoe");
    QTest::newRow("French") << QStringLiteral("fr") << QString::fromUtf8("Éric|Eve|Zoé");
    QTest::newRow("Polish") << QStringLiteral("pl") << QString::fromUtf8("Leon|Łukasz|Maria");
    QTest::newRow("Russian") << QStringLiteral("ru") << QString::fromUtf8("Егор|Ёлкин|Жанна");
}

void TestPeople::shouldSortAsTheLanguageDoes()
{
    QFETCH(QString, language);
    QFETCH(QString, sorted);
    QStringList names = sorted.split(QLatin1Char('|'));
    const QStringList expected = names;
    std::reverse(names.begin(), names.end());
    TreeItem root;
    root.setFollowers(names);
    const QLocale locale;
    QLocale::setDefault(QLocale(language));
    const QStringList shown = People::in(&root).names();
    QLocale::setDefault(locale);
    QCOMPARE(shown, expected);
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
