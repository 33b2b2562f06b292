// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/** The latest subjects that were shown, by their uuids, the oldest one first. */
class RecentSubjects
{
public:
    static constexpr int most = 4; ///< as many are remembered

    /** Remembers one more; false when it is remembered already. */
    bool add(const QString &uuid)
    {
        if (m_uuids.contains(uuid))
            return false;
        if (m_uuids.size() >= most)
            m_uuids.removeFirst();
        m_uuids.append(uuid);
        return true;
    }
    const QStringList &uuids() const { return m_uuids; }

private:
    QStringList m_uuids;
};
