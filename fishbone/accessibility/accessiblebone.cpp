// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/accessibility/accessiblebone.h>

#include <fishbone/accessibility/accessiblediagram.h>
#include <fishbone/drawing/clearcontent.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/items/sceneselection.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/model/treeitem.h>

#include <QStringList>
#include <QWindow>

AccessibleBone::AccessibleBone(GraphicsView *view, SpearItem *spear)
    : m_view(view)
    , m_spear(spear)
    , m_wasExpanded(isExpanded())
{
}

AccessibleBone::~AccessibleBone() = default;

AccessibleDiagram *AccessibleBone::diagram() const
{
    return m_spear.get() ? AccessibleDiagram::of(m_view) : nullptr;
}

QAccessible::State AccessibleBone::takeChanges()
{
    QAccessible::State changes;
    const bool isNow = isExpanded();
    if (isNow != m_wasExpanded) {
        changes.expanded = true;
        changes.collapsed = true;
    }
    m_wasExpanded = isNow;
    return changes;
}

bool AccessibleBone::isValid() const
{
    return m_view && m_spear.get() && m_spear.get()->scene() &&
           m_spear.get()->scene() == m_view->scene();
}

QWindow *AccessibleBone::window() const
{
    return m_view ? m_view->window()->windowHandle() : nullptr;
}

QAccessibleInterface *AccessibleBone::parent() const
{
    AccessibleDiagram *const tree = diagram();
    if (!tree)
        return nullptr;
    auto *const above = qgraphicsitem_cast<SpearItem *>(m_spear.get()->parentItem());
    if (above)
        return tree->bone(above);
    return tree;
}

bool AccessibleBone::isExpandable() const
{
    const SpearItem *const spear = m_spear.get();
    return spear && !spear->isHeader() && spear->treeItem() && spear->treeItem()->childCount() > 0;
}

bool AccessibleBone::isExpanded() const
{
    const SpearItem *const spear = m_spear.get();
    return spear && spear->isExpand() && !spear->knownChildSpears().isEmpty();
}

int AccessibleBone::childCount() const
{
    const SpearItem *const spear = m_spear.get();
    return spear && (spear->isHeader() || spear->isExpand()) ? spear->knownChildSpears().size() : 0;
}

QAccessibleInterface *AccessibleBone::child(int index) const
{
    AccessibleDiagram *const tree = diagram();
    if (!tree || index < 0 || index >= childCount())
        return nullptr;
    return tree->bone(m_spear.get()->knownChildSpears().at(index));
}

int AccessibleBone::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *const bone = dynamic_cast<const AccessibleBone *>(child);
    if (!bone || !bone->spear() || childCount() == 0)
        return -1;
    // Spears are in the order of the rows as a rule, which spares the search.
    const QList<SpearItem *> &spears = m_spear.get()->knownChildSpears();
    const TreeItem *const subject = bone->spear()->treeItem();
    const int row = subject ? subject->index() : -1;
    return spears.value(row) == bone->spear() ? row : spears.indexOf(bone->spear());
}

QAccessibleInterface *AccessibleBone::childAt(int x, int y) const
{
    AccessibleDiagram *const tree = diagram();
    SpearItem *const found = tree ? tree->spearAt(x, y) : nullptr;
    return found && m_spear.get()->isAncestorOf(found) ? tree->bone(found) : nullptr;
}

QString AccessibleBone::text(QAccessible::Text kind) const
{
    const SpearItem *const spear = m_spear.get();
    if (!spear)
        return QString();
    switch (kind) {
    case QAccessible::Name:
        return spear->text();
    case QAccessible::Value: // as other trees tell the level
        return QString::number(spear->depth());
    case QAccessible::Description:
        return description();
    default:
        return QString();
    }
}

