// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QSignalSpy>
#include <QtTest>

#include <fishbone/items/sceneselection.h>
#include <tests/program/testprogram.h>

namespace {

/** A scene with three selectable items. */
struct Stage
{
    Stage()
    {
        for (int i = 0; i < 3; ++i) {
            items.append(scene->addRect(0, 0, 10, 10));
            items.last()->setFlag(QGraphicsItem::ItemIsSelectable);
        }
    }

    std::unique_ptr<QGraphicsScene> scene = std::make_unique<QGraphicsScene>();
    QList<QGraphicsItem *> items;
    QSignalSpy changed{scene.get(), &QGraphicsScene::selectionChanged};
};

} // namespace

/** What scenes tell of their selection while the library works on them. */
class TestSceneSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellOnceOfManyChanges();
    void shouldTellNothingWhenNothingHasChanged();
    void shouldTellAtTheEndOfTheOutermostHold();
    void shouldTellOfADeletedItem();
    void shouldKeepEachSceneApart();
    void shouldLeaveASceneBlockedThatWasBlocked();
    void shouldSurviveTheEndOfTheScene();
    void shouldNeedNoSceneUnderASanitizer();
};

void TestSceneSelection::shouldTellOnceOfManyChanges()
{
    Stage stage;
    {
        const SelectionSilence silence(stage.scene.get());
        for (QGraphicsItem *item : stage.items)
            item->setSelected(true);
        QCOMPARE(stage.changed.count(), 0);
    }
    QCOMPARE(stage.changed.count(), 1);
    QVERIFY(!stage.scene->signalsBlocked());
}

void TestSceneSelection::shouldTellNothingWhenNothingHasChanged()
{
    Stage stage;
    {
        const SelectionSilence silence(stage.scene.get());
        stage.items.first()->setSelected(true);
        stage.items.first()->setSelected(false);
    }
    QCOMPARE(stage.changed.count(), 0);
}

void TestSceneSelection::shouldTellAtTheEndOfTheOutermostHold()
{
    Stage stage;
    {
        const SelectionHold outer(stage.scene.get());
        {
            const SelectionHold inner(stage.scene.get());
            for (QGraphicsItem *item : stage.items) {
                const SelectionSilence silence(stage.scene.get());
                item->setSelected(true);
            }
        }
        QCOMPARE(stage.changed.count(), 0);
    }
    QCOMPARE(stage.changed.count(), 1);
}

void TestSceneSelection::shouldTellOfADeletedItem()
{
    Stage stage;
    stage.items.first()->setSelected(true);
    stage.changed.clear();
    {
        const SelectionSilence silence(stage.scene.get());
        delete stage.items.takeFirst();
    }
    QCOMPARE(stage.changed.count(), 1);
}

void TestSceneSelection::shouldKeepEachSceneApart()
{
    Stage one;
    Stage two;
    const SelectionHold hold(one.scene.get());
    {
        const SelectionSilence silence(two.scene.get());
        two.items.first()->setSelected(true);
    }
    QCOMPARE(two.changed.count(), 1);
}

void TestSceneSelection::shouldLeaveASceneBlockedThatWasBlocked()
{
    Stage stage;
    stage.scene->blockSignals(true);
    {
        const SelectionSilence silence(stage.scene.get());
        stage.items.first()->setSelected(true);
    }
    QVERIFY(stage.scene->signalsBlocked());
    QCOMPARE(stage.changed.count(), 0);
}

void TestSceneSelection::shouldSurviveTheEndOfTheScene()
{
    Stage stage;
    {
        const SelectionHold hold(stage.scene.get());
        const SelectionSilence silence(stage.scene.get());
        stage.items.first()->setSelected(true);
        stage.scene.reset();
    }
    QCOMPARE(stage.changed.count(), 0);
}

void TestSceneSelection::shouldNeedNoSceneUnderASanitizer()
{
    const SelectionHold hold(nullptr);
    const SelectionSilence silence(nullptr);
}

FISHBONE_TEST(TestSceneSelection)
#include "tst_sceneselection.moc"
