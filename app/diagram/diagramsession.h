// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/diagramvisits.h>
#include <app/diagram/savedstate.h>
#include <app/diagram/selectedsubjects.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

#include <QModelIndexList>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>

class DrawingState;
class ModelChanges;

/**
 * A document and what is shown of it. Knows how to get from one drawing of it to another, and how
 * to edit without losing what the user had expanded, selected and scrolled to when the editor
 * rebuilds the drawing.
 */
class DiagramSession : public QObject
{
    Q_OBJECT

public:
    /** Neither is owned; @p editor shows @p model. */
    DiagramSession(FishModel *model, FishEditor *editor, QObject *parent = nullptr);

    FishModel *model() const { return m_model; }
    FishEditor *editor() const { return m_editor; }
    /** The document that is shown, or null. */
    FishInfo *document() const;
    /** What all subjects of the shown document are below, or null. */
    const TreeItem *container() const;
    /** Where the file of the shown document is, or where documents usually are. */
    QString folder() const;
    /** The head of @p document. */
    QModelIndex headOf(const FishInfo *document) const;

    /** Shows the whole diagram of @p document, or leaves what is shown of it already. */
    void showDocument(FishInfo *document);
    /** Shows the subject at @p index as a diagram of its own; its document remembers the visit. */
    void showAsDiagram(const QModelIndex &index);
    /** The subjects of the shown document that were shown as diagrams, the oldest first. */
    QModelIndexList visited() const { return m_visits->subjectsOf(document()); }
    /** Whether less than the whole diagram is shown. */
    bool canGoBack() const;
    /** Shows what was visited before, at the latest the whole diagram. */
    void goBack();
    /** Shows the whole diagram. */
    void showWhole();

    /** The selected subjects, in document order. */
    QModelIndexList selected() const { return SelectedSubjects::of(*m_editor); }
    /** Selects the subject at @p index alone and brings it into view: shows its document and
     * expands what is above it. */
    void select(const QModelIndex &index) { select(QModelIndexList{index}); }
    /** Selects the subjects at @p indexes, which are brought into view as by select(). */
    void select(const QModelIndexList &indexes);

    /** Gives the drawing the look of @p state again, as far as it is still there; all else is
     * contracted. */
    void restore(const DrawingState &state);

    /** Runs @p edit, which inserts a subject, and selects that. Its index, or an invalid one. */
    QModelIndex insert(const std::function<void()> &edit);
    /** Deletes what is selected, after copying it to the clipboard if @p cut, and selects a
     * neighbour. */
    void removeSelected(bool cut);
    /** Pastes what was copied below the selected subject. */
    void paste();
    /** Pastes @p subjects, a snapshot as EditPaste takes it, below the selected subject. One
     * subject that comes into a diagram in which nothing was done yet becomes its head. */
    void paste(const QJsonObject &subjects);
    void undo();
    void redo();
    /** Undoes or redoes until the command at @p index of the undo stack is the last one done. */
    void jumpTo(int index);

    /** Announces stateChanged() soon. */
    void touch();

    /** The document is what its file has: it is unmodified again whenever undo or redo leads back
     * here. */
    void markSaved();
    /** The document differs from its file, whatever is undone. */
    void markApart();

Q_SIGNALS:
    /** Something that is shown somewhere may have changed. Comes once for any number of changes. */
    void stateChanged();
    /** Bones were built, expanded or contracted all over the drawing. */
    void drawingRebuilt();

private:
    void showRoot(const QModelIndex &root);
    bool reveal(const QModelIndex &index);
    void preserve(const std::function<void()> &change);
    void pasteBy(const std::function<void()> &change);
    void settle();

    QPointer<FishModel> m_model;
    QPointer<FishEditor> m_editor;
    QTimer m_settle;
    ModelChanges *m_changes;
    std::unique_ptr<SavedState> m_saved;
    std::unique_ptr<DiagramVisits> m_visits;
};
