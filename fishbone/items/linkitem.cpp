// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/linkitem.h>

#include <fishbone/base/filenames.h>

#include <QDesktopServices>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QUrl>

namespace {
QString iconFile()
{
    return QStringLiteral(":/fishboneDiagram/link.png");
}

std::function<void(const QUrl &)> &linkOpener()
{
    static std::function<void(const QUrl &)> opener;
    return opener;
}
} // namespace

LinkItem::LinkItem(const QString &url)
    : SvgItem(iconFile(), nullptr)
    , m_url(url)
    , m_leadsSomewhere(!url.isEmpty())
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

void LinkItem::updateSvgIcon()
{
    setSvgFile(iconFile());
}

void LinkItem::setOpener(std::function<void(const QUrl &)> opener)
{
    linkOpener() = std::move(opener);
}

void LinkItem::open(const QString &url)
{
    const QUrl target = FileNames::toUrl(url);
    // A copy, since an opener may well set another one.
    if (const auto opener = linkOpener())
        opener(target);
    else
        QDesktopServices::openUrl(target);
}

void LinkItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    // Held back, the mouse would press the link again when a dialog takes the release.
    if (scene() && scene()->mouseGrabberItem() == this)
        ungrabMouse();
    // What opens the link may show a dialog, edit or reload: this item may be gone afterwards.
    const QString url = m_url;
    open(url);
}
