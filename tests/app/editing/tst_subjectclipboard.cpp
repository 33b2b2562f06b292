// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QStatusBar>

namespace {

void setClipboard(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    AppFixture::settle();
}

void pressIn(AppFixture &app, Qt::Key key)
{
    QTest::keyClick(app.window.editor()->view(), key, Qt::ControlModifier);
    AppFixture::settle();
}

} // namespace

class TestSubjectClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldPutIndentedTextOnTheClipboard();
    void shouldPutSeveralBonesOnTheClipboard();
    void shouldKeepAllAttributesOfWhatWasCopiedHere();
    void shouldMakeATreeOfText_data();
    void shouldMakeATreeOfText();
    void shouldMakeADiagramThatCanBeEditedOfText();
    void shouldMakeTheHeadOfAnEmptyDocumentOfWhatIsPasted_data();
    void shouldMakeTheHeadOfAnEmptyDocumentOfWhatIsPasted();
    void shouldKeepTheHeadThatHasATitle();
    void shouldMakeAHeadOfABoneOfAnotherDocument();
    void shouldPreferWhatWasCopiedLast();
    void shouldTakeTheTextOfAnotherWindowAsItStands();
    void shouldSayWhyTextCannotBePasted();
    void shouldOfferPastingWhenThereIsText();
    void shouldLeaveTextFieldsTheirClipboard();
};

void TestSubjectClipboard::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_subjectclipboard"));
}

void TestSubjectClipboard::init()
{
    QGuiApplication::clipboard()->clear();
}

void TestSubjectClipboard::shouldPutIndentedTextOnTheClipboard()
{
    AppFixture app;
    app.select("People");
    pressIn(app, Qt::Key_C);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("People\n\tToo few\n\t\tIllness\n\tToo new\n"));
    app.select("Rust");
    pressIn(app, Qt::Key_X);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Rust\n"));
}

void TestSubjectClipboard::shouldPutSeveralBonesOnTheClipboard()
{
    AppFixture app;
    app.window.session()->select({app.find("Material"), app.find("Rust"), app.find("Too few")});
    AppFixture::settle();
    pressIn(app, Qt::Key_C);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("Too few\n\tIllness\nMaterial\n\tRust\n"));
}

void TestSubjectClipboard::shouldKeepAllAttributesOfWhatWasCopiedHere()
{
    AppFixture app;
    app.subject("Rust")->setProgress(70);
    app.select("Material");
    pressIn(app, Qt::Key_C);
    app.select("Machines");
    pressIn(app, Qt::Key_V);
    QVERIFY2(app.text().contains(QLatin1String("Machines[Material[Rust]],Material[Rust]")),
             qPrintable(app.text()));
    const TreeItem *const pasted = app.subject("Machines")->childAtIndex(0)->childAtIndex(0);
    QCOMPARE(pasted->progress(), 70);
}

void TestSubjectClipboard::shouldMakeATreeOfText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");

    const auto row = [](const char *name, const char *text, const char *result) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(result);
    };
    row("one line", "Wear", "Machines[Wear]");
    row("a tree", "Wear\n\tBelt\n\t\tOld\n\tGear\n", "Machines[Wear[Belt[Old],Gear]]");
    row("several trees", "Wear\n  Belt\nHeat\n", "Machines[Wear[Belt],Heat]");
    row("indented all over", "    Wear\n      Belt\n    Heat\n", "Machines[Wear[Belt],Heat]");
    row("lines of another system", "Wear\r\n\tBelt\r\n", "Machines[Wear[Belt]]");
    row("markdown list", "- Wear\n  - Belt\n- Heat\n", "Machines[Wear[Belt],Heat]");
    row("markdown with stars and numbers", "1. Wear\n   * Belt\n2. Heat\n",
        "Machines[Wear[Belt],Heat]");
    row("markdown below a line of text", "Reasons:\n\n- Wear\n- Heat\n",
        "Machines[Reasons:[Wear,Heat]]");
    row("markdown headings", "# Wear\n\n## Belt\n\n# Heat\n", "Machines[Wear[Belt],Heat]");
    row("text with a dash", "Wear - and tear\n\t-5 degrees\n",
        "Machines[Wear - and tear[-5 degrees]]");
}

