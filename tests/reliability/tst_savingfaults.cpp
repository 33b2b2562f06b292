// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Saving while things go wrong: what is on the disk is always the old document or the new one,
// whole.
//
// FISHBONE_LONG_TESTS makes 200 kills of each way of saving out of 8.

#include <tests/program/testprogram.h>
#include <tests/reliability/savedversions.h>
#include <tests/support/filecontent.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>

#include <sys/resource.h>
#include <unistd.h>

#include <fishbone/model/documentfile.h>
#include <fishbone/model/systemhelper.h>

namespace {
using TestSupport::contentOf;

constexpr int patience = 30000;
constexpr int manyNodes = 2000;
constexpr int fewNodes = 100;
const QString nobody = QStringLiteral("65534");

int kills()
{
    return qEnvironmentVariableIsSet("FISHBONE_LONG_TESTS") ? 200 : 8;
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/** The exit code of one save of the second version; -1 when the program did not end well. */
int saveOnce(const QStringList &arguments)
{
    QProcess program;
    program.start(QStringLiteral(SAVING_PROGRAM), arguments);
    const bool isEnded = program.waitForFinished(patience);
    return isEnded && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

/** Programs that are started meanwhile cannot make a file larger than this. */
class SizeLimit
{
    Q_DISABLE_COPY(SizeLimit)

public:
    explicit SizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limited = m_before;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~SizeLimit() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

/** A file system of 64 KiB as long as it lives, where the system lets us make one. */
class SmallDisk
{
    Q_DISABLE_COPY(SmallDisk)

public:
    explicit SmallDisk(const QString &folder)
        : m_folder(folder)
    {
        m_isThere = geteuid() == 0 && QDir().mkpath(folder) &&
                    run(QStringLiteral("mount"),
                        {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                         QStringLiteral("size=64k"), QStringLiteral("tmpfs"), folder}) == 0;
    }
    ~SmallDisk()
    {
        if (m_isThere)
            run(QStringLiteral("umount"), {m_folder});
    }

    bool isThere() const { return m_isThere; }

private:
    static int run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        return process.waitForFinished(patience) ? process.exitCode() : -1;
    }

    QString m_folder;
    bool m_isThere = false;
};

void addWaysOfSaving()
{
    QTest::addColumn<QString>("how");
    for (const char *const how : {"save", "autosave", "export"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

} // namespace

class TestSavingFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldLeaveAWholeDocumentWhenKilled_data() { addWaysOfSaving(); }
    void shouldLeaveAWholeDocumentWhenKilled();
    void shouldKeepTheOldDocumentAtALimitOfTheSize_data() { addWaysOfSaving(); }
    void shouldKeepTheOldDocumentAtALimitOfTheSize();
    void shouldKeepTheOldDocumentOnAFullDisk_data() { addWaysOfSaving(); }
    void shouldKeepTheOldDocumentOnAFullDisk();
    void shouldSaveOrRefuseInAReadOnlyFolder_data() { addWaysOfSaving(); }
    void shouldSaveOrRefuseInAReadOnlyFolder();
    void shouldSaveThroughALink_data() { addWaysOfSaving(); }
    void shouldSaveThroughALink();
    void shouldReplaceWhatSomebodyElseWrote_data();
    void shouldReplaceWhatSomebodyElseWrote();
    void shouldSaveUnderAnyName_data();
    void shouldSaveUnderAnyName();
    void shouldAutoSaveUnderAnyTitle_data();
    void shouldAutoSaveUnderAnyTitle();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    bool isAVersion(const QByteArray &content, int nodes) const
    {
        return content == SavedVersions::bytes(0, nodes) ||
               content == SavedVersions::bytes(1, nodes);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSavingFaults::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestSavingFaults::shouldLeaveAWholeDocumentWhenKilled()
{
    QFETCH(QString, how);
    const QByteArray versions[] = {SavedVersions::bytes(0, manyNodes),
                                   SavedVersions::bytes(1, manyNodes)};
    const QString file = path(QStringLiteral("document.json"));
    QRandomGenerator random(7);
    int found[] = {0, 0};
    for (int i = 0; i < kills(); ++i) {
        QVERIFY(writeFile(file, versions[0]));
        QProcess program;
        program.start(QStringLiteral(SAVING_PROGRAM),
                      {how, file, QString::number(manyNodes), QStringLiteral("loop")});
        QVERIFY(program.waitForReadyRead(patience));
        QTest::qSleep(random.bounded(1, 40));
        QCOMPARE(program.state(), QProcess::Running);
        program.kill();
        QVERIFY(program.waitForFinished(patience));
        const QByteArray left = contentOf(file);
        QVERIFY2(left == versions[0] || left == versions[1],
                 qPrintable(QStringLiteral("kill %1: %2 bytes").arg(i).arg(left.size())));
        ++found[left == versions[1] ? 1 : 0];
    }
    qInfo("%d kills: %d times the one version, %d times the other", kills(), found[0], found[1]);
}

void TestSavingFaults::shouldKeepTheOldDocumentAtALimitOfTheSize()
{
    QFETCH(QString, how);
    const QString file = path(QStringLiteral("document.json"));
    const QByteArray old = SavedVersions::bytes(0, fewNodes);
    const int full = SavedVersions::bytes(1, fewNodes).size();
    for (const int limit : {0, 1, 4096, full / 2, full - 1}) {
        QVERIFY(writeFile(file, old));
        int code = -1;
        {
            const SizeLimit sizes{rlim_t(limit)};
            code = saveOnce({how, file, QString::number(fewNodes)});
        }
        QCOMPARE(code, 1);
        QCOMPARE(contentOf(file), old);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }
    const SizeLimit sizes{rlim_t(full)};
    QCOMPARE(saveOnce({how, file, QString::number(fewNodes)}), 0);
    QVERIFY(contentOf(file) == SavedVersions::bytes(1, fewNodes));
}

void TestSavingFaults::shouldKeepTheOldDocumentOnAFullDisk()
{
    QFETCH(QString, how);
    const QString folder = path(QStringLiteral("small"));
    const SmallDisk disk(folder);
    if (!disk.isThere())
        QSKIP("File systems cannot be mounted here.");
    const QString file = folder + QStringLiteral("/document.json");
    const QByteArray old = SavedVersions::bytes(0, fewNodes);
    QVERIFY(writeFile(file, old));
    QCOMPARE(saveOnce({how, file, QString::number(manyNodes)}), 1);
    QCOMPARE(contentOf(file), old);
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden).size(), 1);

    // Where only the file itself can be written, with no room for a second one beside it.
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
    QVERIFY(QFile::setPermissions(file, QFile::Permissions(0x6666)));
    QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x5555)));
    QCOMPARE(saveOnce({how, file, QString::number(manyNodes), QStringLiteral("once"), nobody}), 1);
    QCOMPARE(contentOf(file), old);
}

void TestSavingFaults::shouldSaveOrRefuseInAReadOnlyFolder()
{
    QFETCH(QString, how);
    const QString file = path(QStringLiteral("document.json"));
    const QByteArray old = SavedVersions::bytes(0, fewNodes);
    const QString once = QStringLiteral("once");
    QStringList arguments{how, file, QString::number(fewNodes), once};
    if (geteuid() == 0)
        arguments.append(nobody);
    QVERIFY(writeFile(file, old));

    // A file that may not be written is not, in a folder of any kind.
    for (const int folderPermissions : {0x7777, 0x5555}) {
        QVERIFY(QFile::setPermissions(file, QFile::Permissions(0x4444)));
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(folderPermissions)));
        QCOMPARE(saveOnce(arguments), 1);
        QCOMPARE(contentOf(file), old);
    }
    QVERIFY(QFile::setPermissions(file, QFile::Permissions(0x6666)));
    QCOMPARE(saveOnce(arguments), 0);
    QVERIFY(contentOf(file) == SavedVersions::bytes(1, fewNodes));

    arguments[1] = path(QStringLiteral("new.json"));
    QCOMPARE(saveOnce(arguments), 1);
    QVERIFY(!QFile::exists(arguments.at(1)));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777)));
}

