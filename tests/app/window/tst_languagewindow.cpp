// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/picturesubject.h>
#include <tests/program/testprogram.h>

#include <app/common/language.h>
#include <app/window/mainwindow.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/dialogs/urldialog.h>
#include <fishbone/style/penselect.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStyleOptionComboBox>
#include <QTranslator>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

using DialogMaker = std::function<std::unique_ptr<QWidget>()>;

/** Adds the mnemonic of @p text to @p taken; false when it is there already. */
bool take(QList<QKeySequence> &taken, const QString &text)
{
    const QKeySequence mnemonic = QKeySequence::mnemonic(text);
    if (mnemonic.isEmpty())
        return true;
    if (taken.contains(mnemonic))
        return false;
    taken.append(mnemonic);
    return true;
}

/** The texts of the labels and buttons in @p widget that are shown. */
QStringList shownTexts(const QWidget &widget)
{
    QStringList texts;
    for (const QWidget *each : widget.findChildren<QWidget *>()) {
        if (!each->isVisible())
            continue;
        if (const auto *const label = qobject_cast<const QLabel *>(each))
            texts.append(label->text());
        else if (const auto *const button = qobject_cast<const QAbstractButton *>(each))
            texts.append(button->text());
    }
    return texts;
}

/** A text that is shown, the width that it has and the width that it needs. */
struct Fit
{
    QString text;
    int width;
    int needed;
};

/** Of the item of @p combo that needs most. */
Fit fitOf(const QComboBox &combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const int width =
        combo.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo)
            .width();
    Fit widest{QString(), width, 0};
    for (int row = 0; row < combo.count(); ++row) {
        const int icon = combo.itemIcon(row).isNull() ? 0 : combo.iconSize().width() + 4;
        const int needed = icon + combo.fontMetrics().horizontalAdvance(combo.itemText(row));
        if (needed > widest.needed)
            widest = {combo.itemText(row), width, needed};
    }
    return widest;
}

Fit fitOf(const QWidget &widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    const int width = widget.contentsRect().width();
    if (const auto *const label = qobject_cast<const QLabel *>(&widget))
        return {label->text(), width, label->minimumSizeHint().width()};
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
        return {button->text(), width, button->minimumSizeHint().width()};
    if (const auto *const field = qobject_cast<const QLineEdit *>(&widget)) {
        const QString text = field->placeholderText();
        return {text, width, metrics.horizontalAdvance(text)};
    }
    if (const auto *const combo = qobject_cast<const QComboBox *>(&widget))
        return fitOf(*combo);
    if (const auto *const date = qobject_cast<const QDateEdit *>(&widget)) {
        const auto *const inner = date->findChild<const QLineEdit *>();
        constexpr int margins = 4;
        return {date->text(), inner->width(), metrics.horizontalAdvance(date->text()) + margins};
    }
    if (const auto *const dock = qobject_cast<const QDockWidget *>(&widget)) {
        const QString text = dock->windowTitle();
        constexpr int buttons = 40;
        return {text, width, metrics.horizontalAdvance(text) + buttons};
    }
    return {QString(), 0, 0};
}

/** The texts in @p widget that are shown and find no room. */
QStringList cutTexts(const QWidget &widget)
{
    QStringList cut;
    for (const QWidget *each : widget.findChildren<QWidget *>()) {
        const Fit fit = each->isVisible() ? fitOf(*each) : Fit{QString(), 0, 0};
        if (!fit.text.isEmpty() && fit.width < fit.needed)
            cut.append(
                QStringLiteral("%1 (%2 of %3)").arg(fit.text).arg(fit.width).arg(fit.needed));
    }
    return cut;
}

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
    for (const QMenu *menu : menus) {
        QList<QKeySequence> taken;
        for (const QAction *action : menu->actions())
            QVERIFY2(take(taken, action->text()), qPrintable(menu->title() + action->text()));
    }
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
    QList<QKeySequence> taken;
    for (const QAction *action : window.findChild<QMenuBar *>()->actions())
        QVERIFY2(take(taken, action->text()), qPrintable(action->text()));
    QVERIFY(taken.size() >= 5);
    for (const QString &text : shownTexts(window))
        QVERIFY2(take(taken, text), qPrintable(text));
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
    QCOMPARE(cutTexts(window).join(QLatin1String(" | ")), QString());
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
    const QStringList shown = shownTexts(app.window);
    QVERIFY2(shown.size() > 20, qPrintable(shown.join(QLatin1Char('|'))));
    QCOMPARE(cutTexts(app.window).join(QLatin1String(" | ")), QString());
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
    QVERIFY(shownTexts(*dialog).size() > 3);
    QCOMPARE(cutTexts(*dialog).join(QLatin1String(" | ")), QString());
}

void TestLanguageWindow::shouldGiveNoMnemonicTwiceInADialog()
{
    const std::unique_ptr<QWidget> dialog = shownDialog();
    QList<QKeySequence> taken;
    for (const QString &text : shownTexts(*dialog))
        QVERIFY2(take(taken, text), qPrintable(text));
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
