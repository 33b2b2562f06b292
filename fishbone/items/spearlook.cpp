// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearlook.h>

SpearLookData::~SpearLookData() = default;

SpearLook::~SpearLook() = default;

bool SpearLook::showsButton(const SpearItem &spear) const
{
    Q_UNUSED(spear)
    return true;
}

bool SpearLook::scalesIcons() const
{
    return false;
}

double SpearLook::iconScale(const QGraphicsItem &icon) const
{
    Q_UNUSED(icon)
    return 1;
}

QRectF SpearLook::textBox(const SpearItem &spear) const
{
    Q_UNUSED(spear)
    return {};
}

bool SpearLook::paintText(QPainter &painter, const SpearItem &spear) const
{
    Q_UNUSED(painter)
    Q_UNUSED(spear)
    return false;
}

QRectF SpearLook::badge(const SpearItem &spear) const
{
    Q_UNUSED(spear)
    return {};
}

bool SpearLook::showsChains() const
{
    return false;
}

void SpearLook::paintBadge(QPainter &painter, const SpearItem &spear) const
{
    Q_UNUSED(painter)
    Q_UNUSED(spear)
}
