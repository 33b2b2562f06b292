// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/savedstate.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

#include <fishbone/undo/undostack.h>

#include <QtTest>

using namespace TestSupport;

/** Whether a document is what its file has. */
class TestSavedState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeApartUntilSaved();
    void shouldBeSavedAgainWhereItWasSaved();
    void shouldStayApartAfterAChangeThatNoUndoTakesBack();
    void shouldStayApartWhenTold();
};

namespace {

/** An editor whose document was just saved. */
struct Saved : EditorFixture
{
    Saved()
        : EditorFixture(QStringLiteral("H[A]"))
    {
        state.markSaved(info);
    }

    /** A change with undo. */
    void insert()
    {
        select({QStringLiteral("A")});
        editor.insertChildSubject();
        state.noteChange();
        state.look(info);
    }

    SavedState state{&editor};
};

} // namespace

void TestSavedState::shouldBeApartUntilSaved()
{
    EditorFixture stage(QStringLiteral("H[A]"));
    SavedState state(&stage.editor);
    QVERIFY(!state.isSaved());
    state.markSaved(stage.info);
    QVERIFY(state.isSaved());
}

void TestSavedState::shouldBeSavedAgainWhereItWasSaved()
{
    Saved stage;
    stage.insert();
    QVERIFY(!stage.state.isSaved());
    stage.editor.undo();
    stage.state.noteChange();
    QVERIFY(stage.state.isSaved());
}

void TestSavedState::shouldStayApartAfterAChangeThatNoUndoTakesBack()
{
    Saved stage;
    stage.insert();
    stage.state.noteChange(); // while the history stands still
    stage.state.look(stage.info);
    stage.editor.undo();
    QVERIFY(!stage.state.isSaved());
    stage.info->setModified(false); // as saving does
    stage.state.markSaved(stage.info);
    QVERIFY(stage.state.isSaved());
}

void TestSavedState::shouldStayApartWhenTold()
{
    Saved stage;
    stage.state.markApart();
    QVERIFY(!stage.state.isSaved());
}

FISHBONE_TEST(TestSavedState)
#include "tst_savedstate.moc"
