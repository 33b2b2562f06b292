// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// A file of the global style from anywhere: read, drawn with, written and read again.

#include <fuzz/fuzzing.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/style/spearstyle.h>

#include <QGraphicsScene>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include <memory>

using namespace Fuzzing;

namespace {

QByteArray textOf(const SpearStyle &style)
{
    QJsonObject object;
    style.write(object);
    return QJsonDocument(object).toJson();
}

void drawWithGlobalStyle()
{
    QGraphicsScene scene;
    auto *const spear = new SpearItem(QStringLiteral("Man and machine"), 1, 20.0);
    scene.addItem(spear);
    QImage picture(64, 48, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    for (const bool selected : {false, true}) {
        spear->setSelected(selected);
        QPainter painter(&picture);
        scene.render(&painter);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startApplication();
    const QByteArray json(reinterpret_cast<const char *>(data), int(size));
    SpearStyle style;
    style.read(QJsonDocument::fromJson(json).object());
    const QByteArray first = textOf(style);
    SpearStyle again;
    again.read(QJsonDocument::fromJson(first).object());
    requireEqual(textOf(again), first, "a style that was written is read as it was");

    const QString path = SpearStyle::spearStyleFilePath();
    writeFile(path, json);
    SpearStyle::m_isGlobalInited = false;
    SpearStyle::global();
    drawWithGlobalStyle();
    SpearStyle::saveGlobal();
    if (SpearStyle::m_isGlobalInited)
        requireEqual(contentOf(path), textOf(*SpearStyle::global()), "the global style is saved");
    else
        requireEqual(contentOf(path), json, "a file that is no style is left alone");
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t room,
                                    unsigned int seed)
{
    return mutateJson(data, size, room, seed);
}
