// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QtTest>

#include <fishbone/undo/subjectfinder.h>
#include <fishbone/undo/subjectlookup.h>
#include <fishbone/undo/subjectspears.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/drawingtext.h>

using namespace TestSupport;

namespace {
/** A model that tells when it is searched in the slow way. */
class MatchCounter : public FishModel
{
public:
    QModelIndexList match(const QModelIndex &start, int role, const QVariant &value, int hits,
                          Qt::MatchFlags flags) const override
    {
        ++matches;
        return FishModel::match(start, role, value, hits, flags);
    }
    mutable int matches = 0;
};
} // namespace

class TestSubjectLookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKnowWhatNamesNoSubject();
    void shouldGiveTheUuidOfAnIndex();
    void shouldGiveTheUuidThatAnyModelShows();
    void shouldGiveUuidsOnlyWhereThereAreNone();
    void shouldNameNoContainer();

    void shouldFindByUuid_data();
    void shouldFindByUuid();
    void shouldFindTheWantedColumn();
    void shouldPreferTheDocumentToOthers();
    void shouldFindInAnyModelThatShowsUuids_data();
    void shouldFindInAnyModelThatShowsUuids();
    void shouldSkipDocumentsWithoutAHead();
    void shouldNotSearchTheModelInTheSlowWay();
    void shouldFindInATreeOfAnyDepth();

    void shouldPreferTheVeryNode();
    void shouldPreferTheVeryNodeInAnotherDocument();
    void shouldNotDereferenceTheNode();
    void shouldKnowTheNodeByTheEndingOfItsUuid();
    void shouldNotTakeAnotherNodeByTheEndingOfItsUuid();

    void shouldReadTheSubjectsOfASnapshot_data();
    void shouldReadTheSubjectsOfASnapshot();

    void shouldFindManyAsOne();
    void shouldLeaveOutWhatIsExcepted();
    void shouldSettleWhichSubjectsNamesMean();
    void shouldFindTheUpperOnesOfNestedSubjects_data();
    void shouldFindTheUpperOnesOfNestedSubjects();
    void shouldLeaveOutWhatHasLeftTheModel();
    void shouldFindWhatHasComeBack();

    void shouldMakeMissingSpearsInRowOrder();
    void shouldNotLookBelowSpearsThatThereAre();
};

void TestSubjectLookup::shouldKnowWhatNamesNoSubject()
{
    QVERIFY(!TreeItem::isIdentity(QString()));
    QVERIFY(!TreeItem::isIdentity(QStringLiteral("")));
    QVERIFY(!TreeItem::isIdentity(QStringLiteral("-1")));
    QVERIFY(TreeItem::isIdentity(QStringLiteral("1")));
    QVERIFY(TreeItem::isIdentity(QStringLiteral("-11")));
}

void TestSubjectLookup::shouldGiveTheUuidOfAnIndex()
{
    CommandFixture f(QStringLiteral("H[A]"));
    QCOMPARE(uuidFromIndex(f.index("A")), QStringLiteral("u-A"));
    QCOMPARE(uuidFromIndex(f.index("A").siblingAtColumn(4)), QStringLiteral("u-A"));
    QCOMPARE(uuidFromIndex(f.index("H")), QStringLiteral("u-H"));
    QCOMPARE(uuidFromIndex(QModelIndex()), QStringLiteral("-1"));
}

void TestSubjectLookup::shouldGiveTheUuidThatAnyModelShows()
{
    CommandFixture f(QStringLiteral("H[A]"));
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(f.model.get());
    QCOMPARE(uuidFromIndex(proxy.index(0, 0, proxy.index(0, 0))), QStringLiteral("u-A"));
    QStandardItemModel plain(1, 1);
    QCOMPARE(uuidFromIndex(plain.index(0, 0)), QStringLiteral("-1"));
    QVERIFY(!itemFromIndex(plain.index(0, 0)));
    QVERIFY(!itemFromIndex(proxy.index(0, 0)));
}

void TestSubjectLookup::shouldGiveUuidsOnlyWhereThereAreNone()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.node("A")->setUuid(QString());
    const SubjectKey key = keyFromIndex(f.index("a"));
    QCOMPARE(key.uuid, QStringLiteral("u-a"));
    QCOMPARE(key.document, f.document(0));
    QCOMPARE(key.node.get(), f.node("a"));
    QCOMPARE(f.node("A")->uuid().size(), 38);
    QCOMPARE(f.node("a")->pid(), QStringLiteral("u-A"));
    QCOMPARE(keyFromIndex(QModelIndex()).uuid, QStringLiteral("-1"));
    QCOMPARE(keyFromIndex(QModelIndex()).document, nullptr);
}

