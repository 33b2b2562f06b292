// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/exchange/exchangefixture.h>

#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/ziparchive.h>

#include <QGraphicsLineItem>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>

#include <memory>

/** What tests of slides draw, and how they look into them. */
namespace SlideFixture {

inline const QString slidePart = QStringLiteral("ppt/slides/slide1.xml");

/** A part of a presentation, empty when there is none. */
inline QByteArray partOf(const QByteArray &presentation, const QString &name)
{
    ImportedTree tree;
    ZipReader archive(presentation, tree);
    return archive.file(name).value_or(QByteArray());
}

/** A bone, a box and a title, 400 x 100 units large. */
inline std::unique_ptr<QGraphicsScene> scene()
{
    auto scene = std::make_unique<QGraphicsScene>();
    scene->addRect(QRectF(0, 0, 400, 100), QPen(Qt::NoPen), QBrush(QColor(0x10, 0x80, 0x30)));
    scene->addLine(QLineF(10, 90, 390, 10), QPen(QColor(0x80, 0x10, 0x10), 2));
    QGraphicsSimpleTextItem *const text = scene->addSimpleText(QStringLiteral("Late"));
    text->setPos(150, 40);
    text->setBrush(Qt::black);
    return scene;
}

/** The subjects of scene(). */
inline std::unique_ptr<TreeItem> tree()
{
    return ExchangeFixture::treeFrom("Late[Carrier[No vehicle],Stock]");
}

} // namespace SlideFixture
