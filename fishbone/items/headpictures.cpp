// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/headpictures.h>

#include <memory>
#include <utility>

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <fishbone/items/spearitem.h>
#include <fishbone/items/svgcache.h>

namespace {
QString headFile()
{
    return QStringLiteral(":/fishboneDiagram/head.svg");
}

QString tailFile()
{
    return QStringLiteral(":/fishboneDiagram/tail.svg");
}

/** A picture as it was loaded from its file, to be told from one that a host has assigned. */
struct Loaded
{
    QString (*file)();
    qint64 key = 0; ///< of the pixmap; 0 when the file was missing
};

Loaded loadedHead{headFile};
Loaded loadedTail{tailFile};

QPixmap loadedPicture(const QString &file)
{
    QSvgRenderer *const renderer = sharedSvgRenderer(file);
    if (!renderer)
        return QPixmap(file);
    QPixmap picture(renderer->defaultSize());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer->render(&painter);
    return picture;
}

void loadPicture(QPixmap *&picture, Loaded &loaded)
{
    if (picture)
        return;
    picture = std::make_unique<QPixmap>(loadedPicture(loaded.file())).release();
    loaded.key = picture->cacheKey();
}

void loadMissingPicture(QPixmap *picture, Loaded &loaded)
{
    if (!picture || loaded.key != 0 || !picture->isNull())
        return;
    *picture = loadedPicture(loaded.file());
    loaded.key = picture->cacheKey();
}

QSizeF sizeOf(const QPixmap *picture)
{
    return picture ? QSizeF(picture->size()) : QSizeF(0, 0);
}

qint64 keyOf(const QPixmap *picture)
{
    return picture ? picture->cacheKey() : 0;
}

/** From the vectors where it was loaded from any, so that it stays sharp at every zoom and in every
 * export. */
void paintPicture(QPainter &painter, const QPointF &topLeft, const QPixmap &picture,
                  const Loaded &loaded)
{
    QSvgRenderer *const renderer =
        picture.cacheKey() == loaded.key ? sharedSvgRenderer(loaded.file()) : nullptr;
    if (renderer)
        renderer->render(&painter, QRectF(topLeft, QSizeF(picture.size())));
    else
        painter.drawPixmap(topLeft, picture);
}

bool isThere(const QPixmap *picture)
{
    return picture && !picture->isNull();
}
} // namespace

void HeadPictures::load()
{
    loadPicture(SpearItem::m_pixHeader, loadedHead);
    loadPicture(SpearItem::m_pixTail, loadedTail);
}

void HeadPictures::loadMissing()
{
    loadMissingPicture(SpearItem::m_pixHeader, loadedHead);
    loadMissingPicture(SpearItem::m_pixTail, loadedTail);
}

void HeadPictures::release()
{
    delete std::exchange(SpearItem::m_pixHeader, nullptr);
    delete std::exchange(SpearItem::m_pixTail, nullptr);
}

QSizeF HeadPictures::headSize()
{
    return sizeOf(SpearItem::m_pixHeader);
}

QSizeF HeadPictures::tailSize()
{
    return sizeOf(SpearItem::m_pixTail);
}

qint64 HeadPictures::key()
{
    return keyOf(SpearItem::m_pixHeader) * 31 + keyOf(SpearItem::m_pixTail);
}

void HeadPictures::paint(QPainter &painter, const QLineF &backbone)
{
    // Whole pixels above the line, so that a picture of odd height is not blurred.
    if (const QPixmap *const head = SpearItem::m_pixHeader; isThere(head)) {
        const int above = head->height() / 2;
        paintPicture(painter, backbone.p1() - QPointF(0, above), *head, loadedHead);
    }
    if (const QPixmap *const tail = SpearItem::m_pixTail; isThere(tail)) {
        const int above = tail->height() / 2;
        paintPicture(painter, backbone.p2() - QPointF(tail->width(), above), *tail, loadedTail);
    }
}
