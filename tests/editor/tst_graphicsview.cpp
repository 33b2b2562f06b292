// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMetaMethod>
#include <QtTest>

#include <fishbone/items/linkitem.h>
#include <tests/editor/movingstage.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

using namespace TestSupport;

/** The view's construction, and pressing and releasing its buttons. */
class TestGraphicsView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeSetUpForADiagram();
    void shouldDeclareSignalsInOrder();
    void shouldLogPressesAndReleases();
    void shouldShowAnArrowAfterEveryButton_data();
    void shouldShowAnArrowAfterEveryButton();
    void shouldShowAnArrowWhenTheMouseEnters();
    void shouldFadeWhatIsSelected();
    void shouldFadeTheTopmostOfNestedSpears();
    void shouldFadeForTheLeftButtonOnly_data();
    void shouldFadeForTheLeftButtonOnly();
    void shouldFadeWhateverModifierIsHeld();
    void shouldReportAMoveWithoutTargetAfterAClick();
    void shouldReportTheMovedSpearsInDocumentOrder();
    void shouldReportNothingWithoutASelection();
    void shouldRestoreFadedSpearsAfterAnotherButton();
    void shouldRestoreSpearsThatAnEarlierPressLeftFaded();
    void shouldEndAMoveWhenADialogBlocksTheWindow();
    void shouldBeginNoMoveWhenThePressOpensADialog();
};

void TestGraphicsView::shouldBeSetUpForADiagram()
{
    FishEditor editor;
    const GraphicsView view(&editor);

    QVERIFY(!view.parent());
    QVERIFY(view.acceptDrops());
    QCOMPARE(view.renderHints(),
             QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    QCOMPARE(view.dragMode(), QGraphicsView::ScrollHandDrag);
    QCOMPARE(int(view.optimizationFlags()), int(QGraphicsView::DontSavePainterState));
    QCOMPARE(view.viewportUpdateMode(), QGraphicsView::SmartViewportUpdate);
    QCOMPARE(view.transformationAnchor(), QGraphicsView::AnchorUnderMouse);
    QVERIFY(!view.linkedSpear());
    QCOMPARE(view.insertRow(QPoint(3, 3), nullptr), 0);
}

void TestGraphicsView::shouldDeclareSignalsInOrder()
{
    const QMetaObject &type = GraphicsView::staticMetaObject;
    QStringList declared;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        QVERIFY(method.methodType() == QMetaMethod::Signal);
        declared.append(
            QStringLiteral("%1 %2").arg(QString::fromLatin1(method.methodSignature()),
                                        QString::fromLatin1(method.parameterNames().join(' '))));
    }

    const QStringList expected{
        QStringLiteral("rightClicked(void*) item"),
        QStringLiteral(
            "moveSpear(QPoint,QList<QGraphicsItem*>,QModelIndex,int) pos items target row"),
        QStringLiteral("dropTo(const QMimeData*,QModelIndex,int) data target row"),
        QStringLiteral("spearItemClicked(SpearItem*) spear"),
    };
    QCOMPARE(declared, expected);
}

void TestGraphicsView::shouldLogPressesAndReleases()
{
    MovingStage stage;

    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral(
                                         "^GraphicsView::mousePressEvent QMouseEvent\\(.*Press")));
    stage.mouse.press(stage.nowhere(), Qt::RightButton);
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression(QStringLiteral(
                             "^GraphicsView::mouseReleaseEvent QMouseEvent\\(.*Release")));
    stage.mouse.release(stage.nowhere(), Qt::RightButton);
}

void TestGraphicsView::shouldShowAnArrowAfterEveryButton_data()
{
    QTest::addColumn<int>("button");

    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
}

void TestGraphicsView::shouldShowAnArrowAfterEveryButton()
{
    QFETCH(int, button);
    MovingStage stage;
    QWidget *const viewport = stage.view.viewport();

    viewport->setCursor(Qt::CrossCursor);
    stage.mouse.press(stage.nowhere(), Qt::MouseButton(button));
    QCOMPARE(viewport->cursor().shape(), Qt::ArrowCursor);
    viewport->setCursor(Qt::CrossCursor);
    stage.mouse.release(stage.nowhere(), Qt::MouseButton(button));
    QCOMPARE(viewport->cursor().shape(), Qt::ArrowCursor);
}

void TestGraphicsView::shouldShowAnArrowWhenTheMouseEnters()
{
    MovingStage stage;
    stage.view.viewport()->setCursor(Qt::CrossCursor);

    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(&stage.view, &event);

    QCOMPARE(stage.view.viewport()->cursor().shape(), Qt::ArrowCursor);
}

void TestGraphicsView::shouldFadeWhatIsSelected()
{
    MovingStage stage;

    stage.mouse.press(stage.tip("Method"));
    QCOMPARE(stage.faded(), QStringLiteral("Method"));
    QVERIFY(stage.spear("Method")->isSelected());

    stage.mouse.release(stage.tip("Method"));
    QCOMPARE(stage.faded(), QString());
}

void TestGraphicsView::shouldFadeTheTopmostOfNestedSpears()
{
    MovingStage stage;
    stage.select({QStringLiteral("Train"), QStringLiteral("Man"), QStringLiteral("Wear")});

    stage.mouse.press(stage.tip("Wear"));

    QCOMPARE(stage.faded(), QStringLiteral("Man Wear"));
    stage.mouse.release(stage.tip("Wear"));
    QCOMPARE(stage.faded(), QString());
}

