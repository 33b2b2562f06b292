// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <functional>

#include <QLineEdit>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/items/svgcache.h>
#include <fishbone/model/fishproxymodel.h>
#include <fishbone/style/globalstylelookups.h>
#include <tests/program/testprogram.h>
#include <tests/support/largefish.h>
#include <tests/support/pictures.h>

using namespace TestSupport;

using LargeFish = LargeFixture<AskedModel>;
using Tree = std::function<std::unique_ptr<TreeItem>(int)>;
using Operation = std::function<void(LargeFish &)>;
Q_DECLARE_METATYPE(Tree)
Q_DECLARE_METATYPE(Operation)

/**
 * What an operation does grows with the diagram as fast as the diagram, not faster. Operations are
 * counted, at one size and at ten times that size; the machine's speed does not matter.
 */
class TestOperationCounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAskTheModelLinearlyOften_data();
    void shouldAskTheModelLinearlyOften();
    void shouldAskTheModelForWhatIsShownOnly();
    void shouldMakeOneSpearASubject();
    void shouldMakeTheMainBonesAloneForUndoAndRedo();
    void shouldNotRepaintWhatStaysTheSame();
    void shouldPaintOnceForOneUpdate();
    void shouldParseNoPictureForMoreSubjects();
    void shouldLookForTheGlobalStyleOnceAPass();
};

namespace {
constexpr int small = 100;
constexpr int large = 10 * small;
constexpr int tolerated = 20; ///< times as often: 10 is linear, 100 quadratic

/** Half of the nodes below the head, each with a child. */
std::unique_ptr<TreeItem> makePairs(int nodes)
{
    auto head = makeFan(nodes / 2);
    for (TreeItem *child : head->childItems())
        child->appendChild(makeFan(0).release());
    return head;
}

struct NamedShape
{
    const char *name;
    std::unique_ptr<TreeItem> (*make)(int);
};

const NamedShape shapes[] = {{"wide", makeFan}, {"pairs", makePairs}, {"bushy", makeBushy}};

TreeItem *lastNode(TreeItem *head)
{
    while (head->childCount() > 0)
        head = head->childItems().last();
    return head;
}

int subjectsBelow(const TreeItem *head)
{
    std::vector<const TreeItem *> all{head};
    for (std::size_t i = 0; i < all.size(); ++i) {
        const QList<TreeItem *> children = all[i]->children();
        all.insert(all.end(), children.cbegin(), children.cend());
    }
    return int(all.size()) - 1;
}

void search(LargeFish &fish)
{
    ReplaceFindDialog dialog;
    dialog.setModel(&fish.model);
    dialog.findChildren<QLineEdit *>().first()->setText(lastNode(fish.head)->title());
    dialog.find();
    QVERIFY(!dialog.matches().isEmpty());
}

void filter(LargeFish &fish)
{
    FishProxyModel proxy;
    proxy.setSourceModel(&fish.model);
    proxy.setFilterFixedString(QStringLiteral("7"));
    const QModelIndex top = proxy.index(0, 0);
    QVERIFY(proxy.rowCount(top) > 0);
    proxy.setFilterFixedString(QStringLiteral("8"));
    QVERIFY(proxy.rowCount(top) > 0);
}

void editTheLastSubject(LargeFish &fish)
{
    fish.editor.expandAll();
    fish.editor.scene()->clearSelection();
    lastNode(fish.head)->spear()->setSelected(true);
    fish.editor.appendSubject();
    fish.editor.undo();
    fish.editor.redo();
}

void deleteEverything(LargeFish &fish)
{
    fish.editor.expandAll();
    fish.editor.selectAll();
    fish.editor.del();
    fish.editor.undo();
}

struct NamedOperation
{
    const char *name;
    void (*run)(LargeFish &);
};

const NamedOperation operations[] = {
    {"expand all", [](LargeFish &fish) { fish.editor.expandAll(); }},
    {"rebuild", [](LargeFish &fish) { fish.editor.updateFish(true); }},
    {"relayout", [](LargeFish &fish) { fish.editor.updateFish(false); }},
    {"edit the last", editTheLastSubject},
    {"delete all", deleteEverything},
    {"search", search},
    {"filter", filter},
};

int questionsOf(const Tree &tree, const Operation &operation, int nodes)
{
    LargeFish fish(tree(nodes));
    fish.model.questions = 0;
    operation(fish);
    return fish.model.questions;
}

QByteArray counts(int few, int many)
{
    return QStringLiteral("%1, then %2").arg(few).arg(many).toLatin1();
}

/** A shown diagram with every bone in view. */
class ShownFish : public LargeFish
{
public:
    explicit ShownFish(int nodes)
        : LargeFish(makeBushy(nodes))
    {
        editor.expandAll();
        editor.resize(600, 400);
        editor.show();
        isShown = QTest::qWaitForWindowExposed(&editor);
        editor.showEntire();
        settle();
    }

    bool isShown = false;
};
} // namespace

