// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/slidebuilder.h>

#include <fishbone/exchange/linksafety.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/slidedevice.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/exchange/slidegroups.h>
#include <fishbone/exchange/slidemarkup.h>
#include <fishbone/exchange/slidenotes.h>

#include <algorithm>
#include <cmath>

namespace {

using SlideMarkup::frame;
using SlideMarkup::groupFrame;
using SlideMarkup::measure;
using SlideMarkup::named;
using SlidePackage::escaped;

constexpr qint64 slideHeight = 6858000; ///< in English metric units, 914,400 an inch
constexpr double filled = 0.94;         ///< the share of the slide that the drawing takes
constexpr double unitsPerPoint = 12700;
constexpr int firstId = 3; ///< the page and the group come first

QString hex(const QColor &colour)
{
    return colour.name().mid(1).toUpper();
}

QByteArray numbered(const QByteArray &kind, int index)
{
    return named(firstId + index, kind + " " + QByteArray::number(firstId + index));
}

} // namespace

SlideBuilder::SlideBuilder(const std::vector<SlideShape> &shapes, const TreeItem &head,
                           const QRectF &drawing, qint64 width)
    : m_shapes(shapes)
    , m_connections(shapes)
    , m_head(head)
    , m_drawing(drawing)
    , m_width(width)
    , m_scale(filled *
              qMin(double(width) / drawing.width(), double(slideHeight) / drawing.height()))
    , m_origin((double(width) - drawing.width() * m_scale) / 2,
               (double(slideHeight) - drawing.height() * m_scale) / 2)
{
    findAccents();
}

std::optional<SlidePackage::Content> SlideBuilder::content(const Goes &goes)
{
    QByteArray shapes;
    if (!writeShapes(shapes, goes))
        return std::nullopt;
    SlidePackage::Content content;
    content.slide = slide(shapes);
    content.slideRelations = m_relations;
    content.notes = SlideNotes::paragraphs(m_head);
    content.accents = m_accents;
    content.title = m_head.title();
    content.width = m_width;
    content.height = slideHeight;
    return content;
}

/** The colours that most shapes have become those of the theme. */
void SlideBuilder::findAccents()
{
    QHash<QString, int> counts;
    for (const SlideShape &shape : m_shapes) {
        for (const QColor &colour : {shape.fill, shape.stroke, shape.colour}) {
            const bool isGrey = colour.red() == colour.green() && colour.green() == colour.blue();
            if (colour.isValid() && !isGrey)
                ++counts[hex(colour)];
        }
    }
    QStringList colours = counts.keys();
    std::sort(colours.begin(), colours.end(), [&counts](const QString &a, const QString &b) {
        return counts.value(a) != counts.value(b) ? counts.value(a) > counts.value(b) : a < b;
    });
    const QStringList usual{QStringLiteral("4472C4"), QStringLiteral("ED7D31"),
                            QStringLiteral("A5A5A5"), QStringLiteral("FFC000"),
                            QStringLiteral("5B9BD5"), QStringLiteral("70AD47")};
    m_accents = colours.mid(0, int(usual.size()));
    m_accents += usual.mid(int(m_accents.size()));
}

QPointF SlideBuilder::place(const QPointF &point) const
{
    return m_origin + (point - m_drawing.topLeft()) * m_scale;
}

QByteArray SlideBuilder::colour(const QColor &colour) const
{
    const int accent = int(m_accents.indexOf(hex(colour)));
    QByteArray name = "a:srgbClr";
    QByteArray value = hex(colour).toLatin1();
    if (accent >= 0 || value == "000000" || value == "FFFFFF") {
        name = "a:schemeClr";
        value = accent >= 0         ? "accent" + QByteArray::number(accent + 1)
                : value == "000000" ? QByteArray("tx1")
                                    : QByteArray("bg1");
    }
    constexpr int whole = 100000;
    const QByteArray alpha = colour.alpha() == 255
                                 ? QByteArray()
                                 : "<a:alpha val=\"" + measure(colour.alphaF() * whole) + "\"/>";
    return "<a:solidFill><" + name + " val=\"" + value + "\">" + alpha + "</" + name +
           "></a:solidFill>";
}

QByteArray SlideBuilder::line(const SlideShape &shape) const
{
    if (!shape.stroke.isValid())
        return "<a:ln><a:noFill/></a:ln>";
    return "<a:ln w=\"" + measure(qMax(shape.width * m_scale, 1.0)) + "\" cap=\"rnd\">" +
           colour(shape.stroke) + (shape.isDashed ? "<a:prstDash val=\"dash\"/>" : "") + "</a:ln>";
}

