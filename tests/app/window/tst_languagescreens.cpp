// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/window/cuttexts.h>
#include <tests/app/window/screens.h>

#include <app/common/language.h>
#include <app/diagram/marknames.h>
#include <app/panels/rankedlist.h>

#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>

#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QTranslator>
#include <QTreeWidget>

namespace {

/** English with texts two fifths longer, as those of no real language are on the whole. */
class LongTexts : public QTranslator
{
public:
    LongTexts()
    {
        if (!m_english.load(QStringLiteral(":/i18n/fishbone_en.qm")))
            qFatal("There are no English texts");
    }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *comment,
                      int number) const override
    {
        const QString text = m_english.translate(context, source, comment, number);
        // In front of what leads on to something else, and in words that a line can end between.
        int end = text.size();
        while (end > 0 && !text.at(end - 1).isLetterOrNumber())
            --end;
        QString longer;
        for (int i = 0; i < end * 2 / 5; ++i)
            longer.append(QLatin1Char(" ererere"[i % 8]));
        return text.left(end) + longer + text.mid(end);
    }

private:
    QTranslator m_english;
};

/** What is looked at: each language, and the one with long texts, which has no name. */
QStringList languagesToShow()
{
    return Language::all() + QStringList{QString()};
}

const QSize smallScreen(1024, 700);

/** Writes a picture of @p shown, to be looked at, where the environment names a folder. */
void keepPicture(QWidget &shown, const QString &language, const char *screen)
{
    const QString folder = qEnvironmentVariable("FISHBONE_LANGUAGE_PICTURES");
    if (folder.isEmpty())
        return;
    const QString place = folder + QLatin1Char('/') + language;
    QVERIFY(QDir().mkpath(place));
    QVERIFY(shown.grab().save(QStringLiteral("%1/%2.png").arg(place, QLatin1String(screen))));
}

/** What can be seen in @p shown only by scrolling to the side, or by making a column wider. */
QStringList hiddenParts(const QWidget &shown, const QString &name)
{
    QStringList faults;
    const QList<QScrollArea *> areas = shown.findChildren<QScrollArea *>();
    for (const QScrollArea *area : areas) {
        if (area->isVisible() && area->horizontalScrollBar()->isVisible())
            faults.append(QStringLiteral("%1 scrolls to the side").arg(name));
    }
    const auto *const ranked = shown.findChild<QTreeWidget *>(QStringLiteral("ranked"));
    if (!ranked || !ranked->isVisible())
        return faults;
    const QStringList verdicts = MarkNames::verdicts();
    for (const QString &verdict : verdicts) {
        constexpr int margins = 6;
        const int needed = ranked->fontMetrics().horizontalAdvance(verdict) + margins;
        if (ranked->columnWidth(RankedList::VerdictColumn) < needed)
            faults.append(QStringLiteral("%1 cuts %2").arg(name, verdict));
    }
    return faults;
}

/** What is wrong with @p shown, @p window or a dialog of it, in the language @p name. */
QStringList faultsOf(const QWidget &shown, const MainWindow &window, const QString &name)
{
    QStringList faults;
    if (shown.width() > smallScreen.width() || shown.height() > smallScreen.height())
        faults.append(
            QStringLiteral("%1: %2 x %3").arg(name).arg(shown.width()).arg(shown.height()));
    const QStringList cut = CutTexts::in(shown);
    for (const QString &text : cut)
        faults.append(QStringLiteral("%1 cuts %2").arg(name, text));
    faults += hiddenParts(shown, name);
    QStringList texts = CutTexts::shown(shown);
    if (&shown == &window) {
        const QList<QAction *> menus = window.menuBar()->actions();
        for (const QAction *menu : menus)
            texts.append(menu->text());
    }
    const QStringList twice = CutTexts::doubleMnemonics(texts);
    for (const QString &text : twice)
        faults.append(QStringLiteral("%1 has %2").arg(name, text));
    return faults;
}

} // namespace

/**
 * The window, its panels and its dialogs in every language: no text is cut on a small screen, and
 * no menu key there is twice. The language changes under the window, which is what a user does in
 * View > Language, and gives what a start in it gives. FISHBONE_LANGUAGE_PICTURES names a folder
 * for pictures of all of it.
 */
class TestLanguageScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void shouldCutNoTextInAnyLanguage_data();
    void shouldCutNoTextInAnyLanguage();
    void shouldGiveNoMnemonicTwiceInAMenu();
    void shouldKeepWhatIsTypedInEachLanguage();
    void shouldMirrorTheWindow();
    void shouldWalkAsSeenInAMirroredWindow();

private:
    /** Shows @p language, one of languagesToShow(). */
    void use(const QString &language);

    LongTexts m_long;
};

void TestLanguageScreens::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_languagescreens"));
    // Bound before there is a window, so that it is there when that asks for its texts.
    Language::bind(this, [this] {
        QCoreApplication::removeTranslator(&m_long);
        if (objectName() == QLatin1String("long"))
            QCoreApplication::installTranslator(&m_long);
    });
}

void TestLanguageScreens::cleanup()
{
    setObjectName(QString());
    Language::install(QStringLiteral("en"));
}

void TestLanguageScreens::use(const QString &language)
{
    setObjectName(language.isEmpty() ? QStringLiteral("long") : QString());
    Language::install(language.isEmpty() ? QStringLiteral("en") : language);
    AppFixture::settle();
}

