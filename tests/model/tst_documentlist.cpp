// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/model/documentlist.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <tests/program/testprogram.h>

#include <memory>

namespace {

/** The names of the documents, each of which has to stand in its row. */
QString names(const DocumentList &list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row) {
        const FishInfo *const document = list.at(row);
        texts.append(list.rowOf(document) == row ? document->fileName() : QStringLiteral("?"));
    }
    return texts.join(QLatin1Char(' '));
}

FishInfo *documentNamed(const QString &name)
{
    auto *const document = new FishInfo;
    document->setFileName(name);
    return document;
}

void fill(DocumentList &list, const QString &text)
{
    const QStringList all = text.split(QLatin1Char(' '));
    for (const QString &name : all)
        list.insert(list.count(), documentNamed(name));
}

} // namespace

/** The documents of a model, and the rows that they know. */
class TestDocumentList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldListDocumentsInTheirRows();
    void shouldMakeDocumentsTheModels();
    void shouldHandOutDocuments();
    void shouldMoveDocuments_data();
    void shouldMoveDocuments();
    void shouldKnowOnlyItsOwn();
    void shouldGiveTheHeads();
    void shouldPutAnotherDocumentInThePlaceOfADyingOne();
    void shouldDeleteWhatItLists();
};

void TestDocumentList::shouldListDocumentsInTheirRows()
{
    FishModel model;
    DocumentList list(&model);
    QCOMPARE(list.count(), 0);
    fill(list, QStringLiteral("a b c"));
    list.insert(0, documentNamed(QStringLiteral("first")));
    list.insert(2, documentNamed(QStringLiteral("middle")));
    QCOMPARE(names(list), QStringLiteral("first a middle b c"));
}

void TestDocumentList::shouldMakeDocumentsTheModels()
{
    FishModel model;
    DocumentList list(&model);
    fill(list, QStringLiteral("a"));
    QCOMPARE(list.at(0)->model(), static_cast<QAbstractItemModel *>(&model));
}

void TestDocumentList::shouldHandOutDocuments()
{
    FishModel model;
    DocumentList list(&model);
    fill(list, QStringLiteral("a b c d"));
    const std::unique_ptr<FishInfo> taken(list.take(1));
    QCOMPARE(taken->fileName(), QStringLiteral("b"));
    QVERIFY(!taken->model());
    QCOMPARE(list.rowOf(taken.get()), -1);
    QCOMPARE(names(list), QStringLiteral("a c d"));
}

void TestDocumentList::shouldMoveDocuments_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("expected");
    QTest::newRow("down") << 0 << 2 << "b c a d";
    QTest::newRow("up") << 3 << 1 << "a d b c";
    QTest::newRow("nowhere") << 1 << 1 << "a b c d";
    QTest::newRow("to the end") << 0 << 3 << "b c d a";
}

void TestDocumentList::shouldMoveDocuments()
{
    FishModel model;
    DocumentList list(&model);
    fill(list, QStringLiteral("a b c d"));
    QFETCH(int, from);
    QFETCH(int, to);
    list.move(from, to);
    QTEST(names(list), "expected");
}

void TestDocumentList::shouldKnowOnlyItsOwn()
{
    FishModel model;
    FishModel other;
    DocumentList list(&model);
    DocumentList others(&other);
    fill(list, QStringLiteral("a"));
    fill(others, QStringLiteral("b"));
    const FishInfo none;
    QVERIFY(list.contains(list.at(0)));
    for (const FishInfo *stranger : {static_cast<const FishInfo *>(others.at(0)), &none,
                                     static_cast<const FishInfo *>(nullptr)}) {
        QVERIFY(!list.contains(stranger));
        QCOMPARE(list.rowOf(stranger), -1);
    }
}

void TestDocumentList::shouldGiveTheHeads()
{
    FishModel model;
    DocumentList list(&model);
    fill(list, QStringLiteral("empty a"));
    auto *const head = new TreeItem;
    list.at(1)->treeItem()->appendChild(head);
    QCOMPARE(list.headAt(0), nullptr);
    QCOMPARE(list.headAt(1), head);
    QCOMPARE(list.headAt(2), nullptr);
    QCOMPARE(list.headAt(-1), nullptr);
}

void TestDocumentList::shouldPutAnotherDocumentInThePlaceOfADyingOne()
{
    FishModel model;
    DocumentList list(&model);
    fill(list, QStringLiteral("a b c"));
    auto *const head = new TreeItem;
    list.at(1)->treeItem()->appendChild(head);
    const std::unique_ptr<FishInfo> dying(list.at(1));
    FishInfo *const standIn = list.replace(dying.get());
    QCOMPARE(list.at(1), standIn);
    QCOMPARE(list.rowOf(standIn), 1);
    QCOMPARE(list.headAt(1), head);
    QVERIFY(list.contains(standIn));
    QCOMPARE(list.rowOf(dying.get()), -1);
    QCOMPARE(dying->treeItem()->childCount(), 0);
}

void TestDocumentList::shouldDeleteWhatItLists()
{
    FishModel model;
    QPointer<FishInfo> document;
    {
        DocumentList list(&model);
        fill(list, QStringLiteral("a"));
        document = list.at(0);
    }
    QVERIFY(!document);
}

FISHBONE_TEST(TestDocumentList)
#include "tst_documentlist.moc"
