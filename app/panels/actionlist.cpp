// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/actionlist.h>

#include <app/common/datefield.h>
#include <app/common/language.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/marknames.h>
#include <app/diagram/people.h>
#include <app/diagram/subjectedit.h>
#include <app/panels/markbox.h>

#include <fishbone/base/collation.h>
#include <fishbone/exchange/meetingreport.h>
#include <fishbone/model/treeitem.h>

#include <QComboBox>
#include <QCompleter>
#include <QDateEdit>
#include <QDateTime>
#include <QHeaderView>
#include <QLineEdit>
#include <QLocale>
#include <QStyledItemDelegate>

#include <algorithm>
#include <functional>

namespace {

const QDate noDate(1999, 12, 31); ///< what a field that cannot be empty shows for none

/** Edits the cells of the list. */
class CellDelegate : public QStyledItemDelegate
{
public:
    using Names = std::function<QStringList()>;
    using Edit = std::function<void(const QModelIndex &cell, const QVariant &value)>;

    /** Offers the people of @p names, and hands what was entered to @p edit. */
    CellDelegate(int role, Names names, Edit edit, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_role(role)
        , m_names(std::move(names))
        , m_edit(std::move(edit))
    {
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override
    {
        if (!index.data(m_role).isValid())
            return nullptr; // a group
        switch (index.column()) {
        case ActionList::Person:
            return personField(parent);
        case ActionList::End:
            return dateField(parent);
        case ActionList::Status:
            return statusField(parent);
        default:
            return QStyledItemDelegate::createEditor(parent, option, index);
        }
    }

    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        const QVariant value = index.data(m_role);
        if (auto *const date = qobject_cast<QDateEdit *>(editor))
            date->setDate(value.toDate().isValid() ? value.toDate() : noDate);
        else if (auto *const status = qobject_cast<QComboBox *>(editor))
            status->setCurrentIndex(status->findData(value));
        else if (auto *const text = qobject_cast<QLineEdit *>(editor))
            text->setText(value.toString());
    }

    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override
    {
        Q_UNUSED(model) // lists anew once the subject has changed
        if (const auto *const date = qobject_cast<QDateEdit *>(editor))
            m_edit(index, date->date() == noDate ? QDate() : date->date());
        else if (const auto *const status = qobject_cast<QComboBox *>(editor))
            m_edit(index, status->currentData());
        else if (const auto *const text = qobject_cast<QLineEdit *>(editor))
            m_edit(index, text->text());
    }

private:
    QWidget *personField(QWidget *parent) const
    {
        auto *const field = new QLineEdit(parent);
        auto *const completer = new QCompleter(m_names(), field);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        field->setCompleter(completer);
        return field;
    }

    static QWidget *dateField(QWidget *parent)
    {
        auto *const field = new DateField(parent);
        field->setMinimumDate(noDate);
        field->setSpecialValueText(ActionList::tr("no date"));
        return field;
    }

    static QWidget *statusField(QWidget *parent)
    {
        auto *const field = new QComboBox(parent);
        MarkBox::listStatuses(*field);
        return field;
    }

    int m_role;
    Names m_names;
    Edit m_edit;
};

UndoCommand::Name nameOfStep(int column)
{
    switch (column) {
    case ActionList::Person:
        return [] { return ActionList::tr("Change who is responsible"); };
    case ActionList::End:
        return [] { return ActionList::tr("Change planned end"); };
    case ActionList::Status:
        return [] { return ActionList::tr("Change status"); };
    default:
        return [] { return ActionList::tr("Rename"); };
    }
}

/** How a subject keeps @p date; 0 for none. */
qint64 stampOf(const QDate &date)
{
    return date.isValid() ? QDateTime(date, QTime(12, 0)).toMSecsSinceEpoch() : 0;
}

} // namespace

ActionList::ActionList(QWidget *parent)
    : SubjectList(parent)
{
    setObjectName(QStringLiteral("actions"));
    setEditTriggers(DoubleClicked | EditKeyPressed);
    auto *const delegate = new CellDelegate(
        valueRole, [this] { return People::in(session()->container()).names(); },
        [this](const QModelIndex &cell, const QVariant &value) { change(cell, value); }, this);
    setItemDelegate(delegate);
    // What changed while a cell was edited.
    connect(delegate, &QAbstractItemDelegate::closeEditor, this, [this] {
        QMetaObject::invokeMethod(this, &SubjectList::refresh, Qt::QueuedConnection);
    });
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    connect(header(), &QHeaderView::sortIndicatorChanged, this, &SubjectList::refresh);
    Language::bind(this, [this] {
        setAccessibleName(tr("Actions"));
        setHeaderLabels({tr("Cause"), tr("Responsible"), tr("Until"), tr("Status")});
        refresh();
    });
    constexpr int wide = 260;
    constexpr int narrow = 180; // a date and that it is overdue
    setColumnWidth(Title, wide);
    for (const int column : {Person, End, Status})
        setColumnWidth(column, narrow);
}

void ActionList::setGroups(Groups groups)
{
    m_groups = groups;
    refresh();
}

QVector<SubjectList::Entry> ActionList::entries(const MeetingReport &report) const
{
    QVector<Entry> all;
    for (const MeetingReport::Action &action : report.actions()) {
        const TreeItem &subject = *action.subject;
        const QString day = QLocale().toString(action.end, QLocale::ShortFormat);
        const QString status =
            subject.status() == MarkNames::noStatus ? QString() : MarkNames::of(subject.status());
        Entry entry{&subject,
                    QString(),
                    {subject.title(), action.person,
                     action.isOverdue ? tr("%1, overdue").arg(day) : day, status},
                    {subject.title(), action.person, action.end, subject.status()},
                    action.isOverdue};
        if (m_groups == Groups::Person)
            entry.group = action.person.isEmpty() ? tr("Nobody yet") : action.person;
        else if (m_groups == Groups::Status)
            entry.group = status.isEmpty() ? tr("No status") : status;
        all.append(entry);
    }
    sort(all);
    return all;
}

/** In the order of the heading that was clicked last; what is the same stays in its order. */
void ActionList::sort(QVector<Entry> &entries) const
{
    const int column = header()->sortIndicatorSection();
    if (column < 0 || column > Status)
        return;
    const bool isUp = header()->sortIndicatorOrder() == Qt::AscendingOrder;
    const QCollator collator = Collation::ofUser();
    const auto comesBefore = [column, &collator](const Entry &one, const Entry &other) {
        const QVariant left = one.values.at(column);
        const QVariant right = other.values.at(column);
        if (column == End) // what has no date comes last
            return left.toDate().isValid() &&
                   (!right.toDate().isValid() || left.toDate() < right.toDate());
        if (column == Status)
            return left.toInt() < right.toInt();
        return collator.compare(left.toString(), right.toString()) < 0;
    };
    std::stable_sort(entries.begin(), entries.end(), [&](const Entry &one, const Entry &other) {
        return isUp ? comesBefore(one, other) : comesBefore(other, one);
    });
}

void ActionList::change(const QModelIndex &cell, const QVariant &value)
{
    const QModelIndex index = subjectAt(cell);
    if (!index.isValid() || value == cell.data(valueRole))
        return;
    const int column = cell.column();
    const People people = People::in(session()->container());
    SubjectEdit::apply(*session(), index, nameOfStep(column), [&](TreeItem &subject) {
        if (column == Person)
            people.makeResponsible(subject, value.toString());
        else if (column == End)
            subject.setPlanEndDate(stampOf(value.toDate()));
        else if (column == Status)
            subject.setStatus(value.toInt());
        else if (!value.toString().trimmed().isEmpty())
            subject.setTitle(value.toString());
    });
}
