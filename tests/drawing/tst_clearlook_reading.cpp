// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearlook.h>

#include <QAccessible>
#include <QtTest>

#include <fishbone/drawing/clearpainter.h>
#include <fishbone/drawing/clearspear.h>
#include <fishbone/drawing/cleartextbreaker.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearlook.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/items/textitem.h>
#include <tests/drawing/clearfish.h>
#include <tests/program/testprogram.h>
#include <tests/support/pictures.h>

using namespace ClearFishes;

/** That everybody can read the clear look: on any screen, in any script, with any aid. */
class TestClearLookReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeAsSharpAsTheDevice();
    void shouldReadFromRightToLeft();
    void shouldBreakTitlesOfAnyScript_data();
    void shouldBreakTitlesOfAnyScript();
    void shouldBreakBehindACommaOfChinese_data();
    void shouldBreakBehindACommaOfChinese();
    void shouldKeepTheLinesOfATitle();
    void shouldCutNoTitleOnAPage_data();
    void shouldCutNoTitleOnAPage();
    void shouldKeepANumberAndItsUnitTogether();
    void shouldMakeOwnColoursReadable_data();
    void shouldMakeOwnColoursReadable();
    void shouldMarkWhereADropLands();
    void shouldTellAssistiveTechnologyWhereItIsDrawn();
};

void TestClearLookReading::shouldBeAsSharpAsTheDevice()
{
    ClearFish fish;
    fish.select({budget});
    const QRectF extent = ClearSpear::of(*fish.editor.headSpear())->extent;
    const QSize size = extent.size().toSize() + QSize(8, 8);
    const auto render = [&](QImage &image, const QRectF &target) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        fish.editor.scene()->render(&painter, target, QRectF(extent.topLeft(), QSizeF(size)));
    };
    QImage dense(size * 2, QImage::Format_RGB32);
    dense.setDevicePixelRatio(2);
    render(dense, QRectF(QPointF(), QSizeF(size)));
    QImage large(size * 2, QImage::Format_RGB32);
    render(large, QRectF(QPointF(), QSizeF(size * 2)));
    dense.setDevicePixelRatio(1);
    QCOMPARE(difference(dense, large, clipRounding), QString());
    QVERIFY(inkedPixels(large) > 10000);
}

void TestClearLookReading::shouldReadFromRightToLeft()
{
    // "Training", and a sentence that is broken.
    const QString word = QString::fromUtf8("\u062a\u062f\u0631\u064a\u0628");
    const QString sentence = word + u' ' + word + u' ' + word + u'\n' + word;
    ClearFish fish;
    for (const QString &title : {budget, wear}) {
        fish.subject(title)->setStatus(tsRunning);
        fish.subject(title)->setUrl(QStringLiteral("https://example.org"));
        fish.subject(title)->setTitle(title == wear ? sentence : word);
    }
    fish.editor.updateFish(false);
    for (const QString &title : {word, sentence}) {
        const ClearLayout::Bone &bone = ClearSpear::of(*fish.spear(title))->bone;
        QVERIFY(bone.text->isRightToLeft());
        // Reading begins on the right: the status stands there, the link on the left.
        QVERIFY(bone.status.left() > bone.textRect.center().x());
        QVERIFY(bone.link.right() < bone.textRect.right() - bone.text->lines().back().width + 1);
        QVERIFY(!bone.status.intersects(bone.textRect));
        for (int line = 0; line < bone.text->lineCount(); ++line) {
            const QPointF base = bone.base(line);
            QVERIFY(base.x() >= bone.textRect.left() - 0.01);
        }
    }
    QCOMPARE(ClearSpear::of(*fish.spear(sentence))->bone.text->lineCount(), 2);
    // Nothing is painted outside the rectangle that was taken for it.
    const QRectF text = ClearSpear::of(*fish.spear(sentence))->bone.textRect;
    const Canvas canvas = canvasOf(text.adjusted(-6, -6, 6, 6), 2);
    QImage image = whitePicture(canvas.size());
    QPainter painter(&image);
    canvas.setUp(painter);
    ClearPainter sink(painter);
    sink.text(*ClearSpear::of(*fish.spear(sentence))->bone.text, text, ClearLabel::Side::Left,
              Qt::black);
    painter.end();
    int outside = 0;
    const QRect inside(canvas.pixelAt(text.topLeft()), canvas.pixelAt(text.bottomRight()));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isInk = image.pixelColor(x, y).lightness() < 128;
            outside += isInk && !inside.adjusted(-2, -2, 2, 2).contains(x, y) ? 1 : 0;
        }
    }
    QCOMPARE(outside, 0);
    QVERIFY(inkedPixels(image) > 100);
}

