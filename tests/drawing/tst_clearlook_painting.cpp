// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearpicture.h>

#include <QSignalSpy>
#include <QtTest>

#include <fishbone/drawing/clearcontent.h>
#include <fishbone/drawing/clearpainter.h>
#include <fishbone/drawing/clearspear.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/items/textitem.h>
#include <tests/drawing/clearfish.h>
#include <tests/program/testprogram.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>
#include <tests/support/viewmouse.h>

using namespace ClearFishes;

/** What is painted in the clear look, and with which colours. */
class TestClearLookPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowOnTheScreenWhatPicturesShow_data();
    void shouldShowOnTheScreenWhatPicturesShow();
    void shouldDrawWhatIsBelowInTheColourOfASubject();
    void shouldFollowAnotherColour();
    void shouldFillTheHeadWithItsColour();
    void shouldKeepTitlesReadableOnAnyColour_data();
    void shouldKeepTitlesReadableOnAnyColour();
    void shouldShowVerdicts_data();
    void shouldShowVerdicts();
    void shouldLetTheWayToTheHeadStandOut_data();
    void shouldLetTheWayToTheHeadStandOut();
    void shouldRepaintTheWayToTheHead();
    void shouldKeepTheWayReadable_data();
    void shouldKeepTheWayReadable();
    void shouldExplainTheSymbolsInUse();
    void shouldDrawBarsForTextsThatAreTooSmall();
};

namespace {
const QColor orange(0xd2, 0x69, 0x1e);

QImage painted(ClearFish &fish, int scale = 1)
{
    return paintedAtOnce(*fish.editor.scene(),
                         canvasOf(ClearSpear::of(*fish.editor.headSpear())->extent, scale),
                         QPainter::Antialiasing);
}

/** The picture of the same diagram as a file has it. */
QImage pictureOf(const ClearFish &fish, const DiagramLook::Options &options)
{
    const ClearPictureContent content =
        ClearContent::of(fish.model.getTreeItem(fish.model.index(0, 0)));
    const ClearFonts fonts = ClearFonts::ofTheUser();
    ClearTextCache cache;
    const ClearLayout layout(ClearTree(content.subjects), fonts, ClearOptions::of(options), cache,
                             content.legendTexts());
    const Canvas canvas = canvasOf(layout.bounds());
    QImage image = whitePicture(canvas.size());
    QPainter painter(&image);
    canvas.setUp(painter);
    ClearPainter sink(painter);
    ClearPicture(content, layout, fonts, ClearColors(options.palette)).describe(sink);
    return image;
}

/** A mark of the subject of that title. */
const ClearInk &inkOf(const ClearFish &fish, const QString &title)
{
    return ClearSpear::of(*fish.spear(title))->ink;
}
} // namespace

void TestClearLookPainting::shouldShowOnTheScreenWhatPicturesShow_data()
{
    QTest::addColumn<int>("palette");
    QTest::addColumn<bool>("isHeadLeft");
    QTest::newRow("colours") << int(DiagramLook::DistinctColors) << false;
    QTest::newRow("gray, head left") << int(DiagramLook::GrayColors) << true;
    QTest::newRow("dark") << int(DiagramLook::DarkColors) << false;
}

void TestClearLookPainting::shouldShowOnTheScreenWhatPicturesShow()
{
    QFETCH(int, palette);
    QFETCH(bool, isHeadLeft);
    ClearFish fish;
    DiagramLook::Options options;
    options.palette = DiagramLook::Palette(palette);
    options.isHeadLeft = isHeadLeft;
    options.hasLegend = true;
    fish.subject(wear)->setStatus(tsRunning);
    fish.subject(man)->setStatus(tsFinish);
    fish.subject(training)->setUrl(QStringLiteral("https://example.org"));
    fish.subject(QStringLiteral("Supplier"))->setSpearStyle(styleWithLooks());
    mark(fish, QStringLiteral("Tools"), "verdict", QStringLiteral("rootcause"));
    mark(fish, budget, "verdict", QStringLiteral("ruledout"));
    mark(fish, training, "colour", orange.name());
    mark(fish, training, "votes", 3);
    mark(fish, man, "votes", 12); // a category
    fish.editor.setLookOptions(options);
    fish.editor.updateFish(false);

    const QImage screen = painted(fish);
    const QImage picture = pictureOf(fish, options);

    QCOMPARE(screen.size(), picture.size());
    // The icons on the screen are snapped to whole pixels: the rest is the same.
    const int differing = differingPixels(screen, picture);
    const int icons = 3;
    QVERIFY2(differing <= icons * 14 * 14, qPrintable(QString::number(differing)));
    QVERIFY(inkedPixels(picture) > 5000);
}

