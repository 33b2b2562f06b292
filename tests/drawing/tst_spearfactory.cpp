// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/spearbuilder.h>

#include <QAbstractItemModelTester>
#include <QStandardItemModel>
#include <QtTest>

#include <fishbone/items/spearitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

using namespace TestSupport;

class TestSpearFactory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void shouldMakeNothingForAnInvalidIndex();
    void shouldMakeNothingForAModelOfAnotherKind();
    void shouldMakeNothingForAnIndexOfAnotherModel();
    void shouldTitleTheSpearAsTheModelShowsTheSubject_data();
    void shouldTitleTheSpearAsTheModelShowsTheSubject();
    void shouldLinkSpearAndSubject();
    void shouldLeaveTheSpearToItsCaller();
    void shouldPassDirectionAndSizeOn();
    void shouldTakeMovabilityAndStatusFromTheSubject();
    void shouldUnlinkTheSpearThatTheSubjectHad();

private:
    std::unique_ptr<SpearItem> make(const QString &title, int direction = 0, double size = 20) const
    {
        return std::unique_ptr<SpearItem>(
            makeSpear(*m_model, indexTitled(*m_model, title), direction, size));
    }

    std::unique_ptr<FishModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void TestSpearFactory::init()
{
    m_model = std::make_unique<FishModel>();
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    loadDocument(*m_model, QStringLiteral("Effect[Man[Training],Machine]"));
}

void TestSpearFactory::cleanup()
{
    m_tester.reset();
    m_model.reset();
}

void TestSpearFactory::shouldMakeNothingForAnInvalidIndex()
{
    QCOMPARE(makeSpear(*m_model, QModelIndex(), 0, 20), nullptr);
}

void TestSpearFactory::shouldMakeNothingForAModelOfAnotherKind()
{
    QStandardItemModel other(1, 1);

    QCOMPARE(makeSpear(other, other.index(0, 0), 0, 20), nullptr);
}

void TestSpearFactory::shouldMakeNothingForAnIndexOfAnotherModel()
{
    FishModel other;
    loadDocument(other, QStringLiteral("Elsewhere"));

    QCOMPARE(makeSpear(*m_model, other.index(0, 0), 0, 20), nullptr);
    QCOMPARE(nodeTitled(other, QStringLiteral("Elsewhere"))->spear(), nullptr);
}

void TestSpearFactory::shouldTitleTheSpearAsTheModelShowsTheSubject_data()
{
    QTest::addColumn<int>("modelType");
    QTest::addColumn<QString>("subject");
    QTest::addColumn<QString>("text");

    QTest::newRow("a head with its counts") << int(FISH_MODEL_NORMAL) << QStringLiteral("Effect")
                                            << QStringLiteral("Effect(0个无父任务/共4个任务)");
    QTest::newRow("a head without counts")
        << int(FISH_MODEL_DIAGRAM) << QStringLiteral("Effect") << QStringLiteral("Effect");
    QTest::newRow("any other subject")
        << int(FISH_MODEL_NORMAL) << QStringLiteral("Training") << QStringLiteral("Training");
}

void TestSpearFactory::shouldTitleTheSpearAsTheModelShowsTheSubject()
{
    QFETCH(int, modelType);
    QFETCH(QString, subject);
    QFETCH(QString, text);
    m_model->setModelType(FISH_MODEL_TYPE(modelType));

    const auto spear = make(subject);

    QVERIFY(spear);
    QCOMPARE(spear->text(), text);
}

void TestSpearFactory::shouldLinkSpearAndSubject()
{
    const auto spear = make(QStringLiteral("Training"));

    TreeItem *const subject = nodeTitled(*m_model, QStringLiteral("Training"));
    QCOMPARE(spear->treeItem(), subject);
    QCOMPARE(subject->spear(), spear.get());
    QCOMPARE(spear->modelIndex(), m_model->indexFromItem(subject));
}

void TestSpearFactory::shouldLeaveTheSpearToItsCaller()
{
    const auto spear = make(QStringLiteral("Man"));

    QCOMPARE(spear->parentItem(), nullptr);
    QCOMPARE(spear->scene(), nullptr);
}

void TestSpearFactory::shouldPassDirectionAndSizeOn()
{
    const auto spear = make(QStringLiteral("Man"), -1, 12.5);

    QCOMPARE(spear->direction(), -1);
    QCOMPARE(spear->spearSize(), 12.5);
}

void TestSpearFactory::shouldTakeMovabilityAndStatusFromTheSubject()
{
    TreeItem *const subject = nodeTitled(*m_model, QStringLiteral("Man"));
    subject->setSpearItemIsMovable(false);
    subject->setStatus(tsFinish);

    const auto spear = make(QStringLiteral("Man"));

    QVERIFY(!(spear->flags() & QGraphicsItem::ItemIsMovable));
    QCOMPARE(spear->statusItem()->status(), tsFinish);
}

void TestSpearFactory::shouldUnlinkTheSpearThatTheSubjectHad()
{
    const auto former = make(QStringLiteral("Man"));

    const auto spear = make(QStringLiteral("Man"));

    QCOMPARE(former->treeItem(), nullptr);
    QCOMPARE(nodeTitled(*m_model, QStringLiteral("Man"))->spear(), spear.get());
}

FISHBONE_TEST(TestSpearFactory)
#include "tst_spearfactory.moc"
