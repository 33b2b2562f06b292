// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/subjectmarks.h>

#include <fishbone/model/treeitem.h>

#include <QColor>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

const QLatin1String verdictKey("verdict");
const QLatin1String votesKey("votes");
const QLatin1String colourKey("colour");

const struct
{
    Verdict verdict;
    QLatin1String name;
} verdicts[] = {
    {Verdict::Suspected, QLatin1String("suspected")},
    {Verdict::Checking, QLatin1String("checking")},
    {Verdict::Confirmed, QLatin1String("confirmed")},
    {Verdict::RuledOut, QLatin1String("ruledout")},
    {Verdict::RootCause, QLatin1String("rootcause")},
};

/** Stores a field, or removes it when there is nothing to say. */
void store(QJsonObject &fields, QLatin1String key, const QJsonValue &value)
{
    if (value.isNull())
        fields.remove(key);
    else
        fields.insert(key, value);
}

/** Has @p change change the fields of @p subject. */
template <typename Change>
void changeFields(TreeItem &subject, Change change)
{
    QJsonObject fields = subject.otherFields();
    change(fields);
    subject.setOtherFields(fields);
}

} // namespace

namespace SubjectMarks {

Verdict verdict(const QJsonObject &fields)
{
    const QString name = fields.value(verdictKey).toString();
    const auto found = std::find_if(std::begin(verdicts), std::end(verdicts),
                                    [&name](const auto &each) { return each.name == name; });
    return found == std::end(verdicts) ? Verdict::None : found->verdict;
}

void setVerdict(QJsonObject &fields, Verdict verdict)
{
    const auto found =
        std::find_if(std::begin(verdicts), std::end(verdicts),
                     [verdict](const auto &each) { return each.verdict == verdict; });
    store(fields, verdictKey,
          found == std::end(verdicts) ? QJsonValue() : QJsonValue(QString(found->name)));
}

int votes(const QJsonObject &fields)
{
    return std::max(0, fields.value(votesKey).toInt(0));
}

void setVotes(QJsonObject &fields, int votes)
{
    store(fields, votesKey, votes > 0 ? QJsonValue(votes) : QJsonValue());
}

QColor colour(const QJsonObject &fields)
{
    static const QRegularExpression form(QStringLiteral("\\A#[0-9a-fA-F]{6}\\z"));
    const QString name = fields.value(colourKey).toString();
    return form.match(name).hasMatch() ? QColor(name) : QColor();
}

void setColour(QJsonObject &fields, const QColor &colour)
{
    store(fields, colourKey, colour.isValid() ? QJsonValue(colour.name()) : QJsonValue());
}

Verdict verdict(const TreeItem &subject)
{
    return subject.hasOtherFields() ? verdict(subject.otherFields()) : Verdict::None;
}

void setVerdict(TreeItem &subject, Verdict verdict)
{
    changeFields(subject, [verdict](QJsonObject &fields) { setVerdict(fields, verdict); });
}

int votes(const TreeItem &subject)
{
    return subject.hasOtherFields() ? votes(subject.otherFields()) : 0;
}

void setVotes(TreeItem &subject, int votes)
{
    changeFields(subject, [votes](QJsonObject &fields) { setVotes(fields, votes); });
}

QColor colour(const TreeItem &subject)
{
    return subject.hasOtherFields() ? colour(subject.otherFields()) : QColor();
}

void setColour(TreeItem &subject, const QColor &colour)
{
    changeFields(subject, [&colour](QJsonObject &fields) { setColour(fields, colour); });
}

} // namespace SubjectMarks
