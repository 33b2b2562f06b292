// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMetaMethod>
#include <QtTest>

#include <fishbone/items/textitem.h>
#include <tests/support/editorfixture.h>
#include <tests/support/signalrecorder.h>
#include <tests/support/viewmouse.h>

using namespace TestSupport;

/// The view's construction and what the left button does: pressing, moving, releasing.
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
    void shouldMarkTheSpearUnderTheMouse();
    void shouldMarkWithinTenPixels_data();
    void shouldMarkWithinTenPixels();
    void shouldMarkTheBottomMostSpear();
    void shouldMarkNoSelectedSpear();
    void shouldMarkNothingUnlessPressed();
    void shouldFollowTheMouseAlongOneTarget();
    void shouldReportTheTargetOfAMove();
    void shouldReportAMoveIntoItselfWithoutTarget();
    void shouldClearAStaleTargetAtThePress();
    void shouldForgetATargetThatDies();
    void shouldForgetMovedSpearsThatDie();
    void shouldForgetEverythingThatIsRebuilt();
    void shouldCarryOutAMoveInTheEditor();
    void shouldPutEverythingBackWithoutATarget();
};

namespace {
QString effect()
{
    return QStringLiteral("Effect[Man[Train,Cost,Time],Machine[Wear],Method,Matter]");
}

/// An expanded diagram on the screen. What the view asks of the editor after a move is written down
/// and, unless \a connected, not carried out.
class Stage : public EditorFixture
{
public:
    explicit Stage(bool connected = false)
        : EditorFixture(effect())
        , view(*editor.view())
        , mouse(view)
    {
        editor.expandAll();
        if (!show())
            qFatal("The editor does not show.");
        QObject::connect(&view, &GraphicsView::moveSpear, &view,
                         [this](const QPoint &pos, const QList<QGraphicsItem *> &items,
                                const QModelIndex &target, int row) {
                             QStringList titles;
                             for (const QGraphicsItem *item : items)
                                 titles.append(qgraphicsitem_cast<const SpearItem *>(item)->text());
                             moves.append(QStringLiteral("%1 to %2 row %3")
                                              .arg(titles.join(QLatin1Char('+')),
                                                   target.isValid() ? target.data().toString()
                                                                    : QStringLiteral("nothing"),
                                                   QString::number(row)));
                             position = pos;
                         });
        if (!connected)
            QObject::disconnect(&view, &GraphicsView::moveSpear, &editor, nullptr);
    }

    QPoint tip(const char *title) const { return tipOf(view, spear(QString::fromLatin1(title))); }
    SpearItem *spear(const QString &title) const { return EditorFixture::spear(title); }
    SpearItem *spear(const char *title) const { return spear(QString::fromLatin1(title)); }
    /// A point of the viewport with nothing around.
    QPoint nowhere() const { return {8, 8}; }

    /// "Man Wear": the titles of all faded spears.
    QString faded() const
    {
        QStringList titles;
        for (const QString &title : all()) {
            const SpearItem *const item = spear(title);
            if (qFuzzyCompare(item->opacity(), 0.2) && item->isMoving())
                titles.append(title);
            else if (!qFuzzyCompare(item->opacity(), 1.0) || item->isMoving())
                titles.append(title + QLatin1Char('?'));
        }
        return titles.join(QLatin1Char(' '));
    }

    /// "Method 0": the target with the row shown at it.
    QString linked() const
    {
        QStringList titles;
        for (const QString &title : all()) {
            const SpearItem *const item = spear(title);
            if (item->isLinked() != (item == view.linkedSpear()))
                titles.append(title + QLatin1Char('?'));
            if (item->isLinked())
                titles.append(QStringLiteral("%1 %2").arg(title).arg(item->linkNumber()));
        }
        return titles.join(QLatin1Char(' '));
    }

    QString takeMoves()
    {
        const QString text = moves.join(QLatin1String("; "));
        moves.clear();
        return text;
    }