void TestGraphicsView::shouldFadeForTheLeftButtonOnly_data()
{
    shouldShowAnArrowAfterEveryButton_data();
}

void TestGraphicsView::shouldFadeForTheLeftButtonOnly()
{
    QFETCH(int, button);
    MovingStage stage;
    stage.select({QStringLiteral("Method")});

    stage.mouse.press(stage.tip("Method"), Qt::MouseButton(button));
    QCOMPARE(stage.faded(), button == Qt::LeftButton ? QStringLiteral("Method") : QString());
    stage.mouse.release(stage.tip("Method"), Qt::MouseButton(button));
    QCOMPARE(stage.takeMoves(),
             button == Qt::LeftButton ? QStringLiteral("Method to nothing row 0") : QString());
}

void TestGraphicsView::shouldFadeWhateverModifierIsHeld()
{
    for (const Qt::KeyboardModifier modifier :
         {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        MovingStage stage;
        stage.select({QStringLiteral("Method")});
        stage.mouse.press(stage.tip("Method"), Qt::LeftButton, modifier);
        QCOMPARE(stage.faded(), QStringLiteral("Method"));
    }
}

void TestGraphicsView::shouldReportAMoveWithoutTargetAfterAClick()
{
    MovingStage stage;
    const QPoint tip = stage.tip("Method");

    stage.mouse.press(tip);
    QCOMPARE(stage.takeMoves(), QString());
    stage.mouse.release(tip + QPoint(2, 1));

    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to nothing row 0"));
    QCOMPARE(stage.position, tip + QPoint(2, 1));
}

void TestGraphicsView::shouldReportTheMovedSpearsInDocumentOrder()
{
    MovingStage stage;
    stage.select({QStringLiteral("Matter"), QStringLiteral("Wear"), QStringLiteral("Cost"),
                  QStringLiteral("Man"), QStringLiteral("Train")});

    stage.mouse.click(stage.tip("Matter"));

    // All of them, nested ones included.
    QCOMPARE(stage.takeMoves(), QStringLiteral("Man+Train+Cost+Wear+Matter to nothing row 0"));
}

void TestGraphicsView::shouldReportNothingWithoutASelection()
{
    MovingStage stage;

    stage.mouse.press(stage.nowhere());
    stage.mouse.move(stage.tip("Method"));
    QCOMPARE(stage.linked(), QString());
    stage.mouse.release(stage.tip("Method"));

    QCOMPARE(stage.takeMoves(), QString());
    QCOMPARE(stage.faded(), QString());
}

void TestGraphicsView::shouldRestoreFadedSpearsAfterAnotherButton()
{
    MovingStage stage;
    const QPoint tip = stage.tip("Method");
    stage.mouse.press(tip);
    stage.mouse.move(stage.tip("Machine"));

    stage.mouse.press(tip, Qt::RightButton);
    stage.mouse.release(tip, Qt::RightButton);
    QCOMPARE(stage.faded(), QStringLiteral("Method"));
    stage.mouse.release(tip);

    QCOMPARE(stage.faded(), QString());
    QCOMPARE(stage.linked(), QString());
    // The gesture was over with the first release.
    QCOMPARE(stage.takeMoves(), QString());
}

void TestGraphicsView::shouldRestoreSpearsThatAnEarlierPressLeftFaded()
{
    MovingStage stage;
    stage.select({QStringLiteral("Method")});
    stage.mouse.press(stage.nowhere());
    QCOMPARE(stage.faded(), QStringLiteral("Method"));
    stage.select({QStringLiteral("Wear")});

    // The release got lost.
    stage.mouse.press(stage.tip("Wear"));

    QCOMPARE(stage.faded(), QStringLiteral("Wear"));
}

void TestGraphicsView::shouldEndAMoveWhenADialogBlocksTheWindow()
{
    MovingStage stage;
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QStringLiteral("Matter 0"));

    // The release goes nowhere, since the window is blocked.
    const ModalDriver<QDialog> user([](QDialog &dialog) { dialog.reject(); });
    QDialog().exec();

    QVERIFY(user.isDone());
    QCOMPARE(stage.faded(), QString());
    QCOMPARE(stage.linked(), QString());
    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to nothing row 0"));
    stage.mouse.move(stage.tip("Machine"));
    QCOMPARE(stage.linked(), QString());
    QCOMPARE(stage.takeMoves(), QString());
}

void TestGraphicsView::shouldBeginNoMoveWhenThePressOpensADialog()
{
    MovingStage stage;
    stage.subject(QStringLiteral("Matter"))->setUrl(QStringLiteral("https://example.org"));
    stage.editor.updateFish(false);
    stage.select({QStringLiteral("Method")});
    LinkItem::setOpener([](const QUrl &) {
        const ModalDriver<QDialog> user([](QDialog &dialog) { dialog.reject(); });
        QDialog().exec();
    });

    stage.mouse.press(middleOf(stage.view, stage.spear("Matter")->linkItem()));
    LinkItem::setOpener({});

    QCOMPARE(stage.faded(), QString());
    stage.mouse.move(stage.tip("Machine"));
    QCOMPARE(stage.linked(), QString());
    QCOMPARE(stage.takeMoves(), QString());
}

FISHBONE_TEST(TestGraphicsView)
#include "tst_graphicsview.moc"
