// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/editorfixture.h>
#include <tests/support/pictures.h>

#include <fishbone/items/textitem.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/undo/editattributes.h>

#include <QAbstractTextDocumentLayout>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

using namespace TestSupport;

Q_DECLARE_METATYPE(Verdict)

namespace {

const QString title = QStringLiteral("Training");

QImage picture(const EditorFixture &fish)
{
    QGraphicsScene &scene = *fish.editor.scene();
    const QRectF rect = scene.itemsBoundingRect();
    QImage image = whitePicture(rect.size().toSize());
    QPainter painter(&image);
    scene.render(&painter, QRectF(image.rect()), rect);
    return image;
}

/** How many pixels are more red than anything else. */
int redIn(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            count += qRed(pixel) > qGreen(pixel) + 60 && qRed(pixel) > qBlue(pixel) + 60 ? 1 : 0;
        }
    }
    return count;
}

QString branched()
{
    return QStringLiteral(
        "Effect[Man[Training[Course],Shifts[Long]],Machine[Age],Method[Order],Dirt]");
}

/** Where the letters of a bone's title are in the scene, line by line. */
QList<QPolygonF> lettersOf(const SpearItem &spear)
{
    QList<QPolygonF> lines;
    const TextItem &text = *spear.textItem();
    const QTextDocument &document = *text.document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QPointF corner = document.documentLayout()->blockBoundingRect(block).topLeft();
        for (int i = 0; i < block.layout()->lineCount(); ++i)
            lines.append(
                text.mapToScene(block.layout()->lineAt(i).naturalTextRect().translated(corner)));
    }
    return lines;
}

/** All that could move when something is laid out differently. */
QVector<QRectF> placesIn(const EditorFixture &fish)
{
    QVector<QRectF> places{fish.editor.scene()->itemsBoundingRect()};
    const QList<QGraphicsItem *> items = fish.editor.scene()->items();
    for (const QGraphicsItem *item : items)
        places.append(item->sceneBoundingRect());
    return places;
}

/** All that @p changed has told to be painted anew. */
QRectF repaintedIn(const QSignalSpy &changed)
{
    QRectF repainted;
    for (const QVariantList &arguments : changed) {
        const auto rects = arguments.at(0).value<QList<QRectF>>();
        for (const QRectF &rect : rects)
            repainted |= rect;
    }
    return repainted;
}

} // namespace

/** What the classic look shows of marks. */
class TestClassicMarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowEachVerdictInItsOwnWay();
    void shouldStayWithinTheTitle_data();
    void shouldStayWithinTheTitle();
    void shouldMarkEveryLineOfATitle();
    void shouldRepaintWhatIsMarked();
    void shouldShowVotesOnTheBone_data();
    void shouldShowVotesOnTheBone();
    void shouldLayOutAsWithoutVotes();
    void shouldRepaintTheVotes();
};

void TestClassicMarks::shouldShowEachVerdictInItsOwnWay()
{
    EditorFixture fish(QStringLiteral("Effect[Man[Training,Shifts],Machine]"));
    fish.editor.expandAll();
    QList<QImage> pictures{picture(fish)};
    for (const Verdict verdict : {Verdict::Suspected, Verdict::Checking, Verdict::Confirmed,
                                  Verdict::RuledOut, Verdict::RootCause}) {
        SubjectMarks::setVerdict(*fish.subject(title), verdict);
        const QImage marked = picture(fish);
        QVERIFY(!pictures.contains(marked));
        QCOMPARE(redIn(marked) > 50, verdict == Verdict::RootCause); // unmistakable
        pictures.append(marked);
    }
    SubjectMarks::setVerdict(*fish.subject(title), Verdict::None);
    QCOMPARE(picture(fish), pictures.constFirst());
}

void TestClassicMarks::shouldStayWithinTheTitle_data()
{
    QTest::addColumn<Verdict>("verdict");
    QTest::addColumn<QString>("bone");
    for (const Verdict verdict :
         {Verdict::Suspected, Verdict::Confirmed, Verdict::RuledOut, Verdict::RootCause}) {
        for (const char *bone : {"Man", "Training", "Course", "Effect"})
            QTest::addRow("%d of %s", int(verdict), bone) << verdict << QString::fromLatin1(bone);
    }
}

/** So that a partial repaint shows what a full one does. */
void TestClassicMarks::shouldStayWithinTheTitle()
{
    QFETCH(Verdict, verdict);
    QFETCH(QString, bone);
    EditorFixture fish(QStringLiteral("Effect[Man[Training[Course],Shifts],Machine]"));
    fish.editor.expandAll();
    const QRectF rect = fish.editor.scene()->itemsBoundingRect();
    const QImage before = picture(fish);
    SubjectMarks::setVerdict(*fish.subject(bone), verdict);
    const QImage after = picture(fish);
    QVERIFY(before != after);
    const QRectF text =
        fish.spear(bone)->textItem()->sceneBoundingRect().translated(-rect.topLeft());
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            if (after.pixel(x, y) != before.pixel(x, y))
                QVERIFY2(text.adjusted(-2, -2, 2, 2).contains(x, y),
                         qPrintable(QStringLiteral("%1 %2").arg(x).arg(y)));
        }
    }
}

