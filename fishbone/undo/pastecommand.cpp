// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// The command that pastes the subjects of a snapshot.

#include <fishbone/undo/structuralcommands.h>

#include <fishbone/items/sceneselection.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/heldsubject.h>
#include <fishbone/undo/stepgate.h>
#include <fishbone/undo/subjectfinder.h>
#include <fishbone/undo/subjectlookup.h>
#include <fishbone/undo/subjectspears.h>

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
        if (TreeItem::isIdentity(uuid) && used.contains(uuid)) {
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
    TreeItem *paste(Copy &copy, TreeItem *parent, QSet<QString> &used);
    TreeItem *pastedSubject(const Copy &copy, SubjectFinder &finder) const;

    QPointer<FishModel> model;
    QJsonObject objects;
    SubjectKey target;
    bool pasteAsNew = false;
    StepGate gate;
    std::vector<Copy> copies;
    QStringList pastedUuids;
};

/**
 * Appends a copy to @p parent: the one that undo() took out, or else one from the snapshot. The
 * subject, or null when it cannot stand there or did not stay.
 */
TreeItem *EditPaste::Private::paste(Copy &copy, TreeItem *parent, QSet<QString> &used)
{
    const int row = parent->childCount();
    if (copy.held.isEmpty()) {
        std::unique_ptr<TreeItem> made =
            JsonNodes::read(copy.object, pasteAsNew ? nullptr : parent, pasteAsNew ? -1 : row);
        if (pasteAsNew)
            renewUuids(made.get(), used);
        copy.held.adopt(made.release());
    }
    TreeItem *const subject = copy.held.item();
    const GuardedPointer<TreeItem> alive(subject);
    const bool isPut = copy.held.putBack(*model, parent, row);
    return isPut && model && alive.get() && model->indexFromItem(subject).isValid() ? subject
                                                                                    : nullptr;
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
    setSubjectTitles(snapshotTitles(objects));
}

EditPaste::~EditPaste() = default;

void EditPaste::setPasteAsNew(bool pasteAsNew)
{
    m_d->pasteAsNew = pasteAsNew;
}

void EditPaste::redo()
{
    if (!m_d->model || !m_d->gate.letsRedo(m_d->model))
        return;
    m_d->pastedUuids.clear();
    FishModel *const model = m_d->model;
    const GuardedPointer<TreeItem> target(findSubject(*model, m_d->target));
    if (!target.get())
        return;
    QHash<QString, int> alike = countChildUuids(*target.get());
    QSet<QString> used = m_d->pasteAsNew ? uuidsOf(*model) : QSet<QString>();
    for (Copy &copy : m_d->copies) {
        if (!m_d->model || !target.get())
            return;
        TreeItem *const pasted = m_d->paste(copy, target.get(), used);
        copy.isPasted = pasted;
        if (!pasted)
            continue; // a listener has removed it again, say
        copy.key = keyFromItem(*model, pasted);
        copy.alikeBefore = alike[copy.key.uuid]++;
        m_d->pastedUuids.prepend(copy.key.uuid);
    }
    if (m_d->model)
        generateMissingSpears(*model, target.get());
}

void EditPaste::undo()
{
    if (!m_d->model || !m_d->gate.letsUndo(m_d->model))
        return;
    QVector<SubjectKey> keys{m_d->target};
    for (const Copy &copy : m_d->copies)
        keys.append(copy.key);
    SelectionHold hold;
    SubjectFinder finder(*m_d->model, keys);
    std::for_each(m_d->copies.rbegin(), m_d->copies.rend(), [&](Copy &copy) {
        if (!std::exchange(copy.isPasted, false) || !m_d->model)
            return;
        if (TreeItem *const subject = m_d->pastedSubject(copy, finder))
            copy.held.take(*m_d->model, subject, hold);
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