void TestOperationCounts::shouldAskTheModelLinearlyOften_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<Operation>("operation");

    for (const NamedShape &shape : shapes) {
        for (const NamedOperation &operation : operations)
            QTest::addRow("%s, %s", operation.name, shape.name)
                << Tree(shape.make) << Operation(operation.run);
    }
}

void TestOperationCounts::shouldAskTheModelLinearlyOften()
{
    QFETCH(Tree, tree);
    QFETCH(Operation, operation);

    const int few = questionsOf(tree, operation, small);
    const int many = questionsOf(tree, operation, large);

    QVERIFY(few > 0);
    QVERIFY2(many <= tolerated * few, counts(few, many));
}

void TestOperationCounts::shouldAskTheModelForWhatIsShownOnly()
{
    const Operation showAgain = [](LargeFish &fish) { fish.editor.setRootIndex(fish.top); };

    const int few = questionsOf(makeBushy, showAgain, small);
    const int many = questionsOf(makeBushy, showAgain, large);

    QVERIFY(few > 0);
    QCOMPARE(many, few);
}

void TestOperationCounts::shouldMakeOneSpearASubject()
{
    for (const int nodes : {small, large}) {
        LargeFish fish(makeBushy(nodes));
        const int subjects = 1 + subjectsBelow(fish.head);
        QVERIFY(subjects >= nodes);
        QCOMPARE(SpearItem::m_refCount, 1 + fish.head->childCount());

        fish.editor.expandAll();
        QCOMPARE(SpearItem::m_refCount, subjects);
        // Bone, text, status, link and button at most.
        QVERIFY(fish.editor.scene()->items().size() <= 5 * subjects);
        fish.editor.updateFish(false);
        QCOMPARE(SpearItem::m_refCount, subjects);
    }
}

void TestOperationCounts::shouldMakeTheMainBonesAloneForUndoAndRedo()
{
    for (const int nodes : {small, large}) {
        LargeFish fish(makeBushy(nodes));
        fish.editor.expandAll();
        fish.editor.scene()->clearSelection();
        lastNode(fish.head)->spear()->setSelected(true);
        fish.editor.appendSubject();
        const int subjects = 1 + subjectsBelow(fish.head);
        QCOMPARE(SpearItem::m_refCount, subjects);
        fish.editor.undo();
        QCOMPARE(SpearItem::m_refCount, 1 + fish.head->childCount());
        fish.editor.redo();
        QCOMPARE(SpearItem::m_refCount, 1 + fish.head->childCount());
        fish.editor.expandAll();
        QCOMPARE(SpearItem::m_refCount, subjects);
    }
}

void TestOperationCounts::shouldNotRepaintWhatStaysTheSame()
{
    for (const int nodes : {small, large}) {
        ShownFish fish(nodes);
        QVERIFY(fish.isShown);
        const EventCounter paints(fish.editor.view()->viewport(), QEvent::Paint);

        fish.editor.updateFish(false);
        settle();
        QCOMPARE(paints.count, 0);
    }
}

void TestOperationCounts::shouldPaintOnceForOneUpdate()
{
    for (const int nodes : {small, large}) {
        ShownFish fish(nodes);
        QVERIFY(fish.isShown);
        const EventCounter paints(fish.editor.view()->viewport(), QEvent::Paint);

        fish.editor.headSpear()->childSpear(0)->update();
        settle();
        QCOMPARE(paints.count, 1);
    }
}

void TestOperationCounts::shouldParseNoPictureForMoreSubjects()
{
    const ShownFish first(small);
    const int parsed = parsedSvgFileCount();
    QVERIFY(parsed > 0);

    const ShownFish second(large);
    QCOMPARE(parsedSvgFileCount(), parsed);
}

void TestOperationCounts::shouldLookForTheGlobalStyleOnceAPass()
{
    QVERIFY(!QFile::exists(SpearStyle::spearStyleFilePath()));
    LargeFish fish(makeFan(small));
    fish.editor.expandAll();
    fish.editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fish.editor));
    fish.editor.equalRatio(fish.editor.scene()->itemsBoundingRect());
    QVERIFY(paintEverything(*fish.editor.view()));

    int before = globalStyleLookupCount();
    fish.editor.updateFish(false);
    QCOMPARE(globalStyleLookupCount(), before + 1);

    before = globalStyleLookupCount();
    const PaintCounter paints(fish.editor.view()->viewport());
    QVERIFY(paintEverything(*fish.editor.view()));
    QVERIFY(paints.count > 0);
    QVERIFY2(globalStyleLookupCount() - before <= paints.count,
             qPrintable(QString::number(globalStyleLookupCount() - before)));

    QImage picture(200, 100, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    before = globalStyleLookupCount();
    fish.editor.scene()->render(&painter);
    QCOMPARE(globalStyleLookupCount(), before + 1);
    fish.editor.scene()->render(&painter); // which finds a file that came between
    QCOMPARE(globalStyleLookupCount(), before + 2);
}

FISHBONE_TEST(TestOperationCounts)
#include "tst_operationcounts.moc"