void TestClassicMarks::shouldMarkEveryLineOfATitle()
{
    EditorFixture fish(QStringLiteral("Effect[Man[Training],Machine]"));
    fish.subject(title)->setTitle(QStringLiteral("One\nTwo"));
    fish.editor.updateFish(true);
    fish.editor.expandAll();
    const TextItem &text =
        *fish.editor.headSpear()->childSpears().at(0)->childSpears().at(0)->textItem();
    const QRectF rect = fish.editor.scene()->itemsBoundingRect();
    const QImage before = picture(fish);
    SubjectMarks::setVerdict(*fish.subject(QStringLiteral("One\nTwo")), Verdict::Confirmed);
    const QImage after = picture(fish);
    const QRect box = text.sceneBoundingRect().translated(-rect.topLeft()).toRect();
    int changed[2] = {0, 0};
    for (int y = qMax(box.top(), 0); y < qMin(box.bottom(), after.height()); ++y) {
        for (int x = qMax(box.left(), 0); x < qMin(box.right(), after.width()); ++x)
            changed[y < box.center().y() ? 0 : 1] +=
                after.pixel(x, y) != before.pixel(x, y) ? 1 : 0;
    }
    QVERIFY2(changed[0] > 5 && changed[1] > 5,
             qPrintable(QStringLiteral("%1 %2").arg(changed[0]).arg(changed[1])));
}

void TestClassicMarks::shouldRepaintWhatIsMarked()
{
    EditorFixture fish(QStringLiteral("Effect[Man[Training,Shifts],Machine]"));
    fish.editor.expandAll();
    QVERIFY(fish.show());
    QTest::qWait(20);
    QSignalSpy changed(fish.editor.scene(), &QGraphicsScene::changed);
    const QRectF text = fish.spear(title)->textItem()->sceneBoundingRect();
    const QJsonObject before = EditAttributes::stateOf(*fish.subject(title));
    QJsonObject after = before;
    SubjectMarks::setVerdict(after, Verdict::RootCause);
    QVERIFY(fish.editor.run(
        std::make_unique<EditAttributes>(&fish.model, fish.index(title), before, after)));
    QTRY_VERIFY(!changed.isEmpty());
    const QRectF repainted = repaintedIn(changed);
    QVERIFY(repainted.contains(text.center()));
}

void TestClassicMarks::shouldShowVotesOnTheBone_data()
{
    QTest::addColumn<QString>("bone");
    QTest::addColumn<int>("votes");
    for (const char *bone : {"Man", "Machine", "Training", "Age", "Course", "Dirt"}) {
        for (int votes : {1, 27})
            QTest::addRow("%d for %s", votes, bone) << QString::fromLatin1(bone) << votes;
    }
}

/** Within what the bone covers, and over no letter of any title. */
void TestClassicMarks::shouldShowVotesOnTheBone()
{
    QFETCH(QString, bone);
    QFETCH(int, votes);
    EditorFixture fish(branched());
    fish.editor.expandAll();
    const QPointF origin = fish.editor.scene()->itemsBoundingRect().topLeft();
    const QImage before = picture(fish);
    SubjectMarks::setVotes(*fish.subject(bone), votes);
    const QImage after = picture(fish);
    QList<QPolygonF> letters;
    for (const char *each : {"Man", "Training", "Course", "Shifts", "Long", "Machine", "Age",
                             "Method", "Order", "Dirt"})
        letters += lettersOf(*fish.spear(QString::fromLatin1(each)));
    const QRectF own = fish.spear(bone)->sceneBoundingRect();
    int changed = 0;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            if (after.pixel(x, y) == before.pixel(x, y))
                continue;
            ++changed;
            const QPointF pos = origin + QPointF(x + 0.5, y + 0.5);
            QVERIFY2(own.adjusted(-1, -1, 1, 1).contains(pos),
                     qPrintable(QStringLiteral("outside at %1 %2").arg(x).arg(y)));
            for (const QPolygonF &line : qAsConst(letters))
                QVERIFY2(!line.containsPoint(pos, Qt::WindingFill),
                         qPrintable(QStringLiteral("on letters at %1 %2").arg(x).arg(y)));
        }
    }
    QVERIFY2(changed > 80, qPrintable(QString::number(changed)));
    SubjectMarks::setVotes(*fish.subject(bone), votes + 1);
    QVERIFY(picture(fish) != after); // another number
    SubjectMarks::setVotes(*fish.subject(bone), 0);
    QCOMPARE(picture(fish), before);
}

void TestClassicMarks::shouldLayOutAsWithoutVotes()
{
    EditorFixture plain(branched());
    plain.editor.expandAll();
    EditorFixture voted(branched());
    for (const char *bone : {"Effect", "Man", "Training", "Course"})
        SubjectMarks::setVotes(*voted.subject(QString::fromLatin1(bone)), 12);
    voted.editor.updateFish(true);
    voted.editor.expandAll();
    QCOMPARE(placesIn(voted), placesIn(plain));
}

void TestClassicMarks::shouldRepaintTheVotes()
{
    EditorFixture fish(branched());
    fish.editor.expandAll();
    QVERIFY(fish.show());
    QTest::qWait(20);
    const auto seen = [&fish] { return fish.editor.view()->viewport()->grab().toImage(); };
    const QImage before = seen();
    const QJsonObject plain = EditAttributes::stateOf(*fish.subject(title));
    QJsonObject voted = plain;
    SubjectMarks::setVotes(voted, 8);
    QSignalSpy changed(fish.editor.scene(), &QGraphicsScene::changed);
    QVERIFY(fish.editor.run(
        std::make_unique<EditAttributes>(&fish.model, fish.index(title), plain, voted)));
    QTRY_VERIFY(!changed.isEmpty());
    const QRectF repainted = repaintedIn(changed);
    QVERIFY(repainted.contains(fish.spear(title)->mapToScene(fish.spear(title)->line().p1())));
    QVERIFY(seen() != before);
}

FISHBONE_TEST(TestClassicMarks)
#include "tst_classicmarks.moc"
