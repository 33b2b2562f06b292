// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/commandline/linecommand.h>

/** The command "convert": from one format to another. */
class ConvertCommand : public LineCommand
{
public:
    void describe(QCommandLineParser &parser) const override;
    bool read(LineReader &reader) const override;
};
