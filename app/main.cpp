// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/checkrun.h>
#include <app/commandline/commandline.h>
#include <app/commandline/convertrun.h>
#include <app/commandline/exportrun.h>
#include <app/commandline/inforun.h>
#include <app/commandline/mergerun.h>
#include <app/commandline/reportrun.h>
#include <app/commandline/startup.h>
#include <app/common/language.h>
#ifdef FISHBONE_DBUS
#include <app/common/treeitemrole.h>
#endif
#include <app/files/documentloader.h>
#include <app/window/mainwindow.h>

#include <fishbone/dialogs/urldialog.h>
#include <fishbone/version.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <cstdio>
#include <memory>

namespace {

int fail(const QString &message, int code)
{
    std::fprintf(stderr, "fishbone: %s\n", qPrintable(message));
    return code;
}

int print(const QString &text, int code)
{
    std::fputs(qPrintable(text), stdout);
    return code;
}

/** @p source in a form that does not depend on the working folder. */
QString absolute(const QString &source)
{
    const QString path = DocumentLoader::localPath(source);
    return path.isEmpty() ? source : QFileInfo(path).absoluteFilePath();
}

/** Keeps the URLs that were entered with the other data of the user. */
void useDataFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    if (QDir().mkpath(folder))
        URLDialog::setHistoryFolder(folder);
}

/** What is asked for counts most. What was chosen in the window is for windows: a script gets the
 * same output from everybody. */
QString languageFor(const CommandLine &line)
{
    const bool isForWindow = line.action == CommandLine::Action::ShowWindow;
    return line.language.isEmpty() && isForWindow ? Language::chosen() : line.language;
}

int showWindow(const StartUp &startUp, const CommandLine &line)
{
    if (startUp.lacksDisplay())
        return fail(CommandLine::tr("there is no display to open a window on; --export needs none"),
                    CommandLine::failure);
    QStringList sources;
    for (const QString &source : line.documents)
        sources.append(absolute(source));
    useDataFolder();
#ifdef FISHBONE_DBUS
    TreeItemRole::install();
#endif
    MainWindow window;
    window.show();
    window.offerRecovery();
    window.open(sources);
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    StartUp startUp(argc, argv);
    const std::unique_ptr<QCoreApplication> application = startUp.makeApplication();
    QCoreApplication::setApplicationName(QStringLiteral("Fishbone"));
    QCoreApplication::setOrganizationName(QStringLiteral("Fishbone"));
    QCoreApplication::setApplicationVersion(QStringLiteral(FISHBONE_VERSION_STRING));
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));

    const CommandLine first = CommandLine::parse(startUp.arguments());
    if (QFileInfo(first.translations).isDir())
        Language::useFolder(first.translations);
    Language::install(languageFor(first));
    const CommandLine line = CommandLine::parse(startUp.arguments()); // in that language now
    QString message;
    switch (line.action) {
    case CommandLine::Action::ShowWindow:
        return showWindow(startUp, line);
    case CommandLine::Action::Export: {
        const int code = runExport(line, message);
        return code == CommandLine::success ? code : fail(message, code);
    }
    case CommandLine::Action::Convert: {
        const int code = runConvert(line, message);
        return code == CommandLine::success ? code : fail(message, code);
    }
    case CommandLine::Action::Info: {
        const int code = runInfo(line, message);
        return code == CommandLine::failure ? fail(message, code) : print(message, code);
    }
    case CommandLine::Action::Report: {
        const int code = runReport(line, message);
        return code == CommandLine::success ? code : fail(message, code);
    }
    case CommandLine::Action::Check: {
        const int code = runCheck(line, message);
        return print(message, code);
    }
    case CommandLine::Action::Merge: {
        const int code = runMerge(line, message);
        return code == CommandLine::success ? code : fail(message, code);
    }
    case CommandLine::Action::Print:
        return print(line.text.isEmpty() ? CommandLine::helpText(line.command) : line.text,
                     CommandLine::success);
    case CommandLine::Action::Refuse:
        return fail(line.text, CommandLine::badUsage);
    }
    return CommandLine::failure;
}
