// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/editcommands.h>

#include <app/common/actionset.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/stepnames.h>
#include <app/diagram/subjectedit.h>
#include <app/diagram/subjectstyles.h>
#include <app/editing/subjectclipboard.h>
#include <app/editing/titleeditor.h>
#include <app/panels/finder.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/commandgroup.h>
#include <fishbone/undo/structuralcommands.h>
#include <fishbone/undo/undostack.h>

#include <QAction>
#include <QDateTime>
#include <QInputDialog>
#include <QSet>

#include <memory>

namespace {

/** The platform's, and the one that people bring from others. */
QList<QKeySequence> redoShortcuts()
{
    QList<QKeySequence> shortcuts = QKeySequence::keyBindings(QKeySequence::Redo);
    if (const QKeySequence other(Qt::CTRL | Qt::Key_Y); !shortcuts.contains(other))
        shortcuts.append(other);
    return shortcuts;
}

/** The large key and the one of the number pad. */
template <typename Modifiers>
QList<QKeySequence> returnWith(Modifiers modifiers)
{
    return {QKeySequence(modifiers | Qt::Key_Return), QKeySequence(modifiers | Qt::Key_Enter)};
}

} // namespace

EditCommands::EditCommands(DiagramSession *session, ActionSet *actions, QWidget *window)
    : DiagramCommands(session, actions, window)
    , m_window(window)
    , m_finder(new Finder(session, window))
    , m_clipboard(new SubjectClipboard(session, this))
{
    connect(m_clipboard, &SubjectClipboard::message, this, &EditCommands::message);
    connect(m_finder, &Finder::message, this, &EditCommands::message);
    addHistoryActions();
    addClipboardActions();
    addInsertActions();
    addSubjectActions();
}

void EditCommands::add(const char *name, const char *text, const QList<QKeySequence> &shortcuts,
                       std::function<void()> run)
{
    m_actions->add(
        QLatin1String(name), [text] { return tr(text); }, shortcuts, ActionSet::Scope::Selection,
        std::move(run));
}

void EditCommands::addHistoryActions()
{
    m_actions->add(
        QStringLiteral("undo"), [] { return tr("&Undo"); }, {QKeySequence::Undo},
        ActionSet::Scope::Window, [this] { m_session->undo(); });
    m_actions->add(
        QStringLiteral("redo"), [] { return tr("&Redo"); }, redoShortcuts(),
        ActionSet::Scope::Window, [this] { m_session->redo(); });
    m_actions->add(
        QStringLiteral("find"), [] { return tr("&Find and replace…"); }, {QKeySequence::Find},
        ActionSet::Scope::Window, [this] { m_finder->show(); });
}

void EditCommands::addClipboardActions()
{
    add("cut", QT_TR_NOOP("Cu&t"), {QKeySequence::Cut},
        [this] { m_session->removeSelected(true); });
    add("copy", QT_TR_NOOP("&Copy"), {QKeySequence::Copy}, [this] { m_editor->copy(); });
    add("paste", QT_TR_NOOP("&Paste"), {QKeySequence::Paste}, [this] { m_clipboard->paste(); });
    add("delete", QT_TR_NOOP("&Delete"), {QKeySequence::Delete},
        [this] { m_session->removeSelected(false); });
    add("selectAll", QT_TR_NOOP("Select &all"), {QKeySequence::SelectAll},
        [this] { m_editor->selectAll(); });
    add("selectBranch", QT_TR_NOOP("Select the &branch"),
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A)}, [this] { selectBranches(); });
    add("selectSiblings", QT_TR_NOOP("Select the sib&lings"), {}, [this] { selectSiblings(); });
}

void EditCommands::addInsertActions()
{
    add("child", QT_TR_NOOP("&Child subject"), {Qt::Key_Tab, Qt::Key_Insert},
        [this] { insertAndRename<InsertChild>(); });
    add("before", QT_TR_NOOP("Subject &before"), returnWith(Qt::SHIFT),
        [this] { insertSibling<InsertFront>(); });
    add("after", QT_TR_NOOP("Subject &after"), returnWith(0),
        [this] { insertSibling<InsertBack>(); });
    add("parent", QT_TR_NOOP("&Parent subject"), returnWith(Qt::CTRL),
        [this] { insertAndRename<InsertParent>(); });
    add("free", QT_TR_NOOP("&Free subject (a new diagram)"), returnWith(Qt::CTRL | Qt::SHIFT),
        [this] { Q_EMIT newDiagramWanted(); });
    add("subTask", QT_TR_NOOP("&Sub-task…"), {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T)},
        [this] { insertSubTask(m_editor->firstSelectedSpearIndex()); });
}

void EditCommands::addSubjectActions()
{
    add("rename", QT_TR_NOOP("&Rename"), {Qt::Key_F2},
        [this] { rename(m_editor->firstSelectedSpearIndex()); });
    add("link", QT_TR_NOOP("&Link to…"), {QKeySequence(Qt::CTRL | Qt::Key_L)},
        [this] { SubjectEdit::editLink(*m_session, m_editor->firstSelectedSpearIndex()); });
    add("openLink", QT_TR_NOOP("&Open link"), {},
        [this] { SubjectEdit::openLink(*m_session, m_editor->firstSelectedSpearIndex()); });
    add("unlink", QT_TR_NOOP("Remove l&ink"), {}, [this] { m_editor->modifyDelLink(); });
    add("style", QT_TR_NOOP("&Style…"), {},
        [this] { SubjectStyles::edit(*m_session, m_session->selected()); });
    add("removeStyle", QT_TR_NOOP("Remove s&tyle"), {},
        [this] { SubjectStyles::remove(*m_session, m_session->selected()); });
}

