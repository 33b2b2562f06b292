// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishinfo.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace TestSupport;

/** The state of a document: its names, its flags, its counts and its history. */
class TestFishInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeNamedAfterACounter(); // the first, since the counter is the process's
    void shouldStartEmptyAndUnnamed();
    void shouldKeepWhatItIsTold();
    void shouldTellWhatHasChanged();
    void shouldTellNothingThatWasTakenBack();
    void shouldTellWhenItIsSaved();
    void shouldSurviveItsEndWhileItTells();
    void shouldTakeTheCanonicalNameOfAFile();
    void shouldLoseItsNameToAMissingFile();
    void shouldStripNames_data();
    void shouldStripNames();
    void shouldForgetAModelThatDies();
    void shouldEmptyItsTreeAndNothingElse();
    void shouldEmptyItsTreeInNoModel();
    void shouldRememberTheLastFourSubjects();
    void shouldRememberASubjectOnce();
    void shouldNotRememberWhatIsNoSubject();
    void shouldCountDirectChildrenWithoutParentTask();
    void shouldCountNoneWithoutHead();
};

void TestFishInfo::shouldBeNamedAfterACounter()
{
    const FishInfo first;
    QCOMPARE(first.fileName(), QStringLiteral("fish1.json"));
    {
        const FishInfo second;
        QCOMPARE(second.fileName(), QStringLiteral("fish2.json"));
    }
    const FishInfo third;
    QCOMPARE(third.fileName(), QStringLiteral("fish3.json"));
}

void TestFishInfo::shouldStartEmptyAndUnnamed()
{
    const FishInfo info;

    QVERIFY(info.treeItem());
    QCOMPARE(info.treeItem()->childCount(), 0);
    QCOMPARE(info.treeItem()->parent(), nullptr);
    QCOMPARE(info.autoSaveFile(), QString());
    QVERIFY(!info.modified());
    QVERIFY(info.isUntitled());
    QCOMPARE(info.nodeCount(), 0);
    QCOMPARE(info.noParentNodeCount(), 0);
    QCOMPARE(info.fishHistorys(), QStringList());
    QCOMPARE(info.model(), nullptr);
}

void TestFishInfo::shouldKeepWhatItIsTold()
{
    FishModel model;
    FishInfo info;

    info.setFileName(QStringLiteral("/x/effect.json"));
    info.setModified(true);
    info.setNodeCount(12);
    info.setNoParentNodeCount(3);
    info.setAutoSaveFile(QStringLiteral("/x/auto"));
    info.setModel(&model);

    QCOMPARE(info.fileName(), QStringLiteral("/x/effect.json"));
    QVERIFY(info.modified());
    QVERIFY(info.isUntitled()); // a plain name does not name the document
    QCOMPARE(info.nodeCount(), 12);
    QCOMPARE(info.noParentNodeCount(), 3);
    QCOMPARE(info.autoSaveFile(), QStringLiteral("/x/auto"));
    QCOMPARE(info.model(), &model);
}

void TestFishInfo::shouldTellWhatHasChanged()
{
    FishInfo info;
    QSignalSpy modified(&info, &FishInfo::modifiedChanged);
    QSignalSpy named(&info, &FishInfo::fileNameChanged);

    info.setModified(true);
    info.setModified(true);
    info.setFileName(QStringLiteral("a"));
    info.setFileName(QStringLiteral("b"));
    QCOMPARE(modified.count() + named.count(), 0); // not before whoever did it is done
    QCoreApplication::processEvents();

    QCOMPARE(modified, (QList<QVariantList>{{true}}));
    QCOMPARE(named, (QList<QVariantList>{{QStringLiteral("b")}}));
    info.reset();
    QCoreApplication::processEvents();
    QCOMPARE(modified, (QList<QVariantList>{{true}, {false}}));
    QCOMPARE(named.count(), 1);
    info.setModified(true);
    QCoreApplication::processEvents();
    info.setCurrentFile(QStringLiteral("there is none"));
    QCoreApplication::processEvents();
    QCOMPARE(modified.takeLast(), QVariantList{false});
    QCOMPARE(named.takeLast(), QVariantList{QString()});
}

