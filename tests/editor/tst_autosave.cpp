// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QTimer>
#include <QtTest>

#include <fishbone/editor/autosave.h>
#include <tests/program/testprogram.h>

/** When it is time to save. */
class TestAutosave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWaitForItsStart();
    void shouldSaveAgainAndAgain();
    void shouldHaveOneTimer();
    void shouldNotSaveWithoutAnInterval();
    void shouldEndWithItsOwner();
};

void TestAutosave::shouldWaitForItsStart()
{
    QObject owner;
    const Autosave autosave(&owner, [] {});
    const auto *const timer = owner.findChild<QTimer *>();
    QVERIFY(timer);
    QVERIFY(!timer->isActive());
    QVERIFY(!timer->isSingleShot());
    QCOMPARE(timer->interval(), 30000);
}

void TestAutosave::shouldSaveAgainAndAgain()
{
    QObject owner;
    int saved = 0;
    Autosave autosave(&owner, [&saved] { ++saved; });
    autosave.setInterval(1);
    QTRY_VERIFY(saved > 2);
}

void TestAutosave::shouldHaveOneTimer()
{
    QObject owner;
    Autosave autosave(&owner, [] {});
    autosave.start();
    autosave.start();
    autosave.setInterval(5000);
    QCOMPARE(owner.findChildren<QTimer *>().count(), 1);
    QVERIFY(owner.findChild<QTimer *>()->isActive());
    QCOMPARE(owner.findChild<QTimer *>()->interval(), 5000);
}

void TestAutosave::shouldNotSaveWithoutAnInterval()
{
    QObject owner;
    Autosave autosave(&owner, [] {});
    const auto *const timer = owner.findChild<QTimer *>();
    for (const int none : {0, -1}) {
        autosave.setInterval(1000);
        QVERIFY(timer->isActive());
        autosave.setInterval(none);
        QVERIFY(!timer->isActive());
        autosave.start();
        QVERIFY(!timer->isActive());
    }
}

void TestAutosave::shouldEndWithItsOwner()
{
    int saved = 0;
    auto owner = std::make_unique<QObject>();
    Autosave autosave(owner.get(), [&saved] { ++saved; });
    autosave.setInterval(1);
    owner.reset();
    QTest::qWait(20);
    QCOMPARE(saved, 0);
}

FISHBONE_TEST(TestAutosave)
#include "tst_autosave.moc"