QByteArray SlideBuilder::attachment(const char *element, const SlideConnections::End &end) const
{
    if (!end.isAttached())
        return {};
    return "<a:" + QByteArray(element) + " id=\"" + QByteArray::number(firstId + end.shape) +
           "\" idx=\"" + QByteArray::number(end.site) + "\"/>";
}

QByteArray SlideBuilder::straightLine(int index) const
{
    const SlideShape &shape = m_shapes[size_t(index)];
    const QPointF from = place(shape.path.elementAt(0));
    const QPointF to = place(shape.path.elementAt(1));
    QByteArray flips;
    if (to.x() < from.x())
        flips += " flipH=\"1\"";
    if (to.y() < from.y())
        flips += " flipV=\"1\"";
    return "<p:cxnSp><p:nvCxnSpPr>" + numbered("Line", index) + "<p:cNvCxnSpPr>" +
           attachment("stCxn", m_connections.start(index)) +
           attachment("endCxn", m_connections.end(index)) +
           "</p:cNvCxnSpPr><p:nvPr/></p:nvCxnSpPr><p:spPr>" +
           frame(QRectF(from, to).normalized(), flips) +
           "<a:prstGeom prst=\"line\"><a:avLst/></a:prstGeom>" + line(shape) +
           "</p:spPr></p:cxnSp>";
}

/** A path within @p bounds on the slide; lines can be attached to it at @p sites. */
QByteArray SlideBuilder::geometry(const QPainterPath &path, const QRectF &bounds,
                                  const std::vector<QPointF> &sites) const
{
    const auto within = [&](const QPointF &scenePoint) {
        return place(scenePoint) - bounds.topLeft();
    };
    QByteArray list;
    for (const QPointF &site : sites) {
        const QPointF at = within(site);
        list += "<a:cxn ang=\"0\"><a:pos x=\"" + measure(at.x()) + "\" y=\"" + measure(at.y()) +
                "\"/></a:cxn>";
    }
    const QByteArray steps = SlideMarkup::steps(path, within);
    return "<a:custGeom><a:avLst/><a:gdLst/><a:ahLst/><a:cxnLst>" + list +
           "</a:cxnLst><a:rect l=\"0\" t=\"0\" r=\"r\" b=\"b\"/><a:pathLst><a:path w=\"" +
           measure(bounds.width()) + "\" h=\"" + measure(bounds.height()) + "\">" + steps +
           "</a:path></a:pathLst></a:custGeom>";
}

QByteArray SlideBuilder::freeform(int index) const
{
    const SlideShape &shape = m_shapes[size_t(index)];
    const QRectF rect = shape.path.controlPointRect();
    const QRectF bounds(place(rect.topLeft()), place(rect.bottomRight()));
    return "<p:sp><p:nvSpPr>" + numbered("Shape", index) +
           "<p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr>" + frame(bounds) +
           geometry(shape.path, bounds, m_connections.sites(index)) +
           (shape.fill.isValid() ? colour(shape.fill) : QByteArray("<a:noFill/>")) + line(shape) +
           "</p:spPr></p:sp>";
}

/** Where lines meet: too small to see and without a colour, one unit of the scene large. */
QByteArray SlideBuilder::joint(int index) const
{
    const QPointF middle = m_connections.joints()[size_t(index)];
    QPainterPath path;
    path.addRect(QRectF(middle - QPointF(0.5, 0.5), QSizeF(1, 1)));
    const QRectF rect = path.controlPointRect();
    const QRectF bounds(place(rect.topLeft()), place(rect.bottomRight()));
    std::vector<QPointF> sites = SlideConnections::sidesOf(rect);
    sites.push_back(middle);
    const int id = firstId + int(m_shapes.size()) + index;
    return "<p:sp><p:nvSpPr>" + named(id, "Joint " + QByteArray::number(id), true) +
           "<p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr>" + frame(bounds) +
           geometry(path, bounds, sites) + "<a:noFill/><a:ln><a:noFill/></a:ln></p:spPr></p:sp>";
}

/** A relation to where @p link leads, once each. */
QByteArray SlideBuilder::relationTo(const QString &link)
{
    QByteArray &id = m_linkIds[link];
    if (!id.isEmpty())
        return id;
    id = "rId" + QByteArray::number(++m_relation);
    m_relations += "<Relationship Id=\"" + id +
                   "\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/"
                   "relationships/hyperlink\" Target=\"" +
                   escaped(link) + "\" TargetMode=\"External\"/>";
    return id;
}

