// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/accessibility/accessiblediagram.h>

#include <fishbone/accessibility/accessiblebone.h>
#include <fishbone/base/preorder.h>
#include <fishbone/drawing/drawingaudience.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>

#include <utility>

namespace {

QAccessibleInterface *makeAccessible(const QString &className, QObject *object)
{
    if (className != QLatin1String(GraphicsView::staticMetaObject.className()))
        return nullptr;
    auto *const view = qobject_cast<GraphicsView *>(object);
    return view ? new AccessibleDiagram(view) : nullptr; // owned by the toolkit
}

AccessibleDiagram::Reporter &reporter()
{
    static AccessibleDiagram::Reporter current = nullptr;
    return current;
}

bool isAnybodyListening()
{
    return reporter() || QAccessible::isActive();
}

void report(QAccessibleEvent &&event)
{
    if (const AccessibleDiagram::Reporter current = reporter())
        current(event);
    else
        QAccessible::updateAccessibility(&event);
}

bool wasAnybodyAsked = false; ///< for a bone, of any diagram

/** Takes away what the toolkit still has under @p id. */
void forget(QAccessible::Id id)
{
    if (QAccessible::accessibleInterface(id))
        QAccessible::deleteAccessibleInterface(id);
}

} // namespace

void DrawingAudience::invite()
{
    QAccessible::installFactory(makeAccessible);
}

void DrawingAudience::drawingChanged(QGraphicsView *view)
{
    AccessibleDiagram *const diagram =
        wasAnybodyAsked || isAnybodyListening()
            ? AccessibleDiagram::of(qobject_cast<GraphicsView *>(view))
            : nullptr;
    if (diagram)
        diagram->followSoon();
}

void AccessibleDiagram::setReporter(Reporter reporter)
{
    ::reporter() = reporter;
}

AccessibleDiagram *AccessibleDiagram::of(GraphicsView *view)
{
    // A view that is half destroyed is a plain view to the toolkit.
    return view ? dynamic_cast<AccessibleDiagram *>(QAccessible::queryAccessibleInterface(view))
                : nullptr;
}

AccessibleDiagram::AccessibleDiagram(GraphicsView *view)
    : QAccessibleWidget(view, QAccessible::Tree)
{
    for (QTimer *timer : {&m_selection, &m_drawing})
        timer->setSingleShot(true);
    QObject::connect(&m_selection, &QTimer::timeout, &m_listener, [this] { reportSelection(); });
    QObject::connect(&m_drawing, &QTimer::timeout, &m_listener, [this] { followDrawing(); });
    if (view->scene())
        listen();
    else // asked for while the editor is being made
        QTimer::singleShot(0, &m_listener, [this] { listen(); });
}

void AccessibleDiagram::listen()
{
    const GraphicsView *const shown = view();
    const QGraphicsScene *const scene = shown ? shown->scene() : nullptr;
    if (!scene)
        return;
    m_drawn = drawnState();
    // Not at once: the selection also changes while bones die, and who is told of a change may end
    // the scene, which is not through with it.
    QObject::connect(scene, &QGraphicsScene::selectionChanged, &m_listener, [this] {
        if (isAnybodyListening())
            m_selection.start(0);
    });
}

AccessibleDiagram::~AccessibleDiagram()
{
    // At the end of the program the toolkit deletes all interfaces by itself, one by one.
    if (QCoreApplication::closingDown())
        return;
    const QList<QAccessible::Id> ids = m_bones.values();
    for (QAccessible::Id id : ids)
        forget(id);
}

GraphicsView *AccessibleDiagram::view() const
{
    return qobject_cast<GraphicsView *>(object());
}

FishEditor *AccessibleDiagram::editor() const
{
    const GraphicsView *const shown = view();
    // Neither a view on its own nor one whose editor is ending has one.
    return shown && shown->scene() ? qobject_cast<FishEditor *>(shown->parentWidget()) : nullptr;
}

SpearItem *AccessibleDiagram::head() const
{
    const FishEditor *const shownBy = editor();
    return shownBy ? shownBy->headSpear() : nullptr;
}

bool AccessibleDiagram::isValid() const
{
    return view() && QAccessibleWidget::isValid();
}

AccessibleBone *AccessibleDiagram::bone(SpearItem *spear)
{
    if (!spear || !view())
        return nullptr;
    wasAnybodyAsked = true;
    const auto known = m_bones.constFind(spear);
    if (known != m_bones.cend()) {
        auto *const found = static_cast<AccessibleBone *>(QAccessible::accessibleInterface(*known));
        if (found && found->spear() == spear)
            return found;
        forget(*known); // of another one that was there before
    }
    auto *const made = new AccessibleBone(view(), spear); // owned by the toolkit
    m_bones.insert(spear, QAccessible::registerAccessibleInterface(made));
    return made;
}

