// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/documentsaver.h>

#include <app/common/busycursor.h>
#include <app/common/plainbox.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>
#include <app/documents/fileconflict.h>
#include <app/files/documentloader.h>
#include <app/files/recentfiles.h>
#include <app/recovery/recoverycopy.h>

#include <fishbone/model/fishinfo.h>

#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>

DocumentSaver::DocumentSaver(RecentFiles *recent, QWidget *window)
    : QObject(window)
    , m_recent(recent)
    , m_window(window)
{
}

QString DocumentSaver::documentFilter()
{
    return tr("Fishbone diagrams (*.json);;All files (*)");
}

bool DocumentSaver::save(DocumentTab *tab)
{
    if (!tab->document())
        return false;
    if (tab->path().isEmpty())
        return saveAs(tab);
    return mayOverwrite(tab) && writeTo(tab, tab->path());
}

/** Whether the document's file may be replaced, even if it holds what somebody else has written. */
bool DocumentSaver::mayOverwrite(DocumentTab *tab)
{
    if (!tab->conflict()->isOpen())
        return true;
    const QPointer<DocumentTab> alive(tab); // the question runs an event loop
    const QString question =
        tr("Another program has changed %1 since it was opened or saved here. Replace it, so that "
           "those changes are lost?");
    return PlainBox::warning(m_window, tr("Save"), question.arg(tab->name()),
                             QMessageBox::Save | QMessageBox::Cancel,
                             QMessageBox::Cancel) == QMessageBox::Save &&
           alive;
}

/** A file that the user chooses for the document and that is read as a diagram again; empty when
 * there is none. */
QString DocumentSaver::chosenFile(DocumentTab *tab, const QString &title) const
{
    const QString suffix = QStringLiteral(".json");
    const bool isComplete = tab->name().endsWith(suffix) || !tab->path().isEmpty();
    const QString proposed = tab->session()->folder() + QLatin1Char('/') + tab->name() +
                             (isComplete ? QString() : suffix);
    const QString path = QFileDialog::getSaveFileName(m_window, title, proposed, documentFilter());
    if (path.isEmpty() || !DocumentLoader::foreignFormat(path))
        return path;
    PlainBox::warning(m_window, tr("Save"),
                      tr("%1 would not be recognized as a diagram. Its name should end in "
                         ".json; \"Export as\" writes other formats.")
                          .arg(path));
    return QString();
}

bool DocumentSaver::saveAs(DocumentTab *tab)
{
    const QPointer<DocumentTab> alive(tab); // the dialog runs an event loop
    const QString path = tab->document() ? chosenFile(tab, tr("Save as")) : QString();
    return alive && !path.isEmpty() && writeTo(tab, path);
}

bool DocumentSaver::saveCopy(DocumentTab *tab)
{
    const QPointer<DocumentTab> alive(tab); // the dialog runs an event loop
    const QString path = tab->document() ? chosenFile(tab, tr("Save a copy")) : QString();
    if (!alive || path.isEmpty() || !write(tab, path))
        return false;
    m_recent->add(path);
    Q_EMIT message(tr("Copy written to %1").arg(path));
    return true;
}

/** Writes @p document to the file @p path; true when it did. */
bool DocumentSaver::saved(FishInfo &document, const QString &path)
{
    const BusyCursor busy(document.treeItem());
    return document.saveFile(path);
}

/** Writes the document, with what is typed into its fields, and nothing else. */
bool DocumentSaver::write(DocumentTab *tab, const QString &path)
{
    tab->takeTyped();
    if (saved(*tab->document(), path))
        return true;
    PlainBox::warning(m_window, tr("Save"),
                      tr("%1 cannot be written: %2.").arg(path, tab->document()->saveError()));
    return false;
}

bool DocumentSaver::writeTo(DocumentTab *tab, const QString &path)
{
    if (!write(tab, path))
        return false;
    tab->document()->setCurrentFile(path);
    tab->session()->markSaved();
    tab->recovery()->discard();
    tab->conflict()->settle();
    m_recent->add(path);
    tab->session()->touch();
    Q_EMIT message(tr("%1 saved").arg(tab->name()));
    return true;
}

bool DocumentSaver::mayClose(DocumentTab *tab)
{
    const QPointer<DocumentTab> alive(tab); // the question runs an event loop
    const auto save = [this, alive] { return alive && this->save(alive); };
    return !tab->document() || tab->document()->maybeSave(save);
}
