// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/treeitem.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <tests/model/treeitemtreeparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modaldriver.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

using namespace TestSupport;

/** The attributes of a node and its links to a spear and a style. */
/** The spear of a node, and its own style. */
class TestTreeItemSpear : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellItsSpearTheTitle();
    void shouldForgetTheSpearThatDies();
    void shouldLeaveNothingBehindInTheSpearWhenItDies();
    void shouldReleaseTheFormerSpear();
    void shouldTakeASpearFromAnotherNode();
    void shouldKeepASpearThatIsSetAgain();
    void shouldHandTheMovableFlagToItsSpear();
    void shouldMakeItsStyleFromAnObject();
    void shouldLoseItsStyleToAnEmptyObject();
    void shouldReplaceItsStyleAndNotMergeIt();
    void shouldKeepTheStyleOfAnAcceptedDialog();
    void shouldForgetTheStyleOfARejectedDialog();
    void shouldEditItsOwnStyleInPlace();
    void shouldSurviveWhenItsNodeDiesUnderTheDialog_data();
    void shouldSurviveWhenItsNodeDiesUnderTheDialog();
};

void TestTreeItemSpear::shouldTellItsSpearTheTitle()
{
    FishModel model;
    loadDocument(model, QStringLiteral("Effect[Man]"));
    TreeItem *const man = nodeTitled(model, QStringLiteral("Man"));
    SpearItem spear(QStringLiteral("Man"), 0, 0);
    man->setSpear(&spear, model.indexFromItem(man));

    man->setTitle(QStringLiteral("Machine"));

    QCOMPARE(spear.text(), QStringLiteral("Machine"));
}

void TestTreeItemSpear::shouldForgetTheSpearThatDies()
{
    FishModel model;
    loadDocument(model, QStringLiteral("Effect[Man]"));
    TreeItem *const man = nodeTitled(model, QStringLiteral("Man"));
    {
        SpearItem spear(QStringLiteral("Man"), 0, 0);
        man->setSpear(&spear, model.indexFromItem(man));
        QCOMPARE(man->spear(), &spear);
        QCOMPARE(spear.treeItem(), man);
        QCOMPARE(spear.modelIndex(), model.indexFromItem(man));
    }

    QCOMPARE(man->spear(), nullptr);
}

void TestTreeItemSpear::shouldLeaveNothingBehindInTheSpearWhenItDies()
{
    SpearItem spear(QStringLiteral("Man"), 0, 0);
    {
        FishModel model;
        loadDocument(model, QStringLiteral("Effect[Man]"));
        TreeItem *const man = nodeTitled(model, QStringLiteral("Man"));
        man->setSpear(&spear, model.indexFromItem(man));
        QCOMPARE(spear.treeItem(), man);
    }

    QCOMPARE(spear.treeItem(), nullptr);
    QVERIFY(!spear.modelIndex().isValid());
}

void TestTreeItemSpear::shouldReleaseTheFormerSpear()
{
    FishModel model;
    loadDocument(model, QStringLiteral("Effect[Man]"));
    TreeItem *const man = nodeTitled(model, QStringLiteral("Man"));
    SpearItem second(QStringLiteral("second"), 0, 0);
    {
        SpearItem first(QStringLiteral("first"), 0, 0);
        man->setSpear(&first, model.indexFromItem(man));
        man->setSpear(&second, model.indexFromItem(man));
        QCOMPARE(first.treeItem(), nullptr);
    }

    QCOMPARE(man->spear(), &second);
    man->setSpear(nullptr, QModelIndex());
    QCOMPARE(man->spear(), nullptr);
    QCOMPARE(second.treeItem(), nullptr);
}

void TestTreeItemSpear::shouldTakeASpearFromAnotherNode()
{
    FishModel model;
    loadDocument(model, QStringLiteral("Effect[Man,Machine]"));
    TreeItem *const man = nodeTitled(model, QStringLiteral("Man"));
    TreeItem *const machine = nodeTitled(model, QStringLiteral("Machine"));
    SpearItem spear(QStringLiteral("Man"), 0, 0);
    man->setSpear(&spear, model.indexFromItem(man));

    machine->setSpear(&spear, model.indexFromItem(machine));

    QCOMPARE(man->spear(), nullptr);
    QCOMPARE(machine->spear(), &spear);
    QCOMPARE(spear.treeItem(), machine);
}

