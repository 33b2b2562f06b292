// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/diagramlook.h>

#include <QCommandLineOption>
#include <QCoreApplication>
#include <QList>
#include <QSizeF>
#include <QString>

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

    DiagramLook::Kind kind = DiagramLook::Clear;
    DiagramLook::Options options;
    QSizeF page;                ///< what to arrange it for; empty for no page in particular
    bool isMillimetres = false; ///< the page is of paper, else of pixels

private:
    QString readPage(const QString &text);
};