void TestSubjectLookup::shouldNameNoContainer()
{
    CommandFixture f(QStringLiteral("H[A]"));
    f.node("H")->setUuid(QString());
    keyFromIndex(f.index("H"));
    QCOMPARE(f.node("H")->uuid().size(), 38);
    QCOMPARE(f.document(0)->treeItem()->uuid(), QStringLiteral("-1"));
}

void TestSubjectLookup::shouldFindByUuid_data()
{
    QTest::addColumn<QString>("uuid");
    QTest::addColumn<QString>("title");
    const auto row = [](const char *name, const char *uuid, const char *title) {
        QTest::newRow(name) << QString::fromLatin1(uuid) << QString::fromLatin1(title);
    };
    row("head", "h", "H");
    row("exact before an earlier ending", "1", "C");
    row("exact deep down", "11", "b");
    row("another document", "21", "D");
    row("first in pre-order", "twice", "b2");
    row("ending", "-tail", "b2tail");
    row("ending in another case", "-TAIL", "b2tail");
    row("ending in pre-order", "l", "b2tail");
    row("beginning only", "with", "");
    row("none", "-1", "");
    row("empty", "", "");
    row("unknown", "unknown", "");
    row("exact only in its case", "H", "H");
}

void TestSubjectLookup::shouldFindByUuid()
{
    QFETCH(QString, uuid);
    QFETCH(QString, title);
    CommandFixture f(QStringLiteral("H[A[b2,b],b2tail,C];G[D,E]"));
    f.node("H")->setUuid(QStringLiteral("h"));
    f.node("A")->setUuid(QString());
    f.node("b2")->setUuid(QStringLiteral("twice"));
    f.node("b")->setUuid(QStringLiteral("11"));
    f.node("b2tail")->setUuid(QStringLiteral("with-tail"));
    f.node("C")->setUuid(QStringLiteral("1"));
    f.node("D")->setUuid(QStringLiteral("21"));
    f.node("G")->setUuid(QStringLiteral("-1"));
    f.node("E")->setUuid(QStringLiteral("twice"));

    const QModelIndex found = indexFromUuid(f.model.get(), uuid);

    QCOMPARE(found.isValid(), !title.isEmpty());
    QCOMPARE(found.data().toString(), title);
    // What Qt's own search would find by the ending agrees where nothing matches exactly.
    const auto *const exact = f.model->getTreeItem(f.model->modelIndexByUuid(uuid));
    if (!exact && TreeItem::isIdentity(uuid)) {
        const QModelIndexList hits = f.model->match(f.model->index(0, 1), Qt::DisplayRole, uuid, 1,
                                                    Qt::MatchRecursive | Qt::MatchEndsWith);
        QCOMPARE(found, hits.value(0).siblingAtColumn(0));
    }
}

void TestSubjectLookup::shouldFindTheWantedColumn()
{
    CommandFixture f(QStringLiteral("H[A]"));
    QCOMPARE(indexFromUuid(f.model.get(), QStringLiteral("u-A"), 3),
             f.index("A").siblingAtColumn(3));
    QCOMPARE(indexFromUuid(nullptr, QStringLiteral("u-A")), QModelIndex());
}

void TestSubjectLookup::shouldPreferTheDocumentToOthers()
{
    CommandFixture f(QStringLiteral("H[A];H[A,xu-B];G[B]"));
    const auto rowOf = [&f](const char *uuid, int document) {
        const QModelIndex found = indexFromUuid(f.model.get(), QLatin1String(uuid), 0,
                                                document < 0 ? nullptr : f.document(document));
        return f.model->fishRow(f.model->fishOf(f.model->getTreeItem(found)));
    };
    QCOMPARE(rowOf("u-A", -1), 0);
    QCOMPARE(rowOf("u-A", 0), 0);
    QCOMPARE(rowOf("u-A", 1), 1);
    QCOMPARE(rowOf("u-A", 2), 0);
    QCOMPARE(rowOf("u-B", 1), 2); // exactly elsewhere before the ending here
    const std::unique_ptr<FishInfo> taken(f.model->takeFish(1));
    QCOMPARE(f.model->fishRow(f.model->fishOf(f.model->getTreeItem(
                 indexFromUuid(f.model.get(), QStringLiteral("u-A"), 0, taken.get())))),
             0);
}

