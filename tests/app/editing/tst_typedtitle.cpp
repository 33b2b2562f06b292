// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/editing/editcommandsparts.h>
#include <tests/program/testprogram.h>

#include <app/editing/titleeditor.h>

#include <QInputMethodEvent>

using TestSupport::titleField;

class TestTypedTitle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldReplaceTheTitleByWhatIsTyped_data();
    void shouldReplaceTheTitleByWhatIsTyped();
    void shouldKeepTheTitleOnEscape();
    void shouldMakeRoomForALongTitle();
    void shouldBreakLines_data();
    void shouldBreakLines();
    void shouldKeepWhatIsNotTyped();
    void shouldTakeWhatAnInputMethodCommits();
    void shouldOpenNoFieldForOtherKeys_data();
    void shouldOpenNoFieldForOtherKeys();
    void shouldOpenNoFieldWithoutASelection();
    void shouldBuildADiagramByKeyboardAlone();
    void shouldCloseWithItsBone_data();
    void shouldCloseWithItsBone();
    void shouldTakeTheTitleOfABoneThatIsContracted();
    void shouldCloseWithItsDocument();
};

void TestTypedTitle::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_typedtitle"));
}

void TestTypedTitle::shouldReplaceTheTitleByWhatIsTyped_data()
{
    QTest::addColumn<int>("end");
    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("tab") << int(Qt::Key_Tab);
}

void TestTypedTitle::shouldReplaceTheTitleByWhatIsTyped()
{
    QFETCH(int, end);
    AppFixture app;
    app.select("Machines");
    QTest::keyClick(app.window.editor()->view(), 'T', Qt::ShiftModifier);
    TitleEditor *const field = titleField(app);
    QVERIFY(field);
    QVERIFY(field->hasFocus());
    QTest::keyClicks(field, QStringLiteral("ools - +2/3"));
    QTest::keyClick(field, Qt::Key(end));
    AppFixture::settle();

    QVERIFY(!titleField(app));
    QVERIFY(app.window.editor()->view()->hasFocus());
    QVERIFY2(app.text().contains(QLatin1String(",Tools - +2/3,Material")), qPrintable(app.text()));
    QCOMPARE(app.window.editor()->undoStack()->commandNames().size(), 1);
    app.trigger("undo");
    QVERIFY(app.find("Machines").isValid());
}

void TestTypedTitle::shouldKeepTheTitleOnEscape()
{
    AppFixture app;
    app.select("Machines");
    QTest::keyClick(app.window.editor()->view(), 'x');
    QVERIFY(titleField(app));
    QCOMPARE(titleField(app)->text(), QStringLiteral("x"));
    QTest::keyClick(titleField(app), Qt::Key_Escape);
    AppFixture::settle();
    QVERIFY(!titleField(app));
    QVERIFY(app.find("Machines").isValid());
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
    QVERIFY(!app.window.isWindowModified());
}

void TestTypedTitle::shouldMakeRoomForALongTitle()
{
    AppFixture app;
    app.select("Machines");
    QTest::keyClick(app.window.editor()->view(), 'x');
    TitleEditor *const field = titleField(app);
    QVERIFY(field);
    const QWidget *const room = field->parentWidget();
    for (const int length : {40, 400}) {
        field->setPlainText(QString(length, QLatin1Char('x')));
        QVERIFY(room->rect().contains(field->geometry()));
        QVERIFY(field->width() == room->width() ||
                field->width() > field->fontMetrics().horizontalAdvance(field->text()));
    }
    QCOMPARE(field->width(), room->width());
}

void TestTypedTitle::shouldBreakLines_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("classic") << int(DiagramLook::Classic);
    QTest::newRow("clear") << int(DiagramLook::Clear);
}

