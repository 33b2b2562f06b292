// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/exchange/ziparchive.h>

#include <QPainterPath>
#include <QXmlStreamReader>
#include <QtTest>

#include <vector>

namespace {

/** A shape of a slide, in English metric units. */
struct Shape
{
    int id = 0;
    QString name;
    QString group; ///< the name of what it is moved with
    QPainterPath path;
    std::vector<QPointF> sites;
    bool isDecoration = false;
};

/** An end of a line. */
struct LineEnd
{
    QPointF point;
    QPointF other;
    int shape = 0; ///< the id of what it is attached to; 0 for nothing
    int site = 0;
};

/** What a slide says of its shapes and lines. */
struct Slide
{
    std::vector<Shape> shapes;
    std::vector<LineEnd> ends;

    const Shape *shape(int id) const
    {
        for (const Shape &candidate : shapes) {
            if (candidate.id == id)
                return &candidate;
        }
        return nullptr;
    }
};

/** Reads a slide element by element. */
class SlideReader
{
public:
    explicit SlideReader(const QByteArray &xml)
        : m_xml(xml)
    {
    }

    Slide read()
    {
        while (!m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            const QString name = m_xml.qualifiedName().toString();
            if (token == QXmlStreamReader::StartElement)
                begin(name);
            else if (token == QXmlStreamReader::EndElement)
                end(name);
        }
        return m_slide;
    }

private:
    double number(const char *name) const
    {
        return m_xml.attributes().value(QLatin1String(name)).toDouble();
    }

    void begin(const QString &name)
    {
        if (name == QLatin1String("p:grpSp"))
            m_groups.append(QString());
        else if (name == QLatin1String("p:sp") || name == QLatin1String("p:cxnSp"))
            startShape();
        else if (name == QLatin1String("p:cNvPr"))
            identify();
        else if (name == QLatin1String("adec:decorative"))
            m_shape.isDecoration = number("val") == 1;
        else if (name == QLatin1String("a:xfrm"))
            m_isFlipped = {number("flipH") == 1, number("flipV") == 1};
        else if (name == QLatin1String("a:off"))
            m_frame.moveTopLeft(QPointF(number("x"), number("y")));
        else if (name == QLatin1String("a:ext"))
            m_frame.setSize(QSizeF(number("cx"), number("cy")));
        else if (name == QLatin1String("a:pos"))
            m_shape.sites.push_back(m_frame.topLeft() + QPointF(number("x"), number("y")));
        else if (name == QLatin1String("a:pt"))
            m_points.push_back(m_frame.topLeft() + QPointF(number("x"), number("y")));
        else if (name == QLatin1String("a:stCxn"))
            m_start = {int(number("id")), int(number("idx"))};
        else if (name == QLatin1String("a:endCxn"))
            m_end = {int(number("id")), int(number("idx"))};
    }

    void end(const QString &name)
    {
        if (name == QLatin1String("p:grpSp")) {
            m_groups.removeLast();
        } else if (name == QLatin1String("a:moveTo")) {
            m_shape.path.moveTo(m_points.at(0));
        } else if (name == QLatin1String("a:lnTo")) {
            m_shape.path.lineTo(m_points.at(0));
        } else if (name == QLatin1String("a:cubicBezTo")) {
            m_shape.path.cubicTo(m_points.at(0), m_points.at(1), m_points.at(2));
        } else if (name == QLatin1String("p:sp")) {
            m_slide.shapes.push_back(m_shape);
        } else if (name == QLatin1String("p:cxnSp")) {
            endLine();
        } else {
            return;
        }
        m_points.clear();
    }

    void startShape()
    {
        m_shape = Shape();
        m_shape.group = m_groups.constLast();
        m_start = m_end = {0, 0};
    }

    /** Groups come with their names before the shapes in them. */
    void identify()
    {
        const QString name = m_xml.attributes().value(QLatin1String("name")).toString();
        if (!m_groups.isEmpty() && m_groups.constLast().isEmpty())
            m_groups.last() = name;
        m_shape.id = int(number("id"));
        m_shape.name = name;
    }

    void endLine()
    {
        QPointF from = m_frame.topLeft();
        QPointF to = from + QPointF(m_frame.width(), m_frame.height());
        if (m_isFlipped.first)
            std::swap(from.rx(), to.rx());
        if (m_isFlipped.second)
            std::swap(from.ry(), to.ry());
        m_slide.ends.push_back({from, to, m_start.first, m_start.second});
        m_slide.ends.push_back({to, from, m_end.first, m_end.second});
    }

    QXmlStreamReader m_xml;
    Slide m_slide;
    Shape m_shape;
    QStringList m_groups;
    QRectF m_frame;
    std::vector<QPointF> m_points;
    QPair<bool, bool> m_isFlipped;
    QPair<int, int> m_start;
    QPair<int, int> m_end;
};

Slide slideOf(const QByteArray &presentation)
{
    ImportedTree tree;
    ZipReader archive(presentation, tree);
    return SlideReader(archive.file(QStringLiteral("ppt/slides/slide1.xml")).value_or(QByteArray()))
        .read();
}

} // namespace

