// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QAbstractItemModelTester>
#include <QtTest>

#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/drawingtext.h>

using namespace TestSupport;

class TestSpearBuilder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGiveDirectionsByLevelAndRow_data();
    void shouldGiveDirectionsByLevelAndRow();
    void shouldFollowTheBoneTwoLevelsUp_data();
    void shouldFollowTheBoneTwoLevelsUp();
    void shouldBuildTheHeadWithItsBones();
    void shouldBuildNoHeadWithoutASubject();
    void shouldShowTheDisplayTextOfTheModel();
    void shouldTakeTheSizeOfTheParentOnDemand();
    void shouldBuildNothingBelowASubjectWithoutSpear();
    void shouldLeaveAloneWhatHasASpear();
    void shouldKeepTheRowsInOrder();
    void shouldBuildASubtreeWithoutAParent();
    void shouldGiveIconsToSubjectsWithALink();
    void shouldReplaceTheIconOfAnotherLink();
};

namespace {
/** A model with a document, and a builder on it. Spears without a scene are deleted at the end. */
class BuilderFixture
{
public:
    explicit BuilderFixture(const QString &document)
        : builder(model)
    {
        model.setModelType(FISH_MODEL_DIAGRAM);
        loadDocument(model, document);
    }
    ~BuilderFixture() { delete head; }

    void buildHead() { head = builder.buildHead(model.index(0, 0)); }
    QModelIndex index(const char *title) const
    {
        return indexTitled(model, QString::fromLatin1(title));
    }
    TreeItem *subject(const char *title) const
    {
        return nodeTitled(model, QString::fromLatin1(title));
    }

    FishModel model;
    SpearBuilder builder;
    SpearItem *head = nullptr;

private:
    Q_DISABLE_COPY(BuilderFixture)
    QAbstractItemModelTester m_tester{&model,
                                      QAbstractItemModelTester::FailureReportingMode::QtTest};
};

QString linkOf(const SpearItem *spear)
{
    const auto *const link = dynamic_cast<const LinkItem *>(spear->linkItem());
    return link ? link->url() : QStringLiteral("none");
}
} // namespace

void TestSpearBuilder::shouldGiveDirectionsByLevelAndRow_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("direction");

    for (int level : {0, 2, 4, 10, -2}) {
        for (int row : {0, 1, 2})
            QTest::addRow("level %d row %d", level, row) << level << row << 0;
    }
    for (int row : {0, 2, 100})
        QTest::addRow("main bone in row %d", row) << 1 << row << 1;
    for (int row : {1, 3, 99})
        QTest::addRow("main bone in row %d", row) << 1 << row << -1;
    for (int level : {3, 5, 7})
        QTest::addRow("level %d without anything above", level) << level << 1 << 0;
}

void TestSpearBuilder::shouldGiveDirectionsByLevelAndRow()
{
    QFETCH(int, level);
    QFETCH(int, row);
    QFETCH(int, direction);
    const SpearItem alone(QStringLiteral("x"), -1, 20);

    QCOMPARE(SpearBuilder::directionFor(nullptr, level, row), direction);
    QCOMPARE(SpearBuilder::directionFor(&alone, level, row), direction);
}

void TestSpearBuilder::shouldFollowTheBoneTwoLevelsUp_data()
{
    QTest::addColumn<int>("direction");

    for (int direction : {-1, 0, 1})
        QTest::addRow("%d", direction) << direction;
}

void TestSpearBuilder::shouldFollowTheBoneTwoLevelsUp()
{
    QFETCH(int, direction);
    SpearItem grandparent(QStringLiteral("x"), direction, 20);
    auto *const parent = new SpearItem(QStringLiteral("y"), 1, 20);
    parent->setParentItem(&grandparent);

    for (int level : {3, 5, 7}) {
        for (int row : {0, 1})
            QCOMPARE(SpearBuilder::directionFor(parent, level, row), direction);
    }
}

void TestSpearBuilder::shouldBuildTheHeadWithItsBones()
{
    BuilderFixture fixture(QStringLiteral("Effect[Man[Train],Machine,Method[x]]"));

    fixture.buildHead();

    QCOMPARE(spearTreeText(fixture.head), QStringLiteral("Effect[Man,Machine,Method]"));
    QVERIFY(!fixture.head->scene());
    QVERIFY(fixture.head->isExpand());
    QCOMPARE(fixture.head->zValue(), -100.0);
    QCOMPARE(fixture.head->direction(), 0);
    const QList<SpearItem *> bones = fixture.head->childSpears();
    QCOMPARE(bones.at(0)->direction(), 1);
    QCOMPARE(bones.at(1)->direction(), -1);
    QCOMPARE(bones.at(2)->direction(), 1);
    QVERIFY(bones.at(0)->expandBuddy());
    QVERIFY(!bones.at(1)->expandBuddy());
    for (SpearItem *bone : bones) {
        QVERIFY(!bone->isExpand());
        QCOMPARE(bone->spearSize(), 20.0);
        QCOMPARE(bone->zValue(), 0.0);
        QCOMPARE(bone->treeItem()->spear(), bone);
    }
}

void TestSpearBuilder::shouldBuildNoHeadWithoutASubject()
{
    BuilderFixture fixture(QStringLiteral("Effect[Man]"));

    QVERIFY(!fixture.builder.buildHead(QModelIndex()));
    QVERIFY(!fixture.builder.buildSubtree(QModelIndex(), 1, 0, nullptr, nullptr));
    QCOMPARE(SpearItem::m_refCount, 0);
}

