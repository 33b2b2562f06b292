// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/model/savingfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/debuglines.h>

#include <fishbone/model/treeitem.h>

#include <QJsonDocument>
#include <QStandardItemModel>

using namespace TestSupport;

namespace {

/** A style that nests as deep as styles do. */
QJsonObject deepStyle()
{
    return QJsonDocument::fromJson(
               R"({"textCount": 1, "spearStates": [{"state": 0, "textColor": {"r": 1, "a": 255}}]})")
        .object();
}

} // namespace

/** Saving a document to its file. */
class TestFishInfoSaving : public QObject, SavingFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare(); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }
    void shouldWriteTheHeadIndented();
    void shouldReplaceTheFileWhole();
    void shouldLeaveAnEmptyFileWithoutAModel();
    void shouldSaveForAnyModel();
    void shouldSaveADocumentWithoutAHead();
    void shouldReportFilesThatCannotBeWritten_data();
    void shouldReportFilesThatCannotBeWritten();
    void shouldFollowALinkAndKeepPermissions();
    void shouldWriteInPlaceWhereTheFolderIsReadOnly();
    void shouldRefuseWhatCouldNotBeReadAgain_data();
    void shouldRefuseWhatCouldNotBeReadAgain();
    void shouldForgetWhyItFailedOnceItIsSaved();
    void shouldSaveUnderItsName();
};

void TestFishInfoSaving::shouldWriteTheHeadIndented()
{
    QVERIFY(m_info->saveFile(path("effect.json")));

    QJsonObject head;
    FishModel::write(head, m_info->treeItem()->childAtIndex(0), true);
    QCOMPARE(contentOf(path("effect.json")), QJsonDocument(head).toJson());
    QVERIFY(contentOf(path("effect.json")).startsWith("{\n    \"children\": [\n        {\n"));
}

void TestFishInfoSaving::shouldReplaceTheFileWhole()
{
    QVERIFY(makeFile(path("effect.json"), QByteArray(100000, 'x')));

    QVERIFY(m_info->saveFile(path("effect.json")));

    QVERIFY(!contentOf(path("effect.json")).contains('x'));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList(QStringLiteral("effect.json")));
}

void TestFishInfoSaving::shouldLeaveAnEmptyFileWithoutAModel()
{
    QVERIFY(makeFile(path("effect.json"), "old"));
    FishInfo info;
    info.loadFish(documentFromText(QStringLiteral("A")), nullptr);

    QVERIFY(!info.saveFile(path("effect.json")));

    QCOMPARE(contentOf(path("effect.json")), QByteArray());
}

void TestFishInfoSaving::shouldSaveForAnyModel()
{
    QStandardItemModel model;
    FishInfo info;
    info.loadFish(documentFromText(QStringLiteral("A")), &model);

    QVERIFY(info.saveFile(path("effect.json")));

    QVERIFY(contentOf(path("effect.json")).contains("\"u-A\""));
}

void TestFishInfoSaving::shouldSaveADocumentWithoutAHead()
{
    m_info->reset();

    QVERIFY(m_info->saveFile(path("effect.json")));

    QCOMPARE(QJsonDocument::fromJson(contentOf(path("effect.json"))), QJsonDocument(QJsonObject()));
}

void TestFishInfoSaving::shouldReportFilesThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("no name") << QString();
    QTest::newRow("folder that is missing") << QStringLiteral("missing/effect.json");
    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("a file as folder") << QStringLiteral("file/effect.json");
    if (QFile::exists(QStringLiteral("/dev/full")))
        QTest::newRow("full device") << QStringLiteral("/dev/full");
}

void TestFishInfoSaving::shouldReportFilesThatCannotBeWritten()
{
    QFETCH(QString, path);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(makeFile(m_folder->filePath(QStringLiteral("file")), "old"));
    if (!path.isEmpty())
        path = QDir(m_folder->path()).filePath(path);

    QVERIFY(!m_info->saveFile(path));

    QVERIFY(!m_info->saveError().isEmpty());
    QCOMPARE(
        QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
        QStringList({QStringLiteral("file"), QStringLiteral("folder")}));
    QCOMPARE(contentOf(m_folder->filePath(QStringLiteral("file"))), QByteArray("old"));
    QVERIFY(!QFileInfo(QStringLiteral("/dev/full")).isFile());
}

