// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/rubberband.h>

#include <fishbone/items/textitem.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <QRubberBand>

namespace {

/** The canvas with all bones expanded and all of them in sight. */
class BandFixture : public AppFixture
{
public:
    explicit BandFixture(int look = DiagramLook::Clear)
    {
        window.editor()->setLook(DiagramLook::Kind(look));
        trigger("expandall");
        trigger("fit");
    }

    QWidget *viewport() const { return window.editor()->view()->viewport(); }
    QRect seen(const char *title) const
    {
        const QRectF text = subject(title)->spear()->textItem()->sceneBoundingRect();
        return window.editor()->view()->mapFromScene(text).boundingRect();
    }
    /** Around the titles of all @p titles. */
    QRect around(const QList<const char *> &titles) const
    {
        QRect all;
        for (const char *title : titles)
            all |= seen(title);
        return all.adjusted(-4, -4, 4, 4);
    }

    void move(const QPoint &to, Qt::KeyboardModifiers keys = {}) const
    {
        QMouseEvent event(QEvent::MouseMove, to, viewport()->mapToGlobal(to), Qt::NoButton,
                          Qt::LeftButton, keys);
        QApplication::sendEvent(viewport(), &event);
    }
    /** Draws a frame from the corner of the canvas, where there is nothing, to @p to. */
    void begin(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers keys = {}) const
    {
        QVERIFY(!window.editor()->view()->itemAt(from));
        QTest::mousePress(viewport(), Qt::LeftButton, keys, from);
        move((from + to) / 2, keys);
        move(to, keys);
    }
    void draw(const QRect &frame, Qt::KeyboardModifiers keys = {}) const
    {
        begin(frame.topLeft(), frame.bottomRight(), keys);
        QTest::mouseRelease(viewport(), Qt::LeftButton, keys, frame.bottomRight());
        settle();
    }
    QRubberBand *frame() const { return viewport()->findChild<QRubberBand *>(); }
};

} // namespace

/** The frame that the left button draws where there is nothing. */
class TestRubberBand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldSelectWhatItTouches_data();
    void shouldSelectWhatItTouches();
    void shouldAddWithCtrlOrShift_data();
    void shouldAddWithCtrlOrShift();
    void shouldDeselectWhatItLeavesAgain();
    void shouldGoBackWithEscape();
    void shouldMoveNothing();
    void shouldDeselectAllAfterAClickAlone();
};

void TestRubberBand::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_rubberband"));
}

void TestRubberBand::shouldSelectWhatItTouches_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("clear") << int(DiagramLook::Clear);
    QTest::newRow("classic") << int(DiagramLook::Classic);
}

void TestRubberBand::shouldSelectWhatItTouches()
{
    QFETCH(int, look);
    BandFixture app(look);
    const QRect all =
        app.around({"People", "Too few", "Illness", "Too new", "Machines", "Material", "Rust"});
    app.begin(all.topLeft(), all.bottomRight());
    QVERIFY(app.frame());
    QVERIFY(app.frame()->isVisible());
    QCOMPARE(app.frame()->geometry(), QRect(all.topLeft(), all.bottomRight()));
    if (const QByteArray folder = qgetenv("FISHBONE_TEST_PICTURES"); !folder.isEmpty())
        app.window.grab().save(
            QStringLiteral("%1/band-%2.png").arg(QString::fromLocal8Bit(folder)).arg(look));
    QTest::mouseRelease(app.viewport(), Qt::LeftButton, {}, all.bottomRight());
    AppFixture::settle();
    QVERIFY(!app.frame()->isVisible());
    const QStringList selected = app.selectedInDrawing();
    for (const char *title :
         {"People", "Too few", "Illness", "Too new", "Machines", "Material", "Rust"})
        QVERIFY2(selected.contains(QLatin1String(title)), title);
    QRect upper = app.around({"Machines"}); // half of it, where no other title is
    upper.setHeight(upper.height() / 2);
    app.draw(upper);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    QCOMPARE(app.selectedInTree(), QStringList(QStringLiteral("Machines")));
}

void TestRubberBand::shouldAddWithCtrlOrShift_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Ctrl") << int(Qt::ControlModifier);
    QTest::newRow("Shift") << int(Qt::ShiftModifier);
}

void TestRubberBand::shouldAddWithCtrlOrShift()
{
    QFETCH(int, key);
    BandFixture app;
    app.select("People");
    app.draw(app.around({"Machines"}), Qt::KeyboardModifiers(key));
    QCOMPARE(app.selectedInDrawing(),
             QStringList({QStringLiteral("People"), QStringLiteral("Machines")}));
    app.draw(app.around({"Material"}));
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Material")));
}

void TestRubberBand::shouldDeselectWhatItLeavesAgain()
{
    const BandFixture app;
    const QRect machines = app.around({"Machines"});
    app.begin(machines.topLeft(), machines.bottomRight());
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    app.move(machines.topLeft() + QPoint(1, 1));
    QCOMPARE(app.selectedInDrawing(), QStringList());
    QTest::mouseRelease(app.viewport(), Qt::LeftButton, {}, machines.topLeft());
}

void TestRubberBand::shouldGoBackWithEscape()
{
    BandFixture app;
    app.select("People");
    const QRect machines = app.around({"Machines"});
    app.begin(machines.topLeft(), machines.bottomRight());
    QTest::keyClick(app.window.editor()->view(), Qt::Key_Escape);
    QVERIFY(!app.frame()->isVisible());
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
    app.move(machines.bottomRight() + QPoint(2, 2));
    QTest::mouseRelease(app.viewport(), Qt::LeftButton, {}, machines.bottomRight());
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("People")));
}

void TestRubberBand::shouldMoveNothing()
{
    BandFixture app;
    app.select("People");
    const QString text = app.text();
    app.draw(app.around({"Machines", "Material"}));
    QCOMPARE(app.text(), text);
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
    QVERIFY(!app.document()->modified());
}

void TestRubberBand::shouldDeselectAllAfterAClickAlone()
{
    BandFixture app;
    app.select("People");
    const QPoint nothing = app.around({"Machines"}).topLeft();
    QTest::mouseClick(app.viewport(), Qt::LeftButton, {}, nothing);
    AppFixture::settle();
    QCOMPARE(app.selectedInDrawing(), QStringList());
    QVERIFY(!app.frame());
}

FISHBONE_TEST(TestRubberBand)
#include "tst_rubberband.moc"