void TestTypedTitle::shouldBreakLines()
{
    QFETCH(int, look);
    AppFixture app;
    app.window.editor()->setLook(DiagramLook::Kind(look));
    app.select("Machines");
    const QString broken = QStringLiteral("Tools\nand machines");
    QTest::keyClick(app.window.editor()->view(), 'T', Qt::ShiftModifier);
    TitleEditor *const field = titleField(app);
    QVERIFY(field);
    const int low = field->height();
    QTest::keyClicks(field, QStringLiteral("ools"));
    QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
    QVERIFY(titleField(app));
    QTest::keyClicks(field, QStringLiteral("and machines"));
    QCOMPARE(field->text(), broken);
    QVERIFY(field->height() >= low + field->fontMetrics().lineSpacing());
    QTest::keyClick(field, Qt::Key_Return);
    AppFixture::settle();

    QVERIFY(!titleField(app));
    QVERIFY(app.find(qPrintable(broken)).isValid());
    QCOMPARE(app.window.editor()->undoStack()->commandNames().size(), 1);
    // The next field begins with both lines, and typing replaces both.
    app.select(qPrintable(broken));
    app.trigger("rename");
    QCOMPARE(titleField(app)->text(), broken);
    QTest::keyClicks(titleField(app), QStringLiteral("Engines"));
    QTest::keyClick(titleField(app), Qt::Key_Return);
    AppFixture::settle();
    QVERIFY(app.find("Engines").isValid());
    app.trigger("undo");
    QVERIFY(app.find(qPrintable(broken)).isValid());
}

void TestTypedTitle::shouldKeepWhatIsNotTyped()
{
    // A space that does not break, and another sign for a line break.
    const QString odd = QStringLiteral("5\u00a0mm\u2028wide");
    AppFixture app;
    app.window.editor()->renameItem(app.find("Machines"), odd);
    app.select(qPrintable(odd));
    app.trigger("rename");
    QTest::keyClick(titleField(app), Qt::Key_Return);
    AppFixture::settle();
    QVERIFY(app.find(qPrintable(odd)).isValid());
    app.trigger("rename");
    titleField(app)->moveCursor(QTextCursor::End);
    QTest::keyClicks(titleField(app), QStringLiteral("r"));
    QTest::keyClick(titleField(app), Qt::Key_Return);
    AppFixture::settle();
    QVERIFY(app.find("5\u00a0mm\nwider").isValid());
}

void TestTypedTitle::shouldTakeWhatAnInputMethodCommits()
{
    AppFixture app;
    app.select("Machines");
    GraphicsView *const view = app.window.editor()->view();
    AppFixture::settle();
    QVERIFY(view->testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent composing(QStringLiteral("ji"), {});
    QCoreApplication::sendEvent(view, &composing);
    QVERIFY(!titleField(app)); // nothing is decided yet
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("机器"));
    QCoreApplication::sendEvent(view, &commit);
    QVERIFY(titleField(app));
    QCOMPARE(titleField(app)->text(), QStringLiteral("机器"));
}

void TestTypedTitle::shouldOpenNoFieldForOtherKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");

    QTest::newRow("space") << int(Qt::Key_Space) << int(Qt::NoModifier);
    QTest::newRow("escape") << int(Qt::Key_Escape) << int(Qt::NoModifier);
    QTest::newRow("shift") << int(Qt::Key_Shift) << int(Qt::ShiftModifier);
    QTest::newRow("control and a letter") << int(Qt::Key_M) << int(Qt::ControlModifier);
    QTest::newRow("alt and a letter") << int(Qt::Key_M) << int(Qt::AltModifier);
    QTest::newRow("plus, where nothing can be expanded")
        << int(Qt::Key_Plus) << int(Qt::NoModifier);
    QTest::newRow("minus, where nothing can be contracted")
        << int(Qt::Key_Minus) << int(Qt::NoModifier);
}

