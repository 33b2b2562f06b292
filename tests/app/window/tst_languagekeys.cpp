// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <app/common/actionset.h>
#include <app/common/language.h>
#include <app/window/keysdialog.h>

#include <tests/program/testprogram.h>
#include <tests/support/shownvalues.h>

#include <QFile>
#include <QKeySequence>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>

/** Keys in every language: their names, and arrows that go where they point. */
class TestLanguageKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); }
    void cleanup() { Language::install(QStringLiteral("en")); }

    void shouldNameKeysAsKeyboardsDo_data();
    void shouldNameKeysAsKeyboardsDo();
    void shouldShowTheNamesInToolTipsAndInTheListOfKeys();
    void shouldPromoteWhereTheArrowPoints_data();
    void shouldPromoteWhereTheArrowPoints();
};

void TestLanguageKeys::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_languagekeys"));
}

void TestLanguageKeys::shouldNameKeysAsKeyboardsDo_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("shift");

    const auto row = [](const char *language, const char *control, const char *shift) {
        QTest::newRow(language) << QString::fromLatin1(language) << QString::fromUtf8(control)
                                << QString::fromUtf8(shift);
    };
    row("ar", "Ctrl", "Shift");
    row("de", "Strg", "Umschalt");
    row("en", "Ctrl", "Shift");
    row("es", "Control", "May\u00fasculas");
    row("fr", "Ctrl", "Maj");
    row("it", "Ctrl", "Shift");
    row("ja", "Ctrl", "Shift");
    row("ko", "Ctrl", "Shift");
    row("pl", "Ctrl", "Shift");
    row("pt_BR", "Ctrl", "Shift");
    row("ru", "Ctrl", "Shift");
    row("zh", "Ctrl", "Shift");
    row("zh_TW", "Ctrl", "Shift");
}

void TestLanguageKeys::shouldNameKeysAsKeyboardsDo()
{
    QFETCH(QString, language);
    QFETCH(QString, control);
    QFETCH(QString, shift);
    Language::install(language);
    const QString shown = QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + int(Qt::Key_S))
                              .toString(QKeySequence::NativeText);
    QCOMPARE(shown, control + QLatin1Char('+') + shift + QStringLiteral("+S"));
}

void TestLanguageKeys::shouldShowTheNamesInToolTipsAndInTheListOfKeys()
{
    QCOMPARE(Language::all().size(), 13); // shouldNameKeysAsKeyboardsDo() has a row for each
    const AppFixture app;
    const QStringList all = Language::all();
    for (const QString &language : all) {
        Language::install(language);
        AppFixture::settle();
        const QString key = app.action("save")->shortcut().toString(QKeySequence::NativeText);
        QVERIFY2(app.action("save")->toolTip().endsWith(QStringLiteral(" (%1)").arg(key)),
                 qPrintable(app.action("save")->toolTip()));
        const KeysDialog dialog(*app.window.findChild<ActionSet *>(), nullptr);
        const QString cell = QStringLiteral("item: ") + key;
        const QStringList values = TestSupport::shownValues(dialog);
        QVERIFY2(values.filter(cell).size() > 0, qPrintable(language + values.join(u'|')));
    }
}

void TestLanguageKeys::shouldPromoteWhereTheArrowPoints_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("inTree");
    for (const char *language : {"en", "ar"}) {
        QTest::addRow("%s, drawing", language) << QString::fromLatin1(language) << false;
        QTest::addRow("%s, tree", language) << QString::fromLatin1(language) << true;
    }
}

/** Of a window that is mirrored while it is open, too: in the tree what is above a subject stands
 * on the side that the language begins at. */
void TestLanguageKeys::shouldPromoteWhereTheArrowPoints()
{
    QFETCH(QString, language);
    QFETCH(bool, inTree);
    AppFixture app;
    app.trigger("expandall");
    for (const QString &shown : {QStringLiteral("en"), language}) {
        Language::install(shown);
        AppFixture::settle();
        const bool isMirrored = app.window.isRightToLeft();
        QCOMPARE(isMirrored, shown == QLatin1String("ar"));
        QWidget *view = app.window.editor()->view();
        if (inTree)
            view = app.window.tree()->view();
        const auto press = [&](Qt::Key key) {
            app.select("Too new");
            view->setFocus();
            QTest::keyClick(view, key, Qt::AltModifier);
            AppFixture::settle();
            return app.text();
        };
        const QString before = app.text();
        QCOMPARE(press(isMirrored ? Qt::Key_Right : Qt::Key_Left),
                 QStringLiteral("Late[People[Too few[Illness]],Too new,Machines,Material[Rust]]"));
        app.trigger("undo");
        QCOMPARE(app.text(), before);
        QCOMPARE(press(isMirrored ? Qt::Key_Left : Qt::Key_Right),
                 QStringLiteral("Late[People[Too few[Illness,Too new]],Machines,Material[Rust]]"));
        app.trigger("undo");
        QCOMPARE(app.text(), before);
        const QString key = app.action("promote")->shortcut().toString(QKeySequence::NativeText);
        QVERIFY(app.action("promote")->toolTip().contains(key));
    }
}

FISHBONE_TEST(TestLanguageKeys)
#include "tst_languagekeys.moc"
