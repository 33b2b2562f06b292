// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/subjectattribute.h>

#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/style/spearstyle.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace {

/** An instant as a file holds it; one that 64 bits cannot hold counts as unset. */
qint64 dateFrom(const QJsonValue &value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    const double msecs = value.toDouble();
    return msecs > -limit && msecs < limit ? std::llround(msecs) : 0;
}

QJsonObject styleOf(const TreeItem &subject)
{
    QJsonObject style;
    if (subject.spearStyle())
        subject.spearStyle()->write(style);
    return style;
}

QStringList textsFrom(const QJsonValue &value)
{
    QStringList texts;
    const QJsonArray elements = value.toArray();
    for (const QJsonValue &element : elements)
        texts.append(element.toString());
    return texts;
}

} // namespace

QVector<SubjectAttribute> SubjectAttribute::makeAll()
{
    using namespace JsonNodes;
    using T = TreeItem;
    const Uses exchanged = Edited | Exchanged;
    const Uses shown = exchanged | Detailed;
    constexpr int none = -1;
    return {
        text(titleKey, &T::title, &T::setTitle, Edited | Detailed | Searched, Always, true),
        text(uuidKey, &T::uuid, &T::setUuid, Exchanged | Searched, Always, true),
        text(showidKey, &T::showid, &T::setShowid, shown | Searched, Always, true),
        text(pidKey, &T::pid, &T::setPid, Searched),
        number(typeKey, &T::type, &T::setType, exchanged, 0),
        number(statusKey, &T::status, &T::setStatus, shown, none),
        number(progressKey, &T::progress, &T::setProgress, shown, 0),
        number(priorityKey, &T::priority, &T::setPriority, shown, none),
        text(managerNameKey, &T::managerName, &T::setManagerName, shown, UnlessNull),
        text(managerIdKey, &T::managerId, &T::setManagerId, shown, UnlessNull),
        text(creatorNameKey, &T::creatorName, &T::setCreatorName, shown, UnlessNull),
        text(creatorIdKey, &T::creatorId, &T::setCreatorId, exchanged, UnlessNull),
        texts(followersKey, &T::followers, &T::setFollowers),
        date(createDateKey, &T::createDate, &T::setCreateDate),
        date(planEndDateKey, &T::planEndDate, &T::setPlanEndDate),
        text(urlKey, &T::url, &T::setUrl, shown, UnlessNull),
        text(detailKey, &T::detail, &T::setDetail, shown),
        style(spearStyleKey),
        flag(isMovableKey, &T::spearItemIsMovable, &T::setSpearItemIsMovable),
    };
}

SubjectAttribute SubjectAttribute::text(QLatin1String key, GetText get, SetText set, Uses uses,
                                        Writing writing, bool isInEveryFile)
{
    SubjectAttribute made;
    made.m_key = key;
    made.m_uses = uses;
    made.m_writing = writing;
    made.m_isInEveryFile = isInEveryFile;
    made.m_getText = get;
    made.m_setText = set;
    return made;
}

SubjectAttribute SubjectAttribute::number(QLatin1String key, GetNumber get, SetNumber set,
                                          Uses uses, int unset)
{
    SubjectAttribute made;
    made.m_key = key;
    made.m_kind = Number;
    made.m_uses = uses;
    made.m_unset = unset;
    made.m_getNumber = get;
    made.m_setNumber = set;
    return made;
}

SubjectAttribute SubjectAttribute::date(QLatin1String key, GetDate get, SetDate set)
{
    SubjectAttribute made;
    made.m_key = key;
    made.m_kind = Date;
    made.m_uses = Edited | Exchanged | Detailed;
    made.m_getDate = get;
    made.m_setDate = set;
    return made;
}

SubjectAttribute SubjectAttribute::texts(QLatin1String key, GetTexts get, SetTexts set)
{
    SubjectAttribute made;
    made.m_key = key;
    made.m_kind = Texts;
    made.m_uses = Edited | Exchanged | Detailed;
    made.m_writing = UnlessEmpty;
    made.m_getTexts = get;
    made.m_setTexts = set;
    return made;
}

SubjectAttribute SubjectAttribute::flag(QLatin1String key, GetFlag get, SetFlag set)
{
    SubjectAttribute made;
    made.m_key = key;
    made.m_kind = Flag;
    made.m_uses = Edited;
    made.m_writing = Never;
    made.m_getFlag = get;
    made.m_setFlag = set;
    return made;
}

