// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

namespace TestSupport {

/**
 * Plays the user of a modal dialog: waits for the next one of a type and runs an action on it,
 * which has to close it. Once the time limit is over it closes whatever is modal, so that a dialog
 * that never comes, or never goes, fails a test instead of hanging it.
 *
 * Make it before the call that shows the dialog and check isDone() after it.
 */
template <typename Dialog>
class ModalDriver
{
    Q_DISABLE_COPY(ModalDriver)

public:
    using Action = std::function<void(Dialog &)>;

    explicit ModalDriver(Action action, int limitMs = 60000)
        : m_action(std::move(action))
        , m_limitMs(limitMs)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { poll(); });
        m_elapsed.start();
        m_timer.start(2);
    }

    /** Whether the dialog came and the action closed it in time. */
    bool isDone() const { return m_isDone && !m_isExpired; }

private:
    void poll()
    {
        QWidget *const modal = QApplication::activeModalWidget();
        if (m_elapsed.hasExpired(m_limitMs)) {
            m_isExpired = m_isExpired || modal;
            closeAll();
        } else if (auto *const dialog = qobject_cast<Dialog *>(modal); dialog && !m_isStarted) {
            m_isStarted = true;
            m_action(*dialog);
            m_isDone = true;
        }
    }

    static void closeAll()
    {
        if (auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->done(QDialog::Rejected);
        else if (QWidget *const widget = QApplication::activeModalWidget())
            widget->close();
    }

    Action m_action;
    int m_limitMs;
    QElapsedTimer m_elapsed;
    QTimer m_timer;
    bool m_isStarted = false;
    bool m_isDone = false;
    bool m_isExpired = false;
};

} // namespace TestSupport
