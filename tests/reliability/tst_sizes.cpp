// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Diagrams of sizes and with titles at the edge: shown, edited, saved and read again.
//
// FISHBONE_LONG_TESTS makes the largest ones a million subjects in all and 100,000 under one.

#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/filecontent.h>

#include <QAbstractItemModelTester>
#include <QBuffer>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/model/jsonnodes.h>

#include <malloc.h>
#include <sys/resource.h>

#include <ctime>

using namespace TestSupport;

namespace {
using TestSupport::contentOf;

bool isLong()
{
    return qEnvironmentVariableIsSet("FISHBONE_LONG_TESTS");
}

/** A tree of @p count subjects in which each has @p width children at most. */
std::unique_ptr<TreeItem> makeBush(int count, int width)
{
    auto top = std::make_unique<TreeItem>();
    std::vector<TreeItem *> nodes{top.get()};
    top->setTitle(QStringLiteral("bush"));
    top->setUuid(QStringLiteral("b"));
    for (int i = 1; i < count; ++i) {
        TreeItem *const parent = nodes[std::size_t((i - 1) / width)];
        auto node = std::make_unique<TreeItem>();
        node->setTitle(QString::number(i));
        node->setUuid(QStringLiteral("b%1").arg(i));
        nodes.push_back(node.get());
        parent->insertChildAtPosition(parent->childCount(), node.release());
    }
    return top;
}

const TreeItem *lastBelow(const TreeItem *node)
{
    while (node->childCount() > 0)
        node = node->childAtIndex(node->childCount() - 1);
    return node;
}

/** The most memory that this process has had so far, in MiB. */
long mostMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

/** The bytes that are on the heap; 0 where another one than the system's has them. */
double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

/**
 * Lets events through after each step, as between those of a user, and tells how long it took and
 * what it needed, when asked for the long form. Qt keeps a list of the items that had no events
 * yet, and looks through all of it for each one that goes.
 */
class Steps
{
public:
    Steps() { m_timer.start(); }

    void done(const char *what)
    {
        QCoreApplication::processEvents();
        if (isLong())
            qInfo("%s: %lld ms, %ld MiB", what, m_timer.restart(), mostMemory());
    }

private:
    QElapsedTimer m_timer;
};

} // namespace

class TestSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDoEverythingWithOneSubject();
    void shouldShowAndSave_data();
    void shouldShowAndSave();
    void shouldRefuseToSaveWhatCouldNotBeReadAgain();
    void shouldKeepAnyTitle_data();
    void shouldKeepAnyTitle();
    void shouldDrawAWholeTitle_data();
    void shouldDrawAWholeTitle();

private:
    QString path() const { return m_folder.filePath(QStringLiteral("document.json")); }
    /** Saves the first document, reads it and saves that: what is wrong with it, if anything. */
    QString savingFault(const FishModel &model);

    QTemporaryDir m_folder;
};

QString TestSizes::savingFault(const FishModel &model)
{
    if (!model.fishList().first()->saveFile(path()))
        return QStringLiteral("not saved");
    const QByteArray first = contentOf(path());
    FishModel again;
    if (again.loadFishFromFile(path()) != MODEL_NO_ERROR)
        return QStringLiteral("not read again");
    if (treeToText(*again.getFishHeadTreeItem()) != treeToText(*model.getFishHeadTreeItem()))
        return QStringLiteral("read with other subjects");
    if (!again.fishList().first()->saveFile(path()))
        return QStringLiteral("not saved again");
    return contentOf(path()) == first ? QString() : QStringLiteral("saved differently");
}

