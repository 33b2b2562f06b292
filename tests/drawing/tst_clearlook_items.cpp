// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearlook.h>

#include <fishbone/drawing/clearspear.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <tests/drawing/clearfish.h>
#include <tests/drawing/cleartrees.h>
#include <tests/program/testprogram.h>

#include <QtTest>

#include <array>

using namespace TestSupport;
using namespace ClearFishes;

namespace {

/** The document of a random tree. */
QJsonObject documentOf(const std::vector<ClearSubject> &subjects)
{
    std::vector<QJsonArray> children(subjects.size());
    for (std::size_t i = subjects.size(); i-- > 0;) {
        const ClearSubject &subject = subjects[i];
        QJsonObject node{{QStringLiteral("title"), subject.title},
                         {QStringLiteral("uuid"), QStringLiteral("u%1").arg(i)},
                         {QStringLiteral("status"), subject.hasStatus ? 1 + int(i % 7) : 0},
                         {QStringLiteral("children"), children[i]}};
        if (subject.hasLink)
            node.insert(QStringLiteral("url"), QStringLiteral("https://example.org"));
        if (i == 0)
            return node;
        children[std::size_t(subject.parent)].prepend(node);
    }
    return {};
}

struct Part
{
    const SpearItem *owner;
    QRectF rect;
    const char *what;
};

/** The lines of a title, where the text box of the spear stands. */
std::vector<QRectF> linesOf(const SpearItem &spear)
{
    const ClearSpear &place = *ClearSpear::of(spear);
    const QPointF moved = sceneRect(*spear.textItem()).topLeft() - place.box().topLeft();
    const ClearText &text = *place.bone.text;
    std::vector<QRectF> lines;
    for (int line = 0; line < text.lineCount(); ++line) {
        const QPointF top = place.bone.base(line) - QPointF(0, text.font().ascent());
        const QSizeF size(text.lines()[std::size_t(line)].width, text.font().lineHeight());
        if (size.width() > 0)
            lines.push_back(QRectF(top + moved, size));
    }
    return lines;
}

/** What of the shown spears is to be read. */
std::vector<Part> partsOf(const std::vector<SpearItem *> &spears)
{
    std::vector<Part> parts;
    for (const SpearItem *const spear : spears) {
        for (const QRectF &line : linesOf(*spear))
            parts.push_back({spear, line, "title"});
        const std::initializer_list<std::pair<const QGraphicsItem *, const char *>> companions{
            {spear->statusItem(), "status"},
            {spear->linkItem(), "link"},
            {spear->expandBuddy(), "button"}};
        for (const auto &[item, what] : companions) {
            if (item && item->isVisible() && !item->boundingRect().isEmpty())
                parts.push_back({spear, sceneRect(*item), what});
        }
    }
    return parts;
}

QString nameOf(const Part &part)
{
    return QStringLiteral("%1 of \"%2\"").arg(QLatin1String(part.what), part.owner->text());
}

/** Two parts that cover each other. */
QString overlapIn(const std::vector<Part> &parts)
{
    for (std::size_t i = 0; i < parts.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const QRectF common = parts[i].rect & parts[j].rect;
            if (common.width() > 0.01 && common.height() > 0.01)
                return nameOf(parts[i]) + QLatin1String(" on ") + nameOf(parts[j]);
        }
    }
    return {};
}

/** A child that stands nearer to where its parent begins than one before it on the same side. */
QString disorderIn(const SpearItem &parent)
{
    const QLineF line(parent.mapToScene(parent.line().p1()), parent.mapToScene(parent.line().p2()));
    std::array<double, 2> last{-1, -1};
    for (const SpearItem *const child : parent.childSpears()) {
        if (!child->isVisible())
            continue;
        const QPointF start = child->mapToScene(child->line().p1());
        const QPointF way = child->mapToScene(child->line().p2()) - start;
        const bool side = line.dx() * way.y() - line.dy() * way.x() > 0;
        const double place = QLineF(line.p1(), start).length();
        if (place <= last[side])
            return child->text();
        last[side] = place;
    }
    return {};
}

} // namespace

/** Where the items of an editor stand in the clear look, whatever the tree. */
class TestClearLookItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepItemsApartAndInOrder_data();
    void shouldKeepItemsApartAndInOrder();
};

void TestClearLookItems::shouldKeepItemsApartAndInOrder_data()
{
    QTest::addColumn<int>("subjects");
    QTest::addColumn<int>("categories");
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("isHeadLeft");
    QTest::newRow("few") << 12 << 3 << 2 << false;
    QTest::newRow("usual") << 60 << 6 << 3 << false;
    QTest::newRow("usual, mirrored") << 60 << 6 << 3 << true;
    QTest::newRow("one category") << 40 << 1 << 5 << false;
    QTest::newRow("many categories") << 120 << 16 << 3 << false;
    QTest::newRow("deep") << 150 << 4 << 8 << true;
    QTest::newRow("large") << 300 << 8 << 5 << false;
}

void TestClearLookItems::shouldKeepItemsApartAndInOrder()
{
    QFETCH(int, subjects);
    QFETCH(int, categories);
    QFETCH(int, depth);
    QFETCH(bool, isHeadLeft);
    for (quint32 seed = 1; seed <= 3; ++seed) {
        ClearFish fish(documentOf(ClearTrees::random(seed, {subjects, categories, depth, true})));
        DiagramLook::Options options;
        options.isHeadLeft = isHeadLeft;
        fish.editor.setLookOptions(options);
        QCOMPARE(int(fish.shownSpears().size()), subjects);
        // And with some of them contracted.
        for (const bool isContracted : {false, true}) {
            const std::vector<SpearItem *> all = spearsInOrder(fish.editor.headSpear());
            for (std::size_t i = 4; isContracted && i < all.size(); i += 9)
                all[i]->setExpand(all[i]->childSpears().isEmpty());
            fish.editor.updateFish(false);
            const std::vector<SpearItem *> shown = fish.shownSpears();
            QVERIFY(!isContracted || int(shown.size()) < subjects || subjects < 20);

            const std::vector<Part> parts = partsOf(shown);
            QVERIFY(parts.size() > shown.size());
            const QString overlap = overlapIn(parts);
            QVERIFY2(overlap.isEmpty(), qPrintable(overlap));
            const QRectF extent = ClearSpear::of(*fish.editor.headSpear())->extent;
            for (const Part &part : parts)
                QVERIFY2(extent.adjusted(-.01, -.01, .01, .01).contains(part.rect),
                         qPrintable(nameOf(part)));
            for (const SpearItem *const spear : shown)
                QCOMPARE(disorderIn(*spear), QString());
        }
    }
}

FISHBONE_TEST(TestClearLookItems)
#include "tst_clearlook_items.moc"