void TestClearLookPainting::shouldDrawWhatIsBelowInTheColourOfASubject()
{
    ClearFish fish;
    const QColor ofPalette = inkOf(fish, man).line.color();
    mark(fish, training, "colour", orange.name());
    fish.editor.updateFish(false);
    QCOMPARE(inkOf(fish, man).line.color(), ofPalette);
    QCOMPARE(inkOf(fish, training).line.color(), orange);
    QCOMPARE(inkOf(fish, budget).line.color(), orange);

    mark(fish, man, "colour", QStringLiteral("#123456"));
    fish.editor.updateFish(false);
    QCOMPARE(inkOf(fish, man).line.color(), QColor(0x12, 0x34, 0x56));
    QCOMPARE(inkOf(fish, QStringLiteral("Shift plan")).line.color(), QColor(0x12, 0x34, 0x56));
    QCOMPARE(inkOf(fish, budget).line.color(), orange);
    QVERIFY(pixelsOf(painted(fish), QColor(0x12, 0x34, 0x56)) > 200); // the box
}

void TestClearLookPainting::shouldFollowAnotherColour()
{
    ClearFish fish;
    QVERIFY(fish.show());
    QTest::qWait(0);
    QSignalSpy changed(fish.editor.scene(), &QGraphicsScene::changed);
    mark(fish, man, "colour", orange.name());
    fish.editor.updateFish(false);
    QTRY_VERIFY(!changed.isEmpty());
    QRectF area;
    for (const QVariantList &arguments : qAsConst(changed)) {
        const auto rects = arguments.at(0).value<QList<QRectF>>();
        for (const QRectF &rect : rects)
            area |= rect;
    }
    QVERIFY(area.contains(sceneRect(*fish.spear(man)->textItem())));
    QVERIFY(area.contains(fish.spear(budget)->line().center()));
}

void TestClearLookPainting::shouldFillTheHeadWithItsColour()
{
    ClearFish fish;
    const QString head = fish.editor.headSpear()->text();
    mark(fish, head, "colour", QStringLiteral("#401010"));
    fish.editor.updateFish(false);
    QVERIFY(pixelsOf(painted(fish), QColor(0x40, 0x10, 0x10)) > 1000);
    QVERIFY(contrast(inkOf(fish, head).text, QColor(0x40, 0x10, 0x10)) >= 4.5);
}

void TestClearLookPainting::shouldKeepTitlesReadableOnAnyColour_data()
{
    QTest::addColumn<int>("palette");
    QTest::newRow("colours") << int(DiagramLook::DistinctColors);
    QTest::newRow("gray") << int(DiagramLook::GrayColors);
    QTest::newRow("dark") << int(DiagramLook::DarkColors);
    QTest::newRow("warm") << int(DiagramLook::WarmColors);
    QTest::newRow("cool") << int(DiagramLook::CoolColors);
}

void TestClearLookPainting::shouldKeepTitlesReadableOnAnyColour()
{
    QFETCH(int, palette);
    const ClearColors colors{DiagramLook::Palette(palette)};
    for (int hue = 0; hue < 360; hue += 15) {
        for (const int lightness : {0, 40, 90, 128, 170, 220, 255}) {
            ClearSubjectLook look;
            look.colour = QColor::fromHsl(hue, 200, lightness);
            for (const int level : {0, 1}) {
                const ClearInk ink = ClearInk::of(look, level, 0, QColor(), colors);
                QVERIFY(contrast(ink.text, ink.box) >= 4.5);
            }
            look.background = look.colour;
            for (const int level : {0, 1, 2, 3, 6}) {
                const ClearInk ink = ClearInk::of(look, level, 0, QColor(), colors);
                QVERIFY(contrast(ink.text, ink.background) >= 4.5);
            }
        }
    }
}

void TestClearLookPainting::shouldShowVerdicts_data()
{
    QTest::addColumn<QString>("verdict");
    QTest::addColumn<QString>("title");
    for (const char *verdict : {"suspected", "checking", "confirmed", "ruledout", "rootcause"}) {
        for (const QString &title : {man, budget})
            QTest::addRow("%s of %s", verdict, qPrintable(title))
                << QString::fromLatin1(verdict) << title;
    }
}

