// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modelfollower.h>

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

#include <map>
#include <memory>

using namespace TestSupport;

namespace {

/**
 * What the model should hold, as plain lists of nodes. Null stands for the top level. The
 * operations are spelled out step by step, without the model's code.
 */
class Mirror
{
public:
    QList<TreeItem *> &below(TreeItem *node) { return m_lists[node]; }

    QList<TreeItem *> allNodes()
    {
        QList<TreeItem *> nodes = below(nullptr);
        for (int i = 0; i < nodes.size(); ++i)
            nodes.append(below(nodes.at(i)));
        return nodes;
    }

    bool isAtOrBelow(TreeItem *node, TreeItem *top)
    {
        if (node == top)
            return true;
        for (TreeItem *child : below(top)) {
            if (isAtOrBelow(node, child))
                return true;
        }
        return false;
    }

    void adopt(TreeItem *node)
    {
        below(node) = node->children();
        for (TreeItem *child : node->children())
            adopt(child);
    }

    /** Takes a row with all below it out. */
    void drop(TreeItem *parent, int row)
    {
        QList<TreeItem *> gone{below(parent).takeAt(row)};
        while (!gone.isEmpty()) {
            TreeItem *const node = gone.takeLast();
            gone.append(below(node));
            m_lists.erase(node);
            m_dropped.insert(node);
        }
    }

    /** The nodes that went since forgetDropped(), also those that came back or whose place in
     * memory did. */
    const QSet<TreeItem *> &dropped() const { return m_dropped; }
    void forgetDropped() { m_dropped.clear(); }

    bool move(TreeItem *from, int row, int count, TreeItem *to, int before)
    {
        if (row < 0 || before < 0 || row + count > below(from).size() || before > below(to).size())
            return false;
        for (int i = row; i < row + count; ++i) {
            if (to && from != to && isAtOrBelow(to, below(from).at(i)))
                return false;
        }
        for (int k = 0; k < count; ++k) {
            TreeItem *const node = below(from).takeAt(row);
            const int target = from == to && before > row ? before + k - 1 : before + k;
            below(to).insert(qMin(target, below(to).size()), node);
        }
        return true;
    }

private:
    std::map<TreeItem *, QList<TreeItem *>> m_lists;
    QSet<TreeItem *> m_dropped;
};

/** A model, its mirror, and an index held on every node. */
class Playground
{
public:
    explicit Playground(quint32 seed)
        : m_random(seed)
    {
        m_model.setModelType(FISH_MODEL_DIAGRAM);
        for (quint32 i = 0; i < 3; ++i)
            loadDocument(m_model, randomDocument(seed * 3 + i, {8, 3}));
        for (FishInfo *document : m_model.fishList()) {
            m_mirror.below(nullptr).append(document->treeItem()->childAtIndex(0));
            m_mirror.adopt(document->treeItem()->childAtIndex(0));
        }
        m_tester = std::make_unique<QAbstractItemModelTester>(&m_model);
        m_follower = std::make_unique<ModelFollower>(m_model);
    }

    /** Does one thing; its name when something is wrong afterwards. */
    QString step()
    {
        holdAll();
        const int kind = m_random.bounded(12);
        switch (kind) {
        case 0:
            insertNew();
            break;
        case 1:
            insertExisting();
            break;
        case 2:
            remove();
            break;
        case 3:
            takeAndPutBack();
            break;
        case 4:
            readSubtree();
            break;
        case 5:
            unloadAndReturn();
            break;
        case 6:
            changeSilently();
            break;
        default:
            move();
        }
        if (m_wrongResult)
            return QStringLiteral("wrong result of %1").arg(kind);
        const QString difference = compare();
        return difference.isEmpty() ? QString()
                                    : QStringLiteral("%1 after %2").arg(difference).arg(kind);
    }

private:
    /** Some node, or null for the top level. */
    TreeItem *somewhere()
    {
        const QList<TreeItem *> nodes = m_mirror.allNodes();
        const int i = m_random.bounded(nodes.size() + 3);
        return nodes.value(i, nullptr);
    }
    QModelIndex indexOf(TreeItem *node) const { return m_model.indexFromItem(node); }
    void expect(bool result, bool expected) { m_wrongResult |= result != expected; }

