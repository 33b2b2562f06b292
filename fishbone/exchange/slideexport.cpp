// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/slideexport.h>

#include <fishbone/base/filereplacement.h>
#include <fishbone/drawing/screenonly.h>
#include <fishbone/exchange/linksafety.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/scenepainter.h>
#include <fishbone/exchange/slidedevice.h>
#include <fishbone/exchange/slidepackage.h>

#include <QDateTime>
#include <QGraphicsScene>
#include <QHash>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

using SlidePackage::escaped;

constexpr qint64 wideSlide = 12192000; ///< in English metric units, 914,400 an inch
constexpr qint64 narrowSlide = 9144000;
constexpr qint64 slideHeight = 6858000;
constexpr double filled = 0.94; ///< the share of the slide that the drawing takes
constexpr double unitsPerPoint = 12700;

QByteArray measure(double value)
{
    return QByteArray::number(qint64(std::llround(value)));
}

QString hex(const QColor &colour)
{
    return colour.name().mid(1).toUpper();
}

/** Makes the elements of a slide of shapes. */
class SlideBuilder
{
public:
    SlideBuilder(const std::vector<SlideShape> &shapes, const TreeItem &head, const QRectF &drawing,
                 qint64 width)
        : m_shapes(shapes)
        , m_head(head)
        , m_drawing(drawing)
        , m_width(width)
    {
        m_scale =
            filled * qMin(double(width) / drawing.width(), double(slideHeight) / drawing.height());
        m_origin = QPointF((double(width) - drawing.width() * m_scale) / 2,
                           (double(slideHeight) - drawing.height() * m_scale) / 2);
        findAccents();
    }

