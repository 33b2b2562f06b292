// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QWidget>

#include <functional>
#include <utility>

/**
 * Shows the texts of a widget anew when the widget hears of another language. Owned by the widget.
 */
class LanguageFollower : public QObject
{
public:
    LanguageFollower(QWidget *widget, std::function<void()> show)
        : QObject(widget)
        , m_show(std::move(show))
    {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            m_show();
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_show;
};

/**
 * Calls @p show now, and again in each new language while @p widget lives. What it sets is that
 * way said once, and nothing that is kept in @p widget has to know of it.
 */
inline void followLanguage(QWidget *widget, std::function<void()> show)
{
    show();
    new LanguageFollower(widget, std::move(show)); // owned by the widget
}
