// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/spearmove.h>

#include <algorithm>

#include <QSet>

#include <fishbone/editor/itemancestry.h>
#include <fishbone/editor/speartools.h>

namespace {

constexpr qreal fadedOpacity = 0.2;

QSet<const QGraphicsItem *> asSet(const QList<SpearItem *> &spears)
{
    QSet<const QGraphicsItem *> set;
    set.reserve(spears.count());
    for (const SpearItem *spear : spears)
        set.insert(spear);
    return set;
}

void fade(SpearItem &spear, bool faded)
{
    spear.setMoving(faded);
    spear.setOpacity(faded ? fadedOpacity : 1.0);
    repaintSpear(spear);
}

} // namespace

void SpearMove::press()
{
    m_selected.clear();
    m_isPressed = true;
}

void SpearMove::begin(const QList<QGraphicsItem *> &selection, const QList<QGraphicsItem *> &around)
{
    for (QGraphicsItem *item : selection) {
        if (SpearItem *const spear = toSpear(item))
            m_selected.append(spear);
    }
    const QList<SpearItem *> selected = this->selection();
    const QSet<const QGraphicsItem *> set = asSet(selected);
    const auto pressed =
        std::find_if(around.cbegin(), around.cend(),
                     [&set](const QGraphicsItem *item) { return set.contains(item); });
    m_pressedSpear = pressed != around.cend() ? SpearPointer(toSpear(*pressed)) : SpearPointer();
    restore(); // a press whose release went elsewhere leaves its items faded
    for (SpearItem *spear : selected) {
        if (hasAncestorIn(spear, set))
            continue;
        m_moving.append(spear);
        fade(*spear, true);
    }
}

void SpearMove::restore()
{
    for (const SpearPointer &spear : qAsConst(m_moving)) {
        if (spear.get())
            fade(*spear.get(), false);
    }
    m_moving.clear();
}

void SpearMove::release()
{
    m_isPressed = false;
    m_pressedSpear = SpearPointer();
}

QList<SpearItem *> SpearMove::selection() const
{
    QList<SpearItem *> living;
    for (const SpearPointer &spear : m_selected) {
        if (spear.get())
            living.append(spear.get());
    }
    return living;
}

SpearItem *SpearMove::candidate(const QList<QGraphicsItem *> &around) const
{
    const QSet<const QGraphicsItem *> moved = asSet(selection());
    const auto found =
        std::find_if(around.crbegin(), around.crend(), [&moved](QGraphicsItem *item) {
            return toSpear(item) && !moved.contains(item);
        });
    return found != around.crend() ? toSpear(*found) : nullptr;
}

bool SpearMove::isInto(const SpearItem *target) const
{
    return target && hasAncestorIn(target, asSet(selection()));
}
