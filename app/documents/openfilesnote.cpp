// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/openfilesnote.h>

#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/files/lastdocuments.h>

OpenFilesNote::OpenFilesNote(DocumentTabs *tabs, QObject *parent)
    : QObject(parent)
    , m_tabs(tabs)
{
}

void OpenFilesNote::begin()
{
    m_isNoting = true;
    note();
}

void OpenFilesNote::update()
{
    if (m_isNoting && state() != m_noted)
        note();
}

void OpenFilesNote::end()
{
    note();
    m_isNoting = false;
}

/** The files of the open documents. */
QStringList OpenFilesNote::paths() const
{
    QStringList paths;
    const QList<DocumentTab *> tabs = m_tabs->tabs();
    for (const DocumentTab *tab : tabs) {
        if (!tab->path().isEmpty())
            paths.append(tab->path());
    }
    return paths;
}

QStringList OpenFilesNote::state() const
{
    return paths() + QStringList(m_tabs->current()->path());
}

void OpenFilesNote::note()
{
    m_noted = state();
    LastDocuments::remember(paths(), m_tabs->current()->path());
}