QByteArray SlideBuilder::linkOf(const SlideShape &shape)
{
    const QString link = LinkSafety::webOrMail(shape.link);
    return link.isEmpty() ? QByteArray() : "<a:hlinkClick r:id=\"" + relationTo(link) + "\"/>";
}

QByteArray SlideBuilder::textBox(int index)
{
    const SlideShape &shape = m_shapes[size_t(index)];
    constexpr double minuteOfDegree = 60000;
    const QRectF box(place(shape.box.topLeft()), place(shape.box.bottomRight()));
    const QByteArray turn = std::abs(shape.angle) < 0.01
                                ? QByteArray()
                                : " rot=\"" + measure(shape.angle * minuteOfDegree) + "\"";
    const double size = qMax(shape.fontSize * m_scale / unitsPerPoint * 100, 100.0);
    const QByteArray family = escaped(shape.family);
    return "<p:sp><p:nvSpPr>" + numbered("Text", index) +
           "<p:cNvSpPr txBox=\"1\"/><p:nvPr/></p:nvSpPr><p:spPr>" + frame(box, turn) +
           "<a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom><a:noFill/></p:spPr>"
           "<p:txBody><a:bodyPr wrap=\"none\" lIns=\"0\" tIns=\"0\" rIns=\"0\" bIns=\"0\" "
           "anchor=\"ctr\"/><a:lstStyle/><a:p><a:pPr algn=\"ctr\"/><a:r><a:rPr sz=\"" +
           measure(size) + "\"" + (shape.isBold ? " b=\"1\"" : "") +
           (shape.isItalic ? " i=\"1\"" : "") + ">" + colour(shape.colour) +
           "<a:latin typeface=\"" + family + "\"/><a:ea typeface=\"" + family + "\"/>" +
           linkOf(shape) + "</a:rPr><a:t>" + escaped(shape.text) +
           "</a:t></a:r></a:p></p:txBody></p:sp>";
}

QByteArray SlideBuilder::element(int index)
{
    const SlideShape &shape = m_shapes[size_t(index)];
    if (!shape.text.isEmpty())
        return textBox(index);
    return SlideConnections::isLine(shape) ? straightLine(index) : freeform(index);
}

/** Shapes that are moved as one, under their title. */
QByteArray SlideBuilder::group(const std::vector<int> &members)
{
    QByteArray content;
    QStringList title;
    QRectF bounds;
    for (const int member : members) {
        const SlideShape &shape = m_shapes[size_t(member)];
        content += element(member);
        bounds |= SlideGroups::boundsOf(shape);
        if (!shape.text.isEmpty())
            title.append(shape.text);
    }
    const int id = firstId + int(m_shapes.size() + m_connections.joints().size()) + m_groups++;
    return "<p:grpSp><p:nvGrpSpPr>" + named(id, escaped(title.join(QLatin1Char(' ')))) +
           "<p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr>" +
           groupFrame(QRectF(place(bounds.topLeft()), place(bounds.bottomRight()))) +
           "</p:grpSpPr>" + content + "</p:grpSp>";
}

bool SlideBuilder::writeShapes(QByteArray &shapes, const Goes &goes)
{
    for (int i = 0; i < int(m_connections.joints().size()); ++i)
        shapes += joint(i);
    std::size_t done = 0;
    for (const std::vector<int> &members : SlideGroups::of(m_shapes, m_connections)) {
        if (!goes(double(done) / double(m_shapes.size())))
            return false;
        shapes += members.size() > 1 ? group(members) : element(members.front());
        done += members.size();
    }
    return true;
}

QByteArray SlideBuilder::slide(const QByteArray &shapes) const
{
    int causes = -1; // the head is none
    OutlineWalk::walk(m_head, [&causes](const TreeItem &, int) { ++causes; });
    const QRectF rect(m_origin, m_drawing.size() * m_scale);
    const QByteArray alternative = escaped(
        SlideExport::tr("Fishbone diagram \"%1\" with %2 causes").arg(m_head.title()).arg(causes));
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
           "<p:sld xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" "
           "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\" "
           "xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\"><p:cSld>"
           "<p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/><p:cNvGrpSpPr/><p:nvPr/>"
           "</p:nvGrpSpPr><p:grpSpPr/><p:grpSp><p:nvGrpSpPr><p:cNvPr id=\"2\" "
           "name=\"Fishbone\" descr=\"" +
           alternative + "\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr>" +
           groupFrame(rect) + "</p:grpSpPr>" + shapes +
           "</p:grpSp></p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr>"
           "</p:sld>";
}
