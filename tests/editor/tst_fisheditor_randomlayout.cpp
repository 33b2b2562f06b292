// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QRandomGenerator>
#include <QtTest>

#include <tests/editor/referencelayout.h>
#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

/** The layout of many random diagrams against one computed from the formulas. */
class TestFishEditorRandomLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldPlaceEverythingByTheFormulas_data() { addSeeds(300); }
    void shouldPlaceEverythingByTheFormulas();
    void shouldPlaceEverythingBelowAnyRoot_data() { addSeeds(40); }
    void shouldPlaceEverythingBelowAnyRoot();
    void shouldDrawTheSameAfterARelayout_data() { addSeeds(40); }
    void shouldDrawTheSameAfterARelayout();
    void shouldDrawTheSameAfterARebuild_data() { addSeeds(40); }
    void shouldDrawTheSameAfterARebuild();
    void shouldGiveTheSamePixelsAfterARebuild_data() { addSeeds(5); }
    void shouldGiveTheSamePixelsAfterARebuild();
    void shouldDrawEditedDiagramsByTheFormulas_data() { addSeeds(60); }
    void shouldDrawEditedDiagramsByTheFormulas();

private:
    /** A third of them where sanitizers look on. */
    static void addSeeds(int usual)
    {
        const int count = unlessSanitized(usual, (usual + 2) / 3);
        QTest::addColumn<quint32>("seed");
        for (int seed = 1; seed <= count; ++seed)
            QTest::addRow("seed %d", seed) << quint32(seed);
    }
};

namespace {
/**
 * An editor on a random document, whose bones are expanded at random. Keeps its own account of
 * which subjects have to have a spear and which are expanded.
 */
class RandomDiagram : public EditorFixture
{
public:
    explicit RandomDiagram(quint32 seed)
        : EditorFixture(randomDocument(seed, {int(1 + seed * 7 % 60), int(2 + seed % 7), 12, 20}))
        , random(seed + 1000)
    {
        root = model.getFishHeadTreeItem();
        reset();
    }

    /** Main bones only, all contracted. */
    void reset()
    {
        m_shown = {root};
        m_expanded.clear();
        const QList<TreeItem *> mainBones = root->children();
        for (TreeItem *subject : mainBones)
            m_shown.insert(subject);
    }

    /** Every subject below the root in pre-order. */
    QList<TreeItem *> subjects() const
    {
        QList<TreeItem *> found;
        QList<TreeItem *> waiting{root};
        while (!waiting.isEmpty()) {
            TreeItem *const node = waiting.takeLast();
            if (node != root)
                found.append(node);
            const QList<TreeItem *> children = node->children();
            for (auto child = children.crbegin(); child != children.crend(); ++child)
                waiting.append(*child);
        }
        return found;
    }

    /** What the expand button does. */
    void toggle(TreeItem *subject)
    {
        bool made = false;
        const QList<TreeItem *> children = subject->children();
        for (TreeItem *child : children) {
            made = made || !m_shown.contains(child);
            m_shown.insert(child);
        }
        if (made)
            editor.generateSpear(&model, model.indexFromItem(subject));
        const bool expand = made || !m_expanded.contains(subject);
        subject->spear()->setExpand(expand);
        if (expand)
            m_expanded.insert(subject);
        else
            m_expanded.remove(subject);
    }

    void toggleAtRandom(int times)
    {
        const QList<TreeItem *> all = subjects();
        for (int i = 0; i < times && !all.isEmpty(); ++i) {
            TreeItem *const subject = all.at(random.bounded(all.size()));
            if (subject->spear() && subject->childCount() > 0)
                toggle(subject);
        }
    }

    void expandAll()
    {
        editor.expandAll();
        const QList<TreeItem *> all = subjects();
        m_shown += QSet<const TreeItem *>(all.cbegin(), all.cend());
        m_expanded = QSet<const TreeItem *>(all.cbegin(), all.cend());
    }

    void contractAll()
    {
        editor.contractAll();
        m_expanded.clear();
    }

    /** Rebuilds the drawing, then expands again what was expanded. */
    void rebuildWithTheSameExpansion()
    {
        const QSet<const TreeItem *> expanded = m_expanded;
        editor.updateFish(true);
        reset();
        const QList<TreeItem *> all = subjects(); // parents before children
        for (TreeItem *subject : all) {
            if (expanded.contains(subject) && subject->spear())
                toggle(subject);
        }
        editor.updateFish(false);
    }

    /**
     * Takes over what has a spear and is expanded now. For after edits, whose own tests say that.
     */
    void acceptSpears()
    {
        m_shown = {root};
        m_expanded.clear();
        const QList<TreeItem *> all = subjects();
        for (TreeItem *subject : all) {
            if (!subject->spear())
                continue;
            m_shown.insert(subject);
            if (subject->spear()->isExpand())
                m_expanded.insert(subject);
        }
    }

    /** The first subject with spears for some of its children only; empty when there is none. */
    QString halfShown() const
    {
        QList<TreeItem *> all = subjects();
        all.prepend(root);
        for (const TreeItem *subject : qAsConst(all)) {
            int spears = 0;
            for (const TreeItem *child : subject->childItems())
                spears += child->spear() ? 1 : 0;
            if (spears > 0 && spears < subject->childCount())
                return subject->title();
        }
        return {};
    }

    QString difference() const
    {
        return ReferenceLayout(model, root, m_shown, m_expanded).differenceTo(editor.headSpear());
    }

