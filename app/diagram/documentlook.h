// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/diagramview.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/undo/undocommand.h>

#include <QObject>
#include <QPointer>

class CanvasTheme;
class DiagramSession;

/**
 * Shows a document as the user has chosen it, and keeps that with the document, where it is a step
 * of the undo history like any other. A document that tells no view is shown as the user has chosen
 * last, and stays so while others are changed.
 */
class DocumentLook : public QObject
{
    Q_OBJECT

public:
    /** Follows the document of @p session on the canvas of @p theme; both outlive it. */
    DocumentLook(DiagramSession *session, CanvasTheme *theme, QObject *parent = nullptr);

    /** How the document is shown. On a dark canvas the colours may be others. */
    const DiagramView &view() const { return m_view; }

    /** Shows the document as @p view has it, as a step called @p name. Nothing without one. */
    void choose(const DiagramView &view, const UndoCommand::Name &name);

private:
    void follow();
    void show();

    DiagramSession *m_session;
    CanvasTheme *m_theme;
    QPointer<FishInfo> m_document;
    DiagramView m_usual; ///< when the document came
    DiagramView m_view;
};
