// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/contrast.h>
#include <tests/app/palettes.h>
#include <tests/app/window/screens.h>

#include <app/common/canvastheme.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>
#include <tests/support/previewchecks.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStyleOptionButton>

using Screens::Screen;
using TestSupport::ModalDriver;

namespace {

/** What @p shown shows of @p area of @p widget. */
QImage partOf(const QImage &shown, const QWidget &window, const QWidget &widget, const QRect &area)
{
    return shown.copy(QRect(widget.mapTo(&window, area.topLeft()), area.size()));
}

/** The labels of @p window that are shown whole and can hardly be read. What belongs to something
 * that is disabled may be pale, and a label alone is never disabled. */
QStringList paleLabels(const QImage &shown, const QWidget &window)
{
    QStringList pale;
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const QRect area = label->rect();
        const bool mayBePale =
            (label->buddy() && !label->buddy()->isEnabled()) || !label->parentWidget()->isEnabled();
        if (label->text().trimmed().isEmpty() || mayBePale ||
            label->visibleRegion().boundingRect() != area)
            continue;
        const QImage text = partOf(shown, window, *label, area);
        const double contrast = Contrast::greatestIn(text, Contrast::backgroundOf(text));
        if (contrast < Contrast::forText)
            pale.append(label->text() + QStringLiteral(": %1").arg(contrast));
    }
    return pale;
}

/** The boxes of @p window, not checked, that can hardly be seen. */
QStringList paleBoxes(const QImage &shown, const QWidget &window)
{
    QStringList pale;
    const QList<QCheckBox *> boxes = window.findChildren<QCheckBox *>();
    for (const QCheckBox *box : boxes) {
        if (!box->isEnabled() || box->isChecked() || box->visibleRegion().isEmpty())
            continue;
        QStyleOptionButton option;
        option.initFrom(box);
        const QImage picture =
            partOf(shown, window, *box,
                   box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box));
        if (Contrast::greatestIn(picture, box->palette().color(QPalette::Window)) <
            Contrast::forShapes)
            pale.append(box->text());
    }
    return pale;
}

/** How well the text of the preview in @p dialog can be read, without its frame. */
double contrastOfPreview(const QWidget &dialog)
{
    const QPixmap pixmap = TestSupport::shownPixmap(dialog);
    constexpr int frame = 8;
    const QImage text = pixmap.toImage().copy(pixmap.rect().adjusted(frame, frame, -frame, -frame));
    return Contrast::greatestIn(text, Contrast::backgroundOf(text));
}

} // namespace

/** What dialogs and panels say can be read, on a light desktop and on a dark one. */
class TestScreenContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void shouldShowLabelsAndBoxes_data() { addPalettes(); }
    void shouldShowLabelsAndBoxes();
    void shouldPreviewTheStyleOfAllBonesOnTheCanvas_data() { addPalettes(); }
    void shouldPreviewTheStyleOfAllBonesOnTheCanvas();
    void shouldPreviewTheStyleOfABoneOnTheCanvas_data() { addPalettes(); }
    void shouldPreviewTheStyleOfABoneOnTheCanvas();

private:
    static void addPalettes();
    /** What the preview in the style dialog behind @p action, and that of its pen, look like. */
    static void checkPreviews(const char *action);

    QPalette m_before;
};

void TestScreenContrast::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_screencontrast"));
    m_before = QApplication::palette();
}

void TestScreenContrast::init()
{
    QSettings().clear();
}

void TestScreenContrast::cleanup()
{
    QApplication::setPalette(m_before);
}

void TestScreenContrast::addPalettes()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << Palettes::light();
    QTest::newRow("dark") << Palettes::dark();
}

void TestScreenContrast::shouldShowLabelsAndBoxes()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    QStringList faults;
    const QVector<Screen> all = Screens::all();
    for (const Screen &screen : all) {
        AppFixture app;
        Screens::prepare(app, QSize(1300, 900));
        QWidget *const window = screen.show(app);
        window->show();
        AppFixture::settle();
        const QImage shown = window->grab().toImage();
        const QStringList pale = paleLabels(shown, *window) + paleBoxes(shown, *window);
        for (const QString &text : pale)
            faults.append(QLatin1String(screen.name) + QStringLiteral(": ") + text);
        if (window != &app.window)
            delete window;
    }
    QCOMPARE(faults.join(QLatin1Char('\n')), QString());
}

void TestScreenContrast::checkPreviews(const char *action)
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    AppFixture app;
    app.select("Machines");
    const QColor canvas = app.window.editor()->view()->backgroundBrush().color();
    double contrast = 0;
    QColor behind;
    QColor behindPen;
    const ModalDriver<SpearStyleDialog> user([&](SpearStyleDialog &dialog) {
        contrast = contrastOfPreview(dialog);
        behind = TestSupport::shownPixmap(dialog).toImage().pixelColor(0, 0);
        const ModalDriver<PenSelect> inner([&](PenSelect &pen) {
            behindPen = TestSupport::shownPixmap(pen).toImage().pixelColor(0, 0);
            pen.reject();
        });
        dialog.openBroderPen();
        dialog.reject();
    });
    app.trigger(action);
    QVERIFY(user.isDone());
    QVERIFY2(contrast >= Contrast::forText, qPrintable(QString::number(contrast)));
    QCOMPARE(behind, canvas);
    QCOMPARE(behindPen, canvas);
}

void TestScreenContrast::shouldPreviewTheStyleOfAllBonesOnTheCanvas()
{
    checkPreviews("canvasStyle");
}

void TestScreenContrast::shouldPreviewTheStyleOfABoneOnTheCanvas()
{
    checkPreviews("style");
}

FISHBONE_TEST(TestScreenContrast)
#include "tst_screencontrast.moc"
