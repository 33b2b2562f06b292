// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

class QColor;
class QJsonObject;
class TreeItem;

/** What has been found out about a cause. */
enum class Verdict : int {
    None,      ///< nothing, or something that only a newer program knows
    Suspected, ///< it may be a cause
    Checking,  ///< somebody is looking into it
    Confirmed, ///< it contributes
    RuledOut,  ///< it does not
    RootCause  ///< it is what all comes from
};

/**
 * What a team marks subjects with: fields of the format beside a subject's attributes, which
 * programs that do not know them keep.
 *
 * Each is read from and written to an object of fields, TreeItem::otherFields() for one, or the
 * whole object of a subject as EditAttributes takes it. A field that says nothing is removed. A
 * value that no reader would write counts as nothing, and stays until another one is stored.
 */
namespace SubjectMarks {

/** The verdict in @p fields. */
FISHBONE_EXPORT Verdict verdict(const QJsonObject &fields);
/** Stores the verdict in @p fields; Verdict::None removes the field. */
FISHBONE_EXPORT void setVerdict(QJsonObject &fields, Verdict verdict);

/** How many people hold a subject for the likeliest; never negative. */
FISHBONE_EXPORT int votes(const QJsonObject &fields);
/** Stores the number of votes in @p fields; 0 and less remove the field. */
FISHBONE_EXPORT void setVotes(QJsonObject &fields, int votes);

/** The colour that a subject was given in place of its palette's; invalid when it was not. */
FISHBONE_EXPORT QColor colour(const QJsonObject &fields);
/** Stores a colour in @p fields, without its alpha; an invalid one removes the field. */
FISHBONE_EXPORT void setColour(QJsonObject &fields, const QColor &colour);

/** The verdict of @p subject. */
FISHBONE_EXPORT Verdict verdict(const TreeItem &subject);
/** Stores the verdict of @p subject, as the setters of TreeItem do: no view is told. */
FISHBONE_EXPORT void setVerdict(TreeItem &subject, Verdict verdict);
/** The votes for @p subject. */
FISHBONE_EXPORT int votes(const TreeItem &subject);
/** Stores the votes for @p subject, as the setters of TreeItem do. */
FISHBONE_EXPORT void setVotes(TreeItem &subject, int votes);
/** The colour of @p subject. */
FISHBONE_EXPORT QColor colour(const TreeItem &subject);
/** Stores the colour of @p subject, as the setters of TreeItem do. */
FISHBONE_EXPORT void setColour(TreeItem &subject, const QColor &colour);

} // namespace SubjectMarks
