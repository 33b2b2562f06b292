// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/documentcloser.h>

#include <app/documents/closequestion.h>
#include <app/documents/documentsaver.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/recovery/recoverycopy.h>

#include <fishbone/model/fishinfo.h>

#include <QWidget>

#include <algorithm>
#include <iterator>

namespace {

/** Whether there is anything to save in @p tab, with what is typed into its fields. */
bool hasChanges(DocumentTab &tab)
{
    tab.takeTyped();
    return tab.document() && tab.document()->modified();
}

} // namespace

DocumentCloser::DocumentCloser(DocumentTabs *tabs, DocumentSaver *saver, QWidget *window)
    : QObject(window)
    , m_tabs(tabs)
    , m_saver(saver)
    , m_window(window)
{
}

void DocumentCloser::saveAll()
{
    const QList<QPointer<DocumentTab>> tabs = openAmong(m_tabs->tabs());
    for (const QPointer<DocumentTab> &tab : tabs) {
        if (tab && hasChanges(*tab) && !m_saver->save(tab))
            return;
    }
}

void DocumentCloser::close(const QList<DocumentTab *> &tabs)
{
    const QList<QPointer<DocumentTab>> open = openAmong(tabs);
    const bool areMany = changedAmong(open).size() > 1;
    if (areMany && !mayCloseMany(open))
        return;
    for (const QPointer<DocumentTab> &tab : open) {
        if (tab && !areMany && !mayClose(tab))
            return;
        if (!tab)
            continue;
        tab->recovery()->discard();
        m_tabs->remove(tab);
    }
}

/** Those of @p tabs that are open, guarded: each question runs an event loop. */
QList<QPointer<DocumentTab>> DocumentCloser::openAmong(const QList<DocumentTab *> &tabs) const
{
    QList<QPointer<DocumentTab>> found;
    const QList<DocumentTab *> open = m_tabs->tabs();
    for (DocumentTab *tab : tabs) {
        if (open.contains(tab))
            found.append(tab);
    }
    return found;
}

bool DocumentCloser::mayClose(DocumentTab *tab)
{
    if (hasChanges(*tab))
        m_tabs->setCurrent(tab); // so that the user sees what the question is about
    return m_saver->mayClose(tab);
}

bool DocumentCloser::mayCloseAll()
{
    const QList<QPointer<DocumentTab>> tabs = openAmong(m_tabs->tabs());
    if (changedAmong(tabs).size() > 1)
        return mayCloseMany(tabs);
    for (const QPointer<DocumentTab> &tab : tabs) {
        if (tab && !mayClose(tab))
            return false;
    }
    return true;
}

/** Those of @p tabs that have something to save, with what is typed into their fields. */
QList<QPointer<DocumentTab>>
DocumentCloser::changedAmong(const QList<QPointer<DocumentTab>> &tabs) const
{
    QList<QPointer<DocumentTab>> changed;
    std::copy_if(tabs.cbegin(), tabs.cend(), std::back_inserter(changed),
                 [](const QPointer<DocumentTab> &tab) { return tab && hasChanges(*tab); });
    return changed;
}

/** Asks one question for all changed ones of @p tabs; false when the user wants to go on working.
 */
bool DocumentCloser::mayCloseMany(const QList<QPointer<DocumentTab>> &tabs)
{
    CloseQuestion question(changedAmong(tabs), m_window);
    if (question.exec() != QDialog::Accepted)
        return false;
    const QList<QPointer<DocumentTab>> wanted = question.toSave();
    return std::all_of(wanted.cbegin(), wanted.cend(), [this](const QPointer<DocumentTab> &tab) {
        return !tab || m_saver->save(tab);
    });
}
