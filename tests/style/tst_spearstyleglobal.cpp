// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyle.h>

#include <fishbone/base/onepass.h>
#include <tests/program/testprogram.h>
#include <tests/support/filecontent.h>
#include <tests/support/messagecounter.h>
#include <tests/support/spearstyletext.h>

#include <QDir>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QPen>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace TestSupport;

namespace {
using TestSupport::contentOf;

/** Taken while the program starts: before main(), and before any application object. */
SpearStyle *const globalBeforeMain = SpearStyle::global();

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QDir programFolder()
{
    return QDir(QCoreApplication::applicationDirPath());
}

/** Nothing that a save wrote on its way is left beside the program. */
void verifyOnlyTheStyleFileIsThere()
{
    const QStringList names = programFolder().entryList({QStringLiteral("*spearstyle*")},
                                                        QDir::AllEntries | QDir::Hidden);
    QCOMPARE(names.filter(QStringLiteral("global.spearstyle")),
             QStringList{QStringLiteral("global.spearstyle")});
}

#ifdef Q_OS_UNIX
/** Takes away the right to write into the program's folder, also from the superuser, while it
 * lives. */
class LockedFolder
{
    Q_DISABLE_COPY(LockedFolder)

public:
    LockedFolder()
        : m_permissions(QFile::permissions(programFolder().path()))
        , m_isLocked(QFile::setPermissions(programFolder().path(),
                                           m_permissions & ~(QFile::WriteOwner | QFile::WriteGroup |
                                                             QFile::WriteOther | QFile::WriteUser)))
    {
        constexpr uid_t nobody = 65534;
        if (m_user == 0)
            m_isLocked = m_isLocked && seteuid(nobody) == 0;
    }
    ~LockedFolder()
    {
        if (seteuid(m_user) != 0)
            qFatal("The test program cannot go on as the user it was started by.");
        QFile::setPermissions(programFolder().path(), m_permissions);
    }

    /** Whether reading beside the program works and writing does not. */
    bool isLocked() const
    {
        QFile present(SpearStyle::spearStyleFilePath());
        QFile wanted(programFolder().filePath(QStringLiteral("probe")));
        return m_isLocked && present.open(QIODevice::ReadOnly) &&
               !wanted.open(QIODevice::WriteOnly);
    }

private:
    uid_t m_user = geteuid();
    QFile::Permissions m_permissions;
    bool m_isLocked;
};
#endif

} // namespace

class TestSpearStyleGlobal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldBeTheSameGlobalStyleEverywhere();
    void shouldKeepTheGlobalStyleBesideTheProgram();
    void shouldHaveDefaultsWithoutAFile();
    void shouldRetryUntilTheFileIsRead_data();
    void shouldRetryUntilTheFileIsRead();
    void shouldLookForTheFileOnceInAPass();
    void shouldReadTheFileOnlyOnce();
    void shouldCountADocumentWithoutAnObjectAsRead_data();
    void shouldCountADocumentWithoutAnObjectAsRead();
    void shouldNotSaveBeforeTheFileWasRead();
    void shouldSaveWhatWasChanged();
    void shouldSaveAgainWhenTheFileWasRemoved();
    void shouldReplaceTheFileWhole();
    void shouldLeaveAFolderInPlaceOfTheFile();
    void shouldWriteInPlaceWhereTheFolderForbidsNewFiles();
    void shouldLeaveAFileThatCannotBeWritten();
};

void TestSpearStyleGlobal::init()
{
    // The global style lives as long as the program, so each test brings it back to where it began.
    SpearStyle::m_isGlobalInited = false;
    QVERIFY(!QFile::exists(SpearStyle::spearStyleFilePath()) ||
            QFile::remove(SpearStyle::spearStyleFilePath()));
    SpearStyle *global = SpearStyle::global();
    global->setTextCount(6);
    global->setInheritanceParent(false);
    for (const SpearStyle::SpearState state : allStates) {
        global->setTextColor(state, QColor());
        global->setTextBkColor(state, QColor());
    }
}

void TestSpearStyleGlobal::cleanup()
{
    QFile::remove(SpearStyle::spearStyleFilePath());
}

void TestSpearStyleGlobal::shouldBeTheSameGlobalStyleEverywhere()
{
    QVERIFY(globalBeforeMain);
    QCOMPARE(SpearStyle::global(), globalBeforeMain);
    QCOMPARE(SpearStyle::global(), SpearStyle::global());
}

void TestSpearStyleGlobal::shouldKeepTheGlobalStyleBesideTheProgram()
{
    QCOMPARE(SpearStyle::spearStyleFilePath(),
             QCoreApplication::applicationDirPath() + QStringLiteral("/global.spearstyle"));
}

