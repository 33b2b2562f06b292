// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/systemhelper.h>
#include <tests/program/testprogram.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

namespace {

/** Before main(), because the system's locale is read only once. Its digits are not the usual ones.
 */
const bool isSystemArabic = qputenv("LC_ALL", "ar_EG.UTF-8");

/** Gives an environment variable a value for as long as it lives. */
class EnvironmentValue
{
    Q_DISABLE_COPY(EnvironmentValue)

public:
    EnvironmentValue(const char *name, const QByteArray &value)
        : m_name(name)
        , m_wasSet(qEnvironmentVariableIsSet(name))
        , m_before(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~EnvironmentValue()
    {
        if (m_wasSet)
            qputenv(m_name, m_before);
        else
            qunsetenv(m_name);
    }

private:
    const char *m_name;
    bool m_wasSet;
    QByteArray m_before;
};

} // namespace

class TestSystemHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldCarryAMetaObject();
    void shouldMakeUuidsInTheDefaultForm();
    void shouldNeverMakeTheSameUuidTwice();
    void shouldWriteTheLocalDate_data();
    void shouldWriteTheLocalDate();
    void shouldWriteTheSameDigitsInEveryLocale();
    void shouldSurviveAnyNumberOfMilliseconds_data();
    void shouldSurviveAnyNumberOfMilliseconds();
    void shouldConvertAngles_data();
    void shouldConvertAngles();
    void shouldGiveBackTheAngleThatWasConverted();
    void shouldEndTheApplicationFolderWithASlash();
    void shouldFindTheFolderOfTheDocuments();
};

void TestSystemHelper::shouldCarryAMetaObject()
{
    QObject parent;
    const auto *helper = new SystemHelper(&parent);

    QCOMPARE(helper->parent(), &parent);
    QCOMPARE(QByteArray(helper->metaObject()->className()), QByteArray("SystemHelper"));
    QVERIFY(!SystemHelper().parent());
}

void TestSystemHelper::shouldMakeUuidsInTheDefaultForm()
{
    const QRegularExpression form(
        QStringLiteral("\\A\\{[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}\\}\\z"));

    const QString uuid = SystemHelper::randomUuid();

    QCOMPARE(uuid.size(), 38);
    QVERIFY2(form.match(uuid).hasMatch(), qPrintable(uuid));
}

void TestSystemHelper::shouldNeverMakeTheSameUuidTwice()
{
    constexpr int count = 10000;
    QSet<QString> uuids;
    for (int i = 0; i < count; ++i)
        uuids.insert(SystemHelper::randomUuid());

    QCOMPARE(uuids.size(), count);
}

void TestSystemHelper::shouldWriteTheLocalDate_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<qint64>("msecs");
    QTest::addColumn<QString>("date");

    constexpr qint64 day = 86400000;
    const QByteArray utc("UTC0");
    const QByteArray east("CST-8");
    const QByteArray west("EST5");
    QTest::newRow("epoch") << utc << qint64(0) << QStringLiteral("1970-01-01");
    QTest::newRow("epoch, east") << east << qint64(0) << QStringLiteral("1970-01-01");
    QTest::newRow("epoch, west") << west << qint64(0) << QStringLiteral("1969-12-31");
    QTest::newRow("last of the day") << utc << day - 1 << QStringLiteral("1970-01-01");
    QTest::newRow("next day") << utc << day << QStringLiteral("1970-01-02");
    QTest::newRow("before the epoch") << utc << qint64(-1) << QStringLiteral("1969-12-31");
    QTest::newRow("evening, east") << east << day * 2 / 3 << QStringLiteral("1970-01-02");
    QTest::newRow("leap day") << utc << qint64(1582934400000) << QStringLiteral("2020-02-29");
    QTest::newRow("last of four digits")
        << utc << qint64(253402300799999) << QStringLiteral("9999-12-31");
    QTest::newRow("five digits") << utc << qint64(253402300800000) << QStringLiteral("10000-01-01");
}

void TestSystemHelper::shouldWriteTheLocalDate()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const qint64, msecs);
    QFETCH(const QString, date);
    const EnvironmentValue timeZone("TZ", zone);

    QCOMPARE(SystemHelper::stringFromDateTimeMsecs(msecs), date);
}

