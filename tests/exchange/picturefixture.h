// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/pictureexport.h>

#include <tests/support/filecontent.h>

#include <QFile>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QImage>
#include <QtTest>

Q_DECLARE_METATYPE(PictureExport::Format)
Q_DECLARE_METATYPE(PictureExport::Error)
Q_DECLARE_METATYPE(PictureOptions)

/** Small scenes and pictures of them, for the tests of the export. */
namespace PictureFixture {

using TestSupport::contentOf;

using PictureFormat = PictureExport::Format;
using Error = PictureExport::Error;

/** A red rectangle of 40 x 20 at (100, 50), without an outline. */
inline QGraphicsRectItem *addRedRectangle(QGraphicsScene &scene)
{
    return scene.addRect(QRectF(100, 50, 40, 20), QPen(Qt::NoPen), QBrush(Qt::red));
}

inline PictureOptions withMargin(double margin)
{
    PictureOptions options;
    options.margin = margin;
    return options;
}

inline PictureOptions scaledBy(double scale)
{
    PictureOptions options;
    options.scale = scale;
    return options;
}

inline PictureOptions ofSize(const QSize &size)
{
    PictureOptions options;
    options.size = size;
    return options;
}

inline QByteArray rendered(QGraphicsScene &scene, PictureFormat format,
                           const PictureOptions &options = {})
{
    QByteArray picture;
    return PictureExport::render(scene, format, options, picture) ? picture : QByteArray();
}

inline QImage renderedPng(QGraphicsScene &scene, const PictureOptions &options = {})
{
    return QImage::fromData(rendered(scene, PictureFormat::Png, options), "PNG");
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

} // namespace PictureFixture