void TestSpearStyleGlobal::shouldHaveDefaultsWithoutAFile()
{
    for (int call = 0; call < 3; ++call) {
        QCOMPARE(textOf(*SpearStyle::global()), freshText());
        QVERIFY(!SpearStyle::m_isGlobalInited);
    }
}

void TestSpearStyleGlobal::shouldRetryUntilTheFileIsRead_data()
{
    QTest::addColumn<QByteArray>("broken");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("textCount=9");
    QTest::newRow("cut off") << QByteArray(R"({"textCount":9)");
    QTest::newRow("bare value") << QByteArray("9");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("binary") << QByteArray("\0\1\2\xff", 4);
}

void TestSpearStyleGlobal::shouldRetryUntilTheFileIsRead()
{
    QFETCH(const QByteArray, broken);

    writeFile(SpearStyle::spearStyleFilePath(), broken);
    QCOMPARE(textOf(*SpearStyle::global()), freshText());
    QVERIFY(!SpearStyle::m_isGlobalInited);

    writeFile(SpearStyle::spearStyleFilePath(), R"({"textCount":9,"inheritanceParent":true})");
    QCOMPARE(SpearStyle::global()->textCount(), 9);
    QVERIFY(SpearStyle::global()->inheritanceParent());
    QVERIFY(SpearStyle::m_isGlobalInited);
}

void TestSpearStyleGlobal::shouldLookForTheFileOnceInAPass()
{
    {
        const OnePass pass;
        QCOMPARE(SpearStyle::global()->textCount(), 6);
        writeFile(SpearStyle::spearStyleFilePath(), R"({"textCount":9})");
        QCOMPARE(SpearStyle::global()->textCount(), 6);
    }
    QCOMPARE(SpearStyle::global()->textCount(), 9);
}

void TestSpearStyleGlobal::shouldReadTheFileOnlyOnce()
{
    writeFile(SpearStyle::spearStyleFilePath(), R"({"textCount":9})");
    QCOMPARE(SpearStyle::global()->textCount(), 9);

    writeFile(SpearStyle::spearStyleFilePath(), R"({"textCount":20})");

    QCOMPARE(SpearStyle::global()->textCount(), 9);
    SpearStyle::global()->setTextCount(11);
    QCOMPARE(SpearStyle::global()->textCount(), 11);
}

void TestSpearStyleGlobal::shouldCountADocumentWithoutAnObjectAsRead_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("empty array") << QByteArray("[]");
    QTest::newRow("array") << QByteArray(R"([{"textCount":9}])");
}

void TestSpearStyleGlobal::shouldCountADocumentWithoutAnObjectAsRead()
{
    QFETCH(const QByteArray, content);
    writeFile(SpearStyle::spearStyleFilePath(), content);

    QCOMPARE(textOf(*SpearStyle::global()), freshText());

    QVERIFY(SpearStyle::m_isGlobalInited);
}

void TestSpearStyleGlobal::shouldNotSaveBeforeTheFileWasRead()
{
    SpearStyle::global()->setTextCount(9);
    SpearStyle::saveGlobal();
    QVERIFY(!QFile::exists(SpearStyle::spearStyleFilePath()));

    writeFile(SpearStyle::spearStyleFilePath(), "broken");
    SpearStyle::global();
    SpearStyle::saveGlobal();
    QCOMPARE(contentOf(SpearStyle::spearStyleFilePath()), QByteArray("broken"));
}

void TestSpearStyleGlobal::shouldSaveWhatWasChanged()
{
    writeFile(SpearStyle::spearStyleFilePath(), R"({"textCount":9})");
    SpearStyle::global()->setTextCount(11);
    QCOMPARE(contentOf(SpearStyle::spearStyleFilePath()), QByteArray(R"({"textCount":9})"));
    SpearStyle::global()->setTextColor(SpearStyle::ssHovered, QColor(1, 2, 3, 4));

    SpearStyle::saveGlobal();

    QCOMPARE(contentOf(SpearStyle::spearStyleFilePath()),
             QByteArray("{\n"
                        "    \"inheritanceParent\": false,\n"
                        "    \"spearStates\": [\n"
                        "        {\n"
                        "            \"state\": 2,\n"
                        "            \"textColor\": {\n"
                        "                \"a\": 4,\n"
                        "                \"b\": 3,\n"
                        "                \"g\": 2,\n"
                        "                \"r\": 1\n"
                        "            }\n"
                        "        }\n"
                        "    ],\n"
                        "    \"textCount\": 11\n"
                        "}\n"));
    verifyOnlyTheStyleFileIsThere();
}

