// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QStandardItemModel>
#include <QtTest>

#include <fishbone/items/spearpointer.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>

using namespace TestSupport;

namespace {
std::unique_ptr<TreeItem> makeItem(const char *title = "item")
{
    auto item = std::make_unique<TreeItem>();
    item->setTitle(QLatin1String(title));
    return item;
}

/**
 * Tells whether a node still lives: a spear forgets its node when the node dies. A node that is
 * taken out of a model loses its spear and has to be watched anew.
 */
class LifeWatch
{
    Q_DISABLE_COPY(LifeWatch)

public:
    explicit LifeWatch(TreeItem *item) { watch(item); }
    ~LifeWatch() { delete m_spear.get(); }

    void watch(TreeItem *item)
    {
        delete m_spear.get();
        auto spear = std::make_unique<SpearItem>(QString(), 0, 20);
        m_spear = SpearPointer(spear.get());
        item->setSpear(spear.release(), QModelIndex());
    }
    bool isAlive() const { return m_spear.get()->treeItem(); }

private:
    SpearPointer m_spear;
};
} // namespace

/** InsertChild with an item of the caller's. */
class TestInsertTreeItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHaveNoItemAtFirst();
    void shouldInsertThatVeryItemEachTime();
    void shouldGiveTheItemAUuidWhenItHasNone();
    void shouldKeepTheUuidOfTheItem();
    void shouldInsertTheItemWithAllBelowIt();
    void shouldNameTheParentAsPid();
    void shouldMakeADocumentOfTheItemWithoutAParent();
    void shouldDeleteTheItemOnlyWhileItIsOut_data();
    void shouldDeleteTheItemOnlyWhileItIsOut();
    void shouldDeleteAnItemThatAnotherOneReplaces();
    void shouldInsertANewSubjectWhenTheItemIsTakenBack();
    void shouldPutNothingBackBelowAParentThatIsGone();
    void shouldLeaveAnItemOfTheModelWhereItIs();
    void shouldLeaveAnItemOfAnotherModelWhereItIs_data();
    void shouldLeaveAnItemOfAnotherModelWhereItIs();
    void shouldRefuseAnItemAboveTheParent();
    void shouldForgetAnItemThatOthersDeleted();
    void shouldRemoveNoOtherSubjectOfTheSameUuid();
    void shouldFindTheItemWhereverItWasMoved();
    void shouldNotInsertIntoAModelWithoutNodes();
};

void TestInsertTreeItem::shouldHaveNoItemAtFirst()
{
    CommandFixture f(QStringLiteral("H"));
    InsertChild command(f.model.get(), f.index("H"));
    QVERIFY(!command.treeItem());
    TreeItem *const item = makeItem().release();
    command.setTreeItem(item);
    QCOMPARE(command.treeItem(), item);
    command.setTreeItem(item);
    QCOMPARE(command.treeItem(), item);
}

void TestInsertTreeItem::shouldInsertThatVeryItemEachTime()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.draw();
    auto *const command = new InsertChild(f.model.get(), f.index("A"));
    TreeItem *const item = makeItem().release();
    command->setTreeItem(item);

    QCOMPARE(f.roundTripFault(command), QString());

    QCOMPARE(f.text(), QStringLiteral("H[A[a,item],B]"));
    QCOMPARE(f.node("item"), item);
    QCOMPARE(command->treeItem(), item);
    QCOMPARE(command->newUuid(), item->uuid());
}

void TestInsertTreeItem::shouldGiveTheItemAUuidWhenItHasNone()
{
    CommandFixture f(QStringLiteral("H"));
    auto *const command = new InsertChild(f.model.get(), f.index("H"));
    command->setTreeItem(makeItem().release());
    f.stack->push(command);
    const QString uuid = f.node("item")->uuid();
    QCOMPARE(uuid.size(), 38);
    f.stack->undo();
    f.stack->redo();
    QCOMPARE(f.node("item")->uuid(), uuid);
}

void TestInsertTreeItem::shouldKeepTheUuidOfTheItem()
{
    CommandFixture f(QStringLiteral("H"));
    auto *const command = new InsertChild(f.model.get(), f.index("H"));
    auto item = makeItem();
    item->setUuid(QStringLiteral("task 7"));
    command->setTreeItem(item.release());
    f.stack->push(command);
    QCOMPARE(f.node("item")->uuid(), QStringLiteral("task 7"));
    QCOMPARE(command->newUuid(), QStringLiteral("task 7"));
}

