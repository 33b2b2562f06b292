// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/stackorder.h>

#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/items/spearitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>

#include <QGraphicsScene>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <numeric>

using namespace TestSupport;

/** How siblings are brought into an order, and what it costs. */
class TestStackOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStackInTheOrderOfTheList_data();
    void shouldStackInTheOrderOfTheList();
    void shouldPassLinearlyManySiblings();
};

void TestStackOrder::shouldStackInTheOrderOfTheList_data()
{
    QTest::addColumn<QList<int>>("order");
    const auto row = [](const char *name, const QList<int> &order) {
        QTest::newRow(name) << order;
    };
    QList<int> sorted;
    for (int i = 0; i < 40; ++i)
        sorted.append(i);
    row("none", {});
    row("in order", sorted);
    QList<int> order = sorted;
    order.move(39, 3);
    row("one forward", order);
    order = sorted;
    order.move(3, 39);
    row("one backward", order);
    std::reverse(order.begin(), order.end());
    row("reversed", order);
    QRandomGenerator random(7);
    std::shuffle(order.begin(), order.end(), random);
    row("shuffled", order);
}

void TestStackOrder::shouldStackInTheOrderOfTheList()
{
    QFETCH(QList<int>, order);
    QGraphicsLineItem parent;
    auto *const other = new QGraphicsLineItem(&parent);
    QList<QGraphicsItem *> made;
    for (int i = 0; i < order.size(); ++i)
        made.append(new QGraphicsLineItem(&parent));
    QList<QGraphicsItem *> wanted;
    for (const int i : qAsConst(order))
        wanted.append(made.at(i));

    StackOrder::arrange(&parent, wanted);

    QList<QGraphicsItem *> stacked = parent.childItems();
    QCOMPARE(stacked.takeFirst(), other);
    QCOMPARE(stacked, wanted);
}

/** Every second child has a spear already; the builder makes the others behind them. */
void TestStackOrder::shouldPassLinearlyManySiblings()
{
    constexpr int size = 1000;
    QStringList titles;
    for (int i = 0; i < size; ++i)
        titles.append(QStringLiteral("b%1").arg(i));
    CommandFixture f(QStringLiteral("H[%1]").arg(titles.join(QLatin1Char(','))));
    f.draw();
    SpearItem *const head = f.spear("H");
    for (int i = 0; i < size; i += 2)
        delete f.node("H")->childAtIndex(i)->spear();
    const qint64 before = StackOrder::passed;

    SpearBuilder(*f.model).buildDescendants(f.index("H"));

    QCOMPARE(head->childSpears().size(), size);
    QCOMPARE(spearFault(*f.model), QString());
    const qint64 passed = StackOrder::passed - before;
    QVERIFY2(passed <= 4 * size, qPrintable(QString::number(passed)));
}

FISHBONE_TEST(TestStackOrder)

#include "tst_stackorder.moc"
