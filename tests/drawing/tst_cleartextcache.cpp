// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/cleartext.h>

#include <QtTest>

#include <tests/program/testprogram.h>

namespace {
/** Asks @p cache for @p titles as a layout does. */
std::vector<const ClearText *> layOutTitles(ClearTextCache &cache, const QStringList &titles)
{
    const ClearFont font(QFont(), 12);
    std::vector<const ClearText *> texts;
    cache.beginLayout();
    for (const QString &title : titles)
        texts.push_back(cache.text(title, font, ClearWrap()).get());
    cache.forgetUnused();
    return texts;
}

QStringList numbered(int from, int count)
{
    QStringList titles;
    for (int i = 0; i < count; ++i)
        titles.append(QString::number(from + i));
    return titles;
}
} // namespace

class TestClearTextCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBreakEachTitleOnce();
    void shouldFindTitlesBehindThoseThatComeGoOrMove();
    void shouldTellFontsAndWidthsApart();
    void shouldForgetWhatIsUsedNoMore();
};

void TestClearTextCache::shouldBreakEachTitleOnce()
{
    ClearTextCache cache;
    const QStringList titles{QStringLiteral("Man"), QStringLiteral("Worn"), QStringLiteral("Man"),
                             QString(), QStringLiteral("Heat")};
    const auto first = layOutTitles(cache, titles);
    QCOMPARE(cache.layouts(), 4);
    QCOMPARE(first[0], first[2]);
    for (int turn = 0; turn < 3; ++turn)
        QVERIFY(layOutTitles(cache, titles) == first);
    QCOMPARE(cache.layouts(), 4);
}

void TestClearTextCache::shouldFindTitlesBehindThoseThatComeGoOrMove()
{
    ClearTextCache cache;
    QStringList titles = numbered(0, 40);
    const auto first = layOutTitles(cache, titles);
    titles.insert(7, QStringLiteral("new"));
    auto texts = layOutTitles(cache, titles);
    QCOMPARE(cache.layouts(), 41);
    QCOMPARE(texts[7]->lines().front().text, QStringLiteral("new"));
    QCOMPARE(texts[8], first[7]);
    QCOMPARE(texts[40], first[39]);
    titles.removeAt(7);
    titles.erase(titles.begin() + 3, titles.begin() + 9);
    texts = layOutTitles(cache, titles);
    QCOMPARE(texts[3], first[9]);
    QCOMPARE(texts[33], first[39]);
    std::reverse(titles.begin(), titles.end());
    texts = layOutTitles(cache, titles);
    QCOMPARE(texts[0], first[39]);
    QCOMPARE(texts[33], first[0]);
    QCOMPARE(cache.layouts(), 41);
}

void TestClearTextCache::shouldTellFontsAndWidthsApart()
{
    ClearTextCache cache;
    const QString title = QStringLiteral("Bearing worn");
    const ClearFont font(QFont(), 12);
    ClearWrap narrow;
    narrow.limit = 60;
    for (int turn = 0; turn < 2; ++turn) {
        cache.beginLayout();
        const auto wide = cache.text(title, font, ClearWrap());
        const auto large = cache.text(title, ClearFont(QFont(), 24), ClearWrap());
        const auto wrapped = cache.text(title, font, narrow);
        QCOMPARE(wide->lineCount(), 1);
        QVERIFY(large->width() > wide->width());
        QCOMPARE(wrapped->lineCount(), 2);
    }
    QCOMPARE(cache.layouts(), 3);
}

void TestClearTextCache::shouldForgetWhatIsUsedNoMore()
{
    ClearTextCache cache;
    const QStringList many = numbered(0, 5000);
    layOutTitles(cache, many);
    layOutTitles(cache, many);
    QCOMPARE(cache.layouts(), 5000);
    const QStringList few = numbered(10000, 10);
    for (int turn = 0; turn < 3; ++turn)
        layOutTitles(cache, few);
    QCOMPARE(cache.layouts(), 5010);
    layOutTitles(cache, many); // they are gone
    QCOMPARE(cache.layouts(), 10010);
    layOutTitles(cache, few); // while this much less is kept
    QCOMPARE(cache.layouts(), 10010);
}

FISHBONE_TEST(TestClearTextCache)
#include "tst_cleartextcache.moc"
