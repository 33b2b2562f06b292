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

using namespace TestSupport;

using MakeCommand = std::function<AttributeCommand *(FishModel *, const QModelIndex &)>;
Q_DECLARE_METATYPE(MakeCommand)

namespace {
/// Title and link of a node.
QString attributes(const TreeItem *node)
{
    return node->title() + QLatin1Char('|') + node->url();
}

/// A record for EditModify, which does not own it.
TreeItem *record()
{
    static TreeItem item;
    item.setTitle(QStringLiteral("new"));
    return &item;
}

/// A model that takes no titles.
class ReadOnlyModel : public FishModel
{
public:
    bool setData(const QModelIndex &, const QVariant &, int) override { return false; }
};
} // namespace

class TestAttributeCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldChangeAndChangeBack_data();
    void shouldChangeAndChangeBack();
    void shouldChangeInDocumentsWithoutUuids_data();
    void shouldChangeInDocumentsWithoutUuids();
    void shouldNameThemselvesInTheirOwnContext();
    void shouldKnowTheUuidOfTheSubject();
    void shouldGiveTheSubjectAndItsParentAUuid();
    void shouldDoNothingForNoSubject_data();
    void shouldDoNothingForNoSubject();
    void shouldDoNothingWithoutAModel_data();
    void shouldDoNothingWithoutAModel();
    void shouldOutliveTheModel_data();
    void shouldOutliveTheModel();
    void shouldChangeThatVeryDocument_data();
    void shouldChangeThatVeryDocument();
    void shouldChangeThatVeryCopy_data();
    void shouldChangeThatVeryCopy();
    void shouldLeaveOthersAloneWhenTheSubjectIsGone_data();
    void shouldLeaveOthersAloneWhenTheSubjectIsGone();
    void shouldWorkAgainOnceTheSubjectIsBack_data();
    void shouldWorkAgainOnceTheSubjectIsBack();
    void shouldChangeNothingBackThatItDidNotChange_data();
    void shouldChangeNothingBackThatItDidNotChange();
    void shouldFindASubjectWhoseUuidGotAPrefix();

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

void TestAttributeCommands::shouldChangeAndChangeBack_data()
{
    QTest::addColumn<MakeCommand>("command");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("isTakenBack");
    QTest::newRow("title") << MakeCommand([](FishModel *model, const QModelIndex &index) {
        return new ModifyName(model, index, QStringLiteral("new"));
    }) << QStringLiteral("new|old url")
                           << true;
    QTest::newRow("empty title") << MakeCommand([](FishModel *model, const QModelIndex &index) {
        return new ModifyName(model, index, QString());
    }) << QStringLiteral("|old url")
                                 << true;
    QTest::newRow("link") << MakeCommand([](FishModel *model, const QModelIndex &index) {
        return new ModifyLinkTo(model, index, QStringLiteral("new url"));
    }) << QStringLiteral("old|new url")
                          << true;
    QTest::newRow("no link") << MakeCommand([](FishModel *model, const QModelIndex &index) {
        return new ModifyDelLink(model, index);
    }) << QStringLiteral("old|")
                             << true;
    QTest::newRow("record") << MakeCommand([](FishModel *model, const QModelIndex &index) {
        return new EditModify(model, index, record());
    }) << QStringLiteral("new|old url")
                            << false;
}

void TestAttributeCommands::shouldChangeAndChangeBack()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, expected);
    QFETCH(bool, isTakenBack);
    for (const char *title : {"H", "A", "a", "G"}) {
        CommandFixture f(QStringLiteral("H[A[a],B];G"));
        TreeItem *const node = f.node(title);
        node->setTitle(QStringLiteral("old"));
        node->setUrl(QStringLiteral("old url"));
        UndoCommand *const made = command(f.model.get(), f.model->indexFromItem(node));
        const QString before = modelText(*f.model);

        f.stack->push(made);
        QCOMPARE(attributes(node), expected);
        const QString after = modelText(*f.model);
        for (int pass = 0; pass < 2; ++pass) {
            f.stack->undo();
            QVERIFY(f.stack->canRedo());
            QCOMPARE(modelText(*f.model), isTakenBack ? before : after);
            f.stack->redo();
            QCOMPARE(modelText(*f.model), after);
        }
    }
}