void TestSubjectLookup::shouldFindInAnyModelThatShowsUuids_data()
{
    QTest::addColumn<QString>("uuid");
    QTest::addColumn<QString>("expected");
    QTest::newRow("exact before an earlier ending") << QStringLiteral("1") << QStringLiteral("one");
    QTest::newRow("deep") << QStringLiteral("21") << QStringLiteral("below");
    QTest::newRow("ending") << QStringLiteral("leven") << QStringLiteral("eleven");
    QTest::newRow("none") << QStringLiteral("-1") << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("unknown") << QStringLiteral("x") << QString();
}

void TestSubjectLookup::shouldFindInAnyModelThatShowsUuids()
{
    QFETCH(QString, uuid);
    QFETCH(QString, expected);
    QStandardItemModel model(0, 2);
    const auto row = [](const char *title, const char *shown) {
        return QList<QStandardItem *>{new QStandardItem(QLatin1String(title)),
                                      new QStandardItem(QLatin1String(shown))};
    };
    model.appendRow(row("eleven", "11-eleven"));
    model.appendRow(row("one-one", "11"));
    model.appendRow(row("one", "1"));
    model.item(0)->appendRow(row("below", "21"));
    QCOMPARE(indexFromUuid(&model, uuid).data().toString(), expected);
    QCOMPARE(indexFromUuid(&model, uuid, 1).isValid(), !expected.isEmpty());
}

void TestSubjectLookup::shouldSkipDocumentsWithoutAHead()
{
    FishModel model;
    loadDocument(model, QJsonObject());
    loadDocument(model, QStringLiteral("H[A]"));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(indexFromUuid(&model, QStringLiteral("u-A")).data().toString(), QStringLiteral("A"));
    QCOMPARE(indexFromUuid(&model, QStringLiteral("A")).data().toString(), QStringLiteral("A"));
    QVERIFY(findSubject(model, {QStringLiteral("u-A"), nullptr, nullptr}));
}

void TestSubjectLookup::shouldNotSearchTheModelInTheSlowWay()
{
    MatchCounter model;
    loadDocument(model, QStringLiteral("H[A]"));
    QVERIFY(indexFromUuid(&model, QStringLiteral("u-A")).isValid());
    QVERIFY(indexFromUuid(&model, QStringLiteral("A")).isValid());
    QVERIFY(!indexFromUuid(&model, QStringLiteral("x")).isValid());
    QCOMPARE(model.matches, 0);
}

void TestSubjectLookup::shouldFindInATreeOfAnyDepth()
{
    FishModel model;
    const TreeItem *last = addDocument(model, makeChain(100000));
    while (last->childCount() > 0)
        last = last->childAtIndex(0);
    QCOMPARE(model.getTreeItem(indexFromUuid(&model, last->uuid())), last);
    QCOMPARE(findSubject(model, {last->uuid(), nullptr, nullptr}), last);
}

void TestSubjectLookup::shouldPreferTheVeryNode()
{
    CommandFixture f(QStringLiteral("H[A,B];H[A]"));
    f.node("B")->setUuid(QStringLiteral("u-A"));
    const SubjectKey key = keyFromIndex(f.index("B"));
    QCOMPARE(findSubject(*f.model, key), f.node("B"));
    QCOMPARE(indexFromKey(f.model.get(), key), f.index("B"));
    QCOMPARE(SubjectFinder(*f.model, {key}).find(key), f.node("B"));
}

void TestSubjectLookup::shouldPreferTheVeryNodeInAnotherDocument()
{
    CommandFixture f(QStringLiteral("H[A,B];G"));
    f.node("B")->setUuid(QStringLiteral("u-A"));
    const SubjectKey key = keyFromIndex(f.index("B"));
    f.model->moveRows(f.index("H"), 1, 1, f.index("G"), 0);
    QCOMPARE(findSubject(*f.model, key), f.node("B"));
    QCOMPARE(SubjectFinder(*f.model, {key}).find(key), f.node("B"));
}

void TestSubjectLookup::shouldNotDereferenceTheNode()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    const SubjectKey key = keyFromIndex(f.index("A"));
    f.model->removeRows(0, 1, f.index("H"));
    QVERIFY(!findSubject(*f.model, key));
    QVERIFY(!SubjectFinder(*f.model, {key}).find(key));
    f.node("B")->setUuid(QStringLiteral("u-A"));
    QCOMPARE(findSubject(*f.model, key), f.node("B"));
    QCOMPARE(SubjectFinder(*f.model, {key}).find(key), f.node("B"));
}

void TestSubjectLookup::shouldKnowTheNodeByTheEndingOfItsUuid()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    const SubjectKey key = keyFromIndex(f.index("B"));
    f.node("B")->setUuid(QStringLiteral("x-u-B"));
    QCOMPARE(findSubject(*f.model, key), f.node("B"));
    f.node("B")->setUuid(QStringLiteral("u-B-x"));
    QVERIFY(!findSubject(*f.model, key));
}

