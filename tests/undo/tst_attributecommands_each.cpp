// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

#include <functional>

#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/dialogchecks.h>
#include <tests/undo/attributecommandsparts.h>

using namespace TestSupport;

namespace {

/** A model that takes no titles. */
class ReadOnlyModel : public FishModel
{
public:
    bool setData(const QModelIndex &, const QVariant &, int) override { return false; }
};

} // namespace

/** What one of the commands does and the others do not. */
class TestAttributeCommandsEach : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepThePlainTitleOfAHead();
    void shouldAnnounceANewTitle();
    void shouldShowANewTitleInTheSpear();
    void shouldTakeTheOldTitleAfresh();
    void shouldStandOnTheStackWhenTheModelRefuses();
    void shouldRenameInAnyModelThatShowsUuids();
    void shouldTakeTheOldLinkAfresh();
    void shouldDeleteALinkThatIsNotThere();
    void shouldChangeLinksWithoutASignal();
    void shouldKeepWhatItModified();
    void shouldCopyTheAttributesOfTheRecord();
    void shouldNotOwnTheRecord();
};

void TestAttributeCommandsEach::shouldKeepThePlainTitleOfAHead()
{
    FishModel model;
    loadDocument(model, QStringLiteral("H[A]"));
    const QModelIndex head = model.index(0, 0);
    QVERIFY(head.data().toString().startsWith(QLatin1String("H(")));
    UndoStack stack;
    auto *const command = new ModifyName(&model, head, QStringLiteral("new"));
    stack.push(command);
    QCOMPARE(command->oldName(), QStringLiteral("H"));
    stack.undo();
    QCOMPARE(model.getTreeItem(head)->title(), QStringLiteral("H"));
}

void TestAttributeCommandsEach::shouldAnnounceANewTitle()
{
    CommandFixture f(QStringLiteral("H[A]"));
    const QSignalSpy changes(f.model.get(), &FishModel::dataChanged);
    f.stack->push(new ModifyName(f.model.get(), f.index("A"), QStringLiteral("new")));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.last().first().toModelIndex(), f.index("new"));
    f.stack->undo();
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.last().first().toModelIndex(), f.index("A"));
}

void TestAttributeCommandsEach::shouldShowANewTitleInTheSpear()
{
    CommandFixture f(QStringLiteral("H[A]"));
    f.draw();
    f.stack->push(new ModifyName(f.model.get(), f.index("A"), QStringLiteral("new")));
    QCOMPARE(f.spear("new")->text(), QStringLiteral("new"));
    f.stack->undo();
    QCOMPARE(f.spear("A")->text(), QStringLiteral("A"));
}

void TestAttributeCommandsEach::shouldTakeTheOldTitleAfresh()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto *const command = new ModifyName(f.model.get(), f.index("A"), QStringLiteral("new"));
    f.stack->push(command);
    QCOMPARE(command->oldName(), QStringLiteral("A"));
    f.stack->undo();
    f.node("A")->setTitle(QStringLiteral("between"));
    f.stack->redo();
    QCOMPARE(command->oldName(), QStringLiteral("between"));
    f.stack->undo();
    QVERIFY(f.node("between"));
}

void TestAttributeCommandsEach::shouldStandOnTheStackWhenTheModelRefuses()
{
    ReadOnlyModel model;
    loadDocument(model, QStringLiteral("H[A]"));
    UndoStack stack;
    stack.push(
        new ModifyName(&model, indexTitled(model, QStringLiteral("A")), QStringLiteral("new")));
    QVERIFY(nodeTitled(model, QStringLiteral("A")));
    QCOMPARE(stack.commandNames().size(), 1);
    QVERIFY(stack.canUndo());
    stack.undo();
    QVERIFY(nodeTitled(model, QStringLiteral("A")));
}

void TestAttributeCommandsEach::shouldRenameInAnyModelThatShowsUuids()
{
    QStandardItemModel model(2, 2);
    model.setItem(0, 0, new QStandardItem(QStringLiteral("eleven")));
    model.setItem(0, 1, new QStandardItem(QStringLiteral("11")));
    model.setItem(1, 0, new QStandardItem(QStringLiteral("one")));
    model.setItem(1, 1, new QStandardItem(QStringLiteral("1")));
    UndoStack stack;
    auto *const command = new ModifyName(&model, model.index(1, 0), QStringLiteral("new"));
    QCOMPARE(command->uuid(), QStringLiteral("1"));
    stack.push(command);
    QCOMPARE(model.item(1)->text(), QStringLiteral("new"));
    QCOMPARE(command->oldName(), QStringLiteral("one"));
    stack.undo();
    QCOMPARE(model.item(1)->text(), QStringLiteral("one"));
    // Such a model has no links.
    stack.push(new ModifyLinkTo(&model, model.index(1, 0), QStringLiteral("url")));
    stack.undo();
    stack.push(new ModifyDelLink(&model, model.index(1, 0)));
    stack.undo();
    QCOMPARE(treeToText(model, QModelIndex()), QStringLiteral("[eleven,one]"));
}

