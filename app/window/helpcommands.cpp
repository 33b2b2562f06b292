// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/helpcommands.h>

#include <app/common/actionset.h>
#include <app/window/keysdialog.h>

#include <fishbone/version.h>

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QSysInfo>

HelpCommands::HelpCommands(ActionSet *actions, QWidget *window)
    : QObject(window)
    , m_actions(actions)
    , m_window(window)
{
    using Scope = ActionSet::Scope;
    actions->add(
        QStringLiteral("keys"), [] { return tr("&Keys…"); }, {QKeySequence::HelpContents},
        Scope::Window, [this] { showKeys(); });
    actions->add(
        QStringLiteral("about"), [] { return tr("&About Fishbone"); }, {}, Scope::Window,
        [this] { showAbout(); });
    QAction *const aboutQt = actions->add(
        QStringLiteral("aboutQt"), [] { return tr("About &Qt"); }, {}, Scope::Window,
        [] { QApplication::aboutQt(); });
    aboutQt->setMenuRole(QAction::AboutQtRole);
    actions->action(QStringLiteral("about"))->setMenuRole(QAction::AboutRole);
}

void HelpCommands::showKeys()
{
    KeysDialog(*m_actions, m_window).exec();
}

void HelpCommands::showAbout()
{
    const QString versions =
        tr("Version %1, library %2<br>Qt %3, built with %4<br>%5")
            .arg(QApplication::applicationVersion(), QString::fromLatin1(fishboneVersion()),
                 QString::fromLatin1(qVersion()), QStringLiteral(QT_VERSION_STR),
                 QSysInfo::prettyProductName().toHtmlEscaped());
    QMessageBox::about(
        m_window, tr("About Fishbone"),
        QStringLiteral("<h3>Fishbone</h3><p>%1</p><p>%2</p><p>%3</p>")
            .arg(tr("Draws cause-and-effect diagrams of tasks."), versions,
                 tr("Copyright © 2026 The Fishbone authors, under the MIT License")));
}
