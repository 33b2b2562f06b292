// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modelfollower.h>
#include <tests/support/signalrecorder.h>
#include <tests/support/sourcefolder.h>

#include <QAbstractItemModelTester>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace TestSupport;

namespace {

const char *const document = R"({"title": "Effect", "uuid": "e", "pid": "-1",
                                 "children": [{"title": "Man", "uuid": "m", "pid": "e"}]})";

} // namespace

/** Loading from text, files and templates. */
class TestFishModelLoading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLoadTextAsTheLastRow();
    void shouldLoadNothingFromBrokenDocuments_data();
    void shouldLoadNothingFromBrokenDocuments();
    void shouldLoadDocumentsWithoutANode_data();
    void shouldLoadDocumentsWithoutANode();
    void shouldLoadFiles();
    void shouldReportTheLoadedDocumentWhenAnotherOneFollowsAtOnce();
    void shouldSurviveTheUnloadingOfWhatHasJustBeenLoaded();
    void shouldReportFilesThatCannotBeOpened();
    void shouldLoadTheTemplateOfTheHost();
    void shouldLoadTemplatesWithoutAName();
    void shouldReloadADocument();
    void shouldReportReloadsThatFail();
    void shouldReloadADocumentOfAnotherModelThere();
    void shouldSurviveTheEndOfWhatIsReloaded();
    void shouldReloadADocumentOfNoModel();
    void shouldLoadWhatItSaved();

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QString makeFile(const char *name, const QByteArray &content) const;

    QTemporaryDir m_folder;
};

QString TestFishModelLoading::makeFile(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return written ? file.fileName() : QString();
}

void TestFishModelLoading::shouldLoadTextAsTheLastRow()
{
    FishModel model;
    const QAbstractItemModelTester tester(&model);
    const ModelFollower follower(model, 1);
    SignalRecorder signals(model, {QStringLiteral("fishLoaded"), QStringLiteral("rowsInserted")});
    loadDocument(model, QStringLiteral("A"));
    signals.take();

    FishInfo *const loaded = model.loadJsonFish(document);

    QCOMPARE(model.fishList().last(), loaded);
    QCOMPARE(follower.text(), QStringLiteral("u-A;e[m]"));
    QCOMPARE(signals.take(), QStringLiteral("rowsInserted(invalid, 1, 1)"));
    QCOMPARE(loaded->nodeCount(), 2);
    QCOMPARE(loaded->noParentNodeCount(), 0);
    QCOMPARE(loaded->model(), &model);
    QVERIFY(!loaded->modified());
    QVERIFY(loaded->isUntitled());
}

void TestFishModelLoading::shouldLoadNothingFromBrokenDocuments_data()
{
    QTest::addColumn<QString>("path");

    const QDir folder(TestSupport::sourceFile(QStringLiteral("tests/model/broken")));
    const QStringList names = folder.entryList(QDir::Files);
    QVERIFY(names.size() > 10);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void TestFishModelLoading::shouldLoadNothingFromBrokenDocuments()
{
    QFETCH(QString, path);
    FishModel model;
    loadDocument(model, QStringLiteral("A[a]"));
    const ModelFollower follower(model);
    SignalRecorder signals(model);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));

    QCOMPARE(model.loadJsonFish(file.readAll()), nullptr);
    QCOMPARE(model.loadFishFromFile(path), -10002);
    QCOMPARE(model.loadFishFromTemplate(path), -10002);
    QCOMPARE(model.reloadDataFromFile(path, model.fishList().first()), -10002);

    QCOMPARE(signals.take(), QString());
    QCOMPARE(treeToText(*model.getFishHeadTreeItem()), QStringLiteral("A[a]"));
    QCOMPARE(model.rowCount(), 1);
}

void TestFishModelLoading::shouldLoadDocumentsWithoutANode_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("array") << QByteArray("[]");
    QTest::newRow("array of nodes") << QByteArray(R"([{"title": "Effect"}])");
}

void TestFishModelLoading::shouldLoadDocumentsWithoutANode()
{
    QFETCH(QByteArray, json);
    FishModel model;

    FishInfo *const loaded = model.loadJsonFish(json);

    QVERIFY(loaded);
    QCOMPARE(model.fishList().last(), loaded);
    QCOMPARE(loaded->treeItem()->childCount(), 0);
    QCOMPARE(loaded->nodeCount(), 0);
    QVERIFY(!model.index(0, 0).isValid());
}

void TestFishModelLoading::shouldLoadFiles()
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(model, QStringLiteral("A"));
    SignalRecorder signals(model, {QStringLiteral("fishLoaded")});
    const QString file = makeFile("effect.json", document);

    QCOMPARE(model.loadFishFromFile(file), 0);

    QCOMPARE(signals.take(), QStringLiteral("fishLoaded(Effect, 0)"));
    QCOMPARE(model.fishList().last()->fileName(), file);
    QVERIFY(model.fishList().last()->isUntitled());
    QCOMPARE(model.findFish(file), model.index(1, 0));
}

