// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/reliability/randomlistener.h>

#include <fishbone/editor/fishscene.h>
#include <fishbone/undo/undostack.h>
#include <tests/reliability/randomworld.h>

RandomListener::RandomListener(RandomWorld &world, QRandomGenerator &random)
    : m_world(world)
    , m_random(random)
{
}

RandomListener::~RandomListener() = default;

template <typename Sender, typename Signal>
void RandomListener::hear(Sender *sender, Signal signal, When when)
{
    QObject::connect(sender, signal, m_ear.get(), [this, when] { react(when); });
}

void RandomListener::arm(FishEditor &editor)
{
    m_ear = std::make_unique<QObject>();
    m_hasReacted = false;
    m_signalsToPass = m_random.bounded(6);
    hear(&editor, &FishEditor::copyAvailable, When::Outside);
    hear(&editor, &FishEditor::clipBoardAvailable, When::Outside);
    hear(&editor, &FishEditor::zoomValueChanged, When::Outside);
    hear(&editor, &FishEditor::changeTaskParent, When::Outside);
    hear(editor.scene(), &FishScene::selectionChanged, When::Outside);
    hear(editor.undoStack(), &UndoStack::undoAvailable, When::Outside);
    hear(editor.undoStack(), &UndoStack::stackChanged, When::Outside);
    hear(editor.undoStack(), &UndoStack::currentChanged, When::Outside);
    if (auto *const model = qobject_cast<FishModel *>(editor.model())) {
        hear(model, &FishModel::rowsAboutToBeInserted, When::Within);
        hear(model, &FishModel::rowsAboutToBeRemoved, When::Within);
        hear(model, &FishModel::rowsAboutToBeMoved, When::Within);
        hear(model, &FishModel::rowsInserted, When::Outside);
        hear(model, &FishModel::rowsRemoved, When::Outside);
        hear(model, &FishModel::rowsMoved, When::Outside);
        hear(model, &FishModel::layoutChanged, When::Outside);
        hear(model, &FishModel::dataChanged, When::Outside);
        hear(model, &FishModel::nodeChanged, When::Outside);
    }
}

bool RandomListener::disarm()
{
    m_ear.reset();
    return m_hasReacted;
}

void RandomListener::react(When when)
{
    if (m_hasReacted || m_signalsToPass-- > 0)
        return;
    m_hasReacted = true;
    FishEditor *const editor = m_world.anyEditor();
    FishModel *const model = m_world.anyModel();
    const QModelIndex index = m_world.anyIndex(model);
    switch (m_random.bounded(12)) {
    case 0:
        m_world.removeEditor();
        break;
    case 1:
        if (when == When::Outside)
            m_world.removeModel();
        break;
    case 2:
        m_world.showSomething(editor);
        break;
    case 3:
        m_world.setModel(editor);
        break;
    case 4:
        m_world.loadDocument(model);
        break;
    case 5:
        if (model && model->rowCount() > 0)
            model->unloadFish(model->fishList().at(m_random.bounded(model->rowCount())));
        break;
    case 6:
        if (model)
            model->removeRows(0, m_random.bounded(3), index);
        break;
    case 7:
        if (model)
            model->insertRows(0, m_random.bounded(3), index);
        break;
    case 8:
        if (editor)
            editor->undo();
        break;
    case 9:
        if (editor)
            editor->updateFish(true);
        break;
    case 10:
        if (editor)
            editor->selectAll();
        break;
    default:
        if (editor)
            editor->insertChildSubject();
        break;
    }
}
