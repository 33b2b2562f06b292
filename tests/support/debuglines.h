// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QtGlobal>

namespace TestSupport {

/** Collects debug lines with their category as long as it lives. */
class DebugLines
{
    Q_DISABLE_COPY(DebugLines)

public:
    DebugLines()
        : m_before(qInstallMessageHandler(collect))
    {
        collected().clear();
    }
    ~DebugLines() { qInstallMessageHandler(m_before); }

    QStringList lines() const { return collected(); }

private:
    static QStringList &collected()
    {
        static QStringList lines;
        return lines;
    }
    static void collect(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (type == QtDebugMsg)
            collected().append(QString::fromLatin1(context.category) + QStringLiteral(": ") + text);
    }

    QtMessageHandler m_before;
};

} // namespace TestSupport
