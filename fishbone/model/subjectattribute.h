// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QFlags>
#include <QJsonValue>
#include <QLatin1String>
#include <QStringList>
#include <QVariant>
#include <QVector>

class TreeItem;

/**
 * One attribute of a subject: its key in the diagram format, what kind of value it has, who deals
 * with it, and how a node gives and takes it.
 *
 * all() is the one list of them. The format's reader and writer, the command that changes
 * attributes and the exchange with other formats go through it; whatever cannot, since it has a
 * text or a field for each, has a test that compares it with the list. The children of a subject
 * are no attribute, nor are the fields that only TreeItem::otherFields() knows.
 */
class FISHBONE_EXPORT SubjectAttribute
{
public:
    /** No attribute, for containers. */
    SubjectAttribute() = default;

    /** What a value is. */
    enum Kind : int {
        Text,   ///< a string
        Number, ///< a 32-bit integer
        Date,   ///< milliseconds since the Unix epoch, 0 when unset
        Texts,  ///< a list of strings
        Flag,   ///< true or false
        Style   ///< the object of a SpearStyle, empty for none
    };

    /** Who deals with an attribute. */
    enum Use : int {
        Edited = 1,    ///< EditAttributes changes it: it is neither identity nor place
        Exchanged = 2, ///< formats that carry attributes beside the title carry it
        Detailed = 4,  ///< the details of a subject show it
        Searched = 8   ///< a search may look at it
    };
    Q_DECLARE_FLAGS(Uses, Use)

    /** When a file has the value. */
    enum Writing : int {
        Always,
        UnlessNull,  ///< a text that is empty but was assigned counts as a value
        UnlessEmpty, ///< no empty list, no style that is not there
        Never        ///< only read
    };

    /** All attributes in the order in which people see them. */
    static const QVector<SubjectAttribute> &all();
    /** All attributes in the order of their keys, which is that of a file. */
    static const QVector<SubjectAttribute> &inKeyOrder();
    /** The attribute of that key, null when there is none. */
    static const SubjectAttribute *find(const QString &key);

    /** The key in the diagram format. */
    QLatin1String key() const { return m_key; }
    /** What kind of value it has. */
    Kind kind() const { return m_kind; }
    /** Who deals with it. */
    Uses uses() const { return m_uses; }
    /** When a file has it. */
    Writing writing() const { return m_writing; }
    /** What a new subject has in place of a number. */
    int unsetNumber() const { return m_unset; }

    /** The value of @p subject: a string, an int, a qlonglong, a list of strings, a bool or an
     * object.
     */
    QVariant get(const TreeItem &subject) const;
    /** Gives @p subject a value of that type. */
    void set(TreeItem &subject, const QVariant &value) const;
    /** The value of @p subject as the format has it; null for a text that was never assigned. */
    QJsonValue value(const TreeItem &subject) const;
    /** Whether a file gets the value of @p subject. */
    bool isWritten(const TreeItem &subject) const;
    /**
     * Gives @p subject the value of a file. An undefined one, where the key is missing, leaves the
     * attribute as it is in a new node, or empties one that every node of a file has; a value of
     * another kind counts as 0, as empty or as false.
     */
    void read(TreeItem &subject, const QJsonValue &value) const;
    /** Gives @p to the value of @p from. A style that says the same already stays the same object.
     */
    void copy(TreeItem &to, const TreeItem &from) const;

private:
    using GetText = const QString &(TreeItem::*)() const;
    using SetText = void (TreeItem::*)(const QString &);
    using GetNumber = int (TreeItem::*)() const;
    using SetNumber = void (TreeItem::*)(int);
    using GetDate = qint64 (TreeItem::*)() const;
    using SetDate = void (TreeItem::*)(qint64);
    using GetTexts = const QStringList &(TreeItem::*)() const;
    using SetTexts = void (TreeItem::*)(const QStringList &);
    using GetFlag = bool (TreeItem::*)() const;
    using SetFlag = void (TreeItem::*)(bool);

    SubjectAttribute(QLatin1String key, Uses uses, Writing writing);
    template <typename Get, typename Set>
    SubjectAttribute(QLatin1String key, Get getter, Set setter, Uses uses,
                     Writing writing = Always);
    SubjectAttribute inEveryFile() const;
    SubjectAttribute unset(int number) const;
    void use(GetText getter, SetText setter);
    void use(GetNumber getter, SetNumber setter);
    void use(GetDate getter, SetDate setter);
    void use(GetTexts getter, SetTexts setter);
    void use(GetFlag getter, SetFlag setter);
    static QVector<SubjectAttribute> makeAll();

    QLatin1String m_key;
    Kind m_kind = Style;
    Uses m_uses;
    Writing m_writing = Always;
    int m_unset = 0;
    bool m_isInEveryFile = false;
    GetText m_getText = nullptr;
    SetText m_setText = nullptr;
    GetNumber m_getNumber = nullptr;
    SetNumber m_setNumber = nullptr;
    GetDate m_getDate = nullptr;
    SetDate m_setDate = nullptr;
    GetTexts m_getTexts = nullptr;
    SetTexts m_setTexts = nullptr;
    GetFlag m_getFlag = nullptr;
    SetFlag m_setFlag = nullptr;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(SubjectAttribute::Uses)
