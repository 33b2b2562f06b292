// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishinfo.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/base/literaltext.h>
#include <fishbone/model/documentfile.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonDocument>
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

/** The text of the diagram in @p container; empty when it would nest deeper than a reader takes. */
QByteArray documentText(const TreeItem &container)
{
    QJsonObject root;
    JsonNodes::Extent extent;
    if (container.childCount() > 0) {
        extent = JsonNodes::write(root, *container.childItems().last(), JsonNodes::readableLevels);
        if (extent.levels == 0)
            return QByteArray();
    }
    const QByteArray text = QJsonDocument(root).toJson();
    const bool mayBeTooDeep = extent.hasOtherFields || 2 * extent.levels + JsonNodes::styleNesting >
                                                           JsonNodes::readableNesting;
    if (mayBeTooDeep && JsonNodes::nesting(text) > JsonNodes::readableNesting)
        return QByteArray();
    return text;
}

} // namespace

FishInfo::FishInfo(QObject *parent)
    : QObject(parent)
    , m_curFile(tr("fish%1.json").arg(nextSequenceNumber()))
    , m_treeItem(std::make_unique<TreeItem>())
{
    m_treeItem->setDocument(this);
    m_toldFile = m_curFile;
}

FishInfo::~FishInfo()
{
    if (m_owner)
        m_owner->forget(this);
}

void FishInfo::setFileName(const QString &fileName)
{
    m_curFile = fileName;
    tellLater();
}

void FishInfo::setModified(bool modified)
{
    m_modified = modified;
    tellLater();
}

/** Has the signals tell what has changed, when control is back in the event loop. */
void FishInfo::tellLater()
{
    const bool isTold = m_modified == m_toldModified && m_curFile == m_toldFile;
    if (!isTold && !std::exchange(m_willTell, true))
        QMetaObject::invokeMethod(this, &FishInfo::tellChanges, Qt::QueuedConnection);
}

void FishInfo::tellChanges()
{
    m_willTell = false;
    const bool isModifiedNew = std::exchange(m_toldModified, m_modified) != m_modified;
    const bool isFileNew = std::exchange(m_toldFile, m_curFile) != m_curFile;
    // Who hears of the one may end the document before the other.
    const QPointer<FishInfo> alive(this);
    if (isModifiedNew)
        Q_EMIT modifiedChanged(m_toldModified);
    if (alive && isFileNew)
        Q_EMIT fileNameChanged(m_toldFile);
}

void FishInfo::setCurrentFile(const QString &path)
{
    m_curFile = QFileInfo(path).canonicalFilePath();
    m_isUntitled = false;
    m_modified = false;
    m_autoSaveFile = m_curFile;
    tellLater();
}

QString FishInfo::strippedName(const QString &path) const
{
    return QFileInfo(path).fileName();
}

QString FishInfo::userFriendlyCurrentFile() const
{
    return strippedName(m_curFile);
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
        m_model = shown;
    });
}

/** Carries out a @p change of the whole tree, which the model that lists the document announces. */
void FishInfo::rebuild(const std::function<void()> &change)
{
    if (m_owner)
        m_owner->rebuild(this, change);
    else
        change();
}

/** reset() without announcement. */
void FishInfo::clearTree()
{
    m_treeItem = std::make_unique<TreeItem>();
    m_treeItem->setDocument(this);
    m_modified = false;
    tellLater();
}

/** loadFish() without announcement and model. */
void FishInfo::buildTree(const QJsonObject &root)
{
    const JsonNodes::Counts counts = JsonNodes::load(root, *m_treeItem);
    m_nodeCount = counts.nodes;
    m_noParentNodeCount = counts.withoutParentTask;
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
    if (!m_model) {
        DocumentFile::makeEmpty(fileName);
        m_saveError = tr("no model shows the document");
        return false;
    }
    const QByteArray text = documentText(*m_treeItem);
    if (text.isEmpty()) {
        m_saveError = tr("the diagram nests too deep to be read again");
        qDebug() << "FishInfo::saveFile:" << m_saveError;
    } else {
        m_saveError = replaceFile(fileName, text, origin);
    }
    return m_saveError.isEmpty();
}

bool FishInfo::save()
{
    return m_isUntitled ? saveAs() : saveFile(m_curFile);
}

bool FishInfo::saveAs()
{
    const QString proposed =
        SystemHelper::documentsLocation() + QLatin1Char('/') + strippedName(m_curFile);
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
    if (!m_modified)
        return true;
    const QString question = tr("'%1' has been modified.\nDo you want to save your changes?")
                                 .arg(strippedName(m_curFile));
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
    if (!m_model || m_treeItem->childItems().isEmpty())
        return false;
    const bool isNew = m_autoSaveFile.isEmpty();
    const QString target = isNew ? newAutoSaveFile() : m_autoSaveFile;
    if (target.isEmpty())
        return false;
    m_autoSaveFile = target;
    const bool saved = write(target, m_curFile);
    if (isNew && !saved)
        QFile::remove(target); // what reserved the name
    return saved;
}

/** A new file in the autosave folder, which is made when missing; empty without a first head. */
QString FishInfo::newAutoSaveFile() const
{
    const auto *const model = qobject_cast<const FishModel *>(m_model.data());
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
    const TreeItem *const head = m_treeItem->childAtIndex(0);
    return head ? head->otherFields().value(JsonNodes::viewKey).toObject() : QJsonObject();
}

bool FishInfo::setView(const QJsonObject &view)
{
    TreeItem *const head = m_treeItem->childAtIndex(0);
    if (!head)
        return false;
    QJsonObject fields = head->otherFields();
    if (view.isEmpty())
        fields.remove(JsonNodes::viewKey);
    else
        fields.insert(JsonNodes::viewKey, view);
    head->setOtherFields(fields);
    return true;
}

bool FishInfo::deleteOldTmpFile(const QString &path)
{
    return QFile::remove(path);
}

bool FishInfo::addFishToHistory(const QModelIndex &index)
{
    const auto *const model = qobject_cast<const FishModel *>(m_model.data());
    const TreeItem *const item = model ? model->getTreeItem(index) : nullptr;
    if (!item || m_historys.contains(item->uuid()))
        return false;
    if (m_historys.size() >= longestHistory)
        m_historys.removeFirst();
    m_historys.append(item->uuid());
    return true;
}

void FishInfo::updateNoParentNodeCount()
{
    const TreeItem *const head = m_treeItem->childAtIndex(0);
    const QList<TreeItem *> bones = head ? head->childItems() : QList<TreeItem *>();
    m_noParentNodeCount = int(std::count_if(bones.cbegin(), bones.cend(), [](const TreeItem *bone) {
        return !bone->isHaveParentTask();
    }));
}