void TestAttributeCommands::shouldChangeInDocumentsWithoutUuids_data()
{
    shouldChangeAndChangeBack_data();
}

void TestAttributeCommands::shouldChangeInDocumentsWithoutUuids()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, expected);
    QFETCH(bool, isTakenBack);
    for (const char *none : {"", "-1"}) {
        CommandFixture f(QStringLiteral("H[A,B[old]]"));
        for (TreeItem *node : allNodes(*f.model))
            node->setUuid(QLatin1String(none));
        TreeItem *const node = f.node("old");
        node->setUrl(QStringLiteral("old url"));
        f.stack->push(command(f.model.get(), f.index("old")));
        QCOMPARE(attributes(node), expected);
        f.stack->undo();
        QCOMPARE(attributes(node), isTakenBack ? QStringLiteral("old|old url") : expected);
        QCOMPARE(f.node("H")->childCount(), 2);
    }
}

void TestAttributeCommands::shouldNameThemselvesInTheirOwnContext()
{
    CommandFixture f(QStringLiteral("H[A]"));
    FishModel *const model = f.model.get();
    const QModelIndex index = f.index("A");
    QCOMPARE(ModifyName(model, index, QString()).text(), QStringLiteral("Modify subject name"));
    QCOMPARE(ModifyLinkTo(model, index, QString()).text(), QStringLiteral("Modify link to"));
    QCOMPARE(ModifyDelLink(model, index).text(), QStringLiteral("Delete link"));
    QCOMPARE(EditModify(model, index, record()).text(), QStringLiteral("Modify Item"));
    const auto translated = [](const char *context, const std::function<QString()> &text) {
        const BracketTranslator translator(context);
        return text();
    };
    QCOMPARE(translated("ModifyName", [&] { return ModifyName(model, index, QString()).text(); }),
             QStringLiteral("[Modify subject name]"));
    QCOMPARE(
        translated("ModifyLinkTo", [&] { return ModifyLinkTo(model, index, QString()).text(); }),
        QStringLiteral("[Modify link to]"));
    QCOMPARE(translated("ModifyDelLink", [&] { return ModifyDelLink(model, index).text(); }),
             QStringLiteral("[Delete link]"));
    QCOMPARE(translated("EditModify", [&] { return EditModify(model, index, record()).text(); }),
             QStringLiteral("[Modify Item]"));
}

void TestAttributeCommands::shouldKnowTheUuidOfTheSubject()
{
    CommandFixture f(QStringLiteral("H[A]"));
    const ModifyName name(f.model.get(), f.index("A"), QStringLiteral("new"));
    QCOMPARE(name.uuid(), QStringLiteral("u-A"));
    QCOMPARE(name.newName(), QStringLiteral("new"));
    QCOMPARE(name.oldName(), QString());
    const ModifyLinkTo link(f.model.get(), QModelIndex(), QStringLiteral("url"));
    QCOMPARE(link.uuid(), QStringLiteral("-1"));
    QCOMPARE(link.newUrl(), QStringLiteral("url"));
    QCOMPARE(link.oldUrl(), QString());
    QCOMPARE(ModifyDelLink(f.model.get(), f.index("H").siblingAtColumn(2)).uuid(),
             QStringLiteral("u-H"));
    QCOMPARE(EditModify(f.model.get(), f.index("A"), record()).item(), record());
}

void TestAttributeCommands::shouldGiveTheSubjectAndItsParentAUuid()
{
    CommandFixture f(QStringLiteral("H[A[a]]"));
    for (TreeItem *node : allNodes(*f.model))
        node->setUuid(QString());
    const ModifyDelLink command(f.model.get(), f.index("a"));
    QCOMPARE(command.uuid(), f.node("a")->uuid());
    QCOMPARE(f.node("a")->uuid().size(), 38);
    QCOMPARE(f.node("A")->uuid().size(), 38);
    QVERIFY(f.node("H")->uuid().isEmpty());
    QCOMPARE(f.node("a")->pid(), QStringLiteral("u-A"));
}

void TestAttributeCommands::shouldDoNothingForNoSubject_data()
{
    shouldChangeAndChangeBack_data();
}

