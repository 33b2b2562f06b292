// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/markcommands.h>

#include <app/common/actionset.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/people.h>
#include <app/diagram/subjectedit.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/taskstatusinfo.h>
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

struct VerdictEntry
{
    Verdict verdict;
    const char *action;
    const char *text;
    Qt::Key key; ///< with Alt
};

const VerdictEntry verdictEntries[] = {
    {Verdict::Suspected, "verdictSuspected", QT_TRANSLATE_NOOP("MarkCommands", "&Suspected"),
     Qt::Key_1},
    {Verdict::Checking, "verdictChecking", QT_TRANSLATE_NOOP("MarkCommands", "Being &checked"),
     Qt::Key_2},
    {Verdict::Confirmed, "verdictConfirmed", QT_TRANSLATE_NOOP("MarkCommands", "Con&firmed"),
     Qt::Key_3},
    {Verdict::RuledOut, "verdictRuledOut", QT_TRANSLATE_NOOP("MarkCommands", "&Ruled out"),
     Qt::Key_4},
    {Verdict::RootCause, "verdictRootCause", QT_TRANSLATE_NOOP("MarkCommands", "R&oot cause"),
     Qt::Key_5},
    {Verdict::None, "verdictNone", QT_TRANSLATE_NOOP("MarkCommands", "&No verdict"), Qt::Key_0},
};

struct NumberEntry
{
    int value;
    const char *action;
    const char *text;
};

constexpr int nothing = -1; ///< as a status and as a priority

const NumberEntry statusEntries[] = {
    {tsWaitting, "statusWaiting", QT_TRANSLATE_NOOP("MarkCommands", "&Waiting")},
    {tsWaittingAgree, "statusWaitingAgree",
     QT_TRANSLATE_NOOP("MarkCommands", "Waiting for &approval")},
    {tsRunning, "statusRunning", QT_TRANSLATE_NOOP("MarkCommands", "&Under way")},
    {tsFinish, "statusFinished", QT_TRANSLATE_NOOP("MarkCommands", "&Finished")},
    {tsFinishDelay, "statusFinishedLate", QT_TRANSLATE_NOOP("MarkCommands", "Finished &late")},
    {tsPostpone, "statusPostponed", QT_TRANSLATE_NOOP("MarkCommands", "&Postponed")},
    {tsCancel, "statusCancelled", QT_TRANSLATE_NOOP("MarkCommands", "&Cancelled")},
    {nothing, "statusNone", QT_TRANSLATE_NOOP("MarkCommands", "&No status")},
};

const NumberEntry priorityEntries[] = {
    {1, "priority1", QT_TRANSLATE_NOOP("MarkCommands", "&1 (highest)")},
    {2, "priority2", QT_TRANSLATE_NOOP("MarkCommands", "&2 (high)")},
    {3, "priority3", QT_TRANSLATE_NOOP("MarkCommands", "&3 (medium)")},
    {4, "priority4", QT_TRANSLATE_NOOP("MarkCommands", "&4 (low)")},
    {5, "priority5", QT_TRANSLATE_NOOP("MarkCommands", "&5 (lowest)")},
    {nothing, "priorityNone", QT_TRANSLATE_NOOP("MarkCommands", "&No priority")},
};

struct ColourEntry
{
    QRgb colour;
    const char *action;
    const char *text;
};

const ColourEntry colourEntries[] = {
    {0x1f6fb5, "colourBlue", QT_TRANSLATE_NOOP("MarkCommands", "&Blue")},
    {0x0f7f86, "colourTeal", QT_TRANSLATE_NOOP("MarkCommands", "&Teal")},
    {0x1f7a3d, "colourGreen", QT_TRANSLATE_NOOP("MarkCommands", "&Green")},
    {0x7a5c00, "colourBrown", QT_TRANSLATE_NOOP("MarkCommands", "Bro&wn")},
    {0xb8480f, "colourOrange", QT_TRANSLATE_NOOP("MarkCommands", "&Orange")},
    {0xb3261e, "colourRed", QT_TRANSLATE_NOOP("MarkCommands", "&Red")},
    {0x5b21b6, "colourPurple", QT_TRANSLATE_NOOP("MarkCommands", "&Purple")},
    {0x4c5763, "colourGrey", QT_TRANSLATE_NOOP("MarkCommands", "Gr&ey")},
};

