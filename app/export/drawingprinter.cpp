// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/drawingprinter.h>

#include <QCoreApplication>
#include <QPainter>
#include <QPrinter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double screenDotsPerInch = 96;
constexpr double millimetresPerInch = 25.4;
constexpr double footerInches = 0.25;
constexpr double markInches = 0.01;
constexpr double markLengthInches = 0.2;
constexpr double edge = 4; ///< around the drawing, in scene units, for the width of its lines

double dotsPerUnit(const QPrinter &printer)
{
    return printer.resolution() / screenDotsPerInch;
}

/** Paints which of the pages of @p grid is page @p number, as large as it fits into @p room;
 * returns the width. */
double paintMap(QPainter *painter, const PageGrid &grid, int number, const QRectF &room)
{
    const double cell = qMin(room.height() / grid.rows(),
                             room.width() / 3 / grid.columns()); // leaves room for text
    const QRectF first(room.left(), room.bottom() - cell * grid.rows(), cell, cell);
    for (int page = 0; page < grid.count(); ++page) {
        const int row = page / grid.columns();
        const QRectF square = first.translated(page % grid.columns() * cell, row * cell);
        painter->setBrush(page == number ? QBrush(Qt::darkGray) : QBrush(Qt::NoBrush));
        painter->drawRect(square);
    }
    return cell * grid.columns();
}

} // namespace

DrawingPrinter::DrawingPrinter(PrintedDrawing drawing, QString title)
    : m_drawing(std::move(drawing))
    , m_title(std::move(title))
{
}

/** What is put on paper: the drawing with the width of its lines. */
QRectF DrawingPrinter::drawn() const
{
    return m_drawing.extent.adjusted(-edge, -edge, edge, edge);
}

/** The size of a page for the drawing, in scene units at their size on the screen. */
QSizeF DrawingPrinter::paperOf(const QPrinter &printer) const
{
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const double footer = m_layout.fit == Fit::Page ? 0 : footerInches * printer.resolution();
    return QSizeF(page.width(), page.height() - footer) / dotsPerUnit(printer);
}

/** How large the drawing would become if titles might be cut. */
double DrawingPrinter::chosenScaleOn(const QSizeF &paper) const
{
    const double byWidth = paper.width() / drawn().width();
    switch (m_layout.fit) {
    case Fit::Page:
        return qMin(byWidth, paper.height() / drawn().height());
    case Fit::Width:
        return byWidth;
    case Fit::Scale:
        break;
    }
    return m_layout.scale;
}

/** The largest factor with which each title has room on one page: on more it would be nowhere
 * whole. */
double DrawingPrinter::factorForTitles(const QSizeF &paper) const
{
    QSizeF largest(1, 1);
    for (const QRectF &text : m_drawing.texts)
        largest = largest.expandedTo(text.size());
    largest += QSizeF(PageGrid::room, PageGrid::room);
    return qMin(paper.width() / largest.width(), paper.height() / largest.height());
}

double DrawingPrinter::scaleOn(const QPrinter &printer) const
{
    const QSizeF paper = paperOf(printer);
    if (m_drawing.extent.isEmpty() || paper.isEmpty())
        return 0;
    const double chosen = chosenScaleOn(paper);
    const QSizeF needed = drawn().size() * chosen;
    const bool isOnePage = m_layout.fit == Fit::Page ||
                           (needed.width() <= paper.width() && needed.height() <= paper.height());
    return isOnePage ? chosen : qMin(chosen, factorForTitles(paper));
}

bool DrawingPrinter::isReducedOn(const QPrinter &printer) const
{
    const double scale = scaleOn(printer);
    return scale > 0 && scale < chosenScaleOn(paperOf(printer));
}

PageGrid DrawingPrinter::pages(const QPrinter &printer) const
{
    const double scale = scaleOn(printer);
    if (!(scale > 0))
        return {};
    const QSizeF part = paperOf(printer) / scale;
    const double repeated =
        m_layout.fit == Fit::Page ? 0 : overlap / millimetresPerInch * screenDotsPerInch / scale;
    return PageGrid(drawn(), part, repeated, m_drawing.texts, maximalPages);
}

