// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/lookchoice.h>

#include <fishbone/drawing/lookinfo.h>

#include <QCommandLineParser>
#include <QHash>

namespace {

const QString lookName = QStringLiteral("look");
const QString pageName = QStringLiteral("page");
const QString legendName = QStringLiteral("legend");
const QString noLegendName = QStringLiteral("no-legend");
const QString paletteName = QStringLiteral("palette");
const QString headName = QStringLiteral("head");

/** Sets @p value to what @p text names; false when it names nothing. */
template <typename Value>
bool choose(const QHash<QString, Value> &names, const QString &text, Value &value)
{
    const auto found = names.constFind(text.toLower());
    if (found == names.cend())
        return false;
    value = *found;
    return true;
}

/** "one, two or three": the names of all looks. */
QString lookNames()
{
    QStringList names;
    for (const LookInfo &look : LookInfo::all())
        names.append(look.name());
    const QString last = names.takeLast();
    return LookChoice::tr("%1 or %2").arg(names.join(QStringLiteral(", ")), last);
}

} // namespace

QList<QCommandLineOption> LookChoice::commandLineOptions()
{
    return {
        {lookName, tr("Draw in the <look> %1; the first one is the default.").arg(lookNames()),
         QStringLiteral("look")},
        {pageName,
         tr("Arrange the drawing for <page>: 16:9, A4, A3, Letter, or a size such as 1920x1080 or "
            "297x210mm. A PDF has a page of that size."),
         QStringLiteral("page")},
        {legendName, tr("Explain the icons below the drawing, which is the default.")},
        {noLegendName, tr("Leave out the explanation of the icons.")},
        {paletteName, tr("Draw in <colours>: colour (the default), warm, cool, gray or dark."),
         QStringLiteral("colours")},
        {headName, tr("Draw the head on the <side>: right (the default) or left."),
         QStringLiteral("side")},
    };
}

QString LookChoice::read(const QCommandLineParser &parser)
{
    const auto wrong = [&](const QString &name, const QString &what) {
        return tr("--%1 takes %2, not \"%3\"").arg(name, what, parser.value(name));
    };
    if (parser.isSet(lookName)) {
        const LookInfo *const look = LookInfo::find(parser.value(lookName).toLower());
        if (!look)
            return wrong(lookName, lookNames());
        view.look = look->kind();
    }
    for (const QString &name : {pageName, legendName, noLegendName, paletteName, headName}) {
        if (view.look != DiagramLook::Clear && parser.isSet(name))
            return tr("--%1 needs the clear look").arg(name);
    }
    view.options.hasLegend = !parser.isSet(noLegendName);
    if (parser.isSet(paletteName) &&
        !choose<DiagramLook::Palette>({{QStringLiteral("colour"), DiagramLook::DistinctColors},
                                       {QStringLiteral("color"), DiagramLook::DistinctColors},
                                       {QStringLiteral("gray"), DiagramLook::GrayColors},
                                       {QStringLiteral("grey"), DiagramLook::GrayColors},
                                       {QStringLiteral("dark"), DiagramLook::DarkColors},
                                       {QStringLiteral("warm"), DiagramLook::WarmColors},
                                       {QStringLiteral("cool"), DiagramLook::CoolColors}},
                                      parser.value(paletteName), view.options.palette))
        return wrong(paletteName, tr("colour, warm, cool, gray or dark"));
    if (parser.isSet(headName) &&
        !choose<bool>({{QStringLiteral("left"), true}, {QStringLiteral("right"), false}},
                      parser.value(headName), view.options.isHeadLeft))
        return wrong(headName, tr("left or right"));
    return parser.isSet(pageName) ? readPage(parser.value(pageName)) : QString();
}

QString LookChoice::readPage(const QString &text)
{
    page = PageSize::of(text);
    if (page)
        return QString();
    return tr("--%1 takes %2, not \"%3\"")
        .arg(pageName, tr("16:9, A4, A3, Letter or a size such as 1920x1080 or 297x210mm"), text);
}
