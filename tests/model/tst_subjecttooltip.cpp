// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/subjecttooltip.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>
#include <tests/program/testprogram.h>

#include <QtTest>

/** What the tool tip of a bone says. */
class TestSubjectToolTip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSayTheTitleAlone();
    void shouldSayWhatIsSet();
};

void TestSubjectToolTip::shouldSayTheTitleAlone()
{
    TreeItem subject;
    subject.setTitle(QStringLiteral("Late"));
    QCOMPARE(subjectToolTip(subject), QStringLiteral("Late"));
}

void TestSubjectToolTip::shouldSayWhatIsSet()
{
    TreeItem subject;
    subject.setTitle(QStringLiteral("Late"));
    subject.setShowid(QStringLiteral("T-1"));
    subject.setManagerName(QStringLiteral("Ada"));
    subject.setCreateDate(1000);
    subject.setPlanEndDate(86400000);
    const QStringList lines = subjectToolTip(subject).split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0), QStringLiteral("T-1 Late"));
    QVERIFY(lines.at(1).endsWith(QLatin1String("Ada")));
    QVERIFY(lines.at(2).endsWith(SystemHelper::stringFromDateTimeMsecs(1000)));
    QVERIFY(lines.at(3).endsWith(SystemHelper::stringFromDateTimeMsecs(86400000)));
    QCOMPARE(subject.toolTipString(), subjectToolTip(subject));
}

FISHBONE_GUILESS_TEST(TestSubjectToolTip)
#include "tst_subjecttooltip.moc"
