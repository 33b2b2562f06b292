// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/accessibility/accessiblediagram.h>
#include <tests/support/editorfixture.h>

#include <QAccessible>

namespace TestSupport {

inline QString document()
{
    return QStringLiteral("Late[People[Few[Ill],New],Machines,Material[Rust]]");
}

/** The names of an interface and all below it, "Late[People,…]". */
inline QString tree(const QAccessibleInterface &top)
{
    QStringList children;
    for (int i = 0; i < top.childCount(); ++i)
        children.append(tree(*top.child(i)));
    const QString name = top.text(QAccessible::Name);
    return children.isEmpty() ? name
                              : QStringLiteral("%1[%2]").arg(name, children.join(QLatin1Char(',')));
}

struct Fixture : EditorFixture
{
    explicit Fixture(const QString &text = document())
        : EditorFixture(text)
    {
    }

    QAccessibleInterface *view() const
    {
        return QAccessible::queryAccessibleInterface(editor.view());
    }
    QAccessibleInterface *head() const { return view()->child(0); }
    /** The entry of the bone of that title, which has to be drawn. */
    QAccessibleInterface *bone(const char *title) const
    {
        return AccessibleDiagram::of(editor.view())->bone(spear(QLatin1String(title)));
    }
    void act(const char *title, const QString &action) const
    {
        bone(title)->actionInterface()->doAction(action);
    }
};

inline QString toggle()
{
    return QAccessibleActionInterface::toggleAction();
}

} // namespace TestSupport
