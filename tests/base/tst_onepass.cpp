// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/base/onepass.h>
#include <tests/program/testprogram.h>

#include <QtTest>

/** Passes in which what is missing is looked for once. */
class TestOnePass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTellPassesApart();
    void shouldBeOneWithPassesWithin();
    void shouldLookOnceWithinAPassAndAlwaysOutside();
};

void TestOnePass::shouldTellPassesApart()
{
    QCOMPARE(OnePass::current(), quint64(0));
    quint64 first = 0;
    {
        const OnePass pass;
        first = OnePass::current();
    }
    QVERIFY(first != 0);
    QCOMPARE(OnePass::current(), quint64(0));
    const OnePass next;
    QVERIFY(OnePass::current() != first);
}

void TestOnePass::shouldBeOneWithPassesWithin()
{
    const OnePass outer;
    const quint64 number = OnePass::current();
    {
        const OnePass inner;
        QCOMPARE(OnePass::current(), number);
    }
    QCOMPARE(OnePass::current(), number);
}

void TestOnePass::shouldLookOnceWithinAPassAndAlwaysOutside()
{
    OncePerPass search;
    QVERIFY(search.isDue());
    QVERIFY(search.isDue());
    {
        const OnePass pass;
        QVERIFY(search.isDue());
        QVERIFY(!search.isDue());
    }
    QVERIFY(search.isDue());
    const OnePass pass;
    QVERIFY(search.isDue());
    QVERIFY(!search.isDue());
}

FISHBONE_GUILESS_TEST(TestOnePass)
#include "tst_onepass.moc"
