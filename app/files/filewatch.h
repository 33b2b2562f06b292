// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

/**
 * Notices when somebody else changes a file, replaces it or takes it away. What counts is the
 * content: a file that is written anew with what it held is the same.
 */
class FileWatch : public QObject
{
    Q_OBJECT

public:
    /** How a file stands to what is known of it. */
    enum class State {
        Same,    ///< it has the known content, or there is no file to watch
        Changed, ///< it has another content
        Missing, ///< it is not there any more
    };
    Q_ENUM(State)

    explicit FileWatch(QObject *parent = nullptr);

    /** From now on watches the file @p path and knows its content, whatever that is; none when @p
     * path is empty. */
    void setFile(const QString &path);

    /** Knows the content that the file has now: whoever changed it was heard. */
    void accept();

    /** How the file stands now. */
    State look() const;

Q_SIGNALS:
    /** The file stands otherwise than before, or was changed once more. */
    void changed(FileWatch::State state);

private:
    void wait();
    void check();
    void watchAgain();
    QByteArray fingerprint() const;
    State stateOf(const QByteArray &current) const;

    QString m_path;
    QByteArray m_known;    ///< the fingerprint of the known content
    QByteArray m_reported; ///< the fingerprint of what was reported last
    QFileSystemWatcher m_watcher;
    QTimer m_wait;
};
