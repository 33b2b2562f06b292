// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/base/jsonerrors.h>

#include <QByteArray>
#include <QCoreApplication>

QString JsonErrors::expectation(QJsonParseError::ParseError error)
{
    const auto text = [](const char *source) {
        return QCoreApplication::translate("JsonErrors", source);
    };
    switch (error) {
    case QJsonParseError::UnterminatedObject:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "a name in quotes or } is missing"));
    case QJsonParseError::MissingNameSeparator:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "the colon behind a name is missing"));
    case QJsonParseError::UnterminatedArray:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "a comma or ] is missing"));
    case QJsonParseError::MissingValueSeparator:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "the comma behind a value is missing"));
    case QJsonParseError::IllegalValue:
    case QJsonParseError::IllegalNumber:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "a text in quotes, a number, true, false, "
                                                    "null, { or [ is missing"));
    case QJsonParseError::TerminationByNumber:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "it ends with a number"));
    case QJsonParseError::IllegalEscapeSequence:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "a backslash begins no escape sequence"));
    case QJsonParseError::IllegalUTF8String:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "a text is not encoded as UTF-8"));
    case QJsonParseError::UnterminatedString:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "the quote at the end of a text is missing"));
    case QJsonParseError::MissingObject:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "a name or a value is missing"));
    case QJsonParseError::DeepNesting:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "it nests too deep"));
    case QJsonParseError::DocumentTooLarge:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "it is too large"));
    case QJsonParseError::GarbageAtEnd:
        return text(QT_TRANSLATE_NOOP("JsonErrors", "there is more behind its end"));
    default:
        return QString();
    }
}

QString JsonErrors::reason(const QByteArray &json, const QJsonParseError &error)
{
    if (error.error == QJsonParseError::NoError)
        return QCoreApplication::translate("JsonErrors", "it is not a JSON document");
    return QCoreApplication::translate("JsonErrors", "it is not a JSON document (line %1: %2)")
        .arg(json.left(error.offset).count('\n') + 1)
        .arg(expectation(error.error));
}
