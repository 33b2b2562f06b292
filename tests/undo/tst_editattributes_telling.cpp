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

/** Who is told of changed attributes, and what shows them. */
class TestEditAttributesTelling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOutliveTheModel();
    void shouldOutliveADocument();
    void shouldSurviveAListenerThatDeletesTheModel();
    void shouldSurviveAListenerThatRemovesSubjects();
    void shouldAnnounceEachSubjectOnce();
    void shouldAnnounceWhenAllIsChanged();
    void shouldMarkTheDocumentsConcerned();
    void shouldEmitWhatTheStackEmitsForAnyCommand();
    void shouldShowInTheDrawing();
    void shouldAllowAndForbidDragging();
    void shouldLayOutOnceForMany();
};

void TestEditAttributesTelling::shouldOutliveTheModel()
{
    CommandFixture f(QStringLiteral("H[A]"));
    const auto command = edit(*f.model, f.index("A"), title("new"));
    command->redo();
    f.model.reset();
    command->undo();
    command->redo();
    QCOMPARE(command->count(), 1);
    QVERIFY(!command->add(QModelIndex(), QJsonObject(), QJsonObject()));
}

void TestEditAttributesTelling::shouldOutliveADocument()
{
    CommandFixture f(QStringLiteral("H[A];G[B]"));
    const auto command = edit(*f.model, f.index("A"), title("new"));
    command->redo();
    f.model->removeRows(0, 1);
    command->undo();
    command->redo();
    QCOMPARE(f.text(), QStringLiteral("G[B]"));
}

void TestEditAttributesTelling::shouldSurviveAListenerThatDeletesTheModel()
{
    auto model = std::make_unique<FishModel>();
    loadDocument(*model, QStringLiteral("H[A,B]"));
    const QModelIndex head = model->index(0, 0);
    auto command = edit(*model, model->index(0, 0, head), title("a"));
    const QModelIndex second = model->index(1, 0, head);
    command->add(second, EditAttributes::stateOf(*model->getTreeItem(second)),
                 changed(*model->getTreeItem(second), title("b")));
    QObject::connect(model.get(), &FishModel::dataChanged, command.get(),
                     [&model] { model.reset(); });
    command->redo();
    QVERIFY(!model);
    command->undo();
}

void TestEditAttributesTelling::shouldSurviveAListenerThatRemovesSubjects()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    auto command = edit(*f.model, f.index("A"), title("a"));
    command->add(f.index("B"), EditAttributes::stateOf(*f.node("B")),
                 changed(*f.node("B"), title("b")));
    int announced = 0;
    QObject::connect(f.model.get(), &FishModel::dataChanged, command.get(), [&] {
        ++announced;
        f.model->removeRows(0, 2, f.index("H"));
    });
    command->redo();
    QCOMPARE(announced, 1);
    QCOMPARE(f.text(), QStringLiteral("H"));
}

void TestEditAttributesTelling::shouldAnnounceEachSubjectOnce()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    auto command = edit(*f.model, f.index("B"), [](TreeItem &item) {
        item.setStatus(tsRunning);
        item.setTitle(QStringLiteral("new"));
    });
    f.stack->push(command.release());
    f.stack->undo();
    const QSignalSpy changes(f.model.get(), &FishModel::dataChanged);
    f.stack->redo();
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.first().at(0).toModelIndex(), f.index("new"));
    QCOMPARE(changes.first().at(1).toModelIndex(), f.index("new").siblingAtColumn(4));
}

void TestEditAttributesTelling::shouldAnnounceWhenAllIsChanged()
{
    CommandFixture f(QStringLiteral("H[A,B]"));
    auto command = edit(*f.model, f.index("A"), title("a"));
    command->add(f.index("B"), EditAttributes::stateOf(*f.node("B")),
                 changed(*f.node("B"), title("b")));
    QStringList seen;
    QObject::connect(f.model.get(), &FishModel::dataChanged, f.model.get(),
                     [&] { seen.append(f.text()); });
    f.stack->push(command.release());
    QCOMPARE(seen, QStringList({QStringLiteral("H[a,b]"), QStringLiteral("H[a,b]")}));
}

void TestEditAttributesTelling::shouldMarkTheDocumentsConcerned()
{
    CommandFixture f(QStringLiteral("H[A];G[B];F[C]"));
    auto command = edit(*f.model, f.index("B"), title("b"));
    command->add(f.index("C"), EditAttributes::stateOf(*f.node("C")),
                 changed(*f.node("C"), title("c")));
    const auto marks = [&f] {
        QString text;
        for (int i = 0; i < 3; ++i)
            text += QLatin1Char(f.document(i)->modified() ? '1' : '0');
        for (int i = 0; i < 3; ++i)
            f.document(i)->setModified(false);
        return text;
    };
    f.stack->push(command.release());
    QCOMPARE(marks(), QStringLiteral("011"));
    f.stack->undo();
    QCOMPARE(marks(), QStringLiteral("011"));
    f.stack->redo();
    QCOMPARE(marks(), QStringLiteral("011"));
}