void TestSpearBuilder::shouldShowTheDisplayTextOfTheModel()
{
    BuilderFixture fixture(QStringLiteral("Effect[Man]"));
    fixture.model.setModelType(FISH_MODEL_NORMAL);

    fixture.buildHead();

    QCOMPARE(fixture.head->text(), QStringLiteral("Effect(0个无父任务/共2个任务)"));
    QCOMPARE(fixture.head->childSpear(0)->text(), QStringLiteral("Man"));
}

void TestSpearBuilder::shouldTakeTheSizeOfTheParentOnDemand()
{
    BuilderFixture fixture(QStringLiteral("Effect[Man[Train[x]]]"));
    auto *const man = new SpearItem(QStringLiteral("Man"), 1, 33);
    fixture.head = man; // the fixture deletes it
    fixture.subject("Man")->setSpear(man, fixture.index("Man"));

    fixture.builder.buildDescendants(fixture.index("Man"));

    QCOMPARE(fixture.subject("Train")->spear()->spearSize(), 33.0);
    QCOMPARE(fixture.subject("x")->spear()->spearSize(), 33.0);
    QCOMPARE(fixture.subject("x")->spear()->direction(), 0);
}

void TestSpearBuilder::shouldBuildNothingBelowASubjectWithoutSpear()
{
    BuilderFixture fixture(QStringLiteral("Effect[Man[Train[x]]]"));
    fixture.buildHead();

    fixture.builder.buildChildren(fixture.index("Train"));
    fixture.builder.buildDescendants(fixture.index("Train"));
    fixture.builder.buildChildren(QModelIndex());

    QCOMPARE(spearTreeText(fixture.head), QStringLiteral("Effect[Man]"));
    QCOMPARE(SpearItem::m_refCount, 2);
}

void TestSpearBuilder::shouldLeaveAloneWhatHasASpear()
{
    BuilderFixture fixture(QStringLiteral("Effect[Man[Train[x],Cost]]"));
    fixture.buildHead();
    fixture.builder.buildDescendants(fixture.index("Effect"));
    const std::vector<SpearItem *> spears = spearsInOrder(fixture.head);

    fixture.builder.buildChildren(fixture.index("Man"));
    fixture.builder.buildDescendants(fixture.index("Effect"));

    QCOMPARE(spearsInOrder(fixture.head), spears);
    QCOMPARE(SpearItem::m_refCount, 5);
}

void TestSpearBuilder::shouldKeepTheRowsInOrder()
{
    BuilderFixture fixture(QStringLiteral("Effect[Man[a,b,c,d,e]]"));
    fixture.buildHead();
    fixture.builder.buildChildren(fixture.index("Man"));
    for (const char *title : {"a", "c", "d"})
        delete fixture.subject(title)->spear();

    fixture.builder.buildChildren(fixture.index("Man"));

    QCOMPARE(spearTreeText(fixture.head), QStringLiteral("Effect[Man[a,b,c,d,e]]"));
}

void TestSpearBuilder::shouldBuildASubtreeWithoutAParent()
{
    BuilderFixture fixture(QStringLiteral("Effect[Man[Train[x,y],Cost]]"));

    fixture.head = fixture.builder.buildSubtree(fixture.index("Man"), 1, 1, nullptr, nullptr);

    QCOMPARE(spearTreeText(fixture.head), QStringLiteral("Man[Train[x,y],Cost]"));
    QVERIFY(!fixture.head->parentItem());
    QCOMPARE(fixture.head->direction(), -1);
    QVERIFY(!fixture.subject("x")->spear()->isVisible());
}

void TestSpearBuilder::shouldGiveIconsToSubjectsWithALink()
{
    BuilderFixture fixture(QStringLiteral("Effect[Man[Train],Machine]"));
    for (const char *title : {"Effect", "Man", "Train"})
        fixture.subject(title)->setUrl(QStringLiteral("https://example.org/") +
                                       QString::fromLatin1(title));
    fixture.buildHead();
    fixture.builder.buildChildren(fixture.index("Man"));

    QCOMPARE(linkOf(fixture.head), QStringLiteral("https://example.org/Effect"));
    QCOMPARE(linkOf(fixture.subject("Man")->spear()), QStringLiteral("https://example.org/Man"));
    QCOMPARE(linkOf(fixture.subject("Machine")->spear()), QStringLiteral("none"));
    // On demand no icon is made; the next refresh does.
    QCOMPARE(linkOf(fixture.subject("Train")->spear()), QStringLiteral("none"));
}

void TestSpearBuilder::shouldReplaceTheIconOfAnotherLink()
{
    BuilderFixture fixture(QStringLiteral("Effect[Man]"));
    fixture.buildHead();
    SpearItem *const man = fixture.subject("Man")->spear();

    fixture.subject("Man")->setUrl(QStringLiteral("https://example.org/1"));
    updateLinkItem(man);
    const QGraphicsItem *const icon = man->linkItem();
    QCOMPARE(linkOf(man), QStringLiteral("https://example.org/1"));
    updateLinkItem(man);
    QCOMPARE(man->linkItem(), icon);
    fixture.subject("Man")->setUrl(QStringLiteral("https://example.org/2"));
    updateLinkItem(man);
    QCOMPARE(linkOf(man), QStringLiteral("https://example.org/2"));
    QCOMPARE(man->linkItem()->parentItem(), man);
    fixture.subject("Man")->setUrl(QString());
    updateLinkItem(man);
    QCOMPARE(linkOf(man), QStringLiteral("none"));
}

FISHBONE_TEST(TestSpearBuilder)
#include "tst_spearbuilder.moc"