void TestSpearStyleGlobal::shouldSaveAgainWhenTheFileWasRemoved()
{
    writeFile(SpearStyle::spearStyleFilePath(), R"({"textCount":9})");
    SpearStyle::global();
    QVERIFY(QFile::remove(SpearStyle::spearStyleFilePath()));

    SpearStyle::saveGlobal();

    QCOMPARE(
        parse(QString::fromUtf8(contentOf(SpearStyle::spearStyleFilePath()))),
        parse(QStringLiteral(R"({"inheritanceParent":false,"textCount":9,"spearStates":[]})")));
}

void TestSpearStyleGlobal::shouldReplaceTheFileWhole()
{
    writeFile(SpearStyle::spearStyleFilePath(), R"({"textCount":9})");
    SpearStyle::global();
    QFile before(SpearStyle::spearStyleFilePath());
    QVERIFY(before.open(QIODevice::ReadOnly));

    SpearStyle::saveGlobal();

    // Whoever has the file open goes on reading the version before: nothing was cut off in it.
    QCOMPARE(before.readAll(), QByteArray(R"({"textCount":9})"));
    QVERIFY(contentOf(SpearStyle::spearStyleFilePath()) != QByteArray(R"({"textCount":9})"));
    verifyOnlyTheStyleFileIsThere();
}

void TestSpearStyleGlobal::shouldLeaveAFolderInPlaceOfTheFile()
{
    writeFile(SpearStyle::spearStyleFilePath(), R"({"textCount":9})");
    SpearStyle::global();
    QVERIFY(QFile::remove(SpearStyle::spearStyleFilePath()));
    QVERIFY(programFolder().mkdir(QStringLiteral("global.spearstyle")));

    SpearStyle::saveGlobal();

    QVERIFY(QFileInfo(SpearStyle::spearStyleFilePath()).isDir());
    verifyOnlyTheStyleFileIsThere();

    SpearStyle::m_isGlobalInited = false;
    QCOMPARE(SpearStyle::global()->textCount(), 9);
    QVERIFY(!SpearStyle::m_isGlobalInited);
    QVERIFY(programFolder().rmdir(QStringLiteral("global.spearstyle")));
}

void TestSpearStyleGlobal::shouldWriteInPlaceWhereTheFolderForbidsNewFiles()
{
#ifdef Q_OS_UNIX
    const QString path = SpearStyle::spearStyleFilePath();
    writeFile(path, R"({"textCount":9})");
    QVERIFY(QFile::setPermissions(path, QFile::Permissions(0x6666)));
    SpearStyle::global()->setTextCount(11);
    {
        const LockedFolder locked;
        if (!locked.isLocked())
            QSKIP("The folder of the program cannot be locked here.");
        SpearStyle::saveGlobal();
    }
    QCOMPARE(parse(QString::fromUtf8(contentOf(path)))[QLatin1String("textCount")], QJsonValue(11));
#else
    QSKIP("Folders are not locked like this here.");
#endif
}

void TestSpearStyleGlobal::shouldLeaveAFileThatCannotBeWritten()
{
#ifdef Q_OS_UNIX
    const QString path = SpearStyle::spearStyleFilePath();
    writeFile(path, R"({"textCount":9})");
    QVERIFY(QFile::setPermissions(path, QFile::Permissions(0x4444)));
    SpearStyle::global()->setTextCount(11);
    {
        const LockedFolder locked;
        if (!locked.isLocked())
            QSKIP("The folder of the program cannot be locked here.");
        SpearStyle::saveGlobal();
    }
    QCOMPARE(contentOf(path), QByteArray(R"({"textCount":9})"));
#else
    QSKIP("Folders are not locked like this here.");
#endif
}

/** False when the global style is not what it was, now that the application object is gone. */
static bool globalOutlivesTheApplication(const QString &before)
{
    // Qt complains when it is asked for the folder of a program without an application object.
    const MessageCounter messages;
    SpearStyle::m_isGlobalInited = true;
    SpearStyle::saveGlobal();
    SpearStyle::m_isGlobalInited = false;
    SpearStyle *global = SpearStyle::global();
    return messages.count() == 0 && global == globalBeforeMain && textOf(*global) == before &&
           global->textFont(SpearStyle::ssNormal)->pointSize() == 21;
}

static int run(int argc, char *argv[])
{
    int failures = 0;
    QString before;
    {
        const QGuiApplication application(argc, argv);
        TestSpearStyleGlobal test;
        failures = QTest::qExec(&test, argc, argv);

        QFont font;
        font.setPointSize(21);
        SpearStyle::global()->setTextFont(SpearStyle::ssNormal, font);
        SpearStyle::global()->setBroderPen(SpearStyle::ssNormal, QPen(Qt::red, 2));
        before = textOf(*SpearStyle::global());
    }
    if (!globalOutlivesTheApplication(before)) {
        qWarning("FAIL!  : the global style changed when the application object went");
        ++failures;
    }
    return failures;
}

FISHBONE_TEST_MAIN(run)
#include "tst_spearstyleglobal.moc"