void TestInsertTreeItem::shouldInsertTheItemWithAllBelowIt()
{
    CommandFixture f(QStringLiteral("H[A]"));
    f.draw();
    auto *const command = new InsertChild(f.model.get(), f.index("A"));
    command->setTreeItem(makeFan(3).release());
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A[fan[0,1,2]]]"));
    QCOMPARE(f.spear("fan")->childSpears().size(), 3);
}

void TestInsertTreeItem::shouldNameTheParentAsPid()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto *const command = new InsertChild(f.model.get(), f.index("A"));
    command->setTreeItem(makeItem().release());
    f.stack->push(command);
    QCOMPARE(f.node("item")->pid(), QStringLiteral("u-A"));
}

void TestInsertTreeItem::shouldMakeADocumentOfTheItemWithoutAParent()
{
    CommandFixture f(QStringLiteral("H"));
    auto *const command = new InsertChild(f.model.get(), QModelIndex());
    command->setTreeItem(makeItem().release());
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("H;item"));
    TreeItem *const item = command->treeItem();
    f.stack->undo();
    const LifeWatch life(item);
    f.stack.reset();
    QVERIFY(!life.isAlive());
}

void TestInsertTreeItem::shouldDeleteTheItemOnlyWhileItIsOut_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<QString>("order");
    QTest::addColumn<bool>("survivesTheStack");
    for (int steps = 0; steps < 6; ++steps) {
        const bool isIn = steps % 2 == 1;
        QTest::addRow("stack first after %d steps", steps) << steps << "stack,model" << isIn;
        QTest::addRow("model first after %d steps", steps) << steps << "model,stack" << !isIn;
        QTest::addRow("document first after %d steps", steps)
            << steps << "document,stack,model" << !isIn;
        QTest::addRow("parent first after %d steps", steps)
            << steps << "parent,stack,model" << !isIn;
    }
}

void TestInsertTreeItem::shouldDeleteTheItemOnlyWhileItIsOut()
{
    QFETCH(int, steps);
    QFETCH(QString, order);
    QFETCH(bool, survivesTheStack);
    CommandFixture f(QStringLiteral("H[A]"));
    std::unique_ptr<UndoCommand> pending;
    TreeItem *const item = makeItem().release();
    LifeWatch life(item);
    {
        auto command = std::make_unique<InsertChild>(f.model.get(), f.index("A"));
        command->setTreeItem(item);
        pending = std::move(command);
    }
    for (int step = 0; step < steps; ++step) {
        if (step == 0)
            f.stack->push(pending.release());
        else if (step % 2 == 0)
            f.stack->redo();
        else
            f.stack->undo();
        // Taking the item out costs it its spear.
        life.watch(item);
    }

    const QStringList victims = order.split(QLatin1Char(','));
    for (const QString &victim : victims) {
        const bool isFirst = victim == victims.first();
        if (victim == QLatin1String("stack")) {
            f.stack.reset();
            pending.reset();
        } else if (victim == QLatin1String("model")) {
            f.model.reset();
        } else if (victim == QLatin1String("document")) {
            f.model->unloadFish(f.document(0));
        } else {
            f.model->removeRows(0, 1, f.index("H"));
        }
        if (isFirst)
            QCOMPARE(life.isAlive(), survivesTheStack);
    }
    QVERIFY(!life.isAlive());
}

void TestInsertTreeItem::shouldDeleteAnItemThatAnotherOneReplaces()
{
    CommandFixture f(QStringLiteral("H"));
    InsertChild command(f.model.get(), f.index("H"));
    TreeItem *const item = makeItem().release();
    const LifeWatch life(item);
    command.setTreeItem(item);
    command.setTreeItem(makeItem("other").release());
    QVERIFY(!life.isAlive());
    command.redo();
    QCOMPARE(f.text(), QStringLiteral("H[other]"));
}

void TestInsertTreeItem::shouldInsertANewSubjectWhenTheItemIsTakenBack()
{
    CommandFixture f(QStringLiteral("H"));
    InsertChild command(f.model.get(), f.index("H"));
    command.setTreeItem(makeItem().release());
    command.setTreeItem(nullptr);
    QVERIFY(!command.treeItem());
    command.redo();
    QCOMPARE(f.text(), QStringLiteral("H[+]"));
}