    TreeItem *root = nullptr;
    QRandomGenerator random;

private:
    QSet<const TreeItem *> m_shown;
    QSet<const TreeItem *> m_expanded;
};
} // namespace

void TestFishEditorRandomLayout::shouldPlaceEverythingByTheFormulas()
{
    QFETCH(quint32, seed);
    RandomDiagram fish(seed);
    QCOMPARE(fish.difference(), QString());

    for (int round = 0; round < 4; ++round) {
        fish.toggleAtRandom(8);
        fish.editor.updateFish(false);
        QCOMPARE(fish.difference(), QString());
    }
    fish.contractAll();
    QCOMPARE(fish.difference(), QString());
    fish.expandAll();
    QCOMPARE(fish.difference(), QString());
    fish.toggleAtRandom(5);
    fish.editor.updateFish(false);
    QCOMPARE(fish.difference(), QString());
}

void TestFishEditorRandomLayout::shouldPlaceEverythingBelowAnyRoot()
{
    QFETCH(quint32, seed);
    RandomDiagram fish(seed);
    const QList<TreeItem *> all = fish.subjects();
    for (TreeItem *subject : all) {
        fish.editor.setRootIndex(fish.model.indexFromItem(subject));
        fish.root = subject;
        fish.reset();
        QCOMPARE(fish.difference(), QString());
        fish.expandAll();
        QCOMPARE(fish.difference(), QString());
    }
}

void TestFishEditorRandomLayout::shouldDrawTheSameAfterARelayout()
{
    QFETCH(quint32, seed);
    RandomDiagram fish(seed);
    fish.toggleAtRandom(12);
    fish.editor.updateFish(false);
    const QStringList drawn = drawingText(fish.editor.headSpear());

    fish.editor.updateFish(false);
    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
    // The three passes one by one are the same as all in one.
    fish.editor.refreshFish();
    fish.editor.updateSpearSize();
    fish.editor.updateSpearPostion();
    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
}

void TestFishEditorRandomLayout::shouldDrawTheSameAfterARebuild()
{
    QFETCH(quint32, seed);
    RandomDiagram fish(seed);
    fish.toggleAtRandom(12);
    fish.editor.updateFish(false);
    const QStringList drawn = drawingText(fish.editor.headSpear());

    fish.rebuildWithTheSameExpansion();

    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
}

void TestFishEditorRandomLayout::shouldGiveTheSamePixelsAfterARebuild()
{
    QFETCH(quint32, seed);
    RandomDiagram fish(seed);
    fish.toggleAtRandom(12);
    fish.editor.updateFish(false);
    const QImage drawn = rendered(*fish.editor.scene());

    fish.editor.updateFish(false);
    QCOMPARE(rendered(*fish.editor.scene()), drawn);
    fish.rebuildWithTheSameExpansion();
    QCOMPARE(rendered(*fish.editor.scene()), drawn);
}

namespace {
/** One random edit of one or more random spears. */
void editAtRandom(RandomDiagram &fish)
{
    QList<SpearItem *> spears;
    const QList<TreeItem *> all = fish.subjects();
    for (const TreeItem *subject : all) {
        if (subject->spear() && subject->spear()->isVisible())
            spears.append(subject->spear());
    }
    fish.editor.scene()->clearSelection();
    const auto any = [&fish, &spears] { return spears.at(fish.random.bounded(spears.size())); };
    if (!spears.isEmpty()) {
        any()->setSelected(true);
        if (fish.random.bounded(3) == 0)
            any()->setSelected(true);
    }
    switch (fish.random.bounded(13)) {
    case 0:
        fish.editor.insertSubject();
        break;
    case 1:
        fish.editor.appendSubject();
        break;
    case 2:
        fish.editor.insertChildSubject();
        break;
    case 3:
        fish.editor.insertParentSubject();
        break;
    case 4:
        fish.editor.del();
        break;
    case 5:
        fish.editor.cut();
        break;
    case 6:
        fish.editor.copy();
        break;
    case 7:
        fish.editor.paste();
        break;
    case 8:
    case 9:
        fish.editor.undo();
        break;
    case 10:
        fish.editor.redo();
        break;
    default:
        if (!spears.isEmpty()) {
            SpearItem *const target = any();
            const QList<QGraphicsItem *> moved = fish.editor.selectedItems();
            fish.editor.moveItems(QPoint(), moved, target->modelIndex(),
                                  fish.random.bounded(target->treeItem()->childCount() + 1));
        }
    }
}
} // namespace

void TestFishEditorRandomLayout::shouldDrawEditedDiagramsByTheFormulas()
{
    QFETCH(quint32, seed);
    RandomDiagram fish(seed);
    fish.editor.setPasteAsNew(true); // so that every uuid stands for one subject
    for (int i = 0; i < 25; ++i) {
        editAtRandom(fish);
        QCOMPARE(fish.halfShown(), QString());
        fish.acceptSpears();
        QCOMPARE(fish.difference(), QString());
        fish.toggleAtRandom(3);
        fish.editor.updateFish(false);
        QCOMPARE(fish.difference(), QString());
    }
    fish.editor.scene()->clearSelection();
    fish.editor.updateFish(false);
    const QStringList drawn = drawingText(fish.editor.headSpear());
    fish.rebuildWithTheSameExpansion();
    QCOMPARE(drawingText(fish.editor.headSpear()), drawn);
}

FISHBONE_TEST(TestFishEditorRandomLayout)
#include "tst_fisheditor_randomlayout.moc"