void TestFishInfo::shouldTellNothingThatWasTakenBack()
{
    FishInfo info;
    const QString name = info.fileName();
    QSignalSpy modified(&info, &FishInfo::modifiedChanged);
    QSignalSpy named(&info, &FishInfo::fileNameChanged);
    info.setModified(true);
    info.setFileName(QStringLiteral("a"));
    info.setModified(false);
    info.setFileName(name);
    QCoreApplication::processEvents();
    QCOMPARE(modified.count() + named.count(), 0);
}

void TestFishInfo::shouldTellWhenItIsSaved()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.json"));
    FishModel model;
    FishInfo *const info = loadDocument(model, QStringLiteral("A"));
    QSignalSpy saved(info, &FishInfo::fileSaved);
    QVERIFY(info->saveFile(path));
    QVERIFY(!info->saveFile(folder.path()));
    info->setAutoSaveFile(path);
    QVERIFY(info->saveTmpFile());
    QCoreApplication::processEvents();
    QCOMPARE(saved, (QList<QVariantList>{{path}}));
}

void TestFishInfo::shouldSurviveItsEndWhileItTells()
{
    auto *const info = new FishInfo;
    const QPointer<FishInfo> alive(info);
    bool isNameTold = false;
    connect(info, &FishInfo::modifiedChanged, this, [info] { delete info; });
    connect(info, &FishInfo::fileNameChanged, this, [&isNameTold] { isNameTold = true; });
    info->setModified(true);
    info->setFileName(QStringLiteral("a"));
    QCoreApplication::processEvents();
    QVERIFY(!alive);
    QVERIFY(!isNameTold);
}

void TestFishInfo::shouldTakeTheCanonicalNameOfAFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("effect.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("x")));
    QVERIFY(QFile::link(path, folder.filePath(QStringLiteral("link.json"))));
    FishInfo info;
    info.setModified(true);

    info.setCurrentFile(folder.filePath(QStringLiteral("./x/../link.json")));

    QCOMPARE(info.fileName(), QFileInfo(path).canonicalFilePath());
    QCOMPARE(info.autoSaveFile(), info.fileName());
    QVERIFY(!info.isUntitled());
    QVERIFY(!info.modified());
    QCOMPARE(info.userFriendlyCurrentFile(), QStringLiteral("effect.json"));
}

void TestFishInfo::shouldLoseItsNameToAMissingFile()
{
    FishInfo info;

    info.setCurrentFile(QStringLiteral("/nowhere/effect.json"));

    QCOMPARE(info.fileName(), QString());
    QCOMPARE(info.autoSaveFile(), QString());
    QVERIFY(!info.isUntitled());
}

void TestFishInfo::shouldStripNames_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");

    QTest::newRow("path") << QStringLiteral("/a/b/effect.json") << QStringLiteral("effect.json");
    QTest::newRow("name") << QStringLiteral("effect.json") << QStringLiteral("effect.json");
    QTest::newRow("folder") << QStringLiteral("/a/b/") << QString();
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("address") << QStringLiteral("http://x.org/d/effect.json")
                             << QStringLiteral("effect.json");
}

void TestFishInfo::shouldStripNames()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    FishInfo info;
    info.setFileName(path);

    QCOMPARE(info.strippedName(path), name);
    QCOMPARE(info.userFriendlyCurrentFile(), name);
}

void TestFishInfo::shouldForgetAModelThatDies()
{
    FishInfo info;
    auto model = std::make_unique<FishModel>();
    info.loadFish(documentFromText(QStringLiteral("A")), model.get());

    model.reset();

    QCOMPARE(info.model(), nullptr);
    QCOMPARE(treeToText(*info.treeItem()->childAtIndex(0)), QStringLiteral("A"));
}

