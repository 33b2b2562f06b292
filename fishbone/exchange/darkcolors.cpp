// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/darkcolors.h>

#include <fishbone/drawing/clearpicture.h>
#include <fishbone/drawing/picturesink.h>

#include <QColor>
#include <QHash>

namespace {

/** The colours of all elements of a picture. */
class ElementColors : public PictureSink
{
public:
    struct Element
    {
        QColor fill;
        QColor stroke;

        bool operator==(const Element &other) const
        {
            return fill == other.fill && stroke == other.stroke;
        }
    };

    explicit ElementColors(const ClearPicture &picture) { picture.describe(*this); }

    const std::vector<Element> &all() const { return m_all; }

    void beginSubject(int, const PictureSubject &) override {}
    void endSubject() override {}
    void line(const QLineF &, const QPen &pen) override { m_all.push_back({{}, pen.color()}); }
    void shape(const QPainterPath &, const QColor &fill, const QColor &outline, qreal) override
    {
        m_all.push_back({fill, outline});
    }
    void box(const QRectF &, qreal, const QColor &fill) override { m_all.push_back({fill, {}}); }
    void text(const ClearText &, const QRectF &, ClearLabel::Side, const QColor &color) override
    {
        m_all.push_back({color, {}});
    }
    void icon(const QRectF &, const QString &) override {}

private:
    std::vector<Element> m_all;
};

QByteArray dressed(const char *property, const QColor &color)
{
    if (!color.isValid())
        return {};
    return QByteArray(property) + ':' + color.name().toLatin1() + ';' + property +
           "-opacity:" + QByteArray::number(color.alphaF(), 'g', 3) + ';';
}

} // namespace

DarkColors::DarkColors(const ClearPicture &light, const ClearPicture &dark)
{
    const std::vector<ElementColors::Element> before = ElementColors(light).all();
    const std::vector<ElementColors::Element> after = ElementColors(dark).all();
    if (before.size() != after.size())
        return;
    QHash<QByteArray, int> known; // by what a rule says
    m_places.reserve(after.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (before[i] == after[i]) {
            m_places.push_back(-1);
            continue;
        }
        const QByteArray rule = dressed("fill", after[i].fill) + dressed("stroke", after[i].stroke);
        auto place = known.constFind(rule);
        if (place == known.constEnd()) {
            place = known.insert(rule, m_classes.size());
            m_classes.append("k" + QByteArray::number(m_classes.size()));
            m_rules += "." + m_classes.constLast() + '{' + rule + "}\n";
        }
        m_places.push_back(*place);
    }
}

QByteArray DarkColors::classOf(int place) const
{
    const bool isKnown = place >= 0 && std::size_t(place) < m_places.size();
    const int found = isKnown ? m_places[std::size_t(place)] : -1;
    return found < 0 ? QByteArray() : m_classes.at(found);
}
