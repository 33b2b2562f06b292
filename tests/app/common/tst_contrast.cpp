// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/canvastheme.h>
#include <app/common/themedicon.h>

#include <fishbone/style/spearstyle.h>
#include <tests/app/appfixture.h>
#include <tests/app/contrast.h>
#include <tests/app/palettes.h>
#include <tests/program/testprogram.h>

#include <QAbstractButton>
#include <QDirIterator>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <QtTest>

namespace {

constexpr int hardlyAnything = 20; ///< pixels of a picture

/**
 * How many pixels of @p picture are drawn through and through, and how many of them stand out from
 * @p background.
 */
struct Pixels
{
    Pixels(const QImage &picture, const QColor &background)
    {
        constexpr int opaque = 250; // edges are smoothed
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                drawn += color.alpha() >= opaque;
                standingOut += color.alpha() >= opaque &&
                               Contrast::between(color, background) >= Contrast::forShapes;
            }
        }
    }

    int drawn = 0;
    int standingOut = 0;
};

QImage rendered(const QString &file, const QColor &background)
{
    QImage picture(96, 96, QImage::Format_ARGB32);
    picture.fill(background);
    QPainter painter(&picture);
    QSvgRenderer(file).render(&painter);
    return picture;
}

QStringList picturesIn(const QString &folder)
{
    QStringList files;
    for (QDirIterator each(folder, QDir::Files, QDirIterator::Subdirectories); each.hasNext();) {
        const QString file = each.next();
        if (file.endsWith(QLatin1String(".svg")) || file.endsWith(QLatin1String("link.png")))
            files.append(file);
    }
    return files;
}

} // namespace

/** What is drawn can be told from what it is drawn on, on a light desktop and on a dark one. */
class TestContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldCompareColours();
    void shouldShowTheTextsOfBones_data();
    void shouldShowTheTextsOfBones();
    void shouldShowTheLinesOfBones_data() { shouldShowTheTextsOfBones_data(); }
    void shouldShowTheLinesOfBones();
    void shouldFrameWhatIsSelected_data() { addPalettes(); }
    void shouldFrameWhatIsSelected();
    void shouldShowTheTitleOnTheHead_data() { addPalettes(); }
    void shouldShowTheTitleOnTheHead();
    void shouldShowThePicturesOfTheDrawing_data() { addPalettes(); }
    void shouldShowThePicturesOfTheDrawing();
    void shouldShowTheIconsOfTheActions_data() { addPalettes(); }
    void shouldShowTheIconsOfTheActions();
    void shouldShowWhatClosesTabsAndPanels_data() { addPalettes(); }
    void shouldShowWhatClosesTabsAndPanels();

private:
    static void addPalettes()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << Palettes::light();
        QTest::newRow("dark") << Palettes::dark();
    }

    /** Shows the canvas of the current row's palette. */
    void follow()
    {
        QFETCH(QPalette, palette);
        m_theme.follow(palette);
    }

    CanvasTheme m_theme;
};

void TestContrast::shouldCompareColours()
{
    QCOMPARE(Contrast::between(Qt::black, Qt::white), 21.0);
    QCOMPARE(Contrast::between(Qt::red, Qt::red), 1.0);
    // The known limit: the lightest gray on white that is dark enough for text.
    QVERIFY(Contrast::between(QColor(0x76, 0x76, 0x76), Qt::white) >= Contrast::forText);
    QVERIFY(Contrast::between(QColor(0x77, 0x77, 0x77), Qt::white) < Contrast::forText);
}

void TestContrast::shouldShowTheTextsOfBones_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<int>("state");

    for (int state = SpearStyle::ssNormal; state <= SpearStyle::ssLinked; ++state) {
        QTest::addRow("light, state %d", state) << Palettes::light() << state;
        QTest::addRow("dark, state %d", state) << Palettes::dark() << state;
    }
}

void TestContrast::shouldShowTheTextsOfBones()
{
    follow();
    QFETCH(int, state);
    const auto spearState = SpearStyle::SpearState(state);
    const QColor text = SpearStyle::global()->textColor(spearState);
    const QColor behind = SpearStyle::global()->textBkColor(spearState);
    const double contrast =
        Contrast::between(text, behind.isValid() ? behind : m_theme.canvasColor());
    QVERIFY2(contrast >= Contrast::forText, qPrintable(QString::number(contrast)));
}

