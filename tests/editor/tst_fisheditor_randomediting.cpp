// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Edits at random through what a host calls, the same for the same seed, and checks after each one
// that everything still fits together.

#include <QMimeData>
#include <QtTest>

#include <fishbone/items/textitem.h>
#include <fishbone/undo/undostack.h>
#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>
#include <tests/support/editorfixture.h>
#include <tests/support/orphans.h>

using namespace TestSupport;

namespace {

constexpr int operationsASequence = 60;
constexpr int largestDocument = 60;

/** Every sequence in the long form, a tenth of them otherwise, and less where sanitizers look on.
 */
int sequences()
{
    return qEnvironmentVariableIsSet("FISHBONE_LONG_TESTS") ? 300 : unlessSanitized(30, 10);
}

/** Uses an editor as a host and its user would. */
class RandomUser
{
public:
    RandomUser(EditorFixture &fixture, quint32 seed)
        : m_fixture(fixture)
        , m_random(seed)
    {
    }

    /** Something that the history takes back, or that changes no subject. Its name. */
    QString editUndoably()
    {
        FishEditor &editor = m_fixture.editor;
        selectSome();
        switch (m_random.bounded(16)) {
        case 0:
            editor.insertSubject();
            return QStringLiteral("insert before");
        case 1:
            editor.appendSubject();
            return QStringLiteral("insert after");
        case 2:
        case 3:
            editor.insertChildSubject();
            return QStringLiteral("insert below");
        case 4:
            editor.insertParentSubject();
            return QStringLiteral("insert above");
        case 5:
            editor.del();
            return QStringLiteral("delete");
        case 6:
            editor.cut();
            return QStringLiteral("cut");
        case 7:
            editor.copy();
            editor.paste();
            return QStringLiteral("copy and paste");
        case 8:
            editor.paste();
            return QStringLiteral("paste");
        case 9:
            editor.renameItem(editor.firstSelectedSpearIndex(),
                              QString::number(m_random.bounded(100000)));
            return QStringLiteral("rename");
        case 10:
            editor.modifyDelLink();
            return QStringLiteral("unlink");
        case 11:
        case 12:
            moveSelection();
            return QStringLiteral("move");
        case 13:
            editor.undo();
            return QStringLiteral("undo");
        case 14:
            editor.redo();
            return QStringLiteral("redo");
        default:
            changeExpansion();
            return QStringLiteral("expand or contract");
        }
    }

    /** Anything at all, what the history does not take back included. Its name. */
    QString edit()
    {
        FishEditor &editor = m_fixture.editor;
        switch (m_random.bounded(10)) {
        case 0:
            if (m_fixture.model.rowCount() < 4)
                editor.insertFreeSubject();
            return QStringLiteral("free subject");
        case 1:
            drop();
            return QStringLiteral("drop");
        case 2:
            editor.deleteItem(anyIndex());
            return QStringLiteral("delete anything");
        case 3:
            editor.setRootIndex(anyIndex());
            return QStringLiteral("show another root");
        default:
            return editUndoably();
        }
    }

private:
    QList<SpearItem *> visibleSpears() const
    {
        QList<SpearItem *> visible;
        if (SpearItem *const head = m_fixture.editor.headSpear())
            visible.append(head);
        for (int i = 0; i < visible.size(); ++i) {
            const QList<SpearItem *> children = visible.at(i)->childSpears();
            for (SpearItem *child : children) {
                if (child->isVisible())
                    visible.append(child);
            }
        }
        return visible;
    }

    SpearItem *anySpear()
    {
        const QList<SpearItem *> spears = visibleSpears();
        return spears.isEmpty() ? nullptr : spears.at(m_random.bounded(spears.size()));
    }

    void selectSome()
    {
        m_fixture.editor.scene()->clearSelection();
        for (int count = m_random.bounded(1, 4); count > 0; --count) {
            if (SpearItem *const spear = anySpear())
                spear->setSelected(true);
        }
    }

    QModelIndex anyIndex()
    {
        const std::vector<TreeItem *> nodes = allNodes(m_fixture.model);
        if (nodes.empty())
            return {};
        return m_fixture.model.indexFromItem(
            nodes[std::size_t(m_random.bounded(int(nodes.size())))]);
    }

    void moveSelection()
    {
        FishEditor &editor = m_fixture.editor;
        const SpearItem *const target = anySpear();
        if (!target)
            return;
        editor.moveItems({}, editor.selectedItems(), target->modelIndex(),
                         m_random.bounded(target->treeItem()->childCount() + 1));
    }

    void drop()
    {
        const QModelIndex target = anyIndex();
        const QModelIndex dropped = anyIndex();
        // One document stays, so that there is something to edit.
        if (!dropped.parent().isValid() && m_fixture.model.rowCount() < 2)
            return;
        const std::unique_ptr<QMimeData> data(m_fixture.model.mimeData({dropped}));
        m_fixture.editor.onDropTo(data.get(), target,
                                  m_random.bounded(m_fixture.model.rowCount(target) + 1));
    }

    void changeExpansion()
    {
        FishEditor &editor = m_fixture.editor;
        switch (m_random.bounded(4)) {
        case 0:
            editor.expandAll();
            break;
        case 1:
            editor.contractAll();
            break;
        case 2:
            editor.modifyExpand();
            break;
        default:
            if (SpearItem *const spear = anySpear())
                editor.generateSpear(&m_fixture.model, spear->modelIndex());
            editor.modifyExpand();
            break;
        }
    }

