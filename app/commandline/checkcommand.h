// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/commandline/linecommand.h>

/** The command "check": what is off in files. */
class CheckCommand : public LineCommand
{
public:
    void describe(QCommandLineParser &parser) const override;
    bool read(LineReader &reader) const override;
};
