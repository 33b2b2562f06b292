// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/picturesink.h>

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QSet>
#include <QSizeF>

class DarkColors;
class DescribedPicture;
class QIODevice;

/** What stands in the file of a vector picture besides the drawing. */
struct SvgPictureOptions
{
    QString title;       ///< of the file; empty for none
    QString description; ///< for whoever cannot see it; empty for its categories
    QColor background;   ///< what it is filled with; invalid for nothing
    qreal margin = 8;    ///< around the drawing
    QSizeF size;         ///< how large it is shown; empty for the drawing and its margin at 100 %
    /** Whether it becomes part of a page: then it needs no XML declaration, and says of each
     * subject what a script and assistive technology want to know. */
    bool isPart = false;
    /** Gives elements the classes that look otherwise in the dark; null for a file without. */
    const DarkColors *dark = nullptr;
};

/**
 * Writes a drawing as SVG: small, with real texts, links, and each icon once.
 *
 * What comes out of a document stays text: characters with a meaning in XML are replaced, those
 * that XML cannot hold are dropped, links lead to the web or to mail only, and ids are made of
 * harmless characters. Each text has its width with it, so that in another font it still fits. The
 * file is written as it is described and never held in memory.
 */
class SvgPicture : public PictureSink
{
public:
    /** Writes @p picture to @p device, which is open. False when that could not be written, or when
     * whoever follows the picture has ended it. */
    static bool write(const DescribedPicture &picture, const SvgPictureOptions &options,
                      QIODevice &device);

    /** @p text as it may stand in XML, between tags as in attributes. */
    static QByteArray escaped(const QString &text);

    void beginSubject(int index, const PictureSubject &subject) override;
    void endSubject() override;
    void line(const QLineF &line, const QPen &pen) override;
    void shape(const QPainterPath &path, const QColor &fill, const QColor &outline,
               qreal width) override;
    void box(const QRectF &rect, qreal radius, const QColor &fill) override;
    void text(const ClearText &text, const QRectF &rect, ClearLabel::Side side,
              const QColor &color) override;
    void icon(const QRectF &rect, const QString &file) override;

private:
    explicit SvgPicture(QIODevice &device)
        : m_device(device)
    {
    }

    void begin(const DescribedPicture &picture, const SvgPictureOptions &options);
    void defineIcon(const QString &file);
    void put(const QByteArray &bytes);
    void flush();
    QByteArray idOf(int index, const QString &wanted);
    void openLink();
    QByteArray elementClass();
    static QByteArray roleOf(const PictureSubject &subject);

    QIODevice &m_device;
    QByteArray m_buffer;
    QHash<QString, QByteArray> m_icons; ///< the ids of their symbols
    QSet<QByteArray> m_ids;
    const DarkColors *m_dark = nullptr;
    int m_elements = 0; ///< so many were described that have a colour
    QString m_link;     ///< of the subject, until its text begins
    bool m_hasOpenLink = false;
    bool m_isPart = false;
    bool m_isGood = true;
};
