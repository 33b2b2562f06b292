// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/startup.h>

#include <app/commandline/commandline.h>

#include <QApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

bool windowless = false; // for the message handler, which takes no context

/** Ends the program as other failures do, instead of with a core dump, when Qt cannot begin. */
void reportStart(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    Q_UNUSED(context)
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    // Without a window nobody needs to know what the desktop environment lacks.
    if (windowless && type == QtWarningMsg)
        return;
    std::fprintf(stderr, "fishbone: %s\n", qPrintable(message.trimmed()));
    if (type == QtFatalMsg)
        std::_Exit(CommandLine::failure);
}

bool isSet(const char *variable)
{
    return !qEnvironmentVariableIsEmpty(variable);
}

/** Whether @p argument is an option that Qt takes out before this program sees it. */
bool isToolkitOption(const QString &argument)
{
    static const QRegularExpression option(QStringLiteral(
        "^--?(platform|platformpluginpath|platformtheme|plugin|qwindowgeometry|qwindowicon"
        "|qwindowtitle|session|display|geometry|style|stylesheet)$"));
    return option.match(argument).hasMatch();
}

/** @p arguments without Qt's options and their values. */
QStringList withoutToolkitOptions(QStringList arguments)
{
    for (int i = 1; i < arguments.size();) {
        if (isToolkitOption(arguments.at(i)))
            arguments.erase(arguments.begin() + i,
                            arguments.begin() + qMin(i + 2, arguments.size()));
        else
            ++i;
    }
    return arguments;
}

} // namespace

StartUp::StartUp(int argc, char **argv)
    : m_argc(argc)
    , m_argv(argv, argv + argc)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const CommandLine::Action action = CommandLine::parse(withoutToolkitOptions(arguments)).action;
    const bool windowed = action == CommandLine::Action::ShowWindow;
    m_lacksDisplay = windowed && !hasDisplay(arguments);
    m_drawsNothing = m_lacksDisplay || action == CommandLine::Action::Print ||
                     action == CommandLine::Action::Refuse;
    windowless = !windowed || m_lacksDisplay;
    if (windowless)
        useOffscreenPlatform();
    m_argv.push_back(nullptr);
}

std::unique_ptr<QCoreApplication> StartUp::makeApplication()
{
    if (m_drawsNothing)
        return std::make_unique<QCoreApplication>(m_argc, m_argv.data());
    qInstallMessageHandler(reportStart);
    auto application = std::make_unique<QApplication>(m_argc, m_argv.data());
    qInstallMessageHandler(nullptr);
    return application;
}

QStringList StartUp::arguments() const
{
    const QStringList all = QCoreApplication::arguments();
    return m_drawsNothing ? withoutToolkitOptions(all) : all;
}

bool StartUp::hasDisplay(const QStringList &arguments)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    if (std::any_of(arguments.cbegin(), arguments.cend(), isToolkitOption))
        return true; // perhaps the name of a platform or display: Qt will see
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && !platform.startsWith("xcb") && !platform.startsWith("wayland"))
        return true;
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
#else
    Q_UNUSED(arguments)
    return true;
#endif
}

void StartUp::useOffscreenPlatform()
{
    // The arguments count more than the environment, and the last one counts most.
    m_argv.push_back(m_option.data());
    m_argv.push_back(m_platform.data());
    m_argc += 2;
    // What is set for somebody's screen or style would change the picture or complain.
    for (const char *variable :
         {"QT_QPA_PLATFORM", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR",
          "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_ENABLE_HIGHDPI_SCALING",
          "QT_DEVICE_PIXEL_RATIO", "QT_USE_PHYSICAL_DPI", "QT_FONT_DPI"})
        qunsetenv(variable);
}
