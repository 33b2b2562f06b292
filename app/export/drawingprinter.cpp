// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/drawingprinter.h>

#include <app/common/busycursor.h>
#include <app/common/selectionhidden.h>

#include <fishbone/exchange/pictureexport.h>

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QPainter>
#include <QPrinter>

#include <cmath>
#include <optional>
#include <utility>

namespace {

constexpr int manyItems = 20000; ///< take a second or so
constexpr double screenDotsPerInch = 96;
constexpr double footerInches = 0.25;
constexpr double edge = 4; ///< around the drawing, in scene units, for the width of its lines

double dotsPerUnit(const QPrinter &printer)
{
    return printer.resolution() / screenDotsPerInch;
}

/** How many parts of the length @p part cover @p whole; one too much would be an empty page. */
int partsOf(double whole, double part)
{
    constexpr double rounding = 1e-6;
    return qMax(1, int(std::ceil(whole / part - rounding)));
}

} // namespace

DrawingPrinter::DrawingPrinter(QGraphicsScene *scene, QString title)
    : m_scene(scene)
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

QList<QRectF> DrawingPrinter::pages(const QPrinter &printer) const
{
    const QRectF visible = PictureExport::visibleRect(*m_scene);
    if (visible.isEmpty())
        return {};
    const QRectF drawing = visible.adjusted(-edge, -edge, edge, edge);
    const QSizeF paper = paperOf(printer, m_layout.fit != Fit::Page);
    const QSizeF part = paper / factor(drawing, paper);
    if (!(part.width() > 0 && part.height() > 0))
        return {};
    if (std::ceil(drawing.width() / part.width()) * std::ceil(drawing.height() / part.height()) >
        maximalPages)
        return {};
    const int columns = partsOf(drawing.width(), part.width());
    const int rows = partsOf(drawing.height(), part.height());
    // What the last pages have left over is shared by both sides.
    const QSizeF all(part.width() * columns, part.height() * rows);
    const QPointF begin = drawing.center() - QPointF(all.width() / 2, all.height() / 2);
    QList<QRectF> parts;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            parts.append(QRectF(begin + QPointF(part.width() * column, part.height() * row), part));
    }
    return parts;
}

bool DrawingPrinter::print(QPrinter *printer) const
{
    const QList<QRectF> parts = pages(*printer);
    const int count = int(parts.size());
    const int first = qMax(printer->fromPage(), 1);
    const int last = printer->toPage() > 0 ? qMin(printer->toPage(), count) : count;
    if (first > last)
        return false;
    QPainter painter;
    if (!painter.begin(printer))
        return false;
    const SelectionHidden unmarked(m_scene);
    std::optional<BusyCursor> busy;
    if (m_scene->items().size() > manyItems)
        busy.emplace();
    for (int number = first; number <= last; ++number) {
        if (number > first && !printer->newPage())
            return false;
        const QString footer =
            count == 1 ? QString()
                       : QCoreApplication::translate("DrawingPrinter", "%1 – page %2 of %3")
                             .arg(m_title)
                             .arg(number)
                             .arg(count);
        paintPage(&painter, parts.at(number - 1), footer);
    }
    return painter.end();
}

/** Paints @p part of the scene as large as the page is, with @p footer, if any, below it. */
void DrawingPrinter::paintPage(QPainter *painter, const QRectF &part, const QString &footer) const
{
    const QPaintDevice *const page = painter->device();
    QRectF area(0, 0, page->width(), page->height());
    if (!footer.isEmpty()) {
        const double height = footerInches * page->logicalDpiY();
        const QRectF line(0, area.height() - height, area.width(), height);
        area.setBottom(line.top());
        QFont font = painter->font();
        font.setPointSizeF(8);
        painter->setFont(font);
        painter->setPen(Qt::darkGray);
        painter->drawText(
            line, Qt::AlignRight | Qt::AlignBottom,
            painter->fontMetrics().elidedText(footer, Qt::ElideMiddle, int(line.width())));
    }
    m_scene->render(painter, area, part, Qt::KeepAspectRatio);
}
