// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QObject>

#include <fishbone/editor/rememberedroot.h>

class EditorCall;
class EditorCalls;
class FishInfo;
class ShownDrawing;
class ShownSubject;
class SpearItem;
class QAbstractItemModel;
class QModelIndex;

/**
 * The root that an editor shows: draws the diagram below it, and follows it through all that
 * happens to its model. Of several editors that are given one document the latest shows it.
 */
class ShownRoot : public QObject
{
    Q_OBJECT

public:
    /** Shows nothing yet; the others must live as long. */
    ShownRoot(ShownSubject &shown, ShownDrawing &drawing, EditorCalls &calls);
    ~ShownRoot() override;

    /** Sets the model, which may be null, and follows it; one set earlier is ignored from now on.
     */
    void setModel(QAbstractItemModel *model);
    /** Shows the diagram below @p index, main bones contracted; nothing for an invalid index. */
    void show(const QModelIndex &index);
    /** Makes the head and the main bones of @p index, and neither clears nor lays out. */
    void load(const QModelIndex &index);
    /** Brings the drawing up to date, or makes it anew with @p rebuild. */
    void update(bool rebuild);
    /** Brings every spear in line with its subject; nothing when the shown subject has gone. */
    void refresh();
    /** Expands or contracts every spear but the head, then lays out. */
    void expandBones(bool expand);

    /** The spear of the subject at @p index in this drawing; null for none. */
    SpearItem *spearOf(const QModelIndex &index) const;
    /** Marks the document of @p index, or the shown one for an invalid index, and lays out when
     * titles may have changed: what @p teller, null for nobody, tells of its data. */
    void followData(const QObject *teller, const QModelIndex &index);

private:
    void showNothing();
    void unlinkSubjects() const;
    void takeOverFromOthers();
    void yield();
    bool isShownByAnother(const FishInfo *document) const;
    void remember();
    QModelIndex rememberedRoot() const;
    void updateHeadText();
    void forgetRemovedRoot(const QModelIndex &parent, int first, int last);
    void forgetLostRoot();
    void showReturnedRoot(const QModelIndex &parent);
    void followReset();
    void followHead();
    void followToAnotherDocument();
    void followMove();
    void forgetDestroyedModel();

    ShownSubject &m_shown;
    ShownDrawing &m_drawing;
    EditorCalls &m_calls;
    RememberedRoot m_last;
    bool m_isRemoved = false; ///< the shown root left the model; it may come back
    /** From the announcement that the shown root goes to its end. */
    std::unique_ptr<EditorCall> m_removal;
};
