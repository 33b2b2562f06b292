// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class EditorCall;
class QGraphicsScene;
class ShownSubject;

/** The calls into an editor that are under way, and the report of the selection, which waits for
 * them. */
class EditorCalls : public QObject
{
    Q_OBJECT

public:
    /** Those that concern the drawing in @p scene of @p shown, which must live as long. */
    EditorCalls(QGraphicsScene &scene, const ShownSubject &shown);
    /** Abandons them. */
    ~EditorCalls() override;

    /** All calls under way learn that there is no editor any more. */
    void abandon();
    /** Whether one of them lays out at its end, so that nobody needs to within it. */
    bool willLayOut() const;
    /** The selection of the scene has changed: tells it, or has the last call tell it at its end.
     */
    void noteSelection();

Q_SIGNALS:
    /** The selection has changed; once for a call. */
    void selectionChanged();

private:
    friend class EditorCall;

    QPointer<QGraphicsScene> m_scene;
    const ShownSubject &m_shown;
    QList<EditorCall *> m_calls; ///< the innermost one last
    bool m_hasNewSelection = false;
};
