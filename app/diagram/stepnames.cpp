// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/stepnames.h>

#include <fishbone/undo/undostack.h>

#include <QVector>

namespace {

/** @p title in one line of a bearable length. */
QString shortened(const QString &title)
{
    constexpr int longest = 40;
    QString line = title.simplified();
    if (line.size() > longest) {
        line.truncate(line.at(longest - 2).isHighSurrogate() ? longest - 2 : longest - 1);
        line.append(QChar(u'\u2026'));
    }
    return line;
}

} // namespace

QStringList StepNames::of(const UndoStack &stack)
{
    const QStringList names = stack.commandNames();
    const QVector<QStringList> subjects = stack.commandSubjects();
    QStringList steps;
    for (int i = 0; i < int(names.size()); ++i)
        steps.append(of(names.at(i), subjects.value(i)));
    return steps;
}

QString StepNames::of(const QString &name, const QStringList &titles)
{
    if (titles.isEmpty())
        return name;
    const QString first = shortened(titles.constFirst());
    // In one go: a title may hold the mark of a place.
    if (titles.size() == 1)
        return QStringLiteral("%1 “%2”").arg(name, first);
    return tr("%1 “%2” and %n more", nullptr, int(titles.size()) - 1).arg(name, first);
}
