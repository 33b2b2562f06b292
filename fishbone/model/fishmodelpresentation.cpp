// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodelpresentation.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <QBrush>

#include <array>

namespace {

constexpr std::array<const char *, 5> headers = {"title", "uuid", "showid", "pid", "type"};

} // namespace

QVariant FishModel::Presentation::header(int column)
{
    return column >= 0 && column < columns ? QString::fromLatin1(headers[std::size_t(column)])
                                           : QVariant();
}

QVariant FishModel::Presentation::data(const QModelIndex &index, int role) const
{
    const TreeItem *const item = m_model.getTreeItem(index);
    if (!item)
        return QVariant();
    const bool isHeadTitle = index.column() == 0 && item->isTopVaildItem();
    switch (role) {
    case Qt::DisplayRole:
        if (isHeadTitle && m_type == FISH_MODEL_NORMAL)
            return headText(*item);
        return item->data(index.column());
    case Qt::DecorationRole:
        if (!item->isHaveParentTask())
            return QVariant();
        if (m_noParentIcon.isNull()) // until the host's picture is there
            m_noParentIcon = QIcon(QStringLiteral(":/fishboneDiagram/noparent.png"));
        return m_noParentIcon;
    case Qt::ToolTipRole:
        return isHeadTitle ? QVariant() : item->toolTipString();
    case Qt::ForegroundRole:
        return item->spearItemIsMovable() ? QVariant() : QBrush(Qt::red);
    default:
        return QVariant();
    }
}

/** A head's title with the counts, which are the first document's whichever head is asked about. */
QString FishModel::Presentation::headText(const TreeItem &head) const
{
    const FishInfo *const first = m_model.fishList().value(0, nullptr);
    if (!first)
        return head.title(); // asked about a document that has left the model
    return head.title() + QLatin1Char('(') + QString::number(first->noParentNodeCount()) +
           FishModel::tr("个无父任务/共") + QString::number(first->nodeCount()) +
           FishModel::tr("个任务") + QLatin1Char(')');
}
