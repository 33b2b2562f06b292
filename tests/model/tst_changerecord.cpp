// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/model/changerecord.h>
#include <fishbone/model/treeitem.h>
#include <tests/program/testprogram.h>

#include <memory>

/** What a model has told of its changes. */
class TestChangeRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStampTheDocumentThatChanges();
    void shouldStampTheListOfDocuments();
    void shouldStampInTheOrderOfAllModels();
    void shouldCountWhatNoSignalTells();
    void shouldRememberWhatWasTold();
    void shouldForgetADocumentThatDies();
};

void TestChangeRecord::shouldStampTheDocumentThatChanges()
{
    FishInfo changed;
    const FishInfo other;
    ChangeRecord record;
    const quint64 before = ChangeRecord::latestStamp();
    QVERIFY(!record.isChangedSince(before));
    record.note(&changed);
    QVERIFY(record.isChangedSince(before));
    QVERIFY(!record.isListChangedSince(before));
    QCOMPARE(ChangeRecord::stampOf(changed), ChangeRecord::latestStamp());
    QVERIFY(ChangeRecord::stampOf(changed) > before);
    QVERIFY(ChangeRecord::stampOf(other) <= before);
    QVERIFY(!record.isChangedSince(ChangeRecord::latestStamp()));
}

void TestChangeRecord::shouldStampTheListOfDocuments()
{
    ChangeRecord record;
    const quint64 before = ChangeRecord::latestStamp();
    record.note(nullptr);
    QVERIFY(record.isChangedSince(before));
    QVERIFY(record.isListChangedSince(before));
    QVERIFY(!record.isListChangedSince(ChangeRecord::latestStamp()));
}

void TestChangeRecord::shouldStampInTheOrderOfAllModels()
{
    FishInfo one;
    FishInfo other;
    ChangeRecord record;
    ChangeRecord otherRecord;
    record.note(&one);
    const quint64 between = ChangeRecord::latestStamp();
    otherRecord.note(&other);
    QVERIFY(!record.isChangedSince(between));
    QVERIFY(otherRecord.isChangedSince(between));
    QVERIFY(ChangeRecord::stampOf(one) < ChangeRecord::stampOf(other));
}

void TestChangeRecord::shouldCountWhatNoSignalTells()
{
    FishInfo document;
    ChangeRecord record;
    const quint64 before = ChangeRecord::latestStamp();
    QCOMPARE(record.silentChanges(), quint64(0));
    record.noteSilentChange(&document);
    QCOMPARE(record.silentChanges(), quint64(1));
    QVERIFY(record.isChangedSince(before));
    QVERIFY(ChangeRecord::stampOf(document) > before);
    record.note(&document);
    QCOMPARE(record.silentChanges(), quint64(1));
}

void TestChangeRecord::shouldRememberWhatWasTold()
{
    FishInfo document;
    const TreeItem item;
    const TreeItem other;
    ChangeRecord record;
    const quint64 before = ChangeRecord::latestStamp();
    record.noteTold(&item, &document);
    QVERIFY(record.isTold(&item));
    QVERIFY(!record.isTold(&other));
    QCOMPARE(record.toldDocument(), &document);
    QVERIFY(record.isTreeAsTold());
    QVERIFY(ChangeRecord::stampOf(document) > before);
    record.noteTreeChange();
    QCOMPARE(record.treeChanges(), 1);
    QVERIFY(!record.isTreeAsTold());
    QVERIFY(record.isTold(&item)); // whatever became of it

    record.noteTold(nullptr, nullptr);
    QVERIFY(!record.isTold(&item));
    QCOMPARE(record.toldDocument(), nullptr);
    QVERIFY(record.isTreeAsTold());
    QVERIFY(!record.isListChangedSince(before));
}

void TestChangeRecord::shouldForgetADocumentThatDies()
{
    auto document = std::make_unique<FishInfo>();
    const TreeItem item;
    ChangeRecord record;
    record.noteTold(&item, document.get());
    document.reset();
    QVERIFY(record.isTold(&item));
    QCOMPARE(record.toldDocument(), nullptr);
}

FISHBONE_TEST(TestChangeRecord)
#include "tst_changerecord.moc"