/** What of a slide is moved along when something of it is moved. */
class TestSlideExportConnections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAttachLinesWhereTheyTouch_data();
    void shouldAttachLinesWhereTheyTouch();
    void shouldAttachEachBoneOfACategory_data() { shouldAttachLinesWhereTheyTouch_data(); }
    void shouldAttachEachBoneOfACategory();
    void shouldMarkJointsAsDecoration_data() { shouldAttachLinesWhereTheyTouch_data(); }
    void shouldMarkJointsAsDecoration();
    void shouldMoveHeadSpineAndTailAsOne_data() { shouldAttachLinesWhereTheyTouch_data(); }
    void shouldMoveHeadSpineAndTailAsOne();

private:
    void draw(int look);

    Slide m_slide;
    double m_unit = 0; ///< of the scene, in English metric units
};

/** Draws a fishbone with two categories a side. */
void TestSlideExportConnections::draw(int look)
{
    TestSupport::EditorFixture fish(QStringLiteral(
        "Effect[Man[Tired[Shift,Heat],Twin],Machine[Worn[Oil]],Method[Unclear],Material]"));
    fish.editor.setLook(DiagramLook::Kind(look));
    fish.editor.updateFish(true);
    fish.editor.expandAll();
    QGraphicsScene &scene = *fish.editor.scene();
    m_slide = slideOf(SlideExport::presentation(scene, *fish.subject(QStringLiteral("Effect"))));
    const QRectF drawing = PictureExport::visibleRect(scene);
    m_unit = 0.94 * qMin(12192000 / drawing.width(), 6858000 / drawing.height());
}

void TestSlideExportConnections::shouldAttachLinesWhereTheyTouch_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("clear") << int(DiagramLook::Clear);
    QTest::newRow("classic") << int(DiagramLook::Classic);
}

void TestSlideExportConnections::shouldAttachLinesWhereTheyTouch()
{
    QFETCH(int, look);
    draw(look);
    int attached = 0;
    for (const LineEnd &end : m_slide.ends) {
        if (end.shape == 0) {
            for (const Shape &shape : m_slide.shapes)
                QVERIFY2(!shape.path.contains(end.point) || shape.path.contains(end.other),
                         qPrintable(shape.name));
            continue;
        }
        const Shape *const shape = m_slide.shape(end.shape);
        QVERIFY(shape);
        QVERIFY2(end.site < int(shape->sites.size()), qPrintable(shape->name));
        const QPointF site = shape->sites.at(size_t(end.site));
        QVERIFY2(QLineF(site, end.point).length() <= m_unit, qPrintable(shape->name));
        ++attached;
    }
    QVERIFY(attached >= 10); // each of ten bones at one end at least
}

/** At the spine, and at the box where there is one. */
void TestSlideExportConnections::shouldAttachEachBoneOfACategory()
{
    QFETCH(int, look);
    draw(look);
    const QStringList categories{QStringLiteral("Man"), QStringLiteral("Machine"),
                                 QStringLiteral("Method"), QStringLiteral("Material")};
    QStringList found;
    int atSpine = 0;
    for (size_t i = 0; i + 1 < m_slide.ends.size(); i += 2) {
        const Shape *const spine = m_slide.shape(m_slide.ends[i].shape);
        const Shape *const category = m_slide.shape(m_slide.ends[i + 1].shape);
        atSpine += spine && spine->group == QLatin1String("Effect") ? 1 : 0;
        if (spine && category && category->group != QLatin1String("Fishbone"))
            found.append(category->group);
    }
    QCOMPARE(atSpine, 4);
    found.sort();
    QStringList sorted = categories;
    sorted.sort();
    QCOMPARE(found, look == DiagramLook::Clear ? sorted : QStringList());
}

void TestSlideExportConnections::shouldMarkJointsAsDecoration()
{
    QFETCH(int, look);
    draw(look);
    int joints = 0;
    for (const Shape &shape : m_slide.shapes) {
        QCOMPARE(shape.isDecoration, shape.name.startsWith(QLatin1String("Joint")));
        joints += shape.isDecoration ? 1 : 0;
    }
    // One each for the causes below the categories; some lines of the clear look have bends.
    QVERIFY2(joints >= 6, qPrintable(QString::number(joints)));
}

void TestSlideExportConnections::shouldMoveHeadSpineAndTailAsOne()
{
    QFETCH(int, look);
    draw(look);
    int shapes = 0;
    for (const Shape &shape : m_slide.shapes)
        shapes += shape.group == QLatin1String("Effect") ? 1 : 0;
    QVERIFY(shapes >= 4); // with the title
}

FISHBONE_TEST(TestSlideExportConnections)

#include "tst_slideexport_connections.moc"
