// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/lookinfo.h>

#include <fishbone/drawing/classiclook.h>
#include <fishbone/drawing/clearlook.h>

#include <QCoreApplication>

#include <algorithm>

namespace {

std::shared_ptr<const DrawingLook> makeClassic(const DiagramLook::Options &options)
{
    Q_UNUSED(options)
    return std::static_pointer_cast<const DrawingLook>(SpearLook::standard());
}

template <typename Look>
std::shared_ptr<const DrawingLook> makeLook(const DiagramLook::Options &options)
{
    return std::make_shared<Look>(options);
}

} // namespace

LookInfo::LookInfo(DiagramLook::Kind kind, QLatin1String name, const char *title, Maker make)
    : m_kind(kind)
    , m_name(name)
    , m_title(title)
    , m_make(make)
{
}

const QVector<LookInfo> &LookInfo::all()
{
    static const QVector<LookInfo> looks = {
        {DiagramLook::Clear, QLatin1String("clear"), QT_TRANSLATE_NOOP("LookInfo", "&Clear"),
         makeLook<ClearLook>},
        {DiagramLook::Classic, QLatin1String("classic"), QT_TRANSLATE_NOOP("LookInfo", "Cl&assic"),
         makeClassic},
    };
    return looks;
}

const LookInfo *LookInfo::find(const QString &name)
{
    const auto found = std::find_if(all().cbegin(), all().cend(),
                                    [&name](const LookInfo &look) { return look.m_name == name; });
    return found != all().cend() ? &*found : nullptr;
}

const LookInfo &LookInfo::of(DiagramLook::Kind kind)
{
    const auto found = std::find_if(all().cbegin(), all().cend(),
                                    [kind](const LookInfo &look) { return look.m_kind == kind; });
    return found != all().cend() ? *found : *find(QLatin1String("classic"));
}

QString LookInfo::title() const
{
    return QCoreApplication::translate("LookInfo", m_title);
}
