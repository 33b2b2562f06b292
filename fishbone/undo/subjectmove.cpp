// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/subjectmove.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

namespace {

constexpr int pidColumn = 3;

} // namespace

bool moveSubject(FishModel &model, TreeItem *subject, TreeItem *parent, int position,
                 std::unique_ptr<FishInfo> &document)
{
    const QModelIndex index = model.indexFromItem(subject);
    const QModelIndex to = model.indexFromItem(parent);
    if (!index.isValid() || (parent && !to.isValid()))
        return false; // to the top level, it would be
    const bool isHead = !index.parent().isValid();
    if (isHead && parent) {
        document.reset(model.moveHeadUnder(index.row(), to, position));
        return document != nullptr;
    }
    if (!isHead && !parent && document) {
        FishInfo *const entering = document.release(); // as who hears of it may end it there
        if (model.moveToTopLevel(index, position, entering))
            return true;
        document.reset(entering);
        return false;
    }
    return model.moveRows(index.parent(), index.row(), 1, to, position);
}

bool moveSubjectToRow(FishModel &model, TreeItem *subject, TreeItem *parent, int row,
                      std::unique_ptr<FishInfo> &document)
{
    const QModelIndex index = model.indexFromItem(subject);
    const QModelIndex to = model.indexFromItem(parent);
    const int rows = model.rowCount(to);
    if (index.parent() != to)
        return moveSubject(model, subject, parent, qMin(row, rows), document);
    // The rows behind close up while the subject is on its way.
    const int last = qMin(row, rows - 1);
    return moveSubject(model, subject, parent, last > index.row() ? last + 1 : last, document);
}

void restorePid(FishModel &model, TreeItem *subject, const QString &pid)
{
    if (subject->pid() != pid)
        model.setData(model.indexFromItem(subject, pidColumn), pid, Qt::EditRole);
}
