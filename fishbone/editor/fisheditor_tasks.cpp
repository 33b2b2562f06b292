// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The part of FishEditor that speaks with the user and the host: context menu and printing.

#include <fishbone/editor/fisheditor.h>

#include <QCursor>
#include <QDebug>
#include <QMenu>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <fishbone/base/modalanswer.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>

namespace {
enum MenuEntry : int {
    NewSubTask = 1001,
    ShowDetails = 1002,
    ShowAsDiagram = 1003,
    EditNode = 1004,
    NewChildNode = 1005,
    DeleteNode = 1006,
};

void addEntry(QMenu &menu, const QString &label, MenuEntry entry)
{
    menu.addAction(label)->setData(int(entry));
}
} // namespace

void FishEditor::createPopMenu(QMenu &menu, SpearItem *spear)
{
    if (modelType() == FISH_MODEL_NORMAL) {
        addEntry(menu, QObject::tr("新建子任务"), NewSubTask);
        addEntry(menu, QObject::tr("查看详情"), ShowDetails);
        addEntry(menu, QObject::tr("用鱼骨图详细查看"), ShowAsDiagram);
        return;
    }
    addEntry(menu, QObject::tr("编辑节点"), EditNode);
    addEntry(menu, QObject::tr("新建子节点"), NewChildNode);
    if (spear && !spear->isHeader())
        addEntry(menu, QObject::tr("删除节点"), DeleteNode);
}

void FishEditor::onRightClicked(void *item)
{
    const SpearPointer spear(static_cast<SpearItem *>(item));
    if (!spear.get() || !spear.get()->treeItem())
        return;
    if (modelType() == FISH_MODEL_NORMAL && spear.get()->treeItem()->isTopVaildItem())
        return;
    const QPointer<FishEditor> alive(this);
    QMenu menu;
    createPopMenu(menu, spear.get());
    const QAction *const chosen = menu.exec(QCursor::pos());
    // The menu runs an event loop: editor, spear and subject may be gone by now.
    if (!chosen || !alive || !spear.get() || !spear.get()->treeItem())
        return;
    runMenuEntry(chosen->data().toInt(), *spear.get());
}

void FishEditor::runMenuEntry(int entry, const SpearItem &spear)
{
    const TreeItem &subject = *spear.treeItem();
    // Copies, since a receiver of the signal may delete the subject.
    const QString title = subject.title();
    const QString uuid = subject.uuid();
    switch (entry) {
    case NewSubTask: {
        const QString showid = subject.showid();
        qDebug() << "emit createNewSubTask signal : " << uuid;
        Q_EMIT createNewSubTask(title, uuid, showid);
        break;
    }
    case ShowDetails:
        qDebug() << "emit oneTaskClicked signal : " << uuid;
        Q_EMIT oneTaskClicked(title, uuid);
        break;
    case ShowAsDiagram:
        Q_EMIT changeFishWithModelIndex(spear.modelIndex());
        break;
    case EditNode:
        Q_EMIT editTaskDetail(spear.modelIndex());
        break;
    case NewChildNode:
        Q_EMIT insertChildTask(spear.modelIndex());
        break;
    case DeleteNode:
        deleteItem(spear.modelIndex());
        break;
    default:
        break;
    }
}

void FishEditor::print()
{
    QPrinter printer(QPrinter::ScreenResolution);
    const auto isAccepted = [](const QPrintDialog &) { return true; };
    if (!modalAnswer(new QPrintDialog(&printer, this), isAccepted))
        return; // also when the editor has died with the dialog open
    QPainter painter(&printer);
    m_view->render(&painter, QRectF(), QRect(), Qt::KeepAspectRatio);
}
