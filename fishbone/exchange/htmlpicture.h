// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QString>

class ClearPicture;
class QIODevice;

/**
 * Writes a drawing as one web page that needs nothing else: the drawing with folding, search, zoom,
 * links and details, for mouse, keyboard and screen reader, light and dark as the browser is.
 *
 * The page forbids every script but its own, all that would be loaded, and referrers; what comes
 * out of a document is text in it and nothing else.
 */
class HtmlPicture
{
    Q_DECLARE_TR_FUNCTIONS(HtmlPicture)

public:
    /** Writes @p picture, titled @p title, to @p device, which is open; in @p language, as "en" or
     * "zh-CN". False when that could not be written, or when whoever
     * follows the picture has ended it. */
    static bool write(const ClearPicture &picture, const QString &title, const QString &language,
                      QIODevice &device);

private:
    static QByteArray head(const QString &title, const QString &language, const QByteArray &style);
    static QByteArray bar(const QString &title);
    static QByteArray details();
    static QByteArray data(const ClearPicture &picture);
};
