// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/diagramcounts.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

/** The label in the status bar, in a window with the diagram of eight subjects. */
class TestDiagramCounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsSubjectsAndTheSelection();
    void followsEdits();
    void isEmptyWithoutADocument();
};

void TestDiagramCounts::countsSubjectsAndTheSelection()
{
    AppFixture app;
    const auto *const counts = app.window.findChild<DiagramCounts *>();
    QCOMPARE(counts->text(), QStringLiteral("8 subject(s)"));
    app.select("People");
    QCOMPARE(counts->text(), QStringLiteral("8 subject(s), 1 selected"));
}

void TestDiagramCounts::followsEdits()
{
    AppFixture app;
    const auto *const counts = app.window.findChild<DiagramCounts *>();
    app.select("People");
    app.trigger("delete"); // with three below it
    QVERIFY(counts->text().startsWith(QLatin1String("4 ")));
    app.trigger("undo");
    QVERIFY(counts->text().startsWith(QLatin1String("8 ")));
}

void TestDiagramCounts::isEmptyWithoutADocument()
{
    AppFixture app;
    app.trigger("close");
    QVERIFY(!app.window.findChild<DiagramCounts *>()->isVisible());
}

FISHBONE_TEST(TestDiagramCounts)
#include "tst_diagramcounts.moc"
