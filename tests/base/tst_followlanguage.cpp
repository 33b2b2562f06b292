// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/base/followlanguage.h>
#include <tests/program/testprogram.h>

#include <QtTest>

#include <memory>

/** Widgets that hear of another language. */
class TestFollowLanguage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowNowAndInEachNewLanguage();
    void shouldEndWithTheWidget();
};

void TestFollowLanguage::shouldShowNowAndInEachNewLanguage()
{
    QWidget widget;
    int shown = 0;
    followLanguage(&widget, [&shown] { ++shown; });
    QCOMPARE(shown, 1);
    QEvent other(QEvent::StyleChange);
    QCoreApplication::sendEvent(&widget, &other);
    QCOMPARE(shown, 1);
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&widget, &language);
    QCoreApplication::sendEvent(&widget, &language);
    QCOMPARE(shown, 3);
}

void TestFollowLanguage::shouldEndWithTheWidget()
{
    auto widget = std::make_unique<QWidget>();
    const auto alive = std::make_shared<int>();
    followLanguage(widget.get(), [alive] { Q_UNUSED(alive) });
    QVERIFY(alive.use_count() > 1);
    widget.reset();
    QCOMPARE(alive.use_count(), 1L);
}

FISHBONE_TEST(TestFollowLanguage)
#include "tst_followlanguage.moc"
