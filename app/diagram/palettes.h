// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/diagramlook.h>

#include <QCoreApplication>
#include <QString>

#include <vector>

/** The colours that a diagram can have as a whole, as menus and fields offer them. */
class Palettes
{
    Q_DECLARE_TR_FUNCTIONS(Palettes)

public:
    struct Entry
    {
        DiagramLook::Palette palette;
        const char *action; ///< the name of the command that chooses it
        const char *text;   ///< for textOf()

        /** Its name in the language of now, with the mark of the menu key. */
        QString menuText() const { return tr(text); }
        /** Its name in the language of now. */
        QString name() const;
    };

    /** All of them in the order in which they are offered. */
    static const std::vector<Entry> &all();
};
