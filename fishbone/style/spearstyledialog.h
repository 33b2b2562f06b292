// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>
#include <fishbone/style/spearstyle.h>

#include <QDialog>

#include <memory>

class QGroupBox;
class QLayout;

/**
 * A modal dialog that edits a style state by state and shows how a text looks in it.
 *
 * The style is edited in place: every change counts at once. Accepting keeps it; rejecting reads
 * the values back that were set when the dialog was made. Since reading merges, what was unset then
 * and has been set in the dialog stays set. The style is not owned and must outlive the dialog.
 * Nothing is saved to a file.
 */
class FISHBONE_EXPORT SpearStyleDialog : public QDialog
{
    Q_OBJECT

public:
    /** Makes a dialog for @p style; @p modal says whether it blocks other windows once shown. */
    explicit SpearStyleDialog(SpearStyle &style, bool modal = true, QWidget *parent = nullptr);

    /** A pointer would silently become the flag. */
    SpearStyleDialog(SpearStyle &style, QWidget *parent) = delete;
    ~SpearStyleDialog() override;

    /**
     * Whether the dialog offers to have the style of the parent, as it does at first. A host that
     * follows the flag says what it does in @p toolTip; one that has no parent for the style, or
     * does nothing with the flag, offers nothing. The flag stays as it is.
     */
    void setInheritanceOffered(bool offered, const QString &toolTip = QString());

    /**
     * Shows the preview, and that of the border pen, on @p background instead of white: on the
     * canvas of the host, where light texts may be meant for a dark one.
     */
    void setPreviewBackground(const QColor &background);

public Q_SLOTS:
    /** Lets the user choose the font of the chosen state. */
    void openTextFont();

    /** Lets the user choose the text colour of the chosen state, transparency included. */
    void openTextColor();

    /** Lets the user choose the background colour of the chosen state, transparency included. */
    void openTextBkColor();

    /** Lets the user edit the border pen of the chosen state. */
    void openBroderPen();

    /** Sets the number of characters to the decimal integer @p text; does nothing if it is none. */
    void textCountChanged(const QString &text);

    /** Sets the style's flag. */
    void inheritanceParentChanged(bool inherit);

    /** Draws the preview text with the chosen state's font, colours and border. */
    void updatePreview();

    /** Gives the style its values from the time when the dialog was made and closes it as rejected.
     */
    void reject() override;

private:
    struct Private;

    SpearStyle::SpearState currentState() const;
    QPen currentPen() const;
    QFont currentFont() const;
    void buildFields();
    void showTexts();
    void buildLayout();
    QGroupBox *makeParentGroup();
    QGroupBox *makePreviewGroup();
    QLayout *makeSetters();

    const std::unique_ptr<Private> m_d;
};