    EditorFixture &m_fixture;
    QRandomGenerator m_random;
};

QString placeOf(const SpearItem &spear)
{
    const auto point = [](const QPointF &at) {
        return QStringLiteral("(%1,%2)").arg(at.x(), 0, 'f', 3).arg(at.y(), 0, 'f', 3);
    };
    return QStringLiteral("%1 %2 %3-%4 text %5 %6%7%8%9")
        .arg(spear.textItem()->toPlainText())
        .arg(spear.direction())
        .arg(point(spear.line().p1()), point(spear.line().p2()), point(spear.textItem()->pos()))
        .arg(spear.textItem()->rotation())
        .arg(spear.isVisible() ? QStringLiteral(" visible") : QString(),
             spear.expandBuddy() ? QStringLiteral(" button") : QString(),
             spear.linkItem() ? QStringLiteral(" link") : QString());
}

/** Where the drawing differs from one that is built anew with the same branches expanded. */
QString rebuildFault(const EditorFixture &fixture)
{
    if (!fixture.editor.headSpear())
        return {};
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    QJsonObject object;
    FishModel::write(object, fixture.editor.headSpear()->treeItem(), true);
    loadDocument(model, object);
    FishEditor fresh;
    fresh.setModel(&model);
    fresh.setRootIndex(model.index(0, 0));
    QList<QPair<SpearItem *, SpearItem *>> pairs{{fixture.editor.headSpear(), fresh.headSpear()}};
    for (int i = 0; i < pairs.size(); ++i) {
        const QList<SpearItem *> children = pairs.at(i).first->childSpears();
        if (!children.isEmpty())
            fresh.generateSpear(&model, pairs.at(i).second->modelIndex());
        pairs.at(i).second->setExpand(pairs.at(i).first->isExpand());
        const QList<SpearItem *> freshChildren = pairs.at(i).second->childSpears();
        if (children.size() != freshChildren.size())
            return QStringLiteral("other children below ") + pairs.at(i).first->text();
        for (int child = 0; child < children.size(); ++child)
            pairs.append(qMakePair(children.at(child), freshChildren.at(child)));
    }
    fresh.updateFish(false);
    for (const auto &pair : qAsConst(pairs)) {
        const QString shown = placeOf(*pair.first);
        const QString rebuilt = placeOf(*pair.second);
        if (shown != rebuilt)
            return shown + QStringLiteral("\nrebuilt: ") + rebuilt;
    }
    return {};
}

QString fault(const EditorFixture &fixture)
{
    const QString spears = spearFault(fixture.model);
    if (!spears.isEmpty())
        return spears;
    const QString orphan = TestSupport::orphanFault(fixture.editor);
    return orphan.isEmpty() ? rebuildFault(fixture) : orphan;
}

QJsonObject documentFor(quint32 seed)
{
    RandomShape shape;
    shape.nodes = 1 + int(seed * 7 % largestDocument);
    return randomDocument(seed, shape);
}

} // namespace

class TestFishEditorRandomEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeBackAndRepeatEverySequence_data();
    void shouldTakeBackAndRepeatEverySequence();
    void shouldStayInStepThroughAnyEdit_data();
    void shouldStayInStepThroughAnyEdit();
};

void TestFishEditorRandomEditing::shouldTakeBackAndRepeatEverySequence_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= sequences(); ++seed)
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

void TestFishEditorRandomEditing::shouldTakeBackAndRepeatEverySequence()
{
    QFETCH(int, seed);
    EditorFixture fixture(documentFor(quint32(seed)));
    fixture.editor.setPasteAsNew(seed % 2 == 0);
    RandomUser user(fixture, quint32(seed));
    const QString before = modelText(fixture.model);
    for (int i = 0; i < operationsASequence; ++i) {
        const QString operation = user.editUndoably();
        const QString found = fault(fixture);
        QVERIFY2(found.isEmpty(),
                 qPrintable(QStringLiteral("%1 %2: %3").arg(i).arg(operation, found)));
        if (allNodes(fixture.model).size() > 400)
            break; // pasting into itself grows without end
    }
    while (fixture.editor.canRedo())
        fixture.editor.redo();
    const QString after = modelText(fixture.model);
    while (fixture.editor.canUndo())
        fixture.editor.undo();
    QCOMPARE(modelText(fixture.model), before);
    QCOMPARE(fault(fixture), QString());
    while (fixture.editor.canRedo())
        fixture.editor.redo();
    QCOMPARE(modelText(fixture.model), after);
    QCOMPARE(fault(fixture), QString());
}

void TestFishEditorRandomEditing::shouldStayInStepThroughAnyEdit_data()
{
    shouldTakeBackAndRepeatEverySequence_data();
}

void TestFishEditorRandomEditing::shouldStayInStepThroughAnyEdit()
{
    QFETCH(int, seed);
    EditorFixture fixture(documentFor(quint32(seed)));
    fixture.editor.setPasteAsNew(seed % 2 == 0);
    fixture.editor.undoStack()->setRolling(true);
    RandomUser user(fixture, quint32(seed) + 1000);
    for (int i = 0; i < operationsASequence && allNodes(fixture.model).size() < 400; ++i) {
        const QString operation = user.edit();
        const QString found = fault(fixture);
        QVERIFY2(found.isEmpty(),
                 qPrintable(QStringLiteral("%1 %2: %3").arg(i).arg(operation, found)));
    }
}

FISHBONE_TEST(TestFishEditorRandomEditing)
#include "tst_fisheditor_randomediting.moc"
