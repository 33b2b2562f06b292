// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/exchange/freemindicons.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/treeitem.h>

#include <QtTest>

/** The icons of mind maps that say something about a task. */
class TestFreeMindIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSayAStatusAPriorityOrAProgress();
    void shouldKnowAllSuchIcons();
    void shouldLeaveASubjectAloneForOtherIcons();
};

void TestFreeMindIcons::shouldSayAStatusAPriorityOrAProgress()
{
    TreeItem subject;
    QCOMPARE(FreeMindIcons::apply(QStringLiteral("button_ok"), subject).value_or(-1),
             int(tsFinish));
    QCOMPARE(subject.status(), int(tsFinish));
    QCOMPARE(FreeMindIcons::apply(QStringLiteral("full-3"), subject).value_or(-1), 3);
    QCOMPARE(subject.priority(), 3);
    QCOMPARE(FreeMindIcons::apply(QStringLiteral("75%"), subject).value_or(-1), 75);
    QCOMPARE(subject.progress(), 75);
}

void TestFreeMindIcons::shouldKnowAllSuchIcons()
{
    for (int level = 0; level < 10; ++level) {
        TreeItem subject;
        QVERIFY(FreeMindIcons::apply(QStringLiteral("full-%1").arg(level), subject));
        QCOMPARE(subject.priority(), level);
    }
    for (const int percent : {0, 25, 50, 75, 100}) {
        TreeItem subject;
        QVERIFY(FreeMindIcons::apply(QStringLiteral("%1%").arg(percent), subject));
        QCOMPARE(subject.progress(), percent);
    }
    const std::pair<const char *, int> statuses[] = {{"button_ok", tsFinish},
                                                     {"checked", tsFinish},
                                                     {"button_cancel", tsCancel},
                                                     {"unchecked", tsWaitting},
                                                     {"hourglass", tsWaitting}};
    for (const auto &[name, status] : statuses) {
        TreeItem subject;
        QVERIFY2(FreeMindIcons::apply(QLatin1String(name), subject), name);
        QCOMPARE(subject.status(), status);
    }
}

void TestFreeMindIcons::shouldLeaveASubjectAloneForOtherIcons()
{
    TreeItem subject;
    const int status = subject.status();
    QVERIFY(!FreeMindIcons::apply(QStringLiteral("flag-red"), subject));
    QVERIFY(!FreeMindIcons::apply(QString(), subject));
    QCOMPARE(subject.status(), status);
}

FISHBONE_GUILESS_TEST(TestFreeMindIcons)

#include "tst_freemindicons.moc"