void TestSubjectLookup::shouldNotTakeAnotherNodeByTheEndingOfItsUuid()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    const SubjectKey key = keyFromIndex(f.index("A"));
    f.model->removeRows(0, 1, f.index("H"));
    f.node("B")->setUuid(QStringLiteral("x-u-A"));
    QVERIFY(!findSubject(*f.model, key));
    SubjectFinder finder(*f.model, {key});
    QVERIFY(!finder.find(key));
    QCOMPARE(finder.findNamed(key, {}), f.node("B"));
}

void TestSubjectLookup::shouldReadTheSubjectsOfASnapshot_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QStringList>("uuids");
    QTest::newRow("empty") << QByteArray("{}") << QStringList();
    QTest::newRow("one") << QByteArray(R"({"uuid": "1", "children": [{"uuid": "2"}]})")
                         << QStringList{QStringLiteral("1")};
    QTest::newRow("one without name")
        << QByteArray(R"({"uuid": "", "children": [{"uuid": "2"}]})") << QStringList{QString()};
    QTest::newRow("one with a number for a name")
        << QByteArray(R"({"uuid": 7, "children": [{"uuid": "2"}]})") << QStringList{QString()};
    QTest::newRow("several") << QByteArray(R"({"children": [{"uuid": "2"}, {"uuid": "1"}]})")
                             << QStringList{QStringLiteral("2"), QStringLiteral("1")};
    QTest::newRow("several with a null")
        << QByteArray(R"({"uuid": null, "children": [{"uuid": "2"}, 3]})")
        << QStringList{QStringLiteral("2"), QString()};
    QTest::newRow("no array") << QByteArray(R"({"children": {"uuid": "2"}})") << QStringList();
}

void TestSubjectLookup::shouldReadTheSubjectsOfASnapshot()
{
    QFETCH(QByteArray, json);
    QFETCH(QStringList, uuids);
    const QJsonObject objects = QJsonDocument::fromJson(json).object();
    QStringList read;
    const QVector<SubjectKey> keys = snapshotKeys(objects, {});
    for (const SubjectKey &key : keys)
        read.append(key.uuid);
    QCOMPARE(read, uuids);
    QCOMPARE(snapshotSubjects(objects).size(), uuids.size());
}

void TestSubjectLookup::shouldFindManyAsOne()
{
    CommandFixture f(QStringLiteral("H[A[a,b],B];H[A,C];G"));
    f.node("b")->setUuid(QStringLiteral("u-A"));
    f.node("B")->setUuid(QStringLiteral("-1"));
    QVector<SubjectKey> keys;
    for (TreeItem *node : allNodes(*f.model)) {
        for (FishInfo *document :
             {f.document(0), f.document(1), static_cast<FishInfo *>(nullptr)}) {
            keys.append({node->uuid(), document, nullptr});
            keys.append({node->uuid(), document, node});
        }
    }
    SubjectFinder finder(*f.model, keys);
    for (const SubjectKey &key : qAsConst(keys)) {
        QCOMPARE(finder.find(key), findSubject(*f.model, key));
        QCOMPARE(finder.findNamed(key, {}), findSubject(*f.model, key));
    }
}

void TestSubjectLookup::shouldLeaveOutWhatIsExcepted()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    f.node("B")->setUuid(QStringLiteral("u-A"));
    f.node("C")->setUuid(QStringLiteral("xu-a"));
    const SubjectKey key{QStringLiteral("u-A"), nullptr, f.node("A")};
    SubjectFinder finder(*f.model, {key});
    QCOMPARE(finder.findNamed(key, {}), f.node("A"));
    QCOMPARE(finder.findNamed(key, {f.node("A")}), f.node("B"));
    QVERIFY(!finder.findNamed(key, {f.node("A"), f.node("B")})); // C only ends with it
}

void TestSubjectLookup::shouldSettleWhichSubjectsNamesMean()
{
    CommandFixture f(QStringLiteral("H[A,B,C,D]"));
    f.node("B")->setUuid(QStringLiteral("u-A"));
    f.node("C")->setUuid(QStringLiteral("xu-a"));
    f.node("D")->setUuid(QStringLiteral("first-tail"));
    const QString uuid = QStringLiteral("u-A");
    const QVector<SubjectKey> keys =
        resolveNames(*f.model, {{uuid, nullptr, nullptr},
                                {uuid, nullptr, nullptr},
                                {uuid, nullptr, nullptr},
                                {QStringLiteral("TAIL"), nullptr, nullptr}});
    QCOMPARE(keys.size(), 4);
    QCOMPARE(keys[0].node.get(), f.node("A"));
    QCOMPARE(keys[1].node.get(), f.node("B"));
    QVERIFY(!keys[2].node.get());
    QCOMPARE(keys[3].node.get(), f.node("D"));
    QCOMPARE(keys[3].uuid, QStringLiteral("first-tail"));
    QCOMPARE(findTopSubjects(*f.model, keys),
             QVector<TreeItem *>({f.node("A"), f.node("B"), nullptr, f.node("D")}));
}

