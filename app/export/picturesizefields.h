// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/pagesize.h>
#include <fishbone/exchange/pictureexport.h>

#include <QRectF>
#include <QWidget>

#include <optional>

class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QPushButton;
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

    /** A picture of what covers @p drawing, in scene units, is to be made, with @p margin around
     * it. */
    void setDrawing(const QRectF &drawing, double margin);
    /** It is for @p page, which gives the size; nothing for the sizes of the fields. */
    void setPage(const std::optional<PageSize> &page);
    /** It is to be made in that format, nothing while there is none yet. */
    void setFormat(std::optional<PictureExport::Format> format);

    /** Tells @p options what was entered. */
    void apply(PictureOptions &options) const;
    /** The size that the picture is going to have, in picture units; empty without a drawing. */
    QSizeF size() const;

    /** The scale that a picture of the chosen format can have, as the field shows it; empty when
     * the chosen one can be made, or none. */
    QString fittingScale() const;
    /** Chooses that scale. */
    void useFittingScale();

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
    double largestScale() const;
    void showResult();

    QDoubleSpinBox *m_scale;
    QSpinBox *m_width;
    QSpinBox *m_height;
    QLabel *m_result;
    QPushButton *m_fit; ///< while it is too large
    Leader m_leader = Leader::Scale;
    QRectF m_drawing;
    double m_margin = 0;
    std::optional<PageSize> m_page;
    std::optional<PictureExport::Format> m_format;
};
