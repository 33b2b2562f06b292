// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QtTest>

#include <functional>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/undo/editattributes.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/dialogchecks.h>
#include <tests/support/editorfixture.h>
#include <tests/support/undorecorder.h>
#include <tests/undo/editattributesparts.h>

using namespace TestSupport;

namespace {

QString plain(const TreeItem &item)
{
    return QString::fromUtf8(QJsonDocument(EditAttributes::stateOf(item)).toJson());
}

/** Everything set to something. */
void fill(TreeItem &item)
{
    item.setDetail(QStringLiteral("detail"));
    item.setUrl(QStringLiteral("http://localhost/old"));
    item.setShowid(QStringLiteral("7"));
    item.setType(3);
    item.setStatus(tsRunning);
    item.setProgress(30);
    item.setPriority(2);
    item.setManagerName(QStringLiteral("Li"));
    item.setManagerId(QStringLiteral("li"));
    item.setCreatorName(QStringLiteral("Ann"));
    item.setCreatorId(QStringLiteral("ann"));
    item.setFollowers(QStringList{QStringLiteral("x"), QStringLiteral("y")});
    item.setCreateDate(1000);
    item.setPlanEndDate(2000);
}

} // namespace

class TestEditAttributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldChangeAndChangeBack_data();
    void shouldChangeAndChangeBack();
    void shouldRestoreWhatWasNeverSet_data();
    void shouldRestoreWhatWasNeverSet();
    void shouldTouchNothingElse();
    void shouldLeaveIdentityAndPlaceAlone();
    void shouldKeepTheChildrenOutOfTheState();
    void shouldNameItselfInItsOwnContext();
    void shouldLeaveOutWhatDoesNotDiffer();
    void shouldTakeAMissingTextForAnEmptyOne();
    void shouldGiveTheSubjectAndItsParentAUuid();
    void shouldRefuseStrangers();
    void shouldDoNothingWithoutAModel();
    void shouldChangeSeveralSubjectsAtOnce();
    void shouldTakeTheSameSubjectTwice();
    void shouldFindAChangeMade();

    void shouldChangeThatVeryDocument();
    void shouldChangeThatVeryCopy();
    void shouldLeaveOthersAloneWhenTheSubjectIsGone();
    void shouldChangeTheOthersWhenOneIsGone();
    void shouldWorkAgainOnceTheSubjectIsBack();
    void shouldChangeNothingBackThatItDidNotChange();
    void shouldFindASubjectWhoseUuidGotAPrefix();
    void shouldFindASubjectThatWasMadeAnew();
};

void TestEditAttributes::shouldChangeAndChangeBack_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("title", title("new"));
    row("empty title", title(""));
    row("detail", [](TreeItem &item) { item.setDetail(QStringLiteral("two\nlines")); });
    row("link", [](TreeItem &item) { item.setUrl(QStringLiteral("http://localhost/new")); });
    row("no link", [](TreeItem &item) { item.setUrl(QString()); });
    row("showid", [](TreeItem &item) { item.setShowid(QStringLiteral("8")); });
    row("type", [](TreeItem &item) { item.setType(4); });
    row("status", [](TreeItem &item) { item.setStatus(tsFinish); });
    row("no status", [](TreeItem &item) { item.setStatus(-1); });
    row("progress", [](TreeItem &item) { item.setProgress(-5); });
    row("priority", [](TreeItem &item) { item.setPriority(9); });
    row("manager", [](TreeItem &item) { item.setManagerName(QStringLiteral("Wei")); });
    row("manager's id", [](TreeItem &item) { item.setManagerId(QStringLiteral("wei")); });
    row("creator", [](TreeItem &item) { item.setCreatorName(QStringLiteral("Bo")); });
    row("creator's id", [](TreeItem &item) { item.setCreatorId(QStringLiteral("bo")); });
    row("followers", [](TreeItem &item) { item.setFollowers(QStringList{QStringLiteral("z")}); });
    row("no followers", [](TreeItem &item) { item.setFollowers(QStringList()); });
    row("creation", [](TreeItem &item) { item.setCreateDate(Q_INT64_C(1700000000123)); });
    row("planned end", [](TreeItem &item) { item.setPlanEndDate(Q_INT64_C(1800000000123)); });
    row("no planned end", [](TreeItem &item) { item.setPlanEndDate(0); });
    row("style", [](TreeItem &item) { item.setSpearStyle(redText()); });
    row("immovable", [](TreeItem &item) { item.setSpearItemIsMovable(false); });
    row("everything", [](TreeItem &item) {
        item.setTitle(QStringLiteral("new"));
        item.setDetail(QString());
        item.setUrl(QString());
        item.setStatus(-1);
        item.setProgress(100);
        item.setFollowers(QStringList());
        item.setSpearStyle(redText());
    });
}