void TestSubjectClipboard::shouldMakeATreeOfText()
{
    QFETCH(QString, text);
    QFETCH(QString, result);
    AppFixture app;
    const QString before = app.text();
    app.select("Machines");
    setClipboard(text);
    pressIn(app, Qt::Key_V);
    QVERIFY2(app.text().contains(QStringLiteral(",%1,").arg(result)), qPrintable(app.text()));
    QVERIFY(app.window.isWindowModified());
    QCOMPARE(app.window.editor()->undoStack()->commandNames().size(), 1);
    // The last one at the top of what came is shown and selected.
    const QString last = app.subject("Machines")->childItems().constLast()->title();
    QCOMPARE(app.selectedInDrawing(), QStringList(last));

    app.trigger("undo");
    QCOMPARE(app.text(), before);
    app.trigger("redo");
    QVERIFY(app.text().contains(result));
}

void TestSubjectClipboard::shouldMakeTheHeadOfAnEmptyDocumentOfWhatIsPasted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    QTest::newRow("a tree") << QStringLiteral("Wear\n\tBelt\n\t\tOld\n\tGear\n")
                            << QStringLiteral("Wear[Belt[Old],Gear]");
    QTest::newRow("one line") << QStringLiteral("Wear") << QStringLiteral("Wear");
    QTest::newRow("several trees")
        << QStringLiteral("Wear\n\tBelt\nHeat\n") << QStringLiteral("自由主题[Wear[Belt],Heat]");
}

void TestSubjectClipboard::shouldMakeTheHeadOfAnEmptyDocumentOfWhatIsPasted()
{
    QFETCH(QString, text);
    QFETCH(QString, result);
    AppFixture app;
    app.trigger("new");
    const QString before = app.text();
    QGuiApplication::clipboard()->setText(text);
    AppFixture::settle();
    pressIn(app, Qt::Key_V);
    QCOMPARE(app.text(), result);
    QVERIFY(app.window.isWindowModified());
    pressIn(app, Qt::Key_Z); // one step
    QCOMPARE(app.text(), before);
    QVERIFY(!app.window.isWindowModified());
    app.trigger("redo");
    QCOMPARE(app.text(), result);
}

void TestSubjectClipboard::shouldKeepTheHeadThatHasATitle()
{
    AppFixture app;
    app.trigger("new");
    app.window.editor()->renameItem(app.window.editor()->rootIndex(), QStringLiteral("Late"));
    AppFixture::settle();
    app.window.session()->select(app.window.editor()->rootIndex());
    QGuiApplication::clipboard()->setText(QStringLiteral("Wear\n\tBelt\n"));
    AppFixture::settle();
    pressIn(app, Qt::Key_V);
    QCOMPARE(app.text(), QStringLiteral("Late[Wear[Belt]]"));
}

void TestSubjectClipboard::shouldMakeAHeadOfABoneOfAnotherDocument()
{
    AppFixture app;
    app.subject("Material")->setProgress(70);
    app.select("Material");
    pressIn(app, Qt::Key_C);
    app.trigger("new");
    pressIn(app, Qt::Key_V);
    QCOMPARE(app.text(), QStringLiteral("Material[Rust]"));
    const TreeItem *const head = app.document()->treeItem()->childAtIndex(0);
    QCOMPARE(head->progress(), 70);
    QCOMPARE(head->childAtIndex(0)->pid(), head->uuid());
    QCOMPARE(app.window.tabs()->current()->name(), QStringLiteral("Material"));
}