void TestAttributeCommands::shouldDoNothingForNoSubject()
{
    QFETCH(MakeCommand, command);
    CommandFixture f(QStringLiteral("H[A]"));
    for (TreeItem *node : allNodes(*f.model)) // none of them is what has no uuid
        node->setUuid(QString());
    const QString before = modelText(*f.model);
    f.stack->push(command(f.model.get(), QModelIndex()));
    QCOMPARE(modelText(*f.model), before);
    f.stack->undo();
    QCOMPARE(modelText(*f.model), before);
}

void TestAttributeCommands::shouldDoNothingWithoutAModel_data()
{
    shouldChangeAndChangeBack_data();
}

void TestAttributeCommands::shouldDoNothingWithoutAModel()
{
    QFETCH(MakeCommand, command);
    CommandFixture f(QStringLiteral("H[A]"));
    const QString before = modelText(*f.model);
    const std::unique_ptr<UndoCommand> made(command(nullptr, f.index("A")));
    made->redo();
    made->undo();
    QCOMPARE(modelText(*f.model), before);
}

void TestAttributeCommands::shouldOutliveTheModel_data()
{
    shouldChangeAndChangeBack_data();
}

void TestAttributeCommands::shouldOutliveTheModel()
{
    QFETCH(MakeCommand, command);
    CommandFixture f(QStringLiteral("H[A]"));
    const std::unique_ptr<UndoCommand> made(command(f.model.get(), f.index("A")));
    made->redo();
    f.model.reset();
    made->undo();
    made->redo();
    made->undo();
}

void TestAttributeCommands::shouldChangeThatVeryDocument_data()
{
    shouldChangeAndChangeBack_data();
}

void TestAttributeCommands::shouldChangeThatVeryDocument()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, expected);
    CommandFixture f(QStringLiteral("H[old];H[old]"));
    for (TreeItem *node : allNodes(*f.model))
        node->setUrl(QStringLiteral("old url"));
    const QModelIndex second = f.model->index(0, 0, f.model->index(1, 0));
    f.stack->push(command(f.model.get(), second));
    QCOMPARE(attributes(f.node("old") ? f.model->getTreeItem(second) : nullptr), expected);
    QCOMPARE(attributes(f.model->getTreeItem(f.model->index(0, 0, f.model->index(0, 0)))),
             QStringLiteral("old|old url"));
}

void TestAttributeCommands::shouldChangeThatVeryCopy_data()
{
    shouldChangeAndChangeBack_data();
}

void TestAttributeCommands::shouldChangeThatVeryCopy()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, expected);
    QFETCH(bool, isTakenBack);
    CommandFixture f(QStringLiteral("H[A,B]"));
    for (TreeItem *node : allNodes(*f.model))
        node->setUrl(QStringLiteral("old url"));
    TreeItem *const copy = f.node("B");
    copy->setTitle(QStringLiteral("old"));
    copy->setUuid(QStringLiteral("u-A"));
    f.stack->push(command(f.model.get(), f.model->indexFromItem(copy)));
    QCOMPARE(attributes(copy), expected);
    QCOMPARE(attributes(f.node("A")), QStringLiteral("A|old url"));
    f.stack->undo();
    QCOMPARE(attributes(copy), isTakenBack ? QStringLiteral("old|old url") : expected);
    QCOMPARE(attributes(f.node("A")), QStringLiteral("A|old url"));
}

void TestAttributeCommands::shouldLeaveOthersAloneWhenTheSubjectIsGone_data()
{
    shouldChangeAndChangeBack_data();
}

void TestAttributeCommands::shouldLeaveOthersAloneWhenTheSubjectIsGone()
{
    QFETCH(MakeCommand, command);
    CommandFixture f(QStringLiteral("H[A,B]"));
    f.node("A")->setUuid(QStringLiteral("1"));
    f.node("B")->setUuid(QStringLiteral("11"));
    f.stack->push(command(f.model.get(), f.index("A")));
    f.model->removeRows(0, 1, f.index("H"));
    const QString before = modelText(*f.model);
    f.stack->undo();
    QCOMPARE(modelText(*f.model), before);
    f.stack->redo();
    QCOMPARE(modelText(*f.model), before);
}

