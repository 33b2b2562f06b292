// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// Counts the changes to what drawings are laid out from: subjects, styles and spears, of the whole
/// process. As long as the count stands still, a drawing that was laid out needs no other layout.
/// For the GUI thread, like everything here.
class DrawnChanges
{
public:
    static void note() { ++m_count; }
    static quint64 count() { return m_count; }

private:
    static inline quint64 m_count = 0;
};