void TestSavingFaults::shouldSaveThroughALink()
{
    QFETCH(QString, how);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("elsewhere")));
    const QString target = path(QStringLiteral("elsewhere/target.json"));
    const QString link = path(QStringLiteral("link.json"));
    const QString linkToLink = path(QStringLiteral("second.json"));
    QVERIFY(writeFile(target, "old"));
    QCOMPARE(::symlink("elsewhere/target.json", QFile::encodeName(link).constData()), 0);
    QCOMPARE(::symlink("link.json", QFile::encodeName(linkToLink).constData()), 0);
    QCOMPARE(saveOnce({how, linkToLink, QString::number(fewNodes)}), 0);
    QVERIFY(contentOf(target) == SavedVersions::bytes(1, fewNodes));
    QVERIFY(QFileInfo(link).isSymLink() && QFileInfo(linkToLink).isSymLink());
    // The file at the end may be gone meanwhile.
    QVERIFY(QFile::remove(target));
    QCOMPARE(saveOnce({how, link, QString::number(fewNodes)}), 0);
    QVERIFY(contentOf(link) == SavedVersions::bytes(1, fewNodes));
}

void TestSavingFaults::shouldReplaceWhatSomebodyElseWrote_data()
{
    QTest::addColumn<QString>("meanwhile");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("changed") << QStringLiteral("changed") << true;
    QTest::newRow("removed") << QStringLiteral("removed") << true;
    QTest::newRow("a folder now") << QStringLiteral("folder") << false;
    QTest::newRow("its folder removed") << QStringLiteral("no folder") << false;
}