void TestFishModelLoading::shouldReportTheLoadedDocumentWhenAnotherOneFollowsAtOnce()
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    const QString file = makeFile("effect.json", document);
    bool follows = false;
    connect(&model, &FishModel::rowsInserted, &model, [&model, &follows] {
        if (!std::exchange(follows, true))
            loadDocument(model, QStringLiteral("Follower"));
    });
    SignalRecorder signals(model, {QStringLiteral("fishLoaded")});

    QCOMPARE(model.loadFishFromFile(file), 0);

    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(signals.take(), QStringLiteral("fishLoaded(Effect, 0)"));
}

void TestFishModelLoading::shouldSurviveTheUnloadingOfWhatHasJustBeenLoaded()
{
    FishModel model;
    const QString file = makeFile("effect.json", document);
    connect(&model, &FishModel::rowsInserted, &model,
            [&model] { model.unloadFish(model.fishList().last()); });
    SignalRecorder signals(model, {QStringLiteral("fishLoaded")});

    QCOMPARE(model.loadJsonFish(document), nullptr);
    QVERIFY(model.loadFishFromFile(file) != MODEL_NO_ERROR);

    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(signals.take(), QString());
}

void TestFishModelLoading::shouldReportFilesThatCannotBeOpened()
{
    FishModel model;
    SignalRecorder signals(model);

    QCOMPARE(model.loadFishFromFile(path("missing.json")), -10001);
    QCOMPARE(model.loadFishFromFile(m_folder.path()), -10001);
    QTest::ignoreMessage(QtWarningMsg, "QFSFileEngine::open: No file name specified");
    QCOMPARE(model.loadFishFromFile(QString()), -10001);
    QCOMPARE(model.loadFishFromTemplate(path("missing.json")), -10001);
    QCOMPARE(model.reloadDataFromFile(path("missing.json"), nullptr), -10001);

    QCOMPARE(signals.take(), QString());
    QCOMPARE(model.rowCount(), 0);
}

void TestFishModelLoading::shouldLoadTheTemplateOfTheHost()
{
    FishModel model;
    SignalRecorder signals(model, {QStringLiteral("fishLoaded")});

    QCOMPARE(model.loadFishTempl(), 0);

    QFile resource(QStringLiteral(":/res/default.json"));
    QVERIFY(resource.open(QIODevice::ReadOnly));
    const QString title = QJsonDocument::fromJson(resource.readAll())
                              .object()
                              .value(QStringLiteral("title"))
                              .toString();
    QCOMPARE(model.getFishHeadTreeItem()->title(), title);
    QVERIFY(!title.isEmpty());
    QVERIFY(QRegularExpression(QStringLiteral("^fish\\d+\\.json$"))
                .match(model.fishList().first()->fileName())
                .hasMatch());
    QCOMPARE(signals.take(), QString());
}

void TestFishModelLoading::shouldLoadTemplatesWithoutAName()
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    SignalRecorder signals(model, {QStringLiteral("fishLoaded")});
    const QString file = makeFile("template.json", document);

    QCOMPARE(model.loadFishFromTemplate(file), 0);

    QCOMPARE(signals.take(), QStringLiteral("fishLoaded(Effect, 0)"));
    QVERIFY(model.fishList().first()->fileName() != file);
    QVERIFY(model.fishList().first()->isUntitled());
}

void TestFishModelLoading::shouldReloadADocument()
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    const QString file = makeFile("reload.json", document);
    QCOMPARE(model.loadFishFromFile(file), 0);
    FishInfo *const info = model.fishList().first();
    model.removeRows(0, 1, model.index(0, 0));
    info->setModified(true);
    const QPersistentModelIndex head = model.index(0, 0);
    const ModelFollower follower(model);
    QString whenAnnounced;
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this,
            [&model, &whenAnnounced] { whenAnnounced = treeToText(*model.getFishHeadTreeItem()); });
    SignalRecorder signals(model, {QStringLiteral("fishLoaded"), QStringLiteral("modelReset")});

    QCOMPARE(model.reloadDataFromFile(file, info), 0);

    QCOMPARE(whenAnnounced, QStringLiteral("Effect")); // still what the views knew
    QCOMPARE(follower.text(), QStringLiteral("Effect[Man]"));
    QCOMPARE(signals.take(), QStringLiteral("modelReset(), fishLoaded(Effect, 0)"));
    QVERIFY(!head.isValid());
    QVERIFY(!info->modified());
    QCOMPARE(info->fileName(), file);
    QCOMPARE(info->nodeCount(), 2);

    // Whatever else has that name, and whatever name it has itself.
    info->setFileName(QStringLiteral("elsewhere"));
    loadDocument(model, QStringLiteral("Other"))->setFileName(file);
    QCOMPARE(model.reloadDataFromFile(file, info), 0);
    QCOMPARE(signals.take(), QStringLiteral("modelReset(), fishLoaded(Effect, 0)"));
}

