// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// While one is alive, a file of the global style that is not there is looked for once instead of
/// by each call of SpearStyle::global(): one pass over a drawing asks for the style at every bone.
class GlobalStyleLookup
{
    Q_DISABLE_COPY(GlobalStyleLookup)

public:
    GlobalStyleLookup() { ++m_depth; }
    ~GlobalStyleLookup()
    {
        if (--m_depth == 0)
            m_isDone = false;
    }

    /// Whether the file is to be looked for now. For SpearStyle::global().
    static bool isDue()
    {
        if (m_depth == 0)
            return true;
        const bool wasDone = m_isDone;
        m_isDone = true;
        return !wasDone;
    }

private:
    static inline int m_depth = 0;
    static inline bool m_isDone = false;
};
