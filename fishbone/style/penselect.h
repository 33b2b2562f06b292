// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QDialog>
#include <QPen>

#include <memory>

/**
 * A modal dialog that edits one pen: width, line style, cap style, join style and colour, with a
 * sample line that follows every change.
 *
 * The dialog works on a copy and starts on its values. A value that the widgets do not offer (a
 * width outside 1 to 5, a custom dash pattern) is kept until the user chooses another one. Ask
 * selectedPen() for the result once the dialog was accepted.
 */
class FISHBONE_EXPORT PenSelect : public QDialog
{
    Q_OBJECT

public:
    /** Makes a dialog that starts on @p pen. */
    explicit PenSelect(const QPen &pen, QWidget *parent = nullptr);
    ~PenSelect() override;

    /** The pen as edited so far. */
    QPen selectedPen() const;

    /** Shows the sample line on @p background instead of white: on what the pen will draw on. */
    void setPreviewBackground(const QColor &background);

public Q_SLOTS:
    /** Sets the width, in pixels, to the integer that @p text holds; does nothing if it holds none.
     */
    void widthChanged(const QString &text);

    /** Sets the line style to the @c Qt::PenStyle value @p style; an unknown value is no pen. */
    void styleChanged(int style);

    /** Sets the cap to the @c Qt::PenCapStyle value @p style; an unknown value is a flat cap. */
    void capStyleChanged(int style);

    /** Sets the join to the @c Qt::PenJoinStyle value @p style; an unknown value is a miter join.
     */
    void joinStyleChanged(int style);

    /** Lets the user choose the colour, transparency included. */
    void openColor();

    /** Draws the sample line with the pen as it is now. */
    void updatePreview();

private:
    struct Private;

    void buildLayout();

    const std::unique_ptr<Private> m_d;
};