void TestTreeItemSpear::shouldKeepASpearThatIsSetAgain()
{
    TreeItem node; // in no model, so that it has no index
    SpearItem spear(QStringLiteral("Man"), 0, 0);

    for (int i = 0; i < 2; ++i) {
        node.setSpear(&spear, QModelIndex());
        QCOMPARE(node.spear(), &spear);
        QCOMPARE(spear.treeItem(), &node);
    }
}

void TestTreeItemSpear::shouldHandTheMovableFlagToItsSpear()
{
    TreeItem node;
    node.setSpearItemIsMovable(false);
    SpearItem spear(QStringLiteral("Man"), 0, 0);

    node.setSpear(&spear, QModelIndex());

    QVERIFY(!(spear.flags() & QGraphicsItem::ItemIsMovable));
}

void TestTreeItemSpear::shouldMakeItsStyleFromAnObject()
{
    TreeItem node;

    node.setSpearStyle(TestSupport::styleShowing(3));

    QVERIFY(node.spearStyle());
    QCOMPARE(node.spearStyle()->textCount(), 3);
    node.delSpearStyle();
    QCOMPARE(node.spearStyle(), nullptr);
    node.delSpearStyle();
    QCOMPARE(node.spearStyle(), nullptr);
}

void TestTreeItemSpear::shouldLoseItsStyleToAnEmptyObject()
{
    TreeItem node;
    node.setSpearStyle(TestSupport::styleShowing(3));

    node.setSpearStyle(QJsonObject());

    QCOMPARE(node.spearStyle(), nullptr);
}

void TestTreeItemSpear::shouldReplaceItsStyleAndNotMergeIt()
{
    TreeItem node;
    node.setSpearStyle(TestSupport::styleShowing(3));
    node.spearStyle()->setTextColor(SpearStyle::ssNormal, Qt::red);

    node.setSpearStyle(TestSupport::styleShowing(4));

    QVERIFY(!node.spearStyle()->textColor(SpearStyle::ssNormal).isValid());
}

void TestTreeItemSpear::shouldKeepTheStyleOfAnAcceptedDialog()
{
    TreeItem node;
    const int global = SpearStyle::global()->textCount();
    const ModalDriver<SpearStyleDialog> user([](SpearStyleDialog &dialog) {
        dialog.textCountChanged(QStringLiteral("17"));
        dialog.accept();
    });

    node.setSpearStyle();

    QVERIFY(user.isDone());
    QVERIFY(node.spearStyle());
    QCOMPARE(node.spearStyle()->textCount(), 17);
    QCOMPARE(SpearStyle::global()->textCount(), global);
}

void TestTreeItemSpear::shouldForgetTheStyleOfARejectedDialog()
{
    TreeItem node;
    const ModalDriver<SpearStyleDialog> user([](SpearStyleDialog &dialog) {
        dialog.textCountChanged(QStringLiteral("17"));
        dialog.reject();
    });

    node.setSpearStyle();

    QVERIFY(user.isDone());
    QCOMPARE(node.spearStyle(), nullptr);
}

void TestTreeItemSpear::shouldEditItsOwnStyleInPlace()
{
    TreeItem node;
    node.setSpearStyle(TestSupport::styleShowing(3));
    const SpearStyle *const own = node.spearStyle();
    int whileOpen = 0;
    const ModalDriver<SpearStyleDialog> user([own, &whileOpen](SpearStyleDialog &dialog) {
        dialog.textCountChanged(QStringLiteral("17"));
        whileOpen = own->textCount();
        dialog.accept();
    });

    node.setSpearStyle();

    QVERIFY(user.isDone());
    QCOMPARE(whileOpen, 17);
    QCOMPARE(node.spearStyle(), own);
    QCOMPARE(own->textCount(), 17);
}

void TestTreeItemSpear::shouldSurviveWhenItsNodeDiesUnderTheDialog_data()
{
    QTest::addColumn<bool>("hasStyle");

    QTest::newRow("own style") << true;
    QTest::newRow("global style") << false;
}

void TestTreeItemSpear::shouldSurviveWhenItsNodeDiesUnderTheDialog()
{
    QFETCH(bool, hasStyle);
    auto node = std::make_unique<TreeItem>();
    if (hasStyle)
        node->setSpearStyle(TestSupport::styleShowing(3));
    const ModalDriver<SpearStyleDialog> user([&node](SpearStyleDialog &dialog) {
        node.reset();
        dialog.textCountChanged(QStringLiteral("17"));
        dialog.accept();
    });

    node->setSpearStyle();

    QVERIFY(user.isDone());
    QVERIFY(!node);
}

FISHBONE_TEST(TestTreeItemSpear)

#include "tst_treeitem_spear.moc"