    GraphicsView &view;
    ViewMouse mouse;
    QStringList moves;
    QPoint position;

private:
    QStringList all() const
    {
        QStringList titles;
        for (const char *title :
             {"Effect", "Man", "Train", "Cost", "Time", "Machine", "Wear", "Method", "Matter"}) {
            if (spear(title))
                titles.append(QString::fromLatin1(title));
        }
        return titles;
    }
};
} // namespace

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
    Stage stage;

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
    Stage stage;
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
    Stage stage;
    stage.view.viewport()->setCursor(Qt::CrossCursor);

    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(&stage.view, &event);

    QCOMPARE(stage.view.viewport()->cursor().shape(), Qt::ArrowCursor);
}

void TestGraphicsView::shouldFadeWhatIsSelected()
{
    Stage stage;

    stage.mouse.press(stage.tip("Method"));
    QCOMPARE(stage.faded(), QStringLiteral("Method"));
    QVERIFY(stage.spear("Method")->isSelected());

    stage.mouse.release(stage.tip("Method"));
    QCOMPARE(stage.faded(), QString());
}

void TestGraphicsView::shouldFadeTheTopmostOfNestedSpears()
{
    Stage stage;
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
    Stage stage;
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
        Stage stage;
        stage.select({QStringLiteral("Method")});
        stage.mouse.press(stage.tip("Method"), Qt::LeftButton, modifier);
        QCOMPARE(stage.faded(), QStringLiteral("Method"));
    }
}

void TestGraphicsView::shouldReportAMoveWithoutTargetAfterAClick()
{
    Stage stage;
    const QPoint tip = stage.tip("Method");

    stage.mouse.press(tip);
    QCOMPARE(stage.takeMoves(), QString());
    stage.mouse.release(tip + QPoint(2, 1));

    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to nothing row 0"));
    QCOMPARE(stage.position, tip + QPoint(2, 1));
}

void TestGraphicsView::shouldReportTheMovedSpearsInDocumentOrder()
{
    Stage stage;
    stage.select({QStringLiteral("Matter"), QStringLiteral("Wear"), QStringLiteral("Cost"),
                  QStringLiteral("Man"), QStringLiteral("Train")});

    stage.mouse.click(stage.tip("Matter"));

    // All of them, nested ones included.
    QCOMPARE(stage.takeMoves(), QStringLiteral("Man+Train+Cost+Wear+Matter to nothing row 0"));
}

void TestGraphicsView::shouldReportNothingWithoutASelection()
{
    Stage stage;

    stage.mouse.press(stage.nowhere());
    stage.mouse.move(stage.tip("Method"));
    QCOMPARE(stage.linked(), QString());
    stage.mouse.release(stage.tip("Method"));

    QCOMPARE(stage.takeMoves(), QString());
    QCOMPARE(stage.faded(), QString());
}

void TestGraphicsView::shouldRestoreFadedSpearsAfterAnotherButton()
{
    Stage stage;
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
    Stage stage;
    stage.select({QStringLiteral("Method")});
    stage.mouse.press(stage.nowhere());
    QCOMPARE(stage.faded(), QStringLiteral("Method"));
    stage.select({QStringLiteral("Wear")});

    // The release got lost.
    stage.mouse.press(stage.tip("Wear"));

    QCOMPARE(stage.faded(), QStringLiteral("Wear"));
}

void TestGraphicsView::shouldMarkTheSpearUnderTheMouse()
{
    Stage stage;
    stage.mouse.press(stage.tip("Method"));
    QCOMPARE(stage.linked(), QString());

    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QStringLiteral("Matter 0"));
    stage.mouse.move(stage.tip("Wear"));
    QCOMPARE(stage.linked(), QStringLiteral("Wear 0"));
    stage.mouse.move(stage.nowhere());
    QCOMPARE(stage.linked(), QString());
}

void TestGraphicsView::shouldMarkWithinTenPixels_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<bool>("isMarked");

    // The pixels from x - 5 to x + 4, against a line of width 1 around x = 100.
    QTest::newRow("far to the left") << QPoint(-20, 0) << false;
    QTest::newRow("six to the left") << QPoint(-6, 0) << false;
    QTest::newRow("five to the left") << QPoint(-5, 0) << true;
    QTest::newRow("on the line") << QPoint(0, 0) << true;
    QTest::newRow("five to the right") << QPoint(5, 0) << true;
    QTest::newRow("six to the right") << QPoint(6, 0) << false;
    QTest::newRow("five below its end") << QPoint(0, 155) << true;
    QTest::newRow("six below its end") << QPoint(0, 156) << false;
}

