// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/subjecttree.h>

#include <app/common/language.h>
#include <app/common/owndirection.h>
#include <app/panels/accessiblesubjects.h>
#include <app/panels/subjectproxymodel.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QDrag>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace {

/** Shows the icon of a selected row in the colour of its text; it is as blue as the selection.
 * Edits the plain title: what is shown of a head has counts behind it. */
class SubjectDelegate : public QStyledItemDelegate
{
public:
    SubjectDelegate(SubjectTree *tree, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_tree(tree)
    {
    }

    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        const auto *const model = qobject_cast<const FishModel *>(m_tree->proxy()->sourceModel());
        const TreeItem *const subject = model->getTreeItem(m_tree->proxy()->mapToSource(index));
        if (auto *const field = qobject_cast<QLineEdit *>(editor); field && subject)
            field->setText(subject->title());
    }

    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override
    {
        Q_UNUSED(model) // hears of it by the step of the history
        const auto *const field = qobject_cast<const QLineEdit *>(editor);
        if (field && field->isModified() && !field->text().trimmed().isEmpty())
            m_tree->rename(index, field->text());
    }

    QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        return OwnDirection::of(QStyledItemDelegate::displayText(value, locale));
    }

protected:
    bool eventFilter(QObject *editor, QEvent *event) override
    {
        // Every key is for the field, also those that are shortcuts of the tree.
        if (event->type() == QEvent::ShortcutOverride) {
            event->accept();
            return true;
        }
        return QStyledItemDelegate::eventFilter(editor, event);
    }

    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!option->state.testFlag(QStyle::State_Selected) || option->icon.isNull() ||
            !m_tree->proxy()->statusIcon(index).isEmpty()) // whose colours mean something
            return;
        QPixmap picture = option->icon.pixmap(option->decorationSize);
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), option->palette.color(QPalette::HighlightedText));
        painter.end();
        option->icon.addPixmap(picture, QIcon::Selected);
    }

private:
    SubjectTree *m_tree;
};

} // namespace

SubjectTreeView::SubjectTreeView(QWidget *parent)
    : QTreeView(parent)
{
    AccessibleSubjects::install();
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setExpandsOnDoubleClick(false);
}

bool SubjectTreeView::event(QEvent *event)
{
    // F2 edits the row, and not the title of the bone.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_F2 && currentIndex().isValid()) {
        event->accept();
        return true;
    }
    return QTreeView::event(event);
}

void SubjectTreeView::setModel(QAbstractItemModel *model)
{
    // Connected before the selection model is, so that it is known when that passes the current row
    // on.
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this] { m_areRowsGoing = true; });
    QTreeView::setModel(model);
    connect(model, &QAbstractItemModel::rowsRemoved, this, [this] { m_areRowsGoing = false; });
}

void SubjectTreeView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    // The base class looks for the current row, for which it lays out. When many rows go one after
    // the other, that would be done for each of them.
    if (m_areRowsGoing)
        return;
    // Not that of the tree view, which adds nothing but a report in which a row is a number that
    // counts a heading in.
    QAbstractItemView::currentChanged(current, previous);
    if (hasFocus())
        AccessibleSubjects::report(this, current, QAccessible::Focus);
}

void SubjectTreeView::selectionChanged(const QItemSelection &selected,
                                       const QItemSelection &deselected)
{
    QAbstractItemView::selectionChanged(selected, deselected); // for the same reason
    const auto first = [](const QItemSelection &rows) { return rows.indexes().value(0); };
    AccessibleSubjects::report(this, first(selected), QAccessible::Selection);
    AccessibleSubjects::report(this, first(deselected), QAccessible::SelectionRemove);
}

void SubjectTreeView::startDrag(Qt::DropActions supportedActions)
{
    Q_UNUSED(supportedActions)
    QModelIndexList dragged;
    const QModelIndexList selected = selectedIndexes();
    for (const QModelIndex &index : selected) {
        if (index.flags() & Qt::ItemIsDragEnabled)
            dragged.append(index);
    }
    if (dragged.isEmpty())
        return;
    auto *const drag = new QDrag(this); // deletes itself
    drag->setMimeData(model()->mimeData(dragged));
    // The base class would delete the rows of a move that was accepted.
    drag->exec(Qt::MoveAction);
}

SubjectTree::SubjectTree(FishModel *model, QWidget *parent)
    : QWidget(parent)
    , m_proxy(new SubjectProxyModel(this))
    , m_filter(new QLineEdit(this))
    , m_view(new SubjectTreeView(this))
{
    m_filter->setObjectName(QStringLiteral("filter"));
    const auto filterName = [] { return tr("Filter by title"); };
    Language::bind(m_filter, &QLineEdit::setPlaceholderText, filterName);
    Language::bind(m_filter, &QWidget::setAccessibleName, filterName);
    m_filter->setClearButtonEnabled(true);
    m_view->setObjectName(QStringLiteral("documents"));
    m_view->setItemDelegate(new SubjectDelegate(this, m_view));
    Language::bind(m_view, &QWidget::setAccessibleName, [] { return tr("Subjects"); });
    m_proxy->setSourceModel(model);
    m_view->setModel(m_proxy);

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_filter);
    layout->addWidget(m_view);
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &text) {
        refilter([this, &text] { m_proxy->setFilterFixedString(text); });
    });
}

void SubjectTree::rename(const QModelIndex &row, const QString &title)
{
    Q_EMIT renameWanted(m_proxy->mapToSource(row), title);
}

bool SubjectTree::isFiltered() const
{
    return !m_filter->text().isEmpty() || m_proxy->isRestricted();
}

void SubjectTree::setShown(const std::optional<QSet<const TreeItem *>> &subjects)
{
    refilter([this, &subjects] { m_proxy->setShown(subjects); });
}

/** Has @p change, which sets a filter, hide and show rows. */
void SubjectTree::refilter(const std::function<void()> &change)
{
    Q_EMIT filterAboutToChange();
    change();
    if (isFiltered())
        m_view->expandAll();
    Q_EMIT filterChanged();
}

QModelIndexList SubjectTree::selectedSubjects() const
{
    QModelIndexList indexes;
    const QItemSelection selection = m_view->selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            indexes.append(m_proxy->mapToSource(m_proxy->index(row, 0, range.parent())));
    }
    return indexes;
}

void SubjectTree::selectSubjects(const QModelIndexList &indexes)
{
    QItemSelection selection;
    QModelIndex first;
    for (const QModelIndex &index : indexes) {
        const QModelIndex row = m_proxy->mapFromSource(index);
        if (!row.isValid())
            continue; // filtered out
        if (!first.isValid())
            first = row;
        selection.select(row, row);
    }
    QItemSelectionModel *const model = m_view->selectionModel();
    if (first.isValid() && !indexes.contains(m_proxy->mapToSource(model->currentIndex())))
        model->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    model->select(selection, QItemSelectionModel::ClearAndSelect);
    if (first.isValid())
        m_view->scrollTo(first);
}
