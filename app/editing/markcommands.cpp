// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/markcommands.h>

#include <app/common/actionset.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/people.h>
#include <app/diagram/subjectedit.h>
#include <app/editing/markentries.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/structuralcommands.h>

#include <QAction>
#include <QColorDialog>
#include <QInputDialog>
#include <QJsonObject>
#include <QMenu>
#include <QPixmap>

#include <algorithm>
#include <memory>
#include <utility>

namespace {
using MarkEntries::stepName;

QIcon squareOf(const QColor &colour)
{
    constexpr int size = 16;
    QPixmap square(size, size);
    square.fill(colour);
    return square;
}
} // namespace

MarkCommands::MarkCommands(DiagramSession *session, ActionSet *actions, QWidget *window)
    : DiagramCommands(session, actions, window)
    , m_window(window)
    , m_menu(new QMenu(window))
{
    m_menu->setObjectName(QStringLiteral("markMenu"));
    Language::bind(m_menu, &QMenu::setTitle, [] { return tr("Mar&k"); });
    connect(m_menu, &QMenu::aboutToShow, this, &MarkCommands::showMarks);
    m_actions->add(
        QStringLiteral("markHere"), [] { return tr("Mark at the bo&ne"); }, {Qt::Key_Space},
        ActionSet::Scope::Drawing, [this] { showAtBone(); });
    addMarks(m_menu, MarkEntries::verdicts(), QT_TR_NOOP("Change verdict"));
    m_menu->addSeparator();
    addVotes();
    m_menu->addSeparator();
    addMenus();
    add(m_menu, "manager", QT_TR_NOOP("R&esponsible…"), {QKeySequence(Qt::SHIFT | Qt::Key_F4)},
        [this] { chooseManager(); });
}

QMenu *MarkCommands::addMenu(const char *name, const char *title)
{
    QMenu *const menu = m_menu->addMenu(QString());
    menu->setObjectName(QLatin1String(name));
    Language::bind(menu, &QMenu::setTitle, [title] { return tr(title); });
    connect(menu, &QMenu::aboutToShow, this, &MarkCommands::showMarks);
    return menu;
}

QAction *MarkCommands::add(QMenu *menu, const char *name, const char *text,
                           const QList<QKeySequence> &keys, std::function<void()> run)
{
    QAction *const action = m_actions->add(
        QLatin1String(name), [text] { return tr(text); }, keys, ActionSet::Scope::Selection,
        std::move(run));
    menu->addAction(action);
    return action;
}

/** Adds @p entries to @p menu, whose steps are called @p step. */
void MarkCommands::addMarks(QMenu *menu, const std::vector<MarkEntry> &entries, const char *step)
{
    for (const MarkEntry &entry : entries) {
        QAction *const action =
            add(menu, entry.action, entry.text, entry.keys,
                [this, step, change = entry.change] { mark(stepName(step), change); });
        action->setCheckable(true);
        m_marks.push_back({action, entry.test});
        // The set gives all icons anew when the palette changes.
        if (entry.square.isValid())
            connect(menu, &QMenu::aboutToShow, action,
                    [action, square = entry.square] { action->setIcon(squareOf(square)); });
    }
}

void MarkCommands::addVotes()
{
    const auto vote = [this](int more) {
        mark(stepName(QT_TR_NOOP("Vote")), [more](TreeItem &subject) {
            SubjectMarks::setVotes(subject, SubjectMarks::votes(subject) + more);
        });
    };
    add(m_menu, "voteMore", QT_TR_NOOP("One vote &more"), {Qt::Key_F7}, [vote] { vote(1); });
    add(m_menu, "voteLess", QT_TR_NOOP("One vote &less"), {QKeySequence(Qt::SHIFT | Qt::Key_F7)},
        [vote] { vote(-1); });
    add(m_menu, "sortByVotes", QT_TR_NOOP("Sort it and its siblings &by votes"),
        {QKeySequence(Qt::CTRL | Qt::Key_F7)}, [this] { sortByVotes(); });
}

/** Adds the submenus. */
void MarkCommands::addMenus()
{
    addMarks(addMenu("statusMenu", QT_TR_NOOP("S&tatus")), MarkEntries::statuses(),
             QT_TR_NOOP("Change status"));
    addMarks(addMenu("priorityMenu", QT_TR_NOOP("&Priority")), MarkEntries::priorities(),
             QT_TR_NOOP("Change priority"));
    QMenu *const colours = addMenu("colourMenu", QT_TR_NOOP("Colo&ur"));
    addMarks(colours, MarkEntries::colours(), QT_TR_NOOP("Change colour"));
    add(colours, "colourOther", QT_TR_NOOP("Ot&her…"), {}, [this] { chooseColour(); });
}

