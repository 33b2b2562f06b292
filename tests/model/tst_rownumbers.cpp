// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/rownumbers.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

#include <QRandomGenerator>
#include <QtTest>

#include <functional>

using namespace TestSupport;

namespace {

/** A head with that many children. */
std::unique_ptr<TreeItem> makeList(int size)
{
    auto parent = std::make_unique<TreeItem>();
    for (int i = 0; i < size; ++i)
        parent->appendChild(new TreeItem);
    return parent;
}

/** Asks for the first row, the last one, and some between. */
void ask(const TreeItem &parent, int step)
{
    const int size = parent.childCount();
    for (const int row : {0, size - 1, size / 2, int(qint64(step) * 7919 % qMax(size, 1))}) {
        if (row >= 0 && row < size)
            QCOMPARE(parent.childAtIndex(row)->index(), row);
    }
}

void appendFirstChildren(int size)
{
    const auto from = makeList(size);
    TreeItem to;
    for (int i = 0; i < size; ++i)
        to.appendChild(from->childAtIndex(0));
    QCOMPARE(to.childCount(), size);
    ask(to, 0);
}

void rotate(int size)
{
    const auto list = makeList(size);
    for (int i = 0; i < size; ++i) {
        list->appendChild(list->childAtIndex(0));
        ask(*list, i);
    }
}

void removeAtTheFront(int size)
{
    const auto list = makeList(size);
    for (int i = 0; i < size; ++i) {
        delete list->takeAt(0);
        ask(*list, i);
    }
}

void removeAtTheEnd(int size)
{
    const auto list = makeList(size);
    for (int i = 0; i < size; ++i) {
        QVERIFY(list->removeChildren(list->childCount() - 1, 1));
        ask(*list, i);
    }
}

void removeBehindTheFirst(int size)
{
    const auto list = makeList(size);
    while (list->childCount() > 1) {
        QVERIFY(list->removeChildren(1, 1));
        ask(*list, list->childCount());
    }
}

void insertAtTheFront(int size)
{
    TreeItem list;
    for (int i = 0; i < size; ++i) {
        QVERIFY(list.insertChildren(0, 1, QString()));
        ask(list, i);
    }
}

void insertBehindTheFirst(int size)
{
    TreeItem list;
    list.appendChild(new TreeItem);
    for (int i = 0; i < size; ++i) {
        QVERIFY(list.insertChildAtPosition(1, new TreeItem));
        ask(list, i);
    }
}

void moveFromListToList(int size)
{
    const auto from = makeList(size);
    TreeItem to;
    for (int i = 0; i < size; ++i) {
        QVERIFY(from->moveChildren(0, 1, &to, 0));
        ask(*from, i);
        ask(to, i);
    }
}

void exchangeInTheMiddle(int size)
{
    const auto list = makeList(size);
    for (int i = 0; i < size; ++i) {
        QVERIFY(list->moveChildren(size / 2, 1, list.get(), size / 2 + 2));
        ask(*list, i);
    }
}

void insertMany(int size)
{
    const auto list = makeList(size);
    QVERIFY(list->insertChildren(size / 3, size, QString()));
    for (int row = list->childCount() - 1; row >= 0; --row)
        QCOMPARE(list->childAtIndex(row)->index(), row);
}

void unloadTheFirst(int size)
{
    FishModel model;
    QVERIFY(model.insertRows(0, size));
    for (int i = 0; i < size; ++i) {
        FishInfo *const last = model.fishList().constLast();
        QCOMPARE(model.fishRow(last), size - 1 - i);
        QCOMPARE(model.indexFromItem(last->treeItem()->childAtIndex(0)).row(), size - 1 - i);
        model.unloadFish(model.fishList().constFirst());
    }
}

using Operation = void (*)(int size);

} // namespace

Q_DECLARE_METATYPE(Operation)

/** How nodes and documents know their rows, and what it costs. */
class TestRowNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNumberLinearlyManyRows_data();
    void shouldNumberLinearlyManyRows();
    void shouldKnowEveryRowAfterRandomChanges_data();
    void shouldKnowEveryRowAfterRandomChanges();
    void shouldFindNothingThatIsNotThere();
};

void TestRowNumbers::shouldNumberLinearlyManyRows_data()
{
    QTest::addColumn<Operation>("operation");
    const auto row = [](const char *name, Operation operation) {
        QTest::newRow(name) << operation;
    };
    row("append first children", appendFirstChildren);
    row("rotate", rotate);
    row("remove at the front", removeAtTheFront);
    row("remove at the end", removeAtTheEnd);
    row("remove behind the first", removeBehindTheFirst);
    row("insert at the front", insertAtTheFront);
    row("insert behind the first", insertBehindTheFirst);
    row("move from list to list", moveFromListToList);
    row("exchange in the middle", exchangeInTheMiddle);
    row("insert many", insertMany);
    row("unload the first", unloadTheFirst);
}

void TestRowNumbers::shouldNumberLinearlyManyRows()
{
    QFETCH(Operation, operation);
    constexpr int size = 2000;

    const qint64 before = RowNumbers::renewed;
    operation(size);
    const qint64 given = RowNumbers::renewed - before;

    // Quadratic would be two million and more.
    QVERIFY2(given <= 20 * size, qPrintable(QString::number(given)));
}

void TestRowNumbers::shouldKnowEveryRowAfterRandomChanges_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 40; ++seed)
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

void TestRowNumbers::shouldKnowEveryRowAfterRandomChanges()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    const auto upTo = [&random](int last) { return int(random.bounded(last + 1)); };
    const auto one = makeList(10);
    const auto other = makeList(10);
    for (int step = 0; step < 300; ++step) {
        TreeItem *const list = upTo(1) ? one.get() : other.get();
        TreeItem *const to = upTo(1) ? one.get() : other.get();
        const int size = list->childCount();
        const int row = upTo(size);
        switch (upTo(5)) {
        case 0:
            QVERIFY(list->insertChildren(row, upTo(3), QString()));
            break;
        case 1:
            QVERIFY(list->removeChildren(row, upTo(qMin(3, size - row))));
            break;
        case 2:
            list->appendChild(new TreeItem, row);
            break;
        case 3:
            delete list->takeAt(row);
            break;
        case 4:
            QVERIFY(list->moveChildren(row, upTo(qMin(3, size - row)), to, upTo(to->childCount())));
            break;
        default:
            if (row < size)
                to->appendChild(list->childAtIndex(row), upTo(to->childCount()));
        }
        for (const TreeItem *asked : {one.get(), other.get()}) {
            const int count = upTo(2) ? upTo(2) : asked->childCount();
            for (int i = 0; i < count && asked->childCount() > 0; ++i) {
                const int which = count > 2 ? i : upTo(asked->childCount() - 1);
                QCOMPARE(asked->childAtIndex(which)->index(), which);
            }
        }
    }
}

void TestRowNumbers::shouldFindNothingThatIsNotThere()
{
    int given = 0;
    const int row = RowNumbers::find(
        5, 3, 4, [](int) { return false; }, [&given](int, int) { ++given; });
    QCOMPARE(row, -1);
    QCOMPARE(given, 4);
    QCOMPARE(RowNumbers::find(
                 0, 0, 0, [](int) { return true; }, [](int, int) {}),
             -1);
}

FISHBONE_TEST(TestRowNumbers)

#include "tst_rownumbers.moc"
