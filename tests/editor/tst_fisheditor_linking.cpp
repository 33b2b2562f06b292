// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/style/spearstyledialog.h>
#include <fishbone/undo/undostack.h>
#include <tests/dialogs/urldialogparts.h>
#include <tests/editor/sampletrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/modaldriver.h>

using namespace TestSupport;
using UrlDialogParts::WorkingFolder;

/** Linking the selected subject to a URL that the user is asked for. */
class TestFishEditorLinking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void shouldLinkToTheEnteredUrl();
    void shouldAskForTheUrlStartingOnTheShowId();
    void shouldNotLayOutAfterALinkCommand();
    void shouldKeepTheLinkWithoutAUsableUrl_data();
    void shouldKeepTheLinkWithoutAUsableUrl();
    void shouldLinkNothingWhenTheSubjectGoesMeanwhile();
    void shouldLinkTheSubjectThatWasSelectedWhenItAsked();
    void shouldSurviveItsOwnEndWhileItAsks();
    void shouldSurviveItsOwnEndWhileAStyleIsEdited();

private:
    std::unique_ptr<WorkingFolder> m_folder; // the dialog remembers URLs there
};

namespace {

/** Enters a URL like a user. */
ModalDriver<URLDialog>::Action enter(const QString &url)
{
    return [url](URLDialog &dialog) {
        dialog.setUrl(url);
        dialog.accept();
    };
}

} // namespace

void TestFishEditorLinking::init()
{
    m_folder = std::make_unique<WorkingFolder>();
    QVERIFY(m_folder->isValid());
}

void TestFishEditorLinking::cleanup()
{
    m_folder.reset();
}

void TestFishEditorLinking::shouldLinkToTheEnteredUrl()
{
    EditorFixture fish(SampleTrees::small());
    fish.select({QStringLiteral("Man")});
    const ModalDriver<URLDialog> user(enter(QStringLiteral("https://example.org/a b")));

    fish.editor.modifyLink();

    QVERIFY(user.isDone());
    const TreeItem *const man = fish.subject(QStringLiteral("Man"));
    QCOMPARE(man->url(), QStringLiteral("https://example.org/a b"));
    QVERIFY(fish.spear(QStringLiteral("Man"))->linkItem());
    QCOMPARE(fish.editor.undoStack()->commandNames(),
             QStringList(QStringLiteral("Modify link to")));
    QVERIFY(fish.editor.isModified());
    fish.editor.undo();
    QCOMPARE(man->url(), QString());
    QVERIFY(!fish.spear(QStringLiteral("Man"))->linkItem());
    fish.editor.redo();
    QCOMPARE(man->url(), QStringLiteral("https://example.org/a b"));
}

void TestFishEditorLinking::shouldAskForTheUrlStartingOnTheShowId()
{
    EditorFixture fish(SampleTrees::small());
    fish.subject(QStringLiteral("Man"))->setUrl(QStringLiteral("https://example.org"));
    fish.subject(QStringLiteral("Man"))->setShowid(QStringLiteral("T-7"));
    fish.select({QStringLiteral("Man")});
    QString shown;
    const QObject *owner = nullptr;
    const ModalDriver<URLDialog> user([&shown, &owner](URLDialog &dialog) {
        shown = dialog.url().toString();
        owner = dialog.parent();
        dialog.reject();
    });

    fish.editor.modifyLink();

    QVERIFY(user.isDone());
    QCOMPARE(shown, QStringLiteral("T-7"));
    QCOMPARE(owner, &fish.editor);
}

void TestFishEditorLinking::shouldNotLayOutAfterALinkCommand()
{
    EditorFixture fish(SampleTrees::small());
    fish.select({QStringLiteral("Man")});
    SpearItem *const machine = fish.spear(QStringLiteral("Machine"));
    machine->setPos(40, 50);
    const ModalDriver<URLDialog> user(enter(QStringLiteral("https://example.org")));

    fish.editor.modifyLink();
    QVERIFY(user.isDone());
    QCOMPARE(machine->pos(), QPointF(40, 50));
    fish.editor.modifyDelLink();
    QCOMPARE(machine->pos(), QPointF(40, 50));
    QCOMPARE(fish.editor.undoStack()->commandNames().last(), QStringLiteral("Delete link"));
}

