// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/**
 * One pass over a drawing: a layout, or a paint of a view. It asks at every bone for what may be
 * missing; while one of these lives, whoever looks for that does it once. They may nest. For the
 * GUI thread.
 */
class OnePass
{
    Q_DISABLE_COPY(OnePass)

public:
    OnePass()
    {
        if (m_depth++ == 0)
            ++m_count;
    }
    ~OnePass() { --m_depth; }

    /** The number of the running pass, which no other one has; 0 while there is none. */
    static quint64 current() { return m_depth > 0 ? m_count : 0; }

private:
    static inline int m_depth = 0;
    static inline quint64 m_count = 0;
};

/** Whether to look for something again that was missing: always, but once within a pass. */
class OncePerPass
{
public:
    bool isDue()
    {
        const quint64 pass = OnePass::current();
        if (pass != 0 && pass == m_last)
            return false;
        m_last = pass;
        return true;
    }

private:
    quint64 m_last = 0;
};