void TestEditAttributes::shouldChangeAndChangeBack()
{
    QFETCH(Change, change);
    for (const char *name : {"H", "A", "a", "G"}) {
        CommandFixture f(QStringLiteral("H[A[a],B];G"));
        f.draw();
        TreeItem *const node = f.node(name);
        fill(*node);
        const QString before = plain(*node);
        TreeItem draft(EditAttributes::stateOf(*node));
        change(draft);
        const QString after = plain(draft);
        QVERIFY(before != after);

        QCOMPARE(f.roundTripFault(edit(*f.model, f.index(name), change).release()), QString());
        QCOMPARE(plain(*node), after);
        f.stack->undo();
        QCOMPARE(plain(*node), before);
    }
}

void TestEditAttributes::shouldRestoreWhatWasNeverSet_data()
{
    shouldChangeAndChangeBack_data();
}

void TestEditAttributes::shouldRestoreWhatWasNeverSet()
{
    QFETCH(Change, change);
    CommandFixture f(QStringLiteral("H[A]"));
    TreeItem *const node = f.node("A");
    for (const bool isNull : {false, true}) {
        if (isNull) { // which no file says
            node->setUrl(QString());
            node->setManagerName(QString());
            node->setManagerId(QString());
            node->setCreatorName(QString());
            node->setCreatorId(QString());
        }
        const QString before = plain(*node);
        f.stack->push(edit(*f.model, f.index("A"), change).release());
        f.stack->undo();
        QCOMPARE(plain(*node), before);
        QVERIFY(!node->spearStyle());
        QCOMPARE(node->url().isNull(), isNull);
    }
}

void TestEditAttributes::shouldTouchNothingElse()
{
    CommandFixture f(QStringLiteral("H[A]"));
    TreeItem *const node = f.node("A");
    const auto command = edit(*f.model, f.index("A"), title("new"));
    node->setDetail(QStringLiteral("meanwhile"));
    node->setStatus(tsRunning);
    node->setSpearStyle(redText());
    const SpearStyle *const style = node->spearStyle();
    command->redo();
    QCOMPARE(node->title(), QStringLiteral("new"));
    command->undo();
    QCOMPARE(node->title(), QStringLiteral("A"));
    QCOMPARE(node->detail(), QStringLiteral("meanwhile"));
    QCOMPARE(node->status(), int(tsRunning));
    QCOMPARE(node->spearStyle(), style);
}

void TestEditAttributes::shouldLeaveIdentityAndPlaceAlone()
{
    CommandFixture f(QStringLiteral("H[A[a]]"));
    QJsonObject after = EditAttributes::stateOf(*f.node("A"));
    after.insert(QStringLiteral("uuid"), QStringLiteral("other"));
    after.insert(QStringLiteral("pid"), QStringLiteral("other"));
    after.insert(QStringLiteral("children"), QJsonArray());
    after.insert(QStringLiteral("title"), QStringLiteral("new"));
    EditAttributes command(f.model.get(), f.index("A"), EditAttributes::stateOf(*f.node("A")),
                           after);
    command.redo();
    QCOMPARE(f.text(), QStringLiteral("H[new[a]]"));
    QCOMPARE(f.node("new")->uuid(), QStringLiteral("u-A"));
    QCOMPARE(f.node("new")->pid(), QStringLiteral("u-H"));
}

void TestEditAttributes::shouldKeepTheChildrenOutOfTheState()
{
    CommandFixture f(QStringLiteral("H[A[a]]"));
    QVERIFY(!EditAttributes::stateOf(*f.node("A")).contains(QStringLiteral("children")));
    QCOMPARE(EditAttributes::stateOf(*f.node("A")).value(QStringLiteral("title")).toString(),
             QStringLiteral("A"));
}

