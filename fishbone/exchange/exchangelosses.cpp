// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangelosses.h>

#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/exchangereport.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/model/jsonnodes.h>

#include <algorithm>

namespace {

/** Whether the field @p key is a mark with a value that attributes() of a format carry. */
bool isKnownMark(const TreeItem &subject, const QString &key)
{
    const QVector<SubjectAttributes::Attribute> &all = SubjectAttributes::all();
    return std::any_of(all.cbegin(), all.cend(), [&](const auto &attribute) {
        return !attribute.source && attribute.key == key && !attribute.text(subject).isEmpty();
    });
}

/** Names the fields of @p subject that only diagrams have. */
void addOtherFields(const TreeItem &subject, ExchangeReport &report)
{
    const QStringList keys = subject.otherFields().keys();
    for (const QString &key : keys) {
        if (isKnownMark(subject, key))
            continue; // listed with the attributes
        report.add(key == JsonNodes::viewKey ? ExchangeReport::Kind::Appearance
                                             : ExchangeReport::Kind::LeftOut,
                   QLatin1Char('"') + key + QLatin1Char('"'));
    }
}

/** What is kept of subjects. */
struct Kept
{
    QStringList keys;
    decltype(ExchangeFormat::keeps) keeps = nullptr; ///< what counts instead of the keys
    bool otherFields = false;
};

ExchangeReport lossesBut(const Kept &kept, const TreeItem &head)
{
    ExchangeReport report;
    const bool losesStyle = !kept.keys.contains(JsonNodes::spearStyleKey);
    OutlineWalk::walk(head, [&](const TreeItem &subject, int) {
        for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
            const QLatin1String key = attribute.key;
            // The identity is no content, and made anew.
            const bool isKept = key == JsonNodes::uuidKey ||
                                (kept.keeps ? kept.keeps(subject, key) : kept.keys.contains(key));
            if (!isKept && !attribute.text(subject).isEmpty())
                report.add(ExchangeReport::Kind::LeftOut,
                           QLatin1Char('"') + key + QLatin1Char('"'));
        }
        if (!kept.otherFields)
            addOtherFields(subject, report);
        if (losesStyle && subject.spearStyle())
            report.add(ExchangeReport::Kind::Appearance, DiagramExchange::tr("a style"));
    });
    return report;
}

} // namespace

ExchangeReport ExchangeLosses::of(const TreeItem &head, DiagramExchange::Format format)
{
    const ExchangeFormat &entry = ExchangeFormats::of(format);
    return lossesBut({DiagramExchange::keptKeys(format), entry.keeps, entry.keepsOtherFields},
                     head);
}

ExchangeReport ExchangeLosses::ofSlide(const TreeItem &head, bool showsMarks)
{
    // The drawing shows some, the notes who is to do what by when.
    QStringList shown =
        QStringLiteral("title children status progress url mgrname planenddate spearstyle")
            .split(QLatin1Char(' '));
    if (showsMarks)
        shown += {QStringLiteral("verdict"), QStringLiteral("votes"), QStringLiteral("colour")};
    return lossesBut({shown}, head);
}
