// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/shownpath.h>

#include <tests/program/testprogram.h>

#include <QApplication>
#include <QGlyphRun>
#include <QTextLayout>
#include <QtTest>

namespace {

/** Where @p part of @p text begins in a line of a window that is mirrored, in pixels. */
qreal placeOf(const QString &part, const QString &text)
{
    QTextLayout layout(text);
    QTextOption option;
    option.setTextDirection(Qt::RightToLeft);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1000);
    layout.endLayout();
    const QList<QGlyphRun> runs = line.glyphRuns(int(text.indexOf(part)), int(part.size()));
    return runs.isEmpty() ? -1 : runs.constFirst().positions().constFirst().x();
}

} // namespace

class TestShownPath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void shouldBeThePathAloneElsewhere();
    void shouldKeepTheOrderOfAPathInAMirroredWindow();
};

void TestShownPath::shouldBeThePathAloneElsewhere()
{
    QCOMPARE(ShownPath::of(QStringLiteral("/a/b.json")),
             QDir::toNativeSeparators(QStringLiteral("/a/b.json")));
}

void TestShownPath::shouldKeepTheOrderOfAPathInAMirroredWindow()
{
    const QString path = QStringLiteral("/data/late.json");
    // As it stands the slash in front comes to the right of all the rest.
    QVERIFY(placeOf(QStringLiteral("/"), path) > placeOf(QStringLiteral("late"), path));
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const QString shown = ShownPath::of(path);
    QVERIFY(placeOf(QStringLiteral("/"), shown) < placeOf(QStringLiteral("data"), shown));
    const QString sentence = QString::fromUtf8("تم حفظ %1.").arg(shown);
    QVERIFY(placeOf(QStringLiteral("/"), sentence) < placeOf(QStringLiteral("data"), sentence));
    QVERIFY(placeOf(QStringLiteral("data"), sentence) < placeOf(QStringLiteral("late"), sentence));
}

FISHBONE_TEST(TestShownPath)
#include "tst_shownpath.moc"