void TestGraphicsView::shouldMarkWithinTenPixels()
{
    QFETCH(QPoint, offset);
    QFETCH(bool, isMarked);
    Stage stage;
    stage.editor.zoomFish(250);
    // A spear alone, its line vertical through x = 100 of the viewport.
    auto *const target = new SpearItem(QStringLiteral("x"), 0, 20);
    target->setParentItem(stage.editor.headSpear());
    const QPointF at = stage.view.mapToScene(100, 100);
    target->setLine(QLineF(at, at + QPointF(0, 200)));
    target->textItem()->setPos(at + QPointF(50, 300));
    stage.mouse.press(stage.tip("Method"));

    stage.mouse.move(QPoint(100, 150) + offset);

    QCOMPARE(target->isLinked(), isMarked);
    QCOMPARE(stage.view.linkedSpear() == target, isMarked);
}

void TestGraphicsView::shouldMarkTheBottomMostSpear()
{
    Stage stage;
    stage.mouse.press(stage.tip("Method"));

    // Where a main bone meets the backbone both are under the mouse.
    stage.mouse.move(startOf(stage.view, stage.spear("Man")));

    QCOMPARE(stage.view.linkedSpear(), stage.spear("Effect"));
}

void TestGraphicsView::shouldMarkNoSelectedSpear()
{
    Stage stage;
    stage.select({QStringLiteral("Method"), QStringLiteral("Matter")});
    // Pressed where nothing moves along, so that the other one stays where it is.
    stage.mouse.press(stage.nowhere());
    QCOMPARE(stage.faded(), QStringLiteral("Method Matter"));

    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QString());
    stage.mouse.move(stage.tip("Wear"));
    QCOMPARE(stage.linked(), QStringLiteral("Wear 0"));
}

void TestGraphicsView::shouldMarkNothingUnlessPressed()
{
    Stage stage;
    stage.select({QStringLiteral("Method")});

    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QString());
    stage.mouse.press(stage.tip("Method"), Qt::RightButton);
    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QString());
    stage.mouse.release(stage.tip("Method"), Qt::RightButton);
    stage.mouse.click(stage.tip("Method"));
    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QString());
}

void TestGraphicsView::shouldFollowTheMouseAlongOneTarget()
{
    Stage stage;
    stage.mouse.press(stage.tip("Method"));
    const SpearItem *const man = stage.spear("Man");
    const auto at = [&stage, man](double part) {
        return stage.view.mapFromScene(man->mapToScene(man->line().pointAt(part)));
    };
    const QList<SpearItem *> children = man->childSpears();
    const auto partOf = [man](const SpearItem *child) {
        return child->offset() / man->line().length();
    };

    stage.mouse.move(at(partOf(children.at(0)) / 2));
    QCOMPARE(stage.linked(), QStringLiteral("Man 0"));
    stage.mouse.move(at((partOf(children.at(0)) + partOf(children.at(1))) / 2));
    QCOMPARE(stage.linked(), QStringLiteral("Man 1"));
    stage.mouse.move(at((partOf(children.at(1)) + partOf(children.at(2))) / 2));
    QCOMPARE(stage.linked(), QStringLiteral("Man 2"));
    stage.mouse.move(at(1));
    QCOMPARE(stage.linked(), QStringLiteral("Man 3"));
    stage.mouse.release(at(1));
    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to Man row 3"));
}

void TestGraphicsView::shouldReportTheTargetOfAMove()
{
    Stage stage;
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(stage.tip("Matter"));

    stage.mouse.release(stage.tip("Matter"));

    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to Matter row 0"));
    QCOMPARE(stage.linked(), QString());
    QCOMPARE(stage.faded(), QString());
    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QString());
}

