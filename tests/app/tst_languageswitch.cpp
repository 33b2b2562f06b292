// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <app/common/language.h>

#include <tests/support/shownvalues.h>

#include <fishbone/dialogs/replacefinddialog.h>

#include <QCheckBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSettings>
#include <QSpinBox>
#include <QStatusBar>

namespace {

/// The window with as much shown as there can be: a document with a change, the details of a bone,
/// the find dialog with what it has found, and a question about the file.
class FullWindow : public AppFixture
{
public:
    FullWindow()
    {
        select("Machines");
        trigger("moveDown");
        trigger("details");
        trigger("find");
        widget<QLineEdit>("detailsLink")->setText(QStringLiteral("http://localhost"));
        auto *const dialog = window.findChild<ReplaceFindDialog *>();
        const QList<QLineEdit *> fields = dialog->findChildren<QLineEdit *>();
        fields.at(0)->setText(QStringLiteral("Too"));
        fields.at(1)->setText(QStringLiteral("Two"));
        Q_EMIT fields.at(0)->returnPressed();
        writeFile(path(), "{}");
        QTRY_VERIFY(widget<QWidget>("messageBar")->isVisible());
        settle();
    }

    /// Everything that a user reads or hears in the window and its dialogs.
    QStringList values() const
    {
        QStringList values = TestSupport::shownValues(window);
        values.replaceInStrings(folder.path(), QStringLiteral("FOLDER"));
        return values;
    }
};

/// Those of \a left that are not in \a right.
QString missing(const QStringList &left, QStringList right)
{
    QStringList lines;
    for (const QString &each : left) {
        if (!right.removeOne(each))
            lines.append(each);
    }
    return lines.join(QLatin1Char('\n'));
}

void verifySame(const QStringList &actual, const QStringList &expected)
{
    QVERIFY2(missing(actual, expected).isEmpty(), qPrintable(missing(actual, expected)));
    QVERIFY2(missing(expected, actual).isEmpty(), qPrintable(missing(expected, actual)));
}

} // namespace

/// Another language while the program runs.
class TestLanguageSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); }
    void cleanup() { Language::install(QString()); }

    void shouldShowWhatAWindowShowsThatWasMadeInTheLanguage_data();
    void shouldShowWhatAWindowShowsThatWasMadeInTheLanguage();
    void shouldGoBackToTheLanguageOfTheSystem();
};

void TestLanguageSwitch::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_languageswitch"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestLanguageSwitch::shouldShowWhatAWindowShowsThatWasMadeInTheLanguage_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::newRow("Chinese to English") << QStringLiteral("zh") << QStringLiteral("en");
    QTest::newRow("English to Chinese") << QStringLiteral("en") << QStringLiteral("zh");
}

void TestLanguageSwitch::shouldShowWhatAWindowShowsThatWasMadeInTheLanguage()
{
    QFETCH(QString, before);
    QFETCH(QString, after);

    Language::install(before);
    QStringList switched;
    {
        const FullWindow full;
        const QStringList old = full.values();
        Language::install(after);
        FullWindow::settle();
        switched = full.values();
        QVERIFY(old.size() > 500);
        QVERIFY(missing(old, switched).count(QLatin1Char('\n')) > 200);
    }
    const FullWindow made;
    const QStringList expected = made.values();
    verifySame(switched, expected);
}

void TestLanguageSwitch::shouldGoBackToTheLanguageOfTheSystem()
{
    const FullWindow full;
    const QStringList before = full.values();
    Language::install(QStringLiteral("zh"));
    FullWindow::settle();
    QVERIFY(full.values() != before);
    Language::install(QString());
    FullWindow::settle();
    verifySame(full.values(), before);
}

QTEST_MAIN(TestLanguageSwitch)
#include "tst_languageswitch.moc"
