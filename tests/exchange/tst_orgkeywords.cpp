// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/orgkeywords.h>
#include <fishbone/items/taskstatusinfo.h>

#include <QtTest>

/** The words that org-mode has for statuses. */
class TestOrgKeywords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDeclareTheWordsThatAreWritten();
    void shouldReadTheWordsOfOthers();
    void shouldHaveNoWordForOtherStatuses();
};

void TestOrgKeywords::shouldDeclareTheWordsThatAreWritten()
{
    const QStringList declared = QString(OrgKeywords::declaration).split(QLatin1Char(' ')).mid(1);
    for (const int status :
         {tsCancel, tsFinish, tsPostpone, tsRunning, tsWaitting, tsWaittingAgree}) {
        const QString word = OrgKeywords::wordOf(status);
        QVERIFY2(declared.contains(word), qPrintable(word));
        QCOMPARE(OrgKeywords::statusOf(word), status);
    }
}

void TestOrgKeywords::shouldReadTheWordsOfOthers()
{
    QCOMPARE(OrgKeywords::statusOf(QStringLiteral("CANCELED")), int(tsCancel));
    QCOMPARE(OrgKeywords::statusOf(QStringLiteral("NEXT")), int(tsWaitting));
    QCOMPARE(OrgKeywords::statusOf(QStringLiteral("DEFERRED")), int(tsPostpone));
    QCOMPARE(OrgKeywords::statusOf(QStringLiteral("todo")), -1);
    QCOMPARE(OrgKeywords::statusOf(QString()), -1);
}

void TestOrgKeywords::shouldHaveNoWordForOtherStatuses()
{
    QCOMPARE(OrgKeywords::wordOf(tsUnknown), QString());
    QCOMPARE(OrgKeywords::wordOf(tsFinishDelay), QString());
    QCOMPARE(OrgKeywords::wordOf(-1), QString());
}

FISHBONE_GUILESS_TEST(TestOrgKeywords)

#include "tst_orgkeywords.moc"
