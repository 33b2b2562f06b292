// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/translationfolder.h>

#include <app/common/toolkitfolder.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace {

/** The program that compiles translations, of the toolkit in use rather than of another version;
 * empty when there is none. */
QString compiler()
{
    const QString name = QStringLiteral("lrelease");
    const QString own = ToolkitFolder::of(QLibraryInfo::BinariesPath);
    const QString found = QStandardPaths::findExecutable(name, {own});
    return found.isEmpty() ? QStandardPaths::findExecutable(name) : found;
}

bool compile(const QString &source, const QString &target)
{
    constexpr int limit = 10000; // milliseconds
    QProcess process;
    process.start(compiler(), {QStringLiteral("-silent"), source, QStringLiteral("-qm"), target});
    return process.waitForFinished(limit) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

} // namespace

TranslationFolder::TranslationFolder(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(200);
    connect(&m_settling, &QTimer::timeout, this, [this] {
        watchFiles(); // an editor may have put another file in the place of one
        Q_EMIT changed();
    });
    const auto wait = [this] { m_settling.start(); };
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, wait);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, wait);
    m_watcher.addPath(m_folder);
    watchFiles();
}

void TranslationFolder::watchFiles()
{
    const QStringList languages = this->languages();
    for (const QString &language : languages) {
        for (const char *ending : {"ts", "qm"}) {
            const QString path = pathOf(language, ending);
            if (QFileInfo::exists(path) && !m_watcher.files().contains(path))
                m_watcher.addPath(path);
        }
    }
}

QStringList TranslationFolder::languages() const
{
    QStringList languages;
    const QFileInfoList files = QDir(m_folder).entryInfoList(
        {QStringLiteral("fishbone_*.ts"), QStringLiteral("fishbone_*.qm")}, QDir::Files);
    for (const QFileInfo &file : files)
        languages.append(file.completeBaseName().section(QLatin1Char('_'), 1));
    languages.removeDuplicates();
    languages.sort();
    return languages;
}

QString TranslationFolder::fileOf(const QString &language)
{
    const QString source = pathOf(language, "ts");
    const QString ready = pathOf(language, "qm");
    if (QFileInfo::exists(source)) {
        const QString compiled = m_compiled.filePath(QFileInfo(ready).fileName());
        const bool isNew = QFileInfo::exists(compiled) &&
                           QFileInfo(compiled).lastModified() >= QFileInfo(source).lastModified();
        if (isNew || compile(source, compiled))
            return compiled;
    }
    return QFileInfo::exists(ready) ? ready : QString();
}

QString TranslationFolder::pathOf(const QString &language, const char *ending) const
{
    return QStringLiteral("%1/fishbone_%2.%3").arg(m_folder, language, QLatin1String(ending));
}
