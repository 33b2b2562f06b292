// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/common/language.h>

#include <QFrame>
#include <QList>
#include <QString>

#include <functional>

class QHBoxLayout;
class QLabel;
class QPushButton;

/** A question above the drawing that waits until somebody answers, without keeping them from
 * working. Hidden while there is none. */
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    /** A button of the bar. */
    struct Answer
    {
        Language::Text text;       ///< with a menu key
        QString name;              ///< the object name of the button
        std::function<void()> run; ///< what it does
    };

    explicit MessageBar(QWidget *parent = nullptr);

    /** Asks @p question in place of any other one. */
    void ask(const Language::Text &question, const QList<Answer> &answers);
    /** Takes the question back. */
    void dismiss();

private:
    void showTexts();

    QLabel *m_text;
    QHBoxLayout *m_layout;
    QList<QPushButton *> m_buttons;
    Language::Text m_question; ///< nothing while there is none
    QList<Answer> m_answers;   ///< of the buttons
};
