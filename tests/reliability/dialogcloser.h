// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QRandomGenerator>
#include <QTimer>

/**
 * Answers every dialog and menu that comes up, as a user in a hurry: accepts, rejects or closes
 * it.
 */
class DialogCloser
{
    Q_DISABLE_COPY(DialogCloser)

public:
    explicit DialogCloser(QRandomGenerator &random)
        : m_random(random)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { answer(); });
        m_timer.start(0);
    }

    int answered = 0; ///< dialogs and menus so far

private:
    void answer()
    {
        if (auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget()))
            answerMenu(*menu);
        else if (auto *const popup = QApplication::activePopupWidget())
            popup->close();
        else if (auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            answerDialog(*dialog);
    }

    void answerMenu(QMenu &menu)
    {
        ++answered;
        for (int steps = m_random.bounded(12); steps > 0; --steps)
            press(menu, Qt::Key_Down);
        press(menu, m_random.bounded(4) == 0 ? Qt::Key_Escape : Qt::Key_Return);
    }

    void answerDialog(QDialog &dialog)
    {
        ++answered;
        // What would leave this program, to a printer for one, is declined.
        const bool isOurs = !dialog.inherits("QPrintDialog") && !dialog.inherits("QFileDialog");
        dialog.done(isOurs && m_random.bounded(2) == 0 ? QDialog::Accepted : QDialog::Rejected);
    }

    static void press(QWidget &widget, Qt::Key key)
    {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &down);
    }

    QRandomGenerator &m_random;
    QTimer m_timer;
};
