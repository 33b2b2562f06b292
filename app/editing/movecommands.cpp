// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/movecommands.h>

#include <app/common/actionset.h>
#include <app/diagram/diagramsession.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>

#include <QAction>

/** Below a parent, in front of what stands in that row now. */
struct MoveCommands::Place
{
    QModelIndex parent;
    int row;
};

MoveCommands::MoveCommands(DiagramSession *session, ActionSet *actions, QObject *parent)
    : DiagramCommands(session, actions, parent)
{
    const auto add = [this](const char *name, const char *text, Qt::Key key, Rule rule) {
        m_actions->add(
            QLatin1String(name), [text] { return tr(text); }, {QKeySequence(int(Qt::ALT) + key)},
            ActionSet::Scope::Selection, [this, rule] { move(rule); });
    };
    add("moveUp", QT_TR_NOOP("Move &up"), Qt::Key_Up, &MoveCommands::earlier);
    add("moveDown", QT_TR_NOOP("Move do&wn"), Qt::Key_Down, &MoveCommands::later);
    add("promote", QT_TR_NOOP("Pro&mote (beside its parent)"), Qt::Key_Left, &MoveCommands::higher);
    add("demote", QT_TR_NOOP("D&emote (below the one before)"), Qt::Key_Right,
        &MoveCommands::lower);
}

std::optional<MoveCommands::Place> MoveCommands::earlier(const QModelIndex &bone) const
{
    if (bone.row() == 0)
        return std::nullopt;
    return Place{bone.parent(), bone.row() - 1};
}

std::optional<MoveCommands::Place> MoveCommands::later(const QModelIndex &bone) const
{
    if (bone.row() + 1 == m_session->model()->rowCount(bone.parent()))
        return std::nullopt;
    return Place{bone.parent(), bone.row() + 2};
}

std::optional<MoveCommands::Place> MoveCommands::higher(const QModelIndex &bone) const
{
    const QModelIndex parent = bone.parent();
    if (parent == m_editor->rootIndex())
        return std::nullopt;
    return Place{parent.parent(), parent.row() + 1};
}

std::optional<MoveCommands::Place> MoveCommands::lower(const QModelIndex &bone) const
{
    if (bone.row() == 0)
        return std::nullopt;
    const QModelIndex before = bone.siblingAtRow(bone.row() - 1);
    return Place{before, m_session->model()->rowCount(before)};
}

/** The bone that is selected alone and may be moved, or null. */
SpearItem *MoveCommands::movableBone() const
{
    SpearItem *bone = nullptr;
    const QList<QGraphicsItem *> items = m_editor->selectedItems();
    for (QGraphicsItem *item : items) {
        auto *const spear = qgraphicsitem_cast<SpearItem *>(item);
        if (spear && bone)
            return nullptr;
        if (spear)
            bone = spear;
    }
    return bone && !bone->isHeader() && bone->isMovable() ? bone : nullptr;
}

/** Moves the selected bone to where @p rule sends it, and shows and selects it there. */
void MoveCommands::move(Rule rule)
{
    SpearItem *const spear = movableBone();
    if (!spear)
        return;
    const QPersistentModelIndex bone = spear->modelIndex();
    if (const std::optional<Place> place = (this->*rule)(bone)) {
        m_editor->moveItems(QPoint(), {spear}, place->parent, place->row);
        m_session->select(bone);
    }
}

void MoveCommands::updateActions()
{
    const bool canMove = movableBone() != nullptr;
    for (const char *name : {"moveUp", "moveDown", "promote", "demote"})
        m_actions->action(QLatin1String(name))->setEnabled(canMove);
}
