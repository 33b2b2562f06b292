// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/reportcommands.h>

#include <app/common/actionset.h>
#include <app/common/busycursor.h>
#include <app/common/plainbox.h>
#include <app/common/savedialog.h>
#include <app/common/shownpath.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/export/printtarget.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/exchange/meetingreport.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <QAction>
#include <QLocale>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

ReportCommands::ReportCommands(DocumentTabs *tabs, ActionSet *actions, QWidget *window)
    : QObject(window)
    , m_tabs(tabs)
    , m_actions(actions)
    , m_window(window)
{
    actions->add(
        QStringLiteral("report"), [] { return tr("Meetin&g report…"); }, {},
        ActionSet::Scope::Window,
        [this] {
            write(tr("Meeting report"), &ReportCommands::chosenReport, &MeetingReport::write);
        });
    actions->add(
        QStringLiteral("exportActions"), [] { return tr("Ta&ble of actions…"); }, {},
        ActionSet::Scope::Window,
        [this] {
            write(tr("Actions"), &ReportCommands::chosenList, &MeetingReport::writeActions);
        });
    actions->add(
        QStringLiteral("printActions"), [] { return tr("Print act&ions…"); }, {},
        ActionSet::Scope::Window, [this] { printActions(); });
}

void ReportCommands::updateActions()
{
    for (const char *name : {"report", "exportActions", "printActions"})
        m_actions->action(QLatin1String(name))->setEnabled(m_tabs->current()->document());
}

/** What the spreadsheets of the user take for the end of a cell: where the comma is in numbers, it
 * is a semicolon. */
QChar ReportCommands::listSeparator()
{
    const QChar comma = QLatin1Char(',');
    return QString(QLocale().decimalPoint()) == comma ? QLatin1Char(';') : comma;
}

/** A file beside that of the document, whose name ends in @p ending. */
QString ReportCommands::proposed(const QString &ending) const
{
    const DocumentTab &tab = *m_tabs->current();
    QString name = tab.name();
    if (name.endsWith(QLatin1String(".json")))
        name.chop(5);
    return QStringLiteral("%1/%2%3").arg(tab.session()->folder(), name, ending);
}

/** The file that the user chooses for the report; empty for none. */
QString ReportCommands::chosenReport() const
{
    return SaveDialog::chosenFile(
        m_window, tr("Meeting report"), proposed(QStringLiteral(".html")),
        {tr("Page for the browser (*.html)"), QStringLiteral("PDF (*.pdf)"),
         tr("Markdown and a picture (*.md)")},
        {QStringLiteral("html"), QStringLiteral("pdf"), QStringLiteral("md")});
}

/** The file that the user chooses for the actions; empty for none. */
QString ReportCommands::chosenList() const
{
    return SaveDialog::chosenFile(
        m_window, tr("Actions"), proposed(QStringLiteral("-%1.csv").arg(tr("actions"))),
        {tr("Table for spreadsheets (*.csv)"), QStringLiteral("Markdown (*.md)")},
        {QStringLiteral("csv"), QStringLiteral("md")});
}

/** Asks where to, and prints the list of actions as it is shown. */
void ReportCommands::printActions()
{
    m_tabs->current()->takeTyped();
    QTextDocument page;
    page.setHtml(m_actionsPage());
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(tr("Actions"));
    QPrintDialog dialog(&printer, m_window);
    PrintTarget::propose(dialog, proposed(QStringLiteral("-%1.pdf").arg(tr("actions"))));
    if (dialog.exec() == QDialog::Accepted)
        page.print(&printer);
}

/** Asks by @p choose for a file, in a dialog called @p title, and has @p write write it. */
void ReportCommands::write(const QString &title, QString (ReportCommands::*choose)() const,
                           const Write &write)
{
    const QPointer<DocumentTab> tab = m_tabs->current(); // the dialog runs an event loop
    const QString path = (this->*choose)();
    if (path.isEmpty() || !tab || !tab->document())
        return;
    tab->takeTyped();
    QString reason;
    bool isWritten = false;
    {
        const BusyCursor busy(tab->document()->treeItem());
        MeetingReport report(tab->document()->treeItem()->childAtIndex(0));
        report.setLook(tab->editor()->lookOptions());
        report.setCellSeparator(listSeparator());
        isWritten = write(report, path, &reason);
    }
    if (isWritten)
        Q_EMIT message(tr("%1 written").arg(ShownPath::of(path)));
    else
        PlainBox::warning(m_window, title, tr("%1 cannot be written: %2.").arg(path, reason));
}
