// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/documentsaving.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/base/literaltext.h>
#include <fishbone/model/documentfile.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>

bool DocumentSaving::write(const QString &fileName, const QString &origin)
{
    if (!m_document.model()) {
        DocumentFile::makeEmpty(fileName);
        m_error = FishInfo::tr("no model shows the document");
        return false;
    }
    const QByteArray text = DocumentFile::text(*m_document.treeItem());
    if (text.isEmpty()) {
        m_error = FishInfo::tr("the diagram nests too deep to be read again");
        qDebug() << "FishInfo::saveFile:" << m_error;
    } else {
        m_error = replaceFile(fileName, text, origin);
    }
    return m_error.isEmpty();
}

bool DocumentSaving::writeAs()
{
    const QString proposed =
        SystemHelper::documentsLocation() + QLatin1Char('/') + m_document.userFriendlyCurrentFile();
    // The dialog runs an event loop, in which the document may be unloaded.
    const QPointer<FishInfo> alive(&m_document);
    const QString chosen = QFileDialog::getSaveFileName(nullptr, FishInfo::tr("Save As"), proposed);
    return alive && !chosen.isEmpty() && alive->saveFile(chosen);
}

bool DocumentSaving::ask(const std::function<bool()> &save)
{
    const QString question =
        FishInfo::tr("'%1' has been modified.\nDo you want to save your changes?")
            .arg(m_document.userFriendlyCurrentFile());
    const QPointer<FishInfo> alive(&m_document);
    const auto answer =
        QMessageBox::warning(nullptr, FishInfo::tr("FishInfo"), literalText(question),
                             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Save)
        return alive && save();
    return answer != QMessageBox::Cancel;
}

bool DocumentSaving::autosave()
{
    if (!m_document.model() || m_document.treeItem()->childItems().isEmpty())
        return false;
    const bool isNew = m_document.autoSaveFile().isEmpty();
    const QString target = isNew ? newAutoSaveFile() : m_document.autoSaveFile();
    if (target.isEmpty())
        return false;
    m_document.setAutoSaveFile(target);
    const bool saved = write(target, m_document.fileName());
    if (isNew && !saved)
        QFile::remove(target); // what reserved the name
    return saved;
}

/** A new file in the autosave folder, which is made when missing; empty without a first head. */
QString DocumentSaving::newAutoSaveFile() const
{
    const auto *const model = qobject_cast<const FishModel *>(m_document.model());
    const TreeItem *const head = model ? model->getFishHeadTreeItem() : nullptr;
    if (!head)
        return QString();
    const QString folder = SystemHelper::appliactionDirPath() + QStringLiteral("tmp/fishdiagram/");
    if (!QFileInfo::exists(folder))
        qDebug() << QDir().mkpath(folder);
    return DocumentFile::reserveName(folder, head->title());
}
