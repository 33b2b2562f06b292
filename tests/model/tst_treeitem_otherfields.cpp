// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>
#include <fishbone/undo/structuralcommands.h>

#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/filecontent.h>

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

using namespace TestSupport;

namespace {
using TestSupport::contentOf;

QJsonObject objectFrom(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

/** Fields that no version of the format knows, of every kind of value. */
QJsonObject strangers()
{
    return objectFrom(R"({"cost": 12.5, "Title": "not the title", "x-list": [1, "a", null],
                          "x-nested": {"uuid": "inner", "deep": {"er": true}}, "": false})");
}

/** A document with fields like these in its head and in a leaf. */
QByteArray documentWithStrangers()
{
    QJsonObject document = documentFromText(QStringLiteral("H[A[a],B]"));
    QJsonArray bones = document.value(QStringLiteral("children")).toArray();
    QJsonObject bone = bones.first().toObject();
    QJsonObject leaf = bone.value(QStringLiteral("children")).toArray().first().toObject();
    const QJsonObject fields = strangers();
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        leaf.insert(field.key(), field.value());
        document.insert(field.key(), field.value());
    }
    bone.insert(QStringLiteral("children"), QJsonArray{leaf});
    bones.replace(0, bone);
    document.insert(QStringLiteral("children"), bones);
    document.insert(QStringLiteral("view"), objectFrom(R"({"look": "clear"})"));
    return QJsonDocument(document).toJson();
}

/** Arrays in arrays. */
QJsonValue nested(int depth)
{
    QJsonValue value = 1;
    for (int i = 0; i < depth; ++i)
        value = QJsonArray{value};
    return value;
}

} // namespace

/** The fields of a subject, and of a document, that the library does not know. */
class TestTreeItemOtherFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHaveNoneAtFirst();
    void shouldTakeThemFromAnObject();
    void shouldLeaveTheFormatsOwnKeysOut();
    void shouldKeepThemThroughLoadingAndSaving();
    void shouldKeepThemThroughExchange();
    void shouldKeepThemThroughPasting_data();
    void shouldKeepThemThroughPasting();
    void shouldKeepThemThroughDeletingAndUndo();
    void shouldChangeThemUndoably();
    void shouldTouchOnlyTheFieldsThatAChangeNames();
    void shouldKeepWhatTheDocumentShows();
    void shouldHandTheViewToANewHead();
    void shouldRefuseToSaveThemTooDeep();
};

void TestTreeItemOtherFields::shouldHaveNoneAtFirst()
{
    TreeItem item;
    QVERIFY(!item.hasOtherFields());
    QVERIFY(item.otherFields().isEmpty());
    item.setOtherFields(strangers());
    QVERIFY(item.hasOtherFields());
    item.setOtherFields({});
    QVERIFY(!item.hasOtherFields());
}

void TestTreeItemOtherFields::shouldTakeThemFromAnObject()
{
    QJsonObject object = strangers();
    object.insert(QStringLiteral("title"), QStringLiteral("A"));
    object.insert(QStringLiteral("children"), QJsonArray());
    object.insert(QStringLiteral("ismovable"), true);
    const TreeItem item(object);
    QCOMPARE(item.title(), QStringLiteral("A"));
    QCOMPARE(item.otherFields(), strangers());
}

void TestTreeItemOtherFields::shouldLeaveTheFormatsOwnKeysOut()
{
    TreeItem item;
    for (const char *key : {"children",    "createdate", "creatorid", "creatorname", "detail",
                            "followers",   "ismovable",  "mgrid",     "mgrname",     "pid",
                            "planenddate", "priority",   "progress",  "showid",      "spearstyle",
                            "status",      "title",      "type",      "url",         "uuid"}) {
        item.setOtherFields({{QLatin1String(key), 1}, {QStringLiteral("kept"), 2}});
        QCOMPARE(item.otherFields(), (QJsonObject{{QStringLiteral("kept"), 2}}));
    }
    QCOMPARE(item.uuid(), QStringLiteral("-1"));
}

void TestTreeItemOtherFields::shouldKeepThemThroughLoadingAndSaving()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("d.json"));
    FishModel model;
    FishInfo *const document = model.loadJsonFish(documentWithStrangers());
    QVERIFY(document->saveFile(path));
    const QByteArray once = contentOf(path);
    QCOMPARE(model.loadFishFromFile(path), 0);
    QVERIFY(model.fishList().constLast()->saveFile(path));
    QCOMPARE(contentOf(path), once);

    const QJsonObject saved = QJsonDocument::fromJson(once).object();
    const QJsonObject given = QJsonDocument::fromJson(documentWithStrangers()).object();
    for (const QString &key : strangers().keys())
        QCOMPARE(saved.value(key), given.value(key));
    QCOMPARE(saved.value(QStringLiteral("view")), given.value(QStringLiteral("view")));
    QCOMPARE(nodeTitled(model, QStringLiteral("a"))->otherFields(), strangers());
    QVERIFY(!nodeTitled(model, QStringLiteral("A"))->hasOtherFields());
}

void TestTreeItemOtherFields::shouldKeepThemThroughExchange()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("d.json"));
    FishModel model;
    FishInfo *const document = model.loadJsonFish(documentWithStrangers());
    const auto json = DiagramExchange::Format::Json;
    QVERIFY(DiagramExchange::writeFile(path, *document->treeItem()->childAtIndex(0), json));
    FishModel other;
    addDocument(other, DiagramExchange::readFile(path, json));
    QCOMPARE(nodeTitled(other, QStringLiteral("a"))->otherFields(), strangers());
    QVERIFY(!document->view().isEmpty());
    QCOMPARE(other.fishList().constFirst()->view(), document->view());
}

