// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/mergerun.h>

#include <app/commandline/commandline.h>
#include <app/files/diagrammerge.h>

#include <fishbone/model/treeitem.h>

#include <QFileInfo>

#include <cstdio>

namespace {

/** The diagram in @p file; null, with a message, when it cannot be read. */
std::unique_ptr<TreeItem> readVersion(const QString &file, QString &message)
{
    QString reason;
    auto head = DiagramExchange::readFile(file, DiagramExchange::Format::Json, &reason);
    if (!head)
        message = CommandLine::tr("cannot read %1: %2").arg(file, reason);
    return head;
}

/** Whether @p file is there and empty, which is how git says that there is no base. */
bool isEmptyFile(const QString &file)
{
    const QFileInfo info(file);
    return info.exists() && info.size() == 0;
}

} // namespace

int runMerge(const CommandLine &line, QString &message)
{
    const QString target = line.documents.at(1);
    const QString baseFile = line.documents.at(0);
    std::unique_ptr<TreeItem> base;
    if (!isEmptyFile(baseFile)) {
        base = readVersion(baseFile, message);
        if (!base)
            return CommandLine::failure;
    }
    const auto ours = readVersion(target, message);
    const auto theirs = ours ? readVersion(line.documents.at(2), message) : nullptr;
    if (!theirs)
        return CommandLine::failure;
    const DiagramMerge merge(base.get(), ours.get(), theirs.get());
    QString reason;
    if (!DiagramExchange::writeFile(target, *merge.head(), DiagramExchange::Format::Json,
                                    &reason)) {
        message = CommandLine::tr("cannot write %1: %2").arg(target, reason);
        return CommandLine::failure;
    }
    const QStringList conflicts = merge.conflicts();
    if (conflicts.isEmpty())
        return CommandLine::success;
    for (const QString &conflict : conflicts)
        std::fprintf(stderr, "fishbone: %s\n", qPrintable(conflict));
    message = CommandLine::tr("there are conflicts: look for the causes \"Merge conflict\"");
    return CommandLine::failure;
}
