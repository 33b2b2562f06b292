// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class ImportedTree;

/** What the readers of text formats share. */
namespace ExchangeText {

/**
 * The text of @p bytes, in the encoding that its byte order mark tells, in UTF-8, or in the code
 * page that the bytes tell, which @p tree notes. Nothing when it is no text, and @p tree fails.
 */
std::optional<QString> decode(const QByteArray &bytes, ImportedTree &tree);

/** The characters that a reference stands for: a name such as "amp", "#65" or "#x41"; null when it
 * stands for nothing. */
QString referenced(const QString &name);

/** Whether @p c is a control character. */
bool isControl(QChar c);

/** Goes through the lines of a text, whatever they end with. */
class Lines
{
public:
    explicit Lines(const QString &text)
        : m_text(text)
    {
    }

    /** Goes on to the next line; false at the end. */
    bool next();
    /** The line, without what surrounds it. */
    const QString &text() const { return m_line; }
    /** The line as it is, but for blanks at its end. */
    QString raw() const;
    /** The line from that column on, or from its text on when that begins before. */
    QString rawFrom(int column) const;
    /** The column in which the text begins; a tab goes on to the next multiple of four. */
    int indentation() const { return m_indentation; }
    /** The number of the line, from 1 on. */
    qint64 number() const { return m_number; }

private:
    QString m_text;
    QString m_line;
    int m_begin = 0; ///< of the line
    int m_position = 0;
    int m_indentation = 0;
    qint64 m_number = 0;
};

} // namespace ExchangeText