void TestFishInfoSaving::shouldFollowALinkAndKeepPermissions()
{
    QVERIFY(makeFile(path("target.json"), "old"));
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser |
                                           QFile::WriteUser | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(path("target.json"), permissions));
    QVERIFY(QFile::link(path("target.json"), path("link.json")));

    QVERIFY(m_info->saveFile(path("link.json")));

    QVERIFY(QFileInfo(path("link.json")).isSymLink());
    QVERIFY(contentOf(path("target.json")).contains("Plan"));
    QCOMPARE(QFile::permissions(path("target.json")), permissions);
}

void TestFishInfoSaving::shouldWriteInPlaceWhereTheFolderIsReadOnly()
{
    QVERIFY(makeFile(path("effect.json"), "old"));
    const QFile::Permissions all = QFile::permissions(m_folder->path());
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner));
    const bool isReadOnly = !makeFile(path("other"), "");
    const QFile::Permissions own = QFile::ReadOwner | QFile::WriteOwner;
    QVERIFY(QFile::setPermissions(path("effect.json"), own));
    const QFile::Permissions before = QFile::permissions(path("effect.json"));

    const bool saved = m_info->saveFile(path("effect.json"));
    const bool savedNew = m_info->saveFile(path("new.json"));

    QVERIFY(QFile::setPermissions(m_folder->path(), all));
    QVERIFY(saved);
    QVERIFY(contentOf(path("effect.json")).contains("Plan"));
    QCOMPARE(QFile::permissions(path("effect.json")), before);
    QCOMPARE(savedNew, !isReadOnly); // the superuser writes anywhere
}

void TestFishInfoSaving::shouldRefuseWhatCouldNotBeReadAgain_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("hasStyle");
    QTest::addColumn<bool>("isSaved");

    QTest::newRow("as deep as can be read") << 512 << false << true;
    QTest::newRow("a level too deep") << 513 << false << false;
    QTest::newRow("far too deep") << 100000 << false << false;
    QTest::newRow("with a style as deep as can be read") << 510 << true << true;
    QTest::newRow("with a style that is too deep") << 511 << true << false;
}

void TestFishInfoSaving::shouldRefuseWhatCouldNotBeReadAgain()
{
    QFETCH(int, depth);
    QFETCH(bool, hasStyle);
    QFETCH(bool, isSaved);
    std::unique_ptr<TreeItem> chain = makeChain(depth);
    TreeItem *last = chain.get();
    while (last->childCount() > 0)
        last = last->childAtIndex(0);
    if (hasStyle)
        last->setSpearStyle(deepStyle());
    addDocument(*m_model, std::move(chain));
    QVERIFY(makeFile(path("effect.json"), "old"));
    const DebugLines debug;

    QCOMPARE(m_model->fishList().last()->saveFile(path("effect.json")), isSaved);

    if (isSaved) {
        QCOMPARE(m_model->loadFishFromFile(path("effect.json")), 0);
        QCOMPARE(m_model->fishList().last()->nodeCount(), depth);
    } else {
        QCOMPARE(contentOf(path("effect.json")), QByteArray("old"));
        QCOMPARE(debug.lines().size(), 1);
        QCOMPARE(m_model->fishList().last()->saveError(),
                 QStringLiteral("the diagram nests too deep to be read again"));
    }
}

void TestFishInfoSaving::shouldForgetWhyItFailedOnceItIsSaved()
{
    QCOMPARE(m_info->saveError(), QString());
    QVERIFY(!m_info->saveFile(m_folder->path()));
    QVERIFY(!m_info->saveError().isEmpty());
    QVERIFY(m_info->saveFile(path("effect.json")));
    QCOMPARE(m_info->saveError(), QString());
    FishInfo unseen;
    QVERIFY(!unseen.saveFile(path("effect.json")));
    QCOMPARE(unseen.saveError(), QStringLiteral("no model shows the document"));
}

void TestFishInfoSaving::shouldSaveUnderItsName()
{
    QVERIFY(makeFile(path("effect.json"), "old"));
    m_info->setCurrentFile(path("effect.json"));
    m_info->setModified(true);

    QVERIFY(m_info->save());

    QVERIFY(contentOf(path("effect.json")).contains("Plan"));
    QVERIFY(m_info->modified()); // the host's to clear
}

FISHBONE_TEST(TestFishInfoSaving)

#include "tst_fishinfo_saving.moc"