void TestAttributeCommands::shouldWorkAgainOnceTheSubjectIsBack_data()
{
    shouldChangeAndChangeBack_data();
}

void TestAttributeCommands::shouldWorkAgainOnceTheSubjectIsBack()
{
    QFETCH(MakeCommand, command);
    QFETCH(QString, expected);
    QFETCH(bool, isTakenBack);
    CommandFixture f(QStringLiteral("H[old,B]"));
    TreeItem *const node = f.node("old");
    node->setUrl(QStringLiteral("old url"));
    const std::unique_ptr<UndoCommand> made(command(f.model.get(), f.index("old")));
    made->redo();
    f.stack->push(new EditDelete(f.model.get(), f.model->indexFromItem(node)));
    made->undo();
    f.stack->undo();
    QCOMPARE(attributes(node), expected);
    made->undo();
    QCOMPARE(attributes(node), isTakenBack ? QStringLiteral("old|old url") : expected);
    made->redo();
    QCOMPARE(attributes(node), expected);
}

void TestAttributeCommands::shouldChangeNothingBackThatItDidNotChange_data()
{
    shouldChangeAndChangeBack_data();
}

void TestAttributeCommands::shouldChangeNothingBackThatItDidNotChange()
{
    QFETCH(MakeCommand, command);
    CommandFixture f(QStringLiteral("H[A,B]"));
    const std::unique_ptr<UndoCommand> made(command(f.model.get(), f.index("A")));
    const TreeItem *const node = f.node("A");
    f.stack->push(new EditDelete(f.model.get(), f.index("A")));
    made->redo();
    f.stack->undo();
    made->undo();
    QCOMPARE(attributes(node), QStringLiteral("A|"));
}

void TestAttributeCommands::shouldFindASubjectWhoseUuidGotAPrefix()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    TreeItem *const node = f.node("B");
    f.stack->push(new ModifyName(f.model.get(), f.index("B"), QStringLiteral("new")));
    node->setUuid(QStringLiteral("server:U-B"));
    f.stack->undo();
    QCOMPARE(node->title(), QStringLiteral("B"));
}

void TestAttributeCommands::shouldKeepThePlainTitleOfAHead()
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

void TestAttributeCommands::shouldAnnounceANewTitle()
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

void TestAttributeCommands::shouldShowANewTitleInTheSpear()
{
    CommandFixture f(QStringLiteral("H[A]"));
    f.draw();
    f.stack->push(new ModifyName(f.model.get(), f.index("A"), QStringLiteral("new")));
    QCOMPARE(f.spear("new")->text(), QStringLiteral("new"));
    f.stack->undo();
    QCOMPARE(f.spear("A")->text(), QStringLiteral("A"));
}

void TestAttributeCommands::shouldTakeTheOldTitleAfresh()
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

void TestAttributeCommands::shouldStandOnTheStackWhenTheModelRefuses()
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

void TestAttributeCommands::shouldRenameInAnyModelThatShowsUuids()
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

void TestAttributeCommands::shouldTakeTheOldLinkAfresh()
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

void TestAttributeCommands::shouldDeleteALinkThatIsNotThere()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto *const command = new ModifyDelLink(f.model.get(), f.index("A"));
    f.stack->push(command);
    QCOMPARE(command->oldUrl(), QString());
    QCOMPARE(f.node("A")->url(), QString());
    f.stack->undo();
    QCOMPARE(f.node("A")->url(), QString());
}

void TestAttributeCommands::shouldChangeLinksWithoutASignal()
{
    CommandFixture f(QStringLiteral("H[A]"));
    const QSignalSpy changes(f.model.get(), &FishModel::dataChanged);
    f.stack->push(new ModifyLinkTo(f.model.get(), f.index("A"), QStringLiteral("url")));
    f.stack->undo();
    f.stack->push(new ModifyDelLink(f.model.get(), f.index("A")));
    f.stack->undo();
    QCOMPARE(changes.count(), 0);
}

void TestAttributeCommands::shouldKeepWhatItModified()
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

void TestAttributeCommands::shouldCopyTheAttributesOfTheRecord()
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

void TestAttributeCommands::shouldNotOwnTheRecord()
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

FISHBONE_TEST(TestAttributeCommands)
#include "tst_attributecommands.moc"
