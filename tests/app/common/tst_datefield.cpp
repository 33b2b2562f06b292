// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/language.h>
#include <app/panels/actionlist.h>
#include <app/recovery/recoverycopy.h>
#include <app/recovery/recoverymodel.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QCheckBox>
#include <QDateEdit>
#include <QDirIterator>
#include <QDockWidget>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSettings>

namespace {

const QDate someDay(2031, 2, 3);

QString shortDay()
{
    return QLocale().toString(someDay, QLocale::ShortFormat);
}

/** The columns of a list that show @p day, in all rows. */
int cellsWith(const QTreeWidget &list, const QString &day)
{
    int cells = 0;
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(&list)); *it; ++it)
        cells += int((*it)->text(ActionList::End) == day);
    return cells;
}

} // namespace

/** The field for dates; and dates and times have one form wherever the program shows them: the
 * short one of the language. */
class TestDateField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { Language::install(QStringLiteral("en")); }
    void shouldShowDaysAsTheLanguageHasThem_data();
    void shouldShowDaysAsTheLanguageHasThem();
    void shouldTakeADayThatIsTyped_data();
    void shouldTakeADayThatIsTyped();
    void shouldChangeOneNumber();
    void shouldShowOneClock_data();
    void shouldShowOneClock();
    void shouldGiveDatesNoFormOfTheirOwn();
};

void TestDateField::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_datefield"));
}

void TestDateField::init()
{
    QSettings().clear();
    Language::install(QStringLiteral("en"));
}

void TestDateField::shouldShowDaysAsTheLanguageHasThem_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QStringLiteral("en");
    QTest::newRow("Chinese") << QStringLiteral("zh");
}

/** In the details, in the list of actions and in the field that opens there; also where the
 * language changes while the window is there. */
void TestDateField::shouldShowDaysAsTheLanguageHasThem()
{
    QFETCH(QString, language);
    AppFixture app;
    const qint64 stamp = QDateTime(someDay, QTime(13, 30)).toMSecsSinceEpoch();
    app.subject("Machines")->setPlanEndDate(stamp);
    app.subject("Machines")->setCreateDate(stamp);
    Language::choose(language);
    app.select("Machines");
    const auto *const field = app.widget<QDateEdit>("detailsPlannedEnd");
    QCOMPARE(field->text(), shortDay());
    bool isToldWhenMade = false;
    const QList<QLabel *> labels =
        app.window.tabs()->current()->details()->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        isToldWhenMade = isToldWhenMade || label->text().endsWith(shortDay());
    QVERIFY(isToldWhenMade);

    app.window.findChild<QDockWidget *>(QStringLiteral("actionsDock"))
        ->toggleViewAction()
        ->trigger();
    AppFixture::settle();
    auto *const list = app.window.findChild<ActionList *>();
    QCOMPARE(cellsWith(*list, shortDay()), 1);
    QTreeWidgetItem *row = nullptr;
    for (QTreeWidgetItemIterator it(list); *it; ++it)
        row = (*it)->text(ActionList::End) == shortDay() ? *it : row;
    list->setFocus();
    list->setCurrentItem(row, ActionList::End);
    QTest::keyClick(list, Qt::Key_F2);
    const auto *const opened = list->findChild<QDateEdit *>();
    QVERIFY(opened);
    QCOMPARE(opened->text(), shortDay());
}

void TestDateField::shouldTakeADayThatIsTyped_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QDate>("taken");
    const QDate before(2030, 12, 31);
    QTest::newRow("English") << QStringLiteral("en") << QStringLiteral("2/3/31") << someDay;
    QTest::newRow("with the whole year")
        << QStringLiteral("en") << QStringLiteral("2/3/2031") << someDay;
    QTest::newRow("with noughts") << QStringLiteral("en") << QStringLiteral("02/03/2031")
                                  << someDay;
    QTest::newRow("Chinese") << QStringLiteral("zh") << QStringLiteral("2031/2/3") << someDay;
    QTest::newRow("with dashes") << QStringLiteral("en") << QStringLiteral("2031-02-03") << someDay;
    QTest::newRow("corrected") << QStringLiteral("en") << QStringLiteral("2/4\b3/31") << someDay;
    QTest::newRow("all taken back") << QStringLiteral("en") << QStringLiteral("2/\b\b") << before;
    QTest::newRow("half of it") << QStringLiteral("en") << QStringLiteral("2/3") << before;
    QTest::newRow("no such day") << QStringLiteral("en") << QStringLiteral("2/30/31") << before;
}

