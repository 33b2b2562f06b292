// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/cleararrangement.h>
#include <fishbone/drawing/clearlayout.h>

#include <tests/drawing/cleargeometry.h>
#include <tests/drawing/cleartrees.h>
#include <tests/program/testprogram.h>
#include <tests/support/clearpictures.h>

#include <QtTest>

#include <cmath>
#include <map>

namespace {

const QSizeF slide(1920, 1080);

ClearFonts fonts()
{
    return ClearFonts(QFont(QStringLiteral("Noto Sans CJK SC")));
}

/** Pictures of what was laid out, for whoever wants to look at them. */
void show(const ClearLayout &layout, const QString &name, const std::vector<ClearSubject> &subjects,
          const std::vector<int> &statuses = {})
{
    const QByteArray folder = qgetenv("FISHBONE_PICTURES");
    if (folder.isEmpty() || layout.bounds().width() > 5000)
        return;
    const ClearPictureContent content = ClearPictures::contentOf(subjects, statuses);
    const ClearPicture picture(content, layout, fonts(), ClearColors(DiagramLook::DistinctColors));
    QVERIFY(ClearPictures::paint(picture, 1.5)
                .save(QString::fromLocal8Bit(folder) + u'/' + name + QStringLiteral(".png")));
}

/** A chain of @p count subjects. */
std::vector<ClearSubject> chain(int count)
{
    std::vector<ClearSubject> out;
    for (int i = 0; i < count; ++i) {
        ClearSubject subject;
        subject.parent = i - 1;
        subject.title = QStringLiteral("link %1").arg(i % 7);
        out.push_back(subject);
    }
    return out;
}

/** A category with causes one below the other, each with one more below it, down to the last. */
std::vector<ClearSubject> ladder(int count)
{
    std::vector<ClearSubject> out = chain(2);
    int bone = 1;
    while (int(out.size()) < count) {
        ClearSubject rung;
        rung.parent = bone;
        rung.title = QStringLiteral("rung");
        out.push_back(rung);
        rung.title = QStringLiteral("next");
        out.push_back(rung);
        bone = int(out.size()) - 1;
    }
    return out;
}

std::vector<ClearSubject> fan(int count, int level)
{
    std::vector<ClearSubject> out = chain(level + 1);
    while (int(out.size()) < count) {
        ClearSubject leaf;
        leaf.parent = level;
        leaf.title = QString(int(out.size() * 7 % 40), u'm');
        out.push_back(leaf);
    }
    return out;
}

} // namespace

class TestClearLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeAsLargeAsPromisedOnASlide_data();
    void shouldBeAsLargeAsPromisedOnASlide();
    void shouldKeepPartsApart_data();
    void shouldKeepPartsApart();
    void shouldKeepPartsOfPagesApart_data();
    void shouldKeepPartsOfPagesApart();
    void shouldMirrorBonesButNotTexts();
    void shouldShowAHeadAlone();
    void shouldPutStatusBeforeTheFirstLineAndLinkAfterTheLast();
    void shouldSwapIconsOfTextFromRightToLeft();
    void shouldShowHowManyAreHidden();
    void shouldLayOutUnchangedTextsOnce();
    void shouldPutIconsBesideAFilledTitle_data();
    void shouldPutIconsBesideAFilledTitle();
    void shouldPutALegendBelowTheTail();
    void shouldFillTheRowsOfALegendEvenly();
    void shouldCostLittleMoreThanItsSize_data();
    void shouldCostLittleMoreThanItsSize();
};

void TestClearLayout::shouldBeAsLargeAsPromisedOnASlide_data()
{
    QTest::addColumn<qreal>("pixels");
    QTest::newRow("6m") << 33.1;
    QTest::newRow("100") << 17.4;
    QTest::newRow("unbal") << 28.9;
    QTest::newRow("sample") << 22.5;
}

