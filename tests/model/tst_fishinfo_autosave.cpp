// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/model/savingfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/debuglines.h>

using namespace TestSupport;

namespace {

QString autoSaveFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/tmp/fishdiagram/");
}

} // namespace

/** Autosave. */
class TestFishInfoAutosave : public QObject, SavingFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare(); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }
    void shouldAutoSaveUnderAFreshName();
    void shouldAutoSaveANamedDocumentInItsFile();
    void shouldAutoSaveWhereItIsTold();
    void shouldNameAutoSavesAfterTheFirstHead();
    void shouldTellWhenItMakesTheFolder();
    void shouldAutoSaveUnderSafeNames_data();
    void shouldAutoSaveUnderSafeNames();
    void shouldNeverAutoSaveTwoDocumentsUnderOneName();
    void shouldTouchNothingWithoutModelOrHead_data();
    void shouldTouchNothingWithoutModelOrHead();
    void shouldRememberTheNameOfAFailedAutoSave();
    void shouldLetNobodyElseReadAnAutoSave_data();
    void shouldLetNobodyElseReadAnAutoSave();
    void shouldDeleteOldAutoSaves();
};

void TestFishInfoAutosave::shouldAutoSaveUnderAFreshName()
{
    const qint64 before = QDateTime::currentMSecsSinceEpoch();

    QVERIFY(m_info->saveTmpFile());

    const QString file = m_info->autoSaveFile();
    QVERIFY(file.startsWith(autoSaveFolder() + QStringLiteral("Plan.")));
    const qint64 stamp = file.mid(autoSaveFolder().size() + 5).toLongLong();
    QVERIFY(stamp >= before);
    QVERIFY(stamp <= QDateTime::currentMSecsSinceEpoch() + 1000);
    QVERIFY(contentOf(file).contains("u-Plan"));
    QVERIFY(m_info->isUntitled());

    nodeTitled(*m_model, QStringLiteral("Plan"))->setTitle(QStringLiteral("Renamed"));
    QVERIFY(m_info->saveTmpFile());
    QCOMPARE(m_info->autoSaveFile(), file);
    QVERIFY(contentOf(file).contains("Renamed"));
    QCOMPARE(QDir(autoSaveFolder()).entryList(QDir::Files).size(), 1);
}

void TestFishInfoAutosave::shouldAutoSaveANamedDocumentInItsFile()
{
    QVERIFY(makeFile(path("effect.json"), "old"));
    m_info->setCurrentFile(path("effect.json"));

    QVERIFY(m_info->saveTmpFile());

    QVERIFY(contentOf(path("effect.json")).contains("Plan"));
    QVERIFY(!QFileInfo::exists(autoSaveFolder()));
}

void TestFishInfoAutosave::shouldAutoSaveWhereItIsTold()
{
    QVERIFY(makeFile(path("effect.json"), "old"));
    m_info->setCurrentFile(path("effect.json"));
    m_info->setAutoSaveFile(path("auto"));

    QVERIFY(m_info->saveTmpFile());

    QCOMPARE(contentOf(path("effect.json")), QByteArray("old"));
    QVERIFY(contentOf(path("auto")).contains("Plan"));
}

void TestFishInfoAutosave::shouldNameAutoSavesAfterTheFirstHead()
{
    FishInfo *const second = loadDocument(*m_model, QStringLiteral("Other"));

    QVERIFY(second->saveTmpFile());

    QVERIFY(second->autoSaveFile().startsWith(autoSaveFolder() + QStringLiteral("Plan.")));
    QVERIFY(contentOf(second->autoSaveFile()).contains("Other"));
}

