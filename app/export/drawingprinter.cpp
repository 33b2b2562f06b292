// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/drawingprinter.h>

#include <app/common/busycursor.h>

#include <QCoreApplication>
#include <QPainter>
#include <QPrinter>

#include <cmath>
#include <optional>
#include <utility>

namespace {

constexpr int manyTexts = 5000; ///< take a second or so
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
        const QRectF square =
            first.translated(page % grid.columns() * cell, page / grid.columns() * cell);
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

/** The size of a page for the drawing, in scene units at their size on the screen. */
QSizeF DrawingPrinter::paperOf(const QPrinter &printer, bool several) const
{
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const double footer = several ? footerInches * printer.resolution() : 0;
    return QSizeF(page.width(), page.height() - footer) / dotsPerUnit(printer);
}

double DrawingPrinter::factor(const QRectF &drawing, const QSizeF &paper) const
{
    const double byWidth = paper.width() / drawing.width();
    switch (m_layout.fit) {
    case Fit::Page:
        return qMin(byWidth, paper.height() / drawing.height());
    case Fit::Width:
        return byWidth;
    case Fit::Scale:
        break;
    }
    return m_layout.scale;
}

PageGrid DrawingPrinter::pages(const QPrinter &printer) const
{
    if (m_drawing.extent.isEmpty())
        return {};
    const QRectF drawing = m_drawing.extent.adjusted(-edge, -edge, edge, edge);
    const bool isSeveral = m_layout.fit != Fit::Page;
    const QSizeF paper = paperOf(printer, isSeveral);
    const double scale = factor(drawing, paper);
    const QSizeF part = paper / scale;
    if (!(part.width() > 0 && part.height() > 0))
        return {};
    const double repeated =
        isSeveral ? overlap / millimetresPerInch * screenDotsPerInch / scale : 0;
    return PageGrid(drawing, part, repeated, m_drawing.texts, maximalPages);
}

bool DrawingPrinter::print(QPrinter *printer) const
{
    const PageGrid grid = pages(*printer);
    const int first = qMax(printer->fromPage(), 1);
    const int last = printer->toPage() > 0 ? qMin(printer->toPage(), grid.count()) : grid.count();
    if (first > last)
        return false;
    QPainter painter;
    if (!painter.begin(printer))
        return false;
    std::optional<BusyCursor> busy;
    if (m_drawing.texts.size() > manyTexts)
        busy.emplace();
    for (int number = first; number <= last; ++number) {
        if (number > first && !printer->newPage())
            return false;
        paintPage(&painter, grid, number - 1);
    }
    return painter.end();
}

/** Paints page @p number as large as the paper, and of several what helps to put them together. */
void DrawingPrinter::paintPage(QPainter *painter, const PageGrid &grid, int number) const
{
    const QPaintDevice *const page = painter->device();
    QRectF area(0, 0, page->width(), page->height());
    const bool isOneOfSeveral = m_layout.fit != Fit::Page;
    const QRectF whole = area;
    if (isOneOfSeveral)
        area.setBottom(area.bottom() - footerInches * page->logicalDpiY());
    m_drawing.paint(*painter, area, grid.part(number));
    if (grid.count() == 1)
        return;
    painter->save();
    painter->setPen(QPen(Qt::darkGray, markInches * page->logicalDpiX()));
    paintMarks(painter, grid, number, area);
    paintFooter(painter, grid, number,
                QRectF(QPointF(whole.left(), area.bottom()), whole.bottomRight()));
    painter->restore();
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
