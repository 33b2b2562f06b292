// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/looklist.h>

#include <QCoreApplication>
#include <QString>

#include <algorithm>

const std::vector<LookList::Entry> &LookList::all()
{
    static const std::vector<Entry> looks = {
        {DiagramLook::Clear, QLatin1String("clear"), "lookClear",
         QT_TRANSLATE_NOOP("LookCommands", "&Clear"),
         QT_TRANSLATE_NOOP("PictureLookFields", "Clear")},
        {DiagramLook::Classic, QLatin1String("classic"), "lookClassic",
         QT_TRANSLATE_NOOP("LookCommands", "Cl&assic"),
         QT_TRANSLATE_NOOP("PictureLookFields", "Classic")},
    };
    return looks;
}

const LookList::Entry *LookList::find(const QString &name)
{
    const auto found = std::find_if(all().cbegin(), all().cend(),
                                    [&name](const Entry &entry) { return entry.name == name; });
    return found != all().cend() ? &*found : nullptr;
}

QLatin1String LookList::nameOf(DiagramLook::Kind kind)
{
    const auto found = std::find_if(all().cbegin(), all().cend(),
                                    [kind](const Entry &entry) { return entry.kind == kind; });
    return found != all().cend() ? found->name : all().front().name;
}