SpearItem *AccessibleDiagram::spearAt(int x, int y) const
{
    const GraphicsView *const shown = view();
    if (!editor())
        return nullptr;
    const QPoint at = shown->viewport()->mapFromGlobal(QPoint(x, y));
    QGraphicsItem *item = shown->viewport()->rect().contains(at) ? shown->itemAt(at) : nullptr;
    while (item && !qgraphicsitem_cast<SpearItem *>(item))
        item = item->parentItem();
    return qgraphicsitem_cast<SpearItem *>(item);
}

int AccessibleDiagram::childCount() const
{
    return head() ? 1 : 0;
}

QAccessibleInterface *AccessibleDiagram::child(int index) const
{
    return index == 0 ? const_cast<AccessibleDiagram *>(this)->bone(head()) : nullptr;
}

int AccessibleDiagram::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *const bone = dynamic_cast<const AccessibleBone *>(child);
    return bone && bone->spear() && bone->spear() == head() ? 0 : -1;
}

QAccessibleInterface *AccessibleDiagram::childAt(int x, int y) const
{
    return const_cast<AccessibleDiagram *>(this)->bone(spearAt(x, y));
}

QAccessibleInterface *AccessibleDiagram::focusChild() const
{
    const FishEditor *const shownBy = editor();
    if (!shownBy || !view()->hasFocus())
        return nullptr;
    return const_cast<AccessibleDiagram *>(this)->bone(shownBy->firstSelectedSpear());
}

QString AccessibleDiagram::text(QAccessible::Text kind) const
{
    const QString set = QAccessibleWidget::text(kind);
    if (kind != QAccessible::Name || !set.isEmpty())
        return set;
    const SpearItem *const shown = head();
    return shown ? tr("Diagram: %1").arg(shown->text()) : tr("Diagram");
}

QAccessible::State AccessibleDiagram::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = true;
    return state;
}

void AccessibleDiagram::reportSelection()
{
    const FishEditor *const shownBy = editor();
    if (!isAnybodyListening() || !shownBy)
        return;
    QList<SpearItem *> selected;
    const QList<QGraphicsItem *> items = shownBy->selectedItems();
    for (QGraphicsItem *item : items) {
        if (auto *const spear = qgraphicsitem_cast<SpearItem *>(item))
            selected.append(spear);
    }
    if (selected.size() != 1) {
        report(QAccessibleEvent(view(), QAccessible::SelectionWithin));
        return;
    }
    const QAccessible::Id id = QAccessible::uniqueId(bone(selected.constFirst()));
    const bool hasFocus = view()->hasFocus();
    report(QAccessibleEvent(QAccessible::accessibleInterface(id), QAccessible::Selection));
    // Who was told of that may have ended the entry.
    if (QAccessibleInterface *const chosen = QAccessible::accessibleInterface(id);
        hasFocus && chosen)
        report(QAccessibleEvent(chosen, QAccessible::Focus));
}

/** A number for what of the drawing can be asked for; another one when any of it has changed. */
quint64 AccessibleDiagram::drawnState() const
{
    quint64 state = 1;
    const auto add = [&state](auto value) { state = state * 1099511628211U ^ quint64(value); };
    const auto shownChildren = [](const SpearItem &spear) {
        return spear.isExpand() ? spear.knownChildSpears() : QList<SpearItem *>();
    };
    visitPreOrder(head(), shownChildren, [&add](const SpearItem *spear) {
        const QLineF line = spear->line();
        add(quintptr(spear));
        add(spear->isExpand());
        add(qHash(spear->text()));
        for (const double number : {line.x1(), line.y1(), line.x2(), line.y2()})
            add(qHash(number));
        return true;
    });
    return state;
}

void AccessibleDiagram::followDrawing()
{
    if (!view())
        return;
    sweep();
    if (!isAnybodyListening())
        return;
    const quint64 drawn = drawnState();
    if (std::exchange(m_drawn, drawn) == drawn)
        return;
    const QList<QAccessible::Id> ids = m_bones.values();
    const QPointer<GraphicsView> alive(view());
    for (QAccessible::Id id : ids) {
        auto *const bone = static_cast<AccessibleBone *>(QAccessible::accessibleInterface(id));
        const QAccessible::State changes = bone ? bone->takeChanges() : QAccessible::State();
        if (!changes.expanded)
            continue;
        report(QAccessibleStateChangeEvent(bone, changes));
        if (!alive)
            return; // and this with it
    }
    report(QAccessibleEvent(alive, QAccessible::ObjectReorder));
}

/** Takes the entries of dead bones away. */
void AccessibleDiagram::sweep()
{
    for (auto entry = m_bones.begin(); entry != m_bones.end();) {
        const auto *const bone =
            static_cast<AccessibleBone *>(QAccessible::accessibleInterface(*entry));
        if (bone && bone->spear()) {
            ++entry;
            continue;
        }
        const QAccessible::Id id = *entry;
        entry = m_bones.erase(entry);
        forget(id);
    }
}
