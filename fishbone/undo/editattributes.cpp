// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/editattributes.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/undo/subjectlookup.h>

#include <QPersistentModelIndex>

#include <vector>

namespace {

using namespace JsonNodes;

/** One attribute of a subject: its key, and how it is copied from a record to a subject. */
struct Attribute
{
    QLatin1String key;
    void (*copy)(TreeItem &to, const TreeItem &from);
};

QJsonObject styleOf(const TreeItem &subject)
{
    QJsonObject style;
    if (subject.spearStyle())
        subject.spearStyle()->write(style);
    return style;
}

/** Keeps the style object when it says the same already: dialogs may be working on it. */
void copyStyle(TreeItem &to, const TreeItem &from)
{
    const QJsonObject style = styleOf(from);
    if (styleOf(to) != style)
        to.setSpearStyle(style);
}

void copyMovable(TreeItem &to, const TreeItem &from)
{
    to.setSpearItemIsMovable(from.spearItemIsMovable());
    if (to.spear())
        to.spear()->updateMovableFlag();
}

const Attribute knownAttributes[] = {
    {titleKey, [](TreeItem &to, const TreeItem &from) { to.setTitle(from.title()); }},
    {showidKey, [](TreeItem &to, const TreeItem &from) { to.setShowid(from.showid()); }},
    {detailKey, [](TreeItem &to, const TreeItem &from) { to.setDetail(from.detail()); }},
    {urlKey, [](TreeItem &to, const TreeItem &from) { to.setUrl(from.url()); }},
    {typeKey, [](TreeItem &to, const TreeItem &from) { to.setType(from.type()); }},
    {statusKey, [](TreeItem &to, const TreeItem &from) { to.setStatus(from.status()); }},
    {progressKey, [](TreeItem &to, const TreeItem &from) { to.setProgress(from.progress()); }},
    {priorityKey, [](TreeItem &to, const TreeItem &from) { to.setPriority(from.priority()); }},
    {managerNameKey,
     [](TreeItem &to, const TreeItem &from) { to.setManagerName(from.managerName()); }},
    {managerIdKey, [](TreeItem &to, const TreeItem &from) { to.setManagerId(from.managerId()); }},
    {creatorNameKey,
     [](TreeItem &to, const TreeItem &from) { to.setCreatorName(from.creatorName()); }},
    {creatorIdKey, [](TreeItem &to, const TreeItem &from) { to.setCreatorId(from.creatorId()); }},
    {followersKey, [](TreeItem &to, const TreeItem &from) { to.setFollowers(from.followers()); }},
    {createDateKey,
     [](TreeItem &to, const TreeItem &from) { to.setCreateDate(from.createDate()); }},
    {planEndDateKey,
     [](TreeItem &to, const TreeItem &from) { to.setPlanEndDate(from.planEndDate()); }},
    {spearStyleKey, copyStyle},
    {isMovableKey, copyMovable},
};

/** Whether two values of a state differ; a text that is missing is an empty one. */
bool differ(const QJsonValue &one, const QJsonValue &other)
{
    const auto isText = [](const QJsonValue &value) {
        return value.isString() || value.isNull() || value.isUndefined();
    };
    return isText(one) && isText(other) ? one.toString() != other.toString() : one != other;
}

std::vector<const Attribute *> changedAttributes(const QJsonObject &before,
                                                 const QJsonObject &after)
{
    std::vector<const Attribute *> changed;
    for (const Attribute &attribute : knownAttributes) {
        if (differ(before.value(attribute.key), after.value(attribute.key)))
            changed.push_back(&attribute);
    }
    return changed;
}

} // namespace

struct EditAttributes::Private
{
    /** What happens to one subject. */
    struct Edit
    {
        SubjectKey subject;
        std::vector<const Attribute *> changed;
        QJsonObject before;
        QJsonObject after;
        bool isApplied = false;

        void store(TreeItem &target, const QJsonObject &state) const
        {
            const TreeItem record(state);
            for (const Attribute *attribute : changed)
                attribute->copy(target, record);
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
        for (const QPersistentModelIndex &persistent : changed) {
            const QModelIndex index = persistent;
            if (model && index.isValid())
                model->tellData(index, index.siblingAtColumn(model->columnCount() - 1));
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
    state.insert(isMovableKey, subject.spearItemIsMovable());
    // A null text is written to no file, and stays one only when the state says so.
    for (QLatin1String key : {urlKey, managerNameKey, managerIdKey, creatorNameKey, creatorIdKey}) {
        if (!state.contains(key))
            state.insert(key, QJsonValue());
    }
    return state;
}

bool EditAttributes::add(const QModelIndex &index, const QJsonObject &before,
                         const QJsonObject &after)
{
    std::vector<const Attribute *> changed = changedAttributes(before, after);
    if (changed.empty() || !m_d->model || !m_d->model->getTreeItem(index))
        return false;
    m_d->edits.push_back({keyFromIndex(index), std::move(changed), before, after});
    return true;
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