void TestGraphicsView::shouldReportAMoveIntoItselfWithoutTarget()
{
    Stage stage;
    stage.select({QStringLiteral("Man")});
    stage.mouse.press(stage.nowhere());
    stage.mouse.move(stage.tip("Cost"));
    QCOMPARE(stage.linked(), QStringLiteral("Cost 0"));

    stage.mouse.release(stage.tip("Cost"));

    QCOMPARE(stage.takeMoves(), QStringLiteral("Man to nothing row 0"));
    QCOMPARE(stage.linked(), QString());
}

void TestGraphicsView::shouldClearAStaleTargetAtThePress()
{
    Stage stage;
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(stage.tip("Matter"));
    QCOMPARE(stage.linked(), QStringLiteral("Matter 0"));

    // The release got lost.
    stage.mouse.press(stage.nowhere());

    QCOMPARE(stage.linked(), QString());
    QVERIFY(!stage.view.linkedSpear());
    stage.mouse.release(stage.nowhere());
    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to nothing row 0"));
}

void TestGraphicsView::shouldForgetATargetThatDies()
{
    Stage stage;
    stage.mouse.press(stage.tip("Method"));
    const QPoint tip = stage.tip("Matter");
    stage.mouse.move(tip);

    delete stage.spear("Matter");
    QVERIFY(!stage.view.linkedSpear());
    QCOMPARE(stage.view.insertRow(tip, nullptr), 0);
    stage.mouse.release(tip);

    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to nothing row 0"));
}

void TestGraphicsView::shouldForgetMovedSpearsThatDie()
{
    Stage stage;
    stage.select({QStringLiteral("Method"), QStringLiteral("Wear")});
    stage.mouse.press(stage.tip("Method"));
    delete stage.spear("Wear");
    stage.mouse.move(stage.tip("Matter"));
    stage.mouse.release(stage.tip("Matter"));
    QCOMPARE(stage.takeMoves(), QStringLiteral("Method to Matter row 0"));

    Stage another;
    another.mouse.press(another.tip("Method"));
    another.mouse.move(another.tip("Matter"));
    delete another.spear("Method");
    another.mouse.release(another.tip("Matter"));
    QCOMPARE(another.takeMoves(), QString());
    QCOMPARE(another.linked(), QString());
}

void TestGraphicsView::shouldForgetEverythingThatIsRebuilt()
{
    Stage stage;
    const QPoint tip = stage.tip("Matter");
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(tip);

    stage.editor.updateFish(true);
    QCOMPARE(stage.linked(), QString());
    QCOMPARE(stage.faded(), QString());
    stage.mouse.move(tip);
    stage.mouse.release(tip);

    QCOMPARE(stage.takeMoves(), QString());
    QCOMPARE(stage.linked(), QString());
}

void TestGraphicsView::shouldCarryOutAMoveInTheEditor()
{
    Stage stage(true);
    stage.mouse.press(stage.tip("Method"));
    stage.mouse.move(stage.tip("Matter"));
    stage.mouse.release(stage.tip("Matter"));

    QCOMPARE(treeToText(*stage.subject(QStringLiteral("Effect"))),
             QStringLiteral("Effect[Man[Train,Cost,Time],Machine[Wear],Matter[Method]]"));
    QCOMPARE(stage.spear("Method")->parentItem(), stage.spear("Matter"));
    QVERIFY(stage.editor.canUndo());
    QVERIFY(stage.info->modified());
    stage.editor.undo();
    QCOMPARE(treeToText(*stage.subject(QStringLiteral("Effect"))), effect());
}

void TestGraphicsView::shouldPutEverythingBackWithoutATarget()
{
    Stage stage(true);
    const QPoint tip = stage.tip("Method");
    stage.mouse.press(tip);
    stage.mouse.move(tip + QPoint(30, 30));
    QVERIFY(stage.spear("Method")->pos() != QPointF(0, 0));
    stage.mouse.move(stage.nowhere());

    stage.mouse.release(stage.nowhere());

    QCOMPARE(stage.spear("Method")->pos(), QPointF(0, 0));
    QVERIFY(!stage.editor.canUndo());
    QVERIFY(!stage.info->modified());
}

QTEST_MAIN(TestGraphicsView)
#include "tst_graphicsview.moc"
