// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/shapedtext.h>

#include <QAbstractTextDocumentLayout>
#include <QGraphicsTextItem>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

#include <tests/program/testprogram.h>
#include <tests/support/pictures.h>

using namespace TestSupport;

namespace {

/** Titles in the scripts that people write, with what may go wrong in a layout. */
QStringList scriptTitles()
{
    return {QStringLiteral("Cause"),
            QStringLiteral("Cause and effect, AVATAR fi ffl"),
            QStringLiteral("技能与培训"),
            QStringLiteral("الأسباب والنتائج"),
            QStringLiteral("שלום (world)"),
            QStringLiteral("Mixed 技能 الأسباب 42"),
            QStringLiteral("الأسباب mixed 42"),
            QStringLiteral("two\nlines"),
            QStringLiteral("one\n\nالأسباب\na longer line"),
            QString(),
            QStringLiteral("\n"),
            QStringLiteral("  within blanks  "),
            QStringLiteral("no\u00a0break"),
            QStringLiteral("e\u0301\u0323 combined"),
            QStringLiteral("\u200fabc"),
            QStringLiteral("123 ..."),
            QStringLiteral("\U0001F600 picture")};
}

QFont inStyle(const QFont &font, int style)
{
    QFont result(font);
    result.setBold(style == 1 || style == 5);
    result.setItalic(style == 2 || style == 5);
    result.setUnderline(style == 3 || style == 5);
    result.setStrikeOut(style == 4);
    return result;
}

constexpr int textStyles = 6;

/** All fonts that the scriptTitles are laid out in. */
void addFonts()
{
    QTest::addColumn<QFont>("font");
    for (const char *const family : {"DejaVu Sans", "DejaVu Serif", "Noto Sans CJK SC"}) {
        for (const int pixels : {7, 14, 40}) {
            QFont font(QString::fromLatin1(family));
            font.setPixelSize(pixels);
            QTest::addRow("%s %d", family, pixels) << font;
        }
    }
    QFont points;
    points.setPointSizeF(10.5);
    points.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    QTest::newRow("points, spaced") << points;
    QTest::newRow("default") << QFont();
}

/** Paints all scriptTitles, one below the other, each by @p paintTitle. */
template <typename PaintTitle>
QImage paintedTitles(qreal ratio, qreal rotation, const PaintTitle &paintTitle)
{
    const QSize size(rotation == 0 ? QSize(700, 1400) : QSize(1000, 600));
    QImage picture(size * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    QPointF place(5, rotation == 0 ? 5 : 500);
    for (const QString &title : scriptTitles()) {
        painter.save();
        painter.translate(place);
        painter.rotate(rotation);
        paintTitle(painter, title);
        painter.restore();
        place += rotation == 0 ? QPointF(0, 78.25) : QPointF(53.25, 0);
    }
    return picture;
}

} // namespace

class TestShapedText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMeasureAsADocument_data() { addFonts(); }
    void shouldMeasureAsADocument();
    void shouldPaintAsADocument_data();
    void shouldPaintAsADocument();
    void shouldHaveTheLinesOfADocument();
    void shouldTellWhatADocumentLaysOutOtherwise_data();
    void shouldTellWhatADocumentLaysOutOtherwise();
    void shouldBeLaidOutOnce();
    void shouldBeForgottenBehindManyOthers();
};

void TestShapedText::shouldMeasureAsADocument()
{
    QFETCH(QFont, font);
    for (int style = 0; style < textStyles; ++style) {
        const QFont used = inStyle(font, style);
        for (const QString &title : scriptTitles()) {
            QTextDocument document;
            document.setDefaultFont(used);
            document.setPlainText(title);

            QVERIFY(ShapedText::isPlain(title));
            QCOMPARE(ShapedText(used, title).size(), document.size());
        }
    }
}

void TestShapedText::shouldPaintAsADocument_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<qreal>("rotation");
    QFont sans(QStringLiteral("DejaVu Sans"));
    sans.setPixelSize(14);
    QFont serif(QStringLiteral("DejaVu Serif"));
    serif.setPixelSize(23);
    QFont chinese(QStringLiteral("Noto Sans CJK SC"));
    chinese.setPixelSize(17);
    for (const qreal ratio : {1.0, 1.25, 2.0}) {
        QTest::addRow("sans, %g", ratio) << sans << ratio << 0.0;
        QTest::addRow("serif, %g", ratio) << serif << ratio << 0.0;
        QTest::addRow("Chinese, %g", ratio) << chinese << ratio << 0.0;
        QTest::addRow("slanted, %g", ratio) << sans << ratio << -70.0;
    }
}