void TestFishInfo::shouldEmptyItsTreeAndNothingElse()
{
    FishModel model;
    FishInfo *const info = loadDocument(model, QStringLiteral("A[a,b]"));
    info->setFileName(QStringLiteral("/x/effect.json"));
    info->setAutoSaveFile(QStringLiteral("/x/auto"));
    info->setModified(true);
    QVERIFY(info->addFishToHistory(model.index(0, 0)));
    const QString file = info->fileName();

    info->reset();

    QVERIFY(info->treeItem());
    QCOMPARE(info->treeItem()->childCount(), 0);
    QVERIFY(!info->modified());
    QCOMPARE(info->nodeCount(), 3);
    QCOMPARE(info->noParentNodeCount(), 0);
    QCOMPARE(info->fileName(), file);
    QCOMPARE(info->autoSaveFile(), QStringLiteral("/x/auto"));
    QCOMPARE(info->fishHistorys(), QStringList(QStringLiteral("u-A")));
    QCOMPARE(info->model(), &model);
}

void TestFishInfo::shouldEmptyItsTreeInNoModel()
{
    FishInfo info;
    info.loadFish(documentFromText(QStringLiteral("A[a]")), nullptr);
    info.setModified(true);

    info.reset();

    QCOMPARE(info.treeItem()->childCount(), 0);
    QVERIFY(!info.modified());
}

void TestFishInfo::shouldRememberTheLastFourSubjects()
{
    FishModel model;
    FishInfo *const info = loadDocument(model, QStringLiteral("A[b,c,d,e]"));

    for (const char *title : {"A", "b", "c", "d", "e"})
        QVERIFY(info->addFishToHistory(indexTitled(model, QString::fromLatin1(title))));

    QCOMPARE(info->fishHistorys(), QStringList({QStringLiteral("u-b"), QStringLiteral("u-c"),
                                                QStringLiteral("u-d"), QStringLiteral("u-e")}));
    QVERIFY(info->addFishToHistory(indexTitled(model, QStringLiteral("A"))));
    QCOMPARE(info->fishHistorys().size(), 4);
}

void TestFishInfo::shouldRememberASubjectOnce()
{
    FishModel model;
    FishInfo *const info = loadDocument(model, QStringLiteral("A[b,c]"));
    for (const char *title : {"A", "b", "c"})
        info->addFishToHistory(indexTitled(model, QString::fromLatin1(title)));
    const QStringList before = info->fishHistorys();

    QVERIFY(!info->addFishToHistory(indexTitled(model, QStringLiteral("A"))));

    QCOMPARE(info->fishHistorys(), before);
    QCOMPARE(before.first(), QStringLiteral("u-A"));
}

void TestFishInfo::shouldNotRememberWhatIsNoSubject()
{
    FishModel model;
    FishInfo *const info = loadDocument(model, QStringLiteral("A[b]"));
    FishModel other;
    loadDocument(other, QStringLiteral("B"));
    FishInfo withoutModel;

    QVERIFY(!info->addFishToHistory(QModelIndex()));
    QVERIFY(!info->addFishToHistory(other.index(0, 0)));
    QVERIFY(!withoutModel.addFishToHistory(model.index(0, 0)));

    QCOMPARE(info->fishHistorys(), QStringList());
    QCOMPARE(withoutModel.fishHistorys(), QStringList());
}

void TestFishInfo::shouldCountDirectChildrenWithoutParentTask()
{
    FishModel model;
    FishInfo *const info = loadDocument(model, QStringLiteral("A[b[x],c,d,e]"));
    nodeTitled(model, QStringLiteral("b"))->setPid(QString());
    nodeTitled(model, QStringLiteral("c"))->setPid(QStringLiteral("-1"));
    nodeTitled(model, QStringLiteral("d"))->setPid(QStringLiteral(""));
    nodeTitled(model, QStringLiteral("x"))->setPid(QString());

    info->updateNoParentNodeCount();

    QCOMPARE(info->noParentNodeCount(), 3);
    QCOMPARE(info->nodeCount(), 6);
}

void TestFishInfo::shouldCountNoneWithoutHead()
{
    FishInfo info;
    info.setNoParentNodeCount(7);
    info.updateNoParentNodeCount();
    QCOMPARE(info.noParentNodeCount(), 0);

    info.loadFish(documentFromText(QStringLiteral("A")), nullptr);
    info.setNoParentNodeCount(7);
    info.updateNoParentNodeCount();
    QCOMPARE(info.noParentNodeCount(), 0);
}

FISHBONE_TEST(TestFishInfo)

#include "tst_fishinfo.moc"
