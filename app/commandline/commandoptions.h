// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/commandline/commandline.h>

#include <QCommandLineOption>
#include <QList>

/** The options of the program, and what its help says of them. */
namespace CommandOptions {

QCommandLineOption forHelp();
QCommandLineOption forVersion();
/** The language of texts. */
QCommandLineOption forLanguage();
/** The folder of texts, for translators. */
QCommandLineOption forTranslations();
QCommandLineOption forExport();
/** The options for pictures, in the order of the help text. */
QList<QCommandLineOption> forPictures();
/** The format of the file that is read. */
QCommandLineOption forFrom();
/** The format of the file that is written. */
QCommandLineOption forTo();
QCommandLineOption forStrict();
/** What is said comes as JSON. */
QCommandLineOption forJson();

/** Gives @p parser the options of all commands: only behind them it shows which command there is.
 */
void describeAll(QCommandLineParser &parser);

/** Says that @p option takes @p what instead of @p value. */
QString expected(const QString &option, const QString &value, const QString &what);
/** What is wrong with the texts that @p line asks for; empty when nothing is. */
QString wrongTexts(const CommandLine &line);

} // namespace CommandOptions
