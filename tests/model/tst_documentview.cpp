// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QJsonObject>
#include <QtTest>

#include <fishbone/model/documentview.h>
#include <fishbone/model/treeitem.h>
#include <tests/program/testprogram.h>

namespace {

QJsonObject fields(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

/** What a document keeps beside its tree. */
class TestDocumentView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStandWithTheFieldsOfTheHead();
    void shouldLeaveNothingOfAnEmptyOne();
    void shouldBeEmptyWithoutAHead();
    void shouldGoToANewHead();
    void shouldLeaveANewHeadAloneWhenThereIsNone();
};

void TestDocumentView::shouldStandWithTheFieldsOfTheHead()
{
    TreeItem head;
    head.setOtherFields(fields(R"({"votes": 3})"));
    QVERIFY(DocumentView::set(&head, fields(R"({"look": "clear"})")));
    QCOMPARE(DocumentView::of(&head), fields(R"({"look": "clear"})"));
    QCOMPARE(head.otherFields(), fields(R"({"votes": 3, "view": {"look": "clear"}})"));
}

void TestDocumentView::shouldLeaveNothingOfAnEmptyOne()
{
    TreeItem head;
    head.setOtherFields(fields(R"({"votes": 3, "view": {"look": "clear"}})"));
    DocumentView::set(&head, {});
    QCOMPARE(head.otherFields(), fields(R"({"votes": 3})"));
}

void TestDocumentView::shouldBeEmptyWithoutAHead()
{
    QCOMPARE(DocumentView::of(nullptr), QJsonObject());
    QVERIFY(!DocumentView::set(nullptr, fields(R"({"look": "clear"})")));
}

void TestDocumentView::shouldGoToANewHead()
{
    TreeItem former;
    TreeItem head;
    former.setOtherFields(fields(R"({"votes": 3, "view": {"look": "clear"}})"));
    head.setOtherFields(fields(R"({"votes": 4})"));
    DocumentView::handOn(former, head);
    QCOMPARE(former.otherFields(), fields(R"({"votes": 3})"));
    QCOMPARE(head.otherFields(), fields(R"({"votes": 4, "view": {"look": "clear"}})"));
}

void TestDocumentView::shouldLeaveANewHeadAloneWhenThereIsNone()
{
    TreeItem former;
    TreeItem head;
    head.setOtherFields(fields(R"({"view": {"look": "classic"}})"));
    DocumentView::handOn(former, head);
    QCOMPARE(DocumentView::of(&head), fields(R"({"look": "classic"})"));
}

FISHBONE_TEST(TestDocumentView)
#include "tst_documentview.moc"
