// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/movecommands.h>

#include <app/common/actionset.h>
#include <app/common/language.h>
#include <app/diagram/diagramsession.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>

#include <QAction>
#include <QGuiApplication>
#include <QKeySequence>

/** Below a parent, in front of what stands in that row now. */
struct MoveCommands::Place
{
    QModelIndex parent;
    int row;
};

MoveCommands::MoveCommands(DiagramSession *session, ActionSet *actions, QObject *parent)
    : DiagramCommands(session, actions, parent)
{
    const auto add = [this](const char *name, const char *text, Rule rule) {
        m_actions->add(
            QLatin1String(name), [text] { return tr(text); }, QList<QKeySequence>(),
            ActionSet::Scope::Selection, [this, rule] { move(rule); });
    };
    add("moveUp", QT_TR_NOOP("Move &up"), &MoveCommands::earlier);
    add("moveDown", QT_TR_NOOP("Move do&wn"), &MoveCommands::later);
    add("promote", QT_TR_NOOP("Pro&mote (beside its parent)"), &MoveCommands::higher);
    add("demote", QT_TR_NOOP("D&emote (below the one before)"), &MoveCommands::lower);
    Language::bind(this, [this] { showKeys(); });
}

/** Gives each command the arrow that points where the tree shows it to go: what is above stands on
 * the side that the language reads from. */
void MoveCommands::showKeys()
{
    const bool isMirrored = QGuiApplication::isRightToLeft();
    const auto show = [this](const char *name, Qt::Key key) {
        m_actions->setShortcuts(QLatin1String(name), {QKeySequence(int(Qt::ALT) + key)});
    };
    show("moveUp", Qt::Key_Up);
    show("moveDown", Qt::Key_Down);
    show("promote", isMirrored ? Qt::Key_Right : Qt::Key_Left);
    show("demote", isMirrored ? Qt::Key_Left : Qt::Key_Right);
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
