// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <app/common/language.h>
#include <app/common/owndirection.h>

#include <tests/program/testprogram.h>

#include <QGlyphRun>
#include <QSettings>
#include <QStyledItemDelegate>
#include <QTextLayout>

#include <algorithm>

namespace {

/** Where @p part of @p text begins in a line of that @p direction, in pixels. */
qreal placeOf(const QString &part, const QString &text, Qt::LayoutDirection direction)
{
    QTextLayout layout(text);
    QTextOption option;
    option.setTextDirection(direction);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(1000);
    layout.endLayout();
    const QList<QGlyphRun> runs = line.glyphRuns(int(text.indexOf(part)), int(part.size()));
    return runs.isEmpty() ? -1 : runs.constFirst().positions().constFirst().x();
}

/** The @p parts in the order in which they stand from the left. */
QStringList asSeen(QStringList parts, const QString &text, Qt::LayoutDirection direction)
{
    std::sort(parts.begin(), parts.end(), [&](const QString &one, const QString &other) {
        return placeOf(one, text, direction) < placeOf(other, text, direction);
    });
    return parts;
}

} // namespace

/** Titles with letters, numbers and paths of both directions. */
class TestOwnDirection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { Language::install(QStringLiteral("en")); }

    void shouldKeepTheOrderOfTheDrawing_data();
    void shouldKeepTheOrderOfTheDrawing();
    void shouldPaintTitlesOfTheTreeInThatOrder();
};

void TestOwnDirection::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_owndirection"));
}

void TestOwnDirection::shouldKeepTheOrderOfTheDrawing_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("seen"); ///< from the left
    const auto row = [](const char *name, const char *title, const char *seen) {
        QTest::newRow(name) << QString::fromUtf8(title)
                            << QString::fromUtf8(seen).split(QLatin1Char('|'));
    };
    row("Latin with a number", "server01 down (2)", "server01|down|2|)");
    row("a path", "/var/log full", "/var|log|full");
    row("Arabic with a number", "تأخر التسليم 12", "12|التسليم|تأخر");
    row("Arabic with a Latin word", "عطل server01 اليوم", "اليوم|server01|عطل");
}

/** The drawing takes the direction of the first letter; rows of a mirrored window do so, too. */
void TestOwnDirection::shouldKeepTheOrderOfTheDrawing()
{
    QFETCH(QString, title);
    QFETCH(QStringList, seen);
    const Qt::LayoutDirection own = title.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    QCOMPARE(asSeen(seen, title, own), seen);
    QCOMPARE(OwnDirection::of(title), title); // not in a window that is not mirrored
    Language::install(QStringLiteral("ar"));
    QCOMPARE(asSeen(seen, OwnDirection::of(title), Qt::RightToLeft), seen);
}

void TestOwnDirection::shouldPaintTitlesOfTheTreeInThatOrder()
{
    QSettings().clear();
    AppFixture app;
    Language::install(QStringLiteral("ar"));
    AppFixture::settle();
    const auto *const view = app.window.tree()->view();
    const auto *const delegate = qobject_cast<QStyledItemDelegate *>(view->itemDelegate());
    QVERIFY(delegate);
    const QString title = QStringLiteral("down!");
    const QStringList seen{QStringLiteral("down"), QStringLiteral("!")};
    QCOMPARE(asSeen(seen, delegate->displayText(title, QLocale()), Qt::RightToLeft), seen);
    QVERIFY(asSeen(seen, title, Qt::RightToLeft) != seen);
    // What is read aloud and searched has the title alone.
    QCOMPARE(view->model()->index(0, 0).data().toString(), QStringLiteral("Late"));
}

FISHBONE_TEST(TestOwnDirection)
#include "tst_owndirection.moc"
