// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/diagramlook.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/fishbone_export.h>

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>

class QPainter;
class TreeItem;

/**
 * A diagram in the clear look, laid out to be written as a picture, without an editor or a scene.
 *
 * Takes a copy of what it shows, so that the diagram may change or go. Nothing but lines, texts and
 * icons is in the picture: no buttons and no selection. Needs a QGuiApplication.
 */
class FISHBONE_EXPORT DiagramPicture
{
    Q_DECLARE_TR_FUNCTIONS(DiagramPicture)
    Q_DISABLE_COPY(DiagramPicture)

public:
    /** All subjects of the diagram are shown. */
    static constexpr int allLevels = -1;
    /** The usual margin of a page of paper, in millimetres. */
    static constexpr double pageMargin = 10;

    /**
     * The diagram below @p head, which must not be null, in @p options. Shows @p levels levels of
     * subjects below the categories; what lies deeper is counted where it would be. Near linear in
     * the number of subjects, without recursion.
     */
    explicit DiagramPicture(const TreeItem *head, const DiagramLook::Options &options = {},
                            int levels = allLevels);
    /** Whether what is below a subject is shown; else it is counted. */
    using Shows = std::function<bool(const TreeItem &subject)>;
    /** A picture with what is below the head and below those subjects that @p shows tells. */
    DiagramPicture(const TreeItem *head, const DiagramLook::Options &options, const Shows &shows);
    ~DiagramPicture();

    /**
     * Arranges it so that it is as large as possible on a page with the proportions of @p page:
     * texts are wrapped, bones go to one side or both. Tries 42 arrangements up to 500 subjects,
     * six up to 5,000 and one above.
     */
    void arrangeFor(const QSizeF &page);

    /** How it is drawn: the options it was made with, after arrangeFor() with the arrangement that
     * was found. An editor with these options shows the same drawing. */
    DiagramLook::Options options() const;

    /**
     * @p options with the arrangement that makes the diagram below @p head, which must not be null,
     * largest on a page with the proportions of @p page: what arrangeFor() finds, for an editor.
     */
    static DiagramLook::Options arrangedFor(const QSizeF &page, const TreeItem *head,
                                            const DiagramLook::Options &options = {});

    /** The size of the drawing at 100 %, without a margin. */
    QSizeF size() const;
    /** How high the letters of a cause are when the drawing fills @p page, in its unit: the size of
     * their font. */
    double textSizeOn(const QSizeF &page) const;

    /** Is told from time to time how much is done; false ends it. */
    using Progress = std::function<bool(int done, int total)>;

    /** Paints it as large as it fits into @p target (the painter's coordinates), in whose middle it
     * stands, and nothing behind it. */
    void paint(QPainter &painter, const QRectF &target) const;
    /** Paints the part @p source, in the coordinates of the drawing at 100 % from its left upper
     * corner on, into @p target, which has the same shape; nothing of the rest. @p progress is as
     * in PictureOptions; false when that ended the painting. */
    bool paint(QPainter &painter, const QRectF &target, const QRectF &source,
               const Progress &progress = {}) const;
    /** Where texts, icons and what is filled behind them stand, in the same coordinates. */
    QList<QRectF> texts() const;
    /** Stores the bytes of a picture in @p bytes. */
    PictureExport::Result render(PictureExport::Format format, const PictureOptions &options,
                                 QByteArray &bytes) const;

    /** Whether the suffix of @p fileName, in any case, names a format that can be written: .png,
     * .svg, .pdf or .html. */
    static bool canWrite(const QString &fileName);

    /**
     * Writes it into the file @p fileName, which is replaced whole or not at all; in a folder that
     * is not writable it is written in place. An HTML page takes title and progress alone from
     * @p options. One that PictureOptions::progress ended leaves the file as it was.
     */
    PictureExport::Result write(const QString &fileName,
                                const PictureOptions &options = PictureOptions()) const;

    /**
     * Writes a PDF of one page of @p millimetres, with a margin of @p margin millimetres on each
     * side, the drawing in its middle.
     */
    PictureExport::Result writePage(const QString &fileName, const QSizeF &millimetres,
                                    double margin = pageMargin,
                                    const PictureOptions &options = PictureOptions()) const;

private:
    struct Data;

    PictureExport::Result page(const PictureOptions &options, QByteArray &bytes) const;

    std::unique_ptr<Data> m_data;
};