/** Selects all that is below what is selected, too. */
void EditCommands::selectBranches()
{
    const FishModel *const model = m_session->model();
    QModelIndexList all = m_session->selected();
    QSet<QModelIndex> known(all.cbegin(), all.cend());
    for (int i = 0; i < int(all.size()); ++i) {
        const QModelIndex index = all.at(i);
        for (int row = 0; row < model->rowCount(index); ++row) {
            const QModelIndex child = model->index(row, 0, index);
            if (known.contains(child))
                continue;
            known.insert(child);
            all.append(child);
        }
    }
    m_session->select(all);
}

/** Selects what stands beside the selected subject, too. */
void EditCommands::selectSiblings()
{
    const QModelIndex selected = m_editor->firstSelectedSpearIndex();
    if (!selected.isValid() || selected == m_editor->rootIndex())
        return;
    QModelIndexList all;
    for (int row = 0; row < m_session->model()->rowCount(selected.parent()); ++row)
        all.append(selected.siblingAtRow(row));
    m_session->select(all);
}

template <typename Command>
void EditCommands::insertAndRename()
{
    const QModelIndex selected = m_editor->firstSelectedSpearIndex();
    if (!selected.isValid())
        return;
    auto insertion = std::make_unique<Command>(m_session->model(), selected);
    // The command has given it one.
    const QString before = m_session->model()->getTreeItem(selected)->uuid();
    auto *const step = new CommandGroup(insertion->name()); // the stack takes it over
    step->add(std::move(insertion));
    const QModelIndex inserted =
        m_session->insert([&] { m_editor->run(std::unique_ptr<UndoCommand>(step)); });
    const TitleEditor *const field = TitleEditor::open(m_editor, inserted, QString(), step);
    if (!field)
        return;
    // What was selected before is selected again, and not what is nearest to the bone that goes.
    connect(field, &TitleEditor::abandoned, m_session, [session = m_session, before] {
        session->undo();
        session->select(session->model()->modelIndexByUuid(before));
    });
}

/** Inserts beside the selected subject. Beside the head of a diagram there is another diagram. */
template <typename Command>
void EditCommands::insertSibling()
{
    const SpearItem *const spear = m_editor->firstSelectedSpear();
    if (spear && spear->modelIndex().parent().isValid())
        insertAndRename<Command>();
    else if (spear)
        Q_EMIT newDiagramWanted();
}

void EditCommands::rename(const QModelIndex &index, const QString &typed)
{
    TitleEditor::open(m_editor, index, typed);
}

/** Asks for a title and inserts a task of that title under the one at @p parent. */
void EditCommands::insertSubTask(const QModelIndex &parent)
{
    const QPersistentModelIndex above = parent; // the dialog runs an event loop
    if (!above.isValid())
        return;
    const QString title = QInputDialog::getText(m_window, tr("New sub-task"), tr("Title:"));
    const TreeItem *const task = m_session->model()->getTreeItem(above);
    if (title.isEmpty() || !task)
        return;
    auto made = std::make_unique<TreeItem>(title, SystemHelper::randomUuid(), QString(),
                                           task->uuid(), task->type());
    made->setStatus(tsWaitting);
    made->setCreateDate(QDateTime::currentMSecsSinceEpoch());
    m_session->insert([&] {
        m_editor->insertChildSubject(above, made.release()); // which takes it over
    });
}

void EditCommands::setSession(DiagramSession *session)
{
    DiagramCommands::setSession(session);
    m_finder->setSession(session);
    m_clipboard->setSession(session);
}

/** The entries of the menu say what they would take back or repeat. */
void EditCommands::nameHistoryActions()
{
    const UndoStack &stack = *m_editor->undoStack();
    const QStringList steps = StepNames::of(stack);
    const auto name = [this, &steps](const char *action, QString text, int step, bool isPossible) {
        if (isPossible && step >= 0 && step < int(steps.size()))
            text +=
                QLatin1String(": ") + QString(steps.at(step)).replace(u'&', QLatin1String("&&"));
        m_actions->action(QLatin1String(action))->setText(text);
        m_actions->action(QLatin1String(action))->setEnabled(isPossible);
    };
    name("undo", tr("&Undo"), stack.currentIndex(), m_editor->canUndo());
    name("redo", tr("&Redo"), stack.currentIndex() + 1, m_editor->canRedo());
}

void EditCommands::updateActions()
{
    nameHistoryActions();
    const SpearItem *const spear = m_editor->firstSelectedSpear();
    const TreeItem *const subject = spear ? spear->treeItem() : nullptr;
    const bool isBone = subject && !spear->isHeader();
    m_actions->action(QStringLiteral("selectSiblings"))->setEnabled(isBone);
    for (const char *name : {"selectBranch", "child", "before", "after", "parent", "subTask",
                             "rename", "link", "style"})
        m_actions->action(QLatin1String(name))->setEnabled(subject);
    for (const char *name : {"cut", "copy", "delete"})
        m_actions->action(QLatin1String(name))
            ->setEnabled(isBone || m_editor->selectedItems().size() > 1);
    m_actions->action(QStringLiteral("paste"))->setEnabled(subject && m_clipboard->canPaste());
    m_actions->action(QStringLiteral("selectAll"))->setEnabled(m_editor->headSpear());
    m_actions->action(QStringLiteral("openLink"))->setEnabled(subject && !subject->url().isEmpty());
    m_actions->action(QStringLiteral("unlink"))->setEnabled(subject && !subject->url().isEmpty());
    m_actions->action(QStringLiteral("removeStyle"))->setEnabled(subject && subject->spearStyle());
    m_actions->action(QStringLiteral("find"))->setEnabled(m_session->model()->rowCount() > 0);
}
