// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// saving <how> <file> <subjects> [loop | once] [user]
//
// Saves the two versions of SavedVersions, again and again until it is killed, or only the second
// one. <how> is "save", "autosave" or "export". With a user id it gives up the rights of the
// superuser first. Prints a dot once a version is saved; the exit code of a single save is 0 when
// it succeeded, 1 when it was refused.

#include <tests/reliability/savedversions.h>

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

#include <csignal>
#include <unistd.h>

#include <fishbone/exchange/diagramexchange.h>

namespace {

bool save(FishInfo &document, const QString &how, const QString &file)
{
    if (how == QLatin1String("autosave")) {
        document.setAutoSaveFile(file);
        return document.saveTmpFile();
    }
    if (how == QLatin1String("export"))
        return DiagramExchange::writeFile(file, *document.treeItem()->childAtIndex(0),
                                          DiagramExchange::Format::Json);
    return document.saveFile(file);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString how = arguments.value(1);
    const QString file = arguments.value(2);
    const int nodes = arguments.value(3).toInt();
    const bool isLoop = arguments.value(4) == QLatin1String("loop");
    std::signal(SIGXFSZ, SIG_IGN); // a limit is reported as an error then
    FishModel model;
    FishInfo *const versions[] = {SavedVersions::load(model, 0, nodes),
                                  SavedVersions::load(model, 1, nodes)};
    if (arguments.size() > 5 && setuid(arguments.at(5).toUInt()) != 0)
        return 2;
    if (!isLoop) {
        const bool isSaved = save(*versions[1], how, file);
        std::_Exit(isSaved ? 0 : 1); // the leak checker cannot look at a process of changed rights
    }
    for (int turn = 1;; ++turn) {
        if (!save(*versions[turn % SavedVersions::count], how, file))
            return 1;
        std::fputc('.', stdout);
        std::fflush(stdout);
    }
}