void TestEditAttributes::shouldNameItselfInItsOwnContext()
{
    CommandFixture f(QStringLiteral("H"));
    QCOMPARE(EditAttributes(f.model.get()).text(), QStringLiteral("Edit attributes"));
    const BracketTranslator translator("EditAttributes");
    QCOMPARE(EditAttributes(f.model.get()).text(), QStringLiteral("[Edit attributes]"));
}

void TestEditAttributes::shouldLeaveOutWhatDoesNotDiffer()
{
    CommandFixture f(QStringLiteral("H[A]"));
    const QJsonObject state = EditAttributes::stateOf(*f.node("A"));
    EditAttributes command(f.model.get(), f.index("A"), state, state);
    QCOMPARE(command.count(), 0);
    QVERIFY(!command.add(f.index("A"), state, state));
    const QSignalSpy changes(f.model.get(), &FishModel::dataChanged);
    command.redo();
    command.undo();
    QCOMPARE(changes.count(), 0);
    QVERIFY(!f.document(0)->modified());
}

void TestEditAttributes::shouldTakeAMissingTextForAnEmptyOne()
{
    CommandFixture f(QStringLiteral("H[A]"));
    const QJsonObject state = EditAttributes::stateOf(*f.node("A"));
    QJsonObject without = state;
    without.remove(QStringLiteral("url"));
    without.remove(QStringLiteral("mgrname"));
    QCOMPARE(EditAttributes(f.model.get(), f.index("A"), state, without).count(), 0);
}

void TestEditAttributes::shouldGiveTheSubjectAndItsParentAUuid()
{
    CommandFixture f(QStringLiteral("H[A[a]]"));
    for (TreeItem *node : allNodes(*f.model))
        node->setUuid(QString());
    const auto command = edit(*f.model, f.index("a"), title("new"));
    QCOMPARE(f.node("a")->uuid().size(), 38);
    QCOMPARE(f.node("A")->uuid().size(), 38);
    QVERIFY(f.node("H")->uuid().isEmpty());
    command->redo();
    QCOMPARE(f.text(), QStringLiteral("H[A[new]]"));
    command->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A[a]]"));
}

void TestEditAttributes::shouldRefuseStrangers()
{
    CommandFixture f(QStringLiteral("H[A]"));
    CommandFixture other(QStringLiteral("O[P]"));
    const QJsonObject before = EditAttributes::stateOf(*f.node("A"));
    const QJsonObject after = changed(*f.node("A"), title("new"));
    EditAttributes command(f.model.get());
    QVERIFY(!command.add(QModelIndex(), before, after));
    QVERIFY(!command.add(other.index("P"), before, after));
    QCOMPARE(command.count(), 0);
    command.redo();
    QCOMPARE(f.text() + other.text(), QStringLiteral("H[A]O[P]"));
}

void TestEditAttributes::shouldDoNothingWithoutAModel()
{
    CommandFixture f(QStringLiteral("H[A]"));
    EditAttributes command(nullptr, f.index("A"), EditAttributes::stateOf(*f.node("A")),
                           changed(*f.node("A"), title("new")));
    command.redo();
    command.undo();
    QCOMPARE(command.count(), 0);
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
}

void TestEditAttributes::shouldChangeSeveralSubjectsAtOnce()
{
    CommandFixture f(QStringLiteral("H[A[a],B];G[C]"));
    f.draw();
    auto command = std::make_unique<EditAttributes>(f.model.get());
    for (const char *name : {"C", "a", "H"}) {
        const TreeItem &subject = *f.node(name);
        QVERIFY(command->add(f.index(name), EditAttributes::stateOf(subject),
                             changed(subject, [](TreeItem &item) {
                                 item.setTitle(item.title() + QLatin1Char('!'));
                             })));
    }
    QCOMPARE(command->count(), 3);
    QCOMPARE(f.roundTripFault(command.release()), QString());
    QCOMPARE(f.text(), QStringLiteral("H![A[a!],B];G[C!]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A[a],B];G[C]"));
}

void TestEditAttributes::shouldTakeTheSameSubjectTwice()
{
    CommandFixture f(QStringLiteral("H[A]"));
    auto command = edit(*f.model, f.index("A"), title("B"));
    TreeItem second;
    second.setTitle(QStringLiteral("B"));
    QVERIFY(
        command->add(f.index("A"), EditAttributes::stateOf(second), changed(second, title("C"))));
    f.stack->push(command.release());
    QCOMPARE(f.text(), QStringLiteral("H[C]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A]"));
}

