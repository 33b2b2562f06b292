// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/windowcommands.h>

#include <app/common/canvastheme.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/documents/filecommands.h>
#include <app/documents/recoverycommands.h>
#include <app/documents/reportcommands.h>
#include <app/documents/tabcommands.h>
#include <app/documents/templatecommands.h>
#include <app/editing/editcommands.h>
#include <app/editing/markcommands.h>
#include <app/editing/movecommands.h>
#include <app/editing/walkcommands.h>
#include <app/export/exportcommands.h>
#include <app/files/recentfiles.h>
#include <app/window/helpcommands.h>
#include <app/window/lookcommands.h>
#include <app/window/viewcommands.h>
#include <app/window/zoomcontrols.h>

#include <QMainWindow>

WindowCommands::WindowCommands(DocumentTabs *tabs, RecentFiles *recent, ActionSet *actions,
                               CanvasTheme *theme, ZoomControls *zoom, QMainWindow *window)
    : QObject(window)
    , m_files(new FileCommands(tabs, recent, actions, window))
    , m_recovery(new RecoveryCommands(tabs, actions, window))
    , m_reports(new ReportCommands(tabs, actions, window))
    , m_templates(new TemplateCommands(tabs, actions, window))
    , m_tabCommands(new TabCommands(tabs, actions, window))
    , m_exports(new ExportCommands(tabs->current()->session(), theme, actions, window))
    , m_edits(new EditCommands(tabs->current()->session(), actions, window))
    , m_views(new ViewCommands(tabs->current()->session(), theme, zoom, actions, window))
    , m_looks(new LookCommands(tabs->current()->session(), actions, window))
    , m_marks(new MarkCommands(tabs->current()->session(), actions, window))
{
    m_looks->setLook(tabs->current()->look());
    m_onDiagram = {m_exports,
                   m_edits,
                   m_marks,
                   m_views,
                   m_looks,
                   new MoveCommands(tabs->current()->session(), actions, window),
                   new WalkCommands(tabs->current()->session(), actions, window)};
    new HelpCommands(actions, window); // which owns it
    connect(theme, &CanvasTheme::message, this, &WindowCommands::message);
    connectMessages();
}

WindowCommands::~WindowCommands()
{
    qDeleteAll(m_onDiagram);
    delete m_files;
    delete m_recovery;
    delete m_reports;
    delete m_templates;
}

void WindowCommands::connectMessages()
{
    connect(m_files, &FileCommands::message, this, &WindowCommands::message);
    connect(m_recovery, &RecoveryCommands::message, this, &WindowCommands::message);
    connect(m_reports, &ReportCommands::message, this, &WindowCommands::message);
    connect(m_templates, &TemplateCommands::message, this, &WindowCommands::message);
    connect(m_exports, &ExportCommands::message, this, &WindowCommands::message);
    connect(m_edits, &EditCommands::message, this, &WindowCommands::message);
    connect(m_marks, &MarkCommands::message, this, &WindowCommands::message);
    connect(m_looks, &LookCommands::message, this, &WindowCommands::message);
}

void WindowCommands::setTab(DocumentTab *tab)
{
    m_looks->setLook(tab->look());
    for (DiagramCommands *commands : qAsConst(m_onDiagram))
        commands->setSession(tab->session());
}

void WindowCommands::updateActions()
{
    m_files->updateActions();
    m_reports->updateActions();
    m_templates->updateActions();
    m_tabCommands->updateActions();
    for (DiagramCommands *commands : qAsConst(m_onDiagram))
        commands->updateActions();
}