void TestFishEditorLinking::shouldKeepTheLinkWithoutAUsableUrl_data()
{
    QTest::addColumn<QString>("entered");

    QTest::newRow("cancelled") << QString();
    QTest::newRow("no URL") << QStringLiteral("http://[");
}

void TestFishEditorLinking::shouldKeepTheLinkWithoutAUsableUrl()
{
    QFETCH(QString, entered);
    EditorFixture fish(SampleTrees::small());
    fish.subject(QStringLiteral("Man"))->setUrl(QStringLiteral("https://example.org"));
    fish.select({QStringLiteral("Man")});
    const ModalDriver<URLDialog> user([&entered](URLDialog &dialog) {
        dialog.setUrl(entered);
        entered.isEmpty() ? dialog.reject() : dialog.accept();
    });

    fish.editor.modifyLink();

    QVERIFY(user.isDone());
    QCOMPARE(fish.subject(QStringLiteral("Man"))->url(), QStringLiteral("https://example.org"));
    QVERIFY(fish.editor.undoStack()->commandNames().isEmpty());
    QVERIFY(!fish.editor.isModified());
}

void TestFishEditorLinking::shouldLinkNothingWhenTheSubjectGoesMeanwhile()
{
    EditorFixture fish(SampleTrees::small());
    fish.select({QStringLiteral("Man")});
    const ModalDriver<URLDialog> user([&fish](URLDialog &dialog) {
        fish.model.removeRows(0, 1, fish.editor.rootIndex());
        enter(QStringLiteral("https://example.org"))(dialog);
    });

    fish.editor.modifyLink();

    QVERIFY(user.isDone());
    QVERIFY(fish.editor.undoStack()->commandNames().isEmpty());
    QCOMPARE(fish.subject(QStringLiteral("Machine"))->url(), QString());
}

void TestFishEditorLinking::shouldLinkTheSubjectThatWasSelectedWhenItAsked()
{
    EditorFixture fish(SampleTrees::small());
    fish.select({QStringLiteral("Machine")});
    const ModalDriver<URLDialog> user([&fish](URLDialog &dialog) {
        fish.select({QStringLiteral("Man")});
        fish.editor.insertSubject(); // moves it on by a row
        enter(QStringLiteral("https://example.org"))(dialog);
    });

    fish.editor.modifyLink();

    QVERIFY(user.isDone());
    QCOMPARE(fish.subject(QStringLiteral("Machine"))->url(), QStringLiteral("https://example.org"));
    QCOMPARE(fish.subject(QStringLiteral("Man"))->url(), QString());
}

void TestFishEditorLinking::shouldSurviveItsOwnEndWhileItAsks()
{
    FishModel model;
    loadDocument(model, SampleTrees::small());
    auto editor = std::make_unique<FishEditor>();
    editor->setModel(&model);
    editor->setRootIndex(model.index(0, 0));
    nodeTitled(model, QStringLiteral("Man"))->spear()->setSelected(true);
    const ModalDriver<URLDialog> user([&editor](URLDialog &) { editor.reset(); });

    editor->modifyLink();

    QVERIFY(user.isDone());
    QVERIFY(!editor);
    QCOMPARE(nodeTitled(model, QStringLiteral("Man"))->url(), QString());
}

void TestFishEditorLinking::shouldSurviveItsOwnEndWhileAStyleIsEdited()
{
    FishModel model;
    loadDocument(model, SampleTrees::small());
    auto editor = std::make_unique<FishEditor>();
    editor->setModel(&model);
    editor->setRootIndex(model.index(0, 0));
    nodeTitled(model, QStringLiteral("Man"))->spear()->setSelected(true);
    const ModalDriver<SpearStyleDialog> user([&editor](SpearStyleDialog &dialog) {
        editor.reset();
        dialog.accept();
    });

    editor->setSpearStyle();

    QVERIFY(user.isDone());
    QVERIFY(!editor);
    QVERIFY(nodeTitled(model, QStringLiteral("Man"))->spearStyle());
}

FISHBONE_TEST(TestFishEditorLinking)
#include "tst_fisheditor_linking.moc"
