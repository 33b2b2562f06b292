// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/commandline/linecommand.h>

/** The command "merge": two versions of a diagram that have one origin. */
class MergeCommand : public LineCommand
{
public:
    void describe(QCommandLineParser &parser) const override;
    bool read(LineReader &reader) const override;
};
