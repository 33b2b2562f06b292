// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/treeitem.h>

#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <tests/model/treeitemtreeparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <QJsonObject>
#include <QtTest>

#include <memory>

using namespace TestSupport;

/** What happens to the styles of nodes while the user edits one of them. */
class TestTreeItemStyling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLeaveTheDialogItsStyleWhileOthersGo();
    void shouldLeaveEachOfTwoDialogsItsStyle();
};

void TestTreeItemStyling::shouldLeaveTheDialogItsStyleWhileOthersGo()
{
    TreeItem node;
    node.setSpearStyle(TestSupport::styleShowing(3));
    auto other = std::make_unique<TreeItem>();
    other->setSpearStyle(TestSupport::styleShowing(4));
    const ModalDriver<SpearStyleDialog> user([&](SpearStyleDialog &dialog) {
        other->delSpearStyle();
        other.reset();
        dialog.textCountChanged(QStringLiteral("17"));
        dialog.accept();
    });

    node.setSpearStyle();

    QVERIFY(user.isDone());
    QCOMPARE(node.spearStyle()->textCount(), 17);
}

void TestTreeItemStyling::shouldLeaveEachOfTwoDialogsItsStyle()
{
    TreeItem node;
    node.setSpearStyle(TestSupport::styleShowing(3));
    const ModalDriver<SpearStyleDialog> user([&node](SpearStyleDialog &dialog) {
        node.setSpearStyle(TestSupport::styleShowing(5));
        const ModalDriver<SpearStyleDialog> second([&node](SpearStyleDialog &inner) {
            node.setSpearStyle(TestSupport::styleShowing(7));
            inner.textCountChanged(QStringLiteral("8"));
            inner.accept();
        });
        node.setSpearStyle();
        QVERIFY(second.isDone());
        QCOMPARE(node.spearStyle()->textCount(), 7);
        node.delSpearStyle();
        dialog.textCountChanged(QStringLiteral("17"));
        dialog.accept();
    });

    node.setSpearStyle();

    QVERIFY(user.isDone());
    QCOMPARE(node.spearStyle(), nullptr);
}

FISHBONE_TEST(TestTreeItemStyling)
#include "tst_treeitem_styling.moc"