    void insertNew()
    {
        TreeItem *const parent = somewhere();
        const int row = m_random.bounded(m_mirror.below(parent).size() + 1);
        const int count = m_random.bounded(1, 4);
        expect(m_model.insertRows(row, count, indexOf(parent)), true);
        for (int i = row; i < row + count; ++i)
            m_mirror.below(parent).insert(
                i, m_model.getTreeItem(m_model.index(i, 0, indexOf(parent))));
    }

    void insertExisting()
    {
        TreeItem *const parent = somewhere();
        QList<TreeItem *> nodes;
        for (int i = m_random.bounded(3); i >= 0; --i) {
            nodes.append(new TreeItem);
            nodes.last()->insertChildren(0, m_random.bounded(3), QString());
            m_mirror.adopt(nodes.last());
        }
        const int row = m_mirror.below(parent).size();
        expect(m_model.insertExistItemRows(indexOf(parent), nodes), true);
        for (TreeItem *node : nodes)
            m_mirror.below(parent).insert(row, node);
    }

    void remove()
    {
        TreeItem *const parent = somewhere();
        const int row = m_random.bounded(m_mirror.below(parent).size() + 1);
        const int count = m_random.bounded(1, 3);
        const bool possible = row + count <= m_mirror.below(parent).size();
        expect(m_model.removeRows(row, count, indexOf(parent)), possible);
        for (int i = 0; possible && i < count; ++i)
            m_mirror.drop(parent, row);
    }

    void takeAndPutBack()
    {
        TreeItem *const parent = somewhere();
        if (m_mirror.below(parent).isEmpty())
            return;
        const int row = m_random.bounded(m_mirror.below(parent).size());
        TreeItem *const node = m_model.takeRow(row, indexOf(parent));
        m_wrongResult |= node != m_mirror.below(parent).at(row);
        m_mirror.drop(parent, row);
        const QString difference = compare();
        m_wrongResult |= !difference.isEmpty();
        TreeItem *const target = somewhere();
        m_mirror.adopt(node);
        m_mirror.below(target).append(node);
        expect(m_model.insertExistItemRows(indexOf(target), {node}), true);
    }

    void readSubtree()
    {
        TreeItem *const parent = somewhere();
        if (!parent)
            return;
        const int rows = m_mirror.below(parent).size();
        const int position = m_random.bounded(rows + 4) - 1;
        m_model.read(randomDocument(quint32(m_random.bounded(1000)), {6, 3}), parent, position);
        const int row = position >= 0 && position < rows ? position : rows;
        TreeItem *const node = parent->childAtIndex(row);
        m_mirror.below(parent).insert(row, node);
        m_mirror.adopt(node);
    }

    void unloadAndReturn()
    {
        QList<TreeItem *> &heads = m_mirror.below(nullptr);
        if (heads.isEmpty())
            return;
        const int row = m_random.bounded(heads.size());
        const int target = m_random.bounded(heads.size());
        if (m_random.bounded(3) == 0) {
            m_model.unloadFish(m_model.fishList().at(row));
            m_mirror.drop(nullptr, row);
            return;
        }
        FishInfo *const document = m_model.takeFish(row);
        TreeItem *const head = document->treeItem()->childAtIndex(0);
        m_wrongResult |= head != heads.at(row);
        m_mirror.drop(nullptr, row);
        expect(m_model.insertFish(target, document), true);
        heads.insert(target, head);
        m_mirror.adopt(head);
    }

