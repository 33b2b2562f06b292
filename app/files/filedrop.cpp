// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/filedrop.h>

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

QStringList sourcesOf(const QMimeData &data)
{
    QStringList sources;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            sources.append(url.toLocalFile());
        else if (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"))
            sources.append(url.toString(QUrl::FullyEncoded));
    }
    return sources;
}

} // namespace

FileDrop::FileDrop(QObject *parent)
    : QObject(parent)
{
}

void FileDrop::watch(QWidget *widget)
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *const drop = static_cast<QDropEvent *>(event); // the base of all three
    const QStringList sources = sourcesOf(*drop->mimeData());
    if (sources.isEmpty())
        return QObject::eventFilter(watched, event);
    drop->setDropAction(Qt::CopyAction); // the file stays where it is
    drop->accept();
    if (type == QEvent::Drop)
        Q_EMIT dropped(sources);
    return true;
}
