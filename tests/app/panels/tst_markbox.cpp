// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/markbox.h>

#include <app/diagram/marknames.h>
#include <tests/program/testprogram.h>

#include <fishbone/items/taskstatusinfo.h>

#include <QComboBox>
#include <QSignalSpy>
#include <QtTest>

/** The choices of boxes for status and verdict. */
class TestMarkBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldListAllStatuses();
    void shouldListAllVerdicts();
    void shouldListThemBehindAnything();
    void shouldKeepWhatIsChosen();
    void shouldReadEachPictureOnce();
};

void TestMarkBox::shouldListAllStatuses()
{
    QComboBox box;
    MarkBox::listStatuses(box);
    QCOMPARE(box.count(), int(MarkNames::statuses().size()));
    for (int row = 0; row < box.count(); ++row) {
        const int status = MarkNames::noStatus + row;
        QCOMPARE(box.itemData(row).toInt(), status);
        QCOMPARE(box.itemText(row), MarkNames::of(status));
    }
    QVERIFY(box.itemIcon(0).isNull());
    QVERIFY(!box.itemIcon(box.findData(int(tsFinish))).isNull());
}

void TestMarkBox::shouldListAllVerdicts()
{
    QComboBox box;
    MarkBox::listVerdicts(box);
    QCOMPARE(box.count(), int(MarkNames::verdicts().size()));
    QCOMPARE(box.itemText(box.findData(int(Verdict::RootCause))),
             MarkNames::of(Verdict::RootCause));
}

void TestMarkBox::shouldListThemBehindAnything()
{
    QComboBox box;
    MarkBox::listStatuses(box, QStringLiteral("Any"));
    QCOMPARE(box.count(), int(MarkNames::statuses().size()) + 1);
    QCOMPARE(box.itemText(0), QStringLiteral("Any"));
    QVERIFY(!box.itemData(0).isValid());
    QCOMPARE(box.itemData(1).toInt(), MarkNames::noStatus);
    MarkBox::listStatuses(box, QStringLiteral("All")); // in another language
    QCOMPARE(box.itemText(0), QStringLiteral("All"));
    QCOMPARE(box.itemText(1), MarkNames::of(MarkNames::noStatus));
}

void TestMarkBox::shouldKeepWhatIsChosen()
{
    QComboBox box;
    MarkBox::listVerdicts(box);
    QSignalSpy changes(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
    box.setCurrentIndex(3);
    MarkBox::listVerdicts(box);
    QCOMPARE(box.currentIndex(), 3);
    box.setCurrentIndex(-1); // several subjects that differ
    MarkBox::listVerdicts(box);
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(changes.count(), 2);
}

void TestMarkBox::shouldReadEachPictureOnce()
{
    QComboBox box;
    MarkBox::listStatuses(box);
    const int row = box.findData(int(tsFinish));
    const qint64 icon = box.itemIcon(row).cacheKey();
    MarkBox::listStatuses(box); // in another language
    QCOMPARE(box.itemIcon(row).cacheKey(), icon);
}

FISHBONE_TEST(TestMarkBox)
#include "tst_markbox.moc"