void TestFishInfoAutosave::shouldTellWhenItMakesTheFolder()
{
    const DebugLines debug;
    QVERIFY(m_info->saveTmpFile());
    QCOMPARE(debug.lines(), QStringList(QStringLiteral("default: true")));

    m_info->setAutoSaveFile(QString());
    QVERIFY(m_info->saveTmpFile());
    QCOMPARE(debug.lines().size(), 1);

    QVERIFY(
        QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/tmp")).removeRecursively());
    QVERIFY(
        makeFile(QCoreApplication::applicationDirPath() + QStringLiteral("/tmp"), "in the way"));
    m_info->setAutoSaveFile(QString());
    QVERIFY(!m_info->saveTmpFile());
    QVERIFY(QFile::remove(QCoreApplication::applicationDirPath() + QStringLiteral("/tmp")));
    QCOMPARE(debug.lines().last(), QStringLiteral("default: false"));
}

void TestFishInfoAutosave::shouldAutoSaveUnderSafeNames_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");

    const auto addSame = [](const char *tag, const QString &title) {
        QTest::newRow(tag) << title << title;
    };
    addSame("ordinary", QStringLiteral("My plan, 2nd (draft)"));
    addSame("dots", QStringLiteral(".."));
    addSame("nothing", QString());
    addSame("other letters", QStringLiteral("自由主题 Ärger"));
    addSame("as long as possible", QString(200, QLatin1Char('a')));
    QTest::newRow("separators") << QStringLiteral("../../etc\\x") << QStringLiteral(".._.._etc_x");
    QTest::newRow("control characters")
        << QStringLiteral("a\nb\tc") + QChar(0) + QChar(0x7f) + QChar(0x85) + QLatin1Char('d')
        << QStringLiteral("a_b_c___d");
    QTest::newRow("too long") << QString(5000, QLatin1Char('a')) << QString(200, QLatin1Char('a'));
    QTest::newRow("too long in bytes") << QString(100, QChar(0x4e3b)) << QString(66, QChar(0x4e3b));
    QString pairs;
    for (int i = 0; i < 60; ++i)
        pairs += QString::fromUcs4(U"\U0001F41F", 1);
    QTest::newRow("too long in pairs") << pairs << pairs.left(100);
    QTest::newRow("pair at the end")
        << QStringLiteral("abc") + pairs << QStringLiteral("abc") + pairs.left(98);
}