void TestClearLayout::shouldBeAsLargeAsPromisedOnASlide()
{
    QFETCH(qreal, pixels);
    const QString name = QLatin1String(QTest::currentDataTag());
    const ClearTrees::Loaded loaded =
        ClearTrees::load(ClearTrees::fixture(QTest::currentDataTag()));
    QVERIFY(loaded.subjects.size() > 30);
    const ClearTree tree(loaded.subjects);
    ClearTextCache cache;
    ClearOptions base;
    base.hasLegend = true;
    const std::vector<QString> legend = ClearTrees::legend(loaded);

    const ClearOptions best = ClearArrangement::bestFor(tree, fonts(), base, slide, cache, legend);
    const ClearLayout layout(tree, fonts(), best, cache, legend);

    show(layout, name, loaded.subjects, loaded.statuses);
    const qreal scale = ClearArrangement::scaleOn(slide, layout.bounds());
    qInfo("%.1f px, %.0f x %.0f, wrap %g, %d lines, sides %d", scale * ClearMeasure::causeSize,
          layout.bounds().width(), layout.bounds().height(), best.wrap.limit, best.wrap.lines,
          int(best.sides));
    QVERIFY2(scale * ClearMeasure::causeSize >= pixels,
             qPrintable(QString::number(scale * ClearMeasure::causeSize)));
    QCOMPARE(layout.cutTitles(), 0);
    QCOMPARE(ClearGeometry(tree, layout).faults().join(u'\n'), QString());
}

void TestClearLayout::shouldKeepPartsApart_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("subjects");
    QTest::addColumn<int>("categories");
    QTest::addColumn<int>("depth");
    QTest::addColumn<qreal>("wrap");
    QTest::addColumn<int>("sides");
    QTest::addColumn<bool>("isHeadLeft");
    const qreal wraps[] = {0, 200, 145, 110};
    int seed = 0;
    for (const int subjects : {2, 3, 8, 20, 60, 150, 400, 1000, 2000}) {
        for (int depth = 1; depth <= 8; ++depth) {
            const int categories = depth == 1 ? subjects - 1 : 1 + seed * 7 % 16;
            ++seed;
            QTest::addRow("%d subjects, %d categories, %d deep", subjects, categories, depth)
                << seed << subjects << categories << depth << wraps[seed % 4] << seed / 4 % 3
                << (seed / 2 % 2 == 1);
        }
    }
}

void TestClearLayout::shouldKeepPartsApart()
{
    QFETCH(int, seed);
    QFETCH(int, subjects);
    QFETCH(int, categories);
    QFETCH(int, depth);
    QFETCH(qreal, wrap);
    QFETCH(int, sides);
    QFETCH(bool, isHeadLeft);
    ClearTrees::Kind kind;
    kind.subjects = subjects;
    kind.categories = categories;
    kind.depth = depth;
    const std::vector<ClearSubject> given = ClearTrees::random(quint32(seed), kind);
    const ClearTree tree(given);
    ClearOptions options;
    options.wrap.limit = wrap;
    options.sides = ClearSides(sides);
    options.isHeadLeft = isHeadLeft;
    ClearTextCache cache;

    const ClearLayout layout(tree, fonts(), options, cache);

    show(layout, QStringLiteral("random-%1").arg(seed), given);
    QCOMPARE(ClearGeometry(tree, layout).faults().join(u'\n'), QString());
}

void TestClearLayout::shouldKeepPartsOfPagesApart_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("subjects");
    for (const int subjects : {4, 12, 40, 90, 200, 700})
        QTest::addRow("%d", subjects) << 1000 + subjects << subjects;
}

void TestClearLayout::shouldKeepPartsOfPagesApart()
{
    QFETCH(int, seed);
    QFETCH(int, subjects);
    ClearTrees::Kind kind;
    kind.subjects = subjects;
    kind.categories = qMin(subjects - 1, 7);
    const std::vector<ClearSubject> given = ClearTrees::random(quint32(seed), kind);
    const ClearTree tree(given);
    ClearOptions base;
    base.isHeadLeft = subjects % 3 == 0;
    ClearTextCache cache;

    const ClearOptions best = ClearArrangement::bestFor(tree, fonts(), base, slide, cache);
    const ClearLayout layout(tree, fonts(), best, cache);

    show(layout, QStringLiteral("page-%1").arg(subjects), given);
    QCOMPARE(best.isHeadLeft, base.isHeadLeft);
    QCOMPARE(ClearGeometry(tree, layout).faults().join(u'\n'), QString());
}