void TestClearLookReading::shouldBreakTitlesOfAnyScript_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("keepsWords");
    QTest::newRow("English") << QStringLiteral("Nobody has checked the torque wrench since spring")
                             << true;
    QTest::newRow("Chinese") << QString::fromUtf8(
                                    "供应商延迟交付关键零部件导致装配线停工等待两周以上时间")
                             << false;
    QTest::newRow("Japanese") << QString::fromUtf8("部品の納入が遅れて組立ラインが二週間止まった")
                              << false;
    QTest::newRow("Arabic") << QString::fromUtf8("لم يفحص أحد مفتاح عزم الدوران منذ الربيع الماضي")
                            << true;
}

void TestClearLookReading::shouldBreakTitlesOfAnyScript()
{
    QFETCH(QString, title);
    QFETCH(bool, keepsWords);
    ClearFish fish;
    fish.subject(budget)->setTitle(title);
    DiagramLook::Options options;
    options.wrapLimit = 145;
    options.wrapLines = 5;
    fish.editor.setLookOptions(options);
    fish.editor.updateFish(false);

    const ClearText &text = *ClearSpear::of(*fish.spear(title))->bone.text;

    QVERIFY(text.lineCount() > 1);
    QVERIFY(!text.isCut());
    QVERIFY(text.width() <= 145);
    QStringList lines;
    for (const ClearText::Line &line : text.lines())
        lines << line.text;
    QCOMPARE(lines.join(keepsWords ? QStringLiteral(" ") : QString()), title);
}

void TestClearLookReading::shouldBreakBehindACommaOfChinese_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const char *title, const QStringList &expected) {
        QTest::newRow(name) << QString::fromUtf8(title) << expected;
    };
    row("the rest fits", "顾客等待时间过长，投诉率上升",
        {QStringLiteral("顾客等待时"), QStringLiteral("间过长，"), QStringLiteral("投诉率上升")});
    row("the rest needs another line", "缺货，供应商交付延期三周半以上",
        {QStringLiteral("缺货，供应"), QStringLiteral("商交付延期"), QStringLiteral("三周半以上")});
    row("without one", "顾客等待时间过长投诉率上升",
        {QStringLiteral("顾客等待时"), QStringLiteral("间过长投诉"), QStringLiteral("率上升")});
}

void TestClearLookReading::shouldBreakBehindACommaOfChinese()
{
    QFETCH(QString, title);
    QFETCH(QStringList, expected);
    const ClearFont font(QFont(QStringLiteral("Noto Sans CJK SC")), 20);
    QHash<QString, qreal> widths;
    ClearWrap wrap;
    wrap.limit = 5.2 * 20; // five characters
    wrap.lines = 3;

    const auto text = ClearTextBreaker(title, font, widths).broken(wrap);

    QStringList lines;
    for (const ClearText::Line &line : text->lines())
        lines << line.text;
    QCOMPARE(lines, expected);
    QVERIFY(!text->isCut());
}

void TestClearLookReading::shouldKeepTheLinesOfATitle()
{
    ClearTextCache cache;
    const ClearFont font = ClearFonts::ofTheUser().ofLevel(2);
    const QStringList lines{QStringLiteral("Nobody"), QStringLiteral("feels"),
                            QStringLiteral("responsible"), QStringLiteral("for it")};
    for (const qreal limit : {0.0, 110.0, 300.0}) {
        ClearWrap wrap;
        wrap.limit = limit;
        wrap.lines = 2;
        const auto text = cache.text(lines.join(u'\n'), font, wrap);
        QVERIFY(!text->isCut());
        QCOMPARE(text->lineCount(), 4);
        for (int line = 0; line < 4; ++line)
            QCOMPARE(text->lines()[std::size_t(line)].text, lines[line]);
    }
}

void TestClearLookReading::shouldCutNoTitleOnAPage_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("sentence") << QStringLiteral(
        "Cut-off times of the three sales channels are not aligned with the departure times of "
        "the carriers, and nobody knows since when");
    QTest::newRow("long word") << QString(120, u'w');
    QTest::newRow("Chinese") << QString(90, QChar(0x6728));
}

void TestClearLookReading::shouldCutNoTitleOnAPage()
{
    QFETCH(QString, title);
    ClearTextCache cache;
    const ClearFont font = ClearFonts::ofTheUser().ofLevel(2);
    ClearWrap wrap;
    wrap.limit = 110;
    wrap.lines = 2;
    QVERIFY(cache.text(title, font, wrap)->isCut());
    wrap.widens = true;
    const auto text = cache.text(title, font, wrap);
    QVERIFY(!text->isCut());
    QVERIFY(text->lineCount() > 2);
    QVERIFY(text->width() <= wrap.widest + 1);
    QString all;
    for (const ClearText::Line &line : text->lines())
        all += line.text;
    QCOMPARE(all.remove(u' '), QString(title).remove(u' '));
}