void TestClearLookPainting::shouldShowVerdicts()
{
    QFETCH(QString, verdict);
    QFETCH(QString, title);
    ClearFish fish;
    const QImage before = painted(fish, 2);
    const QRectF text = ClearSpear::of(*fish.spear(title))->box();
    const QRectF extent = ClearSpear::of(*fish.editor.headSpear())->extent;
    mark(fish, title, "verdict", verdict);
    fish.editor.updateFish(false);

    const QImage after = painted(fish, 2);

    // It takes no room, and shows within the text box alone.
    QCOMPARE(ClearSpear::of(*fish.editor.headSpear())->extent, extent);
    const Canvas canvas = canvasOf(extent, 2);
    QRect area;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            if (after.pixel(x, y) != before.pixel(x, y))
                area |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY(area.width() >= 2 * ClearSpear::of(*fish.spear(title))->bone.textRect.width() - 4);
    QVERIFY(QRect(canvas.pixelAt(text.topLeft()), canvas.pixelAt(text.bottomRight()))
                .adjusted(-1, -1, 1, 1)
                .contains(area));
    // And another verdict looks otherwise.
    mark(fish, title, "verdict",
         verdict == QLatin1String("checking") ? QStringLiteral("suspected")
                                              : QStringLiteral("checking"));
    fish.editor.updateFish(false);
    QVERIFY(painted(fish, 2) != after);
}

void TestClearLookPainting::shouldLetTheWayToTheHeadStandOut_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("selected") << 0;
    QTest::newRow("pointed at") << 1;
    QTest::newRow("linked") << 2;
}

void TestClearLookPainting::shouldLetTheWayToTheHeadStandOut()
{
    QFETCH(int, way);
    ClearFish fish;
    QVERIFY(fish.show());
    ViewMouse mouse(*fish.editor.view());
    mouse.move(QPoint(1, 1));
    const QImage before = painted(fish, 2);
    const Canvas canvas = canvasOf(ClearSpear::of(*fish.editor.headSpear())->extent, 2);
    SpearItem *const spear = fish.spear(budget);
    if (way == 0)
        spear->setSelected(true);
    else if (way == 2)
        spear->setLinked(true, 0);
    if (way == 1)
        mouse.move(middleOf(*fish.editor.view(), spear->textItem()));

    const QImage after = painted(fish, 2);

    const auto differs = [&](const QRectF &rect) {
        const QRect pixels(canvas.pixelAt(rect.topLeft()), canvas.pixelAt(rect.bottomRight()));
        return before.copy(pixels) != after.copy(pixels);
    };
    const auto around = [](const QPointF &point) {
        return QRectF(point - QPointF(3, 3), QSizeF(6, 6));
    };
    for (const QString &title : {man, training, budget}) {
        QVERIFY2(differs(sceneRect(*fish.spear(title)->textItem())) || title == man,
                 qPrintable(title));
        QVERIFY2(differs(around(fish.spear(title)->line().pointAt(0.9))), qPrintable(title));
    }
    QVERIFY(differs(ClearSpear::of(*fish.editor.headSpear())->frame->head.boundingRect()));
    for (const QString &title : {wear, QStringLiteral("Shift plan"), QStringLiteral("Machine")}) {
        QVERIFY2(!differs(sceneRect(*fish.spear(title)->textItem())), qPrintable(title));
        QVERIFY2(!differs(around(fish.spear(title)->line().pointAt(0.9))), qPrintable(title));
    }

    spear->setSelected(false);
    spear->setLinked(false, -1);
    mouse.move(QPoint(1, 1));
    QCOMPARE(painted(fish, 2), before);
}

void TestClearLookPainting::shouldRepaintTheWayToTheHead()
{
    ClearFish fish;
    QVERIFY(fish.show());
    QVERIFY(paintScheduled(*fish.editor.view()));
    QSignalSpy changed(fish.editor.scene(), &QGraphicsScene::changed);
    QTest::qWait(0);
    changed.clear();
    fish.spear(budget)->setSelected(true);
    QTRY_VERIFY(!changed.isEmpty());
    QList<QRectF> rects;
    for (const QVariantList &arguments : qAsConst(changed))
        rects += arguments.at(0).value<QList<QRectF>>();
    const auto isRepainted = [&rects](const QPointF &point) {
        return std::any_of(rects.cbegin(), rects.cend(),
                           [&](const QRectF &rect) { return rect.contains(point); });
    };
    for (const QString &title : {man, training, budget}) {
        QVERIFY(isRepainted(fish.spear(title)->line().center()));
        QVERIFY(isRepainted(sceneRect(*fish.spear(title)->textItem()).center()));
    }
    QVERIFY(!isRepainted(sceneRect(*fish.spear(wear)->textItem()).center()) ||
            fish.editor.headSpear()->boundingRect().contains(
                sceneRect(*fish.spear(wear)->textItem()).center()));
}

