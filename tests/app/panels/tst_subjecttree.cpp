// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <QTreeView>

namespace {

/** How many pixels of @p color there are in front of the title of @p index. */
int pixelsOfIcon(QTreeView &view, const QModelIndex &index, const QColor &color)
{
    const QImage shown = view.viewport()->grab(view.visualRect(index)).toImage();
    constexpr int iconWidth = 20;
    int count = 0;
    for (int x = 0; x < iconWidth; ++x) {
        for (int y = 0; y < shown.height(); ++y)
            count += shown.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

} // namespace

class TestSubjectTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldShowTheIconOfASelectedRow();
};

void TestSubjectTree::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_subjecttree"));
}

void TestSubjectTree::shouldShowTheIconOfASelectedRow()
{
    AppFixture app;
    QTreeView *const view = app.window.tree()->view();
    const QColor color = view->palette().color(QPalette::HighlightedText);
    app.select("Machines");
    const QModelIndex row = view->currentIndex();
    QCOMPARE(row.data().toString(), QStringLiteral("Machines"));
    QVERIFY(!row.data(Qt::DecorationRole).isNull());
    constexpr int dozens = 36; // of the 256 that an icon has
    QVERIFY(pixelsOfIcon(*view, row, color) > dozens);
}

FISHBONE_TEST(TestSubjectTree)
#include "tst_subjecttree.moc"
