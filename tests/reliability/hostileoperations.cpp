// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// What is done to editor and stack while a hostile listener hears of it.

#include <tests/reliability/hostileacts.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/reliability/hostilestage.h>

#include <QLineEdit>
#include <QMimeData>

namespace {

using Run = std::function<void(HostileStage &)>;

Run selecting(const QList<const char *> &titles)
{
    return [titles](HostileStage &stage) { stage.select(titles); };
}

/** A slot of the editor without arguments, with bones selected before. */
HostileAct slot(const char *name, const QList<const char *> &selected,
                const QList<const char *> &concerned)
{
    const QByteArray method = QByteArray(name).split(' ').first();
    return {QString::fromLatin1(name),
            [method](HostileStage &stage) { QMetaObject::invokeMethod(stage.editor, method); },
            concerned, selecting(selected)};
}

HostileAct call(const QString &name, const Run &run, const QList<const char *> &concerned = {})
{
    return {name, run, concerned, selecting({"Man"})};
}

/** Copies a bone into the buffer and selects where it shall be pasted. */
void preparePaste(HostileStage &stage)
{
    stage.select({"Training"});
    stage.editor->copy();
    stage.select({"Machine"});
}

TreeItem *freshSubject()
{
    auto *const item = new TreeItem;
    item->setTitle(QStringLiteral("Fresh"));
    item->appendChild(new TreeItem);
    return item;
}

/** The edits that the history knows. */
std::vector<HostileAct> edits()
{
    std::vector<HostileAct> acts = {
        slot("insertSubject", {"Man"}, {}),
        slot("appendSubject", {"Man"}, {}),
        slot("appendSubject behind a head", {"Effect"}, {}),
        slot("insertChildSubject", {"Man"}, {}),
        slot("insertParentSubject", {"Man"}, {"Man"}),
        slot("insertParentSubject above a head", {"Effect"}, {"*"}),
        slot("del", {"Man", "Age"}, {"Man", "Age"}),
        slot("cut", {"Training", "Machine"}, {"Training", "Machine"}),
        slot("modifyDelLink", {"Man"}, {}),
        slot("modifyLink", {"Man"}, {}),
        call(QStringLiteral("insertChildSubject(item)"),
             [](HostileStage &stage) {
                 stage.editor->insertChildSubject(stage.index("Man"), freshSubject());
             }),
        call(QStringLiteral("deleteItem"),
             [](HostileStage &stage) { stage.editor->deleteItem(stage.index("Machine")); },
             {"Machine"}),
        call(QStringLiteral("deleteItem elsewhere"),
             [](HostileStage &stage) { stage.editor->deleteItem(stage.index("Left")); }, {"Left"}),
        call(QStringLiteral("delete a head"),
             [](HostileStage &stage) { stage.editor->deleteItem(stage.index("Effect")); }, {"*"}),
        call(QStringLiteral("renameItem"),
             [](HostileStage &stage) {
                 stage.editor->renameItem(stage.index("Machine"), QStringLiteral("Renamed"));
             },
             {"Machine"}),
        call(QStringLiteral("moveItems"),
             [](HostileStage &stage) {
                 stage.editor->moveItems({}, {stage.spear("Training"), stage.spear("Machine")},
                                         stage.index("Method"), 0);
             },
             {"Training", "Machine"}),
        call(QStringLiteral("moveItems in place"),
             [](HostileStage &stage) {
                 stage.editor->moveItems({}, {stage.spear("Man")}, stage.index("Effect"), 2);
             },
             {}),
        call(QStringLiteral("run"),
             [](HostileStage &stage) {
                 stage.editor->run(
                     std::make_unique<InsertChild>(stage.model, stage.index("Machine")));
             }),
        call(QStringLiteral("push a move to the top"),
             [](HostileStage &stage) {
                 QJsonObject snapshot;
                 FishModel::write(snapshot, stage.node("Man"), true);
                 stage.editor->undoStack()->push(
                     new EditMove(stage.model, QModelIndex(), 0, snapshot, {stage.node("Man")}));
             },
             {"Man"}),
        call(QStringLiteral("push a head below a bone"),
             [](HostileStage &stage) {
                 QJsonObject snapshot;
                 FishModel::write(snapshot, stage.node("Other"), true);
                 stage.editor->undoStack()->push(new EditMove(stage.model, stage.index("Man"), 0,
                                                              snapshot, {stage.node("Other")}));
             },
             {"Other"}),
    };
    acts.push_back(slot("paste", {}, {}));
    acts.back().prepare = preparePaste;
    return acts;
}

/** Each edit, taken back and carried out again. */
void addSteps(std::vector<HostileAct> &acts)
{
    const std::vector<HostileAct> all = edits();
    for (const HostileAct &edit : all) {
        const auto carryOut = [edit](HostileStage &stage) {
            edit.prepare(stage);
            edit.run(stage);
        };
        acts.push_back({QStringLiteral("undo of ") + edit.name,
                        [](HostileStage &stage) { stage.editor->undo(); }, edit.concerned,
                        carryOut});
        acts.push_back({QStringLiteral("redo of ") + edit.name,
                        [](HostileStage &stage) { stage.editor->undoStack()->redo(); },
                        edit.concerned,
                        [carryOut](HostileStage &stage) {
                            carryOut(stage);
                            stage.editor->undo();
                        }});
    }
}

/** The other slots, by their arguments. */
void addSlots(std::vector<HostileAct> &acts)
{
    for (const char *name :
         {"fullSize", "rotateReset", "showEntire", "showSelected", "contractAll", "expandAll",
          "undo", "redo", "copy", "selectAll", "modifyExpand", "modifyContract", "modifyExpandAll",
          "modifyContractAll", "refreshFish", "setupMatrix", "saveTmpFile"})
        acts.push_back(slot(name, {"Man", "Training"}, {"Age"}));
    acts.push_back(slot("insertFreeSubject", {"Man"}, {}));
    for (const char *name :
         {"zoomIn", "zoomOut", "setZoomValue", "setRotateValue", "zoomFish", "rotateFish"}) {
        acts.push_back(call(QString::fromLatin1(name), [name](HostileStage &stage) {
            QMetaObject::invokeMethod(stage.editor, name, Q_ARG(int, 20));
        }));
    }
    acts.push_back(call(QStringLiteral("setRootIndex"), [](HostileStage &stage) {
        stage.editor->setRootIndex(stage.index("Machine"));
    }));
    acts.push_back(
        call(QStringLiteral("setRootIndex of another editor's"),
             [](HostileStage &stage) { stage.editor->setRootIndex(stage.index("Other")); }));
    acts.push_back(call(QStringLiteral("setRootIndex to nothing"),
                        [](HostileStage &stage) { stage.editor->setRootIndex(QModelIndex()); }));
}

void addFunctions(std::vector<HostileAct> &acts)
{
    acts.push_back(call(QStringLiteral("updateFish"),
                        [](HostileStage &stage) { stage.editor->updateFish(true); }));
    acts.push_back(call(QStringLiteral("setModel"),
                        [](HostileStage &stage) { stage.editor->setModel(stage.otherModel); }));
    acts.push_back(call(QStringLiteral("editSubject"),
                        [](HostileStage &stage) {
                            TreeItem values;
                            stage.editor->editSubject(stage.index("Machine"), &values);
                        },
                        {"Machine"}));
    acts.push_back(call(QStringLiteral("modelDataChanged"), [](HostileStage &stage) {
        stage.editor->modelDataChanged(stage.index("Left"), stage.index("Left"));
    }));
    acts.push_back(call(QStringLiteral("setSpearStyle"),
                        [](HostileStage &stage) { stage.editor->setSpearStyle(); }));
    acts.push_back(call(QStringLiteral("delSpearStyle"),
                        [](HostileStage &stage) { stage.editor->delSpearStyle(); }));
    acts.push_back(call(QStringLiteral("setExpand"),
                        [](HostileStage &stage) { stage.spear("Man")->setExpand(false); }));
    acts.back().prepare = selecting({"Training", "Skill"});
    acts.push_back(call(QStringLiteral("onDropTo"),
                        [](HostileStage &stage) {
                            const std::unique_ptr<QMimeData> data(
                                stage.model->mimeData({stage.index("Inner")}));
                            stage.editor->onDropTo(data.get(), stage.index("Man"), 0);
                        },
                        {"Inner"}));
    acts.push_back(
        call(QStringLiteral("onRightClicked"),
             [](HostileStage &stage) { stage.editor->onRightClicked(stage.spear("Machine")); },
             {"Machine"}));
}

/** A find dialog of the editor's that warns, as there is nothing to find. */
HostileAct search()
{
    return call(QStringLiteral("find"), [](HostileStage &stage) {
        auto *const dialog = new ReplaceFindDialog(stage.editor);
        dialog->setModel(stage.model);
        dialog->searchField()->setText(QStringLiteral("nowhere"));
        dialog->find();
    });
}

void addStackCalls(std::vector<HostileAct> &acts)
{
    acts.push_back(call(QStringLiteral("stack.undo"),
                        [](HostileStage &stage) { stage.editor->undoStack()->undo(); }, {"Age"}));
    acts.push_back(call(QStringLiteral("stack.setCurrentIndex back"),
                        [](HostileStage &stage) { stage.editor->undoStack()->setCurrentIndex(-1); },
                        {"Man", "Age", "Plan"}));
    acts.back().prepare = [](HostileStage &stage) {
        stage.select({"Plan"});
        stage.editor->insertParentSubject();
        stage.select({"Man"});
        stage.editor->del();
        stage.select({"Machine"});
    };
    acts.push_back(call(QStringLiteral("stack.setCurrentIndex forth"),
                        [](HostileStage &stage) {
                            UndoStack *const stack = stage.editor->undoStack();
                            stack->setCurrentIndex(stack->count() - 1);
                        },
                        {"Man", "Age", "Plan"}));
    const Run before = acts[acts.size() - 2].prepare;
    acts.back().prepare = [before](HostileStage &stage) {
        before(stage);
        stage.editor->undoStack()->setCurrentIndex(-1);
        stage.select({"Machine"});
    };
    acts.push_back(call(QStringLiteral("stack.push"),
                        [](HostileStage &stage) {
                            stage.editor->undoStack()->push(
                                new EditDelete(stage.model, stage.index("Man")));
                        },
                        {"Man"}));
    acts.push_back(call(QStringLiteral("stack.clear"),
                        [](HostileStage &stage) { stage.editor->undoStack()->clear(); }));
    acts.push_back(call(QStringLiteral("stack.setClean"),
                        [](HostileStage &stage) { stage.editor->undoStack()->setClean(); }));
    // A command that no history has.
    acts.push_back(call(QStringLiteral("a deletion by itself"),
                        [](HostileStage &stage) {
                            EditDelete command(stage.model, stage.index("Man"));
                            command.redo();
                            command.undo();
                        },
                        {"Man"}));
    acts.back().isOneCall = false;
}

} // namespace

std::vector<HostileAct> hostileOperations()
{
    std::vector<HostileAct> acts = edits();
    addSteps(acts);
    addSlots(acts);
    addFunctions(acts);
    acts.push_back(search());
    addStackCalls(acts);
    for (const auto &more : {modelOperations(), handOperations()})
        acts.insert(acts.end(), more.cbegin(), more.cend());
    return acts;
}
