// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fuzz/fuzzing.h>

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace Fuzzing {

void startApplication()
{
    static int argumentCount = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static QApplication *const application = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            if (type == QtFatalMsg)
                std::fprintf(stderr, "%s\n", qPrintable(text));
        });
        return new QApplication(argumentCount, arguments); // lives as long as the process
    }();
    Q_UNUSED(application)
}

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "\nDoes not hold: %s\n", what);
    std::abort();
}

void requireEqual(const QByteArray &actual, const QByteArray &expected, const char *what)
{
    if (actual == expected)
        return;
    std::fprintf(stderr, "\nExpected:\n%s\nActual:\n%s\n", expected.constData(),
                 actual.constData());
    require(false, what);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
                file.flush(),
            "the target can write its own files");
}

} // namespace Fuzzing
