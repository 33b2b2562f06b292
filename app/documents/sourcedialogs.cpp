// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/sourcedialogs.h>

#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/files/documentloader.h>
#include <app/files/mappingdialog.h>

#include <fishbone/dialogs/urldialog.h>
#include <fishbone/exchange/diagramexchange.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>
#include <QWidget>

#include <optional>

namespace {

QString anyFilter()
{
    return SourceDialogs::tr("Fishbone diagrams (*.json);;%1;;All files (*)")
        .arg(DiagramExchange::importFilter());
}

} // namespace

SourceDialogs::SourceDialogs(DocumentLoader *loader, DocumentTabs *tabs, QWidget *window)
    : QObject(window)
    , m_loader(loader)
    , m_tabs(tabs)
    , m_window(window)
{
}

void SourceDialogs::openFiles()
{
    const QStringList paths = chosenFiles(tr("Open"), anyFilter());
    for (const QString &path : paths)
        m_loader->load(path);
}

void SourceDialogs::importFiles()
{
    const QStringList paths = chosenFiles(tr("Import"), DiagramExchange::importFilter());
    for (const QString &path : paths)
        importFile(path);
}

/** Imports the file @p path; the user looks first at what the columns of a table stand for. */
void SourceDialogs::importFile(const QString &path)
{
    const auto format = DocumentLoader::foreignFormat(path);
    const auto mapping =
        format ? DiagramExchange::tableMapping(path, *format) : std::optional<TableMapping>();
    if (!mapping) { // what is wrong is told when it is loaded
        m_loader->load(path);
        return;
    }
    MappingDialog dialog(QFileInfo(path).fileName(), *mapping, m_window);
    if (dialog.exec() == QDialog::Accepted)
        m_loader->loadTable(path, dialog.mapping());
}

/** What the user chooses among the files that @p filter lets through. */
QStringList SourceDialogs::chosenFiles(const QString &title, const QString &filter) const
{
    return QFileDialog::getOpenFileNames(m_window, title, m_tabs->current()->session()->folder(),
                                         filter);
}

void SourceDialogs::openUrl()
{
    const QUrl url = URLDialog::openUrlDialog(m_window);
    if (url.isEmpty())
        return;
    m_loader->load(url.toString());
    if (!m_loader->isIdle())
        Q_EMIT message(tr("Loading %1…").arg(url.toDisplayString()));
}