void TestSavingFaults::shouldReplaceWhatSomebodyElseWrote()
{
    QFETCH(QString, meanwhile);
    QFETCH(bool, isSaved);
    const QString folder = path(QStringLiteral("folder"));
    const QString file = folder + QStringLiteral("/document.json");
    QVERIFY(QDir().mkpath(folder));
    FishModel model;
    FishInfo *const document = SavedVersions::load(model, 0, fewNodes);
    QVERIFY(document->saveFile(file));
    document->setCurrentFile(file);

    if (meanwhile == QLatin1String("changed")) {
        QVERIFY(writeFile(file, "something else"));
    } else {
        QVERIFY(QFile::remove(file));
        if (meanwhile == QLatin1String("folder"))
            QVERIFY(QDir().mkpath(file + QStringLiteral("/below")));
        if (meanwhile == QLatin1String("no folder"))
            QVERIFY(QDir().rmdir(folder));
    }

    QCOMPARE(document->save(), isSaved);
    QCOMPARE(document->saveTmpFile(), isSaved);
    if (isSaved)
        QVERIFY(isAVersion(contentOf(file), fewNodes));
    if (meanwhile == QLatin1String("folder"))
        QVERIFY(QDir(file).exists(QStringLiteral("below")));
}

void TestSavingFaults::shouldSaveUnderAnyName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isSaved");

    QTest::newRow("blanks") << QStringLiteral(" two  blanks ") << true;
    QTest::newRow("line break") << QStringLiteral("two\nlines\r.json") << true;
    QTest::newRow("quotes") << QStringLiteral("it's \"quoted\" `so`.json") << true;
    QTest::newRow("shell") << QStringLiteral("$(x);&|<>*?[a]{b}~!#.json") << true;
    QTest::newRow("per cent") << QStringLiteral("100%1%2%n%.json") << true;
    QTest::newRow("backslash") << QStringLiteral("a\\b.json") << true;
    QTest::newRow("dash") << QStringLiteral("--help") << true;
    QTest::newRow("template") << QStringLiteral("XXXXXX.XXXXXXXX") << true;
    QTest::newRow("control characters") << QStringLiteral("\x01\x1b[31m\x7f") << true;
    QTest::newRow("Chinese") << QString::fromUtf8("延误.json") << true;
    QTest::newRow("right to left") << QString::fromUtf8("\u202eתרשים.json") << true;
    QTest::newRow("combining") << QString::fromUtf8("e\u0301a\u0308.json") << true;
    QTest::newRow("emoji") << QString::fromUtf8("👩‍👩‍👧🐟.json") << true;
    QTest::newRow("colon") << QStringLiteral("C:file.json") << true;
    QTest::newRow("reserved") << QStringLiteral("CON") << true;
    QTest::newRow("dots") << QStringLiteral("...") << true;
    QTest::newRow("as long as can be") << QString(255, QLatin1Char('n')) << true;
    QTest::newRow("as long as a temporary name leaves") << QString(248, QLatin1Char('n')) << true;
    QTest::newRow("too long") << QString(256, QLatin1Char('n')) << false;
    QTest::newRow("null character")
        << QStringLiteral("a") + QChar(0) + QStringLiteral("b") << false;
    QTest::newRow("folder itself") << QStringLiteral(".") << false;
    QTest::newRow("ends with a slash") << QStringLiteral("new/") << false;
}

