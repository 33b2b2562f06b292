// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QMap>
#include <QScreen>

#include <cstdio>

namespace {
using Programs = QMap<QString, TestSupport::TestProgram::Main>;

/** Made by whichever source is initialized first. */
Programs &programs()
{
    static Programs all;
    return all;
}

QString nameOf(const char *path)
{
    return QFileInfo(QFile::decodeName(path)).completeBaseName();
}
} // namespace

TestSupport::TestProgram::TestProgram(const char *sourceFile, Main main)
{
    programs().insert(nameOf(sourceFile), main);
}

void TestSupport::holdScreen()
{
    [[maybe_unused]] static const QPlatformScreen *held = nullptr;
    held = QGuiApplication::primaryScreen()->handle();
}

int main(int argc, char *argv[])
{
    const QString name = nameOf(argv[0]);
    if (const auto main = programs().value(name))
        return main(argc, argv);
    std::fprintf(stderr, "There is no test \"%s\" in this program, which has:\n", qPrintable(name));
    for (auto program = programs().cbegin(); program != programs().cend(); ++program)
        std::fprintf(stderr, "  %s\n", qPrintable(program.key()));
    return 2;
}
