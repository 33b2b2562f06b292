// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/historypanel.h>

#include <app/common/language.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/stepnames.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/undo/undostack.h>

#include <QSignalBlocker>

HistoryPanel::HistoryPanel(DiagramSession *session, QWidget *parent)
    : QListWidget(parent)
    , m_session(session)
{
    setObjectName(QStringLiteral("history"));
    Language::bind(this, &QWidget::setAccessibleName, [] { return tr("History"); });
    setUniformItemSizes(true);
    const UndoStack *const stack = session->editor()->undoStack();
    connect(stack, &UndoStack::stackChanged, this, &HistoryPanel::refresh);
    connect(stack, &UndoStack::currentChanged, this, &HistoryPanel::refresh);
    // A new subject gets its title within the step that inserted it.
    connect(session, &DiagramSession::stateChanged, this, &HistoryPanel::refresh);
    connect(this, &QListWidget::currentRowChanged, m_session,
            [this](int row) { m_session->jumpTo(row - 1); });
    Language::bind(this, [this] { refresh(); });
}

void HistoryPanel::refresh()
{
    const QSignalBlocker blocker(this);
    const UndoStack *const stack = m_session->editor()->undoStack();
    const QStringList rows = QStringList(tr("(beginning)")) + StepNames::of(*stack);
    while (count() > rows.size())
        delete takeItem(count() - 1);
    while (count() < rows.size())
        addItem(QString());
    const int current = stack->currentIndex() + 1;
    for (int row = 0; row < rows.size(); ++row) {
        item(row)->setText(rows.at(row));
        // What was undone is still there, but does not count.
        item(row)->setForeground(
            palette().brush(row > current ? QPalette::Disabled : QPalette::Active, QPalette::Text));
    }
    setCurrentRow(qMin(current, count() - 1));
    scrollToItem(currentItem());
}
