// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/commandline/linecommand.h>

/** What there is without a command: documents are shown in the window, or one is exported. */
class WindowCommand : public LineCommand
{
public:
    void describe(QCommandLineParser &parser) const override;
    bool read(LineReader &reader) const override;

private:
    static bool readExport(LineReader &reader);
};