/** After Tab into the field, and with all of it selected. */
void TestDateField::shouldTakeADayThatIsTyped()
{
    QFETCH(QString, language);
    QFETCH(QString, typed);
    QFETCH(QDate, taken);
    AppFixture app;
    Language::choose(language);
    QVERIFY(QTest::qWaitForWindowActive(&app.window));
    const qint64 before = QDateTime(QDate(2030, 12, 31), QTime(0, 0)).toMSecsSinceEpoch();
    for (const bool isAllSelected : {false, true}) {
        app.subject("Machines")->setPlanEndDate(before);
        app.select("People");
        app.select("Machines");
        app.trigger("details");
        app.widget<QCheckBox>("detailsHasPlannedEnd")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        auto *const field = app.widget<QDateEdit>("detailsPlannedEnd");
        QVERIFY(field->hasFocus());
        if (isAllSelected)
            QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        for (const QChar character : typed) {
            if (character == QLatin1Char('\b'))
                QTest::keyClick(field, Qt::Key_Backspace);
            else
                QTest::keyClicks(field, character);
        }
        const auto *const button = app.widget<QPushButton>("detailsApply");
        QCOMPARE(button->isEnabled(), taken == someDay); // also for the mouse
        QTest::keyClick(field, Qt::Key_Return);
        AppFixture::settle();
        QCOMPARE(QDateTime::fromMSecsSinceEpoch(app.subject("Machines")->planEndDate()).date(),
                 taken);
        QCOMPARE(field->text(), QLocale().toString(taken, QLocale::ShortFormat));
    }
}

/** With the mouse on it, and by arrow keys. */
void TestDateField::shouldChangeOneNumber()
{
    AppFixture app;
    QVERIFY(QTest::qWaitForWindowActive(&app.window));
    app.subject("Machines")
        ->setPlanEndDate(QDateTime(QDate(2030, 12, 30), QTime(0, 0)).toMSecsSinceEpoch());
    app.select("Machines");
    app.trigger("details");
    auto *const field = app.widget<QDateEdit>("detailsPlannedEnd");
    field->setFocus();
    for (int i = 0; i < 4 && field->currentSection() != QDateTimeEdit::DaySection; ++i)
        QTest::keyClick(field, Qt::Key_Right);
    QTest::keyClick(field, Qt::Key_Up);
    QCOMPARE(field->date(), QDate(2030, 12, 31));
}

void TestDateField::shouldShowOneClock_data()
{
    shouldShowDaysAsTheLanguageHasThem_data();
}

/** The status bar and the list of copies after a crash say the same of the same moment. */
void TestDateField::shouldShowOneClock()
{
    QFETCH(QString, language);
    AppFixture app;
    Language::choose(language);
    app.window.editor()->renameItem(app.find("Machines"), QStringLiteral("Robots"));
    AppFixture::settle();
    RecoveryCopy *const kept = app.window.tabs()->current()->recovery();
    QVERIFY(kept->save());
    const QDateTime moment = kept->time();
    const QString clock = QLocale().toString(moment.time(), QLocale::ShortFormat);
    QVERIFY(clock.size() >= 4);
    const auto *const status = app.widget<QLabel>("autosaveStatus");
    QVERIFY2(status->text().contains(clock), qPrintable(status->text()));
    LeftCopy copy;
    copy.saved = moment;
    const RecoveryModel model({copy});
    const QString listed = model.index(0, RecoveryModel::Saved).data().toString();
    QVERIFY2(listed.contains(clock), qPrintable(listed));
    QVERIFY2(listed.contains(QLocale().toString(moment.date(), QLocale::ShortFormat)),
             qPrintable(listed));
}

/** Whatever shows a date to people leaves its form to the language. */
void TestDateField::shouldGiveDatesNoFormOfTheirOwn()
{
    static const QRegularExpression own(QStringLiteral(
        R"(setDisplayFormat\(QStringLiteral|"[^"]*(yyyy|hh?:mm|HH?:mm)[^"]*"|Qt::(ISODate|TextDate)|)"
        R"(LongFormat|NarrowFormat|stringFromDateTimeMsecs)"));
    int looked = 0;
    QStringList found;
    for (const char *folder : {"app", "fishbone/accessibility", "fishbone/dialogs",
                               "fishbone/drawing", "fishbone/editor", "fishbone/items"}) {
        QDirIterator sources(TestSupport::sourceFile(QLatin1String(folder)),
                             {QStringLiteral("*.cpp")}, QDir::Files, QDirIterator::Subdirectories);
        while (sources.hasNext()) {
            const QString name = sources.next();
            ++looked;
            if (own.match(QString::fromUtf8(AppFixture::contentOf(name))).hasMatch())
                found.append(name);
        }
    }
    QVERIFY(looked > 100);
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

FISHBONE_TEST(TestDateField)
#include "tst_datefield.moc"
