// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/linksafety.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/xmlsupport.h>

#include <QXmlStreamWriter>

#include <vector>

namespace {

constexpr int boxWidth = 160;
constexpr int boxHeight = 40;
constexpr int columnGap = 60;
constexpr int rowGap = 20;

/** A box of the drawing. */
struct Box
{
    const TreeItem *subject;
    int parent; ///< another box; -1 for the head
    int level;
    double y = 0; ///< of its middle
};

/** Places each box beside the middle of those that belong to it. */
std::vector<Box> placed(const TreeItem &head)
{
    std::vector<Box> boxes;
    std::vector<int> path;
    OutlineWalk::walk(head, [&](const TreeItem &subject, int level) {
        path.resize(std::size_t(level));
        boxes.push_back({&subject, path.empty() ? -1 : path.back(), level});
        path.push_back(int(boxes.size()) - 1);
    });
    std::vector<double> first(boxes.size(), -1); ///< the middle of the first child
    int leaves = 0;
    // Parents stand before their children, so that leaves are numbered downwards.
    for (Box &box : boxes) {
        if (box.subject->childCount() == 0)
            box.y = leaves++ * (boxHeight + rowGap);
    }
    std::vector<double> last(boxes.size(), 0);
    for (std::size_t i = boxes.size(); i-- > 0;) {
        Box &box = boxes[i];
        if (box.subject->childCount() > 0)
            box.y = (first[i] + last[i]) / 2;
        if (box.parent < 0)
            continue;
        const auto parent = std::size_t(box.parent);
        if (first[parent] < 0)
            last[parent] = box.y;
        first[parent] = box.y;
    }
    return boxes;
}

void writeGeometry(QXmlStreamWriter &xml, const Box &box)
{
    xml.writeEmptyElement(QStringLiteral("mxGeometry"));
    xml.writeAttribute(QStringLiteral("x"), QString::number(box.level * (boxWidth + columnGap)));
    xml.writeAttribute(QStringLiteral("y"), QString::number(box.y));
    xml.writeAttribute(QStringLiteral("width"), QString::number(boxWidth));
    xml.writeAttribute(QStringLiteral("height"), QString::number(boxHeight));
    xml.writeAttribute(QStringLiteral("as"), QStringLiteral("geometry"));
}

/** Writes a box; what it links to and its detail are those of the object around it. */
void writeBox(QXmlStreamWriter &xml, const Box &box, int number)
{
    const TreeItem &subject = *box.subject;
    xml.writeStartElement(QStringLiteral("UserObject"));
    xml.writeAttribute(QStringLiteral("label"), XmlSupport::storable(subject.title()));
    QStringList tooltip{subject.detail()};
    if (LinkSafety::runsCode(subject.url()))
        tooltip.append(subject.url());
    else if (!subject.url().isEmpty())
        xml.writeAttribute(QStringLiteral("link"), XmlSupport::storable(subject.url()));
    tooltip.removeAll(QString());
    if (!tooltip.isEmpty())
        xml.writeAttribute(QStringLiteral("tooltip"),
                           XmlSupport::storable(tooltip.join(QLatin1Char('\n'))));
    xml.writeAttribute(QStringLiteral("id"), QStringLiteral("n%1").arg(number));
    xml.writeStartElement(QStringLiteral("mxCell"));
    xml.writeAttribute(QStringLiteral("style"),
                       box.level == 0 ? QStringLiteral("rounded=1;whiteSpace=wrap;fontStyle=1;")
                                      : QStringLiteral("rounded=1;whiteSpace=wrap;"));
    xml.writeAttribute(QStringLiteral("vertex"), QStringLiteral("1"));
    xml.writeAttribute(QStringLiteral("parent"), QStringLiteral("1"));
    writeGeometry(xml, box);
    xml.writeEndElement();
    xml.writeEndElement();
}

void writeLine(QXmlStreamWriter &xml, const Box &box, int number)
{
    xml.writeStartElement(QStringLiteral("mxCell"));
    xml.writeAttribute(QStringLiteral("id"), QStringLiteral("e%1").arg(number));
    xml.writeAttribute(
        QStringLiteral("style"),
        QStringLiteral("edgeStyle=orthogonalEdgeStyle;endArrow=none;startArrow=block;"));
    xml.writeAttribute(QStringLiteral("edge"), QStringLiteral("1"));
    xml.writeAttribute(QStringLiteral("parent"), QStringLiteral("1"));
    xml.writeAttribute(QStringLiteral("source"), QStringLiteral("n%1").arg(box.parent));
    xml.writeAttribute(QStringLiteral("target"), QStringLiteral("n%1").arg(number));
    xml.writeEmptyElement(QStringLiteral("mxGeometry"));
    xml.writeAttribute(QStringLiteral("relative"), QStringLiteral("1"));
    xml.writeAttribute(QStringLiteral("as"), QStringLiteral("geometry"));
    xml.writeEndElement();
}

void writeLayer(QXmlStreamWriter &xml, const QString &id, const QString &parent)
{
    xml.writeEmptyElement(QStringLiteral("mxCell"));
    xml.writeAttribute(QStringLiteral("id"), id);
    if (!parent.isEmpty())
        xml.writeAttribute(QStringLiteral("parent"), parent);
}

QByteArray writeDrawIo(const TreeItem &head)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartElement(QStringLiteral("mxfile"));
    xml.writeAttribute(QStringLiteral("host"), QStringLiteral("fishbone"));
    xml.writeStartElement(QStringLiteral("diagram"));
    xml.writeAttribute(QStringLiteral("id"), QStringLiteral("fishbone"));
    xml.writeAttribute(QStringLiteral("name"), XmlSupport::storable(head.title()));
    xml.writeStartElement(QStringLiteral("mxGraphModel"));
    xml.writeStartElement(QStringLiteral("root"));
    writeLayer(xml, QStringLiteral("0"), QString());
    writeLayer(xml, QStringLiteral("1"), QStringLiteral("0"));
    const std::vector<Box> boxes = placed(head);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        writeBox(xml, boxes[i], int(i));
        if (boxes[i].parent >= 0)
            writeLine(xml, boxes[i], int(i));
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
    return bytes.trimmed() + '\n';
}

} // namespace

const ExchangeFormat ExchangeFormats::drawIo{
    DiagramExchange::Format::DrawIo,
    "drawio",
    QT_TRANSLATE_NOOP("DiagramExchange", "draw.io diagram"),
    "drawio",
    "title children detail url",
    nullptr,
    writeDrawIo};
