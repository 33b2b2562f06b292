// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/filewatch.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

FileWatch::FileWatch(QObject *parent)
    : QObject(parent)
{
    // A file that is replaced may be away for a moment, and a large one is written in parts.
    constexpr int calm = 250; // milliseconds
    m_wait.setSingleShot(true);
    m_wait.setInterval(calm);
    connect(&m_wait, &QTimer::timeout, this, &FileWatch::check);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::wait);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::wait);
}

void FileWatch::setFile(const QString &path)
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    m_wait.stop();
    m_path = path;
    accept();
    if (path.isEmpty())
        return;
    // The folder too: the watch on a file ends when that is replaced or taken away.
    m_watcher.addPath(QFileInfo(path).absolutePath());
    watchAgain();
}

void FileWatch::watchAgain()
{
    if (!m_watcher.files().contains(m_path) && QFileInfo::exists(m_path))
        m_watcher.addPath(m_path);
}

void FileWatch::accept()
{
    m_known = fingerprint();
    m_reported = m_known;
}

/** What tells contents apart; empty when there is no file. */
QByteArray FileWatch::fingerprint() const
{
    QFile file(m_path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (m_path.isEmpty() || !file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return QByteArray();
    return hash.result();
}

FileWatch::State FileWatch::look() const
{
    return stateOf(fingerprint());
}

FileWatch::State FileWatch::stateOf(const QByteArray &current) const
{
    if (current == m_known)
        return State::Same;
    return current.isEmpty() ? State::Missing : State::Changed;
}

void FileWatch::wait()
{
    m_wait.start();
}

void FileWatch::check()
{
    watchAgain();
    const QByteArray current = fingerprint();
    if (current == m_reported)
        return;
    m_reported = current;
    Q_EMIT changed(stateOf(current));
}