QString AccessibleBone::description() const
{
    const SpearItem *const spear = m_spear.get();
    QStringList parts{tr("level %1").arg(spear->depth())};
    const TreeItem *const subject = spear->treeItem();
    if (!subject)
        return parts.constFirst();
    const QString status = ClearContent::meaningOf(subject->status());
    parts.append(status);
    if (!status.isEmpty() || subject->progress() != 0)
        parts.append(QStringLiteral("%1 %").arg(subject->progress()));
    parts << ClearContent::meaningOf(SubjectMarks::verdict(*subject))
          << ClearContent::textOfVotes(SubjectMarks::votes(*subject));
    if (!subject->url().isEmpty())
        parts.append(tr("linked"));
    parts.append(spear->data(SpearItem::noteKey).toString());
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

void AccessibleBone::setText(QAccessible::Text kind, const QString &text)
{
    Q_UNUSED(kind)
    Q_UNUSED(text)
}

QRect AccessibleBone::rect() const
{
    if (!isValid())
        return QRect();
    const SpearItem *const spear = m_spear.get();
    const TextItem *const title = spear->textItem();
    const QRectF area =
        spear->sceneBoundingRect().united(title->mapRectToScene(title->boundingRect()));
    const QRect shown = m_view->mapFromScene(area).boundingRect();
    return QRect(m_view->viewport()->mapToGlobal(shown.topLeft()), shown.size());
}

QAccessible::State AccessibleBone::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const SpearItem *const spear = m_spear.get();
    state.selectable = true;
    state.focusable = true;
    state.extSelectable = true;
    state.selected = spear->isSelected() || spear->textItem()->isSelected();
    const FishEditor *const editor = diagram()->editor();
    state.focused =
        state.selected && m_view->hasFocus() && editor && editor->firstSelectedSpear() == spear;
    state.expandable = isExpandable();
    state.expanded = isExpanded();
    state.collapsed = isExpandable() && !isExpanded();
    state.invisible = !spear->isVisible() || !m_view->isVisible();
    const QRect screen(m_view->viewport()->mapToGlobal(QPoint()), m_view->viewport()->size());
    state.offscreen = !screen.intersects(rect());
    return state;
}

void *AccessibleBone::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

QStringList AccessibleBone::actionNames() const
{
    if (!isValid())
        return {};
    QStringList names{pressAction(), setFocusAction(), showMenuAction()};
    if (isExpandable())
        names.append(toggleAction());
    return names;
}

QString AccessibleBone::localizedActionName(const QString &name) const
{
    if (name == pressAction())
        return tr("Select");
    if (name == toggleAction())
        return isExpanded() ? tr("Contract") : tr("Expand");
    return QAccessibleActionInterface::localizedActionName(name);
}

QString AccessibleBone::localizedActionDescription(const QString &name) const
{
    if (name == pressAction())
        return tr("Selects this bone alone");
    if (name == toggleAction())
        return isExpanded() ? tr("Hides the bones below") : tr("Shows the bones below");
    return QAccessibleActionInterface::localizedActionDescription(name);
}

QStringList AccessibleBone::keyBindingsForAction(const QString &name) const
{
    Q_UNUSED(name)
    return {};
}

void AccessibleBone::doAction(const QString &name)
{
    if (!isValid() || !actionNames().contains(name))
        return;
    const QPointer<GraphicsView> view = m_view;
    const SpearPointer spear = m_spear;
    if (name == setFocusAction())
        m_view->setFocus(Qt::OtherFocusReason);
    // Each step may end the view, the bone and with them this object.
    if (view && spear.get())
        select();
    if (!view || !spear.get())
        return;
    if (name == toggleAction())
        toggle();
    else if (name == showMenuAction())
        Q_EMIT view->rightClicked(spear.get());
}

/** Selects the bone alone and scrolls to it. */
void AccessibleBone::select()
{
    GraphicsView &shown = *m_view; // there is one as long as there is a bone
    const QPointer<GraphicsView> view = &shown;
    const SpearPointer spear = m_spear;
    QGraphicsScene *const scene = shown.scene();
    if (!spear.get()->isSelected() || scene->selectedItems().size() != 1) {
        // Told when the scene is through with it, since who hears of it may end the editor.
        const SelectionSilence silence(scene);
        scene->clearSelection();
        spear.get()->setSelected(true);
    }
    if (view && spear.get())
        view->ensureVisible(spear.get());
}

/** Expands or contracts the bone, which is selected, as the button beside it does. */
void AccessibleBone::toggle()
{
    FishEditor *const editor = diagram()->editor();
    if (!editor)
        return;
    if (isExpanded()) {
        editor->modifyContract();
        return;
    }
    if (m_spear.get()->knownChildSpears().isEmpty())
        editor->generateSpear(editor->model(), m_spear.get()->modelIndex());
    editor->modifyExpand();
}
