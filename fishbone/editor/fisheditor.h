// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

#include <QFrame>
#include <QGraphicsItem>
#include <QJsonObject>
#include <QPersistentModelIndex>
#include <QPointer>

#include <fishbone/drawing/diagramlook.h>
#include <fishbone/fishbone_export.h>
#include <fishbone/items/spearpointer.h>
#include <fishbone/model/treeitem.h>

class FishInfo;
class FishModel;
class FishScene;
class GraphicsView;
class QMenu;
class QMimeData;
class SpearItem;
class UndoCommand;
class UndoStack;

/** What made subjects change their parent; sent with FishEditor::changeTaskParent(). */
enum CHANGE_PARENT_TYPE : int {
    CHANGE_PARENT_BY_DROP = 0, ///< a drop of dragged rows
    CHANGE_PARENT_BY_MOVE = 1, ///< a move of spears with the mouse
};
Q_DECLARE_METATYPE(CHANGE_PARENT_TYPE)

/**
 * The widget that a host embeds: it draws one diagram of a FishModel, the subtree under the root
 * index, as a fishbone and lets the user edit it.
 *
 * The editor owns its view, scene, undo stack and autosave timer; it does not own the model, which
 * may be destroyed, reset or emptied at any time: the editor then shows nothing. Several editors
 * may stand side by side, on different models or on different documents of one model; of two that
 * are given the same document, the later one shows it and the earlier one shows nothing.
 *
 * The drawing is a tree of SpearItem that mirrors the tree of subjects. The head and the main
 * bones exist from setRootIndex() on, deeper bones are made when they are first shown. Every edit
 * ends in updateFish().
 *
 * A listener may do anything from any signal: end the editor, the model or a document, rebuild,
 * edit again. What is left of the call that sent it does nothing more to what is gone, and never
 * acts on another subject in its place. The scene's selectionChanged() and copyAvailable() come
 * once for a call, when it has done its work.
 *
 * An index of a proxy model over the editor's model stands for the one that it maps to; one of any
 * other model is as good as invalid. A change in a document that the editor does not show marks
 * that document, not the shown one.
 *
 * The editor never acts on what concerns a task outside the diagram (opening it, creating a real
 * sub-task, editing its details): it reports the gesture with a signal. No operation reports an
 * error; one whose index or selection is unusable does nothing.
 */
class FISHBONE_EXPORT FishEditor : public QFrame
{
    Q_OBJECT
    /**
     * The zoom value, for forms: 250 is 1:1, 50 more doubles the scale. Applied when it is set,
     * and told when that changes it; zoomFish() tells nobody.
     */
    Q_PROPERTY(int zoom READ zoomValue WRITE writeZoom NOTIFY zoomValueChanged)
    /** The rotation in degrees, for forms. Applied and told as the zoom is. */
    Q_PROPERTY(int rotation READ rotateValue WRITE writeRotation NOTIFY rotateValueChanged)

public:
    /**
     * An editor that shows nothing. The newest editor also serves the expand buttons of scenes
     * that no editor shows.
     */
    explicit FishEditor(QWidget *parent = nullptr);
    ~FishEditor() override;

    /**
     * @name Parts and state
     * @{
     */

    GraphicsView *view() const;        ///< a child widget, owned by the editor; never null
    FishScene *scene() const;          ///< owned by the editor
    UndoStack *undoStack() const;      ///< owned by the editor
    QAbstractItemModel *model() const; ///< not owned; null until setModel()
    /**
     * Sets the model, which is not owned, and connects it; null for none. The drawing and the root
     * index stay as they are until another root is set; what a model set before tells of its data
     * is ignored.
     */
    void setModel(QAbstractItemModel *model);
    /** The model's FishModel::modelType(), 0 without a model. */
    int modelType() const;
    /** The shown subject; invalid when nothing was ever shown or the subject is gone. */
    QModelIndex rootIndex() const;
    /** The spear of the shown subject; null when nothing is shown. */
    SpearItem *headSpear() const;
    /** The index of the subject that @p spear shows; invalid for null. */
    QModelIndex spearIndex(SpearItem *spear) const;
    /** The document that holds the shown subject, or null. */
    FishInfo *currentFishInfo() const;
    /** Whether the shown document has unsaved changes; false without a document. */
    bool isModified() const;
    /** Marks the shown document; nothing without one. */
    void setModified(bool modified);
    /**
     * Starts, or starts again, the timer that calls saveTmpFile() every 30 seconds. Called on
     * construction.
     */
    void startSaveTmpFileTimer();
    /** The milliseconds between two calls of saveTmpFile(), 0 for none. Starts the timer anew. */
    void setAutosaveInterval(int ms);
    /** The milliseconds between two calls of saveTmpFile(), 0 for none. */
    int autosaveInterval() const;
    /** @} */

