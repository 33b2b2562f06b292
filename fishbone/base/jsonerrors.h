// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonParseError>
#include <QString>

class QByteArray;

/** What is wrong with JSON, in the words of this program: the toolkit's are never translated. */
namespace JsonErrors {

/** What was expected, as a clause; empty for no error. */
QString expectation(QJsonParseError::ParseError error);

/** Why @p json, which was parsed with @p error, is none: a clause with the line. */
QString reason(const QByteArray &json, const QJsonParseError &error);

} // namespace JsonErrors
