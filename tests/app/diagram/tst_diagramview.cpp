// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/diagramview.h>

#include <app/common/language.h>
#include <tests/program/testprogram.h>

#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

/** How a document is shown. */
class TestDiagramView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldComeBackFromWhatItStored();
    void shouldLeaveOtherFieldsAlone();
    void shouldBeTheUsualOneWhenNothingIsStored();
    void shouldHaveTheHeadWhereTheLanguageReadsTo();
    void shouldBecomeTheUsualOneWithoutThePage();
    void shouldTakeBackWhatWasArrangedForAPage();
};

namespace {

DiagramView arranged()
{
    DiagramView view;
    view.look = DiagramLook::Classic;
    view.page = QStringLiteral("A4");
    view.options.palette = DiagramLook::GrayColors;
    view.options.wrapLimit = 90;
    view.options.sides = DiagramLook::BothSides;
    view.options.isHeadLeft = true;
    return view;
}

} // namespace

void TestDiagramView::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("Fishbone"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_diagramview"));
}

void TestDiagramView::init()
{
    QSettings().clear();
}

void TestDiagramView::shouldComeBackFromWhatItStored()
{
    QJsonObject fields;
    arranged().store(fields);
    QVERIFY(DiagramView::of(fields, DiagramView()) == arranged());
    QVERIFY(arranged() != DiagramView());
}

void TestDiagramView::shouldLeaveOtherFieldsAlone()
{
    QJsonObject fields{{QStringLiteral("zoom"), 3}, {QStringLiteral("page"), QStringLiteral("A3")}};
    DiagramView().store(fields);
    QCOMPARE(fields.value(QStringLiteral("zoom")).toInt(), 3);
    QVERIFY(!fields.contains(QStringLiteral("page")));
}

void TestDiagramView::shouldBeTheUsualOneWhenNothingIsStored()
{
    QVERIFY(DiagramView::of({}, arranged()) == arranged());
    const QJsonObject unknown{{QStringLiteral("look"), QStringLiteral("cubist")}};
    QVERIFY(DiagramView::of(unknown, arranged()) == arranged());
    QVERIFY(DiagramView::usual() == DiagramView());
    QCOMPARE(DiagramView::usual().look, DiagramLook::Clear);
}

void TestDiagramView::shouldHaveTheHeadWhereTheLanguageReadsTo()
{
    Language::install(QStringLiteral("ar"));
    QVERIFY(DiagramView::usual().options.isHeadLeft);
    DiagramView chosen;
    chosen.becomeUsual();
    QVERIFY(!DiagramView::usual().options.isHeadLeft); // as the user wants it
    QSettings().clear();
    Language::install(QString());
    QVERIFY(!DiagramView::usual().options.isHeadLeft);
}

void TestDiagramView::shouldBecomeTheUsualOneWithoutThePage()
{
    arranged().becomeUsual();
    const DiagramView usual = DiagramView::usual();
    QCOMPARE(usual.look, DiagramLook::Classic);
    QCOMPARE(usual.options.palette, DiagramLook::GrayColors);
    QVERIFY(usual.options.isHeadLeft);
    QCOMPARE(usual.page, QString());
    QCOMPARE(usual.options.sides, DiagramView().options.sides);
}

void TestDiagramView::shouldTakeBackWhatWasArrangedForAPage()
{
    DiagramView view = arranged();
    view.arrangeForScreen();
    DiagramView expected;
    expected.look = DiagramLook::Classic;
    expected.options.palette = DiagramLook::GrayColors;
    expected.options.isHeadLeft = true;
    QVERIFY(view == expected);
}

FISHBONE_TEST(TestDiagramView)
#include "tst_diagramview.moc"
