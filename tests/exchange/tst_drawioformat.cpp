// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>

#include <QHash>
#include <QRectF>
#include <QXmlStreamReader>
#include <QtTest>

using namespace ExchangeFixture;

namespace {

/** A box of a drawing as the file has it. */
struct Shape
{
    QString label;
    QString link;
    QString tooltip;
    QRectF frame;
    QString parent; ///< the id of the box that a line leads to it from
};

/** What a drawing shows, its boxes by their ids. */
struct Drawing
{
    QHash<QString, Shape> shapes;
    QStringList order; ///< of the boxes
    QString error;

    const Shape &titled(const QString &label) const
    {
        static const Shape none;
        for (const QString &id : order) {
            if (shapes.constFind(id)->label == label)
                return *shapes.constFind(id);
        }
        return none;
    }
    /** The title of the box above. */
    QString above(const QString &label) const { return shapes.value(titled(label).parent).label; }
};

Drawing drawingOf(const TreeItem &head)
{
    Drawing drawing;
    QXmlStreamReader xml(exported(head, Format::DrawIo));
    QString box;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes values = xml.attributes();
        const auto value = [&values](const char *name) {
            return values.value(QLatin1String(name)).toString();
        };
        if (xml.name() == QLatin1String("UserObject")) {
            box = value("id");
            if (drawing.shapes.contains(box))
                drawing.error += QStringLiteral("two of ") + box;
            drawing.order.append(box);
            drawing.shapes[box] = {value("label"), value("link"), value("tooltip"), {}, {}};
        } else if (xml.name() == QLatin1String("mxCell") && !value("edge").isEmpty()) {
            drawing.shapes[value("target")].parent = value("source");
            box.clear();
        } else if (xml.name() == QLatin1String("mxGeometry") && !box.isEmpty()) {
            drawing.shapes[box].frame =
                QRectF(value("x").toDouble(), value("y").toDouble(), value("width").toDouble(),
                       value("height").toDouble());
        }
    }
    if (xml.hasError())
        drawing.error += xml.errorString();
    return drawing;
}

} // namespace

/** Drawings for draw.io: boxes and lines that can be moved there. */
class TestDrawIoFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDrawABoxForEverySubjectAndALineToItsParent();
    void shouldKeepDetailsAndLinks();
    void shouldPlaceNoBoxOnAnother();
    void shouldKeepAnyTitle_data();
    void shouldKeepAnyTitle();
    void shouldLinkNowhereHarmful_data();
    void shouldLinkNowhereHarmful();
};

void TestDrawIoFormat::shouldDrawABoxForEverySubjectAndALineToItsParent()
{
    const Drawing drawing = drawingOf(*treeFrom("Effect[Man[Training,Rest],Machine]"));
    QCOMPARE(drawing.error, QString());
    QCOMPARE(drawing.order.size(), 5);
    QCOMPARE(drawing.shapes.size(), 5); // no line leads to what is not there
    QCOMPARE(drawing.above(QStringLiteral("Effect")), QString());
    QCOMPARE(drawing.above(QStringLiteral("Man")), QStringLiteral("Effect"));
    QCOMPARE(drawing.above(QStringLiteral("Training")), QStringLiteral("Man"));
    QCOMPARE(drawing.above(QStringLiteral("Rest")), QStringLiteral("Man"));
    QCOMPARE(drawing.above(QStringLiteral("Machine")), QStringLiteral("Effect"));
}

void TestDrawIoFormat::shouldKeepDetailsAndLinks()
{
    const auto head = treeFrom("Effect[Man]");
    head->childAtIndex(0)->setDetail(QStringLiteral("two\nlines"));
    head->childAtIndex(0)->setUrl(QStringLiteral("https://example.org/?a=1&b=2"));
    const Drawing drawing = drawingOf(*head);
    QCOMPARE(drawing.titled(QStringLiteral("Man")).tooltip, QStringLiteral("two\nlines"));
    QCOMPARE(drawing.titled(QStringLiteral("Man")).link,
             QStringLiteral("https://example.org/?a=1&b=2"));
    QCOMPARE(drawing.titled(QStringLiteral("Effect")).link, QString());
}

void TestDrawIoFormat::shouldPlaceNoBoxOnAnother()
{
    const Drawing drawing = drawingOf(
        *treeFrom("Effect[Man[Training[Plan,Time],Rest],Machine[Age],Method,Milieu[Heat]]"));
    for (int i = 0; i < drawing.order.size(); ++i) {
        const QRectF frame = drawing.shapes[drawing.order.at(i)].frame;
        QVERIFY(frame.width() > 0 && frame.height() > 0);
        for (int j = 0; j < i; ++j)
            QVERIFY(!frame.intersects(drawing.shapes[drawing.order.at(j)].frame));
    }
    // Rows stand below each other in their order.
    QVERIFY(drawing.titled(QStringLiteral("Man")).frame.y() <
            drawing.titled(QStringLiteral("Machine")).frame.y());
    QVERIFY(drawing.titled(QStringLiteral("Plan")).frame.y() <
            drawing.titled(QStringLiteral("Time")).frame.y());
}

void TestDrawIoFormat::shouldKeepAnyTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("markup") << QStringLiteral("<b onclick=\"x()\">a & b</b>");
    QTest::newRow("lines") << QStringLiteral("one\ntwo\ttabbed");
    QTest::newRow("scripts") << QStringLiteral("原因 سبب причина \U0001F41F");
    QTest::newRow("empty") << QString();
}

void TestDrawIoFormat::shouldKeepAnyTitle()
{
    QFETCH(QString, title);
    const auto head = treeFrom("Effect[Man]");
    head->childAtIndex(0)->setTitle(title);
    const Drawing drawing = drawingOf(*head);
    QCOMPARE(drawing.error, QString());
    QCOMPARE(drawing.shapes.value(drawing.order.value(1)).label, title);
    // It is a plain text: no style asks for its markup to be shown.
    QVERIFY(!exported(*head, Format::DrawIo).contains("html=1"));
}

void TestDrawIoFormat::shouldLinkNowhereHarmful_data()
{
    QTest::addColumn<QString>("link");
    QTest::newRow("script") << QStringLiteral("javascript:alert(1)");
    QTest::newRow("script in disguise") << QStringLiteral(" JavaScript:alert(1)");
    QTest::newRow("script with a gap") << QStringLiteral("java\nscript:alert(1)");
    QTest::newRow("data") << QStringLiteral("data:text/html,<script>alert(1)</script>");
}

void TestDrawIoFormat::shouldLinkNowhereHarmful()
{
    QFETCH(QString, link);
    const auto head = treeFrom("Effect[Man]");
    head->childAtIndex(0)->setUrl(link);
    head->childAtIndex(0)->setDetail(QStringLiteral("why"));
    const Drawing drawing = drawingOf(*head);
    QCOMPARE(drawing.titled(QStringLiteral("Man")).link, QString());
    QCOMPARE(drawing.titled(QStringLiteral("Man")).tooltip, QStringLiteral("why\n") + link);
}

FISHBONE_GUILESS_TEST(TestDrawIoFormat)
#include "tst_drawioformat.moc"
