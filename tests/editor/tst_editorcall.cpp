// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <tests/editor/editorparts.h>
#include <tests/program/testprogram.h>

using namespace TestSupport;

/** One call into an editor: what it marks at its end. */
class TestEditorCall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMarkTheDocumentThatHasChanged();
    void shouldMarkTheShownDocumentWhenNobodyToldOfAChange();
    void shouldMarkNothingElseWhenNothingHasChanged();
    void shouldMarkTheShownDocumentWhenDocumentsCame();
    void shouldStillMarkWhatHasChangedWhenTheEditorHasDied();
    void shouldNotLookBackBehindItsBeginning();
};

void TestEditorCall::shouldMarkTheDocumentThatHasChanged()
{
    OwnEditorParts parts("H[A]");
    FishInfo *const other = loadDocument(parts.model, QStringLiteral("I[C]"));
    const EditorCall call(parts->calls);
    QVERIFY(!call.hasChanges());
    parts.model.setData(parts->index("C"), QStringLiteral("new"));
    QVERIFY(call.hasChanges());
    parts->info->setModified(false); // what the drawing heard of
    other->setModified(false);
    call.mark(EditorCall::Otherwise::Shown);
    QVERIFY(other->modified());
    QVERIFY(!parts->info->modified());
}

void TestEditorCall::shouldMarkTheShownDocumentWhenNobodyToldOfAChange()
{
    OwnEditorParts parts("H[A]");
    const EditorCall call(parts->calls);
    call.mark(EditorCall::Otherwise::Shown);
    QVERIFY(parts->info->modified());
}

void TestEditorCall::shouldMarkNothingElseWhenNothingHasChanged()
{
    OwnEditorParts parts("H[A]");
    const EditorCall call(parts->calls);
    call.mark(EditorCall::Otherwise::Nothing);
    QVERIFY(!parts->info->modified());
}

void TestEditorCall::shouldMarkTheShownDocumentWhenDocumentsCame()
{
    OwnEditorParts parts("H[A]");
    const EditorCall call(parts->calls);
    loadDocument(parts.model, QStringLiteral("I"));
    QVERIFY(call.hasChanges());
    call.mark(EditorCall::Otherwise::Nothing);
    QVERIFY(parts->info->modified());
}

void TestEditorCall::shouldStillMarkWhatHasChangedWhenTheEditorHasDied()
{
    FishModel model;
    auto parts = std::make_unique<EditorParts>(model, QStringLiteral("H[A]"));
    FishInfo *const info = parts->info;
    const EditorCall call(parts->calls);
    model.setData(parts->index("A"), QStringLiteral("new"));
    parts.reset();
    QVERIFY(!call.isAlive());
    QVERIFY(call.hasChanges());
    call.mark(EditorCall::Otherwise::Shown);
    QVERIFY(info->modified());
}

void TestEditorCall::shouldNotLookBackBehindItsBeginning()
{
    OwnEditorParts parts("H[A]");
    parts.model.setData(parts->index("A"), QStringLiteral("new"));
    const EditorCall call(parts->calls);
    QVERIFY(!call.hasChanges());
}

FISHBONE_TEST(TestEditorCall)
#include "tst_editorcall.moc"
