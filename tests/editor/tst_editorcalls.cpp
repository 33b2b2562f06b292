// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QtTest>

#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/shownsubject.h>
#include <tests/program/testprogram.h>

/** What is under way in an editor. */
class TestEditorCalls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellTheSelectionAtOnceWithoutACall();
    void shouldTellTheSelectionOnceForNestedCalls();
    void shouldTellNothingWhenNothingWasSelected();
    void shouldKnowWhetherACallLaysOut();
    void shouldAbandonTheCallsAtItsEnd();
    void shouldSurviveAListenerThatEndsIt();

private:
    FishScene m_scene;
    ShownSubject m_shown;
};

void TestEditorCalls::shouldTellTheSelectionAtOnceWithoutACall()
{
    EditorCalls calls(m_scene, m_shown);
    const QSignalSpy spy(&calls, &EditorCalls::selectionChanged);
    calls.noteSelection();
    calls.noteSelection();
    QCOMPARE(spy.count(), 2);
}

void TestEditorCalls::shouldTellTheSelectionOnceForNestedCalls()
{
    EditorCalls calls(m_scene, m_shown);
    const QSignalSpy spy(&calls, &EditorCalls::selectionChanged);
    {
        const EditorCall outer(calls);
        {
            const EditorCall inner(calls);
            calls.noteSelection();
            calls.noteSelection();
        }
        QCOMPARE(spy.count(), 0);
        calls.noteSelection();
        QCOMPARE(spy.count(), 0);
    }
    QCOMPARE(spy.count(), 1);
}

void TestEditorCalls::shouldTellNothingWhenNothingWasSelected()
{
    EditorCalls calls(m_scene, m_shown);
    const QSignalSpy spy(&calls, &EditorCalls::selectionChanged);
    {
        const EditorCall call(calls);
        calls.noteSelection();
    }
    {
        const EditorCall next(calls);
    }
    QCOMPARE(spy.count(), 1);
}

void TestEditorCalls::shouldKnowWhetherACallLaysOut()
{
    EditorCalls calls(m_scene, m_shown);
    QVERIFY(!calls.willLayOut());
    {
        const EditorCall outer(calls, EditorCall::AtItsEnd::LaysOut);
        const EditorCall inner(calls);
        QVERIFY(calls.willLayOut());
    }
    const EditorCall other(calls);
    QVERIFY(!calls.willLayOut());
}

void TestEditorCalls::shouldAbandonTheCallsAtItsEnd()
{
    auto calls = std::make_unique<EditorCalls>(m_scene, m_shown);
    const EditorCall outer(*calls);
    const EditorCall inner(*calls);
    QVERIFY(outer.isAlive());
    calls.reset();
    QVERIFY(!outer.isAlive());
    QVERIFY(!inner.isAlive());
}

void TestEditorCalls::shouldSurviveAListenerThatEndsIt()
{
    auto calls = std::make_unique<EditorCalls>(m_scene, m_shown);
    connect(calls.get(), &EditorCalls::selectionChanged, this, [&calls] { calls.reset(); });
    {
        const EditorCall call(*calls);
        calls->noteSelection();
    }
    QVERIFY(!calls);
}

FISHBONE_TEST(TestEditorCalls)
#include "tst_editorcalls.moc"
