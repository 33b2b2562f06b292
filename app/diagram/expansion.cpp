// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/expansion.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectwalk.h>

namespace Expansion {

void setExpanded(FishEditor &editor, SpearItem &spear, bool expanded)
{
    if (expanded)
        editor.generateSpear(editor.model(), spear.modelIndex());
    spear.setExpand(expanded);
}

void expandLevels(FishEditor &editor, int levels)
{
    if (levels < 0 || !editor.headSpear()) {
        editor.expandAll();
        return;
    }
    editor.expandorContractAll(false);
    QList<SpearItem *> level = editor.headSpear()->childSpears();
    for (int depth = 0; depth < levels && !level.isEmpty(); ++depth) {
        QList<SpearItem *> next;
        for (SpearItem *spear : qAsConst(level)) {
            setExpanded(editor, *spear, true);
            next += spear->childSpears();
        }
        level = next;
    }
    editor.updateFish(false);
}

bool makeBones(FishEditor &editor, const Progress &progress)
{
    const auto *const model = qobject_cast<const FishModel *>(editor.model());
    const TreeItem *const root = model ? model->getTreeItem(editor.rootIndex()) : nullptr;
    if (!root)
        return true;
    const int total = countSubjects(*root);
    int done = 0;
    return visitSubjects(root, [&](const TreeItem *subject) {
        const TreeItem *const last = subject->childAtIndex(subject->childCount() - 1);
        if (last && !last->spear()) {
            editor.generateSpear(editor.model(), model->indexFromItem(subject));
            if (subject->spear() && !subject->spear()->isExpand())
                subject->spear()->setExpand(false); // hides what has come
        }
        return progress(++done, total);
    });
}

bool expandAbove(FishEditor &editor, const TreeItem &subject)
{
    QList<const TreeItem *> above; // the nearest first
    for (const TreeItem *item = subject.parent(); item && item->spear() != editor.headSpear();
         item = item->parent())
        above.append(item);
    bool expanded = false;
    while (!above.isEmpty()) {
        SpearItem *const spear = above.takeLast()->spear();
        if (spear && !spear->isExpand()) {
            setExpanded(editor, *spear, true);
            expanded = true;
        }
    }
    return expanded;
}

} // namespace Expansion