void TestTypedTitle::shouldOpenNoFieldForOtherKeys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    AppFixture app;
    app.select("Machines");
    const QString before = app.text();
    QTest::keyClick(app.window.editor()->view(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    AppFixture::settle();
    QVERIFY(!titleField(app));
    QCOMPARE(app.text(), before);
}

void TestTypedTitle::shouldOpenNoFieldWithoutASelection()
{
    AppFixture app;
    QTest::keyClick(app.window.editor()->view(), 'x');
    QVERIFY(!titleField(app));
}

void TestTypedTitle::shouldBuildADiagramByKeyboardAlone()
{
    AppFixture app;
    QTest::keyClick(&app.window, Qt::Key_N, Qt::ControlModifier);
    AppFixture::settle();
    const auto press = [&app](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(app.window.editor()->view(), key, modifiers);
        AppFixture::settle();
    };
    const auto type = [](const char *text) {
        QWidget *const target = QApplication::focusWidget();
        QTest::keyClick(target, text[0]);
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text + 1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        AppFixture::settle();
    };
    type("slow"); // the new head is selected
    press(Qt::Key_Tab);
    type("staff");
    press(Qt::Key_Return);
    type("tools");
    press(Qt::Key_Return, Qt::ShiftModifier);
    type("rooms");
    press(Qt::Key_Tab);
    type("cold");
    press(Qt::Key_Return, Qt::ControlModifier);
    type("winter");
    QCOMPARE(app.text(), QStringLiteral("slow[staff,rooms[winter[cold]],tools]"));
    press(Qt::Key_Up, Qt::ControlModifier);
    press(Qt::Key_Up, Qt::AltModifier);
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Delete);
    QCOMPARE(app.text(), QStringLiteral("slow[rooms[winter[cold]],tools]"));
}

void TestTypedTitle::shouldCloseWithItsBone_data()
{
    QTest::addColumn<QString>("before"); // what makes or selects the bone
    QTest::addColumn<QString>("action"); // what takes it away, by the menu
    QTest::addColumn<QString>("left");
    const QString whole =
        QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material[Rust]]");
    const QString none;
    QTest::newRow("deleted") << none << QStringLiteral("delete")
                             << QStringLiteral("Late[People[Too few[Illness],Too new],Machines]");
    QTest::newRow("its insertion undone")
        << QStringLiteral("child") << QStringLiteral("undo") << whole;
    QTest::newRow("cut") << none << QStringLiteral("cut")
                         << QStringLiteral("Late[People[Too few[Illness],Too new],Machines]");
    QTest::newRow("read anew") << none << QStringLiteral("revert") << whole;
}

/** A field that nobody sees would take what is typed next, or stay for ever. */
void TestTypedTitle::shouldCloseWithItsBone()
{
    QFETCH(QString, before);
    QFETCH(QString, action);
    QFETCH(QString, left);
    AppFixture app;
    QVERIFY(QTest::qWaitForWindowActive(&app.window));
    app.select("Material");
    app.trigger(before.isEmpty() ? "rename" : before.toLatin1());
    const QPointer<TitleEditor> field = titleField(app);
    QVERIFY(field && field->hasFocus());
    app.trigger(action.toLatin1());
    QTest::qWait(20); // until it is painted
    AppFixture::settle();
    QVERIFY(!titleField(app));
    QVERIFY(!field);
    QCOMPARE(app.text(), left);
    // What is typed from here does not go to a bone that nobody sees.
    QWidget *const focus = QApplication::focusWidget();
    QVERIFY(focus && focus->isVisible());
    for (int i = 0; i < 10; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    AppFixture::settle();
    QCOMPARE(app.text(), left);
}

void TestTypedTitle::shouldTakeTheTitleOfABoneThatIsContracted()
{
    AppFixture app;
    QVERIFY(QTest::qWaitForWindowActive(&app.window));
    app.select("Rust");
    app.trigger("rename");
    const QPointer<TitleEditor> field = titleField(app);
    QTest::keyClicks(field, QStringLiteral("Dust"));
    app.trigger("contractall");
    QTRY_VERIFY(!field); // once it is painted
    QVERIFY2(app.text().contains(QLatin1String("Material[Dust]")), qPrintable(app.text()));
}

void TestTypedTitle::shouldCloseWithItsDocument()
{
    AppFixture app;
    QVERIFY(QTest::qWaitForWindowActive(&app.window));
    app.select("Material");
    app.trigger("rename");
    const QPointer<TitleEditor> field = titleField(app);
    QVERIFY(field);
    app.trigger("close");
    QTRY_VERIFY(!field);
    QVERIFY(!app.window.session()->document());
    // Nor does one stay behind in another tab.
    app.trigger("new");
    QVERIFY(!titleField(app));
}

FISHBONE_TEST(TestTypedTitle)
#include "tst_typedtitle.moc"
