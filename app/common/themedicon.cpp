// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/themedicon.h>

#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <memory>

namespace {

/** Draws @p picture, whose lines are black, in @p color. */
QPixmap drawn(QByteArray picture, const QColor &color, int side)
{
    picture.replace("#000000", color.name().toLatin1());
    QSvgRenderer renderer(picture);
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

/** Draws a picture in the sizes that are asked for, when they are: most icons stand in menus that
 * nobody opens, and to draw them all beforehand was a third of the start of the program. */
class DrawnIcon : public QIconEngine
{
public:
    DrawnIcon(QByteArray picture, const QPalette &palette)
        : m_picture(std::move(picture))
        , m_normal(palette.color(QPalette::Active, QPalette::WindowText))
        , m_disabled(palette.color(QPalette::Disabled, QPalette::WindowText))
    {
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        Q_UNUSED(state)
        const int side = qMin(size.width(), size.height());
        if (side <= 0)
            return {};
        const bool isDisabled = mode == QIcon::Disabled;
        QPixmap &known = (isDisabled ? m_disabledBySide : m_normalBySide)[side];
        if (known.isNull())
            known = drawn(m_picture, isDisabled ? m_disabled : m_normal, side);
        return known;
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QPixmap shown =
            pixmap(rect.size() * painter->device()->devicePixelRatioF(), mode, state);
        QRect square(rect.topLeft(), QSize(1, 1) * qMin(rect.width(), rect.height()));
        square.moveCenter(rect.center());
        painter->drawPixmap(square, shown);
    }

    QIconEngine *clone() const override { return std::make_unique<DrawnIcon>(*this).release(); }

private:
    QByteArray m_picture;
    QColor m_normal;
    QColor m_disabled;
    QHash<int, QPixmap> m_normalBySide;
    QHash<int, QPixmap> m_disabledBySide;
};

} // namespace

namespace ThemedIcon {

QIcon icon(const QString &name, const QPalette &palette)
{
    QFile file(QStringLiteral(":/app/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(std::make_unique<DrawnIcon>(file.readAll(), palette).release());
}

} // namespace ThemedIcon
