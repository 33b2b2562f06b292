// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/diagramlook.h>

#include <QJsonObject>
#include <QString>

/** How a document is shown: its look, what is chosen of that, and what it was arranged for. */
struct DiagramView
{
    DiagramLook::Kind look = DiagramLook::Clear;
    QString page; ///< the name of the PageSize it was arranged for; empty for the screen
    DiagramLook::Options options;

    /** The view that @p fields, those of FishInfo::view(), tell; @p usual when they tell none. */
    static DiagramView of(const QJsonObject &fields, const DiagramView &usual);
    /** Stores it in @p fields, of which others stay as they are. */
    void store(QJsonObject &fields) const;

    /** What the user has chosen last, for documents that tell no view. While nothing was chosen
     * the head stands on the side that the language reads towards. */
    static DiagramView usual();
    /** Makes it the usual one, but for what suits one diagram alone: how it is arranged. */
    void becomeUsual() const;

    /** Takes back what was arranged for a page. */
    void arrangeForScreen();

    bool operator==(const DiagramView &other) const
    {
        return look == other.look && page == other.page && options == other.options;
    }
    bool operator!=(const DiagramView &other) const { return !(*this == other); }
};
