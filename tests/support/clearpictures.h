// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/clearpainter.h>
#include <fishbone/drawing/clearpicture.h>
#include <fishbone/items/taskstatusinfo.h>

#include <QImage>
#include <QPainter>

#include <vector>

/** Pictures of layouts, to look at and to compare. */
namespace ClearPictures {

/** What a picture of @p subjects needs; @p statuses may be shorter. */
inline ClearPictureContent contentOf(const std::vector<ClearSubject> &subjects,
                                     const std::vector<int> &statuses = {})
{
    ClearPictureContent content;
    content.subjects = subjects;
    content.linkIcon = QStringLiteral(":/fishboneDiagram/link.png");
    for (std::size_t i = 0; i < subjects.size(); ++i) {
        const int status = i < statuses.size() ? statuses[i] : int(tsRunning);
        ClearSubjectLook look;
        if (subjects[i].hasStatus)
            look.icon = TaskStatusInfo(TaskStatus(status), 40).iconPath();
        PictureSubject meaning;
        meaning.title = subjects[i].title;
        meaning.parent = subjects[i].parent;
        content.looks.push_back(look);
        content.meanings.push_back(meaning);
    }
    return content;
}

inline QImage paint(const ClearPicture &picture, qreal scale)
{
    const QRectF bounds = picture.bounds().adjusted(-8, -8, 8, 8);
    QImage image((bounds.size() * scale).toSize(), QImage::Format_RGB32);
    image.fill(picture.colors().paper());
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(-bounds.topLeft());
    ClearPainter sink(painter);
    picture.describe(sink);
    return image;
}

/**
 * How alike two pictures are: the share of pixels that differ by no more than a little, after both
 * are made small, so that the renderers' edges do not count.
 */
inline qreal likeness(const QImage &one, const QImage &other)
{
    const QSize size(one.width() / 4, one.height() / 4);
    const QImage a = one.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                         .convertToFormat(QImage::Format_RGB32);
    const QImage b = other.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                         .convertToFormat(QImage::Format_RGB32);
    int alike = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            alike += qAbs(qRed(p) - qRed(q)) < 48 && qAbs(qGreen(p) - qGreen(q)) < 48 &&
                     qAbs(qBlue(p) - qBlue(q)) < 48;
        }
    }
    return qreal(alike) / (size.width() * size.height());
}

} // namespace ClearPictures