void TestClearLayout::shouldMirrorBonesButNotTexts()
{
    ClearTrees::Kind kind;
    kind.hasOddities = false;
    std::vector<ClearSubject> subjects = ClearTrees::random(5, kind);
    for (ClearSubject &subject : subjects)
        subject.hasStatus = false; // icons stand at the start of the text, which is not mirrored
    const ClearTree tree(subjects);
    ClearTextCache cache;
    ClearOptions options;
    const ClearLayout right(tree, fonts(), options, cache);
    options.isHeadLeft = true;
    const ClearLayout left(tree, fonts(), options, cache);

    for (int i = 1; i < tree.size(); ++i) {
        const QLineF line = right.bone(i).line;
        const QLineF mirrored = left.bone(i).line;
        QCOMPARE(mirrored.x1(), -line.x1());
        QCOMPARE(mirrored.x2(), -line.x2());
        QCOMPARE(mirrored.y2(), line.y2());
        const QRectF text = right.bone(i).textRect;
        QVERIFY(qAbs(left.bone(i).textRect.left() + text.right()) < 1e-6);
        QCOMPARE(left.bone(i).text, right.bone(i).text);
    }
    QVERIFY(right.head().boundingRect().left() > -10);
    QVERIFY(left.head().boundingRect().right() < 10);
}

void TestClearLayout::shouldShowAHeadAlone()
{
    const ClearTree tree(chain(1));
    ClearTextCache cache;
    const ClearLayout layout(tree, fonts(), {}, cache);
    QCOMPARE(layout.size(), 1);
    QCOMPARE(ClearGeometry(tree, layout).faults().join(u'\n'), QString());
    QVERIFY(layout.bounds().width() > layout.head().boundingRect().width() + 40);

    const ClearLayout nothing(ClearTree({}), fonts(), {}, cache);
    QVERIFY(nothing.bounds().isNull());
}

void TestClearLayout::shouldPutStatusBeforeTheFirstLineAndLinkAfterTheLast()
{
    std::vector<ClearSubject> subjects = chain(3);
    subjects[2].title = QStringLiteral("short\nand a longer one");
    subjects[2].hasStatus = subjects[2].hasLink = true;
    subjects[2].votes = 12;
    const ClearTree tree(subjects);
    ClearTextCache cache;
    const ClearLayout layout(tree, fonts(), {}, cache);

    const ClearLayout::Bone &bone = layout.bone(2);
    QCOMPARE(bone.text->lineCount(), 2);
    const qreal lineHeight = bone.text->font().lineHeight();
    QCOMPARE(bone.status.right() + 4, bone.base(0).x());
    QCOMPARE(bone.status.center().y(), bone.textRect.top() + lineHeight / 2);
    QCOMPARE(bone.votes.left(), bone.base(1).x() + bone.text->lines()[1].width + 4);
    QCOMPARE(bone.votes.center().y(), bone.link.center().y());
    QVERIFY(bone.votes.width() > bone.votesText->width());
    QCOMPARE(bone.link.left(), bone.votes.right() + 4);
    QCOMPARE(bone.link.center().y(), bone.textRect.bottom() - lineHeight / 2);
    QVERIFY(bone.base(0).x() > bone.base(1).x()); // set to the right, where the bone is
}

void TestClearLayout::shouldSwapIconsOfTextFromRightToLeft()
{
    std::vector<ClearSubject> subjects = chain(3);
    subjects[2].title = QStringLiteral("\u062a\u0623\u062e\u064a\u0631 \u0627\u0644\u062a");
    subjects[2].hasStatus = subjects[2].hasLink = true;
    subjects[2].votes = 3;
    const ClearTree tree(subjects);
    ClearTextCache cache;
    const ClearLayout layout(tree, fonts(), {}, cache);

    const ClearLayout::Bone &bone = layout.bone(2);
    QVERIFY(bone.text->isRightToLeft());
    QVERIFY(bone.status.left() > bone.textRect.right());
    QVERIFY(bone.votes.right() < bone.textRect.left());
    QVERIFY(bone.link.right() < bone.votes.left());
}

