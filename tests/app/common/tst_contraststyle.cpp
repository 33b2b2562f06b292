// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/contraststyle.h>

#include <tests/app/contrast.h>
#include <tests/app/palettes.h>
#include <tests/program/testprogram.h>

#include <QCheckBox>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QToolBar>
#include <QToolButton>

namespace {

/** The unchecked box at the beginning of a line of @p widget. */
QImage boxOf(QWidget &widget)
{
    widget.resize(100, 40);
    QStyleOptionButton option;
    option.initFrom(&widget);
    const auto element = qobject_cast<QRadioButton *>(&widget) ? QStyle::SE_RadioButtonIndicator
                                                               : QStyle::SE_CheckBoxIndicator;
    return widget.grab().toImage().copy(widget.style()->subElementRect(element, &option, &widget));
}

/** How much of the edge of @p box can be told from @p background, in its middle row. */
int edgesOf(const QImage &box, const QColor &background)
{
    int edges = 0;
    for (int x = 0; x < box.width(); ++x)
        edges += Contrast::between(box.pixelColor(x, box.height() / 2), background) >=
                 Contrast::forShapes;
    return edges;
}

} // namespace

/** Boxes that are not checked can be seen, and the arrows of bars that are too short, on a light
 * desktop and on a dark one. */
class TestContrastStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldShowTheBoxesOfButtons_data();
    void shouldShowTheBoxesOfButtons();
    void shouldShowTheBoxesOfLists_data() { addPalettes(); }
    void shouldShowTheBoxesOfLists();
    void shouldShowTheBoxesOfMenus_data() { addPalettes(); }
    void shouldShowTheBoxesOfMenus();
    void shouldShowThatBarsHaveMore_data();
    void shouldShowThatBarsHaveMore();
    void shouldLeaveTheStyleOfADesktopAlone();

private:
    static void addPalettes();
};

void TestContrastStyle::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    ContrastStyle::install();
    QVERIFY(qobject_cast<ContrastStyle *>(QApplication::style()));
}

void TestContrastStyle::addPalettes()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << Palettes::light();
    QTest::newRow("dark") << Palettes::dark();
}

void TestContrastStyle::shouldShowTheBoxesOfButtons_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<bool>("isRound");
    for (const bool isRound : {false, true}) {
        QTest::addRow("light %d", isRound) << Palettes::light() << isRound;
        QTest::addRow("dark %d", isRound) << Palettes::dark() << isRound;
    }
}

void TestContrastStyle::shouldShowTheBoxesOfButtons()
{
    QFETCH(QPalette, palette);
    QFETCH(bool, isRound);
    QCheckBox box;
    QRadioButton round;
    QWidget &button = isRound ? static_cast<QWidget &>(round) : box;
    button.setPalette(palette);
    QVERIFY(edgesOf(boxOf(button), palette.color(QPalette::Window)) >= 2);
}

void TestContrastStyle::shouldShowTheBoxesOfLists()
{
    QFETCH(QPalette, palette);
    QListWidget list;
    list.setPalette(palette);
    (new QListWidgetItem(&list))->setCheckState(Qt::Unchecked);
    list.resize(200, 100);
    const QImage row = list.viewport()->grab(list.visualItemRect(list.item(0))).toImage();
    QVERIFY(edgesOf(row, palette.color(QPalette::Base)) >= 2);
}

void TestContrastStyle::shouldShowTheBoxesOfMenus()
{
    QFETCH(QPalette, palette);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(palette); // which the boxes of menus follow
    {
        QMenu menu;
        QAction *const action = menu.addAction(QString());
        action->setCheckable(true);
        menu.resize(menu.sizeHint());
        const QImage row = menu.grab(menu.actionGeometry(action)).toImage();
        QVERIFY(edgesOf(row, Contrast::backgroundOf(row)) >= 2);
    }
    QApplication::setPalette(before);
}

void TestContrastStyle::shouldShowThatBarsHaveMore_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(80, 300), QSize(300, 80)}) {
        QTest::addRow("light, %d wide", size.width()) << Palettes::light() << size;
        QTest::addRow("dark, %d wide", size.width()) << Palettes::dark() << size;
    }
}

void TestContrastStyle::shouldShowThatBarsHaveMore()
{
    QFETCH(QPalette, palette);
    QFETCH(QSize, size);
    QMainWindow window;
    window.setPalette(palette);
    auto *const bar = new QToolBar(&window);
    window.addToolBar(size.width() < size.height() ? Qt::TopToolBarArea : Qt::LeftToolBarArea, bar);
    for (int i = 0; i < 20; ++i)
        bar->addAction(QStringLiteral("Action"));
    window.resize(size);
    window.show();
    QCoreApplication::processEvents();
    const auto *const more = bar->findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"));
    QVERIFY(more && more->isVisible());
    const QImage shown =
        window.grab().toImage().copy(QRect(more->mapTo(&window, QPoint()), more->size()));
    QVERIFY(Contrast::greatestIn(shown, palette.color(QPalette::Window)) >= Contrast::forShapes);
}

void TestContrastStyle::shouldLeaveTheStyleOfADesktopAlone()
{
    QApplication::setStyle(QStringLiteral("windows")); // stands for any other than Qt's usual one
    ContrastStyle::install();
    QVERIFY(!qobject_cast<ContrastStyle *>(QApplication::style()));
}

FISHBONE_TEST(TestContrastStyle)
#include "tst_contraststyle.moc"