    /**
     * @name Building and laying out the drawing
     * @{
     */

    /** The direction of a spear in @p row below @p parent, standing on @p level (1: main bones). */
    static int directionFor(const SpearItem *parent, int level, int row);
    /**
     * Makes the head and the main bones of @p index and adds them to the scene. Neither clears nor
     * lays out; setRootIndex() does both. Linear in the number of main bones.
     */
    void loadFish(const QModelIndex &index);
    /**
     * Makes the missing spears of the children of @p index. @p model is only compared: any other
     * than the one that @p index is of makes none. Linear in the number of children.
     */
    void generateSpear(QAbstractItemModel *model, const QModelIndex &index);
    /**
     * Makes the missing spears of all descendants of @p index. @p model is only compared: any other
     * than the one that @p index is of makes none. Linear in the number of descendants.
     */
    void generateAllSubSpear(QAbstractItemModel *model, const QModelIndex &index);
    /**
     * Makes new spears for @p index and all its descendants, in @p row on @p level below @p
     * parent, which owns them then. Linear in their number.
     */
    void generateSpear(const QModelIndex &index, int level, int row, SpearItem *parent);
    /**
     * Lays the drawing out again; with @p rebuild makes it anew, with all main bones contracted.
     * Linear in the number of spears.
     */
    void updateFish(bool rebuild);
    /** The second pass of a relayout: every visible spear adds its size to its parent. Linear. */
    void updateSpearSize();
    /** The third pass of a relayout: places all spears from the head down. Linear. */
    void updateSpearPostion();
    /** Expands or contracts every spear but the head, then lays out. Makes no spears. Linear. */
    void expandorContractAll(bool expand);
    /** @} */

    /**
     * @name Look
     * @{
     */

    /**
     * Draws in another look from now on; the classic one until this is called. What is selected,
     * expanded and in view stays so. Lays out, as updateFish() does.
     */
    void setLook(DiagramLook::Kind look);
    /** The look that is shown. */
    DiagramLook::Kind look() const;
    /** Chooses what can be chosen of the looks. Lays out when they are others than before. */
    void setLookOptions(const DiagramLook::Options &options);
    /** The options of the looks, as setLookOptions() was given them last. */
    const DiagramLook::Options &lookOptions() const;
    /** @} */

    /**
     * @name Selection
     * @{
     */

    /**
     * The scene's selected items: spears in document order (parents before children, siblings by
     * row), then whatever else is selected. The scene owns them. Linear
     * in the number of spears when several are.
     */
    QList<QGraphicsItem *> selectedItems() const;
    /** Whether anything is selected. Linear in the number of selected items. */
    bool hasSelection() const;
    /** The first selected spear, also when its text box is what is selected; null for none. */
    SpearItem *firstSelectedSpear() const;
    /** The index of firstSelectedSpear(); invalid for none. */
    QModelIndex firstSelectedSpearIndex() const;
    /**
     * Selects @p spears, none of them null, as far as they are in this drawing, and nothing else;
     * copyAvailable() comes once, if at all.
     */
    void selectSpears(const QList<SpearItem *> &spears);
    /** Removes the items without a parent item (the head) and null pointers from @p items. Linear.
     */
    static void excludeCenterSubject(QList<QGraphicsItem *> &items);
    /**
     * Removes the items that have an ancestor in @p items; the others, null pointers among them,
     * keep their order. Takes a step for each level above each item.
     */
    static void excludeChildSubject(QList<QGraphicsItem *> &items);
    /** @} */