void TestFishModelLoading::shouldReportReloadsThatFail()
{
    FishModel model;
    FishInfo *const info = loadDocument(model, QStringLiteral("A[a]"));
    info->setModified(true);
    SignalRecorder signals(model);
    const QString broken = makeFile("broken.json", "{\"title\":");

    QCOMPARE(model.reloadDataFromFile(path("missing.json"), info), -10001);
    QCOMPARE(model.reloadDataFromFile(broken, info), -10002);
    QCOMPARE(model.reloadDataFromFile(broken, nullptr), -10002);
    QCOMPARE(model.reloadDataFromFile(makeFile("good.json", document), nullptr), -10003);

    QCOMPARE(signals.take(), QString());
    QCOMPARE(treeToText(*model.getFishHeadTreeItem()), QStringLiteral("A[a]"));
    QVERIFY(info->modified());
}

void TestFishModelLoading::shouldReloadADocumentOfAnotherModelThere()
{
    FishModel model;
    FishModel owner;
    owner.setModelType(FISH_MODEL_DIAGRAM);
    FishInfo *const info = loadDocument(owner, QStringLiteral("A[a]"));
    const ModelFollower follower(owner);

    QSignalSpy loaded(&model, &FishModel::fishLoaded);
    QCOMPARE(model.reloadDataFromFile(makeFile("other.json", document), info), 0);

    QCOMPARE(loaded.count(), 1);
    QCOMPARE(loaded.first().first().toModelIndex(), owner.index(0, 0));
    QCOMPARE(follower.text(), QStringLiteral("Effect[Man]"));
    QCOMPARE(info->model(), &owner);
    QCOMPARE(model.rowCount(), 0);
}

void TestFishModelLoading::shouldSurviveTheEndOfWhatIsReloaded()
{
    const QString file = makeFile("reload.json", document);
    FishModel model;
    QCOMPARE(model.loadFishFromFile(file), 0);
    FishInfo *const info = model.fishList().first();
    QSignalSpy loaded(&model, &FishModel::fishLoaded);
    const auto connection = connect(&model, &QAbstractItemModel::modelReset, this,
                                    [&model, info] { model.unloadFish(info); });
    QCOMPARE(model.reloadDataFromFile(file, info), 0);
    disconnect(connection);
    QCOMPARE(loaded.count(), 1);
    QVERIFY(!loaded.first().first().toModelIndex().isValid());

    FishModel owner;
    auto ending = std::make_unique<FishModel>();
    FishInfo *const other = loadDocument(owner, QStringLiteral("A"));
    connect(&owner, &QAbstractItemModel::modelReset, this, [&ending] { ending.reset(); });
    QCOMPARE(ending->reloadDataFromFile(file, other), 0);
    QCOMPARE(treeToText(*other->treeItem()->childAtIndex(0)), QStringLiteral("Effect[Man]"));
}

void TestFishModelLoading::shouldReloadADocumentOfNoModel()
{
    FishModel model;
    FishInfo loose;
    QSignalSpy loaded(&model, &FishModel::fishLoaded);

    QCOMPARE(model.reloadDataFromFile(makeFile("loose.json", document), &loose), 0);

    QCOMPARE(treeToText(*loose.treeItem()->childAtIndex(0)), QStringLiteral("Effect[Man]"));
    QCOMPARE(loose.model(), &model);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(loaded.count(), 1);
    QVERIFY(!loaded.first().first().toModelIndex().isValid()); // it is in no row
}

void TestFishModelLoading::shouldLoadWhatItSaved()
{
    for (quint32 seed = 1; seed <= 5; ++seed) {
        FishModel model;
        FishInfo *const info = loadDocument(model, randomDocument(seed, {80}));
        QVERIFY(info->saveFile(path("saved.json")));

        QCOMPARE(model.loadFishFromFile(path("saved.json")), 0);
        FishInfo *const again = model.fishList().last();

        QCOMPARE(treeToText(*again->treeItem()->childAtIndex(0)),
                 treeToText(*info->treeItem()->childAtIndex(0)));
        QCOMPARE(treeToText(model, model.index(1, 0), 1), treeToText(model, model.index(0, 0), 1));
        QVERIFY(again->saveFile(path("again.json")));
        QFile first(path("saved.json"));
        QFile second(path("again.json"));
        QVERIFY(first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly));
        const QByteArray bytes = first.readAll();
        QCOMPARE(second.readAll(), bytes);
        QVERIFY(bytes.contains("\n    \"children\": [\n"));
    }
}

FISHBONE_TEST(TestFishModelLoading)

#include "tst_fishmodel_loading.moc"
