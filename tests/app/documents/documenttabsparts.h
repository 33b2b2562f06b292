// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/app/appfixture.h>

#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace TestSupport {

/** The fixture with a second document "Other" with the bone "Bone", whose tab is shown. */
class TabsFixture : public AppFixture
{
public:
    TabsFixture()
    {
        writeFile(otherPath(), R"({"title": "Other", "uuid": "{o}", "children": [
            {"title": "Bone", "uuid": "{p}", "children": [{"title": "Marrow", "uuid": "{q}"}]}]})");
        window.open({otherPath()});
        settle();
    }

    QString otherPath() const { return path(QStringLiteral("other & more.json")); }
    QTabWidget *tabWidget() const { return window.findChild<QTabWidget *>(QStringLiteral("tabs")); }
    QTabBar *bar() const { return tabWidget()->tabBar(); }

    void click(int tab, Qt::MouseButton button)
    {
        QTest::mouseClick(bar(), button, {}, bar()->tabRect(tab).center());
        settle();
    }

    /** The entry of the context menu of a tab, once that is open. */
    QAction *menuEntry(int tab, const QString &text) const
    {
        Q_EMIT bar()->customContextMenuRequested(bar()->tabRect(tab).center());
        const auto *const menu = window.findChild<QMenu *>(QStringLiteral("tabMenu"));
        const QList<QAction *> actions = menu ? menu->actions() : QList<QAction *>();
        for (QAction *action : actions) {
            if (QString(action->text()).remove(QLatin1Char('&')) == text)
                return action;
        }
        return nullptr;
    }
};

} // namespace TestSupport
