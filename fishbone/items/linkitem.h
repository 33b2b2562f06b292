// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <fishbone/items/svgitem.h>

class QUrl;

/** The icon of a subject's link; a left press opens the link. */
class FISHBONE_EXPORT LinkItem : public SvgItem
{
    Q_OBJECT

public:
    enum { Type = UserType + 3 };

    /** An icon for @p url, without a parent; a spear that is given the icon becomes its parent. */
    explicit LinkItem(const QString &url);

    int type() const override { return Type; }

    /** The link target as it was given. */
    const QString &url() const { return m_url; }
    /** Whether url() is @p url, and not empty; quick for the text that the icon was made with. */
    bool leadsTo(const QString &url) const
    {
        return m_leadsSomewhere && (m_url.isSharedWith(url) || m_url == url);
    }
    /** Shows the picture of a link, whatever was set meanwhile. */
    void updateSvgIcon();

    /**
     * Sets what opens links in this process, here and wherever else the library follows a link.
     * An empty function restores the desktop's own way.
     */
    static void setOpener(std::function<void(const QUrl &)> opener);
    /** Opens @p url, parsed tolerantly, with the opener that was set. */
    static void open(const QString &url);

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;

private:
    QString m_url;
    bool m_leadsSomewhere; ///< m_url is not empty
};