void TestTreeItemOtherFields::shouldKeepThemThroughPasting_data()
{
    QTest::addColumn<bool>("asNew");
    QTest::newRow("with its uuids") << false;
    QTest::newRow("with new ones") << true;
}

void TestTreeItemOtherFields::shouldKeepThemThroughPasting()
{
    QFETCH(bool, asNew);
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.node("a")->setOtherFields(strangers());
    auto *const command =
        new EditPaste(f.model.get(), f.index("B"), f.snapshot({QStringLiteral("A")}));
    command->setPasteAsNew(asNew);
    QCOMPARE(f.roundTripFault(command), QString());
    const TreeItem *const copy = f.node("B")->childAtIndex(0)->childAtIndex(0);
    QCOMPARE(copy->title(), QStringLiteral("a"));
    QCOMPARE(copy->otherFields(), strangers());
}

void TestTreeItemOtherFields::shouldKeepThemThroughDeletingAndUndo()
{
    CommandFixture f(QStringLiteral("H[A[a],B]"));
    f.node("a")->setOtherFields(strangers());
    QCOMPARE(f.roundTripFault(new EditDelete(f.model.get(), f.index("A"))), QString());
    f.stack->undo();
    QCOMPARE(f.node("a")->otherFields(), strangers());
}

void TestTreeItemOtherFields::shouldChangeThemUndoably()
{
    CommandFixture f(QStringLiteral("H[A]"));
    TreeItem *const node = f.node("A");
    node->setOtherFields(objectFrom(R"({"gone": 1, "changed": 1, "same": 1})"));
    const QJsonObject before = EditAttributes::stateOf(*node);
    QJsonObject after = before;
    after.remove(QStringLiteral("gone"));
    after.insert(QStringLiteral("changed"), 2);
    after.insert(QStringLiteral("new"), QJsonValue());
    QCOMPARE(f.roundTripFault(new EditAttributes(f.model.get(), f.index("A"), before, after)),
             QString());
    QCOMPARE(node->otherFields(), objectFrom(R"({"changed": 2, "same": 1, "new": null})"));
    QVERIFY(f.document(0)->modified());
    f.stack->undo();
    QCOMPARE(node->otherFields(), objectFrom(R"({"gone": 1, "changed": 1, "same": 1})"));
}

void TestTreeItemOtherFields::shouldTouchOnlyTheFieldsThatAChangeNames()
{
    CommandFixture f(QStringLiteral("H[A]"));
    TreeItem *const node = f.node("A");
    const QJsonObject before = EditAttributes::stateOf(*node);
    QJsonObject after = before;
    after.insert(QStringLiteral("mine"), 1);
    f.stack->push(new EditAttributes(f.model.get(), f.index("A"), before, after));
    node->setOtherFields(objectFrom(R"({"mine": 1, "yours": 2})"));
    f.stack->undo();
    QCOMPARE(node->otherFields(), objectFrom(R"({"yours": 2})"));
}

void TestTreeItemOtherFields::shouldKeepWhatTheDocumentShows()
{
    FishModel model;
    FishInfo *const document = loadDocument(model, QStringLiteral("H[A]"));
    QVERIFY(document->view().isEmpty());
    const QJsonObject view = objectFrom(R"({"look": "clear", "page": {"width": 3}})");
    QVERIFY(document->setView(view));
    QCOMPARE(document->view(), view);
    QJsonObject written;
    FishModel::write(written, document->treeItem(), false);
    QCOMPARE(written.value(QStringLiteral("view")).toObject(), view);
    QVERIFY(document->setView({}));
    QVERIFY(!document->treeItem()->childAtIndex(0)->hasOtherFields());

    FishInfo empty;
    QVERIFY(!empty.setView(view));
    QVERIFY(empty.view().isEmpty());
}

void TestTreeItemOtherFields::shouldHandTheViewToANewHead()
{
    CommandFixture f(QStringLiteral("H[A]"));
    const QJsonObject view = objectFrom(R"({"look": "clear"})");
    f.document(0)->setView(view);
    TreeItem *const former = f.node("H");
    QJsonObject fields = former->otherFields();
    fields.insert(QStringLiteral("cost"), 7);
    former->setOtherFields(fields);

    f.stack->push(new InsertParent(f.model.get(), f.index("H")));

    QCOMPARE(f.document(0)->view(), view);
    QCOMPARE(former->otherFields(), objectFrom(R"({"cost": 7})"));
    f.stack->undo();
    QCOMPARE(f.document(0)->treeItem()->childAtIndex(0), former);
    QCOMPARE(f.document(0)->view(), view);
    QCOMPARE(former->otherFields(), fields);
}

void TestTreeItemOtherFields::shouldRefuseToSaveThemTooDeep()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("d.json"));
    FishModel model;
    FishInfo *const document = loadDocument(model, QStringLiteral("H[A]"));
    TreeItem *const node = nodeTitled(model, QStringLiteral("A"));
    // The object of A is the third level: head, its children, A.
    node->setOtherFields({{QStringLiteral("x"), nested(1021)}});
    QVERIFY(document->saveFile(path));
    QCOMPARE(model.loadFishFromFile(path), 0);
    node->setOtherFields({{QStringLiteral("x"), nested(1022)}});
    QVERIFY(!document->saveFile(path));
    QCOMPARE(model.loadFishFromFile(path), 0);
}

FISHBONE_TEST(TestTreeItemOtherFields)

#include "tst_treeitem_otherfields.moc"
