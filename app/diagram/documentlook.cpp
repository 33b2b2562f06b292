// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/documentlook.h>

#include <app/common/busycursor.h>
#include <app/common/canvastheme.h>
#include <app/diagram/diagramsession.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/editattributes.h>

DocumentLook::DocumentLook(DiagramSession *session, CanvasTheme *theme, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_theme(theme)
    , m_usual(DiagramView::usual())
    , m_view(m_usual)
{
    show();
    connect(theme, &CanvasTheme::shown, this, &DocumentLook::show);
    connect(session, &DiagramSession::drawingRebuilt, this, &DocumentLook::follow);
    connect(session->model(), &FishModel::modelReset, this, &DocumentLook::follow);
    connect(session->model(), &FishModel::dataChanged, this, [this](const QModelIndex &index) {
        if (!index.parent().isValid()) // the head, with which the view is kept
            follow();
    });
}

void DocumentLook::choose(const DiagramView &view, const UndoCommand::Name &name)
{
    const FishInfo *const document = m_session->document();
    if (!document || view == m_view)
        return;
    view.becomeUsual();
    QJsonObject fields = document->view();
    view.store(fields);
    auto command = std::make_unique<EditAttributes>(m_session->model());
    if (!command->addView(*document, fields))
        return;
    command->setText(name);
    m_session->editor()->run(std::move(command));
    m_session->touch();
}

void DocumentLook::follow()
{
    FishInfo *const document = m_session->document();
    if (document != m_document) {
        m_document = document;
        m_usual = DiagramView::usual();
    }
    const DiagramView view = document ? DiagramView::of(document->view(), m_usual) : m_usual;
    if (view == m_view)
        return;
    m_view = view;
    show();
}

/** Makes the editor show the view, and the canvas fit it. */
void DocumentLook::show()
{
    const BusyCursor busy(m_session->container());
    FishEditor *const editor = m_session->editor();
    const bool isClear = m_view.look == DiagramLook::Clear;
    DiagramLook::Options options = m_view.options;
    if (m_theme->isDark())
        options.palette = DiagramLook::onDark(options.palette);
    editor->setLookOptions(options);
    if (editor->look() != m_view.look)
        editor->setLook(m_view.look);
    const bool isDark = isClear ? DiagramLook::isDark(options.palette) : m_theme->isDark();
    editor->view()->setBackgroundBrush(CanvasTheme::canvasColor(isDark));
    m_session->touch();
}
