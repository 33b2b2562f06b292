// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/items/spearpointer.h>

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QHash>
#include <QObject>
#include <QTimer>

class AccessibleBone;
class FishEditor;
class GraphicsView;

/**
 * The editor's view as assistive technology sees it: a tree whose only top-level entry is the head,
 * and in which contracted bones have no entries below them.
 *
 * Made by the toolkit when somebody asks for the view, and gone with the view. It makes an entry
 * for a bone when that is asked for, and takes the entries of dead bones away once the drawing has
 * come to rest. From the first question on it reports selection, expansion and changes of the
 * drawing; nothing is done for programs that nobody asks.
 */
class AccessibleDiagram : public QAccessibleWidget
{
    Q_DECLARE_TR_FUNCTIONS(AccessibleDiagram)
    Q_DISABLE_COPY(AccessibleDiagram)

public:
    using Reporter = void (*)(QAccessibleEvent &event);

    /** The one of @p view. Null once the view is gone. */
    static AccessibleDiagram *of(GraphicsView *view);

    /**
     * Tells @p reporter of all events in place of the toolkit, which drops them where no assistive
     * technology is; null makes that right again.
     */
    static void setReporter(Reporter reporter);

    explicit AccessibleDiagram(GraphicsView *view);

    /** Has it look, when control is back in the event loop, whether the drawing is another one. */
    void followSoon() { m_drawing.start(0); }

    /** The entry of @p spear, which is made when there is none; null for null. */
    AccessibleBone *bone(SpearItem *spear);
    /** The editor that shows the diagram; null when there is none. */
    FishEditor *editor() const;
    /** The bone that is drawn at a point of the screen, or null. */
    SpearItem *spearAt(int x, int y) const;
    /** The number of entries that have been made and not been taken away. */
    int boneCount() const { return m_bones.size(); }

    bool isValid() const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

protected:
    ~AccessibleDiagram() override;

private:
    GraphicsView *view() const;
    SpearItem *head() const;
    void listen();
    void reportSelection();
    void followDrawing();
    quint64 drawnState() const;
    void sweep();

    QHash<const SpearItem *, QAccessible::Id> m_bones; ///< the keys are only compared
    quint64 m_drawn = 0;                               ///< drawnState() when it was told last
    QObject m_listener;                                ///< ends the connections with this object
    QTimer m_selection; ///< runs out when a changed selection has come to rest
    QTimer m_drawing;   ///< runs out when a changed drawing has come to rest
};