void MarkCommands::mark(const UndoCommand::Name &step, const Change &change)
{
    SubjectEdit::applyToAll(*m_session, m_session->selected(), step, change);
}

void MarkCommands::chooseColour()
{
    const TreeItem *const first =
        m_session->model()->getTreeItem(m_editor->firstSelectedSpearIndex());
    const QColor before = first ? SubjectMarks::colour(*first) : QColor();
    const QColor chosen = QColorDialog::getColor(before.isValid() ? before : QColor(Qt::white),
                                                 m_window, tr("Colour of the bone"));
    if (chosen.isValid())
        mark(stepName(QT_TR_NOOP("Change colour")),
             [chosen](TreeItem &subject) { SubjectMarks::setColour(subject, chosen); });
}

/** Asks who is responsible for what is selected, and offers those that are known already. */
void MarkCommands::chooseManager()
{
    const People people = People::in(m_session->container());
    const TreeItem *const first =
        m_session->model()->getTreeItem(m_editor->firstSelectedSpearIndex());
    if (!first)
        return;
    QInputDialog dialog(m_window);
    dialog.setWindowTitle(tr("Responsible"));
    dialog.setLabelText(tr("Who is responsible?"));
    dialog.setComboBoxItems(people.names()); // which completes what is typed
    dialog.setComboBoxEditable(true);
    dialog.setTextValue(first->managerName());
    if (dialog.exec() != QDialog::Accepted)
        return;
    mark(stepName(QT_TR_NOOP("Change who is responsible")),
         [&people, typed = dialog.textValue()](TreeItem &subject) {
             people.makeResponsible(subject, typed);
         });
}

/** Brings the selected subject and those beside it into the order of their votes, the most first;
 * those with as many stay in their order. */
void MarkCommands::sortByVotes()
{
    const QModelIndex selected = m_editor->firstSelectedSpearIndex();
    const SpearItem *const spear = m_editor->firstSelectedSpear();
    if (!spear || spear->isHeader())
        return;
    const TreeItem *const parent = m_session->model()->getTreeItem(selected.parent());
    QList<TreeItem *> sorted = parent->childItems();
    std::stable_sort(sorted.begin(), sorted.end(), [](const TreeItem *one, const TreeItem *other) {
        return SubjectMarks::votes(*one) > SubjectMarks::votes(*other);
    });
    if (sorted == parent->childItems())
        return;
    // Each goes to the front, so that the last one of them comes first.
    std::reverse(sorted.begin(), sorted.end());
    QList<QGraphicsItem *> items;
    for (const TreeItem *subject : qAsConst(sorted))
        items.append(subject->spear());
    QJsonObject objects;
    m_editor->saveObjects(objects, items);
    auto command =
        std::make_unique<EditMove>(m_session->model(), selected.parent(), 0, objects, sorted);
    command->setText(stepName(QT_TR_NOOP("Sort by votes")));
    m_editor->run(std::move(command));
    m_session->touch();
    Q_EMIT message(tr("Sorted by votes"));
}

/** Opens the menu below the title of the selected bone. */
void MarkCommands::showAtBone()
{
    const SpearItem *const spear = m_editor->firstSelectedSpear();
    if (!spear || !spear->textItem())
        return;
    const GraphicsView *const view = m_editor->view();
    const QRect title = view->mapFromScene(spear->textItem()->sceneBoundingRect()).boundingRect();
    const QPoint below =
        title.bottomLeft().x() < 0 ? QPoint(0, title.bottom()) : title.bottomLeft();
    m_menu->popup(view->viewport()->mapToGlobal(below));
}

/** Checks what all selected subjects are. */
void MarkCommands::showMarks() const
{
    const QModelIndexList selected = m_session->selected();
    const FishModel *const model = m_session->model();
    for (const Mark &mark : m_marks) {
        mark.action->setChecked(
            std::all_of(selected.cbegin(), selected.cend(), [&](const QModelIndex &index) {
                return mark.test(*model->getTreeItem(index));
            }));
    }
}

void MarkCommands::updateActions()
{
    const SpearItem *const spear = m_editor->firstSelectedSpear();
    const bool isSubject = spear && spear->treeItem();
    QList<QAction *> all = m_menu->actions();
    const QList<QMenu *> submenus = m_menu->findChildren<QMenu *>();
    for (const QMenu *menu : submenus)
        all += menu->actions();
    for (QAction *action : qAsConst(all))
        action->setEnabled(isSubject);
    m_actions->action(QStringLiteral("markHere"))->setEnabled(isSubject);
    m_actions->action(QStringLiteral("sortByVotes"))->setEnabled(isSubject && !spear->isHeader());
}
