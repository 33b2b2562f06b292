// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/keepclear.h>

#include <QRect>
#include <QScreen>
#include <QWidget>

#include <optional>

namespace {

/** The corner of @p window nearest to its own where it is on its screen beside @p place. */
std::optional<QPoint> freeCorner(const QRect &place, const QWidget &window)
{
    const QRect room = window.screen()->availableGeometry();
    const QRect now = window.frameGeometry();
    const auto inside = [](int value, int first, int last) {
        return qBound(first, value, qMax(first, last));
    };
    const int across = inside(now.x(), room.left(), room.right() + 1 - now.width());
    const int along = inside(now.y(), room.top(), room.bottom() + 1 - now.height());
    std::optional<QPoint> best;
    for (const QPoint &corner :
         {QPoint(place.left() - now.width(), along), QPoint(place.right() + 1, along),
          QPoint(across, place.top() - now.height()), QPoint(across, place.bottom() + 1)}) {
        const bool isNearer = !best || (corner - now.topLeft()).manhattanLength() <
                                           (*best - now.topLeft()).manhattanLength();
        if (room.contains(QRect(corner, now.size())) && isNearer)
            best = corner;
    }
    return best;
}

} // namespace

namespace KeepClear {

void of(const QRect &place, QWidget &window)
{
    if (!window.frameGeometry().intersects(place))
        return;
    std::optional<QPoint> corner = freeCorner(place, window);
    if (!corner) {
        window.resize(window.minimumSizeHint());
        corner = freeCorner(place, window);
    }
    if (corner)
        window.move(*corner);
}

} // namespace KeepClear
