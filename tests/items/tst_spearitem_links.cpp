// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of SpearItem that concerns the link with its subject.

#include <fishbone/items/spearitem.h>

#include <QStandardItemModel>
#include <QtTest>

#include <fishbone/items/taskstatusitem.h>
#include <tests/items/boneparts.h>
#include <tests/items/shownbones.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/pictures.h>

using namespace TestSupport;

namespace {

using BoneParts::newSpear;
using ShownBones::machine;
using ShownBones::man;

/** Ways to let the spear or the node of "Man" die. */
enum class Death {
    DeleteSpear,
    DeleteParentSpear,
    ClearScene,
    RemoveRow,
    TakeRow,
    UnloadDocument,
    ResetDocument,
    DeleteDocument,
    DeleteModel,
};
} // namespace

Q_DECLARE_METATYPE(Death)

class TestSpearItemLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLinkBothEndsForAnIndex();
    void shouldLinkBothEndsForANode();
    void shouldFollowItsSubjectThroughTheModel();
    void shouldHaveNoSubjectForAnIndexOfNoFishModel();
    void shouldLeaveItsSubjectForAnInvalidIndex();
    void shouldLeaveItsSubjectForAnother();
    void shouldBeForgottenByASubjectThatTakesAnotherSpear();
    void shouldSwapSubjects();
    void shouldClearOnlyItsOwnLink();
    void shouldLinkWithANodeOutsideAnyModel();
    void shouldLeaveNothingDangling_data();
    void shouldLeaveNothingDangling();
    void shouldGoOnWithoutASubject();
    void shouldHaveNoIndexWhileItsSubjectIsOutOfTheModel();
};

void TestSpearItemLinks::shouldLinkBothEndsForAnIndex()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    const auto spear = newSpear();

    spear->setModelIndex(drawing.index(man));

    QCOMPARE(spear->treeItem(), drawing.node(man));
    QCOMPARE(drawing.node(man)->spear(), spear.get());
    QCOMPARE(spear->modelIndex(), drawing.index(man));
}

void TestSpearItemLinks::shouldLinkBothEndsForANode()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    const auto spear = newSpear();
    drawing.node(man)->setSpearItemIsMovable(false);
    drawing.node(man)->setStatus(tsCancel);

    drawing.node(man)->setSpear(spear.get(), drawing.index(man));

    QCOMPARE(spear->treeItem(), drawing.node(man));
    QCOMPARE(spear->modelIndex(), drawing.index(man));
    QVERIFY(!(spear->flags() & QGraphicsItem::ItemIsMovable));
    QCOMPARE(spear->statusItem()->status(), tsCancel);
}

void TestSpearItemLinks::shouldFollowItsSubjectThroughTheModel()
{
    Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    const SpearItem *const spear = drawing.spear(machine);
    const QModelIndex head = drawing.model.index(0, 0);
    QCOMPARE(spear->modelIndex().row(), 1);

    drawing.model.insertRows(0, 2, head);
    QCOMPARE(spear->modelIndex(), drawing.model.index(3, 0, head));

    drawing.model.moveRows(head, 3, 1, drawing.index(man), 0);
    QCOMPARE(spear->modelIndex(), drawing.model.index(0, 0, drawing.index(man)));
}

void TestSpearItemLinks::shouldHaveNoSubjectForAnIndexOfNoFishModel()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem *const spear = drawing.spear(man);
    const QStandardItemModel other(1, 1);

    spear->setModelIndex(other.index(0, 0));

    QCOMPARE(spear->treeItem(), nullptr);
    QVERIFY(!spear->modelIndex().isValid());
    QCOMPARE(drawing.node(man)->spear(), nullptr);
}

void TestSpearItemLinks::shouldLeaveItsSubjectForAnInvalidIndex()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem *const spear = drawing.spear(man);

    spear->setModelIndex(QModelIndex());

    QCOMPARE(spear->treeItem(), nullptr);
    QVERIFY(!spear->modelIndex().isValid());
    QCOMPARE(drawing.node(man)->spear(), nullptr);
}

void TestSpearItemLinks::shouldLeaveItsSubjectForAnother()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    SpearItem *const spear = drawing.spear(man);
    SpearItem *const former = drawing.spear(machine);

    drawing.node(machine)->setSpear(spear, drawing.index(machine));

    QCOMPARE(drawing.node(man)->spear(), nullptr);
    QCOMPARE(drawing.node(machine)->spear(), spear);
    QCOMPARE(spear->treeItem(), drawing.node(machine));
    QCOMPARE(former->treeItem(), nullptr);
    QVERIFY(!former->modelIndex().isValid());
}

void TestSpearItemLinks::shouldBeForgottenByASubjectThatTakesAnotherSpear()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    const SpearItem *const former = drawing.spear(man);
    const auto spear = newSpear();

    drawing.node(man)->setSpear(spear.get(), drawing.index(man));
    QCOMPARE(former->treeItem(), nullptr);

    drawing.node(man)->setSpear(nullptr, QModelIndex());
    QCOMPARE(spear->treeItem(), nullptr);
    QCOMPARE(drawing.node(man)->spear(), nullptr);
}

void TestSpearItemLinks::shouldSwapSubjects()
{
    const Drawing drawing(QStringLiteral("Effect[Man,Machine]"));
    SpearItem *const first = drawing.spear(man);
    SpearItem *const second = drawing.spear(machine);

    drawing.node(man)->setSpear(second, drawing.index(man));
    drawing.node(machine)->setSpear(first, drawing.index(machine));

    QCOMPARE(first->treeItem(), drawing.node(machine));
    QCOMPARE(second->treeItem(), drawing.node(man));
    QCOMPARE(drawing.node(man)->spear(), second);
    QCOMPARE(drawing.node(machine)->spear(), first);
    QCOMPARE(first->modelIndex(), drawing.index(machine));
}

