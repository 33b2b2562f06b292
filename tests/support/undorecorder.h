// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/undo/undocommand.h>
#include <fishbone/undo/undostack.h>

#include <QStringList>
#include <QtTest>

#include <functional>
#include <memory>

namespace TestSupport {

using Action = std::function<void()>;

inline QString truth(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

/** What happened so far, as text in the order in which it happened. */
class UndoLog
{
public:
    void add(const QString &entry) { m_entries.append(entry); }

    /** Returns the entries and forgets them. */
    QString take()
    {
        const QString text = m_entries.join(QLatin1String(", "));
        m_entries.clear();
        return text;
    }

    /** Adds the signals of @p stack from now on. */
    void listenTo(UndoStack &stack)
    {
        QObject::connect(&stack, &UndoStack::undoAvailable, &stack, [this](bool available) {
            add(QStringLiteral("undoAvailable(%1)").arg(truth(available)));
        });
        QObject::connect(&stack, &UndoStack::redoAvailable, &stack, [this](bool available) {
            add(QStringLiteral("redoAvailable(%1)").arg(truth(available)));
        });
        QObject::connect(
            &stack, &UndoStack::stackChanged, &stack, [this, &stack](UndoStack *sender, int index) {
                add(QStringLiteral("stackChanged(%1, %2)")
                        .arg(sender == &stack ? QStringLiteral("stack") : QStringLiteral("another"))
                        .arg(index));
            });
        QObject::connect(&stack, &UndoStack::currentChanged, &stack, [this](int index) {
            add(QStringLiteral("currentChanged(%1)").arg(index));
        });
    }

private:
    QStringList m_entries;
};

/** Writes down what is asked of it, and does what it is told to meanwhile. */
class RecordingCommand : public UndoCommand
{
public:
    RecordingCommand(const QString &text, UndoLog *log, QObject *parent = nullptr)
        : UndoCommand(text, parent)
        , m_log(log)
    {
    }
    ~RecordingCommand() override { m_log->add(QStringLiteral("delete ") + text()); }

    void undo() override { run(QStringLiteral("undo "), onUndo); }
    void redo() override { run(QStringLiteral("redo "), onRedo); }

    Action onUndo;
    Action onRedo;

private:
    void run(const QString &what, const Action &action)
    {
        m_log->add(what + text());
        if (!action)
            return;
        action();
        m_log->add(QStringLiteral("end ") + what + text());
    }

    UndoLog *m_log;
};

/** A stack and the record of it; the record outlives the stack. */
struct UndoHistory
{
    UndoLog log;
    std::unique_ptr<UndoStack> stack = std::make_unique<UndoStack>();

    /** Pushes a command of each of the names. */
    void push(const QStringList &names)
    {
        for (const QString &name : names)
            stack->push(new RecordingCommand(name, &log));
    }

    /** Pushes @p count commands, named by their number from @p first on. */
    void pushMany(int count, int first = 0)
    {
        for (int i = 0; i < count; ++i)
            push({QString::number(first + i)});
    }

    QString names() const { return stack->commandNames().join(QLatin1Char(' ')); }

    /** The index and the two predicates, "1 undo" for instance. */
    QString state() const
    {
        QStringList words{QString::number(stack->currentIndex())};
        if (stack->canUndo())
            words.append(QStringLiteral("undo"));
        if (stack->canRedo())
            words.append(QStringLiteral("redo"));
        return words.join(QLatin1Char(' '));
    }
};

/** Calls an operation of the stack by its name. */
inline void call(UndoHistory &history, const QString &operation)
{
    if (operation == QLatin1String("push"))
        history.push({QStringLiteral("new")});
    else if (operation == QLatin1String("undo"))
        history.stack->undo();
    else if (operation == QLatin1String("redo"))
        history.stack->redo();
    else if (operation == QLatin1String("back"))
        history.stack->setCurrentIndex(-1);
    else if (operation == QLatin1String("forth"))
        history.stack->setCurrentIndex(2);
    else
        QFAIL("There is no such operation.");
}

/** The three commands X, Y and Z, of which the first two are in effect. */
inline std::unique_ptr<UndoHistory> inTheMiddle()
{
    auto history = std::make_unique<UndoHistory>();
    history->push({QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z")});
    history->stack->undo();
    history->log.take();
    return history;
}

} // namespace TestSupport
