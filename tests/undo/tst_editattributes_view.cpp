// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/undo/editattributes.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>

using namespace TestSupport;

/** What a document keeps beside its tree, changed with undo. */
class TestEditAttributesView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReplaceTheViewWithUndo();
    void shouldLeaveNothingOfAnEmptyView();
    void shouldChangeNothingWhenTheViewIsTheSame();
    void shouldRefuseADocumentWithoutAHead();
};

namespace {

const QJsonObject wide{{QStringLiteral("look"), QStringLiteral("clear")},
                       {QStringLiteral("lines"), 3}};
const QJsonObject narrow{{QStringLiteral("look"), QStringLiteral("classic")}};

/** A command that replaces the view of the first document. */
std::unique_ptr<EditAttributes> viewCommand(const CommandFixture &fixture, const QJsonObject &view)
{
    auto command = std::make_unique<EditAttributes>(fixture.model.get());
    return command->addView(*fixture.document(0), view) ? std::move(command) : nullptr;
}

} // namespace

void TestEditAttributesView::shouldReplaceTheViewWithUndo()
{
    CommandFixture fixture(QStringLiteral("H[A]"));
    FishInfo *const document = fixture.document(0);
    fixture.node("H")->setOtherFields({{QStringLiteral("votes"), 3}});
    document->setView(wide);
    document->setModified(false);
    fixture.stack->push(viewCommand(fixture, narrow).release());
    QCOMPARE(document->view(), narrow);
    QCOMPARE(fixture.node("H")->otherFields().value(QStringLiteral("votes")).toInt(), 3);
    QVERIFY(document->modified());
    fixture.stack->undo();
    QCOMPARE(document->view(), wide);
    fixture.stack->redo();
    QCOMPARE(document->view(), narrow);
}

void TestEditAttributesView::shouldLeaveNothingOfAnEmptyView()
{
    CommandFixture fixture(QStringLiteral("H"));
    fixture.document(0)->setView(wide);
    fixture.stack->push(viewCommand(fixture, {}).release());
    QCOMPARE(fixture.node("H")->otherFields(), QJsonObject());
    fixture.stack->undo();
    QCOMPARE(fixture.document(0)->view(), wide);
}

void TestEditAttributesView::shouldChangeNothingWhenTheViewIsTheSame()
{
    const CommandFixture fixture(QStringLiteral("H"));
    fixture.document(0)->setView(wide);
    QVERIFY(!viewCommand(fixture, wide));
}

void TestEditAttributesView::shouldRefuseADocumentWithoutAHead()
{
    const CommandFixture fixture(QStringLiteral("H"));
    FishInfo elsewhere;
    EditAttributes command(fixture.model.get());
    QVERIFY(!command.addView(elsewhere, wide));
    elsewhere.loadFish(documentFromText(QStringLiteral("I")), nullptr);
    QVERIFY(!command.addView(elsewhere, wide)); // of no model
    EditAttributes orphan(nullptr);
    QVERIFY(!orphan.addView(*fixture.document(0), wide));
    QCOMPARE(command.count(), 0);
}

FISHBONE_TEST(TestEditAttributesView)
#include "tst_editattributes_view.moc"