void TestContrast::shouldShowTheLinesOfBones()
{
    follow();
    QFETCH(int, state);
    const QPen *const pen = SpearStyle::global()->broderPen(SpearStyle::SpearState(state));
    QVERIFY(pen);
    const double contrast = Contrast::between(pen->color(), m_theme.canvasColor());
    QVERIFY2(contrast >= Contrast::forShapes, qPrintable(QString::number(contrast)));
}

void TestContrast::shouldFrameWhatIsSelected()
{
    // The filling alone may be the colour that another category has.
    follow();
    const QPen *const frame = SpearStyle::global()->broderPen(SpearStyle::ssSelected);
    QVERIFY(frame);
    const QColor filling = SpearStyle::global()->textBkColor(SpearStyle::ssSelected);
    const double contrast = Contrast::between(frame->color(), filling);
    QVERIFY2(contrast >= Contrast::forShapes, qPrintable(QString::number(contrast)));
}

void TestContrast::shouldShowTheTitleOnTheHead()
{
    follow();
    const QImage head =
        rendered(QStringLiteral(":/fishboneDiagram/head.svg"), m_theme.canvasColor());
    const QColor behind = head.pixelColor(head.width() / 3, head.height() * 3 / 4);
    QVERIFY(behind != m_theme.canvasColor());
    const double contrast =
        Contrast::between(SpearStyle::global()->textColor(SpearStyle::ssNormal), behind);
    QVERIFY2(contrast >= Contrast::forText, qPrintable(QString::number(contrast)));
}

void TestContrast::shouldShowThePicturesOfTheDrawing()
{
    follow();
    const QStringList files = picturesIn(QStringLiteral(":/fishboneDiagram"));
    QVERIFY(files.size() > 15);
    for (const QString &file : files) {
        const Pixels pixels(rendered(file, Qt::transparent), m_theme.canvasColor());
        QVERIFY2(pixels.drawn > hardlyAnything, qPrintable(file));
        // Some have a white sign on a coloured ground, which counts as well.
        QVERIFY2(pixels.standingOut * 2 > pixels.drawn, qPrintable(file));
    }
}

void TestContrast::shouldShowTheIconsOfTheActions()
{
    QFETCH(QPalette, palette);
    const QStringList files = picturesIn(QStringLiteral(":/app/icons"));
    QVERIFY(files.size() > 25);
    for (const QString &file : files) {
        const QIcon icon = ThemedIcon::icon(QFileInfo(file).completeBaseName(), palette);
        const Pixels pixels(icon.pixmap(48, 48).toImage(), palette.color(QPalette::Window));
        QVERIFY2(pixels.drawn > hardlyAnything, qPrintable(file));
        QCOMPARE(pixels.standingOut, pixels.drawn);
    }
}

void TestContrast::shouldShowWhatClosesTabsAndPanels()
{
    QFETCH(QPalette, palette);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(palette);
    {
        AppFixture app;
        QTest::keyClick(app.window.editor()->view(), Qt::Key_L,
                        Qt::ControlModifier | Qt::ShiftModifier);
        AppFixture::settle();
        const QImage window = app.window.grab().toImage();
        int buttons = 0;
        const QList<QAbstractButton *> all = app.window.findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : all) {
            const QString name = button->objectName() + QLatin1Char(' ') +
                                 QLatin1String(button->metaObject()->className());
            if (!button->isVisible() || !name.contains(QLatin1String("Close"), Qt::CaseInsensitive))
                continue;
            ++buttons;
            const QRect place(button->mapTo(&app.window, QPoint()), button->size());
            const Pixels pixels(window.copy(place), palette.color(QPalette::Window));
            QVERIFY2(pixels.standingOut >= hardlyAnything, qPrintable(name));
        }
        QVERIFY(buttons >= 5); // of the tab, of the filter and of the panels
    }
    QApplication::setPalette(before);
}

FISHBONE_TEST(TestContrast)
#include "tst_contrast.moc"
