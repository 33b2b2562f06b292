// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/markentries.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/model/treeitem.h>

#include <QCoreApplication>

namespace {

MarkEntry verdictEntry(Verdict verdict, const char *action, const char *text, Qt::Key key)
{
    return {
        action,
        text,
        {QKeySequence(int(Qt::ALT) + key)},
        {},
        [verdict](TreeItem &subject) { SubjectMarks::setVerdict(subject, verdict); },
        [verdict](const TreeItem &subject) { return SubjectMarks::verdict(subject) == verdict; }};
}

MarkEntry statusEntry(int status, const char *action, const char *text)
{
    return {action,
            text,
            {},
            {},
            [status](TreeItem &subject) { subject.setStatus(status); },
            [status](const TreeItem &subject) { return subject.status() == status; }};
}

MarkEntry priorityEntry(int priority, const char *action, const char *text)
{
    return {action,
            text,
            {},
            {},
            [priority](TreeItem &subject) { subject.setPriority(priority); },
            [priority](const TreeItem &subject) { return subject.priority() == priority; }};
}

MarkEntry colourEntry(const QColor &colour, const char *action, const char *text)
{
    return {action,
            text,
            {},
            colour,
            [colour](TreeItem &subject) { SubjectMarks::setColour(subject, colour); },
            [colour](const TreeItem &subject) { return SubjectMarks::colour(subject) == colour; }};
}

} // namespace

std::vector<MarkEntry> MarkEntries::verdicts()
{
    return {verdictEntry(Verdict::Suspected, "verdictSuspected",
                         QT_TRANSLATE_NOOP("MarkCommands", "&Suspected"), Qt::Key_1),
            verdictEntry(Verdict::Checking, "verdictChecking",
                         QT_TRANSLATE_NOOP("MarkCommands", "Being &checked"), Qt::Key_2),
            verdictEntry(Verdict::Confirmed, "verdictConfirmed",
                         QT_TRANSLATE_NOOP("MarkCommands", "Con&firmed"), Qt::Key_3),
            verdictEntry(Verdict::RuledOut, "verdictRuledOut",
                         QT_TRANSLATE_NOOP("MarkCommands", "&Ruled out"), Qt::Key_4),
            verdictEntry(Verdict::RootCause, "verdictRootCause",
                         QT_TRANSLATE_NOOP("MarkCommands", "R&oot cause"), Qt::Key_5),
            verdictEntry(Verdict::None, "verdictNone",
                         QT_TRANSLATE_NOOP("MarkCommands", "&No verdict"), Qt::Key_0)};
}

std::vector<MarkEntry> MarkEntries::statuses()
{
    return {
        statusEntry(tsWaitting, "statusWaiting", QT_TRANSLATE_NOOP("MarkCommands", "&Waiting")),
        statusEntry(tsWaittingAgree, "statusWaitingAgree",
                    QT_TRANSLATE_NOOP("MarkCommands", "Waiting for &approval")),
        statusEntry(tsRunning, "statusRunning", QT_TRANSLATE_NOOP("MarkCommands", "&Under way")),
        statusEntry(tsFinish, "statusFinished", QT_TRANSLATE_NOOP("MarkCommands", "&Finished")),
        statusEntry(tsFinishDelay, "statusFinishedLate",
                    QT_TRANSLATE_NOOP("MarkCommands", "Finished &late")),
        statusEntry(tsPostpone, "statusPostponed", QT_TRANSLATE_NOOP("MarkCommands", "&Postponed")),
        statusEntry(tsCancel, "statusCancelled", QT_TRANSLATE_NOOP("MarkCommands", "&Cancelled")),
        statusEntry(TreeItem::none, "statusNone", QT_TRANSLATE_NOOP("MarkCommands", "&No status"))};
}

std::vector<MarkEntry> MarkEntries::priorities()
{
    return {priorityEntry(1, "priority1", QT_TRANSLATE_NOOP("MarkCommands", "&1 (highest)")),
            priorityEntry(2, "priority2", QT_TRANSLATE_NOOP("MarkCommands", "&2 (high)")),
            priorityEntry(3, "priority3", QT_TRANSLATE_NOOP("MarkCommands", "&3 (medium)")),
            priorityEntry(4, "priority4", QT_TRANSLATE_NOOP("MarkCommands", "&4 (low)")),
            priorityEntry(5, "priority5", QT_TRANSLATE_NOOP("MarkCommands", "&5 (lowest)")),
            priorityEntry(TreeItem::none, "priorityNone",
                          QT_TRANSLATE_NOOP("MarkCommands", "&No priority"))};
}

std::vector<MarkEntry> MarkEntries::colours()
{
    return {colourEntry(0x1f6fb5, "colourBlue", QT_TRANSLATE_NOOP("MarkCommands", "&Blue")),
            colourEntry(0x0f7f86, "colourTeal", QT_TRANSLATE_NOOP("MarkCommands", "&Teal")),
            colourEntry(0x1f7a3d, "colourGreen", QT_TRANSLATE_NOOP("MarkCommands", "&Green")),
            colourEntry(0x7a5c00, "colourBrown", QT_TRANSLATE_NOOP("MarkCommands", "Bro&wn")),
            colourEntry(0xb8480f, "colourOrange", QT_TRANSLATE_NOOP("MarkCommands", "&Orange")),
            colourEntry(0xb3261e, "colourRed", QT_TRANSLATE_NOOP("MarkCommands", "&Red")),
            colourEntry(0x5b21b6, "colourPurple", QT_TRANSLATE_NOOP("MarkCommands", "&Purple")),
            colourEntry(0x4c5763, "colourGrey", QT_TRANSLATE_NOOP("MarkCommands", "Gr&ey")),
            colourEntry(QColor(), "colourNone",
                        QT_TRANSLATE_NOOP("MarkCommands", "That of the p&alette"))};
}

UndoCommand::Name MarkEntries::stepName(const char *text)
{
    return [text] { return QCoreApplication::translate("MarkCommands", text); };
}