void TestSizes::shouldDoEverythingWithOneSubject()
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(model, QStringLiteral("Alone"))->setAutoSaveFile(path());
    const QAbstractItemModelTester tester(&model);
    FishEditor editor;
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    QVERIFY(editor.headSpear());
    editor.headSpear()->setSelected(true);
    const QByteArrayList slots{"insertSubject",
                               "appendSubject",
                               "insertParentSubject",
                               "del",
                               "cut",
                               "copy",
                               "paste",
                               "undo",
                               "redo",
                               "expandAll",
                               "contractAll",
                               "showEntire",
                               "showSelected",
                               "selectAll",
                               "modifyDelLink",
                               "modifyExpand",
                               "modifyContract",
                               "insertChildSubject",
                               "undo",
                               "redo",
                               "saveTmpFile"};
    for (const QByteArray &slot : slots) {
        QVERIFY2(QMetaObject::invokeMethod(&editor, slot.constData()), slot.constData());
        QCOMPARE(spearFault(model), QString());
        QVERIFY(editor.headSpear());
    }
    QCOMPARE(savingFault(model), QString());
}

void TestSizes::shouldShowAndSave_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("width");

    QTest::newRow("depth of 500") << 500 << 1;
    QTest::newRow("as deep as can be saved") << JsonNodes::readableLevels << 1;
    QTest::newRow("all under one") << (isLong() ? 100001 : 5001) << (isLong() ? 100000 : 5000);
    QTest::newRow("many") << (isLong() ? 1000000 : 10000) << 8;
}

void TestSizes::shouldShowAndSave()
{
    QFETCH(int, count);
    QFETCH(int, width);
    Steps steps;
    FishModel model;
    addDocument(model, makeBush(count, width));
    model.fishList().first()->setModel(&model);
    steps.done("made");
    const QString fault = savingFault(model);
    QCOMPARE(fault, QString());
    steps.done("saved, loaded and saved");
    {
        FishEditor editor;
        editor.resize(800, 600);
        editor.setModel(&model);
        const QModelIndex head = model.index(0, 0);
        editor.setRootIndex(head);
        steps.done("shown");
        const double before = bytesInUse();
        editor.expandAll();
        steps.done("expanded");
        // A million are to fit beside what else a usual machine has to hold; of few bones, what all
        // share would count as theirs.
        constexpr int mostBytesOfABone = 6000;
        constexpr int many = 5000;
        QVERIFY(count < many || (bytesInUse() - before) / count < mostBytesOfABone);
        QCOMPARE(spearFault(model), QString());
        const TreeItem *const last = lastBelow(model.getTreeItem(editor.rootIndex()));
        QVERIFY(last->spear());
        editor.scene()->clearSelection();
        last->spear()->setSelected(true);
        const QString parentUuid = last->parent()->uuid();
        const int children = last->parent()->childCount();
        editor.del();
        QCOMPARE(int(allNodes(model).size()), count - 1);
        steps.done("deleted one");
        editor.undo();
        QCOMPARE(int(allNodes(model).size()), count);
        QCOMPARE(model.rowCount(model.modelIndexByUuid(parentUuid)), children);
        steps.done("taken back");
        editor.contractAll();
        editor.updateFish(true);
        QCOMPARE(spearFault(model), QString());
        steps.done("contracted and drawn anew");
    }
    steps.done("closed");
}

void TestSizes::shouldRefuseToSaveWhatCouldNotBeReadAgain()
{
    FishModel model;
    addDocument(model, makeBush(JsonNodes::readableLevels, 1));
    FishInfo *const document = model.fishList().first();
    document->setModel(&model);
    FishEditor editor;
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    editor.expandAll();
    QVERIFY(document->saveFile(path()));
    document->setAutoSaveFile(path());
    const QByteArray old = contentOf(path());

    allNodes(model).back()->spear()->setSelected(true);
    editor.insertChildSubject();
    QCOMPARE(int(allNodes(model).size()), JsonNodes::readableLevels + 1);
    QVERIFY(!document->saveFile(path()));
    QVERIFY(!document->saveTmpFile());
    QCOMPARE(contentOf(path()), old);
    const QList<DiagramExchange::Format> formats = DiagramExchange::formats();
    for (const DiagramExchange::Format format : formats) {
        QString error;
        QVERIFY(!DiagramExchange::writeFile(path(), *model.getFishHeadTreeItem(), format, &error));
        QVERIFY2(error.contains(QStringLiteral("512")), qPrintable(error));
        QCOMPARE(contentOf(path()), old);
    }

    editor.undo();
    QVERIFY(document->saveFile(path()));
    QCOMPARE(contentOf(path()), old);

    // A style nests deeper than the subject that owns it.
    QJsonObject style{{QStringLiteral("spearStates"),
                       QJsonArray{QJsonObject{
                           {QStringLiteral("textColor"), QJsonObject{{QStringLiteral("r"), 1}}}}}}};
    allNodes(model).back()->setSpearStyle(style);
    QVERIFY(!document->saveFile(path()));
    QCOMPARE(contentOf(path()), old);
}