SubjectAttribute SubjectAttribute::style(QLatin1String key)
{
    SubjectAttribute made;
    made.m_key = key;
    made.m_kind = Style;
    made.m_uses = Edited;
    made.m_writing = UnlessEmpty;
    return made;
}

const QVector<SubjectAttribute> &SubjectAttribute::all()
{
    static const QVector<SubjectAttribute> attributes = makeAll();
    return attributes;
}

const QVector<SubjectAttribute> &SubjectAttribute::inKeyOrder()
{
    static const QVector<SubjectAttribute> attributes = [] {
        QVector<SubjectAttribute> sorted = makeAll();
        std::sort(sorted.begin(), sorted.end(), [](const auto &one, const auto &other) {
            return one.m_key.compare(other.m_key) < 0;
        });
        return sorted;
    }();
    return attributes;
}

const SubjectAttribute *SubjectAttribute::find(const QString &key)
{
    const QVector<SubjectAttribute> &attributes = inKeyOrder();
    const auto found = std::lower_bound(attributes.cbegin(), attributes.cend(), key,
                                        [](const SubjectAttribute &attribute, const QString &text) {
                                            return attribute.m_key < text;
                                        });
    return found != attributes.cend() && found->m_key == key ? &*found : nullptr;
}

QJsonValue SubjectAttribute::value(const TreeItem &subject) const
{
    switch (m_kind) {
    case Text: {
        const QString &text = (subject.*m_getText)();
        return text.isNull() && m_writing == UnlessNull ? QJsonValue() : QJsonValue(text);
    }
    case Number:
        return (subject.*m_getNumber)();
    case Date:
        return double((subject.*m_getDate)());
    case Texts:
        return QJsonArray::fromStringList((subject.*m_getTexts)());
    case Flag:
        return (subject.*m_getFlag)();
    case Style:
        return styleOf(subject);
    }
    return QJsonValue();
}

bool SubjectAttribute::isWritten(const TreeItem &subject) const
{
    switch (m_writing) {
    case UnlessNull:
        return !(subject.*m_getText)().isNull();
    case UnlessEmpty:
        return m_kind == Style ? subject.spearStyle() != nullptr
                               : !(subject.*m_getTexts)().isEmpty();
    case Never:
        return false;
    case Always:
        break;
    }
    return true;
}

void SubjectAttribute::read(TreeItem &subject, const QJsonValue &value) const
{
    if (value.isUndefined()) {
        if (m_isInEveryFile)
            (subject.*m_setText)(QString());
        return;
    }
    switch (m_kind) {
    case Text:
        (subject.*m_setText)(value.toString());
        break;
    case Number:
        (subject.*m_setNumber)(value.toInt(0));
        break;
    case Date:
        (subject.*m_setDate)(dateFrom(value));
        break;
    case Texts:
        (subject.*m_setTexts)(textsFrom(value));
        break;
    case Flag:
        (subject.*m_setFlag)(value.toBool(false));
        break;
    case Style:
        if (value.isObject())
            subject.setSpearStyle(value.toObject());
        break;
    }
}

void SubjectAttribute::copy(TreeItem &to, const TreeItem &from) const
{
    // Dialogs may be working on the style.
    if (m_kind != Style || styleOf(to) != styleOf(from))
        set(to, get(from));
}

QVariant SubjectAttribute::get(const TreeItem &subject) const
{
    switch (m_kind) {
    case Text:
        return (subject.*m_getText)();
    case Number:
        return (subject.*m_getNumber)();
    case Date:
        return (subject.*m_getDate)();
    case Texts:
        return (subject.*m_getTexts)();
    case Flag:
        return (subject.*m_getFlag)();
    case Style:
        return styleOf(subject);
    }
    return QVariant();
}

void SubjectAttribute::set(TreeItem &subject, const QVariant &value) const
{
    switch (m_kind) {
    case Text:
        (subject.*m_setText)(value.toString());
        break;
    case Number:
        (subject.*m_setNumber)(value.toInt());
        break;
    case Date:
        (subject.*m_setDate)(value.toLongLong());
        break;
    case Texts:
        (subject.*m_setTexts)(value.toStringList());
        break;
    case Flag:
        (subject.*m_setFlag)(value.toBool());
        break;
    case Style:
        subject.setSpearStyle(value.toJsonObject());
        break;
    }
}
