// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/diagramview.h>

#include <fishbone/exchange/pagesize.h>

#include <QCommandLineOption>
#include <QCoreApplication>
#include <QList>
#include <QString>

#include <optional>

class QCommandLineParser;

/** How a picture is drawn, as the arguments have it. */
struct LookChoice
{
    Q_DECLARE_TR_FUNCTIONS(LookChoice)

public:
    /** The options, in the order of the help text. */
    static QList<QCommandLineOption> commandLineOptions();

    /** Takes over what is set in @p parser. Returns what makes no sense of it, empty when all does.
     */
    QString read(const QCommandLineParser &parser);

    DiagramView view;
    std::optional<PageSize> page; ///< what to arrange it for; nothing for no page in particular

private:
    QString readPage(const QString &text);
};
