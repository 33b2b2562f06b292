// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/formatnames.h>
#include <tests/program/testprogram.h>

#include <QtTest>

/** How a user is told which formats there are. */
class TestFormatNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameEachFormatThatCan();
    void shouldNameNoneWhenNoneCan();
};

void TestFormatNames::shouldNameEachFormatThatCan()
{
    const auto isMarkdown = [](DiagramExchange::Format format) {
        return format == DiagramExchange::Format::Json ||
               format == DiagramExchange::Format::Markdown;
    };
    QCOMPARE(FormatNames::ids(isMarkdown), QStringLiteral("json, md"));
    const QStringList endings = FormatNames::endings(isMarkdown).split(QStringLiteral(", "));
    QVERIFY(endings.contains(QStringLiteral(".json")));
    QVERIFY(endings.contains(QStringLiteral(".md")));
    QVERIFY(!endings.contains(QStringLiteral(".opml")));
}

void TestFormatNames::shouldNameNoneWhenNoneCan()
{
    const auto none = [](DiagramExchange::Format) { return false; };
    QCOMPARE(FormatNames::ids(none), QString());
    QCOMPARE(FormatNames::endings(none), QString());
}

FISHBONE_GUILESS_TEST(TestFormatNames)
#include "tst_formatnames.moc"
