// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/tablemapping.h>
#include <fishbone/model/treeitem.h>

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using Role = TableMapping::Role;
using Format = DiagramExchange::Format;

namespace {

/** The roles of columns that are called so, separated by bars. */
QVector<Role> rolesOf(const char *headings)
{
    return TableMapping::guessed(QString::fromUtf8(headings).split(QLatin1Char('|')));
}

} // namespace

/** What the columns of tables stand for. */
class TestTableMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameEveryRoleOnce();
    void shouldKnowHeadings_data();
    void shouldKnowHeadings();
    void shouldTakeTheSurestOfSeveralTitles();
    void shouldTakeColumnsOfLevelsOnlyWithoutATitle();
    void shouldKnowNothingOfOtherHeadings();
    void shouldTellWhatTheColumnsOfAFileStandFor();
    void shouldReadAFileAsItIsTold();
    void shouldHaveNoColumnsInOtherFormats();
};

void TestTableMapping::shouldNameEveryRoleOnce()
{
    QSet<QString> names;
    const QList<Role> roles = TableMapping::allRoles();
    for (const Role role : roles)
        names.insert(TableMapping::nameOf(role));
    QCOMPARE(names.size(), roles.size());
    QCOMPARE(roles.first(), Role::Other);
}

void TestTableMapping::shouldKnowHeadings_data()
{
    QTest::addColumn<QByteArray>("headings");
    QTest::addColumn<int>("role");

    const auto row = [](const char *headings, Role role) {
        QTest::newRow(headings) << QByteArray(headings) << int(role);
    };
    row("Title|Summary|name|SUBJECT|Task Name|Card Name|标题|任务名称|概要", Role::Title);
    row("Id|Issue key|Key|#|No.|Card ID|编号|序号", Role::Id);
    row("Parent|Parent id|Parent task|Epic Link|Custom field (Epic Link)|父任务|上级任务",
        Role::Parent);
    row("Status|State|Current State|状态|List Name|bugStatus|需求状态", Role::Status);
    row("Votes|Vote Count|票数", Role::Votes);
    row("Verdict|结论", Role::Verdict);
    row("Progress|% Done|% Complete|进度", Role::Progress);
    row("Priority|priority_name|优先级", Role::Priority);
    row("Assignee|Owner|Owned By|assigned_to|Resource Names|负责人|经办人", Role::Manager);
    row("Reporter|Author|Created by|creator_name|创建人", Role::Creator);
    row("Watchers|Members|关注者", Role::Followers);
    row("Created|Created At (UTC)|Date created|创建时间", Role::Created);
    row("Due date|Due|Deadline|Due_Date:|截止日期|到期日", Role::PlannedEnd);
    row("URL|Link|Links|Card URL|链接", Role::Url);
    row("Labels|标签", Role::Other); // no field takes them: they go to the details
    row("Description|Notes|Details|描述|备注", Role::Detail);
    row("Level|Outline Level|Indent|层级", Role::Level);
    row("WBS|Outline number|大纲编号", Role::Outline);
    row("Closed at|Completed At|完成日期", Role::CompletedAt);
}

void TestTableMapping::shouldKnowHeadings()
{
    QFETCH(QByteArray, headings);
    QFETCH(int, role);
    const QStringList names = QString::fromUtf8(headings).split(QLatin1Char('|'));
    for (const QString &name : names)
        QVERIFY2(int(TableMapping::guessed({name}).at(0)) == role, qPrintable(name));
}

void TestTableMapping::shouldTakeTheSurestOfSeveralTitles()
{
    QCOMPARE(rolesOf("Name|Summary"), QVector<Role>({Role::Other, Role::Title}));
    QCOMPARE(rolesOf("Summary|Name"), QVector<Role>({Role::Title, Role::Other}));
    QCOMPARE(rolesOf("Owned By|Owned By"), QVector<Role>({Role::Manager, Role::Other}));
    QCOMPARE(rolesOf("Key|Id"), QVector<Role>({Role::Id, Role::Id})); // a row may have two
}

void TestTableMapping::shouldTakeColumnsOfLevelsOnlyWithoutATitle()
{
    QCOMPARE(rolesOf("Level 1|Level 2"), QVector<Role>({Role::Path, Role::Path}));
    QCOMPARE(rolesOf("一级|二级|三级"), QVector<Role>({Role::Path, Role::Path, Role::Path}));
    QCOMPARE(rolesOf("Level 1|Owner"), QVector<Role>({Role::Other, Role::Manager}));
    QCOMPARE(rolesOf("Title|Level 1|Level 2"),
             QVector<Role>({Role::Title, Role::Other, Role::Other}));
}

void TestTableMapping::shouldKnowNothingOfOtherHeadings()
{
    QCOMPARE(rolesOf("|Colour|Titles of honour"),
             QVector<Role>({Role::Other, Role::Other, Role::Other}));
    QVERIFY(!TableMapping::hasTitles(rolesOf("Amount|Colour")));
    QVERIFY(TableMapping::hasTitles(rolesOf("Level 1|Level 2")));
}

void TestTableMapping::shouldTellWhatTheColumnsOfAFileStandFor()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.csv")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Report,,\nSummary,Owner,Colour\na,b,c\n1,2,3\n");
    file.close();
    const auto mapping = DiagramExchange::tableMapping(file.fileName(), Format::Csv);
    QVERIFY(mapping);
    QCOMPARE(mapping->headings, QStringList({QStringLiteral("Summary"), QStringLiteral("Owner"),
                                             QStringLiteral("Colour")}));
    QCOMPARE(mapping->roles, QVector<Role>({Role::Title, Role::Manager, Role::Other}));
    QCOMPARE(mapping->examples.size(), 2);
    QCOMPARE(mapping->examples.at(1).at(2), QStringLiteral("3"));
}

void TestTableMapping::shouldReadAFileAsItIsTold()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.csv")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("x,y\none,two\n");
    file.close();
    auto mapping = DiagramExchange::tableMapping(file.fileName(), Format::Csv);
    QVERIFY(mapping);
    QString error;
    QVERIFY(!DiagramExchange::readFile(file.fileName(), Format::Csv, &error));
    QVERIFY2(error.contains(QLatin1String("\"x\", \"y\"")), qPrintable(error));
    mapping->roles = {Role::Detail, Role::Title};
    const auto head =
        DiagramExchange::readFile(file.fileName(), Format::Csv, &error, nullptr, &*mapping);
    QVERIFY2(head, qPrintable(error));
    QCOMPARE(head->title(), QStringLiteral("two"));
    QCOMPARE(head->detail(), QStringLiteral("one"));
}

void TestTableMapping::shouldHaveNoColumnsInOtherFormats()
{
    QString error;
    QVERIFY(!DiagramExchange::tableMapping(QStringLiteral("missing.md"), Format::Markdown, &error));
    QCOMPARE(error, QString());
    QVERIFY(!DiagramExchange::tableMapping(QStringLiteral("missing.csv"), Format::Csv, &error));
    QCOMPARE(error, QStringLiteral("there is no such file"));
}

FISHBONE_GUILESS_TEST(TestTableMapping)

#include "tst_tablemapping.moc"
