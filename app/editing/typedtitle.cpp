// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/typedtitle.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>

#include <QAction>
#include <QInputMethodEvent>
#include <QKeyEvent>

TypedTitle::TypedTitle(FishEditor *editor, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
{
    editor->view()->installEventFilter(this);
}

bool TypedTitle::eventFilter(QObject *watched, QEvent *event)
{
    QString text;
    if (event->type() == QEvent::KeyPress)
        text = typedText(*static_cast<QKeyEvent *>(event));
    else if (event->type() == QEvent::InputMethod)
        text = static_cast<QInputMethodEvent *>(event)->commitString();
    else if (event->type() == QEvent::FocusIn) // which makes the view disable it
        QMetaObject::invokeMethod(this, &TypedTitle::enableInputMethod, Qt::QueuedConnection);
    if (text.isEmpty())
        return QObject::eventFilter(watched, event);
    Q_EMIT typed(text);
    return true;
}

/** What a title may begin with; empty for every other key. */
QString TypedTitle::typedText(const QKeyEvent &event) const
{
    const uint first = event.text().toUcs4().value(0);
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (isCommand || !QChar::isPrint(first) || QChar::isSpace(first))
        return QString();
    const QList<QAction *> actions = m_editor->actions();
    for (const QAction *action : actions) {
        if (action->shortcuts().contains(QKeySequence(event.key())))
            return QString();
    }
    return event.text();
}

void TypedTitle::enableInputMethod()
{
    m_editor->view()->setAttribute(Qt::WA_InputMethodEnabled);
}
