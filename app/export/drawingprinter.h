// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/export/pagegrid.h>
#include <app/export/printeddrawing.h>

#include <QString>

class QPrinter;

/** Puts a whole drawing on paper, on one page or on several that are put together: these overlap,
 * have marks where to cut them, and a map that says which one each is. */
class DrawingPrinter
{
public:
    /** How large the drawing becomes. */
    enum class Fit {
        Page,  ///< as large as one page takes
        Width, ///< as wide as the page, on as many pages below each other as that needs
        Scale, ///< by a given factor, on as many pages as that needs
    };

    /** What the user may choose. */
    struct Layout
    {
        Fit fit = Fit::Page;
        double scale = 1; ///< with Fit::Scale; 1 is the size on the screen at 96 dots per inch
    };

    /** More pages than that are not printed: nobody wants to put them together. */
    static constexpr int maximalPages = 400;
    /** By how much two pages overlap at least, in millimetres. */
    static constexpr double overlap = 10;

    /** Prints @p drawing; @p title stands below each page of several. */
    explicit DrawingPrinter(PrintedDrawing drawing = {}, QString title = QString());

    void setLayout(const Layout &layout) { m_layout = layout; }
    Layout layout() const { return m_layout; }

    /** How large the drawing becomes on pages like those of @p printer; 1 is the size on the
     * screen. Smaller than was chosen where a page has no room for the largest title. 0 when there
     * is nothing to draw. */
    double scaleOn(const QPrinter &printer) const;
    /** Whether it becomes smaller than was chosen, so that each title has room. */
    bool isReducedOn(const QPrinter &printer) const;
    /** What pages like those of @p printer show; none when there is nothing to draw or when there
     * would be too many. */
    PageGrid pages(const QPrinter &printer) const;

    /** Is told how much is printed; false ends it, and the printer drops what it has. */
    using Progress = PrintedDrawing::Progress;
    /** Paints the pages, those alone that the printer is told to print. False when there are none,
     * or when @p progress ended it. */
    bool print(QPrinter *printer, const Progress &progress = {}) const;

private:
    QRectF drawn() const;
    double chosenScaleOn(const QSizeF &paper) const;
    double factorForTitles(const QSizeF &paper) const;
    QSizeF paperOf(const QPrinter &printer) const;
    bool paintPage(QPainter *painter, const PageGrid &grid, int number,
                   const Progress &progress) const;
    void paintMarks(QPainter *painter, const PageGrid &grid, int number, const QRectF &area) const;
    void paintFooter(QPainter *painter, const PageGrid &grid, int number, const QRectF &line) const;

    PrintedDrawing m_drawing;
    QString m_title;
    Layout m_layout;
};
