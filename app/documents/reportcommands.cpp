// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/reportcommands.h>

#include <app/common/actionset.h>
#include <app/common/busycursor.h>
#include <app/common/plainbox.h>
#include <app/common/savedialog.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/exchange/meetingreport.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <QAction>
#include <QDir>
#include <QPointer>

ReportCommands::ReportCommands(DocumentTabs *tabs, ActionSet *actions, QWidget *window)
    : QObject(window)
    , m_tabs(tabs)
    , m_actions(actions)
    , m_window(window)
{
    actions->add(
        QStringLiteral("report"), [] { return tr("Meetin&g report…"); }, {},
        ActionSet::Scope::Window, [this] { write(); });
}

void ReportCommands::updateActions()
{
    m_actions->action(QStringLiteral("report"))->setEnabled(m_tabs->current()->document());
}

/** A file that the user chooses, beside that of the document to begin with; empty for none. */
QString ReportCommands::chosenFile() const
{
    const DocumentTab &tab = *m_tabs->current();
    QString name = tab.name();
    if (name.endsWith(QLatin1String(".json")))
        name.chop(5);
    return SaveDialog::chosenFile(
        m_window, tr("Meeting report"),
        QStringLiteral("%1/%2.html").arg(tab.session()->folder(), name),
        {tr("Page for the browser (*.html)"), QStringLiteral("PDF (*.pdf)"),
         tr("Markdown and a picture (*.md)")},
        {QStringLiteral("html"), QStringLiteral("pdf"), QStringLiteral("md")});
}

void ReportCommands::write()
{
    const QPointer<DocumentTab> tab = m_tabs->current(); // the dialog runs an event loop
    const QString path = chosenFile();
    if (path.isEmpty() || !tab || !tab->document())
        return;
    tab->takeTyped();
    QString reason;
    bool isWritten = false;
    {
        const BusyCursor busy(tab->document()->treeItem());
        MeetingReport report(tab->document()->treeItem()->childAtIndex(0));
        report.setLook(tab->editor()->lookOptions());
        isWritten = report.write(path, &reason);
    }
    if (isWritten)
        Q_EMIT message(tr("%1 written").arg(QDir::toNativeSeparators(path)));
    else
        PlainBox::warning(m_window, tr("Meeting report"),
                          tr("%1 cannot be written: %2.").arg(path, reason));
}
