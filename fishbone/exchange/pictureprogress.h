// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/pictureexport.h>

#include <QBuffer>
#include <QImage>

/** Tells whoever waits for a picture how far it is, and hears whether it is still wanted. */
class PictureProgress
{
    Q_DISABLE_COPY(PictureProgress)

public:
    /** Of a picture of @p pieces pieces with @p options, which live on. */
    PictureProgress(const PictureOptions &options, int pieces)
        : m_options(options)
        , m_steps(pieces + 1)
    {
    }

    /** Reports @p done pieces; false once the picture is not wanted any more. */
    bool goesOn(int done);
    /** Asks without having done more. */
    bool goesOn() { return goesOn(m_done); }
    /** Says what has become of the picture, when its last step did so or not. */
    PictureExport::Result outcome(bool isComplete) const;
    /** Reports that all is done. The picture may have been cancelled at last. */
    PictureExport::Result finish();

private:
    const PictureOptions &m_options;
    const int m_steps; ///< one a piece, and one for what is done with them in the end
    int m_done = 0;
    bool m_isCancelled = false;
};

/**
 * Takes the bytes of a picture, and drops them when it is not wanted any more. Refused they are
 * not: the toolkit's encoders would lose what they hold.
 */
class PictureBytes : public QBuffer
{
public:
    /** Puts them into @p bytes. */
    PictureBytes(QByteArray *bytes, PictureProgress &progress)
        : QBuffer(bytes)
        , m_progress(progress)
    {
        open(QIODevice::WriteOnly);
    }

    /** The format of an image that is painted on @p background and then encoded. */
    static QImage::Format formatOn(const QColor &background);
    /** Encodes @p image. False when that was not possible. */
    bool savePng(const QImage &image);

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        return m_progress.goesOn() ? QBuffer::writeData(data, size) : size;
    }

private:
    PictureProgress &m_progress;
};
