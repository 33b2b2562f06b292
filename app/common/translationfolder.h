// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>

/**
 * A folder in which somebody works on translations: files like those in translations/ of the
 * sources, or what lrelease makes of them. A text that is changed there can be seen at once.
 */
class TranslationFolder : public QObject
{
    Q_OBJECT

public:
    explicit TranslationFolder(const QString &folder, QObject *parent = nullptr);

    /** The languages of the files, sorted. */
    QStringList languages() const;

    /**
     * The compiled texts of @p language, empty when there are none. Those of a .ts file are
     * compiled anew when it has changed, as far as lrelease is installed; otherwise a .qm file
     * counts.
     */
    QString fileOf(const QString &language);

Q_SIGNALS:
    /** A file in the folder is another one now. */
    void changed();

private:
    QString pathOf(const QString &language, const char *ending) const;
    void watchFiles();

    const QString m_folder;
    QTemporaryDir m_compiled;
    QFileSystemWatcher m_watcher;
    QTimer m_settling; ///< until nobody writes any more
};