QIcon squareOf(const QColor &colour)
{
    constexpr int size = 16;
    QPixmap square(size, size);
    square.fill(colour);
    return square;
}

UndoCommand::Name stepName(const char *text)
{
    return [text] { return MarkCommands::tr(text); };
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
    addVerdicts();
    m_menu->addSeparator();
    addVotes();
    m_menu->addSeparator();
    addStatuses();
    addPriorities();
    addColours();
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

QAction *MarkCommands::addMark(QMenu *menu, const char *name, const char *text,
                               const QList<QKeySequence> &keys, const UndoCommand::Name &step,
                               const Change &change, const Test &test)
{
    QAction *const action =
        add(menu, name, text, keys, [this, step, change] { mark(step, change); });
    action->setCheckable(true);
    m_marks.push_back({action, test});
    return action;
}

void MarkCommands::addVerdicts()
{
    for (const VerdictEntry &entry : verdictEntries) {
        const Verdict verdict = entry.verdict;
        addMark(
            m_menu, entry.action, entry.text, {QKeySequence(int(Qt::ALT) + entry.key)},
            stepName(QT_TR_NOOP("Change verdict")),
            [verdict](TreeItem &subject) { SubjectMarks::setVerdict(subject, verdict); },
            [verdict](const TreeItem &subject) {
                return SubjectMarks::verdict(subject) == verdict;
            });
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

void MarkCommands::addStatuses()
{
    QMenu *const menu = addMenu("statusMenu", QT_TR_NOOP("S&tatus"));
    for (const NumberEntry &entry : statusEntries) {
        const int value = entry.value;
        addMark(
            menu, entry.action, entry.text, {}, stepName(QT_TR_NOOP("Change status")),
            [value](TreeItem &subject) { subject.setStatus(value); },
            [value](const TreeItem &subject) { return subject.status() == value; });
    }
}

void MarkCommands::addPriorities()
{
    QMenu *const menu = addMenu("priorityMenu", QT_TR_NOOP("&Priority"));
    for (const NumberEntry &entry : priorityEntries) {
        const int value = entry.value;
        addMark(
            menu, entry.action, entry.text, {}, stepName(QT_TR_NOOP("Change priority")),
            [value](TreeItem &subject) { subject.setPriority(value); },
            [value](const TreeItem &subject) { return subject.priority() == value; });
    }
}

void MarkCommands::addColours()
{
    QMenu *const menu = addMenu("colourMenu", QT_TR_NOOP("Colo&ur"));
    const auto addColour = [this, menu](const char *name, const char *text, const QColor &colour) {
        return addMark(
            menu, name, text, {}, stepName(QT_TR_NOOP("Change colour")),
            [colour](TreeItem &subject) { SubjectMarks::setColour(subject, colour); },
            [colour](const TreeItem &subject) { return SubjectMarks::colour(subject) == colour; });
    };
    for (const ColourEntry &entry : colourEntries) {
        const QColor colour(entry.colour);
        QAction *const action = addColour(entry.action, entry.text, colour);
        // The set gives all icons anew when the palette changes.
        connect(menu, &QMenu::aboutToShow, action,
                [action, colour] { action->setIcon(squareOf(colour)); });
    }
    addColour("colourNone", QT_TR_NOOP("That of the p&alette"), QColor());
    add(menu, "colourOther", QT_TR_NOOP("Ot&her…"), {}, [this] { chooseColour(); });
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
    const QList<QAction *> all =
        m_menu->actions() + m_menu->findChild<QMenu *>(QStringLiteral("statusMenu"))->actions() +
        m_menu->findChild<QMenu *>(QStringLiteral("priorityMenu"))->actions() +
        m_menu->findChild<QMenu *>(QStringLiteral("colourMenu"))->actions();
    for (QAction *action : all)
        action->setEnabled(isSubject);
    m_actions->action(QStringLiteral("markHere"))->setEnabled(isSubject);
    m_actions->action(QStringLiteral("sortByVotes"))->setEnabled(isSubject && !spear->isHeader());
}