void TestEditAttributesTelling::shouldEmitWhatTheStackEmitsForAnyCommand()
{
    CommandFixture f(QStringLiteral("H[A]"));
    UndoLog log;
    log.listenTo(*f.stack);
    f.stack->push(edit(*f.model, f.index("A"), title("new")).release());
    QCOMPARE(log.take(), QStringLiteral("undoAvailable(true), redoAvailable(false), "
                                        "stackChanged(stack, 0)"));
    f.stack->undo();
    QCOMPARE(log.take(),
             QStringLiteral("undoAvailable(false), redoAvailable(true), currentChanged(-1)"));
}

void TestEditAttributesTelling::shouldShowInTheDrawing()
{
    EditorFixture f(QStringLiteral("H[A,B]"));
    TreeItem *const node = f.subject(QStringLiteral("A"));
    const SpearItem *const spear = node->spear();
    UndoStack *const stack = f.editor.undoStack();
    stack->push(edit(f.model, f.index(QStringLiteral("A")), [](TreeItem &item) {
                    item.setTitle(QStringLiteral("new"));
                    item.setStatus(tsRunning);
                    item.setProgress(40);
                    item.setUrl(QStringLiteral("http://localhost/"));
                    item.setSpearStyle(redText());
                }).release());
    for (int pass = 0; pass < 2; ++pass) {
        QCOMPARE(spear->text(), QStringLiteral("new"));
        QCOMPARE(int(spear->statusItem()->status()), int(tsRunning));
        QCOMPARE(spear->statusItem()->progress(), 40);
        QVERIFY(spear->linkItem());
        QCOMPARE(spear->textColor(SpearStyle::ssNormal), QColor(Qt::red));
        QVERIFY(f.editor.isModified());
        f.editor.setModified(false);
        stack->undo();
        QCOMPARE(spear->text(), QStringLiteral("A"));
        QCOMPARE(int(spear->statusItem()->status()), -1);
        QVERIFY(!spear->linkItem());
        QVERIFY(spear->textColor(SpearStyle::ssNormal) != QColor(Qt::red));
        QVERIFY(f.editor.isModified());
        stack->redo();
    }
}

void TestEditAttributesTelling::shouldAllowAndForbidDragging()
{
    EditorFixture f(QStringLiteral("H[A,B]"));
    const SpearItem *const spear = f.spear(QStringLiteral("A"));
    const auto isMovable = [spear] { return bool(spear->flags() & QGraphicsItem::ItemIsMovable); };
    const bool before = isMovable();
    f.editor.undoStack()->push(edit(f.model, f.index(QStringLiteral("A")), [](TreeItem &item) {
                                   item.setSpearItemIsMovable(false);
                               }).release());
    QVERIFY(!isMovable());
    f.editor.undoStack()->undo();
    QCOMPARE(isMovable(), before);
}

void TestEditAttributesTelling::shouldLayOutOnceForMany()
{
    FishModel model; // without a tester, which looks at all rows for each signal
    QStringList titles;
    for (int i = 0; i < 3000; ++i)
        titles.append(QStringLiteral("b%1").arg(i));
    const QString document = QStringLiteral("H[%1]").arg(titles.join(QLatin1Char(',')));
    model.loadJsonFish(QJsonDocument(documentFromText(document)).toJson());
    FishEditor editor;
    editor.setModel(&model);
    const QModelIndex head = model.index(0, 0);
    editor.setRootIndex(head);
    auto command = std::make_unique<EditAttributes>(&model);
    for (int row = 0; row < model.rowCount(head); ++row) {
        const QModelIndex index = model.index(row, 0, head);
        const TreeItem &subject = *model.getTreeItem(index);
        command->add(index, EditAttributes::stateOf(subject), changed(subject, title("new")));
    }
    QElapsedTimer timer;
    timer.start();
    editor.undoStack()->push(command.release());
    const qint64 forAll = timer.restart();
    model.setData(model.index(0, 0, head), QStringLiteral("another"));
    const qint64 forOne = timer.elapsed();
    QCOMPARE(model.index(2999, 0, head).data().toString(), QStringLiteral("new"));
    QVERIFY2(forAll < 100 * (forOne + 10), // a layout of each would be 3000 times as much
             qPrintable(QStringLiteral("%1 ms, %2 ms for one").arg(forAll).arg(forOne)));
}

FISHBONE_TEST(TestEditAttributesTelling)
#include "tst_editattributes_telling.moc"