void TestAttributeCommandsEach::shouldTakeTheOldLinkAfresh()
{
    CommandFixture f(QStringLiteral("H[A]"));
    TreeItem *const node = f.node("A");
    auto *const link = new ModifyLinkTo(f.model.get(), f.index("A"), QStringLiteral("new url"));
    f.stack->push(link);
    f.stack->undo();
    node->setUrl(QStringLiteral("between"));
    f.stack->redo();
    QCOMPARE(link->oldUrl(), QStringLiteral("between"));
    QCOMPARE(node->url(), QStringLiteral("new url"));
    auto *const unlink = new ModifyDelLink(f.model.get(), f.index("A"));
    f.stack->push(unlink);
    QCOMPARE(unlink->oldUrl(), QStringLiteral("new url"));
    f.stack->undo();
    f.stack->undo();
    QCOMPARE(node->url(), QStringLiteral("between"));
}

void TestAttributeCommandsEach::shouldDeleteALinkThatIsNotThere()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto *const command = new ModifyDelLink(f.model.get(), f.index("A"));
    f.stack->push(command);
    QCOMPARE(command->oldUrl(), QString());
    QCOMPARE(f.node("A")->url(), QString());
    f.stack->undo();
    QCOMPARE(f.node("A")->url(), QString());
}

void TestAttributeCommandsEach::shouldChangeLinksWithoutASignal()
{
    CommandFixture f(QStringLiteral("H[A]"));
    const QSignalSpy changes(f.model.get(), &FishModel::dataChanged);
    f.stack->push(new ModifyLinkTo(f.model.get(), f.index("A"), QStringLiteral("url")));
    f.stack->undo();
    f.stack->push(new ModifyDelLink(f.model.get(), f.index("A")));
    f.stack->undo();
    QCOMPARE(changes.count(), 0);
}

void TestAttributeCommandsEach::shouldKeepWhatItModified()
{
    CommandFixture f(QStringLiteral("H[A]"));
    TreeItem *const node = f.node("A");
    f.stack->push(new EditModify(f.model.get(), f.index("A"), record()));
    QCOMPARE(node->title(), QStringLiteral("new"));
    QVERIFY(node->isEditModified());
    f.stack->undo();
    QCOMPARE(node->title(), QStringLiteral("new"));
    QVERIFY(f.stack->canRedo());
    node->setTitle(QStringLiteral("another"));
    f.stack->redo();
    QCOMPARE(node->title(), QStringLiteral("new"));
}

void TestAttributeCommandsEach::shouldCopyTheAttributesOfTheRecord()
{
    CommandFixture f(QStringLiteral("H[A]"));
    TreeItem source;
    source.setTitle(QStringLiteral("title"));
    source.setDetail(QStringLiteral("detail"));
    source.setManagerName(QStringLiteral("manager"));
    source.setManagerId(QStringLiteral("id"));
    source.setFollowers(QStringList{QStringLiteral("follower")});
    source.setPlanEndDate(7);
    source.setPriority(3);
    source.setUrl(QStringLiteral("url"));
    source.setStatus(5);
    const QSignalSpy changes(f.model.get(), &FishModel::dataChanged);
    f.stack->push(new EditModify(f.model.get(), f.index("A"), &source));
    const TreeItem *const node = f.node("title");
    QVERIFY(node);
    QCOMPARE(node->uuid(), QStringLiteral("u-A"));
    QCOMPARE(node->detail(), QStringLiteral("detail"));
    QCOMPARE(node->managerName(), QStringLiteral("manager"));
    QCOMPARE(node->managerId(), QStringLiteral("id"));
    QCOMPARE(node->followers(), QStringList{QStringLiteral("follower")});
    QCOMPARE(node->planEndDate(), qint64(7));
    QCOMPARE(node->priority(), 3);
    QCOMPARE(node->url(), QString());
    QCOMPARE(node->status(), -1);
    QCOMPARE(changes.count(), 0);
}

void TestAttributeCommandsEach::shouldNotOwnTheRecord()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto item = std::make_unique<TreeItem>();
    item->setTitle(QStringLiteral("new"));
    f.stack->push(new EditModify(f.model.get(), f.index("A"), item.get()));
    f.stack.reset();
    QCOMPARE(item->title(), QStringLiteral("new"));
    CommandFixture g(QStringLiteral("H[A]"));
    g.stack->push(new EditModify(g.model.get(), g.index("A"), nullptr));
    QCOMPARE(g.text(), QStringLiteral("H[A]"));
}

FISHBONE_TEST(TestAttributeCommandsEach)
#include "tst_attributecommands_each.moc"
