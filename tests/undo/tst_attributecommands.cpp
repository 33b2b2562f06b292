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

using MakeCommand = std::function<AttributeCommand *(FishModel *, const QModelIndex &)>;
Q_DECLARE_METATYPE(MakeCommand)

namespace {

/** Title and link of a node. */
QString attributes(const TreeItem *node)
{
    return node->title() + QLatin1Char('|') + node->url();
}

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
    void shouldOutliveTheModelUnderASanitizer_data();
    void shouldOutliveTheModelUnderASanitizer();
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

void TestAttributeCommands::shouldOutliveTheModelUnderASanitizer_data()
{
    shouldChangeAndChangeBack_data();
}

void TestAttributeCommands::shouldOutliveTheModelUnderASanitizer()
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

FISHBONE_TEST(TestAttributeCommands)
#include "tst_attributecommands.moc"