void TestSavingFaults::shouldSaveUnderAnyName()
{
    QFETCH(QString, name);
    QFETCH(bool, isSaved);
    const QString file = path(name);
    FishModel first;
    FishModel second;
    FishInfo *const small = SavedVersions::load(first, 0, fewNodes);
    FishInfo *const large = SavedVersions::load(second, 1, fewNodes);
    const QByteArray largeBytes = SavedVersions::bytes(1, fewNodes);
    for (FishInfo *const document : {small, large, small, large}) {
        document->setAutoSaveFile(file);
        QCOMPARE(document->saveFile(file), isSaved);
        QCOMPARE(document->saveTmpFile(), isSaved);
    }
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), isSaved ? 1 : 0);
    if (isSaved)
        QVERIFY(contentOf(file) == largeBytes);
}

void TestSavingFaults::shouldAutoSaveUnderAnyTitle_data()
{
    QTest::addColumn<QString>("title");

    QTest::newRow("empty") << QString();
    QTest::newRow("path") << QStringLiteral("../../etc/passwd");
    QTest::newRow("absolute path") << QStringLiteral("/etc/passwd");
    QTest::newRow("other separators") << QStringLiteral("..\\..\\CON");
    QTest::newRow("the folder") << QStringLiteral(".");
    QTest::newRow("the folder above") << QStringLiteral("..");
    QTest::newRow("CON") << QStringLiteral("CON");
    QTest::newRow("NUL") << QStringLiteral("NUL.txt");
    QTest::newRow("10,000 characters") << QString(10000, QLatin1Char('t'));
    QTest::newRow("10,000 Chinese ones") << QString(10000, QChar(0x5ef6));
    QTest::newRow("10,000 emoji") << QString::fromUtf8("🐟").repeated(5000);
    QTest::newRow("null character") << QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    QTest::newRow("line breaks") << QStringLiteral("a\nb\r\nc");
    QTest::newRow("half a character") << QString(QChar(0xd83d));
    QTest::newRow("blanks") << QStringLiteral("   ");
    QTest::newRow("template") << QStringLiteral("XXXXXX");
}

void TestSavingFaults::shouldAutoSaveUnderAnyTitle()
{
    QFETCH(QString, title);
    const QDir folder(SystemHelper::appliactionDirPath() + QStringLiteral("tmp/fishdiagram/"));
    const auto files = [&folder] {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    };
    const QStringList before = files();
    FishModel model;
    FishInfo *const document = SavedVersions::load(model, 0, fewNodes);
    model.getFishHeadTreeItem()->setTitle(title);
    QVERIFY(document->saveTmpFile());
    QVERIFY(document->saveTmpFile());

    QStringList made = files();
    for (const QString &name : before)
        made.removeOne(name);
    QCOMPARE(made.size(), 1);
    const QString file = folder.filePath(made.first());
    QCOMPARE(QFileInfo(file).canonicalFilePath(),
             QFileInfo(document->autoSaveFile()).canonicalFilePath());
    FishModel again;
    QCOMPARE(again.loadFishFromFile(file), int(MODEL_NO_ERROR));
    QCOMPARE(again.getFishHeadTreeItem()->title(), title);
    QVERIFY(QFile::remove(file));
}

FISHBONE_GUILESS_TEST(TestSavingFaults)
#include "tst_savingfaults.moc"
