// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishinfo.h>

#include <fishbone/model/documentview.h>
#include <fishbone/model/fishinfo_p.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/treeitem.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonObject>

#include <algorithm>

namespace {

int nextSequenceNumber()
{
    static int number = 1;
    return number++;
}

} // namespace

FishInfo::FishInfo(QObject *parent)
    : QObject(parent)
    , m_d(std::make_unique<Private>(this, tr("fish%1.json").arg(nextSequenceNumber())))
{
    connect(&m_d->state, &DocumentState::modifiedChanged, this, &FishInfo::modifiedChanged);
    connect(&m_d->state, &DocumentState::fileChanged, this, &FishInfo::fileNameChanged);
}

FishInfo::~FishInfo()
{
    if (m_d->owner)
        m_d->owner->forget(this);
}

QString FishInfo::fileName() const
{
    return m_d->state.file();
}

void FishInfo::setFileName(const QString &fileName)
{
    m_d->state.setFile(fileName);
}

void FishInfo::setModified(bool modified)
{
    m_d->state.setModified(modified);
}

bool FishInfo::modified() const
{
    return m_d->state.isModified();
}

bool FishInfo::isUntitled() const
{
    return m_d->state.isUntitled();
}

TreeItem *FishInfo::treeItem() const
{
    return m_d->container.get();
}

int FishInfo::nodeCount() const
{
    return m_d->nodeCount;
}

void FishInfo::setNodeCount(int count)
{
    m_d->nodeCount = count;
}

int FishInfo::noParentNodeCount() const
{
    return m_d->noParentNodeCount;
}

void FishInfo::setNoParentNodeCount(int count)
{
    m_d->noParentNodeCount = count;
}

QString FishInfo::autoSaveFile() const
{
    return m_d->autoSaveFile;
}

void FishInfo::setAutoSaveFile(const QString &fileName)
{
    m_d->autoSaveFile = fileName;
}

QAbstractItemModel *FishInfo::model() const
{
    return m_d->model;
}

void FishInfo::setModel(QAbstractItemModel *model)
{
    m_d->model = model;
}

QString FishInfo::saveError() const
{
    return m_d->saving.error();
}

QStringList FishInfo::fishHistorys() const
{
    return m_d->history.uuids();
}

void FishInfo::setCurrentFile(const QString &path)
{
    m_d->state.setSaved(QFileInfo(path).canonicalFilePath());
    m_d->autoSaveFile = fileName();
}

QString FishInfo::strippedName(const QString &path) const
{
    return QFileInfo(path).fileName();
}

QString FishInfo::userFriendlyCurrentFile() const
{
    return strippedName(m_d->state.file());
}

void FishInfo::reset()
{
    rebuild([this] { clearTree(); });
}

void FishInfo::loadFish(const QJsonObject &root, QAbstractItemModel *model)
{
    const QPointer<QAbstractItemModel> shown(model);
    rebuild([this, root, shown] {
        buildTree(root);
        m_d->model = shown;
    });
}

/** Carries out a @p change of the whole tree, which the model that lists the document announces. */
void FishInfo::rebuild(const std::function<void()> &change)
{
    if (m_d->owner)
        m_d->owner->rebuild(this, change);
    else
        change();
}

/** reset() without announcement. */
void FishInfo::clearTree()
{
    m_d->makeContainer();
    m_d->state.setModified(false);
}

/** loadFish() without announcement and model. */
void FishInfo::buildTree(const QJsonObject &root)
{
    const JsonNodes::Counts counts = JsonNodes::load(root, *m_d->container);
    m_d->nodeCount = counts.nodes;
    m_d->noParentNodeCount = counts.withoutParentTask;
}

bool FishInfo::saveFile(const QString &fileName)
{
    const bool saved = m_d->saving.write(fileName, QString());
    if (saved)
        QMetaObject::invokeMethod(
            this, [this, fileName] { Q_EMIT fileSaved(fileName); }, Qt::QueuedConnection);
    return saved;
}

bool FishInfo::save()
{
    return isUntitled() ? saveAs() : saveFile(fileName());
}

bool FishInfo::saveAs()
{
    return m_d->saving.writeAs();
}

bool FishInfo::maybeSave()
{
    return maybeSave([this] { return save(); });
}

bool FishInfo::maybeSave(const std::function<bool()> &save)
{
    return !modified() || m_d->saving.ask(save);
}

bool FishInfo::saveTmpFile()
{
    return m_d->saving.autosave();
}

QJsonObject FishInfo::view() const
{
    return DocumentView::of(m_d->container->childAtIndex(0));
}

bool FishInfo::setView(const QJsonObject &view)
{
    return DocumentView::set(m_d->container->childAtIndex(0), view);
}

bool FishInfo::deleteOldTmpFile(const QString &path)
{
    return QFile::remove(path);
}

bool FishInfo::addFishToHistory(const QModelIndex &index)
{
    const auto *const model = qobject_cast<const FishModel *>(m_d->model.data());
    const TreeItem *const item = model ? model->getTreeItem(index) : nullptr;
    return item && m_d->history.add(item->uuid());
}

void FishInfo::updateNoParentNodeCount()
{
    const TreeItem *const head = m_d->container->childAtIndex(0);
    const QList<TreeItem *> bones = head ? head->childItems() : QList<TreeItem *>();
    m_d->noParentNodeCount =
        int(std::count_if(bones.cbegin(), bones.cend(),
                          [](const TreeItem *bone) { return !bone->isHaveParentTask(); }));
}