    SlidePackage::Content content()
    {
        SlidePackage::Content content;
        content.slide = slide();
        content.slideRelations = m_relations;
        content.notes = notes();
        content.accents = m_accents;
        content.title = m_head.title();
        content.width = m_width;
        content.height = slideHeight;
        return content;
    }

private:
    /** The colours that most shapes have become those of the theme. */
    void findAccents()
    {
        QHash<QString, int> counts;
        for (const SlideShape &shape : m_shapes) {
            for (const QColor &colour : {shape.fill, shape.stroke, shape.colour}) {
                const bool isGrey =
                    colour.red() == colour.green() && colour.green() == colour.blue();
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

    QPointF place(const QPointF &point) const
    {
        return m_origin + (point - m_drawing.topLeft()) * m_scale;
    }

    QByteArray colour(const QColor &colour) const
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
        const QByteArray alpha =
            colour.alpha() == 255 ? QByteArray()
                                  : "<a:alpha val=\"" + measure(colour.alphaF() * whole) + "\"/>";
        return "<a:solidFill><" + name + " val=\"" + value + "\">" + alpha + "</" + name +
               "></a:solidFill>";
    }

    QByteArray line(const SlideShape &shape) const
    {
        if (!shape.stroke.isValid())
            return "<a:ln><a:noFill/></a:ln>";
        return "<a:ln w=\"" + measure(qMax(shape.width * m_scale, 1.0)) + "\" cap=\"rnd\">" +
               colour(shape.stroke) + (shape.isDashed ? "<a:prstDash val=\"dash\"/>" : "") +
               "</a:ln>";
    }

    QByteArray name(const QByteArray &kind, const QByteArray &more = {})
    {
        const QByteArray id = QByteArray::number(++m_id);
        return "<p:cNvPr id=\"" + id + "\" name=\"" + kind + " " + id + "\">" + more + "</p:cNvPr>";
    }

    static QByteArray frame(const QRectF &rect, const QByteArray &attributes)
    {
        return "<a:xfrm" + attributes + "><a:off x=\"" + measure(rect.x()) + "\" y=\"" +
               measure(rect.y()) + "\"/><a:ext cx=\"" + measure(rect.width()) + "\" cy=\"" +
               measure(rect.height()) + "\"/></a:xfrm>";
    }

    QByteArray straightLine(const SlideShape &shape)
    {
        const QPointF from = place(shape.path.elementAt(0));
        const QPointF to = place(shape.path.elementAt(1));
        QByteArray flips;
        if (to.x() < from.x())
            flips += " flipH=\"1\"";
        if (to.y() < from.y())
            flips += " flipV=\"1\"";
        return "<p:cxnSp><p:nvCxnSpPr>" + name("Line") +
               "<p:cNvCxnSpPr/><p:nvPr/></p:nvCxnSpPr><p:spPr>" +
               frame(QRectF(from, to).normalized(), flips) +
               "<a:prstGeom prst=\"line\"><a:avLst/></a:prstGeom>" + line(shape) +
               "</p:spPr></p:cxnSp>";
    }

    static QByteArray point(const QPointF &point)
    {
        return "<a:pt x=\"" + measure(point.x()) + "\" y=\"" + measure(point.y()) + "\"/>";
    }

    QByteArray geometry(const QPainterPath &path, const QRectF &bounds) const
    {
        QByteArray steps;
        for (int i = 0; i < path.elementCount(); ++i) {
            const QPainterPath::Element element = path.elementAt(i);
            const auto at = [&](int index) {
                return point(place(path.elementAt(index)) - bounds.topLeft());
            };
            if (element.isMoveTo()) {
                steps += "<a:moveTo>" + at(i) + "</a:moveTo>";
            } else if (element.isLineTo()) {
                steps += "<a:lnTo>" + at(i) + "</a:lnTo>";
            } else if (i + 2 < path.elementCount()) {
                steps += "<a:cubicBezTo>" + at(i) + at(i + 1) + at(i + 2) + "</a:cubicBezTo>";
                i += 2;
            }
        }
        return "<a:custGeom><a:avLst/><a:gdLst/><a:ahLst/><a:cxnLst/>"
               "<a:rect l=\"0\" t=\"0\" r=\"r\" b=\"b\"/><a:pathLst><a:path w=\"" +
               measure(bounds.width()) + "\" h=\"" + measure(bounds.height()) + "\">" + steps +
               "</a:path></a:pathLst></a:custGeom>";
    }

    QByteArray freeform(const SlideShape &shape)
    {
        const QRectF rect = shape.path.controlPointRect();
        const QRectF bounds(place(rect.topLeft()), place(rect.bottomRight()));
        return "<p:sp><p:nvSpPr>" + name("Shape") + "<p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr>" +
               frame(bounds, {}) + geometry(shape.path, bounds) +
               (shape.fill.isValid() ? colour(shape.fill) : QByteArray("<a:noFill/>")) +
               line(shape) + "</p:spPr></p:sp>";
    }

    /** A relation to where @p link leads, once each. */
    QByteArray relationTo(const QString &link)
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

    QByteArray linkOf(const SlideShape &shape)
    {
        const QString link = LinkSafety::webOrMail(shape.link);
        return link.isEmpty() ? QByteArray() : "<a:hlinkClick r:id=\"" + relationTo(link) + "\"/>";
    }

    QByteArray textBox(const SlideShape &shape)
    {
        constexpr double minuteOfDegree = 60000;
        const QRectF box(place(shape.box.topLeft()), place(shape.box.bottomRight()));
        const QByteArray turn = std::abs(shape.angle) < 0.01
                                    ? QByteArray()
                                    : " rot=\"" + measure(shape.angle * minuteOfDegree) + "\"";
        const double size = qMax(shape.fontSize * m_scale / unitsPerPoint * 100, 100.0);
        const QByteArray family = escaped(shape.family);
        return "<p:sp><p:nvSpPr>" + name("Text") +
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

    QByteArray slide()
    {
        QByteArray shapes;
        for (const SlideShape &shape : m_shapes) {
            const bool isLine = shape.path.elementCount() == 2 && !shape.fill.isValid();
            if (!shape.text.isEmpty())
                shapes += textBox(shape);
            else
                shapes += isLine ? straightLine(shape) : freeform(shape);
        }
        int causes = -1; // the head is none
        OutlineWalk::walk(m_head, [&causes](const TreeItem &, int) { ++causes; });
        const QRectF rect(m_origin, m_drawing.size() * m_scale);
        const QByteArray alternative =
            escaped(SlideExport::tr("Fishbone diagram \"%1\" with %2 causes")
                        .arg(m_head.title())
                        .arg(causes));
        QByteArray group = frame(rect, {});
        group.insert(group.indexOf("</a:xfrm>"), "<a:chOff x=\"" + measure(rect.x()) + "\" y=\"" +
                                                     measure(rect.y()) + "\"/><a:chExt cx=\"" +
                                                     measure(rect.width()) + "\" cy=\"" +
                                                     measure(rect.height()) + "\"/>");
        return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
               "<p:sld xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\" "
               "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\" "
               "xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\"><p:cSld>"
               "<p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/><p:cNvGrpSpPr/><p:nvPr/>"
               "</p:nvGrpSpPr><p:grpSpPr/><p:grpSp><p:nvGrpSpPr><p:cNvPr id=\"2\" "
               "name=\"Fishbone\" descr=\"" +
               alternative + "\"/><p:cNvGrpSpPr/><p:nvPr/></p:nvGrpSpPr><p:grpSpPr>" + group +
               "</p:grpSpPr>" + shapes +
               "</p:grpSp></p:spTree></p:cSld><p:clrMapOvr><a:masterClrMapping/></p:clrMapOvr>"
               "</p:sld>";
    }

    static QByteArray paragraph(const QString &text)
    {
        return "<a:p><a:r><a:rPr/><a:t>" + escaped(text) + "</a:t></a:r></a:p>";
    }

    /** The outline, and below it what is to be done by whom. */
    QByteArray notes() const
    {
        QByteArray text;
        QByteArray actions;
        OutlineWalk::walk(m_head, [&](const TreeItem &subject, int level) {
            constexpr int step = 4;
            text +=
                paragraph(QString(level * step, QChar(QChar::Nbsp)) + subject.title().simplified());
            QStringList parts;
            if (!subject.managerName().isEmpty())
                parts.append(subject.managerName());
            if (subject.planEndDate() != 0)
                parts.append(QDateTime::fromMSecsSinceEpoch(subject.planEndDate())
                                 .date()
                                 .toString(Qt::ISODate));
            if (subject.progress() > 0)
                parts.append(QStringLiteral("%1 %").arg(subject.progress()));
            if (!parts.isEmpty())
                actions += paragraph(QStringLiteral("%1: %2").arg(subject.title().simplified(),
                                                                  parts.join(QLatin1String(", "))));
        });
        return actions.isEmpty() ? text : text + paragraph(SlideExport::tr("Actions")) + actions;
    }

    const std::vector<SlideShape> &m_shapes;
    const TreeItem &m_head;
    const QRectF m_drawing;
    const qint64 m_width;
    double m_scale = 1;
    QPointF m_origin;
    QStringList m_accents;
    QHash<QString, QByteArray> m_linkIds; ///< of their relations
    QByteArray m_relations;
    int m_relation = 2; ///< the layout and the notes come first
    int m_id = 2;       ///< the page and the group come first
};

} // namespace

bool SlideExport::isSlide(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".pptx"), Qt::CaseInsensitive);
}

