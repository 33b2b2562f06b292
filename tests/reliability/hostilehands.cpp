// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// What a user's hands do, by events as the window system sends them, and what is done to the model.

#include <tests/reliability/hostileacts.h>

#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <tests/reliability/hostilestage.h>
#include <tests/support/documents.h>
#include <tests/support/viewmouse.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>

using namespace TestSupport;

namespace {

using Run = std::function<void(HostileStage &)>;

/** A mouse above the first editor, as long as there is one. */
class Hand
{
public:
    explicit Hand(HostileStage &stage)
        : m_view(stage.editor->view())
        , m_mouse(*stage.editor->view())
    {
    }

    QPoint tip(const SpearItem *spear) const { return tipOf(*m_view, spear); }
    QPoint middle(const QGraphicsItem *item) const { return middleOf(*m_view, item); }
    void press(const QPoint &at)
    {
        if (m_view)
            m_mouse.press(at);
    }
    void move(const QPoint &to)
    {
        if (m_view)
            m_mouse.move(to);
    }
    void release(const QPoint &at)
    {
        if (m_view)
            m_mouse.release(at);
    }
    ViewMouse &mouse() { return m_mouse; }

private:
    QPointer<GraphicsView> m_view;
    ViewMouse m_mouse;
};

const QPoint nowhere(3, 3); ///< of the view, where nothing is

void click(HostileStage &stage, const char *title)
{
    Hand hand(stage);
    const QPoint at = title ? hand.tip(stage.spear(title)) : nowhere;
    hand.press(at);
    hand.release(at);
}

void dragBone(HostileStage &stage, const char *from, const char *to)
{
    Hand hand(stage);
    const QPoint at = hand.tip(stage.spear(from));
    const QPoint target = to ? hand.tip(stage.spear(to)) : nowhere;
    hand.press(at);
    hand.move((at + target) / 2);
    hand.move(target);
    hand.release(target);
}

void dropRow(HostileStage &stage, const char *from, const char *to)
{
    const QPointer<GraphicsView> view = stage.editor->view();
    const std::unique_ptr<QMimeData> data(stage.model->mimeData({stage.index(from)}));
    const QPoint at = tipOf(*view, stage.spear(to));
    QDragEnterEvent enter(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &enter);
    QDragMoveEvent move(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    if (view)
        QCoreApplication::sendEvent(view->viewport(), &move);
    QDropEvent drop(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    if (view)
        QCoreApplication::sendEvent(view->viewport(), &drop);
    QCoreApplication::processEvents(); // the drop is queued
}

HostileAct gesture(const QString &name, const Run &run, const QList<const char *> &concerned = {})
{
    HostileAct act{name, run, concerned};
    act.prepare = [](HostileStage &stage) { stage.select({"Man"}); };
    act.isOneCall = false;
    return act;
}

HostileAct modelAct(const QString &name, const Run &run, const QList<const char *> &concerned = {})
{
    HostileAct act{name, run, concerned};
    act.prepare = [](HostileStage &stage) { stage.select({"Man", "Training"}); };
    act.isOneCall = false;
    return act;
}

void addMoves(std::vector<HostileAct> &acts)
{
    acts.push_back(modelAct(QStringLiteral("model.moveRows within"),
                            [](HostileStage &stage) {
                                stage.model->moveRows(stage.index("Effect"), 0, 2,
                                                      stage.index("Effect"), 4);
                            },
                            {}));
    acts.push_back(modelAct(QStringLiteral("model.moveRows elsewhere"),
                            [](HostileStage &stage) {
                                stage.model->moveRows(stage.index("Man"), 0, 2,
                                                      stage.index("Method"), 0);
                            },
                            {"Training", "Skill"}));
    acts.push_back(modelAct(QStringLiteral("model.moveRows to the top"),
                            [](HostileStage &stage) {
                                stage.model->moveRows(stage.index("Man"), 0, 2, QModelIndex(), 1);
                            },
                            {"Training", "Skill"}));
    acts.push_back(modelAct(QStringLiteral("model.moveRows of a head"),
                            [](HostileStage &stage) {
                                stage.model->moveRows(QModelIndex(), 1, 1, stage.index("Man"), 0);
                            },
                            {"Other"}));
}

void addInsertions(std::vector<HostileAct> &acts)
{
    acts.push_back(modelAct(QStringLiteral("model.insertRows"), [](HostileStage &stage) {
        stage.model->insertRows(1, 2, stage.index("Man"));
    }));
    acts.push_back(modelAct(QStringLiteral("model.insertRows at the top"),
                            [](HostileStage &stage) { stage.model->insertRows(0, 2); }));
    acts.push_back(modelAct(QStringLiteral("model.insertExistItemRows"), [](HostileStage &stage) {
        auto *const item = new TreeItem;
        if (!stage.model->insertExistItemRows(stage.index("Man"), {item, new TreeItem}))
            delete item;
    }));
    acts.push_back(modelAct(QStringLiteral("model.read"), [](HostileStage &stage) {
        stage.model->read(documentFromText(QStringLiteral("Read[Below]")), stage.node("Man"), 1);
    }));
    acts.push_back(modelAct(QStringLiteral("model.loadJsonFish"), [](HostileStage &stage) {
        loadDocument(*stage.model, QStringLiteral("Fresh[Bone]"));
    }));
    acts.push_back(modelAct(QStringLiteral("model.loadFishFromFile"), [](HostileStage &stage) {
        stage.model->loadFishFromFile(stage.file());
    }));
    acts.push_back(modelAct(QStringLiteral("model.wrapHead"),
                            [](HostileStage &stage) {
                                auto *const head = new TreeItem;
                                if (!stage.model->wrapHead(stage.shownDocument(), head))
                                    delete head;
                            },
                            {"*"}));
}

void addRemovals(std::vector<HostileAct> &acts)
{
    acts.push_back(
        modelAct(QStringLiteral("model.removeRows"),
                 [](HostileStage &stage) { stage.model->removeRows(0, 2, stage.index("Effect")); },
                 {"Man", "Machine"}));
    acts.push_back(modelAct(QStringLiteral("model.removeRows at the top"),
                            [](HostileStage &stage) { stage.model->removeRows(0, 1); }, {"*"}));
    acts.push_back(
        modelAct(QStringLiteral("model.takeRow"),
                 [](HostileStage &stage) { delete stage.model->takeRow(0, stage.index("Effect")); },
                 {"Man"}));
    acts.push_back(modelAct(
        QStringLiteral("model.unloadFish"),
        [](HostileStage &stage) { stage.model->unloadFish(stage.shownDocument()); }, {"*"}));
    acts.push_back(modelAct(QStringLiteral("delete a document"),
                            [](HostileStage &stage) {
                                FishInfo *const document = stage.shownDocument();
                                stage.forgetDocument();
                                delete document;
                            },
                            {"*"}));
    acts.push_back(modelAct(QStringLiteral("model.reloadDataFromFile"),
                            [](HostileStage &stage) {
                                stage.model->reloadDataFromFile(stage.file(),
                                                                stage.shownDocument());
                            },
                            {"*"}));
    acts.push_back(modelAct(QStringLiteral("document.loadFish"),
                            [](HostileStage &stage) {
                                stage.shownDocument()->loadFish(
                                    documentFromText(QStringLiteral("Anew[Bone]")), stage.model);
                            },
                            {"*"}));
    acts.push_back(modelAct(QStringLiteral("model.unwrapHead"),
                            [](HostileStage &stage) {
                                delete stage.model->unwrapHead(stage.shownDocument(),
                                                               stage.node("Man"));
                            },
                            {"*"}));
}

} // namespace

std::vector<HostileAct> modelOperations()
{
    std::vector<HostileAct> acts;
    addInsertions(acts);
    addRemovals(acts);
    addMoves(acts);
    acts.push_back(modelAct(QStringLiteral("model.setData"),
                            [](HostileStage &stage) {
                                stage.model->setData(stage.index("Machine"), QStringLiteral("M"));
                            },
                            {"Machine"}));
    acts.push_back(modelAct(QStringLiteral("model.refreshModel"),
                            [](HostileStage &stage) { stage.model->refreshModel(); }));
    return acts;
}

std::vector<HostileAct> handOperations()
{
    std::vector<HostileAct> acts;
    acts.push_back(gesture(QStringLiteral("click on a bone"),
                           [](HostileStage &stage) { click(stage, "Machine"); }));
    acts.push_back(gesture(QStringLiteral("click on nothing"),
                           [](HostileStage &stage) { click(stage, nullptr); }));
    acts.push_back(gesture(QStringLiteral("drag of a bone"),
                           [](HostileStage &stage) { dragBone(stage, "Machine", "Skill"); },
                           {"Machine"}));
    acts.push_back(gesture(QStringLiteral("drag of a bone to nowhere"),
                           [](HostileStage &stage) { dragBone(stage, "Machine", nullptr); }));
    acts.push_back(gesture(QStringLiteral("press of the expand button"), [](HostileStage &stage) {
        Hand hand(stage);
        const QPoint at = hand.middle(stage.spear("Machine")->expandBuddy());
        hand.press(at);
        hand.release(at);
    }));
    acts.push_back(gesture(QStringLiteral("context menu"),
                           [](HostileStage &stage) {
                               Hand hand(stage);
                               hand.mouse().askForMenu(hand.tip(stage.spear("Machine")));
                           },
                           {"Machine"}));
    acts.push_back(gesture(QStringLiteral("context menu on nothing"), [](HostileStage &stage) {
        Hand hand(stage);
        hand.mouse().askForMenu(nowhere);
    }));
    acts.push_back(gesture(QStringLiteral("double click"), [](HostileStage &stage) {
        Hand hand(stage);
        hand.mouse().doubleClick(hand.tip(stage.spear("Man")));
    }));
    acts.push_back(gesture(QStringLiteral("zoom with the wheel"), [](HostileStage &stage) {
        Hand hand(stage);
        hand.mouse().wheel(nowhere, QPoint(0, 120), Qt::ControlModifier);
    }));
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Escape, Qt::Key_Right, Qt::Key_Return}) {
        acts.push_back(
            gesture(QStringLiteral("key %1").arg(int(key), 0, 16), [key](HostileStage &stage) {
                QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
                QCoreApplication::sendEvent(stage.editor->view(), &event);
            }));
    }
    acts.push_back(gesture(QStringLiteral("drop"),
                           [](HostileStage &stage) { dropRow(stage, "Inner", "Machine"); },
                           {"Inner"}));
    acts.push_back(gesture(QStringLiteral("drop within the diagram"),
                           [](HostileStage &stage) { dropRow(stage, "Training", "Machine"); },
                           {"Training"}));
    return acts;
}
