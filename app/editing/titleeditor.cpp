// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/titleeditor.h>

#include <app/common/language.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/undostack.h>

#include <QKeyEvent>

#include <algorithm>
#include <memory>

namespace {

constexpr int minimalWidth = 160;

TreeItem *subjectAt(const FishEditor &editor, const QModelIndex &index)
{
    const auto *const model = qobject_cast<const FishModel *>(editor.model());
    return model ? model->getTreeItem(index) : nullptr;
}

} // namespace

TitleEditor *TitleEditor::open(FishEditor *editor, const QModelIndex &index, const QString &typed,
                               CommandGroup *step)
{
    const TreeItem *const subject = subjectAt(*editor, index);
    if (!subject || !subject->spear() || !subject->spear()->isVisible())
        return nullptr;
    editor->ensureVisible(index);
    auto *const field = new TitleEditor(editor, index, step); // owned by the viewport
    field->show();
    field->setFocus();
    if (typed.isEmpty()) {
        field->selectAll();
    } else {
        field->setPlainText(typed);
        field->moveCursor(QTextCursor::End);
    }
    return field;
}

void TitleEditor::finishIn(const FishEditor &editor)
{
    const QList<TitleEditor *> fields = editor.view()->viewport()->findChildren<TitleEditor *>(
        QString(), Qt::FindDirectChildrenOnly);
    for (TitleEditor *field : fields)
        field->finish();
}

TitleEditor::TitleEditor(FishEditor *editor, const QModelIndex &index, CommandGroup *step)
    : QPlainTextEdit(subjectAt(*editor, index)->title(), editor->view()->viewport())
    , m_editor(editor)
    , m_index(index)
    , m_former(text())
    , m_step(step)
{
    setObjectName(QStringLiteral("title"));
    setLineWrapMode(NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Language::bind(this, &QWidget::setAccessibleName, [] { return tr("Title"); });
    place();
    connect(this, &QPlainTextEdit::textChanged, this, &TitleEditor::place);
    parentWidget()->installEventFilter(this);
    const auto endStep = [this] { m_step.clear(); };
    connect(editor->undoStack(), &UndoStack::stackChanged, this, endStep);
    connect(editor->undoStack(), &UndoStack::currentChanged, this, endStep);
}

QString TitleEditor::text() const
{
    // The plain text of a document has common spaces in place of those that do not break.
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

/** How large the lines are. */
QSize TitleEditor::textSize() const
{
    const QStringList lines = text().split(u'\n');
    int width = 0;
    for (const QString &line : lines)
        width = std::max(width, fontMetrics().horizontalAdvance(line));
    return {width, int(lines.size()) * fontMetrics().lineSpacing()};
}

/** Follows the bone's text, which may move or go away while its title is edited, and makes room for
 * what is typed. */
void TitleEditor::place()
{
    const TreeItem *const subject = subjectAt(*m_editor, m_index);
    if (!subject || !subject->spear()) {
        close();
        return;
    }
    if (!subject->spear()->isVisible()) { // contracted: taken, but not while it is painted
        QMetaObject::invokeMethod(this, &TitleEditor::finish, Qt::QueuedConnection);
        return;
    }
    const TextItem *const title = subject->spear()->textItem();
    const QRect box =
        m_editor->view()->mapFromScene(title->mapToScene(title->boundingRect())).boundingRect();
    const QRect room = parentWidget()->rect();
    constexpr int frame = 40; // beside the text, with a little to type into
    const QSize shown = textSize();
    const int width = std::max(box.width(), shown.width());
    const int border = 2 * (frameWidth() + int(document()->documentMargin()));
    const QSize wanted(qBound(minimalWidth, width + frame, std::max(minimalWidth, room.width())),
                       shown.height() + border);
    const QPoint free(std::max(0, room.width() - wanted.width()),
                      std::max(0, room.height() - wanted.height()));
    const QPoint topLeft = box.center() - QPoint(wanted.width() / 2, wanted.height() / 2);
    setGeometry(
        QRect(QPoint(qBound(0, topLeft.x(), free.x()), qBound(0, topLeft.y(), free.y())), wanted));
}

bool TitleEditor::eventFilter(QObject *watched, QEvent *event)
{
    // Whatever moves the text on the screen (a scroll, a zoom, a new size) paints it anew.
    if (event->type() == QEvent::Paint)
        place();
    return QPlainTextEdit::eventFilter(watched, event);
}

bool TitleEditor::event(QEvent *event)
{
    // Every key is for the field, also those that are shortcuts of the drawing below.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QPlainTextEdit::event(event);
}

void TitleEditor::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        cancel();
    else if (isReturn && event->modifiers() & Qt::ShiftModifier)
        textCursor().insertBlock();
    else if (isReturn)
        finish();
    else
        QPlainTextEdit::keyPressEvent(event);
}

void TitleEditor::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    // Another window or the field's own menu is no end of it.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        finish();
}

/** Tab ends the field as Return does, so that the next key is for the drawing again. */
bool TitleEditor::focusNextPrevChild(bool next)
{
    Q_UNUSED(next)
    finish();
    return true;
}

void TitleEditor::finish()
{
    if (m_isClosed)
        return;
    const TreeItem *const subject = subjectAt(*m_editor, m_index);
    const QString title = text();
    const bool changed = subject && title != m_former && title != subject->title();
    close();
    if (changed)
        rename(title);
}

void TitleEditor::cancel()
{
    const bool isNew = m_step && !m_isClosed;
    close();
    if (isNew)
        Q_EMIT abandoned();
}

void TitleEditor::rename(const QString &title)
{
    if (!m_step) {
        m_editor->renameItem(m_index, title);
        return;
    }
    m_step->add(std::make_unique<ModifyName>(m_editor->model(), m_index, title));
    m_editor->setModified(true);
}

void TitleEditor::close()
{
    if (m_isClosed)
        return;
    m_isClosed = true;
    hide();
    m_editor->view()->setFocus();
    deleteLater();
}