void TestClearLookReading::shouldKeepANumberAndItsUnitTogether()
{
    ClearTextCache cache;
    const ClearFont font = ClearFonts::ofTheUser().ofLevel(2);
    ClearWrap wrap;
    wrap.limit = 60;
    wrap.lines = 8;
    const auto broken = [&](const QString &title) {
        const auto text = cache.text(title, font, wrap);
        QStringList lines;
        for (const ClearText::Line &line : text->lines())
            lines << line.text;
        return lines.join(u'|');
    };
    const QString signs = broken(QStringLiteral("Hall at 31 \u00b0C and 99 % damp"));
    QVERIFY2(signs.contains(QStringLiteral("31 \u00b0C|")), qPrintable(signs));
    QVERIFY2(signs.contains(QStringLiteral("99 %|")), qPrintable(signs));
    const QString letters = broken(QStringLiteral("Mails to 1.2 m people in 800 ms"));
    QVERIFY2(letters.contains(QStringLiteral("1.2 m|")), qPrintable(letters));
    QVERIFY2(letters.endsWith(QStringLiteral("|800 ms")), qPrintable(letters));
    const QString none = broken(QStringLiteral("Phase 123456 of more"));
    QVERIFY2(none.contains(QStringLiteral("123456|of")), qPrintable(none));
}

void TestClearLookReading::shouldMakeOwnColoursReadable_data()
{
    QTest::addColumn<int>("palette");
    QTest::newRow("colours") << int(DiagramLook::DistinctColors);
    QTest::newRow("dark") << int(DiagramLook::DarkColors);
}

void TestClearLookReading::shouldMakeOwnColoursReadable()
{
    QFETCH(int, palette);
    const ClearColors colors{DiagramLook::Palette(palette)};
    for (int hue = 0; hue < 360; hue += 30) {
        for (const int lightness : {0, 60, 128, 200, 255}) {
            ClearSubjectLook look;
            look.ink = QColor::fromHsl(hue, 230, lightness);
            look.colour = look.ink;
            for (const int level : {1, 2, 3}) {
                const ClearInk ink = ClearInk::of(look, level, 0, Qt::gray, colors);
                QVERIFY(contrast(ink.line.color(), colors.paper()) >= 3);
                if (contrast(look.colour, colors.paper()) >= 3)
                    QCOMPARE(ink.line.color().rgb(), look.colour.rgb());
            }
            look.colour = QColor();
            for (const int level : {0, 1, 2, 3}) {
                const ClearInk ink = ClearInk::of(look, level, 0, Qt::gray, colors);
                const QColor below = level < 2 ? ink.box : colors.paper();
                QVERIFY(contrast(ink.text, below) >= 4.5);
                // What can be read stays as it is.
                if (contrast(look.ink, below) >= 4.5)
                    QCOMPARE(ink.text.rgb(), look.ink.rgb());
            }
        }
    }
}

void TestClearLookReading::shouldMarkWhereADropLands()
{
    ClearFish fish;
    SpearItem *const target = fish.spear(man);
    for (int row = 0; row <= 2; ++row) {
        const QPointF slot = target->look().slot(*target, row);
        target->setLinked(false, -1);
        const Canvas canvas = canvasOf(QRectF(slot - QPointF(9, 9), QSizeF(18, 18)), 2);
        const int before = inkedPixels(paintedAtOnce(*fish.editor.scene(), canvas));
        target->setLinked(true, row);
        QVERIFY(target->boundingRect().contains(slot));
        // A circle of 8 in the middle.
        QVERIFY(inkedPixels(paintedAtOnce(*fish.editor.scene(), canvas)) >= before + 200);
    }
}

void TestClearLookReading::shouldTellAssistiveTechnologyWhereItIsDrawn()
{
    ClearFish fish;
    QVERIFY(fish.show());
    const GraphicsView *const view = fish.editor.view();
    QAccessibleInterface *const drawing = QAccessible::queryAccessibleInterface(fish.editor.view());
    QVERIFY(drawing);
    for (const QString &title : {man, training, budget, wear}) {
        const SpearItem *const spear = fish.spear(title);
        const auto onScreen = [view](const QPointF &point) {
            return view->viewport()->mapToGlobal(view->mapFromScene(point));
        };
        const QPoint middle = onScreen(sceneRect(*spear->textItem()).center());
        QAccessibleInterface *const bone = drawing->childAt(middle.x(), middle.y());
        QVERIFY2(bone, qPrintable(title));
        QCOMPARE(bone->text(QAccessible::Name), title);
        QVERIFY(bone->rect().contains(middle));
        QVERIFY(bone->rect().contains(onScreen(spear->line().center())));
        const QRectF covered = sceneRect(*spear->textItem()) | spear->boundingRect();
        QCOMPARE(bone->rect().size(), view->mapFromScene(covered).boundingRect().size());
        QCOMPARE(bone->rect().topLeft(), onScreen(covered.topLeft()));
    }
}

FISHBONE_TEST(TestClearLookReading)
#include "tst_clearlook_reading.moc"