    /**
     * @name Editing
     * Every change is a command on the undo stack, which runs it at once, unless said otherwise.
     * @{
     */

    /** Whether undo() has a command to take back. */
    bool canUndo() const;
    /** Whether redo() has a command to repeat. */
    bool canRedo() const;
    /**
     * Runs @p command as the slots run theirs: pushes it on the stack, which takes it over, lays
     * out and marks the documents that it has changed. False when it changed nothing, also when a
     * listener has ended the editor meanwhile; null does nothing.
     */
    bool run(std::unique_ptr<UndoCommand> command);
    /** Deletes the subject @p index with all below it. */
    void deleteItem(const QModelIndex &index);
    /** Deletes the subjects of @p objects, as saveObjects() makes it. */
    void deleteItems(const QJsonObject &objects);
    /** Pastes the copy buffer below @p index and rebuilds the drawing. */
    void pasteItem(const QModelIndex &index);
    /** Gives the subject @p index the title @p name. */
    void renameItem(const QModelIndex &index, const QString &name);
    /** Lets the user edit the selected subject's own style. Not undoable, marks nothing. */
    void setSpearStyle();
    /** Removes the selected subject's own style. Not undoable, marks nothing. */
    void delSpearStyle();
    /** The link text of the selected subject: the display text of column 2 in its row. */
    QString currItemUrl() const;
    /** @} */

    /**
     * @name Copy buffer
     * The buffer is the editor's own; it survives pastes and a change of the diagram.
     * @{
     */

    /** Whether the copy buffer holds anything. */
    bool hasClipBoardData() const;
    /** Copies the selected subjects into the buffer and emits clipBoardAvailable(). */
    void copyItemToClipBoard();
    /** saveObjects() of the selected items. */
    void selectedObjects(QJsonObject &objects) const;
    /**
     * Writes the subjects of @p items with all below them to @p objects: one as its node object,
     * several as an array "children" in the order of @p items, none as the empty object. The head
     * and items below other listed items are left out. Subjects without a uuid, and their parents,
     * are given one. Linear in the number of subjects that are written.
     */
    void saveObjects(QJsonObject &objects, const QList<QGraphicsItem *> &items) const;
    /**
     * With @p pasteAsNew, pasted subjects whose uuids the model holds already get fresh ones. Off
     * unless set: a subject pasted twice exists twice with one uuid.
     */
    void setPasteAsNew(bool pasteAsNew);
    /**
     * The subject that a drag of @p mimeData carries: the last one, when it lives in the model,
     * which owns it; else null.
     */
    TreeItem *treeItemFromMimeData(const QMimeData *mimeData) const;
    /** A placeholder that does nothing. */
    void insertItem(const QModelIndex &index, QAbstractItemModel *model, const QModelIndex &parent);
    /** A placeholder; false. */
    bool pasteItemFromClipBoard();
    /** @} */

    /**
     * @name Viewport
     * @{
     */

