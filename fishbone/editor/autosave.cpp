// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/autosave.h>

#include <QTimer>

Autosave::Autosave(QObject *owner, const std::function<void()> &save)
    : m_timer(new QTimer(owner))
{
    m_timer->setInterval(m_interval);
    QObject::connect(m_timer, &QTimer::timeout, owner, save);
}

void Autosave::start()
{
    if (m_interval > 0)
        m_timer->start(m_interval);
    else
        m_timer->stop();
}

void Autosave::setInterval(int ms)
{
    m_interval = qMax(0, ms);
    start();
}
