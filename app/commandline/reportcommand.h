// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/commandline/linecommand.h>

/** The command "report": what is sent round after a meeting. */
class ReportCommand : public LineCommand
{
public:
    void describe(QCommandLineParser &parser) const override;
    bool read(LineReader &reader) const override;
};
