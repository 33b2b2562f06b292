// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/picturesubject.h>
#include <tests/app/window/cuttexts.h>
#include <tests/program/testprogram.h>

#include <app/common/language.h>
#include <app/window/mainwindow.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/dialogs/urldialog.h>
#include <fishbone/style/penselect.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QAction>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

using DialogMaker = std::function<std::unique_ptr<QWidget>()>;

} // namespace

Q_DECLARE_METATYPE(DialogMaker)

/** The window and the dialogs in each language. */
class TestLanguageWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void shouldGiveNoMnemonicTwiceInAMenu_data() { addLanguages(); }
    void shouldGiveNoMnemonicTwiceInAMenu();
    void shouldGiveEveryEntryOfAMenuAMnemonic_data() { addLanguages(); }
    void shouldGiveEveryEntryOfAMenuAMnemonic();
    void shouldGiveNoMnemonicTwiceInTheWindow_data() { addLanguages(); }
    void shouldGiveNoMnemonicTwiceInTheWindow();
    void shouldShowToolTipsWithoutMnemonics_data() { addLanguages(); }
    void shouldShowToolTipsWithoutMnemonics();
    void shouldHaveRoomForTheTextsOfTheWindow_data() { addLanguages(); }
    void shouldHaveRoomForTheTextsOfTheWindow();
    void shouldHaveRoomForTheTextsAfterASwitch_data() { addLanguages(); }
    void shouldHaveRoomForTheTextsAfterASwitch();
    void shouldHaveRoomForTheTextsOfADialog_data();
    void shouldHaveRoomForTheTextsOfADialog();
    void shouldGiveNoMnemonicTwiceInADialog_data() { shouldHaveRoomForTheTextsOfADialog_data(); }
    void shouldGiveNoMnemonicTwiceInADialog();
    void shouldLeadEachMnemonicOfADialogSomewhere_data()
    {
        shouldHaveRoomForTheTextsOfADialog_data();
    }
    void shouldLeadEachMnemonicOfADialogSomewhere();

private:
    static void addLanguages()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("Chinese") << QStringLiteral("zh");
        QTest::newRow("English") << QStringLiteral("en");
    }

    /** Installs the current row's language. */
    static void useLanguage()
    {
        QFETCH(QString, language);
        Language::install(language);
    }

    /** The current row's dialog, shown in its language. */
    static std::unique_ptr<QWidget> shownDialog()
    {
        useLanguage();
        QFETCH(DialogMaker, make);
        std::unique_ptr<QWidget> dialog = make();
        dialog->show();
        return dialog;
    }

    SpearStyle m_style;
    QLocale m_locale; ///< the default before anything changed it
};

/** Takes out what a test has installed. */
void TestLanguageWindow::cleanup()
{
    Language::install(QString());
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    QLocale::setDefault(m_locale);
}

void TestLanguageWindow::shouldGiveNoMnemonicTwiceInAMenu()
{
    useLanguage();
    const MainWindow window;
    const QList<QMenu *> menus = window.findChildren<QMenu *>();
    QVERIFY(menus.size() >= 5);
    QStringList faults;
    for (const QMenu *menu : menus) {
        QStringList texts;
        for (const QAction *action : menu->actions())
            texts.append(action->text());
        faults += CutTexts::doubleMnemonics(texts);
    }
    QCOMPARE(faults.join(QLatin1Char('\n')), QString());
}

void TestLanguageWindow::shouldGiveEveryEntryOfAMenuAMnemonic()
{
    useLanguage();
    const MainWindow window;
    for (const char *name : {"fileMenu", "editMenu", "subjectMenu", "goMenu", "viewMenu"}) {
        const auto *const menu = window.findChild<QMenu *>(QLatin1String(name));
        QVERIFY2(menu, name);
        QVERIFY2(!QKeySequence::mnemonic(menu->title()).isEmpty(), name);
        for (const QAction *action : menu->actions()) {
            QVERIFY2(action->isSeparator() || !QKeySequence::mnemonic(action->text()).isEmpty(),
                     qPrintable(action->text()));
        }
    }
}