void TestSystemHelper::shouldWriteTheSameDigitsInEveryLocale()
{
    if (!isSystemArabic || QLocale::system().language() != QLocale::Arabic)
        QSKIP("The system's locale cannot be chosen here.");
    const EnvironmentValue timeZone("TZ", "UTC0");
    const QDateTime epoch = QDateTime::fromMSecsSinceEpoch(0);
    QVERIFY(QLocale::system().toString(epoch, QStringLiteral("yyyy")) != QLatin1String("1970"));

    QCOMPARE(SystemHelper::stringFromDateTimeMsecs(0), QStringLiteral("1970-01-01"));
}

void TestSystemHelper::shouldSurviveAnyNumberOfMilliseconds_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<qint64>("msecs");

    using Limits = std::numeric_limits<qint64>;
    for (const char *zone : {"UTC0", "CST-8", "EST5"}) {
        QTest::addRow("greatest, %s", zone) << QByteArray(zone) << Limits::max();
        QTest::addRow("least, %s", zone) << QByteArray(zone) << Limits::min();
        QTest::addRow("far future, %s", zone) << QByteArray(zone) << Limits::max() / 2;
        QTest::addRow("far past, %s", zone) << QByteArray(zone) << Limits::min() / 2;
    }
}

void TestSystemHelper::shouldSurviveAnyNumberOfMilliseconds()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const qint64, msecs);
    const EnvironmentValue timeZone("TZ", zone);
    const QRegularExpression form(QStringLiteral("\\A(-?\\d{4,}-\\d\\d-\\d\\d)?\\z"));

    const QString date = SystemHelper::stringFromDateTimeMsecs(msecs);

    QVERIFY2(form.match(date).hasMatch(), qPrintable(date));
}

void TestSystemHelper::shouldConvertAngles_data()
{
    QTest::addColumn<double>("radian");
    QTest::addColumn<double>("angle");

    QTest::newRow("nothing") << 0.0 << 0.0;
    QTest::newRow("one degree") << 0.017453292519943295 << 1.0;
    QTest::newRow("slant of a bone") << 1.0471975511965976 << 60.0;
    QTest::newRow("half a turn") << 3.141592653589793 << 180.0;
    QTest::newRow("backwards") << -1.5707963267948966 << -90.0;
    QTest::newRow("more than a turn") << 12.566370614359172 << 720.0;
}

void TestSystemHelper::shouldConvertAngles()
{
    QFETCH(const double, radian);
    QFETCH(const double, angle);

    QCOMPARE(SystemHelper::radianToAngle(radian), angle);
    QCOMPARE(SystemHelper::angleToRadian(angle), radian);
}

void TestSystemHelper::shouldGiveBackTheAngleThatWasConverted()
{
    QCOMPARE(SystemHelper::radianToAngle(SystemHelper::angleToRadian(90)), 90.0);
}

void TestSystemHelper::shouldEndTheApplicationFolderWithASlash()
{
    const QString folder = SystemHelper::appliactionDirPath();

    const QFileInfo program(QCoreApplication::applicationFilePath());
    QVERIFY(folder.endsWith(QLatin1Char('/')));
    QVERIFY(!folder.endsWith(QLatin1String("//")));
    QVERIFY(QFile::exists(folder + program.fileName()));
}

void TestSystemHelper::shouldFindTheFolderOfTheDocuments()
{
#if !defined(Q_OS_UNIX) || defined(Q_OS_MACOS)
    QSKIP("The folder is configured in another way here.");
#endif
    const QTemporaryDir home;
    QVERIFY(home.isValid());
    QVERIFY(QDir(home.path()).mkdir(QStringLiteral("Papers")));
    QFile folders(home.filePath(QStringLiteral("user-dirs.dirs")));
    QVERIFY(folders.open(QIODevice::WriteOnly));
    folders.write("XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n");
    folders.close();
    const EnvironmentValue homeFolder("HOME", home.path().toLocal8Bit());
    const EnvironmentValue configFolder("XDG_CONFIG_HOME", home.path().toLocal8Bit());

    QCOMPARE(SystemHelper::documentsLocation(), home.filePath(QStringLiteral("Papers")));
}

FISHBONE_GUILESS_TEST(TestSystemHelper)

#include "tst_systemhelper.moc"