void TestClearLayout::shouldShowHowManyAreHidden()
{
    std::vector<ClearSubject> subjects = chain(4);
    subjects[1].parent = subjects[2].parent = 0;
    subjects[3].parent = 2;
    subjects[1].hidden = 5;
    subjects[3].hidden = 120;
    const ClearTree tree(subjects);
    ClearTextCache cache;
    const ClearLayout layout(tree, fonts(), {}, cache);

    QVERIFY(!layout.bone(1).badge.isNull());
    QVERIFY(layout.bone(2).badge.isNull());
    QVERIFY(layout.bone(3).badge.width() > layout.bone(1).badge.width());
    QVERIFY(layout.bone(3).badge.left() > layout.bone(3).textRect.right()); // beside the bone
    QVERIFY(layout.bone(3).badge.right() < layout.bone(3).line.x2());
    const QLineF bone = layout.bone(1).line;
    QVERIFY(ClearGeometry::crosses(bone, layout.bone(1).badge));
    QVERIFY(!layout.bone(1).badge.intersects(layout.bone(1).box));
    QCOMPARE(ClearGeometry(tree, layout).faults().join(u'\n'), QString());
}

void TestClearLayout::shouldLayOutUnchangedTextsOnce()
{
    ClearTrees::Kind kind;
    std::vector<ClearSubject> subjects = ClearTrees::random(11, kind);
    ClearTextCache cache;
    const ClearLayout first(ClearTree(subjects), fonts(), {}, cache);
    const int before = cache.layouts();
    std::set<int> badges; // which are texts, too
    for (const ClearSubject &subject : subjects) {
        badges.insert(subject.hidden);
        badges.insert(-subject.votes); // told from those
    }
    QVERIFY(before > 0 && before <= kind.subjects + int(badges.size()));

    subjects[50].title += QStringLiteral(" anew");
    const ClearLayout second(ClearTree(subjects), fonts(), {}, cache);

    QCOMPARE(cache.layouts(), before + 1);
}

void TestClearLayout::shouldPutIconsBesideAFilledTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("isHeadLeft");
    const QString arabic = QStringLiteral("\u062a\u0623\u062e\u064a\u0631");
    for (const bool isHeadLeft : {false, true}) {
        const char *const head = isHeadLeft ? "left" : "right";
        QTest::addRow("first line short, head %s", head)
            << QStringLiteral("short\nand a longer one") << isHeadLeft;
        QTest::addRow("last line short, head %s", head)
            << QStringLiteral("a longer one\nshort") << isHeadLeft;
        QTest::addRow("from right to left, head %s", head)
            << arabic + QStringLiteral(" ") + arabic + QStringLiteral("\n") + arabic << isHeadLeft;
    }
}

void TestClearLayout::shouldPutIconsBesideAFilledTitle()
{
    QFETCH(QString, title);
    QFETCH(bool, isHeadLeft);
    std::vector<ClearSubject> subjects = chain(3);
    subjects[2].title = title;
    subjects[2].hasStatus = subjects[2].hasLink = subjects[2].isFilled = true;
    subjects[2].votes = 12;
    const ClearTree tree(subjects);
    ClearOptions options;
    options.isHeadLeft = isHeadLeft;
    ClearTextCache cache;
    const ClearLayout layout(tree, fonts(), options, cache);

    const ClearLayout::Bone &bone = layout.bone(2);
    const QRectF fill = bone.textRect.adjusted(-2, 0, 2, 0);
    const bool isReversed = bone.text->isRightToLeft();
    QCOMPARE(isReversed ? bone.status.left() - 4 : bone.status.right() + 4,
             isReversed ? fill.right() : fill.left());
    QCOMPARE(isReversed ? bone.votes.right() + 4 : bone.votes.left() - 4,
             isReversed ? fill.left() : fill.right());
    QVERIFY(!bone.link.intersects(bone.votes) && !bone.link.intersects(fill));
    const qreal lineHeight = bone.text->font().lineHeight();
    QCOMPARE(bone.status.center().y(), bone.textRect.top() + lineHeight / 2);
    QCOMPARE(bone.link.center().y(), bone.textRect.bottom() - lineHeight / 2);
    QCOMPARE(ClearGeometry(tree, layout).faults().join(u'\n'), QString());
}

