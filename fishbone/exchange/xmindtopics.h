// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

class ImportedTree;
class TreeItem;

/** Makes subjects of the topics of an XMind map, whichever generation of the format they come from.
 */
class XmindTopics
{
public:
    explicit XmindTopics(ImportedTree &tree)
        : m_tree(tree)
    {
    }

    /** Begins a topic below the one that is open; false when the tree failed. */
    bool open(const QString &id, qint64 line);
    /** Ends the topic that was opened last. */
    void close();
    /** How many topics are open. */
    int depth() const { return int(m_open.size()); }

    /** @name What belongs to the topic that was opened last @{ */
    void setTitle(const QString &title);
    void setLink(const QString &link);
    void setNote(const QString &note);
    void setNoteIfNone(const QString &note);
    void addMarker(const QString &marker);
    void addLabel(const QString &label);
    void addImage(const QString &source);
    void addDetail(const QString &name, const QString &value);
    /** A value that this program has put there, by its key. */
    void setOwn(const QString &key, const QString &value);
    /** A value of what is known about a task; other programs write these. */
    void setTaskValue(const QString &name, const QString &value);
    /** @} */

    /** Another id of the topic that was opened last. */
    void addId(const QString &id);

    /** Notes an arrow between two topics, by their ids. */
    void addArrow(const QString &from, const QString &to, const QString &title);
    /** Notes what is said of a topic in another place, by its id. @p name is for the details. */
    void addRemark(const QString &id, const QString &name, const QString &text);
    /** To be called once after all topics. */
    void finish();

private:
    struct Topic
    {
        TreeItem *subject;
        qint64 line;
        QString id;
        QStringList labels;
        QStringList markers;                          ///< that mean nothing to a subject
        std::vector<std::pair<QString, QString>> own; ///< which count more than all else
    };
    struct Arrow
    {
        QString from;
        QString to;
        QString title;
    };

    struct Remark
    {
        QString id;
        QString name;
        QString text;
    };

    bool applyMarker(const QString &marker);
    void finishArrows();

    ImportedTree &m_tree;
    std::vector<Topic> m_open;
    std::vector<Arrow> m_arrows;
    std::vector<Remark> m_remarks;
    QHash<QString, TreeItem *> m_byId;
};

namespace XmindNames {

/** Who keeps the fields of a subject in a topic. */
inline const QLatin1String provider("fishbone");
/** What keeps how many topics stand on which side. */
inline const QLatin1String lookProvider("org.xmind.ui.map.");
/** What somebody said about a topic. */
inline const QLatin1String comment("comment");
/** What markers stand for in a sheet. */
inline const QLatin1String legend("legend");
/** What the ids of topics begin with that stand for no uuid. */
inline const QLatin1String noUuid("fishbone-");

/** The markers that show the priority and progress of @p subject. */
QStringList markersOf(const TreeItem &subject);

} // namespace XmindNames
