// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/pictureexport.h>

#include <QRectF>
#include <QWidget>

#include <optional>

class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QSpinBox;

/**
 * The fields for the size of a picture: a factor, a width and a height, which follow each other, as
 * a picture has the shape of its drawing. What was entered last stays when the drawing changes.
 */
class PictureSizeFields : public QObject
{
    Q_OBJECT

public:
    /** Adds its rows to @p layout; begins with what was entered the last time. */
    explicit PictureSizeFields(QFormLayout *layout, QWidget *parent);

    /** A picture of what covers @p drawing, in scene units, is to be made. */
    void setDrawing(const QRectF &drawing);
    /** It is to be made in that format, nothing while there is none yet. */
    void setFormat(std::optional<PictureExport::Format> format);

    /** Tells @p options what was entered. */
    void apply(PictureOptions &options) const;
    /** The size that the picture is going to have, in picture units; empty without a drawing. */
    QSizeF size() const;

    /** Remembers for the next time what was entered. */
    void remember() const;

private:
    /** What the others follow. */
    enum class Leader {
        Scale,
        Width,
        Height,
    };

    QSizeF unscaledSize() const;
    double scale() const;
    void follow(Leader leader);
    void showResult();

    QDoubleSpinBox *m_scale;
    QSpinBox *m_width;
    QSpinBox *m_height;
    QLabel *m_result;
    Leader m_leader = Leader::Scale;
    QRectF m_drawing;
    std::optional<PictureExport::Format> m_format;
};