void TestShapedText::shouldPaintAsADocument()
{
    QFETCH(QFont, font);
    QFETCH(qreal, ratio);
    QFETCH(qreal, rotation);
    for (int style = 0; style < textStyles; ++style) {
        const QFont used = inStyle(font, style);
        const QColor color(20, 40, 160, 200);
        const QImage expected =
            paintedTitles(ratio, rotation, [&](QPainter &painter, const QString &title) {
                QGraphicsTextItem item;
                item.setFont(used);
                item.setDefaultTextColor(color);
                item.setPlainText(title);
                QStyleOptionGraphicsItem option;
                option.exposedRect = item.boundingRect();
                item.paint(&painter, &option, nullptr);
            });

        const QImage actual =
            paintedTitles(ratio, rotation, [&](QPainter &painter, const QString &title) {
                const ShapedText text(used, title);
                text.paint(painter, color, QRectF(QPointF(), text.size()));
            });

        QVERIFY(inkedPixels(expected) > 1000);
        QCOMPARE(difference(actual, expected, 1), QString());
    }
}

void TestShapedText::shouldHaveTheLinesOfADocument()
{
    QFont font;
    font.setPixelSize(19);
    for (const QString &title : scriptTitles()) {
        QTextDocument document;
        document.setDefaultFont(font);
        document.setPlainText(title);
        document.size();
        std::vector<ShapedTextItem::Line> expected;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            ShapedText::addLines(expected, *block.layout(),
                                 document.documentLayout()->blockBoundingRect(block).topLeft());

        const std::vector<ShapedTextItem::Line> actual = ShapedText(font, title).lines();

        QCOMPARE(actual.size(), expected.size());
        QCOMPARE(int(actual.size()), title.count(QLatin1Char('\n')) + 1);
        for (std::size_t i = 0; i < actual.size(); ++i) {
            QCOMPARE(actual[i].rect, expected[i].rect);
            QCOMPARE(actual[i].ascent, expected[i].ascent);
        }
    }
}

void TestShapedText::shouldTellWhatADocumentLaysOutOtherwise_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("tabulator") << QStringLiteral("a\tb");
    QTest::newRow("carriage return") << QStringLiteral("a\r\nb");
    QTest::newRow("line") << QStringLiteral("a\u2028b");
    QTest::newRow("paragraph") << QStringLiteral("a\u2029b");
    QTest::newRow("frame") << QStringLiteral("a") + QChar(0xfdd0);
    QTest::newRow("object") << QStringLiteral("a\ufffcb");
}

void TestShapedText::shouldTellWhatADocumentLaysOutOtherwise()
{
    QFETCH(QString, text);

    QVERIFY(!ShapedText::isPlain(text));
}

void TestShapedText::shouldBeLaidOutOnce()
{
    QFont font;
    font.setPixelSize(21);
    QFont other(font);
    other.setBold(true);
    const QString title = QStringLiteral("Laid out once");
    const int before = ShapedText::shapedTexts();

    const QSizeF size = ShapedText::of(font, title).size();
    QCOMPARE(ShapedText::shapedTexts(), before + 1);
    QCOMPARE(ShapedText::of(font, title).size(), size);
    QCOMPARE(ShapedText::shapedTexts(), before + 1);

    QVERIFY(ShapedText::of(other, title).size() != size);
    QCOMPARE(ShapedText::shapedTexts(), before + 2);
}

void TestShapedText::shouldBeForgottenBehindManyOthers()
{
    const QFont font;
    const QString title = QStringLiteral("Forgotten");
    ShapedText::of(font, title);
    for (int i = 0; i < 200; ++i) // long ones, so that few are many
        ShapedText::of(font, QString::number(i).repeated(300));
    const int before = ShapedText::shapedTexts();

    ShapedText::of(font, title);

    QCOMPARE(ShapedText::shapedTexts(), before + 1);
}

FISHBONE_TEST(TestShapedText)
#include "tst_shapedtext.moc"