    int zoomValue() const;   ///< 250 is 1:1, 50 more doubles the scale
    int rotateValue() const; ///< degrees
    /**
     * Fits @p rect (scene units) into the view with margins of 50 pixels, without rotation. Does
     * nothing for an empty rectangle or a viewport of 100 pixels or less. Emits
     * zoomValueChanged() and rotateValueChanged().
     */
    void equalRatio(const QRectF &rect);
    /** Centres the spear of @p index; nothing when it has none. */
    void centerView(const QModelIndex &index);
    /** Scrolls the spear of @p index into view; nothing when it has none. */
    void ensureVisible(const QModelIndex &index);
    /**
     * The topmost bone at @p pos (viewport coordinates), of which its text box is a part; null
     * where there is none.
     */
    SpearItem *boneAt(const QPoint &pos) const;
    /** @} */

Q_SIGNALS:
    /** The selection changed; the argument says whether anything is selected. */
    void copyAvailable(bool);
    /** The user contracted the subject @p index. */
    void onCollaps(const QModelIndex &index);
    /** The user expanded the subject @p index. */
    void onExpand(const QModelIndex &index);
    /** Everything was contracted. */
    void onCollapsAll();
    /** Everything was expanded. */
    void onExpandAll();
    /** Subjects were copied or cut; the argument says whether the copy buffer holds anything. */
    void clipBoardAvailable(bool);
    /** Declared for the host; the editor never emits it. */
    void contentsChanged();
    /** Open the task @p taskId. From the menu of a bone, in a model of type FISH_MODEL_NORMAL. */
    void oneTaskClicked(const QString &title, const QString &taskId);
    /** Create a sub-task of the task @p taskId. Comes as oneTaskClicked() does. */
    void createNewSubTask(const QString &title, const QString &taskId, const QString &showid);
    /**
     * The subjects with the uuids @p childIds were given a new parent, whose uuid is the second
     * argument. In a model of type FISH_MODEL_NORMAL.
     */
    void changeTaskParent(QStringList childIds, QString, CHANGE_PARENT_TYPE type);
    /** Show @p index as a diagram of its own. Comes as oneTaskClicked() does. */
    void changeFishWithModelIndex(const QModelIndex &index);
    /** Edit the details of @p index: of a bone that was clicked twice, and from its menu in a model
     * of another type than FISH_MODEL_NORMAL. */
    void editTaskDetail(const QModelIndex &index);
    /** Create a child of @p parentIndex. From the menu of a bone, in a model of another type than
     * FISH_MODEL_NORMAL. */
    void insertChildTask(const QModelIndex &parentIndex);
    /** The zoom value to set is @p value; hosts hand it to zoomFish(), which applies it. */
    void zoomValueChanged(int value);
    /** The rotation was set to @p value degrees. */
    void rotateValueChanged(int value);

public Q_SLOTS:
    /** Prints the visible viewport on one page, after the print dialog. */
    void print();
    /** 1:1, with the scene's origin in view; keeps the rotation. Emits zoomValueChanged(). */
    void fullSize();
    /** Adds @p level to the zoom value and emits zoomValueChanged(); the view stays as it is. */
    void zoomIn(int level);
    /** Takes @p level off the zoom value and emits zoomValueChanged(); the view stays as it is. */
    void zoomOut(int level);
    /** Stores the zoom value; the view stays as it is. */
    void setZoomValue(int value);
    /** Stores the rotation; the view stays as it is. */
    void setRotateValue(int value);
    /** Stores the zoom value and applies it. Emits nothing. */
    void zoomFish(int value);
    /** Stores the rotation (degrees) and applies it. Emits nothing. */
    void rotateFish(int value);
    /** Applies rotation 0. */
    void rotateReset();
    /** Fits everything below the head. */
    void showEntire();
    /** Fits the selected items' rectangles, each in its own coordinates. */
    void showSelected();
    /** Contracts every spear but the head. Linear in the number of spears. */
    void contractAll();
    /** Makes all missing spears and expands every one. Linear in the number of subjects. */
    void expandAll();
    /**
     * Undoes the last command, rebuilds the drawing and marks what has changed. When the stack is
     * called directly the drawing is laid out and the same is marked.
     */
    void undo();
    /** Redoes the next command, as undo() does. */
    void redo();
    /**
     * Copies the selected subjects, then deletes them. Emits clipBoardAvailable(). Linear in the
     * number of subjects.
     */
    void cut();
    /** Copies the selected subjects. Emits clipBoardAvailable(). */
    void copy();
    /** Pastes the copy buffer below the selected subject. */
    void paste();
    /** Deletes the selected subjects. */
    void del();
    /** Selects everything that is visible and can be selected. */
    void selectAll();
    /** Inserts a subject before the selected one. */
    void insertSubject();
    /** Inserts a subject after the selected one. */
    void appendSubject();
    /** Appends a subject below the selected one. */
    void insertChildSubject();
    /** Inserts a subject between the selected one and its parent. */
    void insertParentSubject();
    /** Appends a document with a free subject to the model. Not undoable. */
    void insertFreeSubject();
    /** Appends @p item below the given index. While undone, the item belongs to the history. */
    void insertChildSubject(const QModelIndex &, TreeItem *item);
    /**
     * Copies the attributes of @p item, which stays the caller's, to the subject of the given
     * index. Not undoable.
     */
    void editSubject(const QModelIndex &, TreeItem *item);
    /** Deletes the subject of the given index, as deleteItem() does. */
    void deleteSubject(const QModelIndex &);
    /** Asks for a URL and links the selected subject to it. */
    void modifyLink();
    /** Removes the link of the selected subject. */
    void modifyDelLink();
    /** Opens currItemUrl(). */
    void modifyOpenLink();
    /** Expands the selected spear and emits onExpand(). */
    void modifyExpand();
    /** Contracts the selected spear and emits onCollaps(). */
    void modifyContract();
    /** Expands every spear there is and emits onExpandAll(). Makes no spears. */
    void modifyExpandAll();
    /** Contracts every spear and emits onCollapsAll(). */
    void modifyContractAll();
    /**
     * Shows the diagram under the given index, all main bones contracted. An invalid index shows
     * nothing and keeps the root index, so that updateFish(true) brings the old diagram back.
     */
    void setRootIndex(const QModelIndex &);
    /**
     * Applies zoom value and rotation to the view; a zoom value whose scale no matrix can hold
     * leaves the view as it is.
     */
    void setupMatrix();
    /** Emits copyAvailable(). Connected to the scene. */
    void sceneSelectionChanged();
    /**
     * Lays out when a title may have changed and marks the document of @p topLeft, or the shown
     * one for an invalid index. Connected to the model.
     */
    void modelDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    /** The first pass of a relayout: brings every spear in line with its subject and resets it. */
    void refreshFish();
    /**
     * Shows the context menu of @p data, a SpearItem that is not owned, and does what is chosen,
     * which for what only the host can do is to emit createNewSubTask(), oneTaskClicked(),
     * changeFishWithModelIndex(), editTaskDetail() or insertChildTask(). Nothing for null.
     * Connected to the view.
     */
    void onRightClicked(void *data);
    /**
     * Carries out, or refuses, a move of spears with the mouse: the arguments are those of
     * GraphicsView::moveSpear(), to which this is connected, the first one in viewport coordinates.
     * Emits changeTaskParent() unless it refuses, in a model of type FISH_MODEL_NORMAL. Linear in
     * the number of spears and of the subjects that move.
     */
    void moveItems(const QPoint &, const QList<QGraphicsItem *> &srcs, const QModelIndex &, int);
    /**
     * Carries out a drop of dragged rows on @p indexTo, at the row given last; not undoable. A
     * subject that may not be moved stays. Emits changeTaskParent() for one that was, in a
     * model of type FISH_MODEL_NORMAL. @p mimeData is not owned. Linear in the number of subjects
     * of the model. Connected to GraphicsView::dropTo(), queued.
     */
    void onDropTo(const QMimeData *mimeData, const QModelIndex &indexTo, int);
    /** Autosaves the shown document; nothing without one. */
    void saveTmpFile();

public:
    /**
     * Fills @p menu with the entries for @p spear in the model's mode, and what a host adds. The
     * spear is not owned; what the host's filler makes of null is its affair.
     */
    void createPopMenu(QMenu &menu, SpearItem *spear);
    /**
     * Has @p filler add a host's own entries to the context menu of a bone, or take some off; they
     * do what the host connects them to. Called each time the menu is filled; for the head of a
     * task diagram, which has no entries of its own, with an empty one. A menu left empty is not
     * shown.
     */
    void setBoneMenuFiller(const std::function<void(QMenu &menu, SpearItem *spear)> &filler);
    /** Emits editTaskDetail() for a left double click on the selected spear. For the view. */
    void doubleClicked(QMouseEvent *event);

private:
    friend class GraphicsView; // asks showsOwnItemsOnly()
    struct Private;

    void writeZoom(int value);
    void writeRotation(int value);
    /** Whether the scene holds what was laid out last and nothing else, as far as that is known. */
    bool showsOwnItemsOnly() const;

    const std::unique_ptr<Private> m_d;
};
