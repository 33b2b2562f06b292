// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

class CanvasTheme;
class DetailsPanel;
class DiagramSession;
class DocumentLook;
class FileConflict;
class FilterBar;
class FishEditor;
class FishInfo;
class FishModel;
class HistoryPanel;
class RecoveryCopy;
class SubjectTree;
class TreeSync;

/**
 * One open document with all that shows it: a model of its own, an editor with an undo history of
 * its own, and the panels that stand beside the drawing while the tab is the current one. Without a
 * document, a tab shows nothing and allows nothing.
 */
class DocumentTab : public QWidget
{
    Q_OBJECT

public:
    explicit DocumentTab(CanvasTheme *theme, QWidget *parent = nullptr);
    /** Deletes the panels too, wherever they stand. */
    ~DocumentTab() override;

    /** Takes over @p document, which no model may list, and shows it. */
    void setDocument(FishInfo *document);
    /** The document, null when there is none. */
    FishInfo *document() const;

    FishModel *model() const { return m_model; }
    FishEditor *editor() const { return m_editor; }
    DiagramSession *session() const { return m_session; }
    DocumentLook *look() const { return m_look; }
    RecoveryCopy *recovery() const { return m_recovery; }
    FileConflict *conflict() const { return m_conflict; }
    FilterBar *filterBar() const { return m_filterBar; }
    SubjectTree *tree() const;
    DetailsPanel *details() const;
    HistoryPanel *history() const;

    /** The name of the document's file, or what a new document is called. */
    QString name() const;
    /** The path of the document's file, empty while it has none. */
    QString path() const;

    /** Takes what was typed into fields and not taken yet: a title on the drawing, the details. */
    void takeTyped();
    /** Makes the drawing look as that in @p other, as far as it has the same subjects. */
    void takeLook(const DocumentTab &other);

Q_SIGNALS:
    /** @p document came into the model beside that of this tab, and wants a tab of its own. */
    void documentCame(FishInfo *document);

private:
    void addFilter();
    void followState();
    void followHead();

    FishModel *m_model;
    FishEditor *m_editor;
    DiagramSession *m_session;
    DocumentLook *m_look = nullptr;
    RecoveryCopy *m_recovery;
    FileConflict *m_conflict = nullptr;
    FilterBar *m_filterBar = nullptr;
    QPointer<SubjectTree> m_tree;
    QPointer<TreeSync> m_sync;
    QPointer<DetailsPanel> m_details;
    QPointer<HistoryPanel> m_history;
    bool m_isNamedByHead = false; ///< while the document has no file
};