void TestClearLayout::shouldFillTheRowsOfALegendEvenly()
{
    const std::vector<QString> meanings(11, QStringLiteral("under way"));
    ClearTextCache cache;
    bool hasSeenTwoRows = false;
    for (int width = 160; width < 1200; width += 20) {
        ClearLegend legend(meanings, fonts().legend(), cache);
        const QRectF drawing(0, 0, width, 100);
        legend.place(drawing, {drawing}, false); // no room in a corner
        std::map<qreal, std::size_t> rows;
        for (const ClearLegend::Entry &entry : legend.entries())
            ++rows[entry.symbol.top()];
        // Rows are filled one after the other, and to the same length: the last one has the rest.
        const std::size_t count = rows.size();
        const std::size_t fullest = (meanings.size() + count - 1) / count;
        QCOMPARE(rows.begin()->second, fullest);
        hasSeenTwoRows = hasSeenTwoRows || count == 2;
    }
    QVERIFY(hasSeenTwoRows);
}

void TestClearLayout::shouldPutALegendBelowTheTail()
{
    const ClearTree tree(chain(12));
    ClearTextCache cache;
    ClearOptions options;
    const std::vector<QString> meanings{QStringLiteral("finished"), QStringLiteral("running")};
    const ClearLayout without(tree, fonts(), options, cache, meanings);
    QVERIFY(without.legend().empty());
    options.hasLegend = true;
    for (const bool isHeadLeft : {false, true}) {
        options.isHeadLeft = isHeadLeft;
        const ClearLayout layout(tree, fonts(), options, cache, meanings);
        QCOMPARE(layout.legend().size(), std::size_t(2));
        for (const ClearLegend::Entry &entry : layout.legend()) {
            QVERIFY(layout.bounds().contains(entry.symbol | entry.textRect));
            QVERIFY(entry.symbol.top() > layout.tail().boundingRect().bottom());
            for (int i = 0; i < layout.size(); ++i)
                QVERIFY(!layout.bone(i).labelRect().intersects(entry.symbol | entry.textRect));
        }
        QVERIFY(layout.legend()[0].textRect.right() < layout.legend()[1].symbol.left());
    }
}

void TestClearLayout::shouldCostLittleMoreThanItsSize_data()
{
    QTest::addColumn<int>("shape");
    QTest::newRow("chain") << 0;
    QTest::newRow("ladder") << 1;
    QTest::newRow("many categories") << 2;
    QTest::newRow("many causes") << 3;
    QTest::newRow("many twigs") << 4;
    QTest::newRow("random") << 5;
}

void TestClearLayout::shouldCostLittleMoreThanItsSize()
{
    QFETCH(int, shape);
    const auto make = [&](int count) {
        ClearTrees::Kind kind;
        kind.subjects = count;
        kind.depth = 8;
        switch (shape) {
        case 0:
            return chain(count);
        case 1:
            return ladder(count);
        case 2:
        case 3:
        case 4:
            return fan(count, shape - 2);
        default:
            return ClearTrees::random(3, kind);
        }
    };
    ClearTextCache cache;
    for (const ClearSides sides : {ClearSides::One, ClearSides::Both}) {
        ClearOptions options;
        options.sides = sides;
        const auto workFor = [&](int count) {
            return qreal(ClearLayout(ClearTree(make(count)), fonts(), options, cache).work());
        };
        constexpr int small = 2000;
        constexpr int large = 32000;
        const qreal few = workFor(small);
        const qreal many = workFor(large);
        const qreal exponent = std::log(many / few) / std::log(qreal(large) / small);
        qInfo("%.1f and %.1f steps a subject, exponent %.2f", few / small, many / large, exponent);
        QVERIFY2(exponent <= 1.2, qPrintable(QString::number(exponent)));
        QVERIFY(many / large < 100);
    }
}

FISHBONE_TEST(TestClearLayout)
#include "tst_clearlayout.moc"
