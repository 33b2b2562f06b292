// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/diagramvisits.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectwalk.h>

DiagramVisits::DiagramVisits(FishModel *model, FishEditor *editor)
    : m_model(model)
    , m_editor(editor)
{
}

/** The uuid of what is shown as a diagram. */
QString DiagramVisits::shownUuid() const
{
    const TreeItem *const root = m_model->getTreeItem(m_editor->rootIndex());
    return root ? root->uuid() : QString();
}

void DiagramVisits::show(const QModelIndex &root)
{
    if (m_editor->headSpear())
        m_left.insert(shownUuid(), DrawingState::capture(*m_editor));
    m_editor->setRootIndex(root);
    if (const auto left = m_left.constFind(shownUuid()); left != m_left.constEnd())
        left->restore(*m_editor);
}

QModelIndexList DiagramVisits::subjectsOf(const FishInfo *document) const
{
    const QStringList uuids = document ? document->fishHistorys() : QStringList();
    if (uuids.isEmpty())
        return {};
    QHash<QString, const TreeItem *> found;
    for (const QString &uuid : uuids)
        found.insert(uuid, nullptr);
    visitSubjects(document->treeItem()->childAtIndex(0), [&found](const TreeItem *subject) {
        if (const auto wanted = found.find(subject->uuid()); wanted != found.end() && !*wanted)
            *wanted = subject;
        return true;
    });
    QModelIndexList indexes;
    for (const QString &uuid : uuids) {
        if (const QModelIndex index = m_model->indexFromItem(found.value(uuid)); index.isValid())
            indexes.append(index);
    }
    return indexes;
}