void TestClearLookPainting::shouldKeepTheWayReadable_data()
{
    shouldKeepTitlesReadableOnAnyColour_data();
}

void TestClearLookPainting::shouldKeepTheWayReadable()
{
    QFETCH(int, palette);
    const ClearColors colors{DiagramLook::Palette(palette)};
    for (int category = 0; category < 10; ++category) {
        for (int level = 2; level < 7; ++level) {
            const ClearInk ink =
                ClearInk::of({}, level, category, colors.category(category), colors)
                    .standingOut(level, colors);
            QVERIFY(contrast(ink.text, ink.background) >= 4.5);
            QVERIFY(ink.line.widthF() > 2);
        }
    }
}

void TestClearLookPainting::shouldExplainTheSymbolsInUse()
{
    ClearFish fish;
    fish.subject(wear)->setStatus(tsRunning);
    mark(fish, budget, "verdict", QStringLiteral("confirmed"));
    mark(fish, training, "colour", orange.name());
    mark(fish, wear, "votes", 2);
    fish.editor.updateFish(false);
    QVERIFY(ClearSpear::of(*fish.editor.headSpear())->frame->symbols.empty());

    DiagramLook::Options options;
    options.hasLegend = true;
    fish.editor.setLookOptions(options);

    const ClearFrame &frame = *ClearSpear::of(*fish.editor.headSpear())->frame;
    QCOMPARE(int(frame.symbols.size()), 4);
    QCOMPARE(frame.symbols[0].text, ClearContent::meaningOf(tsRunning));
    QCOMPARE(frame.symbols[1].verdict, Verdict::Confirmed);
    QCOMPARE(frame.symbols[2].text, QStringLiteral("votes"));
    QCOMPARE(frame.symbols[3].text, training);
    QCOMPARE(frame.legend.size(), frame.symbols.size());
    for (const ClearLegend::Entry &entry : frame.legend) {
        QVERIFY(fish.editor.headSpear()->boundingRect().contains(entry.textRect));
        QVERIFY(ClearSpear::of(*fish.editor.headSpear())->extent.contains(entry.textRect));
    }
    const Canvas canvas = canvasOf(frame.legend[3].symbol);
    QVERIFY(pixelsOf(paintedAtOnce(*fish.editor.scene(), canvas), orange) > 50);
    // That of the votes is round, as a number of one digit is.
    const QRectF round = frame.legend[2].symbol;
    const Canvas votes = canvasOf(round, 2);
    const QImage picture = paintedAtOnce(*fish.editor.scene(), votes);
    QVERIFY(votes.colorAt(picture, {round.center().x(), round.top() + 1.2}).lightness() < 160);
    QVERIFY(votes.colorAt(picture, round.topLeft()).lightness() > 240);

    // What is contracted explains nothing.
    fish.spear(man)->setExpand(false);
    fish.editor.updateFish(false);
    QCOMPARE(int(ClearSpear::of(*fish.editor.headSpear())->frame->symbols.size()),
             2); // with the votes
}

void TestClearLookPainting::shouldDrawBarsForTextsThatAreTooSmall()
{
    ClearFish fish;
    const QRectF extent = ClearSpear::of(*fish.editor.headSpear())->extent;
    QImage small(extent.size().toSize() / 10, QImage::Format_RGB32);
    small.fill(Qt::white);
    QPainter painter(&small);
    fish.editor.scene()->render(&painter, QRectF(small.rect()), extent);
    painter.end();
    // A title far from any line still shows.
    const QRectF text = ClearSpear::of(*fish.spear(wear))->bone.textRect;
    const QPointF middle = (text.center() - extent.topLeft()) / 10;
    QVERIFY(small.pixelColor(middle.toPoint()).lightness() < 245);
}

FISHBONE_TEST(TestClearLookPainting)
#include "tst_clearlook_painting.moc"
