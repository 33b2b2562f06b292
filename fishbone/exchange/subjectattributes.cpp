// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/subjectattributes.h>

#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/subjectattribute.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/model/treeitem.h>

#include <QColor>
#include <QJsonObject>

#include <algorithm>

namespace {

const QLatin1String verdictKey("verdict");
const QLatin1String votesKey("votes");
const QLatin1String colourKey("colour");

/** What is left of @p fields when only the mark @p key with a value that readers know is. */
QJsonObject knownMark(const QJsonObject &fields, QLatin1String key)
{
    QJsonObject known;
    if (key == verdictKey)
        SubjectMarks::setVerdict(known, SubjectMarks::verdict(fields));
    else if (key == votesKey)
        SubjectMarks::setVotes(known, SubjectMarks::votes(fields));
    else
        SubjectMarks::setColour(known, SubjectMarks::colour(fields));
    return known;
}

/** Stores the mark @p key, an empty text for none; false when @p text is no value of it. */
bool setMark(TreeItem &subject, QLatin1String key, const QString &text)
{
    QJsonObject fields = subject.otherFields();
    fields.remove(key);
    if (!text.isEmpty()) {
        const QJsonValue value = key == votesKey ? QJsonValue(text.toInt()) : QJsonValue(text);
        const QJsonObject known = knownMark({{key, value}}, key);
        if (known.isEmpty())
            return false;
        fields.insert(key, known.value(key));
    }
    subject.setOtherFields(fields);
    return true;
}

} // namespace

namespace SubjectAttributes {

QString Attribute::text(const TreeItem &subject) const
{
    if (!source) {
        const bool hasMarks = subject.hasOtherFields();
        return hasMarks ? knownMark(subject.otherFields(), key).value(key).toVariant().toString()
                        : QString();
    }
    const QVariant value = source->get(subject);
    switch (source->kind()) {
    case SubjectAttribute::Number:
        return value.toInt() == source->unsetNumber() ? QString() : value.toString();
    case SubjectAttribute::Date:
        return value.toLongLong() == 0 ? QString() : value.toString();
    case SubjectAttribute::Texts:
        return joined(value.toStringList());
    default:
        break;
    }
    const bool isNone = key == JsonNodes::uuidKey && value.toString() == TreeItem::noIdentity();
    return isNone ? QString() : value.toString();
}

bool Attribute::setText(TreeItem &subject, const QString &text) const
{
    if (!source)
        return setMark(subject, key, text);
    bool isValue = true;
    switch (source->kind()) {
    case SubjectAttribute::Number: {
        const int number = text.isEmpty() ? source->unsetNumber() : text.toInt(&isValue);
        if (isValue)
            source->set(subject, number);
        break;
    }
    case SubjectAttribute::Date: {
        const qint64 date = text.isEmpty() ? 0 : text.toLongLong(&isValue);
        if (isValue)
            source->set(subject, date);
        break;
    }
    case SubjectAttribute::Texts:
        source->set(subject, separated(text));
        break;
    default:
        source->set(subject, text);
    }
    return isValue;
}

const QVector<Attribute> &all()
{
    static const QVector<Attribute> attributes = [] {
        QVector<Attribute> exchanged;
        for (const SubjectAttribute &attribute : SubjectAttribute::all()) {
            if (attribute.uses().testFlag(SubjectAttribute::Exchanged))
                exchanged.append({attribute.key(), &attribute});
        }
        for (const QLatin1String mark : {verdictKey, votesKey, colourKey})
            exchanged.append({mark, nullptr});
        return exchanged;
    }();
    return attributes;
}

const Attribute &named(QLatin1String key)
{
    const QVector<Attribute> &attributes = all();
    return *std::find_if(attributes.cbegin(), attributes.cend(),
                         [key](const Attribute &attribute) { return attribute.key == key; });
}

QString joined(const QStringList &texts)
{
    QString text;
    for (const QString &part : texts) {
        if (&part != &texts.constFirst())
            text.append(QLatin1Char(';'));
        for (const QChar c : part) {
            if (c == QLatin1Char(';') || c == QLatin1Char('\\'))
                text.append(QLatin1Char('\\'));
            text.append(c);
        }
    }
    // Else an empty text at the end would not show.
    if (!texts.isEmpty() && texts.constLast().isEmpty())
        text.append(QLatin1Char(';'));
    return text;
}

QStringList separated(const QString &text)
{
    QStringList texts(QString{});
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char(';')) {
            texts.append(QString());
            continue;
        }
        if (text.at(i) == QLatin1Char('\\') && i + 1 < text.size())
            ++i;
        texts.last().append(text.at(i));
    }
    if (texts.constLast().isEmpty())
        texts.removeLast();
    return texts;
}

} // namespace SubjectAttributes
