// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>

class QJsonDocument;

/** Reads and parses a file while the program goes on. */
class LargeFileReader : public QObject
{
    Q_OBJECT

public:
    explicit LargeFileReader(QObject *parent = nullptr);

    /** Reads the file @p path; what was being read before is dropped. */
    void read(const QString &path);
    /** Nobody wants any more what is being read: ended() does not come. */
    void drop();
    /** Whether ended() is going to come. */
    bool isReading() const { return m_isReading; }

Q_SIGNALS:
    /** @p json is what the file @p path holds; when that is no diagram, @p reason is a clause for
     * the user that says why. */
    void ended(const QString &path, const QJsonDocument &json, const QString &reason);

private:
    void end(int reading, const QString &path, const QJsonDocument &json, const QString &reason);

    int m_reading = 0; ///< the number of the last reading
    bool m_isReading = false;
    QThreadPool m_readers; ///< waits for its work before anything of this goes
};
