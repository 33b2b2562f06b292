// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/themedicon.h>

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

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

} // namespace

namespace ThemedIcon {

QIcon icon(const QString &name, const QPalette &palette)
{
    QFile file(QStringLiteral(":/app/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray picture = file.readAll();
    QIcon icon;
    for (const int side : {16, 24, 32, 48}) {
        icon.addPixmap(drawn(picture, palette.color(QPalette::Active, QPalette::WindowText), side));
        icon.addPixmap(
            drawn(picture, palette.color(QPalette::Disabled, QPalette::WindowText), side),
            QIcon::Disabled);
    }
    return icon;
}

} // namespace ThemedIcon
