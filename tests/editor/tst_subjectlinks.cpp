// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QLineEdit>
#include <QUrl>
#include <QtTest>

#include <fishbone/dialogs/urldialog.h>
#include <fishbone/editor/subjectlinks.h>
#include <fishbone/items/linkitem.h>
#include <tests/editor/editorparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

using namespace TestSupport;

/** The link of the selected subject. */
class TestSubjectLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLinkToWhatTheUserEnters();
    void shouldLinkNothingWhenTheUserCancels();
    void shouldLinkNothingWhenTheSubjectHasGoneMeanwhile();
    void shouldRemoveALink();
    void shouldOpenWhatTheSubjectIsLinkedTo();
    void shouldDoNothingWithoutASubject();
};

namespace {

const QString address = QStringLiteral("https://example.org/a");

struct LinkStage
{
    explicit LinkStage(const char *document)
        : parts(document)
        , links({parts->shown, parts->drawing, parts->root, parts->calls, parts->runner}, window)
    {
    }

    OwnEditorParts parts;
    QWidget window;
    SubjectLinks links;
};

} // namespace

void TestSubjectLinks::shouldLinkToWhatTheUserEnters()
{
    LinkStage stage("H[A]");
    stage.parts->select("A");
    const ModalDriver<URLDialog> user([](URLDialog &dialog) {
        dialog.setUrl(address);
        dialog.accept();
    });
    stage.links.ask();
    QVERIFY(user.isDone());
    QCOMPARE(stage.parts->node("A")->url(), address);
    QVERIFY(stage.parts->spear("A")->linkItem());
    QCOMPARE(stage.parts->stack.count(), 1);
    QVERIFY(stage.parts->info->modified());
    stage.parts->runner.undo();
    QCOMPARE(stage.parts->node("A")->url(), QString());
}

void TestSubjectLinks::shouldLinkNothingWhenTheUserCancels()
{
    LinkStage stage("H[A]");
    stage.parts->select("A");
    const ModalDriver<URLDialog> user([](URLDialog &dialog) { dialog.reject(); });
    stage.links.ask();
    QVERIFY(user.isDone());
    QCOMPARE(stage.parts->stack.count(), 0);
}

void TestSubjectLinks::shouldLinkNothingWhenTheSubjectHasGoneMeanwhile()
{
    LinkStage stage("H[A,B]");
    stage.parts->select("A");
    const ModalDriver<URLDialog> user([&stage](URLDialog &dialog) {
        stage.parts->edits.remove(stage.parts->index("A"));
        dialog.setUrl(address);
        dialog.accept();
    });
    stage.links.ask();
    QVERIFY(user.isDone());
    QCOMPARE(stage.parts->stack.count(), 1); // the deletion
    QCOMPARE(stage.parts->node("B")->url(), QString());
}

void TestSubjectLinks::shouldRemoveALink()
{
    LinkStage stage("H[A]");
    stage.parts->node("A")->setUrl(address);
    stage.parts->root.update(true);
    QVERIFY(stage.parts->spear("A")->linkItem());
    stage.parts->select("A");
    stage.links.remove();
    QCOMPARE(stage.parts->node("A")->url(), QString());
    QVERIFY(!stage.parts->spear("A")->linkItem());
    stage.parts->runner.undo();
    QCOMPARE(stage.parts->node("A")->url(), address);
}

void TestSubjectLinks::shouldOpenWhatTheSubjectIsLinkedTo()
{
    QList<QUrl> opened;
    LinkItem::setOpener([&opened](const QUrl &url) { opened.append(url); });
    LinkStage stage("H[A]");
    // What column 2 shows counts.
    const QModelIndex index = stage.parts->index("A");
    stage.parts.model.setData(index.sibling(index.row(), 2), address);
    stage.parts->select("A");
    QCOMPARE(stage.links.url(), address);
    stage.links.open();
    LinkItem::setOpener({});
    QCOMPARE(opened, QList<QUrl>{QUrl(address)});
}

void TestSubjectLinks::shouldDoNothingWithoutASubject()
{
    QList<QUrl> opened;
    LinkItem::setOpener([&opened](const QUrl &url) { opened.append(url); });
    LinkStage stage("H[A]");
    stage.links.ask();
    stage.links.remove();
    stage.links.open();
    LinkItem::setOpener({});
    QCOMPARE(stage.links.url(), QString());
    QVERIFY(opened.isEmpty());
    QCOMPARE(stage.parts->stack.count(), 0);
}

FISHBONE_TEST(TestSubjectLinks)
#include "tst_subjectlinks.moc"
