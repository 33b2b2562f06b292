// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QColor>
#include <QCoreApplication>
#include <QRectF>
#include <QSize>
#include <QString>

#include <functional>
#include <optional>

class QByteArray;
class QGraphicsScene;
class QPainter;

/** How a picture of a drawing shall look. */
struct PictureOptions
{
    /** Picture units for each scene unit; counts only while @c size is not valid. */
    double scale = 1;
    /** The picture's size in picture units; the drawing is centred in it, as large as it fits. */
    QSize size;
    /** Free space around the drawing, in scene units. */
    double margin = 20;
    /** What the picture is filled with; an invalid or transparent colour fills nothing. */
    QColor background = Qt::white;
    /** The title that the file carries; empty for none. */
    QString title;
    /**
     * Is told from time to time how much is done: @c done of @c total steps. It may keep a user
     * interface alive, but the scene must stay as it is and live on. Once it returns false the
     * export ends with PictureExport::Error::Cancelled. Empty for whoever just waits.
     */
    std::function<bool(int done, int total)> progress;
};

/**
 * Writes the drawing of a scene as a picture: PNG, SVG or PDF.
 *
 * A picture is cropped to the visible items. Its unit is the scene's, scaled: a pixel of a PNG, a
 * unit of the view box of an SVG, and as much of a PDF's page as the unit takes on the screen. SVG
 * and PDF hold lines and real text, and the page of a PDF is as large as the drawing.
 *
 * The scene is drawn as it stands, without the buttons that expand and contract bones: who does not
 * want the selection in the picture clears it before.
 * An SVG of a diagram in the clear look is as DiagramPicture writes it: small, with links, ids and
 * each icon once; of any other scene as the toolkit writes it.
 * A picture holds its items. The scene's background is left out in favour of
 * PictureOptions::background, and what a subclass of it paints in front of the items as well. Needs
 * a QGuiApplication.
 */
class FISHBONE_EXPORT PictureExport
{
    Q_DECLARE_TR_FUNCTIONS(PictureExport)

public:
    /** The kinds of pictures. */
    enum class Format {
        Png, ///< pixels
        Svg, ///< scalable vector graphics
        Pdf, ///< a document of one page
    };

    /** Why there is no picture. */
    enum class Error {
        None,          ///< the picture is complete
        UnknownFormat, ///< the file name's suffix names no format
        BadOptions,    ///< a scale, size or margin that makes no picture
        NothingToDraw, ///< the scene shows nothing
        TooLarge,      ///< more than the format or the memory holds
        CannotWrite,   ///< the file cannot be written; what it held before is still there
        Cancelled,     ///< PictureOptions::progress ended it; the file is as it was before
    };

    /** The outcome of an export. */
    struct Result
    {
        Error error = Error::None; ///< what went wrong
        QString
            reason; ///< for the user, translated, a clause without a full stop; empty on success

        /** Whether the export succeeded. */
        explicit operator bool() const { return error == Error::None; }
    };

    /** The longest side of a PNG, in pixels. */
    static constexpr int maximalPixels = 32767;
    /** The most memory that the pixels of a PNG may take, in bytes. */
    static constexpr qint64 maximalBytes = Q_INT64_C(1) << 30;
    /** The longest side of the page of a PDF, in points of 1/72 inch. */
    static constexpr int maximalPoints = 14400;
    /** The most bytes that an SVG may have, as far as a sample of its items tells. */
    static constexpr qint64 maximalSvgBytes = Q_INT64_C(1) << 29;

    /** The format that the suffix of @p fileName names, in any case; nothing for an unknown one. */
    static std::optional<Format> formatOf(const QString &fileName);

    /**
     * The part of @p scene, in its coordinates, that its visible items cover; empty when it shows
     * nothing. Linear in the number of items, without recursion.
     */
    static QRectF visibleRect(const QGraphicsScene &scene);

    /**
     * The size, in picture units, that a picture of @p drawing has with @p options, margin
     * included; empty when they make no picture.
     */
    static QSizeF sizeOf(const QRectF &drawing, const PictureOptions &options);
    /** Whether a picture of @p size picture units can be made: what is too large is refused here,
     * before anybody makes room for it. */
    static Result check(Format format, const QSizeF &size);
    /** As check() without options, of a picture whose scale gave it @p size picture units: the
     * reason tells which scale fits. */
    static Result check(Format format, const QSizeF &size, const PictureOptions &options);
    /** The largest factor, at most 1, by which a picture of @p size picture units has to be made
     * smaller so that it can be made. */
    static double fittingFactor(Format format, const QSizeF &size);
    /** The largest scale of three decimals that is not above @p scale; 1 is a picture unit for each
     * of the scene. */
    static double roundedScale(double scale);
    /** The millimetres of a PDF's page for each picture unit. */
    static double millimetresPerUnit();

    /**
     * Paints the part @p source (scene coordinates) of what @p scene shows into @p target (the
     * painter's coordinates), which has the same shape, as into a picture: without buttons, and
     * nothing behind it. Of what is not seen there nothing is
     * painted. @p progress is as in PictureOptions; false when that ended the painting.
     */
    static bool paint(QGraphicsScene &scene, QPainter &painter, const QRectF &target,
                      const QRectF &source,
                      const std::function<bool(int done, int total)> &progress = {});

    /** Draws @p scene and stores the bytes of the picture in @p picture, empty on failure. */
    static Result render(QGraphicsScene &scene, Format format, const PictureOptions &options,
                         QByteArray &picture);

    /**
     * Draws @p scene into the file @p fileName, in the format that its suffix names. The file is
     * replaced whole or not at all; in a folder that is not writable it is written in place.
     */
    static Result write(QGraphicsScene &scene, const QString &fileName,
                        const PictureOptions &options = PictureOptions());
};
