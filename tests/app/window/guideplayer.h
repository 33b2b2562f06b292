// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>
#include <tests/support/modaldriver.h>

#include <fishbone/items/textitem.h>

#include <QInputMethodEvent>
#include <QMenu>
#include <QMenuBar>

/** Works with the program's window as a reader of the guide does: with keys and the mouse. */
class GuidePlayer
{
    Q_DISABLE_COPY(GuidePlayer)

public:
    GuidePlayer()
    {
        window.resize(1100, 700);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    static QWidget *focus()
    {
        return QApplication::focusWidget() ? QApplication::focusWidget()
                                           : QApplication::activeWindow();
    }
    /** Types @p text wherever the focus goes meanwhile. */
    static void type(const QString &text)
    {
        for (const QChar &character : text)
            typeInto(focus(), character);
        AppFixture::settle();
    }
    /** Types @p text into @p field; what is on no key comes from an input method. */
    static void typeInto(QWidget *field, const QString &text)
    {
        for (const QChar &character : text) {
            if (character.unicode() < 0x80) {
                QTest::keyClicks(field, QString(character));
                continue;
            }
            QInputMethodEvent event;
            event.setCommitString(QString(character));
            QApplication::sendEvent(field, &event);
        }
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            QTest::keyClick(focus(), key, modifiers);
        AppFixture::settle();
    }
    /** Inserts with @p key and gives the title. */
    static void insert(Qt::Key key, const QString &title)
    {
        press(key);
        type(title);
        press(Qt::Key_Return);
    }
    /** Clicks on the title of a bone. */
    void click(const QString &title, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const SpearItem *const bone = boneOf(title);
        QVERIFY2(bone, qPrintable(title));
        GraphicsView *const view = window.editor()->view();
        view->setFocus();
        const QPoint at = view->mapFromScene(bone->textItem()->sceneBoundingRect().center());
        QVERIFY2(view->viewport()->rect().contains(at), qPrintable(title));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, at);
        AppFixture::settle();
        QVERIFY(bone->isSelected());
        const QAction *const mark = window.findChild<QAction *>(QStringLiteral("manager"));
        QTRY_VERIFY(mark->isEnabled()); // as the window finds when it has time for it
    }
    /** Selects the bone @p title with the mouse, and inserts one below it by keys. */
    void insertBelow(const QString &title, const QString &below)
    {
        click(title);
        insert(Qt::Key_Tab, below);
    }
    /** Goes by Tab to the field of that name. */
    static void tabTo(const char *name)
    {
        for (int i = 0; i < 40 && focus()->objectName() != QLatin1String(name); ++i)
            press(Qt::Key_Tab);
        QCOMPARE(focus()->objectName(), QLatin1String(name));
    }
    /** Opens the menu of the menu bar by its key and walks to an entry. */
    void chooseFromMenu(Qt::Key key, const char *entry)
    {
        QTest::keyClick(window.menuBar(), key, Qt::AltModifier);
        QVERIFY(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        const auto isThere = [&] {
            return menu->activeAction() &&
                   menu->activeAction()->objectName() == QLatin1String(entry);
        };
        for (int step = 0; step < menu->actions().size() && !isThere(); ++step)
            QTest::keyClick(menu, Qt::Key_Down);
        QVERIFY2(isThere(), entry);
        QTest::keyClick(menu, Qt::Key_Return);
        AppFixture::settle();
    }
    /** Goes on in the window when a dialog is gone: there is no desktop that would activate it. */
    void returnToWindow()
    {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.editor()->view()->setFocus();
    }
    TreeItem *subject(const QString &title) const
    {
        const QModelIndexList found = window.model()->searchModelIndexes(title);
        for (const QModelIndex &index : found) {
            if (TreeItem *const item = window.model()->getTreeItem(index); item->title() == title)
                return item;
        }
        return nullptr;
    }
    QString outline() const
    {
        return AppFixture::textOf(window.session()->document()->treeItem()->childAtIndex(0));
    }

    MainWindow window;

private:
    const SpearItem *boneOf(const QString &title) const
    {
        const TreeItem *const found = subject(title);
        return found ? found->spear() : nullptr;
    }
};
