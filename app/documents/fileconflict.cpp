// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/fileconflict.h>

#include <app/common/messagebar.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>

#include <fishbone/model/fishinfo.h>

FileConflict::FileConflict(MessageBar *bar, DocumentTab *tab)
    : QObject(tab)
    , m_bar(bar)
    , m_tab(tab)
{
    connect(&m_watch, &FileWatch::changed, this, &FileConflict::follow);
}

void FileConflict::settle()
{
    m_watch.setFile(m_tab->path());
    m_bar->dismiss();
}

bool FileConflict::isOpen() const
{
    return m_watch.look() == FileWatch::State::Changed;
}

void FileConflict::follow(FileWatch::State state)
{
    switch (state) {
    case FileWatch::State::Same:
        m_bar->dismiss();
        break;
    case FileWatch::State::Changed:
        tellOfChange();
        break;
    case FileWatch::State::Missing:
        tellOfLoss();
        break;
    }
}

void FileConflict::tellOfChange()
{
    m_bar->ask(
        [this] { return tr("Another program has changed %1.").arg(m_tab->name()); },
        {{[] { return tr("Re&load"); }, QStringLiteral("conflictReload"),
          [this] { Q_EMIT reloadRequested(); }},
         {[] { return tr("&Keep mine"); }, QStringLiteral("conflictKeep"), [this] { keep(); }},
         {[] { return tr("Save &under another name…"); }, QStringLiteral("conflictSaveAs"),
          [this] { Q_EMIT saveAsRequested(); }}});
}

void FileConflict::tellOfLoss()
{
    m_tab->session()->markApart(); // it is nowhere else now
    m_bar->ask(
        [this] {
            return tr("%1 was deleted, moved or renamed by another program.").arg(m_tab->name());
        },
        {{[] { return tr("Save agai&n"); }, QStringLiteral("conflictSave"),
          [this] { Q_EMIT saveRequested(); }},
         {[] { return tr("Save &under another name…"); }, QStringLiteral("conflictSaveAs"),
          [this] { Q_EMIT saveAsRequested(); }},
         {[] { return tr("&Hide"); }, QStringLiteral("conflictHide"),
          [this] { m_bar->dismiss(); }}});
}

/** The document counts, and differs from its file. */
void FileConflict::keep()
{
    m_watch.accept();
    m_bar->dismiss();
    m_tab->session()->markApart();
}
