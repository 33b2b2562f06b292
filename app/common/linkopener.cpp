// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/linkopener.h>

#include <fishbone/items/linkitem.h>

#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>
#include <QWidget>

LinkOpener::LinkOpener(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    // Later, since a question must not be asked in the middle of a mouse press.
    LinkItem::setOpener([this](const QUrl &url) {
        QMetaObject::invokeMethod(
            this, [this, url] { open(url); }, Qt::QueuedConnection);
    });
}

LinkOpener::~LinkOpener()
{
    LinkItem::setOpener({});
}

bool LinkOpener::isHarmless(const QUrl &url)
{
    const QString scheme = url.scheme();
    return scheme == QLatin1String("http") || scheme == QLatin1String("https") ||
           scheme == QLatin1String("mailto");
}

void LinkOpener::open(const QUrl &url)
{
    // What was typed without a scheme is a web page or a file.
    const QUrl target = url.scheme().isEmpty() ? QUrl::fromUserInput(url.toString()) : url;
    if (!isHarmless(target)) {
        QMessageBox question(QMessageBox::Question, tr("Open link"),
                             tr("This link is neither a web page nor a mail address. Open it?"),
                             QMessageBox::Open | QMessageBox::Cancel, m_window);
        question.setInformativeText(target.toDisplayString());
        question.setDefaultButton(QMessageBox::Cancel);
        if (question.exec() != QMessageBox::Open)
            return;
    }
    if (!QDesktopServices::openUrl(target))
        Q_EMIT failed(target);
}
