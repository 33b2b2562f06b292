// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishinfo.h>

#include <fishbone/model/documentfile.h>
#include <fishbone/model/filereplacement.h>
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
    int levels = 0;
    if (container.childCount() > 0) {
        levels = JsonNodes::write(root, *container.childItems().last(), JsonNodes::readableLevels);
        if (levels == 0)
            return QByteArray();
    }
    const QByteArray text = QJsonDocument(root).toJson();
    const bool mayBeTooDeep = 2 * levels + JsonNodes::styleNesting > JsonNodes::readableNesting;
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
}

FishInfo::~FishInfo()
{
    if (m_owner)
        m_owner->forget(this);
}

void FishInfo::setCurrentFile(const QString &path)
{
    m_curFile = QFileInfo(path).canonicalFilePath();
    m_isUntitled = false;
    m_modified = false;
    m_autoSaveFile = m_curFile;
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
    m_modified = false;
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
        m_saveError = replaceFile(fileName, text);
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
        QMessageBox::warning(nullptr, tr("FishInfo"), question,
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
    const bool saved = saveFile(target);
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
