// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The command that pastes the subjects of a snapshot.

#include <fishbone/undo/structuralcommands.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/heldsubject.h>
#include <fishbone/undo/subjectlookup.h>
#include <fishbone/undo/subjectspears.h>
#include <fishbone/undo/subjectwalk.h>

#include <QJsonObject>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/** One subject of the snapshot and what became of it. */
struct Copy
{
    QJsonObject object;
    SubjectKey key = {};
    bool isPasted = false; // by the last redo()
    int alikeBefore = 0;   // siblings of the same uuid that were there when it came
    HeldSubject held = {}; // from undo() to redo()
};

/** The uuids below all documents of @p model. */
QSet<QString> uuidsOf(const FishModel &model)
{
    QSet<QString> uuids;
    const QList<FishInfo *> documents = model.fishList();
    for (const FishInfo *document : documents) {
        visitSubjects(document->treeItem(), [&uuids](const TreeItem *subject) {
            uuids.insert(subject->uuid());
            return true;
        });
    }
    return uuids;
}

/** Replaces the uuids in a subtree that are in @p used already, and adds all of them. */
void renewUuids(TreeItem *top, QSet<QString> &used)
{
    visitSubjects(top, [&used](TreeItem *subject) {
        const QString uuid = subject->uuid();
        if (namesSubject(uuid) && used.contains(uuid)) {
            subject->setUuid(SystemHelper::randomUuid());
            for (TreeItem *child : subject->childItems()) {
                if (child->pid() == uuid)
                    child->setPid(subject->uuid());
            }
        }
        used.insert(subject->uuid());
        return true;
    });
}

/** How many of the children of @p parent have each uuid. */
QHash<QString, int> countChildUuids(const TreeItem &parent)
{
    QHash<QString, int> counts;
    for (const TreeItem *child : parent.childItems())
        ++counts[child->uuid()];
    return counts;
}

} // namespace

struct EditPaste::Private
{
    bool paste(Copy &copy, TreeItem *parent, QSet<QString> &used);
    TreeItem *pastedSubject(const Copy &copy, SubjectFinder &finder) const;

    QPointer<FishModel> model;
    QJsonObject objects;
    SubjectKey target;
    bool pasteAsNew = false;
    std::vector<Copy> copies;
    QStringList pastedUuids;
};

/** Appends a copy to @p parent: the one that undo() took out, or else one from the snapshot. */
bool EditPaste::Private::paste(Copy &copy, TreeItem *parent, QSet<QString> &used)
{
    const int row = parent->childCount();
    if (!copy.held.isEmpty())
        return copy.held.putBack(*model, parent, row);
    if (pasteAsNew) {
        std::unique_ptr<TreeItem> subject = JsonNodes::read(copy.object, nullptr, -1);
        renewUuids(subject.get(), used);
        if (!model->putRow(row, subject.get(), model->indexFromItem(parent)))
            return false;
        static_cast<void>(subject.release());
        return true;
    }
    model->read(copy.object, parent, row);
    return true;
}

/** The subject that was pasted, never one that was there before; null when it is gone. */
TreeItem *EditPaste::Private::pastedSubject(const Copy &copy, SubjectFinder &finder) const
{
    TreeItem *const found = finder.find(copy.key);
    if (found && found == copy.key.node.get())
        return found;
    // The document was loaded anew: the last one of its uuid, unless all of them are older.
    const TreeItem *const parent = finder.find(target);
    TreeItem *last = nullptr;
    int alike = 0;
    for (TreeItem *child : parent ? parent->childItems() : QList<TreeItem *>()) {
        if (child->uuid() == copy.key.uuid) {
            last = child;
            ++alike;
        }
    }
    return alike > copy.alikeBefore ? last : nullptr;
}

EditPaste::EditPaste(FishModel *model, const QModelIndex &target, const QJsonObject &objects)
    : UndoCommand([] { return tr("Paste from clipborad"); })
    , m_d(std::make_unique<Private>())
{
    m_d->model = model;
    m_d->objects = objects;
    m_d->target = keyFromIndex(target);
    const QVector<QJsonObject> subjects = snapshotSubjects(objects);
    for (const QJsonObject &subject : subjects)
        m_d->copies.push_back({subject});
}

EditPaste::~EditPaste() = default;

void EditPaste::setPasteAsNew(bool pasteAsNew)
{
    m_d->pasteAsNew = pasteAsNew;
}

void EditPaste::redo()
{
    m_d->pastedUuids.clear();
    FishModel *const model = m_d->model;
    TreeItem *const target = model ? findSubject(*model, m_d->target) : nullptr;
    if (!target)
        return;
    QHash<QString, int> alike = countChildUuids(*target);
    QSet<QString> used = m_d->pasteAsNew ? uuidsOf(*model) : QSet<QString>();
    for (Copy &copy : m_d->copies) {
        if (!m_d->model || !m_d->paste(copy, target, used) || !m_d->model)
            break;
        copy.key = keyFromItem(*model, target->childItems().last());
        copy.isPasted = true;
        copy.alikeBefore = alike[copy.key.uuid]++;
        m_d->pastedUuids.prepend(copy.key.uuid);
    }
    if (m_d->model)
        generateMissingSpears(*model, target);
}

void EditPaste::undo()
{
    if (!m_d->model)
        return;
    QVector<SubjectKey> keys{m_d->target};
    for (const Copy &copy : m_d->copies)
        keys.append(copy.key);
    SubjectFinder finder(*m_d->model, keys);
    std::for_each(m_d->copies.rbegin(), m_d->copies.rend(), [&](Copy &copy) {
        if (!std::exchange(copy.isPasted, false) || !m_d->model)
            return;
        if (TreeItem *const subject = m_d->pastedSubject(copy, finder))
            copy.held.take(*m_d->model, subject);
    });
}

QJsonObject EditPaste::objects() const
{
    return m_d->objects;
}

QString EditPaste::targetUuid() const
{
    return m_d->target.uuid;
}

QStringList EditPaste::pastedUuids() const
{
    return m_d->pastedUuids;
}
