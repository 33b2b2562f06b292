// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QRandomGenerator>
#include <QtTest>

#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/structuralcommands.h>
#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>

using namespace TestSupport;

namespace {
/** Makes commands for anything in a model, heads included, reproducibly. */
class CommandSource
{
public:
    CommandSource(CommandFixture &fixture, quint32 seed)
        : m_fixture(fixture)
        , m_random(seed)
    {
    }

    UndoCommand *next()
    {
        FishModel *const model = m_fixture.model.get();
        const QModelIndex index = randomIndex();
        switch (m_random.bounded(12)) {
        case 0:
            return new InsertChild(model, index);
        case 1:
            return new InsertBack(model, index);
        case 2:
            return new InsertFront(model, index);
        case 3:
            return new InsertParent(model, index);
        case 4:
            return new InsertFree(model);
        case 5:
            return new EditDelete(model, index);
        case 6:
            return new EditDelete(model, randomSnapshot());
        case 7: // pastes of pastes grow fast
            return isLarge() ? static_cast<UndoCommand *>(new EditDelete(model, index))
                             : randomPaste(index);
        case 8:
            return new ModifyName(model, index, QString::number(m_random.bounded(1000)));
        case 9:
            return new ModifyLinkTo(model, index, QString::number(m_random.bounded(1000)));
        case 10:
            return randomItem(index);
        default:
            return randomMove(index);
        }
    }

private:
    bool isLarge() const { return allNodes(*m_fixture.model).size() > 100; }

    TreeItem *randomNode()
    {
        const std::vector<TreeItem *> nodes = allNodes(*m_fixture.model);
        if (nodes.empty())
            return nullptr;
        return nodes[std::size_t(m_random.bounded(int(nodes.size())))];
    }

    QModelIndex randomIndex()
    {
        // Now and then no subject at all.
        return m_random.bounded(20) == 0 ? QModelIndex()
                                         : m_fixture.model->indexFromItem(randomNode());
    }

    QJsonObject randomSnapshot()
    {
        QJsonArray objects;
        const int count = m_random.bounded(1, 5);
        for (int i = 0; i < count; ++i) {
            TreeItem *const node = randomNode();
            QJsonObject object;
            FishModel::write(object, node, true);
            objects.append(object);
        }
        return count == 1 ? objects.first().toObject()
                          : QJsonObject{{QStringLiteral("children"), objects}};
    }

    UndoCommand *randomPaste(const QModelIndex &index)
    {
        auto *const command = new EditPaste(m_fixture.model.get(), index, randomSnapshot());
        command->setPasteAsNew(m_random.bounded(2) == 0);
        return command;
    }

    UndoCommand *randomMove(const QModelIndex &index)
    {
        const int rows = m_fixture.model->rowCount(index);
        return new EditMove(m_fixture.model.get(), index, m_random.bounded(rows + 1),
                            randomSnapshot());
    }

    UndoCommand *randomItem(const QModelIndex &index)
    {
        auto *const command = new InsertChild(m_fixture.model.get(), index);
        command->setTreeItem(makeFan(m_random.bounded(3)).release());
        return command;
    }

    CommandFixture &m_fixture;
    QRandomGenerator m_random;
};
} // namespace

/** Random histories over several documents. */
class TestCommandSequences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldUndoAndRedoEverything_data();
    void shouldUndoAndRedoEverything();
    void shouldSurviveEditsOutsideTheHistory_data();
    void shouldSurviveEditsOutsideTheHistory();
};

namespace {
void addSeeds()
{
    constexpr int count = unlessSanitized(12, 5);
    QTest::addColumn<int>("seed");
    for (int seed = 0; seed < count; ++seed)
        QTest::addRow("seed %d", seed) << seed;
}

/** Documents with equal uuids, wrong pids, uuids that end alike and some that are missing. */
QString difficultDocuments(CommandFixture &f, int seed)
{
    for (int i = 0; i < 2; ++i)
        loadDocument(*f.model, QStringLiteral("H[1[a,b[x,y,z],c],11[d,e[f,g]],21,B[C[D[E]]]]"));
    loadDocument(*f.model, QStringLiteral("G[K,L[M,N]]"));
    QRandomGenerator random(static_cast<quint32>(seed));
    for (TreeItem *node : allNodes(*f.model)) {
        switch (random.bounded(8)) {
        case 0:
            node->setPid(QStringLiteral("nobody"));
            break;
        case 1:
            node->setPid(QStringLiteral("u-B"));
            break;
        case 2:
            node->setSpearItemIsMovable(false);
            break;
        case 3:
            node->setUuid(QStringLiteral("u-a"));
            break;
        default:
            break;
        }
    }
    f.draw();
    return modelText(*f.model);
}
} // namespace

void TestCommandSequences::shouldUndoAndRedoEverything_data()
{
    addSeeds();
}

void TestCommandSequences::shouldUndoAndRedoEverything()
{
    QFETCH(int, seed);
    CommandFixture f;
    difficultDocuments(f, seed);
    CommandSource source(f, quint32(seed));

    QStringList states{modelText(*f.model)};
    constexpr int steps = 40;
    for (int step = 0; step < steps; ++step) {
        // Making a command may already give a subject a uuid, which then stays.
        UndoCommand *const command = source.next();
        states.last() = modelText(*f.model);
        f.stack->push(command);
        states.append(modelText(*f.model));
        QCOMPARE(spearFault(*f.model), QString());
    }
    for (int pass = 0; pass < 2; ++pass) {
        for (int step = steps - 1; step >= 0; --step) {
            f.stack->undo();
            QVERIFY2(modelText(*f.model) == states.at(step),
                     qPrintable(QStringLiteral("undo of step %1: ").arg(step) + f.text()));
            QCOMPARE(spearFault(*f.model), QString());
        }
        for (int step = 0; step < steps; ++step) {
            f.stack->redo();
            QVERIFY2(modelText(*f.model) == states.at(step + 1),
                     qPrintable(QStringLiteral("redo of step %1: ").arg(step) + f.text()));
            QCOMPARE(spearFault(*f.model), QString());
        }
    }
}

void TestCommandSequences::shouldSurviveEditsOutsideTheHistory_data()
{
    addSeeds();
}

void TestCommandSequences::shouldSurviveEditsOutsideTheHistory()
{
    QFETCH(int, seed);
    CommandFixture f;
    difficultDocuments(f, seed);
    CommandSource source(f, quint32(seed));
    QRandomGenerator random(quint32(seed + 1000));

    for (int step = 0; step < 100; ++step) {
        switch (random.bounded(6)) {
        case 0:
        case 1:
            f.stack->push(source.next());
            break;
        case 2:
            f.stack->redo();
            break;
        case 3:
            // A command that no history keeps, as for drops.
            std::unique_ptr<UndoCommand>(source.next())->redo();
            break;
        default:
            f.stack->undo();
            break;
        }
        QCOMPARE(spearFault(*f.model), QString());
        for (const TreeItem *node : allNodes(*f.model))
            QCOMPARE(f.model->getTreeItem(f.model->indexFromItem(node)), node);
    }
}

FISHBONE_TEST(TestCommandSequences)
#include "tst_structuralcommands_sequences.moc"