void TestEditAttributes::shouldFindAChangeMade()
{
    CommandFixture f(QStringLiteral("H[A]"));
    TreeItem *const node = f.node("A");
    const QJsonObject before = EditAttributes::stateOf(*node);
    node->setSpearStyle(redText());
    node->setTitle(QStringLiteral("new"));
    const SpearStyle *const style = node->spearStyle();
    f.stack->push(
        new EditAttributes(f.model.get(), f.index("new"), before, EditAttributes::stateOf(*node)));
    QCOMPARE(node->spearStyle(), style); // a dialog may be at work on it
    f.stack->undo();
    QCOMPARE(node->title(), QStringLiteral("A"));
    QVERIFY(!node->spearStyle());
    f.stack->redo();
    QCOMPARE(node->spearStyle()->textColor(SpearStyle::ssNormal), QColor(Qt::red));
}

void TestEditAttributes::shouldChangeThatVeryDocument()
{
    CommandFixture f(QStringLiteral("H[A];H[A]"));
    const QModelIndex second = f.model->index(0, 0, f.model->index(1, 0));
    f.stack->push(edit(*f.model, second, title("new")).release());
    QCOMPARE(f.text(), QStringLiteral("H[A];H[new]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A];H[A]"));
}

void TestEditAttributes::shouldChangeThatVeryCopy()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    f.node("B")->setUuid(QStringLiteral("u-A"));
    f.stack->push(edit(*f.model, f.index("B"), title("new")).release());
    QCOMPARE(f.text(), QStringLiteral("H[A,new]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestEditAttributes::shouldLeaveOthersAloneWhenTheSubjectIsGone()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    f.node("A")->setUuid(QStringLiteral("1"));
    f.node("B")->setUuid(QStringLiteral("11"));
    f.stack->push(edit(*f.model, f.index("A"), title("new")).release());
    f.model->removeRows(0, 1, f.index("H"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[B]"));
    f.stack->redo();
    QCOMPARE(f.text(), QStringLiteral("H[B]"));
}

void TestEditAttributes::shouldChangeTheOthersWhenOneIsGone()
{
    CommandFixture f(QStringLiteral("H[A,B,C]"));
    auto command = edit(*f.model, f.index("A"), title("a"));
    command->add(f.index("B"), EditAttributes::stateOf(*f.node("B")),
                 changed(*f.node("B"), title("b")));
    f.model->removeRows(0, 1, f.index("H"));
    f.stack->push(command.release());
    QCOMPARE(f.text(), QStringLiteral("H[b,C]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[B,C]"));
}

void TestEditAttributes::shouldWorkAgainOnceTheSubjectIsBack()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    const auto command = edit(*f.model, f.index("A"), title("new"));
    command->redo();
    f.stack->push(new EditDelete(f.model.get(), f.index("new")));
    command->undo();
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[new,B]"));
    command->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
    command->redo();
    QCOMPARE(f.text(), QStringLiteral("H[new,B]"));
}

void TestEditAttributes::shouldChangeNothingBackThatItDidNotChange()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    const auto command = edit(*f.model, f.index("A"), title("new"));
    TreeItem *const node = f.node("A");
    f.stack->push(new EditDelete(f.model.get(), f.index("A")));
    command->redo();
    f.stack->undo();
    node->setTitle(QStringLiteral("otherwise"));
    command->undo();
    QCOMPARE(node->title(), QStringLiteral("otherwise"));
}

void TestEditAttributes::shouldFindASubjectWhoseUuidGotAPrefix()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    f.stack->push(edit(*f.model, f.index("B"), title("new")).release());
    f.node("new")->setUuid(QStringLiteral("server:U-B"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A,B]"));
}

void TestEditAttributes::shouldFindASubjectThatWasMadeAnew()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    f.stack->push(edit(*f.model, f.index("B"), title("new")).release());
    const QJsonObject copy = f.snapshot({QStringLiteral("new")});
    f.model->removeRows(1, 1, f.index("H"));
    f.model->read(copy, f.node("A"), -1);
    QCOMPARE(f.text(), QStringLiteral("H[A[new]]"));
    f.stack->undo();
    QCOMPARE(f.text(), QStringLiteral("H[A[B]]"));
}

FISHBONE_TEST(TestEditAttributes)
#include "tst_editattributes.moc"
