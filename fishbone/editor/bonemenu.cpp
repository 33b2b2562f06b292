// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/bonemenu.h>

#include <QCursor>
#include <QDebug>
#include <QMenu>
#include <QPointer>
#include <QVector>

#include <fishbone/editor/fisheditor.h>
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
QVector<QPointer<QAction>> pointersTo(const QList<QAction *> &actions)
{
    QVector<QPointer<QAction>> pointers;
    for (QAction *action : actions)
        pointers.append(action);
    return pointers;
}
} // namespace

// The head of a task diagram has no entries of the library's.
bool BoneMenu::isHeadOfTasks(const SpearItem &spear) const
{
    return m_editor.modelType() == FISH_MODEL_NORMAL && spear.treeItem()->isTopVaildItem();
}

void BoneMenu::addOwnEntries(QMenu &menu, const SpearItem *spear) const
{
    if (m_editor.modelType() == FISH_MODEL_NORMAL) {
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

void BoneMenu::fill(QMenu &menu, SpearItem *spear) const
{
    addOwnEntries(menu, spear);
    if (m_filler)
        m_filler(menu, spear);
}

void BoneMenu::show(SpearItem *spear) const
{
    const SpearPointer shown(spear);
    if (!spear || !spear->treeItem())
        return;
    const QPointer<FishEditor> alive(&m_editor);
    QMenu menu;
    if (!isHeadOfTasks(*spear))
        addOwnEntries(menu, spear);
    // An entry of a host's does what the host says. The filler may have deleted some of our own,
    // and a new one may have got the address of such a one.
    const QVector<QPointer<QAction>> own = pointersTo(menu.actions());
    if (m_filler)
        m_filler(menu, spear);
    if (menu.isEmpty())
        return;
    QAction *const chosen = menu.exec(QCursor::pos());
    // The menu runs an event loop: editor, spear and subject may be gone by now.
    if (!chosen || !own.contains(chosen) || !alive || !shown.get() || !shown.get()->treeItem())
        return;
    run(chosen->data().toInt(), *shown.get());
}

void BoneMenu::run(int entry, const SpearItem &spear) const
{
    const TreeItem &subject = *spear.treeItem();
    // Copies, since a receiver of the signal may delete the subject.
    const QString title = subject.title();
    const QString uuid = subject.uuid();
    switch (entry) {
    case NewSubTask: {
        const QString showid = subject.showid();
        qDebug() << "emit createNewSubTask signal : " << uuid;
        Q_EMIT m_editor.createNewSubTask(title, uuid, showid);
        break;
    }
    case ShowDetails:
        qDebug() << "emit oneTaskClicked signal : " << uuid;
        Q_EMIT m_editor.oneTaskClicked(title, uuid);
        break;
    case ShowAsDiagram:
        Q_EMIT m_editor.changeFishWithModelIndex(spear.modelIndex());
        break;
    case EditNode:
        Q_EMIT m_editor.editTaskDetail(spear.modelIndex());
        break;
    case NewChildNode:
        Q_EMIT m_editor.insertChildTask(spear.modelIndex());
        break;
    case DeleteNode:
        m_editor.deleteItem(spear.modelIndex());
        break;
    default:
        break;
    }
}
