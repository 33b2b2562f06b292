// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/recentfiles.h>

#include <app/common/language.h>
#include <app/common/shownpath.h>

#include <fishbone/base/filenames.h>

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

#include <algorithm>

namespace {

constexpr int widestEntry = 420; ///< pixels; longer paths are shortened in the middle

QString settingsKey()
{
    return QStringLiteral("recentFiles");
}

/** One spelling for each file, also for one that is gone. */
QString normalized(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

/** Takes @p path out of @p paths, however it is spelled there; whether it was there. */
bool removeFrom(QStringList &paths, const QString &path)
{
    const int before = int(paths.size());
    const QString wanted = normalized(path);
    const auto isWanted = [&wanted](const QString &other) {
        return FileNames::areSame(other, wanted);
    };
    paths.erase(std::remove_if(paths.begin(), paths.end(), isWanted), paths.end());
    return paths.size() < before;
}

/** @p path as the user reads it, with a "~" for the home folder. */
QString shownPath(const QString &path)
{
    const QString home = QDir::homePath() + QLatin1Char('/');
    return ShownPath::of(path.startsWith(home) ? QLatin1String("~/") + path.mid(home.size())
                                               : path);
}

} // namespace

RecentFiles::RecentFiles(QWidget *window)
    : QObject(window)
    , m_menu(new QMenu(window))
{
    Language::bind(m_menu, &QMenu::setTitle, [] { return tr("&Recent files"); });
    m_menu->setObjectName(QStringLiteral("recentMenu"));
    connect(m_menu, &QMenu::aboutToShow, this, &RecentFiles::fillMenu);
}

QStringList RecentFiles::files() const
{
    return QSettings().value(settingsKey()).toStringList();
}

void RecentFiles::add(const QString &path)
{
    QStringList paths = files();
    removeFrom(paths, path);
    paths.prepend(normalized(path));
    while (paths.size() > limit)
        paths.removeLast();
    QSettings().setValue(settingsKey(), paths);
}

void RecentFiles::remove(const QString &path)
{
    QStringList paths = files();
    if (removeFrom(paths, path))
        QSettings().setValue(settingsKey(), paths);
}

void RecentFiles::fillMenu()
{
    m_menu->clear();
    const QStringList paths = files();
    int number = 0;
    for (const QString &path : paths) {
        QString text =
            m_menu->fontMetrics().elidedText(shownPath(path), Qt::ElideMiddle, widestEntry);
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        m_menu->addAction(QStringLiteral("&%1  %2").arg(++number).arg(text), this,
                          [this, path] { choose(path); });
    }
    if (paths.isEmpty()) {
        m_menu->addAction(tr("(nothing yet)"))->setEnabled(false);
        return;
    }
    m_menu->addSeparator();
    m_menu->addAction(tr("&Clear the list"), this, [] { QSettings().remove(settingsKey()); });
}
