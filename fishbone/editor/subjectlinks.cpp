// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/subjectlinks.h>

#include <QPersistentModelIndex>
#include <QPointer>
#include <QUrl>
#include <QWidget>

#include <fishbone/dialogs/urldialog.h>
#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/editor/commandrunner.h>
#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/showndrawing.h>
#include <fishbone/editor/shownroot.h>
#include <fishbone/editor/shownsubject.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/undo/attributecommands.h>

namespace {
constexpr int linkColumn = 2; ///< the column whose text counts as a subject's link
} // namespace

SubjectLinks::SubjectLinks(const EditingStage &stage, QWidget &window)
    : m_stage(stage)
    , m_window(window)
{
}

QString SubjectLinks::url() const
{
    const QModelIndex index = m_stage.drawing.selectedIndex();
    return index.sibling(index.row(), linkColumn).data(Qt::DisplayRole).toString();
}

void SubjectLinks::change(std::unique_ptr<UndoCommand> command, const QPersistentModelIndex &index)
{
    const EditorCall call(m_stage.calls);
    if (!m_stage.runner.push(call, std::move(command)))
        return;
    if (SpearItem *const spear = m_stage.root.spearOf(index))
        updateLinkItem(spear);
    m_stage.runner.finish(call, CommandRunner::Follow::Nothing);
}

void SubjectLinks::ask()
{
    const QPersistentModelIndex index = m_stage.shown.ownIndex(m_stage.drawing.selectedIndex());
    if (!index.isValid())
        return;
    // The dialog runs an event loop, in which the host may edit, unload or destroy what is shown.
    const QPointer<QWidget> alive(&m_window);
    const QUrl chosen = URLDialog::linkToUrlDialog(url(), &m_window);
    if (alive && chosen.isValid() && m_stage.shown.ownIndex(index).isValid())
        change(std::make_unique<ModifyLinkTo>(m_stage.shown.model(), index, chosen.toString()),
               index);
}

void SubjectLinks::remove()
{
    const QModelIndex index = m_stage.shown.ownIndex(m_stage.drawing.selectedIndex());
    if (index.isValid())
        change(std::make_unique<ModifyDelLink>(m_stage.shown.model(), index), index);
}

void SubjectLinks::open() const
{
    const QString target = url();
    if (!target.isEmpty())
        LinkItem::open(target);
}