    /** What tells no view; the views are told afterwards. */
    void changeSilently()
    {
        QList<TreeItem *> &heads = m_mirror.below(nullptr);
        const int row = m_random.bounded(heads.size() + 1);
        if (m_random.bounded(2) == 0) {
            expect(m_model.removeFishFromList(row, 1), row < heads.size());
            if (row < heads.size())
                m_mirror.drop(nullptr, row);
        } else {
            expect(m_model.insertFishToList(row, 2), true);
            heads.insert(row, m_model.getTreeItem(m_model.index(row, 0)));
            heads.insert(row + 1, m_model.getTreeItem(m_model.index(row + 1, 0)));
        }
        const QString difference = compareIndexes();
        m_wrongResult |= !difference.isEmpty();
        m_model.refreshModel();
        m_held.clear();
    }

    void move()
    {
        TreeItem *const from = somewhere();
        TreeItem *const to = m_random.bounded(3) == 0 ? from : somewhere();
        const int row = m_random.bounded(m_mirror.below(from).size() + 1);
        const int count = m_random.bounded(1, 4);
        const int before = m_random.bounded(m_mirror.below(to).size() + 2);
        const int announcements = m_follower->announcements();
        const bool moves = m_mirror.move(from, row, count, to, before);
        expect(m_model.moveRows(indexOf(from), row, count, indexOf(to), before), moves);
        if (!moves)
            m_wrongResult |= m_follower->announcements() != announcements;
    }

    void holdAll()
    {
        m_held.clear();
        m_mirror.forgetDropped();
        for (TreeItem *node : m_mirror.allNodes())
            m_held.emplace(node, indexOf(node).siblingAtColumn(m_random.bounded(5)));
    }

    QString compare()
    {
        if (m_follower->text() != m_follower->modelText())
            return QStringLiteral("not as announced");
        const QString difference = compareBelow(nullptr);
        return difference.isEmpty() ? compareIndexes() : difference;
    }

    QString compareBelow(TreeItem *node)
    {
        const QList<TreeItem *> &expected = m_mirror.below(node);
        const QModelIndex parent = indexOf(node);
        if (m_model.rowCount(parent) != expected.size())
            return QStringLiteral("wrong number of rows");
        for (int row = 0; row < expected.size(); ++row) {
            const QModelIndex index = m_model.index(row, 0, parent);
            if (m_model.getTreeItem(index) != expected.at(row) || index.parent() != parent)
                return QStringLiteral("wrong row");
            const QString difference = compareBelow(expected.at(row));
            if (!difference.isEmpty())
                return difference;
        }
        return QString();
    }

    /** An index that was held before follows its node, and is invalid once the node was out. */
    QString compareIndexes()
    {
        for (const auto &[node, index] : m_held) {
            if (m_mirror.dropped().contains(node)) {
                if (index.isValid())
                    return QStringLiteral("index of a lost node");
            } else if (m_model.getTreeItem(index) != node ||
                       QModelIndex(index) != m_model.indexFromItem(node, index.column())) {
                return QStringLiteral("index off its node");
            }
        }
        return QString();
    }

    QRandomGenerator m_random;
    FishModel m_model;
    Mirror m_mirror;
    std::map<TreeItem *, QPersistentModelIndex> m_held;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    std::unique_ptr<ModelFollower> m_follower;
    bool m_wrongResult = false;
};

} // namespace

/** Random sequences of row operations against an independent model of what they should do. */
class TestFishModelRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDoWhatItAnnouncesAndNothingElse_data();
    void shouldDoWhatItAnnouncesAndNothingElse();
};

void TestFishModelRandom::shouldDoWhatItAnnouncesAndNothingElse_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 1; seed <= 40; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestFishModelRandom::shouldDoWhatItAnnouncesAndNothingElse()
{
    QFETCH(quint32, seed);
    Playground playground(seed);

    for (int i = 0; i < 60; ++i)
        QCOMPARE(playground.step(), QString());
}

FISHBONE_TEST(TestFishModelRandom)

#include "tst_fishmodel_random.moc"
