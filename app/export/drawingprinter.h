// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>
#include <QString>

class QGraphicsScene;
class QPainter;
class QPrinter;

/** Puts a whole drawing on paper, on one page or on several that are put together. */
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

    /** Prints what @p scene shows, which must live as long; @p title stands below each page of
     * several. */
    DrawingPrinter(QGraphicsScene *scene, QString title);

    void setLayout(const Layout &layout) { m_layout = layout; }
    Layout layout() const { return m_layout; }

    /** The parts of the scene that the pages show, row by row, for pages like those of @p printer;
     * empty when there is nothing to draw or when there would be too many. */
    QList<QRectF> pages(const QPrinter &printer) const;

    /** Paints the pages, those alone that the printer is told to print. False when there are none.
     */
    bool print(QPrinter *printer) const;

private:
    double factor(const QRectF &drawing, const QSizeF &paper) const;
    QSizeF paperOf(const QPrinter &printer, bool several) const;
    void paintPage(QPainter *painter, const QRectF &part, const QString &footer) const;

    QGraphicsScene *m_scene;
    QString m_title;
    Layout m_layout;
};
