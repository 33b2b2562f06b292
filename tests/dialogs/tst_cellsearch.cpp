// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/dialogs/cellsearch.h>
#include <tests/program/testprogram.h>

#include <QStandardItemModel>
#include <QtTest>

/** Finding cells of a model by what they show. */
class TestCellSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindCellsInPreOrder_data();
    void shouldFindCellsInPreOrder();
    void shouldFindNothingInAnEmptyModel();
    void shouldTakeNoStack();
};

namespace {

/** Ab (with abc and cab, which has an AB), x; the second column has the rows' numbers from 1. */
void fillCells(QStandardItemModel &model)
{
    int number = 0;
    const auto row = [&number](const char *text) {
        return QList<QStandardItem *>{new QStandardItem(QLatin1String(text)),
                                      new QStandardItem(QString::number(++number))};
    };
    model.appendRow(row("Ab"));
    model.item(0)->appendRow(row("abc"));
    model.item(0)->appendRow(row("cab"));
    model.item(0)->child(1)->appendRow(row("AB"));
    model.appendRow(row("x"));
}

} // namespace

void TestCellSearch::shouldFindCellsInPreOrder_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("atTheEnd");
    QTest::addColumn<bool>("isCaseSensitive");
    QTest::addColumn<QString>("found");
    QTest::newRow("contained") << 0 << "ab" << false << false << "Ab,abc,cab,AB";
    QTest::newRow("with case") << 0 << "ab" << false << true << "abc,cab";
    QTest::newRow("at the end") << 0 << "ab" << true << false << "Ab,cab,AB";
    QTest::newRow("at the end, with case") << 0 << "ab" << true << true << "cab";
    QTest::newRow("another column") << 1 << "4" << false << false << "4";
    QTest::newRow("nothing") << 0 << "zz" << false << false << "";
    QTest::newRow("no such column") << 7 << "ab" << false << false << "";
}

void TestCellSearch::shouldFindCellsInPreOrder()
{
    QFETCH(int, column);
    QFETCH(QString, text);
    QFETCH(bool, atTheEnd);
    QFETCH(bool, isCaseSensitive);
    QStandardItemModel model;
    fillCells(model);
    QStringList found;
    const QList<QPersistentModelIndex> cells =
        cellsWith(model, column, text, atTheEnd ? Qt::MatchEndsWith : Qt::MatchContains,
                  isCaseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);
    for (const QPersistentModelIndex &cell : cells)
        found.append(cell.data().toString());
    QTEST(found.join(QLatin1Char(',')), "found");
}

void TestCellSearch::shouldFindNothingInAnEmptyModel()
{
    const QStandardItemModel model;
    QVERIFY(cellsWith(model, 0, QString(), Qt::MatchContains, Qt::CaseInsensitive).isEmpty());
}

void TestCellSearch::shouldTakeNoStack()
{
    constexpr int depth = 2000;
    QStandardItemModel model;
    QStandardItem *above = model.invisibleRootItem();
    for (int level = 0; level < depth; ++level) {
        above->appendRow(new QStandardItem(QStringLiteral("a")));
        above = above->child(0);
    }
    QCOMPARE(cellsWith(model, 0, QStringLiteral("a"), Qt::MatchContains, Qt::CaseSensitive).size(),
             depth);
}

FISHBONE_GUILESS_TEST(TestCellSearch)
#include "tst_cellsearch.moc"
