// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishinfo.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/base/literaltext.h>
#include <fishbone/model/documentfile.h>
#include <fishbone/model/documentview.h>
#include <fishbone/model/fishinfo_p.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonObject>
#include <QMessageBox>

#include <algorithm>
#include <utility>

namespace {

constexpr int longestHistory = 4;

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
}

FishInfo::~FishInfo()
{
    if (m_d->owner)
        m_d->owner->forget(this);
}

QString FishInfo::fileName() const
{
    return m_d->file;
}

void FishInfo::setFileName(const QString &fileName)
{
    m_d->file = fileName;
    tellLater();
}

void FishInfo::setModified(bool modified)
{
    m_d->isModified = modified;
    tellLater();
}

bool FishInfo::modified() const
{
    return m_d->isModified;
}

bool FishInfo::isUntitled() const
{
    return m_d->isUntitled;
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
    return m_d->saveError;
}

QStringList FishInfo::fishHistorys() const
{
    return m_d->historys;
}

/** Has the signals tell what has changed, when control is back in the event loop. */
void FishInfo::tellLater()
{
    const bool isTold = m_d->isModified == m_d->wasToldModified && m_d->file == m_d->toldFile;
    if (!isTold && !std::exchange(m_d->willTell, true))
        QMetaObject::invokeMethod(this, &FishInfo::tellChanges, Qt::QueuedConnection);
}

void FishInfo::tellChanges()
{
    m_d->willTell = false;
    const bool isModifiedNew =
        std::exchange(m_d->wasToldModified, m_d->isModified) != m_d->isModified;
    const bool isFileNew = std::exchange(m_d->toldFile, m_d->file) != m_d->file;
    // Who hears of the one may end the document before the other.
    const QPointer<FishInfo> alive(this);
    if (isModifiedNew)
        Q_EMIT modifiedChanged(m_d->wasToldModified);
    if (alive && isFileNew)
        Q_EMIT fileNameChanged(m_d->toldFile);
}

void FishInfo::setCurrentFile(const QString &path)
{
    m_d->file = QFileInfo(path).canonicalFilePath();
    m_d->isUntitled = false;
    m_d->isModified = false;
    m_d->autoSaveFile = m_d->file;
    tellLater();
}

QString FishInfo::strippedName(const QString &path) const
{
    return QFileInfo(path).fileName();
}

QString FishInfo::userFriendlyCurrentFile() const
{
    return strippedName(m_d->file);
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
    m_d->isModified = false;
    tellLater();
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
    const bool saved = write(fileName, QString());
    if (saved)
        QMetaObject::invokeMethod(
            this, [this, fileName] { Q_EMIT fileSaved(fileName); }, Qt::QueuedConnection);
    return saved;
}

/** saveFile(), readable for those at most who may read @p origin. */
bool FishInfo::write(const QString &fileName, const QString &origin)
{
    if (!m_d->model) {
        DocumentFile::makeEmpty(fileName);
        m_d->saveError = tr("no model shows the document");
        return false;
    }
    const QByteArray text = DocumentFile::text(*m_d->container);
    if (text.isEmpty()) {
        m_d->saveError = tr("the diagram nests too deep to be read again");
        qDebug() << "FishInfo::saveFile:" << m_d->saveError;
    } else {
        m_d->saveError = replaceFile(fileName, text, origin);
    }
    return m_d->saveError.isEmpty();
}

bool FishInfo::save()
{
    return m_d->isUntitled ? saveAs() : saveFile(m_d->file);
}

bool FishInfo::saveAs()
{
    const QString proposed =
        SystemHelper::documentsLocation() + QLatin1Char('/') + strippedName(m_d->file);
    // The dialog runs an event loop, in which the document may be unloaded.
    const QPointer<FishInfo> alive(this);
    const QString chosen = QFileDialog::getSaveFileName(nullptr, tr("Save As"), proposed);
    return alive && !chosen.isEmpty() && saveFile(chosen);
}

bool FishInfo::maybeSave()
{
    return maybeSave([this] { return save(); });
}

bool FishInfo::maybeSave(const std::function<bool()> &save)
{
    if (!m_d->isModified)
        return true;
    const QString question = tr("'%1' has been modified.\nDo you want to save your changes?")
                                 .arg(strippedName(m_d->file));
    const QPointer<FishInfo> alive(this);
    const auto answer =
        QMessageBox::warning(nullptr, tr("FishInfo"), literalText(question),
                             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Save)
        return alive && save();
    return answer != QMessageBox::Cancel;
}

bool FishInfo::saveTmpFile()
{
    if (!m_d->model || m_d->container->childItems().isEmpty())
        return false;
    const bool isNew = m_d->autoSaveFile.isEmpty();
    const QString target = isNew ? newAutoSaveFile() : m_d->autoSaveFile;
    if (target.isEmpty())
        return false;
    m_d->autoSaveFile = target;
    const bool saved = write(target, m_d->file);
    if (isNew && !saved)
        QFile::remove(target); // what reserved the name
    return saved;
}

/** A new file in the autosave folder, which is made when missing; empty without a first head. */
QString FishInfo::newAutoSaveFile() const
{
    const auto *const model = qobject_cast<const FishModel *>(m_d->model.data());
    const TreeItem *const head = model ? model->getFishHeadTreeItem() : nullptr;
    if (!head)
        return QString();
    const QString folder = SystemHelper::appliactionDirPath() + QStringLiteral("tmp/fishdiagram/");
    if (!QFileInfo::exists(folder))
        qDebug() << QDir().mkpath(folder);
    return DocumentFile::reserveName(folder, head->title());
}

QJsonObject FishInfo::view() const
{
    return DocumentView::of(m_d->container->childAtIndex(0));
}

bool FishInfo::setView(const QJsonObject &view)
{
    TreeItem *const head = m_d->container->childAtIndex(0);
    if (!head)
        return false;
    DocumentView::set(*head, view);
    return true;
}

bool FishInfo::deleteOldTmpFile(const QString &path)
{
    return QFile::remove(path);
}

bool FishInfo::addFishToHistory(const QModelIndex &index)
{
    const auto *const model = qobject_cast<const FishModel *>(m_d->model.data());
    const TreeItem *const item = model ? model->getTreeItem(index) : nullptr;
    if (!item || m_d->historys.contains(item->uuid()))
        return false;
    if (m_d->historys.size() >= longestHistory)
        m_d->historys.removeFirst();
    m_d->historys.append(item->uuid());
    return true;
}

void FishInfo::updateNoParentNodeCount()
{
    const TreeItem *const head = m_d->container->childAtIndex(0);
    const QList<TreeItem *> bones = head ? head->childItems() : QList<TreeItem *>();
    m_d->noParentNodeCount =
        int(std::count_if(bones.cbegin(), bones.cend(),
                          [](const TreeItem *bone) { return !bone->isHaveParentTask(); }));
}
