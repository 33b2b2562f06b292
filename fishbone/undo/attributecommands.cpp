// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/undo/attributecommands.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/subjectlookup.h>

struct AttributeCommand::Private
{
    QPointer<QAbstractItemModel> model;
    SubjectKey subject;
};

AttributeCommand::AttributeCommand(const Name &name, QAbstractItemModel *model,
                                   const QModelIndex &index)
    : UndoCommand(name)
    , m_d(std::make_unique<Private>())
{
    m_d->model = model;
    m_d->subject = keyFromIndex(index);
    if (const TreeItem *const item = itemFromIndex(index))
        setSubjectTitles({item->title()});
}

AttributeCommand::~AttributeCommand() = default;

QString AttributeCommand::uuid() const
{
    return m_d->subject.uuid;
}

QAbstractItemModel *AttributeCommand::model() const
{
    return m_d->model;
}

QModelIndex AttributeCommand::subjectIndex() const
{
    return indexFromKey(m_d->model, m_d->subject);
}

TreeItem *AttributeCommand::subject() const
{
    return itemFromIndex(subjectIndex());
}

void AttributeCommand::setUrl(const QString &url)
{
    const QModelIndex index = subjectIndex();
    itemFromIndex(index)->setUrl(url);
    if (auto *const subjects = qobject_cast<FishModel *>(model()))
        subjects->tellNode(index);
}

ModifyName::ModifyName(QAbstractItemModel *model, const QModelIndex &index, const QString &name)
    : AttributeCommand([] { return tr("Modify subject name"); }, model, index)
    , m_newName(name)
{
    setSubjectTitles({name});
}

void ModifyName::redo()
{
    const QModelIndex index = subjectIndex();
    m_isApplied = index.isValid();
    if (!m_isApplied)
        return;
    // What the model shows for a head has the counts behind the title.
    const TreeItem *const item = itemFromIndex(index);
    m_oldName = item ? item->title() : index.data(Qt::DisplayRole).toString();
    model()->setData(index, m_newName, Qt::EditRole);
}

void ModifyName::undo()
{
    const QModelIndex index = subjectIndex();
    if (m_isApplied && index.isValid())
        model()->setData(index, m_oldName, Qt::EditRole);
}

ModifyLinkTo::ModifyLinkTo(QAbstractItemModel *model, const QModelIndex &index, const QString &url)
    : AttributeCommand([] { return tr("Modify link to"); }, model, index)
    , m_newUrl(url)
{
}

void ModifyLinkTo::redo()
{
    const TreeItem *const item = subject();
    m_isApplied = item;
    if (!m_isApplied)
        return;
    m_oldUrl = item->url();
    setUrl(m_newUrl);
}

void ModifyLinkTo::undo()
{
    if (m_isApplied && subject())
        setUrl(m_oldUrl);
}

ModifyDelLink::ModifyDelLink(QAbstractItemModel *model, const QModelIndex &index)
    : AttributeCommand([] { return tr("Delete link"); }, model, index)
{
}

void ModifyDelLink::redo()
{
    const TreeItem *const item = subject();
    m_isApplied = item;
    if (!m_isApplied)
        return;
    m_oldUrl = item->url();
    setUrl(QStringLiteral(""));
}

void ModifyDelLink::undo()
{
    if (m_isApplied && subject())
        setUrl(m_oldUrl);
}

EditModify::EditModify(FishModel *model, const QModelIndex &index, TreeItem *item)
    : AttributeCommand([] { return tr("Modify Item"); }, model, index)
    , m_item(item)
{
}

void EditModify::redo()
{
    if (auto *const subjects = qobject_cast<FishModel *>(model()))
        subjects->updateItem(subjectIndex(), m_item);
}

void EditModify::undo() {}