bool DrawingPrinter::print(QPrinter *printer, const Progress &progress) const
{
    const PageGrid grid = pages(*printer);
    const int first = qMax(printer->fromPage(), 1);
    const int last = printer->toPage() > 0 ? qMin(printer->toPage(), grid.count()) : grid.count();
    if (first > last)
        return false;
    QPainter painter;
    if (!painter.begin(printer))
        return false;
    constexpr int steps = 1000; // of a page
    bool goesOn = true;
    for (int number = first; number <= last && goesOn; ++number) {
        const auto ofAll = [&](int done, int total) {
            return !progress || progress((number - first) * steps + done * steps / qMax(total, 1),
                                         (last - first + 1) * steps);
        };
        goesOn =
            (number == first || printer->newPage()) && paintPage(&painter, grid, number - 1, ofAll);
    }
    if (!goesOn)
        printer->abort();
    return painter.end() && goesOn;
}

/** Paints page @p number as large as the paper, and of several what helps to put them together. */
bool DrawingPrinter::paintPage(QPainter *painter, const PageGrid &grid, int number,
                               const Progress &progress) const
{
    const QPaintDevice *const page = painter->device();
    QRectF area(0, 0, page->width(), page->height());
    const bool isOneOfSeveral = m_layout.fit != Fit::Page;
    const QRectF whole = area;
    if (isOneOfSeveral)
        area.setBottom(area.bottom() - footerInches * page->logicalDpiY());
    if (!m_drawing.paint(*painter, area, grid.part(number), progress))
        return false;
    if (grid.count() == 1)
        return true;
    painter->save();
    painter->setPen(QPen(Qt::darkGray, markInches * page->logicalDpiX()));
    paintMarks(painter, grid, number, area);
    paintFooter(painter, grid, number,
                QRectF(QPointF(whole.left(), area.bottom()), whole.bottomRight()));
    painter->restore();
    return true;
}

/** Marks at the ends of the edges along which the page is cut, so that the next one fits there. */
void DrawingPrinter::paintMarks(QPainter *painter, const PageGrid &grid, int number,
                                const QRectF &area) const
{
    const QRectF part = grid.part(number);
    const QRectF own = grid.own(number);
    const double scale = area.width() / part.width();
    const double length = markLengthInches * painter->device()->logicalDpiX();
    const QPointF cut = area.topLeft() + (own.bottomRight() - part.topLeft()) * scale;
    if (own.right() < part.right()) {
        painter->drawLine(QLineF(cut.x(), area.top(), cut.x(), area.top() + length));
        painter->drawLine(QLineF(cut.x(), area.bottom() - length, cut.x(), area.bottom()));
    }
    if (own.bottom() < part.bottom()) {
        painter->drawLine(QLineF(area.left(), cut.y(), area.left() + length, cut.y()));
        painter->drawLine(QLineF(area.right() - length, cut.y(), area.right(), cut.y()));
    }
}

/** A map of the pages, and which one of them it is. */
void DrawingPrinter::paintFooter(QPainter *painter, const PageGrid &grid, int number,
                                 const QRectF &line) const
{
    const double gap = line.height() / 8;
    const double taken = paintMap(painter, grid, number, line.adjusted(0, gap, 0, 0)) + 2 * gap;
    const QString footer = QCoreApplication::translate("DrawingPrinter", "%1 – page %2 of %3")
                               .arg(m_title)
                               .arg(number + 1)
                               .arg(grid.count());
    QFont font = painter->font();
    font.setPointSizeF(8);
    painter->setFont(font);
    painter->drawText(
        line.adjusted(taken, 0, 0, 0), Qt::AlignRight | Qt::AlignBottom,
        painter->fontMetrics().elidedText(footer, Qt::ElideMiddle, int(line.width() - taken)));
}
