// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/diagrammerge.h>

#include <app/files/mergeorder.h>

#include <fishbone/model/treeitem.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QUuid>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

const QString pidField = QStringLiteral("pid");
const QString titleField = QStringLiteral("title");
const QString uuidField = QStringLiteral("uuid");

QString textOf(const QJsonValue &value)
{
    if (value.isString() || value.isUndefined())
        return value.toString();
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(json.mid(1, json.size() - 2));
}

/** Whether versions with different values of @p field leave something to decide. */
bool canConflict(const QString &field)
{
    return field != QLatin1String("view") && field != pidField; // which follows the place
}

} // namespace

DiagramMerge::DiagramMerge(TreeItem *base, TreeItem *ours, TreeItem *theirs)
    : m_base(base)
    , m_ours(ours)
    , m_theirs(theirs)
{
    for (const QString &key : m_ours.order)
        decide(key);
    for (const QString &key : m_theirs.order) {
        if (!m_ours.has(key))
            decide(key);
    }
    keepParents();
    breakCircles();
    uniteHeads();
    orderChildren();
}

/** Takes @p key over, unless one version deleted it while the other left it alone. */
void DiagramMerge::decide(const QString &key)
{
    const bool isOurs = m_ours.has(key);
    if (isOurs == m_theirs.has(key) || !m_base.has(key))
        return keep(key);
    if (!(isOurs ? m_ours : m_theirs).changes(key, m_base))
        return;
    keep(key);
    addConflict(key, isOurs ? tr("It was changed in ours and deleted in theirs.")
                            : tr("It was deleted in ours and changed in theirs."));
}

void DiagramMerge::keep(const QString &key)
{
    m_order.append(key);
    const QString parent = parentOf(key);
    m_merged.insert(key, {fieldsOf(key), parent});
}

QString DiagramMerge::parentOf(const QString &key)
{
    if (!m_theirs.has(key))
        return m_ours.subjects.value(key).parent;
    const QString theirs = m_theirs.subjects.value(key).parent;
    if (!m_ours.has(key))
        return theirs;
    const QString ours = m_ours.subjects.value(key).parent;
    const bool isNew = !m_base.has(key);
    const QString before = m_base.subjects.value(key).parent;
    if (ours == theirs || (!isNew && theirs == before))
        return ours;
    if (!isNew && ours == before)
        return theirs;
    const QString there = m_theirs.subjects.value(theirs).fields.value(titleField).toString();
    addConflict(key, tr("Theirs has it below \"%1\".").arg(there));
    return ours;
}

QJsonObject DiagramMerge::fieldsOf(const QString &key)
{
    if (!m_ours.has(key))
        return m_theirs.subjects.value(key).fields;
    const QJsonObject ours = m_ours.subjects.value(key).fields;
    if (!m_theirs.has(key))
        return ours;
    const QJsonObject theirs = m_theirs.subjects.value(key).fields;
    const QJsonObject base = m_base.subjects.value(key).fields;
    QStringList fields = ours.keys() + theirs.keys();
    fields.removeDuplicates();
    QJsonObject merged = ours;
    for (const QString &field : qAsConst(fields)) {
        const QJsonValue our = ours.value(field);
        const QJsonValue their = theirs.value(field);
        if (our == their || their == base.value(field))
            continue;
        if (our != base.value(field)) {
            if (canConflict(field))
                addConflict(key, tr("Its %1 is \"%2\" in ours and \"%3\" in theirs.")
                                     .arg(field, textOf(our), textOf(their)));
        } else if (their.isUndefined()) {
            merged.remove(field);
        } else {
            merged.insert(field, their);
        }
    }
    return merged;
}

/** Keeps what was deleted above a subject that stays. */
void DiagramMerge::keepParents()
{
    for (int i = 0; i < m_order.size(); ++i) { // to which the ones that are kept are appended
        const QString key = m_order.at(i);
        const QString parent = m_merged.value(key).parent;
        if (parent.isEmpty() || m_merged.contains(parent))
            continue;
        keep(parent);
        if (!m_conflicts.contains(key))
            addConflict(parent,
                        m_ours.has(parent)
                            ? tr("It was deleted in theirs and has more below it in ours.")
                            : tr("It was deleted in ours and has more below it in theirs."));
    }
}

/** Where each version moved a subject below the other's, puts both back where ours has them. */
void DiagramMerge::breakCircles()
{
    QSet<QString> sound{QString()}; // subjects from which the way up leads to the top
    for (const QString &key : qAsConst(m_order)) {
        QStringList way;
        QSet<QString> onWay;
        QString at = key;
        while (!sound.contains(at)) {
            if (onWay.contains(at)) {
                way = restoreCircle(way, at);
                onWay.clear();
                for (const QString &step : qAsConst(way))
                    onWay.insert(step);
            } else {
                way.append(at);
                onWay.insert(at);
            }
            at = m_merged.value(at).parent;
        }
        sound.unite(onWay);
    }
}

