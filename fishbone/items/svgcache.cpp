// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/svgcache.h>

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPointer>
#include <QSvgRenderer>

#include <memory>

namespace {
int parsedFiles = 0;

using PictureKey = QPair<const QSvgRenderer *, QPair<int, int>>;

constexpr int mostPictures = 1000; ///< a size a zoom step and file; small ones

struct SvgCache
{
    QPointer<QCoreApplication> application;
    QHash<QString, QSvgRenderer *> renderers;
    QHash<PictureKey, QPixmap> pictures;
};

/// The cache of the running application; emptied when another application object took over, since
/// the renderers went with the previous one.
SvgCache &currentCache()
{
    static SvgCache cache;
    if (cache.application != QCoreApplication::instance()) {
        cache.renderers.clear();
        cache.pictures.clear();
        cache.application = QCoreApplication::instance();
    }
    return cache;
}

QSvgRenderer *parsedRenderer(const QString &file, QObject *owner)
{
    // Asked first because the renderer complains about a file that is not there, and a host may
    // leave out pictures that it does not want.
    if (!QFile::exists(file))
        return nullptr;
    ++parsedFiles;
    auto renderer = std::make_unique<QSvgRenderer>(file);
    if (!renderer->isValid())
        return nullptr;
    renderer->setParent(owner);
    return renderer.release();
}
} // namespace

QSvgRenderer *sharedSvgRenderer(const QString &file)
{
    if (file.isEmpty())
        return nullptr;
    SvgCache &cache = currentCache();
    const auto known = cache.renderers.constFind(file);
    if (known != cache.renderers.constEnd())
        return known.value();
    QSvgRenderer *const renderer = parsedRenderer(file, cache.application);
    cache.renderers.insert(file, renderer);
    return renderer;
}

QPixmap screenPicture(const QString &file, const QSize &devicePixels)
{
    QSvgRenderer *const renderer = sharedSvgRenderer(file);
    if (!renderer)
        return QPixmap();
    QHash<PictureKey, QPixmap> &pictures = currentCache().pictures;
    const PictureKey key(renderer, {devicePixels.width(), devicePixels.height()});
    const auto known = pictures.constFind(key);
    if (known != pictures.constEnd())
        return known.value();
    if (pictures.size() >= mostPictures)
        pictures.clear();
    QPixmap picture(devicePixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer->render(&painter);
    return *pictures.insert(key, picture);
}

int parsedSvgFileCount()
{
    return parsedFiles;
}
