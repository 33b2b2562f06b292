// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/support/filecontent.h>

#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/panels/detailspanel.h>
#include <app/panels/historypanel.h>
#include <app/panels/subjecttree.h>
#include <app/window/mainwindow.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/undostack.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

/**
 * The program's window with the small diagram "Late": bones "People" (with "Too few" (with
 * "Illness") and "Too new"), "Machines" and "Material" (with "Rust").
 */
class AppFixture
{
    Q_DISABLE_COPY(AppFixture)

public:
    AppFixture()
    {
        QObject::connect(&m_watchdog, &QTimer::timeout, &m_watchdog, [this] { closeForgotten(); });
        m_watchdog.start(500);
        writeFile(path(), diagram());
        window.resize(1200, 800);
        window.show();
        window.open({path()});
        window.activateWindow();
        window.editor()->view()->setFocus();
        settle();
    }

    static QByteArray diagram()
    {
        return R"({"title": "Late", "uuid": "{h}", "pid": "-1", "children": [
            {"title": "People", "uuid": "{a}", "pid": "{h}", "children": [
                {"title": "Too few", "uuid": "{b}", "pid": "{a}", "children": [
                    {"title": "Illness", "uuid": "{c}", "pid": "{b}"}]},
                {"title": "Too new", "uuid": "{d}", "pid": "{a}"}]},
            {"title": "Machines", "uuid": "{e}", "pid": "{h}"},
            {"title": "Material", "uuid": "{f}", "pid": "{h}", "children": [
                {"title": "Rust", "uuid": "{g}", "pid": "{f}"}]}]})";
    }

    static void writeFile(const QString &name, const QByteArray &content)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    static QByteArray contentOf(const QString &name) { return TestSupport::contentOf(name); }

    /** Lets the window answer what has happened. */
    static void settle()
    {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }

    QString path(const QString &name = QStringLiteral("late.json")) const
    {
        return folder.filePath(name);
    }

    QAction *action(const char *name) const
    {
        return window.findChild<QAction *>(QLatin1String(name));
    }

    /** Triggers an enabled action. */
    void trigger(const char *name)
    {
        QAction *const chosen = action(name);
        QVERIFY2(chosen, name);
        QVERIFY2(chosen->isEnabled(), name);
        chosen->trigger();
        settle();
    }

    /** The widget of that name; of those that every tab has, the one of the current tab. */
    template <typename Widget>
    Widget *widget(const char *name) const
    {
        const QString wanted = QLatin1String(name);
        const DocumentTab *const tab = window.tabs()->current();
        const QList<Widget *> all = window.findChildren<Widget *>(wanted);
        for (Widget *each : all) {
            if (tab->isAncestorOf(each) || tab->tree()->isAncestorOf(each) ||
                tab->details()->isAncestorOf(each) ||
                static_cast<const QWidget *>(each) == tab->history())
                return each;
        }
        return all.value(0);
    }

    /** The number of open documents. */
    int tabCount() const { return window.tabs()->tabs().size(); }

    /** Shows the document in the tab at @p position. */
    void showTab(int position)
    {
        window.tabs()->setCurrent(window.tabs()->tabs().at(position));
        settle();
    }

    /** The subject of that title; invalid when there is none. */
    QModelIndex find(const char *title) const
    {
        const QModelIndexList found = window.model()->searchModelIndexes(QString::fromUtf8(title));
        for (const QModelIndex &index : found) {
            if (window.model()->getTreeItem(index)->title() == QString::fromUtf8(title))
                return index;
        }
        return {};
    }

    TreeItem *subject(const char *title) const { return window.model()->getTreeItem(find(title)); }

    void select(const char *title)
    {
        window.session()->select(find(title));
        settle();
    }

    FishInfo *document() const { return window.session()->document(); }

    /** The shown document as text: "Late[People[Too few[Illness],Too new],…]". */
    QString text() const { return textOf(document()->treeItem()->childAtIndex(0)); }

    static QString textOf(const TreeItem *item)
    {
        QStringList children;
        for (const TreeItem *child : item->childItems())
            children.append(textOf(child));
        return children.isEmpty()
                   ? item->title()
                   : QStringLiteral("%1[%2]").arg(item->title(), children.join(QLatin1Char(',')));
    }

    /** The titles of the selected spears, in document order. */
    QStringList selectedInDrawing() const
    {
        QStringList titles;
        const QList<QGraphicsItem *> items = window.editor()->selectedItems();
        for (QGraphicsItem *item : items) {
            if (auto *const spear = qgraphicsitem_cast<SpearItem *>(item))
                titles.append(spear->treeItem()->title());
        }
        return titles;
    }

    QStringList selectedInTree() const
    {
        QStringList titles;
        const QModelIndexList indexes = window.tree()->selectedSubjects();
        for (const QModelIndex &index : indexes)
            titles.append(window.model()->getTreeItem(index)->title());
        return titles;
    }

private:
    /** Closes a dialog that nobody answers, so that a test fails instead of hanging. */
    void closeForgotten()
    {
        QWidget *const modal = QApplication::activeModalWidget();
        if (modal != m_modal)
            m_age = 0;
        m_modal = modal;
        if (!modal || ++m_age < 20)
            return;
        qCritical() << "nobody answers" << modal;
        if (auto *const dialog = qobject_cast<QDialog *>(modal))
            dialog->reject();
        else
            modal->close();
    }

    QTimer m_watchdog;
    const QWidget *m_modal = nullptr; ///< only compared
    int m_age = 0;

public:
    QTemporaryDir folder;
    MainWindow window;
    QAbstractItemModelTester tester{window.model(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest};
};
