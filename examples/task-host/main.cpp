// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <taskhost.h>

#include <fishbone/items/spearitem.h>
#include <fishbone/model/treeitem.h>

#include <QApplication>
#include <QTextStream>

namespace {

/**
 * Goes once through what a user can do, the entries of the context menu as their signals, and says
 * whether the host did what it should.
 */
bool demonstrate(TaskHost &host)
{
    FishEditor &editor = host.editor();
    FishModel &model = host.model();
    const QModelIndex head = model.index(0, 0);
    const QModelIndex bone = model.index(0, 0, head);
    const QString id = bone.siblingAtColumn(1).data().toString();
    const QString title = bone.data().toString();
    const int bones = model.rowCount(bone);

    model.getTreeItem(bone)->spear()->setSelected(true);
    editor.modifyExpand();
    editor.modifyContract();
    editor.modifyExpandAll();
    editor.modifyContractAll();
    editor.showEntire();
    editor.zoomIn(25);
    editor.copy();
    Q_EMIT editor.oneTaskClicked(title, id);
    Q_EMIT editor.editTaskDetail(bone);
    Q_EMIT editor.createNewSubTask(title, id, QString());
    Q_EMIT editor.insertChildTask(bone);
    Q_EMIT editor.contentsChanged();
    const bool isMarked = host.isWindowModified();
    const QString newId = model.index(bones, 1, bone).data().toString();
    Q_EMIT editor.changeTaskParent({newId}, QStringLiteral("elsewhere"), CHANGE_PARENT_BY_MOVE);
    Q_EMIT editor.changeFishWithModelIndex(bone);
    return isMarked && model.rowCount(bone) == bones + 2 && host.tasks().count() == 2 &&
           host.tasks().parentOf(newId) == QLatin1String("elsewhere") && editor.rootIndex() == bone;
}

} // namespace

/**
 * Shows a diagram in a host that answers every signal. With --demo it plays through them instead,
 * prints the host's journal and ends.
 */
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const bool isDemo = arguments.removeAll(QStringLiteral("--demo")) > 0;
    TaskHost host;
    host.resize(1200, 800);
    host.show();
    if (arguments.isEmpty()) {
        host.model().loadFishTempl();
        host.editor().setRootIndex(host.model().index(0, 0));
    } else {
        host.model().loadFishFromFile(arguments.constFirst());
    }
    if (!isDemo)
        return QApplication::exec();
    if (host.model().rowCount() == 0)
        return 1;
    const bool works = demonstrate(host);
    QTextStream(stdout) << host.journal() << '\n';
    return works ? 0 : 1;
}
