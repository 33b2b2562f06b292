// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/hitlist.h>

#include <app/common/language.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QHeaderView>
#include <QSignalBlocker>

namespace {

enum Column : int { Found, Becomes, Place };

/** The titles above @p subject, the head's first. */
QString placeOf(const TreeItem &subject)
{
    constexpr int shownLevels = 4; // of a deep one the nearest
    QStringList titles;
    const TreeItem *above = subject.isTopVaildItem() ? nullptr : subject.parent();
    while (above && above->parent()) {
        if (titles.size() == shownLevels) {
            titles.prepend(QStringLiteral("…"));
            break;
        }
        titles.prepend(above->title());
        above = above->parent();
    }
    return titles.join(QStringLiteral(" › "));
}

} // namespace

HitList::HitList(const FishModel *model, QWidget *parent)
    : QTreeWidget(parent)
    , m_model(model)
{
    Language::bind(this, [this] {
        setAccessibleName(tr("Found"));
        setHeaderLabels({tr("Found"), tr("Will be"), tr("In")});
    });
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    header()->setSectionResizeMode(QHeaderView::Interactive);
    constexpr int columnWidth = 150;
    for (Column column : {Found, Becomes})
        setColumnWidth(column, columnWidth);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        if (item)
            Q_EMIT hitChosen(indexOfTopLevelItem(const_cast<QTreeWidgetItem *>(item)));
    });
}

void HitList::setHits(const QModelIndexList &hits, const Replacement &replacement)
{
    const QSignalBlocker blocker(this);
    clear();
    QList<QTreeWidgetItem *> items;
    for (const QModelIndex &hit : hits) {
        const TreeItem *const subject = m_model->getTreeItem(hit);
        if (!subject)
            continue;
        // The plain title: what the model shows for a head has the counts behind it.
        const QString text = subject->data(hit.column()).toString();
        auto *const item = new QTreeWidgetItem({text, QString(), placeOf(*subject)});
        item->setToolTip(Found, text);
        item->setCheckState(Found, Qt::Checked);
        items.append(item);
    }
    addTopLevelItems(items); // which takes them over
    preview(replacement);
}

void HitList::preview(const Replacement &replacement)
{
    const QSignalBlocker blocker(this);
    for (int row = 0; row < topLevelItemCount(); ++row) {
        QTreeWidgetItem *const item = topLevelItem(row);
        const QString before = item->text(Found);
        const QString after = replacement(before);
        const bool isChanged = after != before;
        item->setText(Becomes, isChanged ? after : QString());
        item->setToolTip(Becomes, isChanged ? after : QString());
        const QVariant box = item->data(Found, Qt::CheckStateRole);
        if (isChanged && !box.isValid())
            item->setCheckState(Found, Qt::Checked);
        else if (!isChanged && box.isValid())
            item->setData(Found, Qt::CheckStateRole, QVariant());
    }
}

void HitList::setCurrentHit(int row)
{
    const QSignalBlocker blocker(this);
    setCurrentItem(topLevelItem(row));
}

QList<int> HitList::checkedRows() const
{
    QList<int> rows;
    for (int row = 0; row < topLevelItemCount(); ++row) {
        const QVariant box = topLevelItem(row)->data(Found, Qt::CheckStateRole);
        if (box.isValid() && box.toInt() == Qt::Checked)
            rows.append(row);
    }
    return rows;
}
