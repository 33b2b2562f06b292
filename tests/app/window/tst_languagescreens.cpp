// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/window/cuttexts.h>
#include <tests/app/window/screens.h>

#include <app/common/language.h>

#include <tests/program/testprogram.h>

#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTranslator>

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
        for (int i = 0; i < (end * 2 + 4) / 5; ++i)
            longer.append(i % 9 == 0 ? QLatin1Char(' ') : QLatin1Char('e'));
        return text.left(end) + longer + text.mid(end);
    }

private:
    QTranslator m_english;
};

/** What is looked at: each language, and the one with long texts, which has no name. */
QStringList languages()
{
    return Language::all() + QStringList{QString()};
}

} // namespace

/**
 * The window, its panels and its dialogs in every language: no text is cut on a small screen, and
 * no menu key there is twice. The language changes under what is shown, which is what a user does
 * in View > Language, and gives what a start in it gives.
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

private:
    /** Shows @p language, one of languages(). */
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
    const QSize size(1024, 700);
    AppFixture app;
    Screens::prepare(app, size);
    QWidget *const shown = Screens::all().at(number).show(app);
    shown->resize(shown->size().boundedTo(size));
    shown->show();
    QStringList faults;
    const QStringList all = languages();
    QVERIFY(all.size() > 10);
    for (const QString &language : all) {
        use(language);
        const QString name = language.isEmpty() ? QStringLiteral("long texts") : language;
        if (shown->width() > size.width() || shown->height() > size.height())
            faults.append(
                QStringLiteral("%1: %2 x %3").arg(name).arg(shown->width()).arg(shown->height()));
        for (const QString &text : CutTexts::in(*shown))
            faults.append(QStringLiteral("%1 cuts %2").arg(name, text));
        QStringList texts = CutTexts::shown(*shown);
        if (shown == &app.window) {
            for (const QAction *menu : app.window.menuBar()->actions())
                texts.append(menu->text());
        }
        for (const QString &twice : CutTexts::doubleMnemonics(texts))
            faults.append(QStringLiteral("%1 has %2").arg(name, twice));
    }
    if (shown != &app.window)
        delete shown;
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
    const QStringList all = languages();
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

FISHBONE_TEST(TestLanguageScreens)
#include "tst_languagescreens.moc"