void TestSizes::shouldKeepAnyTitle_data()
{
    QTest::addColumn<QString>("title");

    QString everyUnit;
    for (int unit = 1; unit <= 0xffff; ++unit) {
        if (!QChar::isSurrogate(uint(unit)) && unit != QChar::ByteOrderMark)
            everyUnit.append(QChar(unit));
    }
    QTest::newRow("empty") << QString();
    QTest::newRow("a megabyte") << QString(1 << 20, QLatin1Char('w'));
    QTest::newRow("a megabyte of lines") << QStringLiteral("a\n").repeated(1 << 19);
    QTest::newRow("every unit of UTF-16") << everyUnit;
    QTest::newRow("right to left") << QString::fromUtf8("\u202eגורם\u202c שני \u2067abc\u2069");
    QTest::newRow("combining") << QStringLiteral("e") + QString(5000, QChar(0x0301));
    QTest::newRow("emoji")
        << QString::fromUtf8("👩‍👩‍👧‍👦🏳️‍🌈🇪🇺").repeated(200);
    QTest::newRow("control characters") << QStringLiteral("\x01\x02\x1b[31m\x7f\x85\t\v\f\r\n");
    QTest::newRow("null character") << QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    QTest::newRow("half characters") << QString(QChar(0xd83d)) + QChar(0x41) + QChar(0xdc00);
    QTest::newRow("markup") << QStringLiteral("<b>&lt;</b><img src='file:///etc/passwd'>%1%2");
}

void TestSizes::shouldKeepAnyTitle()
{
    QFETCH(QString, title);
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(model, QStringLiteral("Effect[Man[Rest],Machine]"));
    const QAbstractItemModelTester tester(&model);
    FishEditor editor;
    editor.resize(800, 600);
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    editor.expandAll();
    for (const char *const old : {"Effect", "Man", "Rest"}) {
        const QModelIndex index = indexTitled(model, QString::fromLatin1(old));
        editor.renameItem(index, title);
        QCOMPARE(model.getTreeItem(index)->title(), title);
        editor.undo();
        QCOMPARE(model.getTreeItem(index)->title(), QString::fromLatin1(old));
        editor.redo();
    }
    QCOMPARE(model.searchModelIndexes(title).size(), title.isEmpty() ? 4 : 3);
    QCOMPARE(spearFault(model), QString());
    editor.grab();
    QCOMPARE(savingFault(model), QString());
    FishModel again;
    QCOMPARE(again.loadFishFromFile(path()), int(MODEL_NO_ERROR));
    QCOMPARE(allNodes(again)[1]->title(), title);
}

void TestSizes::shouldDrawAWholeTitle_data()
{
    shouldKeepAnyTitle_data();
}

void TestSizes::shouldDrawAWholeTitle()
{
    QFETCH(QString, title);
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(model, QStringLiteral("Effect[Man]"));
    // Below 1 a style shows all characters of a title.
    nodeTitled(model, QStringLiteral("Man"))
        ->setSpearStyle(QJsonObject{{QStringLiteral("textCount"), 0}});
    FishEditor editor;
    editor.resize(400, 300);
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    const std::clock_t start = std::clock();
    editor.renameItem(indexTitled(model, QStringLiteral("Man")), title);
    editor.showEntire();
    QImage picture(200, 150, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    editor.scene()->render(&painter);
    painter.end();
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC; // whoever else is at work
    QVERIFY2(seconds < 30, qPrintable(QString::number(seconds)));
    QCOMPARE(spearFault(model), QString());
}

FISHBONE_TEST(TestSizes)
#include "tst_sizes.moc"
