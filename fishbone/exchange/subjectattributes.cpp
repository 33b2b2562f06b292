// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/subjectattributes.h>

#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/treeitem.h>

#include <algorithm>
#include <optional>

namespace {

using SubjectAttributes::Attribute;

/** Which numbers a new subject has. */
constexpr int noNumber = -1;
constexpr int zero = 0;

using Text = const QString &(TreeItem::*)() const;
using SetText = void (TreeItem::*)(const QString &);
using Number = int (TreeItem::*)() const;
using SetNumber = void (TreeItem::*)(int);
using Date = qint64 (TreeItem::*)() const;
using SetDate = void (TreeItem::*)(qint64);

template <Text get, SetText set>
constexpr Attribute textAttribute(QLatin1String key)
{
    return {key, [](const TreeItem &subject) { return (subject.*get)(); },
            [](TreeItem &subject, const QString &text) {
                (subject.*set)(text);
                return true;
            }};
}

template <Number get, SetNumber set, int unset>
constexpr Attribute numberAttribute(QLatin1String key)
{
    return {key,
            [](const TreeItem &subject) {
                const int number = (subject.*get)();
                return number == unset ? QString() : QString::number(number);
            },
            [](TreeItem &subject, const QString &text) {
                bool isNumber = true;
                const int number = text.isEmpty() ? unset : text.toInt(&isNumber);
                if (isNumber)
                    (subject.*set)(number);
                return isNumber;
            }};
}

template <Date get, SetDate set>
constexpr Attribute dateAttribute(QLatin1String key)
{
    return {key,
            [](const TreeItem &subject) {
                const qint64 date = (subject.*get)();
                return date == 0 ? QString() : QString::number(date);
            },
            [](TreeItem &subject, const QString &text) {
                bool isNumber = true;
                const qint64 date = text.isEmpty() ? 0 : text.toLongLong(&isNumber);
                if (isNumber)
                    (subject.*set)(date);
                return isNumber;
            }};
}

QString uuidText(const TreeItem &subject)
{
    return subject.uuid() == QLatin1String("-1") ? QString() : subject.uuid();
}

bool setUuidText(TreeItem &subject, const QString &text)
{
    subject.setUuid(text);
    return true;
}

QString followersText(const TreeItem &subject)
{
    return SubjectAttributes::joined(subject.followers());
}

bool setFollowersText(TreeItem &subject, const QString &text)
{
    subject.setFollowers(SubjectAttributes::separated(text));
    return true;
}

} // namespace

namespace SubjectAttributes {

const std::array<Attribute, 15> &all()
{
    using namespace JsonNodes;
    static const std::array<Attribute, 15> attributes{{
        {uuidKey, uuidText, setUuidText},
        textAttribute<&TreeItem::showid, &TreeItem::setShowid>(showidKey),
        numberAttribute<&TreeItem::type, &TreeItem::setType, zero>(typeKey),
        numberAttribute<&TreeItem::status, &TreeItem::setStatus, noNumber>(statusKey),
        numberAttribute<&TreeItem::progress, &TreeItem::setProgress, zero>(progressKey),
        numberAttribute<&TreeItem::priority, &TreeItem::setPriority, noNumber>(priorityKey),
        textAttribute<&TreeItem::managerName, &TreeItem::setManagerName>(managerNameKey),
        textAttribute<&TreeItem::managerId, &TreeItem::setManagerId>(managerIdKey),
        textAttribute<&TreeItem::creatorName, &TreeItem::setCreatorName>(creatorNameKey),
        textAttribute<&TreeItem::creatorId, &TreeItem::setCreatorId>(creatorIdKey),
        {followersKey, followersText, setFollowersText},
        dateAttribute<&TreeItem::createDate, &TreeItem::setCreateDate>(createDateKey),
        dateAttribute<&TreeItem::planEndDate, &TreeItem::setPlanEndDate>(planEndDateKey),
        textAttribute<&TreeItem::url, &TreeItem::setUrl>(urlKey),
        textAttribute<&TreeItem::detail, &TreeItem::setDetail>(detailKey),
    }};
    return attributes;
}

const Attribute &named(QLatin1String key)
{
    const auto &attributes = all();
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