/** Mends the circle that @p way ends in from @p entry on; the way up to the entry. */
QStringList DiagramMerge::restoreCircle(const QStringList &way, const QString &entry)
{
    const int first = way.indexOf(entry);
    for (int i = first; i < way.size(); ++i) {
        const QString &key = way.at(i);
        if (!m_ours.has(key))
            continue;
        const MergeSide::Subject ours = m_ours.subjects.value(key);
        MergeSide::Subject &merged = m_merged[key];
        if (merged.parent == ours.parent)
            continue;
        const QString there =
            m_theirs.subjects.value(merged.parent).fields.value(titleField).toString();
        addConflict(key, tr("Theirs has it below \"%1\".").arg(there));
        merged.parent = ours.parent;
        merged.fields.insert(pidField, ours.fields.value(pidField));
    }
    return way.mid(0, first + 1);
}

/** Puts all heads but the first one, which is that of ours where it has stayed, below that one. */
void DiagramMerge::uniteHeads()
{
    QString head;
    for (const QString &key : qAsConst(m_order)) {
        MergeSide::Subject &subject = m_merged[key];
        if (!subject.parent.isEmpty())
            continue;
        if (head.isEmpty()) {
            head = key;
            continue;
        }
        subject.parent = head;
        subject.fields.insert(pidField, m_merged.value(head).fields.value(uuidField));
        addConflict(key, tr("It is a second head."));
    }
}

void DiagramMerge::orderChildren()
{
    for (const QString &key : qAsConst(m_order))
        m_children[m_merged.value(key).parent].append(key);
    for (auto it = m_children.begin(); it != m_children.end(); ++it) {
        const QString &parent = it.key();
        const MergeOrder order(it.value(), m_base.children.value(parent),
                               m_ours.children.value(parent), m_theirs.children.value(parent));
        if (order.isConflict && !parent.isEmpty())
            addConflict(parent, tr("What is below it has another order in theirs."));
        it.value() = order.keys;
    }
}

void DiagramMerge::addConflict(const QString &key, const QString &reason)
{
    m_conflicts[key].append(reason);
}

QStringList DiagramMerge::conflicts() const
{
    QStringList lines;
    for (const QString &key : m_order) {
        const QString title = m_merged.value(key).fields.value(titleField).toString();
        const QStringList reasons = m_conflicts.value(key);
        for (const QString &reason : reasons)
            lines.append(QStringLiteral("\"%1\": %2").arg(title, reason));
    }
    return lines;
}

/** The cause that says what there is to decide about the subject @p key. */
std::unique_ptr<TreeItem> DiagramMerge::causeFor(const QString &key) const
{
    // Made from what it is about, so that merging the same versions gives the same file. One that
    // was left from a merge before keeps its own.
    const QString name = key + QLatin1Char('\n') + m_conflicts.value(key).join(QLatin1Char('\n'));
    QUuid uuid = QUuid::createUuidV5(QUuid(), name);
    while (m_merged.contains(QLatin1String("uuid ") + uuid.toString(QUuid::WithoutBraces)))
        uuid = QUuid::createUuidV5(uuid, name);
    return std::make_unique<TreeItem>(
        QJsonObject{{titleField, tr("Merge conflict")},
                    {uuidField, uuid.toString(QUuid::WithoutBraces)},
                    {pidField, m_merged.value(key).fields.value(uuidField)},
                    {QStringLiteral("detail"), m_conflicts.value(key).join(QLatin1Char('\n'))},
                    {QStringLiteral("colour"), QStringLiteral("#d32f2f")}});
}

std::unique_ptr<TreeItem> DiagramMerge::head() const
{
    const QString headKey = m_children.value(QString()).value(0);
    auto head = std::make_unique<TreeItem>(m_merged.value(headKey).fields);
    std::vector<std::pair<QString, TreeItem *>> open{{headKey, head.get()}};
    while (!open.empty()) {
        const auto [key, item] = open.back();
        open.pop_back();
        if (m_conflicts.contains(key))
            item->appendChild(causeFor(key).release());
        const QStringList below = m_children.value(key);
        for (const QString &child : below) {
            auto *const childItem = new TreeItem(m_merged.value(child).fields, item);
            item->appendChild(childItem);
            open.emplace_back(child, childItem);
        }
    }
    return head;
}