void TestLanguageScreens::shouldCutNoTextInAnyLanguage_data()
{
    QTest::addColumn<int>("number");
    const QVector<Screens::Screen> all = Screens::all();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all.at(i).name) << i;
}

void TestLanguageScreens::shouldCutNoTextInAnyLanguage()
{
    QFETCH(int, number);
    QSettings().clear();
    AppFixture app;
    Screens::prepare(app, smallScreen);
    const Screens::Screen screen = Screens::all().at(number);
    QPointer<QWidget> shown;
    QStringList faults;
    const QStringList all = languagesToShow();
    QVERIFY(all.size() > 10);
    for (const QString &language : all) {
        use(language);
        if (!shown)
            shown = screen.show(app);
        shown->resize(shown->size().boundedTo(smallScreen));
        shown->show();
        AppFixture::settle();
        const QString name = language.isEmpty() ? QStringLiteral("long texts") : language;
        faults += faultsOf(*shown, app.window, name);
        keepPicture(*shown, language, screen.name);
        // What is modal hears of no other language while it is open, and is made anew.
        if (shown != &app.window && !qobject_cast<ReplaceFindDialog *>(shown))
            delete shown;
    }
    for (const QString &fault : qAsConst(faults))
        qWarning().noquote() << fault; // each, where a comparison shows the first few
    QVERIFY(faults.isEmpty());
}

void TestLanguageScreens::shouldGiveNoMnemonicTwiceInAMenu()
{
    const MainWindow window;
    const QList<QMenu *> menus = window.findChildren<QMenu *>();
    QVERIFY(menus.size() >= 5);
    QStringList faults;
    const QStringList all = languagesToShow();
    for (const QString &language : all) {
        use(language);
        for (const QMenu *menu : menus) {
            QStringList texts;
            for (const QAction *action : menu->actions())
                texts.append(action->text());
            for (const QString &twice : CutTexts::doubleMnemonics(texts))
                faults.append(QStringLiteral("%1, %2 has %3").arg(language, menu->title(), twice));
        }
    }
    for (const QString &fault : qAsConst(faults))
        qWarning().noquote() << fault;
    QVERIFY(faults.isEmpty());
}

void TestLanguageScreens::shouldKeepWhatIsTypedInEachLanguage()
{
    QSettings().clear();
    AppFixture app;
    app.select("Machines");
    app.trigger("details");
    app.widget<QLineEdit>("detailsTitle")->setText(QStringLiteral("Engines"));
    app.trigger("filter");
    app.widget<QLineEdit>("filterText")->setText(QStringLiteral("ru"));
    app.trigger("find");
    auto *const dialog = app.window.findChild<ReplaceFindDialog *>();
    dialog->searchField()->setText(QStringLiteral("zz"));
    dialog->replacementField()->setText(QStringLiteral("Two"));
    const QString before = app.text();
    const QStringList all = languagesToShow();
    for (const QString &language : all) {
        use(language);
        QCOMPARE(app.widget<QLineEdit>("detailsTitle")->text(), QStringLiteral("Engines"));
        QCOMPARE(app.widget<QLineEdit>("filterText")->text(), QStringLiteral("ru"));
        QCOMPARE(dialog->searchField()->text(), QStringLiteral("zz"));
        QCOMPARE(dialog->replacementField()->text(), QStringLiteral("Two"));
        QCOMPARE(app.text(), before);
        QVERIFY(!app.document()->modified());
        QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    }
}

void TestLanguageScreens::shouldMirrorTheWindow()
{
    QSettings().clear();
    use(QStringLiteral("ar"));
    AppFixture app;
    const auto *const tree = app.window.findChild<QDockWidget *>(QStringLiteral("documentsDock"));
    const auto *const details = app.window.findChild<QDockWidget *>(QStringLiteral("detailsDock"));
    const auto *const view = app.window.editor()->view();
    const auto left = [&app](const QWidget *widget) {
        return widget->mapTo(&app.window, QPoint()).x();
    };
    QVERIFY(left(tree) > left(view));
    QVERIFY(left(view) > left(details));
    QVERIFY(app.window.tree()->isRightToLeft());
    // The fish looks to the left, and its bones stand on its right.
    const auto textAt = [](const SpearItem *spear) {
        return spear->textItem()->sceneBoundingRect().center().x();
    };
    QVERIFY(textAt(app.window.editor()->headSpear()) < textAt(app.subject("People")->spear()));
    const int width = tree->width();
    use(QStringLiteral("en"));
    QVERIFY(left(tree) < left(view));
    QVERIFY(left(view) < left(details));
    QVERIFY(qAbs(tree->width() - width) < 20);
    QVERIFY(!app.window.tree()->isRightToLeft());
    use(QStringLiteral("ar"));
    QVERIFY(left(tree) > left(view));
}

void TestLanguageScreens::shouldWalkAsSeenInAMirroredWindow()
{
    QSettings().clear();
    use(QStringLiteral("ar"));
    AppFixture app;
    app.trigger("expandall");
    app.trigger("fit");
    app.select("People");
    QTest::keyClick(app.window.editor()->view(), Qt::Key_Left);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Late")));
    QTest::keyClick(app.window.editor()->view(), Qt::Key_Right);
    QVERIFY(app.selectedInDrawing() != QStringList(QStringLiteral("Late")));
}

FISHBONE_TEST(TestLanguageScreens)
#include "tst_languagescreens.moc"
