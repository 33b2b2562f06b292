// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPersistentModelIndex>
#include <QPlainTextEdit>
#include <QPointer>

#include <fishbone/undo/commandgroup.h>

class FishEditor;

/**
 * A field over a bone's text in which its title is changed. Shift and Return break the line.
 * Return, Tab, or leaving the field, takes the new title, Esc keeps the old one, or abandons a
 * subject that is new; the field then
 * deletes itself and the drawing gets the focus.
 */
class TitleEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    /** Opens the field over the bone of the subject at @p index; does nothing when it has none. It
     * begins with the title, all selected, or with @p typed unless that is empty. The title becomes
     * a part of @p step, which has inserted the subject, as long as that is the latest one. Returns
     * the field, null for none. */
    static TitleEditor *open(FishEditor *editor, const QModelIndex &index, const QString &typed,
                             CommandGroup *step = nullptr);
    /** Takes the new title of the field that is open in @p editor, if there is one. */
    static void finishIn(const FishEditor &editor);

    /** The title as it is now, with its line breaks. */
    QString text() const;

Q_SIGNALS:
    /** The user wants no title for the subject that was inserted just now, and so no subject. */
    void abandoned();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    TitleEditor(FishEditor *editor, const QModelIndex &index, CommandGroup *step);
    void place();
    QSize textSize() const;
    void finish();
    void cancel();
    void rename(const QString &title);
    void close();

    FishEditor *m_editor;
    QPersistentModelIndex m_index;
    QString m_former; ///< what the field began with
    QPointer<CommandGroup> m_step;
    bool m_isClosed = false;
};
