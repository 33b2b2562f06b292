// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/palettes.h>
#include <tests/app/window/cuttexts.h>
#include <tests/app/window/screens.h>

#include <app/common/language.h>

#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QDirIterator>
#include <QSettings>

using Screens::Screen;

/**
 * Shows every dialog and panel in small and large windows, light and dark, in English and Chinese:
 * each fits the screen, and no text is cut. Writes pictures of them to be looked at: into the
 * folder "screens" beside the program, or all of them into FISHBONE_TEST_PICTURES, if that is set.
 */
class TestScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldKnowAllDialogsAndPanels();
    void shouldFitAndShowTheirTexts_data();
    void shouldFitAndShowTheirTexts();

private:
    QString m_folder;
};

void TestScreens::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_screens"));
    m_folder =
        qEnvironmentVariable("FISHBONE_TEST_PICTURES",
                             QCoreApplication::applicationDirPath() + QStringLiteral("/screens"));
    QVERIFY(QDir().mkpath(m_folder));
}

void TestScreens::shouldKnowAllDialogsAndPanels()
{
    QSet<QString> known;
    const QVector<Screen> all = Screens::all();
    for (const Screen &screen : all)
        known.insert(QLatin1String(screen.className));
    static const QRegularExpression dialog(QStringLiteral(
        "\\nclass (?:FISHBONE_EXPORT )?(\\w+) : public Q\\w*(Dialog|MainWindow)\\n"));
    int dialogs = 0;
    for (const char *folder : {"app", "fishbone"}) {
        QDirIterator headers(TestSupport::sourceFile(QLatin1String(folder)),
                             {QStringLiteral("*.h")}, QDir::Files, QDirIterator::Subdirectories);
        while (headers.hasNext()) {
            const QString text = QString::fromUtf8(AppFixture::contentOf(headers.next()));
            const QRegularExpressionMatch match = dialog.match(text);
            if (!match.hasMatch())
                continue;
            ++dialogs;
            QVERIFY2(known.contains(match.captured(1)), qPrintable(match.captured(1)));
        }
    }
    QVERIFY(dialogs >= 12);
    const AppFixture app;
    const QList<QDockWidget *> docks = app.window.findChildren<QDockWidget *>();
    QVERIFY(docks.size() >= 5);
    for (const QDockWidget *dock : docks)
        QVERIFY2(known.contains(dock->objectName()), qPrintable(dock->objectName()));
}

void TestScreens::shouldFitAndShowTheirTexts_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<QString>("language");
    const bool isFine = qApp->devicePixelRatio() > 1;
    // What 1600 x 1000 pixels are at two a pixel.
    const QList<QSize> sizes =
        isFine ? QList<QSize>{{800, 500}} : QList<QSize>{{1024, 700}, {1600, 1000}};
    const auto add = [](const QSize &size, bool isDark, const char *language) {
        QTest::addRow("%dx%d@%g %s %s", size.width(), size.height(), qApp->devicePixelRatio(),
                      isDark ? "dark" : "light", language)
            << size << isDark << QString::fromLatin1(language);
    };
    const bool isWhole = qEnvironmentVariableIsSet("FISHBONE_TEST_PICTURES");
    for (const QSize &size : sizes) {
        // Of size, colours and language each two meet, which four rows in place of eight do.
        for (const bool isDark : {false, true}) {
            const bool isChinese = isDark == (size == sizes.constFirst());
            add(size, isDark, isChinese ? "zh" : "en");
            if (isWhole)
                add(size, isDark, isChinese ? "en" : "zh");
        }
    }
}

void TestScreens::shouldFitAndShowTheirTexts()
{
    QFETCH(QSize, size);
    QFETCH(bool, isDark);
    QFETCH(QString, language);
    QSettings().clear();
    Language::install(language);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(isDark ? Palettes::dark() : Palettes::light());
    QString folder = m_folder + QLatin1Char('/') + QString::fromLatin1(QTest::currentDataTag());
    folder.replace(QLatin1Char(' '), QLatin1Char('-'));
    QVERIFY(QDir().mkpath(folder));
    QStringList faults;
    const QVector<Screen> all = Screens::all();
    for (const Screen &screen : all) {
        AppFixture app;
        Screens::prepare(app, size);
        QWidget *const shown = screen.show(app);
        if (!shown->testAttribute(Qt::WA_Resized))
            shown->adjustSize(); // as showing it does
        shown->resize(shown->size().boundedTo(size));
        shown->show();
        AppFixture::settle();
        if (shown->width() > size.width() || shown->height() > size.height())
            faults.append(QStringLiteral("%1 is %2 x %3")
                              .arg(QLatin1String(screen.name))
                              .arg(shown->width())
                              .arg(shown->height()));
        const QStringList cut = CutTexts::in(*shown);
        for (const QString &text : cut)
            faults.append(QStringLiteral("%1 cuts \"%2\"").arg(QLatin1String(screen.name), text));
        QVERIFY(shown->grab().save(folder + QLatin1Char('/') + QLatin1String(screen.name) +
                                   QStringLiteral(".png")));
        if (shown != &app.window)
            delete shown;
    }
    QApplication::setPalette(before);
    Language::install(QStringLiteral("en"));
    for (const QString &fault : qAsConst(faults))
        qWarning().noquote() << fault; // each, where a comparison shows the first few
    QVERIFY(faults.isEmpty());
}

FISHBONE_TEST(TestScreens)
#include "tst_screens.moc"