void TestSubjectClipboard::shouldMakeADiagramThatCanBeEditedOfText()
{
    AppFixture app;
    app.select("Machines");
    setClipboard(QStringLiteral("Wear\n\tBelt\n"));
    pressIn(app, Qt::Key_V);
    pressIn(app, Qt::Key_V); // below what was just pasted
    QSet<QString> uuids;
    const QModelIndexList all = app.window.model()->searchModelIndexes(QString());
    for (const QModelIndex &index : all) {
        const TreeItem *const subject = app.window.model()->getTreeItem(index);
        QVERIFY(!subject->uuid().isEmpty());
        uuids.insert(subject->uuid());
        if (subject->title() == QLatin1String("Wear") || subject->title() == QLatin1String("Belt"))
            QCOMPARE(subject->pid(), subject->parent()->uuid());
    }
    QCOMPARE(uuids.size(), all.size());
    QVERIFY2(app.text().contains(QLatin1String("Machines[Wear[Belt,Wear[Belt]]]")),
             qPrintable(app.text()));
}

void TestSubjectClipboard::shouldPreferWhatWasCopiedLast()
{
    AppFixture app;
    app.select("Rust");
    pressIn(app, Qt::Key_C);
    setClipboard(QStringLiteral("Wear"));
    app.select("Machines");
    pressIn(app, Qt::Key_V);
    QVERIFY2(app.text().contains(QLatin1String("Machines[Wear]")), qPrintable(app.text()));
}

void TestSubjectClipboard::shouldTakeTheTextOfAnotherWindowAsItStands()
{
    AppFixture app;
    auto *const data = new QMimeData; // the clipboard takes it over
    data->setData(QStringLiteral("application/x-fishbone-copy"), "elsewhere");
    data->setText(QStringLiteral("1. Wear\n\t2. Belt\n"));
    QGuiApplication::clipboard()->setMimeData(data);
    app.select("Machines");
    pressIn(app, Qt::Key_V);
    QVERIFY2(app.text().contains(QLatin1String("Machines[1. Wear[2. Belt]]")),
             qPrintable(app.text()));
}

void TestSubjectClipboard::shouldSayWhyTextCannotBePasted()
{
    AppFixture app;
    const QString before = app.text();
    QString deep;
    for (int level = 0; level < 600; ++level)
        deep += QString(level, QLatin1Char(' ')) + QStringLiteral("x\n");
    app.select("Machines");
    setClipboard(deep);
    pressIn(app, Qt::Key_V);
    QCOMPARE(app.text(), before);
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
    QVERIFY2(app.window.statusBar()->currentMessage().contains(QLatin1String("512 levels")),
             qPrintable(app.window.statusBar()->currentMessage()));
}

void TestSubjectClipboard::shouldOfferPastingWhenThereIsText()
{
    AppFixture app;
    app.select("Machines");
    QVERIFY(!app.action("paste")->isEnabled());
    setClipboard(QStringLiteral("Wear"));
    QVERIFY(app.action("paste")->isEnabled());
    app.window.editor()->scene()->clearSelection();
    AppFixture::settle();
    QVERIFY(!app.action("paste")->isEnabled()); // there is nothing to paste it below
}

void TestSubjectClipboard::shouldLeaveTextFieldsTheirClipboard()
{
    AppFixture app;
    app.select("Machines");
    const QString before = app.text();
    setClipboard(QStringLiteral("Mach"));
    auto *const filter = app.widget<QLineEdit>("filter");
    filter->setFocus();
    QTest::keyClick(filter, Qt::Key_V, Qt::ControlModifier);
    AppFixture::settle();
    QCOMPARE(filter->text(), QStringLiteral("Mach"));
    QCOMPARE(app.text(), before);
    // The toolkit forgets the fading of the field's clear button when the field goes before its
    // end.
    QTest::qWait(300);
}

FISHBONE_TEST(TestSubjectClipboard)
#include "tst_subjectclipboard.moc"
