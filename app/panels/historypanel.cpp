// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/historypanel.h>

#include <app/common/language.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/stepnames.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/undo/undostack.h>

#include <QKeyEvent>
#include <QSignalBlocker>

#include <iterator>

namespace {

constexpr int stepRole = Qt::UserRole; ///< the command that a row goes to
constexpr int beginning = -1;

/** The command that counts last. */
int currentStep(const UndoStack &stack)
{
    return qMin(stack.currentIndex(), stack.count() - 1);
}

} // namespace

HistoryPanel::HistoryPanel(DiagramSession *session, QWidget *parent)
    : QTreeWidget(parent)
    , m_session(session)
{
    setObjectName(QStringLiteral("history"));
    Language::bind(this, &QWidget::setAccessibleName, [] { return tr("History"); });
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(false); // which would fold what the first click has chosen
    const UndoStack *const stack = session->editor()->undoStack();
    connect(stack, &UndoStack::stackChanged, this, [this] {
        countSteps();
        refresh();
    });
    connect(stack, &UndoStack::currentChanged, this, &HistoryPanel::refresh);
    // A new subject gets its title within the step that inserted it.
    connect(session, &DiagramSession::stateChanged, this, &HistoryPanel::refresh);
    connect(this, &QTreeWidget::currentItemChanged, this, &HistoryPanel::goTo);
    connect(this, &QTreeWidget::itemClicked, this, &HistoryPanel::goTo);
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](const QTreeWidgetItem *row) { keepFolding(row, true); });
    connect(this, &QTreeWidget::itemCollapsed, this,
            [this](const QTreeWidgetItem *row) { keepFolding(row, false); });
    Language::bind(this, [this] { refresh(); });
}

/** Cuts @p names, those of all commands, into runs; what is not folded is a run of one. */
std::vector<HistoryPanel::Run> HistoryPanel::runsOf(const QStringList &names)
{
    std::vector<Run> runs;
    const int count = int(names.size());
    for (int first = 0; first < count;) {
        int end = first + 1;
        while (end < count && names.at(end) == names.at(first))
            ++end;
        if (end - first >= shortestRun) {
            runs.push_back({first, end - first});
        } else {
            for (int step = first; step < end; ++step)
                runs.push_back({step, 1});
        }
        first = end;
    }
    return runs;
}

/** After a command was added: those that were undone are gone, and at the bound the oldest one, by
 * which the places of all others are one less. */
void HistoryPanel::countSteps()
{
    const int kept = m_current + 1;
    const int count = m_session->editor()->undoStack()->count();
    const int end = m_gone + kept;
    for (auto step = m_unfolded.begin(); step != m_unfolded.end();)
        step = count == 0 || *step >= end ? m_unfolded.erase(step) : std::next(step);
    m_gone = count == 0 ? 0 : m_gone + qMax(0, kept + 1 - count);
}

/** Remembers whether the run of @p row is unfolded. */
void HistoryPanel::keepFolding(const QTreeWidgetItem *row, bool isUnfolded)
{
    for (int i = 0; i < row->childCount(); ++i) {
        const int step = m_gone + row->child(i)->data(0, stepRole).toInt();
        if (isUnfolded)
            m_unfolded.insert(step);
        else
            m_unfolded.remove(step);
    }
    showCurrent();
}

/** Whether the user has unfolded @p run, or what it was before it grew or its beginning went. */
bool HistoryPanel::isUnfolded(const Run &run) const
{
    for (int step = run.first; step < run.first + run.length; ++step) {
        if (m_unfolded.contains(m_gone + step))
            return true;
    }
    return false;
}

void HistoryPanel::refresh()
{
    const QSignalBlocker blocker(this);
    const UndoStack *const stack = m_session->editor()->undoStack();
    const QStringList names = stack->commandNames();
    const QStringList steps = StepNames::of(*stack);
    const std::vector<Run> runs = runsOf(names);
    m_current = currentStep(*stack);
    if (topLevelItemCount() == 0 || runs != m_runs)
        build(runs);
    write(topLevelItem(0), beginning, tr("(beginning)"));
    for (int i = 0; i < int(runs.size()); ++i) {
        const Run &run = runs[std::size_t(i)];
        QTreeWidgetItem *const row = topLevelItem(i + 1);
        if (run.length == 1) {
            write(row, run.first, steps.at(run.first));
            continue;
        }
        for (int step = 0; step < run.length; ++step)
            write(row->child(step), run.first + step, steps.at(run.first + step));
        showRun(row, run, names.at(run.first));
    }
    showCurrent();
}

