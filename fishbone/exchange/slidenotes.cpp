// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/slidenotes.h>

#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/exchange/slidepackage.h>

#include <QDateTime>
#include <QLocale>

namespace {

QByteArray paragraph(const QString &text)
{
    return "<a:p><a:r><a:rPr/><a:t>" + SlidePackage::escaped(text) + "</a:t></a:r></a:p>";
}

/** Who does it, by when, and how far it is. */
QStringList actionOf(const TreeItem &subject)
{
    QStringList parts;
    if (!subject.managerName().isEmpty())
        parts.append(subject.managerName());
    if (subject.planEndDate() != 0)
        parts.append(QLocale().toString(
            QDateTime::fromMSecsSinceEpoch(subject.planEndDate()).date(), QLocale::ShortFormat));
    if (subject.progress() > 0)
        parts.append(QStringLiteral("%1 %").arg(subject.progress()));
    return parts;
}

} // namespace

QByteArray SlideNotes::paragraphs(const TreeItem &head)
{
    QByteArray outline;
    QByteArray actions;
    OutlineWalk::walk(head, [&](const TreeItem &subject, int level) {
        constexpr int step = 4;
        const QString title = subject.title().simplified();
        outline += paragraph(QString(level * step, QChar(QChar::Nbsp)) + title);
        const QStringList parts = actionOf(subject);
        if (!parts.isEmpty())
            actions +=
                paragraph(QStringLiteral("%1: %2").arg(title, parts.join(QLatin1String(", "))));
    });
    return actions.isEmpty() ? outline : outline + paragraph(SlideExport::tr("Actions")) + actions;
}