void TestInsertTreeItem::shouldPutNothingBackBelowAParentThatIsGone()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    InsertChild child(f.model.get(), f.index("A"));
    child.redo();
    child.undo();
    f.model->removeRows(0, 1, f.index("H"));
    child.redo();
    QCOMPARE(f.text(), QStringLiteral("H[B]"));

    // A document that was taken out goes back to the top level only.
    f.model->loadJsonFish(R"({"title": "G", "uuid": "u-G"})");
    InsertBack back(f.model.get(), f.index("G"));
    back.redo();
    QCOMPARE(f.text(), QStringLiteral("H[B];G;*"));
    back.undo();
    f.model->moveRows(QModelIndex(), 1, 1, f.index("H"), 0);
    back.redo();
    QCOMPARE(f.text(), QStringLiteral("H[G,B]"));
    f.model->moveRows(f.index("H"), 0, 1, QModelIndex(), 1);
    back.redo();
    QCOMPARE(f.text(), QStringLiteral("H[B];G;*"));
}

void TestInsertTreeItem::shouldLeaveAnItemOfTheModelWhereItIs()
{
    CommandFixture f(QStringLiteral("H[A,B[b]]"));
    f.draw();
    auto *const command = new InsertChild(f.model.get(), f.index("A"));
    command->setTreeItem(f.node("b"));
    QCOMPARE(f.roundTripFault(command), QString());
    QCOMPARE(f.text(), QStringLiteral("H[A,B[b]]"));
    f.stack->undo();
    f.stack.reset();
    QCOMPARE(f.text(), QStringLiteral("H[A,B[b]]"));
}

void TestInsertTreeItem::shouldLeaveAnItemOfAnotherModelWhereItIs_data()
{
    QTest::addColumn<QByteArray>("title");
    QTest::newRow("a bone") << QByteArray("P");
    QTest::newRow("a head") << QByteArray("O");
}

void TestInsertTreeItem::shouldLeaveAnItemOfAnotherModelWhereItIs()
{
    QFETCH(QByteArray, title);
    CommandFixture f(QStringLiteral("H[A]"));
    CommandFixture other(QStringLiteral("O[P[p],Q]"));
    f.draw();
    other.draw();
    auto *const command = new InsertChild(f.model.get(), f.index("A"));
    command->setTreeItem(other.node(title.constData()));
    f.stack->push(command);
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
    f.stack->undo();
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
    f.stack.reset(); // which deletes what it owns
    QCOMPARE(other.text(), QStringLiteral("O[P[p],Q]"));
    QVERIFY(other.index("P").isValid());
}

void TestInsertTreeItem::shouldRefuseAnItemAboveTheParent()
{
    CommandFixture f(QStringLiteral("H[A]"));
    InsertChild command(f.model.get(), f.index("A"));
    command.setTreeItem(f.node("H"));
    command.redo();
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
    command.undo();
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
}

void TestInsertTreeItem::shouldForgetAnItemThatOthersDeleted()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto *const command = new InsertChild(f.model.get(), f.index("H"));
    command->setTreeItem(makeItem().release());
    f.stack->push(command);
    f.model->removeRows(1, 1, f.index("H"));

    for (int pass = 0; pass < 2; ++pass) {
        f.stack->undo();
        QVERIFY(!command->treeItem());
        QCOMPARE(f.text(), QStringLiteral("H[A]"));
        f.stack->redo();
        QCOMPARE(f.text(), QStringLiteral("H[A]"));
    }
}

void TestInsertTreeItem::shouldRemoveNoOtherSubjectOfTheSameUuid()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto *const command = new InsertChild(f.model.get(), f.index("H"));
    auto item = makeItem();
    item->setUuid(QStringLiteral("u-A"));
    command->setTreeItem(item.release());
    QCOMPARE(f.roundTripFault(command), QString());
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
    f.stack->redo();
    f.model->removeRows(1, 1, f.index("H"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
}

void TestInsertTreeItem::shouldFindTheItemWhereverItWasMoved()
{
    CommandFixture f(QStringLiteral("H[A];G"));
    auto *const command = new InsertChild(f.model.get(), f.index("A"));
    TreeItem *const item = makeItem().release();
    command->setTreeItem(item);
    f.stack->push(command);
    f.model->moveRows(f.index("A"), 0, 1, QModelIndex(), 0);
    QCOMPARE(f.text(), QStringLiteral("item;H[A];G"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A];G"));
    QCOMPARE(command->treeItem(), item);
}

void TestInsertTreeItem::shouldNotInsertIntoAModelWithoutNodes()
{
    QStandardItemModel model(1, 2);
    TreeItem *const item = makeItem().release();
    const LifeWatch life(item);
    {
        InsertChild command(&model, QModelIndex());
        command.setTreeItem(item);
        command.redo();
        QCOMPARE(model.rowCount(), 1);
        command.undo();
        QCOMPARE(model.rowCount(), 1);
    }
    QVERIFY(!life.isAlive());
}

FISHBONE_TEST(TestInsertTreeItem)
#include "tst_inserttreeitem.moc"