void TestSubjectLookup::shouldFindTheUpperOnesOfNestedSubjects_data()
{
    QTest::addColumn<QStringList>("titles");
    QTest::addColumn<QStringList>("tops");
    const auto row = [](const char *name, const char *titles, const char *tops) {
        QTest::newRow(name) << QString::fromLatin1(titles).split(QLatin1Char(' '))
                            << QString::fromLatin1(tops).split(QLatin1Char(' '));
    };
    row("apart", "A B", "A B");
    row("upper first", "A x", "A -");
    row("lower first", "x A", "- A");
    row("chain", "a A x B", "- A - B");
    row("head", "B H x", "- H -");
    row("twice", "A A", "A -");
}

void TestSubjectLookup::shouldFindTheUpperOnesOfNestedSubjects()
{
    QFETCH(QStringList, titles);
    QFETCH(QStringList, tops);
    CommandFixture f(QStringLiteral("H[A[a[x]],B];G[x]"));
    QVector<SubjectKey> keys;
    for (const QString &title : qAsConst(titles))
        keys.append(keyFromItem(*f.model, nodeTitled(*f.model, title)));
    QStringList found;
    const QVector<TreeItem *> subjects = findTopSubjects(*f.model, keys);
    for (const TreeItem *subject : subjects)
        found.append(subject ? subject->title() : QStringLiteral("-"));
    QCOMPARE(found, tops);
}

void TestSubjectLookup::shouldLeaveOutWhatHasLeftTheModel()
{
    CommandFixture f(QStringLiteral("H[A[a]]"));
    const SubjectKey key = keyFromIndex(f.index("a"));
    SubjectFinder finder(*f.model, {key});
    QCOMPARE(finder.find(key), f.node("a"));
    const std::unique_ptr<TreeItem> taken(f.model->takeRow(0, f.index("H")));
    QVERIFY(!finder.find(key));
}

void TestSubjectLookup::shouldFindWhatHasComeBack()
{
    CommandFixture f(QStringLiteral("H[A[a]]"));
    const SubjectKey key = keyFromIndex(f.index("a"));
    TreeItem *const taken = f.model->takeRow(0, f.index("H"));
    SubjectFinder finder(*f.model, {key});
    QVERIFY(!finder.find(key));
    QVERIFY(!finder.findNamed(key, {}));
    QVERIFY(f.model->putRow(0, taken, f.index("H")));
    finder.add(taken);
    QCOMPARE(finder.find(key), f.node("a"));
}

void TestSubjectLookup::shouldMakeMissingSpearsInRowOrder()
{
    CommandFixture f(QStringLiteral("H[A,B[b[x]],C,D]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    delete f.spear("A");
    delete f.spear("C");
    generateMissingSpears(*f.model, f.node("H"));
    QCOMPARE(spearTreeText(f.spear("H")), QStringLiteral("H[A,B,C,D]"));
    generateMissingSpears(*f.model, f.node("B"));
    QCOMPARE(spearTreeText(f.spear("H")), QStringLiteral("H[A,B[b[x]],C,D]"));
    QCOMPARE(f.spear("x")->direction(), 0);
    QCOMPARE(f.spear("x")->spearSize(), f.spear("H")->spearSize());
    const int items = scene.items().size();
    generateMissingSpears(*f.model, f.node("H"));
    generateMissingSpears(*f.model, nullptr);
    QCOMPARE(scene.items().size(), items);
}

void TestSubjectLookup::shouldNotLookBelowSpearsThatThereAre()
{
    CommandFixture f(QStringLiteral("H[A[a],B[b]]"));
    QGraphicsScene scene;
    scene.addItem(SpearBuilder(*f.model).buildHead(f.index("H")));
    delete f.spear("B");
    generateMissingSpears(*f.model, f.node("H"));
    QCOMPARE(spearTreeText(f.spear("H")), QStringLiteral("H[A,B[b]]"));
}

FISHBONE_TEST(TestSubjectLookup)
#include "tst_subjectlookup.moc"