SlideExport::Aspect SlideExport::aspectFor(const QSizeF &page)
{
    constexpr double betweenAspects = 1.5;
    return !page.isEmpty() && page.width() < betweenAspects * page.height() ? Aspect::Narrow
                                                                            : Aspect::Wide;
}

QByteArray SlideExport::presentation(QGraphicsScene &scene, const TreeItem &head, Aspect aspect,
                                     QString *error)
{
    const SceneExtent extent = extentOf(scene);
    const QRectF &drawing = extent.rect;
    if (drawing.isEmpty()) {
        if (error)
            *error = tr("there is nothing to draw");
        return QByteArray();
    }
    SlideDevice device(drawing.size().toSize());
    QPainter painter(&device);
    ScenePainter items(scene, extent, drawing, drawing);
    items.setObserver([&device](const QGraphicsItem &item) {
        const TreeItem *const subject = subjectOfTitle(item);
        device.setLink(subject ? subject->url() : QString());
    });
    items.paint(painter, [](int) { return true; });
    painter.end();
    const qint64 width = aspect == Aspect::Wide ? wideSlide : narrowSlide;
    SlideBuilder builder(device.shapes(), head, drawing, width);
    return ZipWriter::archive(SlidePackage::parts(builder.content()));
}

bool SlideExport::write(QGraphicsScene &scene, const TreeItem &head, const QString &fileName,
                        Aspect aspect, QString *error)
{
    const QByteArray bytes = presentation(scene, head, aspect, error);
    if (bytes.isEmpty())
        return false;
    const QString failure = replaceFile(fileName, bytes);
    if (error)
        *error = failure;
    return failure.isEmpty();
}
