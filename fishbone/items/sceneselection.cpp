// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/sceneselection.h>

#include <utility>

#include <QGraphicsScene>
#include <QHash>

/** What is known of the selection of one scene; a child of it. */
class SelectionState : public QObject
{
public:
    explicit SelectionState(QGraphicsScene *scene)
        : QObject(scene)
        , m_scene(scene)
    {
        known().insert(scene, this);
    }
    ~SelectionState() override { known().remove(m_scene); }

    /** The one of @p scene, made when there is none. */
    static SelectionState *of(QGraphicsScene *scene)
    {
        SelectionState *const state = known().value(scene);
        return state ? state : new SelectionState(scene);
    }

    QSet<QGraphicsItem *> selected() const
    {
        const QList<QGraphicsItem *> items = m_scene->selectedItems();
        return {items.cbegin(), items.cend()};
    }
    QGraphicsScene *scene() const { return m_scene; }

    int holds = 0;
    bool isChanged = false; ///< since it was told last
    bool isSilent = false;

private:
    static QHash<QGraphicsScene *, SelectionState *> &known()
    {
        static QHash<QGraphicsScene *, SelectionState *> states;
        return states;
    }

    QGraphicsScene *m_scene;
};

void SelectionHold::add(QGraphicsScene *scene)
{
    if (!scene)
        return;
    SelectionState *const state = SelectionState::of(scene);
    if (m_states.contains(state))
        return;
    ++state->holds;
    m_states.append(state);
}

void SelectionHold::release()
{
    const QList<QPointer<SelectionState>> states = std::exchange(m_states, {});
    for (const QPointer<SelectionState> &state : states) {
        // A scene that is blocked by somebody else keeps what it has to tell.
        if (state && --state->holds == 0 && !state->scene()->signalsBlocked() &&
            std::exchange(state->isChanged, false))
            Q_EMIT state->scene()->selectionChanged();
    }
}

SelectionSilence::SelectionSilence(QGraphicsScene *scene)
    : m_hold(scene)
{
    if (!scene)
        return;
    SelectionState *const state = SelectionState::of(scene);
    if (std::exchange(state->isSilent, true))
        return; // within another one, which sees all of it
    m_state = state;
    if (!m_state->isChanged)
        m_before = m_state->selected();
    m_wasBlocked = scene->blockSignals(true);
}

SelectionSilence::~SelectionSilence()
{
    if (!m_state)
        return;
    m_state->isSilent = false;
    if (!m_state->isChanged)
        m_state->isChanged = m_before != m_state->selected();
    m_state->scene()->blockSignals(m_wasBlocked);
}
