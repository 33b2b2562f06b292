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

#include <fishbone/base/onepass.h>

namespace {
int parsedFiles = 0;

using PictureKey = QPair<const QSvgRenderer *, QPair<int, int>>;

constexpr int mostPictures = 1000; ///< a size a zoom step and file; small ones

/** What is known of a file. */
struct Known
{
    QSvgRenderer *renderer = nullptr;
    bool isMissing = true; ///< the file was not there when it was looked for
    OncePerPass lookup;
};

struct SvgCache
{
    QPointer<QCoreApplication> application;
    QHash<QString, Known> files;
    QHash<PictureKey, QPixmap> pictures;
};

/**
 * The cache of the running application; emptied when another application object took over, since
 * the renderers went with the previous one.
 */
SvgCache &currentCache()
{
    static SvgCache cache;
    if (cache.application != QCoreApplication::instance()) {
        cache.files.clear();
        cache.pictures.clear();
        cache.application = QCoreApplication::instance();
    }
    return cache;
}

QSvgRenderer *parsedRenderer(const QString &file, QObject *owner)
{
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
    Known &known = cache.files[file];
    if (!known.isMissing || !known.lookup.isDue())
        return known.renderer;
    // Asked first because the renderer complains about a file that is not there, and a host may
    // leave out pictures that it does not want.
    known.isMissing = !QFile::exists(file);
    if (!known.isMissing)
        known.renderer = parsedRenderer(file, cache.application);
    return known.renderer;
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