void TestLanguageWindow::shouldGiveNoMnemonicTwiceInTheWindow()
{
    useLanguage();
    MainWindow window;
    window.show();
    QStringList texts = CutTexts::shown(window);
    const QList<QAction *> menus = window.findChild<QMenuBar *>()->actions();
    QVERIFY(menus.size() >= 5);
    for (const QAction *action : menus)
        texts.append(action->text());
    QCOMPARE(CutTexts::doubleMnemonics(texts), QStringList());
}

void TestLanguageWindow::shouldShowToolTipsWithoutMnemonics()
{
    useLanguage();
    const MainWindow window;
    // "&" or, for Chinese, a letter in brackets that is no part of the shortcut at the end.
    static const QRegularExpression mark(QStringLiteral("&|\\([A-Z0-9]\\)"));
    int count = 0;
    for (const char *name : {"fileMenu", "editMenu", "subjectMenu", "goMenu", "viewMenu"}) {
        for (const QAction *action : window.findChild<QMenu *>(QLatin1String(name))->actions()) {
            if (action->isSeparator() || action->menu())
                continue;
            ++count;
            QVERIFY2(!action->toolTip().isEmpty(), qPrintable(action->text()));
            QVERIFY2(!mark.match(action->toolTip()).hasMatch(), qPrintable(action->toolTip()));
        }
    }
    QVERIFY(count > 30);
}

void TestLanguageWindow::shouldHaveRoomForTheTextsOfTheWindow()
{
    useLanguage();
    MainWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(CutTexts::in(window).join(QLatin1String(" | ")), QString());
}

void TestLanguageWindow::shouldHaveRoomForTheTextsAfterASwitch()
{
    QFETCH(QString, language);
    Language::install(language == QLatin1String("zh") ? QStringLiteral("en")
                                                      : QStringLiteral("zh"));
    AppFixture app;
    app.window.resize(1280, 800);
    app.select("Machines");
    app.trigger("details");
    app.trigger("find");
    useLanguage();
    AppFixture::settle();
    const QStringList shown = CutTexts::shown(app.window);
    QVERIFY2(shown.size() > 20, qPrintable(shown.join(QLatin1Char('|'))));
    QCOMPARE(CutTexts::in(app.window).join(QLatin1String(" | ")), QString());
}

void TestLanguageWindow::shouldHaveRoomForTheTextsOfADialog_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<DialogMaker>("make");

    const QHash<QByteArray, DialogMaker> dialogs{
        {"export",
         [] { return std::make_unique<ExportDialog>(QStringLiteral("a.png"), pictureSubject()); }},
        {"find", [] { return std::make_unique<ReplaceFindDialog>(); }},
        {"url", [] { return std::make_unique<URLDialog>(); }},
        {"style", [this] { return std::make_unique<SpearStyleDialog>(m_style); }},
        {"pen", [] { return std::make_unique<PenSelect>(QPen()); }},
    };
    for (const char *language : {"zh", "en"}) {
        for (auto dialog = dialogs.cbegin(); dialog != dialogs.cend(); ++dialog)
            QTest::addRow("%s, %s", dialog.key().constData(), language)
                << QString::fromLatin1(language) << dialog.value();
    }
}

void TestLanguageWindow::shouldHaveRoomForTheTextsOfADialog()
{
    const std::unique_ptr<QWidget> dialog = shownDialog();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    QVERIFY(CutTexts::shown(*dialog).size() > 3);
    QCOMPARE(CutTexts::in(*dialog).join(QLatin1String(" | ")), QString());
}

void TestLanguageWindow::shouldGiveNoMnemonicTwiceInADialog()
{
    const std::unique_ptr<QWidget> dialog = shownDialog();
    QCOMPARE(CutTexts::doubleMnemonics(CutTexts::shown(*dialog)), QStringList());
}

void TestLanguageWindow::shouldLeadEachMnemonicOfADialogSomewhere()
{
    // A label without a partner shows the "&" as it is.
    const std::unique_ptr<QWidget> dialog = shownDialog();
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
    QVERIFY(!labels.isEmpty());
    for (const QLabel *label : labels) {
        QVERIFY2(label->buddy() || !label->text().contains(QLatin1Char('&')),
                 qPrintable(label->text()));
    }
}

FISHBONE_TEST(TestLanguageWindow)
#include "tst_languagewindow.moc"
