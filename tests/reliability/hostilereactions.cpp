// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// What a hostile listener does. No document is left without a head, which the model's tester takes
// for an error.

#include <tests/reliability/hostileacts.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/reliability/hostilestage.h>
#include <tests/support/documents.h>

using namespace TestSupport;

namespace {

using Run = std::function<void(HostileStage &)>;
using Titles = QList<const char *>;

/** Does something to the first editor, when there still is one. */
Run withEditor(const std::function<void(FishEditor &, HostileStage &)> &run)
{
    return [run](HostileStage &stage) {
        if (stage.editor)
            run(*stage.editor, stage);
    };
}

/** Does something to the model, when there still is one. */
Run withModel(const std::function<void(FishModel &, HostileStage &)> &run)
{
    return [run](HostileStage &stage) {
        if (stage.model)
            run(*stage.model, stage);
    };
}

void addEnds(std::vector<HostileAct> &acts)
{
    acts.push_back(
        {QStringLiteral("end the editor"), [](HostileStage &stage) { delete stage.editor; }});
    acts.push_back({QStringLiteral("end the other editors"), [](HostileStage &stage) {
                        delete stage.secondEditor;
                        delete stage.otherEditor;
                    }});
    acts.push_back(
        {QStringLiteral("end the model"), [](HostileStage &stage) { delete stage.model; }, {"*"}});
    acts.back().endsModel = true;
    acts.push_back({QStringLiteral("end editor and model"),
                    [](HostileStage &stage) {
                        delete stage.editor;
                        delete stage.model;
                    },
                    {"*"}});
    acts.back().endsModel = true;
    acts.push_back({QStringLiteral("unload the document"),
                    withModel([](FishModel &model, HostileStage &stage) {
                        model.unloadFish(stage.shownDocument());
                    }),
                    {"*"}});
    acts.push_back({QStringLiteral("delete the document"),
                    [](HostileStage &stage) { delete stage.shownDocument(); },
                    {"*"}});
}

void addDrawing(std::vector<HostileAct> &acts)
{
    acts.push_back({QStringLiteral("rebuild"), withEditor([](FishEditor &editor, HostileStage &) {
                        editor.updateFish(true);
                    })});
    acts.push_back({QStringLiteral("show another document"),
                    withEditor([](FishEditor &editor, HostileStage &stage) {
                        editor.setRootIndex(stage.index("Other"));
                    })});
    acts.push_back(
        {QStringLiteral("show a bone"), withEditor([](FishEditor &editor, HostileStage &stage) {
             editor.setRootIndex(stage.index("Man"));
         })});
    acts.push_back(
        {QStringLiteral("show nothing"), withEditor([](FishEditor &editor, HostileStage &) {
             editor.setRootIndex(QModelIndex());
         })});
    acts.push_back({QStringLiteral("set another model"),
                    withEditor([](FishEditor &editor, HostileStage &stage) {
                        editor.setModel(stage.otherModel);
                    })});
    acts.push_back({QStringLiteral("set another model and show it"),
                    withEditor([](FishEditor &editor, HostileStage &stage) {
                        editor.setModel(stage.otherModel);
                        editor.setRootIndex(stage.index("Foreign"));
                    })});
    acts.push_back(
        {QStringLiteral("set no model"),
         withEditor([](FishEditor &editor, HostileStage &) { editor.setModel(nullptr); })});
    acts.push_back({QStringLiteral("contract all"),
                    withEditor([](FishEditor &editor, HostileStage &) { editor.contractAll(); })});
    acts.push_back({QStringLiteral("expand all"),
                    withEditor([](FishEditor &editor, HostileStage &) { editor.expandAll(); })});
    acts.push_back(
        {QStringLiteral("clear the selection"),
         withEditor([](FishEditor &editor, HostileStage &) { editor.scene()->clearSelection(); })});
    acts.push_back(
        {QStringLiteral("select another"), [](HostileStage &stage) { stage.select({"Money"}); }});
    acts.push_back({QStringLiteral("select all"),
                    withEditor([](FishEditor &editor, HostileStage &) { editor.selectAll(); })});
}

void addEdits(std::vector<HostileAct> &acts)
{
    acts.push_back({QStringLiteral("undo"),
                    withEditor([](FishEditor &editor, HostileStage &) { editor.undo(); }),
                    {"Age"}});
    acts.push_back({QStringLiteral("undo all"),
                    withEditor([](FishEditor &editor, HostileStage &) {
                        editor.undoStack()->setCurrentIndex(-1);
                    }),
                    {"Age"}});
    acts.push_back({QStringLiteral("redo"),
                    withEditor([](FishEditor &editor, HostileStage &) { editor.redo(); })});
    acts.push_back(
        {QStringLiteral("clear the history"),
         withEditor([](FishEditor &editor, HostileStage &) { editor.undoStack()->clear(); })});
    acts.push_back(
        {QStringLiteral("insert"), withEditor([](FishEditor &editor, HostileStage &stage) {
             stage.select({"Money"});
             editor.appendSubject();
         })});
    acts.push_back({QStringLiteral("copy another and paste it"),
                    withEditor([](FishEditor &editor, HostileStage &stage) {
                        stage.select({"Money"});
                        editor.copy();
                        if (stage.editor)
                            editor.paste();
                    })});
    acts.push_back({QStringLiteral("delete another"),
                    withEditor([](FishEditor &editor, HostileStage &stage) {
                        stage.select({"Money"});
                        editor.del();
                    }),
                    {"Money"}});
    acts.push_back({QStringLiteral("cut all"),
                    withEditor([](FishEditor &editor, HostileStage &) {
                        editor.selectAll();
                        editor.cut();
                    }),
                    {"*", "Other"}}); // of the document that the operation has it show
}

void addRows(std::vector<HostileAct> &acts)
{
    acts.push_back(
        {QStringLiteral("remove the new row"), withModel([](FishModel &model, HostileStage &stage) {
             const QModelIndex index = model.indexFromItem(stage.newNode());
             if (index.isValid())
                 model.removeRows(index.row(), 1, index.parent());
         })});
    acts.push_back(
        {QStringLiteral("take the new row"), withModel([](FishModel &model, HostileStage &stage) {
             const QModelIndex index = model.indexFromItem(stage.newNode());
             if (index.isValid())
                 delete model.takeRow(index.row(), index.parent());
         })});
    acts.push_back({QStringLiteral("remove all bones"),
                    withModel([](FishModel &model, HostileStage &stage) {
                        const QModelIndex head = stage.index("Effect");
                        if (head.isValid())
                            model.removeRows(0, model.rowCount(head), head);
                    }),
                    {"*"}});
    acts.push_back(
        {QStringLiteral("remove all documents"),
         withModel([](FishModel &model, HostileStage &) { model.removeRows(0, model.rowCount()); }),
         {"*", "Other"}});
    acts.push_back(
        {QStringLiteral("insert rows"), withModel([](FishModel &model, HostileStage &stage) {
             model.insertRows(0, 2, stage.index("Effect"));
             model.insertRows(0, 1);
         })});
    acts.push_back({QStringLiteral("move rows"),
                    withModel([](FishModel &model, HostileStage &stage) {
                        const QModelIndex bone = stage.index("Money");
                        model.moveRows(bone.parent(), bone.row(), 1, stage.index("Right"), 0);
                    }),
                    {"Money"}});
    acts.push_back({QStringLiteral("load"), withModel([](FishModel &model, HostileStage &) {
                        loadDocument(model, QStringLiteral("Late[Bone]"));
                    })});
    acts.push_back(
        {QStringLiteral("load a file"), withModel([](FishModel &model, HostileStage &stage) {
             model.loadFishFromFile(stage.file());
         })});
    acts.push_back({QStringLiteral("reload"),
                    withModel([](FishModel &model, HostileStage &stage) {
                        model.reloadDataFromFile(stage.file(), stage.shownDocument());
                    }),
                    {"*"}});
    acts.push_back({QStringLiteral("refresh the model"),
                    withModel([](FishModel &model, HostileStage &) { model.refreshModel(); })});
    acts.push_back({QStringLiteral("rename"),
                    withModel([](FishModel &model, HostileStage &stage) {
                        model.setData(stage.index("Money"), QStringLiteral("Cash"));
                    }),
                    {"Money"}});
}

} // namespace

std::vector<HostileAct> hostileReactions()
{
    std::vector<HostileAct> acts;
    addEnds(acts);
    addDrawing(acts);
    addEdits(acts);
    addRows(acts);
    return acts;
}
