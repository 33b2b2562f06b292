// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearpacked.h>

#include <QtTest>

#include <fishbone/drawing/clearlayout.h>
#include <tests/drawing/cleartrees.h>
#include <tests/program/testprogram.h>

#include <algorithm>
#include <cmath>

/** That categories which are not packed again stand as if they were. */
class TestClearPacked : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStandAsIfPackedAnew_data();
    void shouldStandAsIfPackedAnew();
    void shouldPackOnlyWhatChanges();
    void shouldPlaceAgainInProportionToItsSize_data();
    void shouldPlaceAgainInProportionToItsSize();
};

namespace {
ClearFonts fonts()
{
    return ClearFonts(QFont());
}

/** How two layouts of the same tree differ; empty when they do not. */
QString difference(const ClearLayout &actual, const ClearLayout &expected)
{
    if (actual.bounds() != expected.bounds())
        return QStringLiteral("bounds");
    for (int index = 0; index < expected.size(); ++index) {
        const ClearLayout::Bone &a = actual.bone(index);
        const ClearLayout::Bone &b = expected.bone(index);
        if (a.line != b.line || a.textRect != b.textRect || a.box != b.box ||
            a.status != b.status || a.votes != b.votes || a.votesText != b.votesText ||
            a.link != b.link || a.badge != b.badge || a.side != b.side || a.category != b.category)
            return QStringLiteral("bone %1").arg(index);
    }
    return QString();
}

using Subjects = std::vector<ClearSubject>;

/** Removes the last subject, which has nothing below it. */
void removeLast(Subjects &subjects)
{
    subjects.pop_back();
}
} // namespace

void TestClearPacked::shouldStandAsIfPackedAnew_data()
{
    QTest::addColumn<int>("sides");
    QTest::addColumn<bool>("isHeadLeft");
    for (int sides = 0; sides < 3; ++sides) {
        for (const bool isHeadLeft : {false, true})
            QTest::addRow("sides %d, head %s", sides, isHeadLeft ? "left" : "right")
                << sides << isHeadLeft;
    }
}

void TestClearPacked::shouldStandAsIfPackedAnew()
{
    QFETCH(int, sides);
    QFETCH(bool, isHeadLeft);
    ClearTrees::Kind kind;
    kind.subjects = 120;
    ClearOptions options;
    options.wrap.limit = 145;
    options.sides = ClearSides(sides);
    options.isHeadLeft = isHeadLeft;
    using Change = void (*)(Subjects &);
    const Change changes[] = {
        [](Subjects &) {},
        [](Subjects &s) { s[60].title += QStringLiteral(" and something longer than before"); },
        [](Subjects &s) { s[0].title = QStringLiteral("Another head, with two lines"); },
        [](Subjects &s) { s[1].title = QStringLiteral("Another category"); },
        [](Subjects &s) { s[90].hasStatus = !s[90].hasStatus; },
        [](Subjects &s) { s[91].hasLink = !s[91].hasLink; },
        [](Subjects &s) { s[92].votes = 7; },
        [](Subjects &s) { s[92].votes = 8; },
        [](Subjects &s) { s[92].isFilled = !s[92].isFilled; },
        [](Subjects &s) { s[119].hidden = 17; },
        [](Subjects &s) { s[30].font = ClearFont(QFont(), 24); },
        removeLast,
        removeLast,
        [](Subjects &s) { // moves to the head: one category more, and others in other rows
            s.back().parent = 0;
        },
    };
    Subjects subjects = ClearTrees::random(5, kind);
    ClearTextCache cache;
    std::vector<ClearPacked> packed;
    for (const Change change : changes) {
        change(subjects);
        const ClearTree tree(subjects);
        const ClearLayout again(tree, fonts(), options, cache, {}, packed);
        QCOMPARE(difference(again, ClearLayout(tree, fonts(), options, cache)), QString());
    }
    options.isHeadLeft = !isHeadLeft;
    const ClearTree tree(subjects);
    const ClearLayout mirrored(tree, fonts(), options, cache, {}, packed);
    QCOMPARE(difference(mirrored, ClearLayout(tree, fonts(), options, cache)), QString());
}

void TestClearPacked::shouldPackOnlyWhatChanges()
{
    ClearTrees::Kind kind;
    kind.subjects = 800;
    kind.categories = 8;
    Subjects subjects = ClearTrees::random(9, kind);
    ClearTextCache cache;
    std::vector<ClearPacked> packed;
    const quint64 all = ClearLayout(ClearTree(subjects), fonts(), {}, cache, {}, packed).work();
    const quint64 none = ClearLayout(ClearTree(subjects), fonts(), {}, cache, {}, packed).work();
    subjects.back().title += QStringLiteral(" anew");
    const quint64 one = ClearLayout(ClearTree(subjects), fonts(), {}, cache, {}, packed).work();
    QVERIFY2(none < all && none < one && one < all,
             qPrintable(QStringLiteral("%1 %2 %3").arg(all).arg(one).arg(none)));
}

void TestClearPacked::shouldPlaceAgainInProportionToItsSize_data()
{
    QTest::addColumn<int>("subjectsACategory");
    QTest::addColumn<int>("depth");
    QTest::newRow("all below the head") << 1 << 1;
    QTest::newRow("half of them below the head") << 2 << 2;
    QTest::newRow("few below the head") << 200 << 5;
}

/** What an edit of the first category does, which moves all others. */
void TestClearPacked::shouldPlaceAgainInProportionToItsSize()
{
    QFETCH(int, subjectsACategory);
    QFETCH(int, depth);
    ClearTextCache cache;
    const auto workFor = [&](int count) {
        ClearTrees::Kind kind;
        kind.subjects = count + 1;
        kind.categories = count / subjectsACategory;
        kind.depth = depth;
        kind.hasOddities = false;
        Subjects subjects = ClearTrees::random(4, kind);
        std::vector<ClearPacked> packed;
        const ClearLayout before(ClearTree(subjects), fonts(), {}, cache, {}, packed);
        subjects[1].title += QStringLiteral(" and much more");
        const ClearLayout after(ClearTree(subjects), fonts(), {}, cache, {}, packed);
        return qreal(after.work());
    };
    constexpr int few = 1000;
    constexpr int many = 10000;
    const qreal exponent = std::log10(workFor(many) / workFor(few));
    qInfo("exponent %.2f", exponent);
    QVERIFY2(exponent <= 1.2, qPrintable(QString::number(exponent)));
}

FISHBONE_TEST(TestClearPacked)
#include "tst_clearpacked.moc"