void TestFishInfoAutosave::shouldAutoSaveUnderSafeNames()
{
    QFETCH(QString, title);
    QFETCH(QString, name);
    nodeTitled(*m_model, QStringLiteral("Plan"))->setTitle(title);

    QVERIFY(m_info->saveTmpFile());

    const QString file = m_info->autoSaveFile();
    QCOMPARE(file.left(file.lastIndexOf(QLatin1Char('.'))), autoSaveFolder() + name);
    QVERIFY(QFileInfo(file).isFile());
    QCOMPARE(QDir(autoSaveFolder()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestFishInfoAutosave::shouldNeverAutoSaveTwoDocumentsUnderOneName()
{
    constexpr int documents = 200;
    while (m_model->rowCount() < documents)
        loadDocument(*m_model, QStringLiteral("Plan"));
    // What another program took for itself meanwhile.
    QVERIFY(QDir().mkpath(autoSaveFolder()));
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    for (int i = 0; i < 500; ++i)
        QVERIFY(makeFile(autoSaveFolder() + QStringLiteral("Plan.%1").arg(now + i), "theirs"));

    QSet<QString> names;
    for (FishInfo *info : m_model->fishList()) {
        QVERIFY(info->saveTmpFile());
        names.insert(info->autoSaveFile());
    }

    QCOMPARE(names.size(), documents);
    for (int i = 0; i < 500; ++i)
        QCOMPARE(contentOf(autoSaveFolder() + QStringLiteral("Plan.%1").arg(now + i)),
                 QByteArray("theirs"));
}

void TestFishInfoAutosave::shouldTouchNothingWithoutModelOrHead_data()
{
    QTest::addColumn<bool>("hasModel");
    QTest::addColumn<bool>("hasHead");
    QTest::addColumn<bool>("firstHasHead");
    QTest::addColumn<bool>("hasFile");

    QTest::newRow("no model") << false << true << true << false;
    QTest::newRow("no model, but a file") << false << true << true << true;
    QTest::newRow("no head") << true << false << true << false;
    QTest::newRow("no head, but a file") << true << false << true << true;
    QTest::newRow("no first head to name it after") << true << true << false << false;
}

void TestFishInfoAutosave::shouldTouchNothingWithoutModelOrHead()
{
    QFETCH(bool, hasModel);
    QFETCH(bool, hasHead);
    QFETCH(bool, firstHasHead);
    QFETCH(bool, hasFile);
    FishInfo *const info = loadDocument(*m_model, QStringLiteral("Second"));
    QVERIFY(makeFile(path("auto"), "old"));
    if (hasFile)
        info->setAutoSaveFile(path("auto"));
    if (!hasModel)
        info->setModel(nullptr);
    if (!hasHead)
        info->reset();
    if (!firstHasHead)
        m_info->reset();

    QVERIFY(!info->saveTmpFile());

    QCOMPARE(contentOf(path("auto")), QByteArray("old"));
    QVERIFY(!QFileInfo::exists(autoSaveFolder()));
    QCOMPARE(info->autoSaveFile(), hasFile ? path("auto") : QString());

    QStringListModel other; // in which nothing has a head
    info->setModel(&other);
    info->setAutoSaveFile(QString());
    QVERIFY(!info->saveTmpFile());
    QVERIFY(!QFileInfo::exists(autoSaveFolder()));
}

void TestFishInfoAutosave::shouldRememberTheNameOfAFailedAutoSave()
{
    addDocument(*m_model, makeChain(600));
    FishInfo *const info = m_model->fishList().last();

    QVERIFY(!info->saveTmpFile());

    QVERIFY(info->autoSaveFile().startsWith(autoSaveFolder() + QStringLiteral("Plan.")));
    QCOMPARE(QDir(autoSaveFolder()).entryList(QDir::Files), QStringList());
}

void TestFishInfoAutosave::shouldLetNobodyElseReadAnAutoSave_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("autosaved");
    QTest::newRow("the owner's alone") << 0x6600 << 0x6600;
    QTest::newRow("the group's") << 0x6640 << 0x6640;
    QTest::newRow("everybody's") << 0x6644 << 0x6644;
}

void TestFishInfoAutosave::shouldLetNobodyElseReadAnAutoSave()
{
    QFETCH(int, mode);
    QFETCH(int, autosaved);
    const QString own = path("plan.json");
    QVERIFY(m_info->saveFile(own));
    QVERIFY(QFile::setPermissions(own, QFile::Permissions(mode)));
    m_info->setFileName(own);
    const int mask = 0x6066; // a user is told apart from the owner in different ways

    QVERIFY(m_info->saveTmpFile()); // a new file
    QCOMPARE(int(QFile::permissions(m_info->autoSaveFile())) & mask, autosaved & mask);

    const QString told = path("told.json");
    m_info->setAutoSaveFile(told);
    QVERIFY(m_info->saveTmpFile());
    QCOMPARE(int(QFile::permissions(told)) & mask, autosaved & mask);
    QVERIFY(QFile::setPermissions(told, QFile::Permissions(0x6666)));
    QVERIFY(m_info->saveTmpFile()); // one that gave too much
    QCOMPARE(int(QFile::permissions(told)) & mask, autosaved & mask);

    m_info->setAutoSaveFile(own);
    QVERIFY(m_info->saveTmpFile());
    QCOMPARE(int(QFile::permissions(own)) & mask, mode & mask);
}

void TestFishInfoAutosave::shouldDeleteOldAutoSaves()
{
    QVERIFY(m_info->saveTmpFile());

    QVERIFY(m_info->deleteOldTmpFile(m_info->autoSaveFile()));
    QVERIFY(!QFileInfo::exists(m_info->autoSaveFile()));
    QVERIFY(!m_info->deleteOldTmpFile(m_info->autoSaveFile()));
}

FISHBONE_TEST(TestFishInfoAutosave)

#include "tst_fishinfo_autosave.moc"