/** Makes rows for @p runs, without texts yet. */
void HistoryPanel::build(const std::vector<Run> &runs)
{
    m_runs = runs;
    clear();
    QList<QTreeWidgetItem *> rows{new QTreeWidgetItem};
    bool hasFolded = false;
    for (const Run &run : runs) {
        auto *const row = new QTreeWidgetItem;
        for (int step = 0; run.length > 1 && step < run.length; ++step)
            row->addChild(new QTreeWidgetItem);
        hasFolded = hasFolded || run.length > 1;
        rows.append(row);
    }
    addTopLevelItems(rows); // which owns them
    setRootIsDecorated(hasFolded);
    for (int i = 0; i < int(runs.size()); ++i) {
        if (isUnfolded(runs[std::size_t(i)]))
            topLevelItem(i + 1)->setExpanded(true);
    }
}

void HistoryPanel::write(QTreeWidgetItem *row, int step, const QString &text)
{
    row->setText(0, text);
    row->setToolTip(0, text);
    row->setData(0, stepRole, step);
    // What was undone is still there, but does not count.
    const bool isUndone = step > currentStep(*m_session->editor()->undoStack());
    row->setForeground(
        0, palette().brush(isUndone ? QPalette::Disabled : QPalette::Active, QPalette::Text));
}

/** Says how many steps are in @p run, and how many of them count when that is not all. */
void HistoryPanel::showRun(QTreeWidgetItem *row, const Run &run, const QString &name)
{
    const int last = run.first + run.length - 1;
    const int counting = currentStep(*m_session->editor()->undoStack()) - run.first + 1;
    const bool isPart = counting > 0 && counting < run.length;
    write(row, last,
          isPart ? tr("%1 (%2 of %n)", nullptr, run.length).arg(name).arg(counting)
                 : tr("%1 (%n times)", nullptr, run.length).arg(name));
    if (isPart)
        row->setForeground(0, palette().brush(QPalette::Active, QPalette::Text));
}

/** The row that shows the command @p step: its own, or that of its run while this is folded. */
QTreeWidgetItem *HistoryPanel::rowOf(int step) const
{
    for (std::size_t i = 0; step != beginning && i < m_runs.size(); ++i) {
        const Run &run = m_runs[i];
        if (step >= run.first + run.length)
            continue;
        QTreeWidgetItem *const row = topLevelItem(int(i) + 1);
        return row->isExpanded() ? row->child(step - run.first) : row;
    }
    return topLevelItem(0);
}

void HistoryPanel::showCurrent()
{
    const QSignalBlocker blocker(this);
    QTreeWidgetItem *const row = rowOf(currentStep(*m_session->editor()->undoStack()));
    // Whoever has chosen an unfolded run stays on its row.
    if (!currentItem() || currentItem() != row->parent() ||
        currentItem()->data(0, stepRole) != row->data(0, stepRole))
        setCurrentItem(row);
    scrollToItem(currentItem());
}

/** Goes to the step of @p row. Whoever folds a run stays where he is. */
void HistoryPanel::goTo(const QTreeWidgetItem *row)
{
    const int step = currentStep(*m_session->editor()->undoStack());
    if (!row || row->data(0, stepRole).toInt() == step)
        return;
    m_session->jumpTo(row->data(0, stepRole).toInt());
}

/** Left folds the run of a step at once: on its way over the row of the run it would go there. */
void HistoryPanel::keyPressEvent(QKeyEvent *event)
{
    QTreeWidgetItem *const run = currentItem() ? currentItem()->parent() : nullptr;
    if (event->key() == Qt::Key_Left && run)
        run->setExpanded(false);
    else
        QTreeWidget::keyPressEvent(event);
}
