// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/subjectattribute.h>

#include <fishbone/model/attributevalues.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/treeitem.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

QVector<SubjectAttribute> SubjectAttribute::makeAll()
{
    using namespace JsonNodes;
    using T = TreeItem;
    const Uses exchanged = Edited | Exchanged;
    const Uses shown = exchanged | Detailed;
    using Row = SubjectAttribute;
    return {
        Row(titleKey, &T::title, &T::setTitle, Edited | Detailed | Searched).inEveryFile(),
        Row(uuidKey, &T::uuid, &T::setUuid, Exchanged | Searched).inEveryFile(),
        Row(showidKey, &T::showid, &T::setShowid, shown | Searched).inEveryFile(),
        Row(pidKey, &T::pid, &T::setPid, Searched),
        Row(typeKey, &T::type, &T::setType, exchanged),
        Row(statusKey, &T::status, &T::setStatus, shown).unset(T::none),
        Row(progressKey, &T::progress, &T::setProgress, shown),
        Row(priorityKey, &T::priority, &T::setPriority, shown).unset(T::none),
        Row(managerNameKey, &T::managerName, &T::setManagerName, shown, UnlessNull),
        Row(managerIdKey, &T::managerId, &T::setManagerId, shown, UnlessNull),
        Row(creatorNameKey, &T::creatorName, &T::setCreatorName, shown, UnlessNull),
        Row(creatorIdKey, &T::creatorId, &T::setCreatorId, exchanged, UnlessNull),
        Row(followersKey, &T::followers, SetTexts(&T::setFollowers), shown, UnlessEmpty),
        Row(createDateKey, &T::createDate, &T::setCreateDate, shown),
        Row(planEndDateKey, &T::planEndDate, &T::setPlanEndDate, shown),
        Row(urlKey, &T::url, &T::setUrl, shown, UnlessNull),
        Row(detailKey, &T::detail, &T::setDetail, shown),
        Row(spearStyleKey, Edited, UnlessEmpty),
        Row(isMovableKey, &T::spearItemIsMovable, &T::setSpearItemIsMovable, Edited, Never),
    };
}

/** A style. */
SubjectAttribute::SubjectAttribute(QLatin1String key, Uses uses, Writing writing)
    : m_key(key)
    , m_uses(uses)
    , m_writing(writing)
{
}

/** One of the kind that its node's functions give and take. */
template <typename Get, typename Set>
SubjectAttribute::SubjectAttribute(QLatin1String key, Get getter, Set setter, Uses uses,
                                   Writing writing)
    : SubjectAttribute(key, uses, writing)
{
    use(getter, setter);
}

/** The same, which every node of a file has: it is emptied where it is missing. */
SubjectAttribute SubjectAttribute::inEveryFile() const
{
    SubjectAttribute changed = *this;
    changed.m_isInEveryFile = true;
    return changed;
}

/** The same, of a @p number other than 0 in a new subject. */
SubjectAttribute SubjectAttribute::unset(int number) const
{
    SubjectAttribute changed = *this;
    changed.m_unset = number;
    return changed;
}

void SubjectAttribute::use(GetText getter, SetText setter)
{
    m_kind = Text;
    m_getText = getter;
    m_setText = setter;
}

void SubjectAttribute::use(GetNumber getter, SetNumber setter)
{
    m_kind = Number;
    m_getNumber = getter;
    m_setNumber = setter;
}

void SubjectAttribute::use(GetDate getter, SetDate setter)
{
    m_kind = Date;
    m_getDate = getter;
    m_setDate = setter;
}

void SubjectAttribute::use(GetTexts getter, SetTexts setter)
{
    m_kind = Texts;
    m_getTexts = getter;
    m_setTexts = setter;
}

void SubjectAttribute::use(GetFlag getter, SetFlag setter)
{
    m_kind = Flag;
    m_getFlag = getter;
    m_setFlag = setter;
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
        return AttributeValues::styleOf(subject);
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
        (subject.*m_setDate)(AttributeValues::dateFrom(value));
        break;
    case Texts:
        (subject.*m_setTexts)(AttributeValues::textsFrom(value));
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
    if (m_kind != Style || AttributeValues::styleOf(to) != AttributeValues::styleOf(from))
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
        return AttributeValues::styleOf(subject);
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