void TestSpearItemLinks::shouldClearOnlyItsOwnLink()
{
    const Drawing drawing(QStringLiteral("Effect[Man]"));
    auto first = newSpear();
    auto second = newSpear();
    drawing.node(man)->setSpear(first.get(), drawing.index(man));
    drawing.node(man)->setSpear(second.get(), drawing.index(man));

    first.reset();
    QCOMPARE(drawing.node(man)->spear(), second.get());

    second.reset();
    QCOMPARE(drawing.node(man)->spear(), nullptr);
}

void TestSpearItemLinks::shouldLinkWithANodeOutsideAnyModel()
{
    const auto spear = newSpear();
    {
        TreeItem node;
        node.setStatus(tsFinish);

        node.setSpear(spear.get(), QModelIndex());

        QCOMPARE(spear->treeItem(), &node);
        QVERIFY(!spear->modelIndex().isValid());
        node.setTitle(QStringLiteral("Renamed"));
        QCOMPARE(spear->text(), QStringLiteral("Renamed"));
    }
    QCOMPARE(spear->treeItem(), nullptr);
}

void TestSpearItemLinks::shouldLeaveNothingDangling_data()
{
    QTest::addColumn<Death>("ofSpear");
    QTest::addColumn<Death>("ofNode");
    QTest::addColumn<bool>("spearFirst");

    const QVector<QPair<const char *, Death>> spearDeaths{
        {"spear", Death::DeleteSpear},
        {"parent spear", Death::DeleteParentSpear},
        {"scene", Death::ClearScene},
    };
    const QVector<QPair<const char *, Death>> nodeDeaths{
        {"row", Death::RemoveRow},
        {"taken row", Death::TakeRow},
        {"unloaded document", Death::UnloadDocument},
        {"reset document", Death::ResetDocument},
        {"document", Death::DeleteDocument},
        {"model", Death::DeleteModel},
    };
    for (const auto &spear : spearDeaths) {
        for (const auto &node : nodeDeaths) {
            QTest::addRow("%s, then %s", spear.first, node.first)
                << spear.second << node.second << true;
            QTest::addRow("%s, then %s", node.first, spear.first)
                << spear.second << node.second << false;
        }
    }
}

void TestSpearItemLinks::shouldLeaveNothingDangling()
{
    QFETCH(Death, ofSpear);
    QFETCH(Death, ofNode);
    QFETCH(bool, spearFirst);
    auto model = std::make_unique<FishModel>();
    FishInfo *const document = loadDocument(*model, QStringLiteral("Effect[Man]"));
    TreeItem *const node = nodeTitled(*model, man);
    QGraphicsScene scene;
    auto *const parent = newSpear().release();
    auto *const spear = newSpear().release();
    scene.addItem(parent);
    spear->setParentItem(parent);
    node->setSpear(spear, model->indexFromItem(node));
    const auto happen = [&](Death death) {
        const QModelIndex head = model ? model->index(0, 0) : QModelIndex();
        switch (death) {
        case Death::DeleteSpear:
            delete spear;
            break;
        case Death::DeleteParentSpear:
            delete parent;
            break;
        case Death::ClearScene:
            scene.clear();
            break;
        case Death::RemoveRow:
            QVERIFY(model->removeRows(0, 1, head));
            break;
        case Death::TakeRow:
            delete model->takeRow(0, head);
            break;
        case Death::UnloadDocument:
            model->unloadFish(document);
            break;
        case Death::ResetDocument:
            document->reset();
            break;
        case Death::DeleteDocument:
            delete document;
            break;
        case Death::DeleteModel:
            model.reset();
            break;
        }
    };

    if (spearFirst) {
        happen(ofSpear);
        QCOMPARE(node->spear(), nullptr);
        node->setTitle(QStringLiteral("goes on"));
        happen(ofNode);
    } else {
        happen(ofNode);
        QCOMPARE(spear->treeItem(), nullptr);
        QVERIFY(!spear->modelIndex().isValid());
        spear->setTaskStatus(tsFinish);
        spear->updateToolTip();
        paintedAtOnce(scene, {{0, 0, 50, 50}});
        happen(ofSpear);
    }
}

void TestSpearItemLinks::shouldGoOnWithoutASubject()
{
    Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem *const spear = drawing.spear(man);
    drawing.node(man)->setSpearStyle(QJsonObject{{QStringLiteral("textCount"), 2}});
    drawing.node(man)->setSpearItemIsMovable(false);
    const QLineF line = spear->line();

    drawing.model.removeRows(0, 1, drawing.model.index(0, 0));
    spear->applyState(SpearStyle::ssNormal);
    spear->updatePosition(QPointF());

    QCOMPARE(spear->style(), SpearStyle::global());
    QVERIFY(spear->isMovable());
    QCOMPARE(spear->text(), man);
    QCOMPARE(spear->textItem()->toPlainText(), man);
    QCOMPARE(spear->line().p1(), line.p1());
}

void TestSpearItemLinks::shouldHaveNoIndexWhileItsSubjectIsOutOfTheModel()
{
    Drawing drawing(QStringLiteral("Effect[Man]"));
    const SpearItem *const spear = drawing.spear(man);
    const QModelIndex head = drawing.model.index(0, 0);

    TreeItem *const taken = drawing.model.takeRow(0, head);
    QCOMPARE(spear->treeItem(), taken);
    QVERIFY(!spear->modelIndex().isValid());

    drawing.model.insertExistItemRows(head, {taken});
    QCOMPARE(spear->modelIndex(), drawing.model.index(0, 0, head));
}

FISHBONE_TEST(TestSpearItemLinks)
#include "tst_spearitem_links.moc"
