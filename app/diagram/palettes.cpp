// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/palettes.h>

#include <app/common/actionset.h>

QString Palettes::Entry::name() const
{
    return ActionSet::plainText(menuText());
}

const std::vector<Palettes::Entry> &Palettes::all()
{
    static const std::vector<Entry> palettes{
        {DiagramLook::DistinctColors, "paletteColours", QT_TR_NOOP("&Colours")},
        {DiagramLook::WarmColors, "paletteWarm", QT_TR_NOOP("&Warm")},
        {DiagramLook::CoolColors, "paletteCool", QT_TR_NOOP("C&ool")},
        {DiagramLook::GrayColors, "paletteGray", QT_TR_NOOP("&Grey")},
        {DiagramLook::DarkColors, "paletteDark", QT_TR_NOOP("&Dark")},
    };
    return palettes;
}
