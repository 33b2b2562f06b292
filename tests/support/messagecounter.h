// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace TestSupport {

/** Counts the messages of any kind while it lives, in place of showing them. */
class MessageCounter
{
    Q_DISABLE_COPY(MessageCounter)

public:
    MessageCounter()
        : m_before(qInstallMessageHandler(countMessage))
    {
        m_count = 0;
    }
    ~MessageCounter() { qInstallMessageHandler(m_before); }

    int count() const { return m_count; }

private:
    static void countMessage(QtMsgType, const QMessageLogContext &, const QString &) { ++m_count; }

    static inline int m_count = 0;
    QtMessageHandler m_before;
};

} // namespace TestSupport
