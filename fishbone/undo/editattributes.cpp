// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/editattributes.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/documentview.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/subjectattribute.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/subjectlookup.h>

#include <QPersistentModelIndex>

#include <vector>

namespace {

using namespace JsonNodes;

/** Whether two values of a state differ; a text that is missing is an empty one. */
bool differ(const QJsonValue &one, const QJsonValue &other)
{
    const auto isText = [](const QJsonValue &value) {
        return value.isString() || value.isNull() || value.isUndefined();
    };
    return isText(one) && isText(other) ? one.toString() != other.toString() : one != other;
}

std::vector<const SubjectAttribute *> changedAttributes(const QJsonObject &before,
                                                        const QJsonObject &after)
{
    std::vector<const SubjectAttribute *> changed;
    for (const SubjectAttribute &attribute : SubjectAttribute::all()) {
        if (attribute.uses().testFlag(SubjectAttribute::Edited) &&
            differ(before.value(attribute.key()), after.value(attribute.key())))
            changed.push_back(&attribute);
    }
    return changed;
}

/** The keys that the format does not know and in whose values two states differ. */
QStringList changedOtherKeys(const QJsonObject &before, const QJsonObject &after)
{
    QStringList changed;
    const QJsonObject former = otherFields(before);
    const QJsonObject later = otherFields(after);
    for (auto field = former.begin(); field != former.end(); ++field) {
        if (later.value(field.key()) != field.value())
            changed.append(field.key());
    }
    for (auto field = later.begin(); field != later.end(); ++field) {
        if (!former.contains(field.key()))
            changed.append(field.key());
    }
    return changed;
}

/** Gives @p target the fields of @p state with these keys, and only those that the state has. */
void storeOthers(TreeItem &target, const QStringList &keys, const QJsonObject &state)
{
    QJsonObject fields = target.otherFields();
    for (const QString &key : keys) {
        const QJsonValue value = state.value(key);
        if (value.isUndefined())
            fields.remove(key);
        else
            fields.insert(key, value);
    }
    target.setOtherFields(fields);
}

} // namespace

struct EditAttributes::Private
{
    /** What happens to one subject. */
    struct Edit
    {
        SubjectKey subject;
        std::vector<const SubjectAttribute *> changed;
        QStringList changedOthers;
        QJsonObject before;
        QJsonObject after;
        bool isApplied = false;

        void store(TreeItem &target, const QJsonObject &state) const
        {
            const TreeItem record(state);
            for (const SubjectAttribute *attribute : changed)
                attribute->copy(target, record);
            if (target.spear())
                target.spear()->updateMovableFlag();
            if (!changedOthers.isEmpty())
                storeOthers(target, changedOthers, state); // which paints the bone anew
        }
    };

    QPointer<FishModel> model;
    std::vector<Edit> edits;

    QVector<TreeItem *> subjects() const
    {
        QVector<SubjectKey> keys;
        keys.reserve(int(edits.size()));
        for (const Edit &edit : edits)
            keys.append(edit.subject);
        return findSubjects(*model, keys);
    }

    /** Listeners may do anything, up to the end of the model. */
    void announce(const QVector<TreeItem *> &subjects) const
    {
        std::vector<QPersistentModelIndex> changed;
        for (const TreeItem *subject : subjects) {
            model->fishOf(subject)->setModified(true);
            changed.emplace_back(model->indexFromItem(subject));
        }
        for (const QPersistentModelIndex &index : changed) {
            if (model)
                model->announceChange(index);
        }
    }
};

EditAttributes::EditAttributes(FishModel *model)
    : UndoCommand([] { return tr("Edit attributes"); })
    , m_d(std::make_unique<Private>())
{
    m_d->model = model;
}

EditAttributes::EditAttributes(FishModel *model, const QModelIndex &index,
                               const QJsonObject &before, const QJsonObject &after)
    : EditAttributes(model)
{
    add(index, before, after);
}

EditAttributes::~EditAttributes() = default;

QJsonObject EditAttributes::stateOf(const TreeItem &subject)
{
    QJsonObject state = JsonNodes::attributes(subject);
    for (const SubjectAttribute &attribute : SubjectAttribute::all()) {
        // A null text is written to no file, and stays one only when the state says so.
        const bool isLeftOut = attribute.kind() == SubjectAttribute::Text ||
                               attribute.kind() == SubjectAttribute::Flag;
        if (isLeftOut && !attribute.isWritten(subject))
            state.insert(attribute.key(), attribute.value(subject));
    }
    return state;
}

bool EditAttributes::add(const QModelIndex &index, const QJsonObject &before,
                         const QJsonObject &after)
{
    std::vector<const SubjectAttribute *> changed = changedAttributes(before, after);
    const QStringList changedOthers = changedOtherKeys(before, after);
    if ((changed.empty() && changedOthers.isEmpty()) || !m_d->model ||
        !m_d->model->getTreeItem(index))
        return false;
    m_d->edits.push_back({keyFromIndex(index), std::move(changed), changedOthers, before, after});
    addSubjectTitle(m_d->model->getTreeItem(index)->title());
    return true;
}

bool EditAttributes::addView(const FishInfo &document, const QJsonObject &view)
{
    TreeItem *const head = document.treeItem()->childAtIndex(0);
    if (!m_d->model || !head)
        return false;
    const QJsonObject before = stateOf(*head);
    TreeItem draft(before);
    DocumentView::set(&draft, view);
    return add(m_d->model->indexFromItem(head), before, stateOf(draft));
}

int EditAttributes::count() const
{
    return int(m_d->edits.size());
}

void EditAttributes::redo()
{
    if (!m_d->model)
        return;
    const QVector<TreeItem *> found = m_d->subjects();
    QVector<TreeItem *> changed;
    for (std::size_t i = 0; i < m_d->edits.size(); ++i) {
        Private::Edit &edit = m_d->edits[i];
        TreeItem *const subject = found.at(int(i));
        edit.isApplied = subject;
        if (!subject)
            continue;
        edit.store(*subject, edit.after);
        changed.append(subject);
    }
    m_d->announce(changed);
}

void EditAttributes::undo()
{
    if (!m_d->model)
        return;
    const QVector<TreeItem *> found = m_d->subjects();
    QVector<TreeItem *> changed;
    for (std::size_t i = m_d->edits.size(); i-- > 0;) { // a subject may have been added twice
        const Private::Edit &edit = m_d->edits[i];
        TreeItem *const subject = found.at(int(i));
        if (!edit.isApplied || !subject)
            continue;
        edit.store(*subject, edit.before);
        changed.append(subject);
    }
    m_d->announce(changed);
}
