// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/recovery/autosavestatus.h>

#include <app/common/language.h>
#include <app/common/shownpath.h>
#include <app/recovery/recoverycopy.h>

#include <QLocale>

AutosaveStatus::AutosaveStatus(QWidget *parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("autosaveStatus"));
    setTextFormat(Qt::PlainText);
    Language::bind(this, [this] { refresh(); });
}

void AutosaveStatus::setCopy(RecoveryCopy *copy)
{
    if (m_copy)
        m_copy->disconnect(this);
    m_copy = copy;
    connect(copy, &RecoveryCopy::changed, this, &AutosaveStatus::refresh);
    refresh();
}

void AutosaveStatus::refresh()
{
    if (!m_copy)
        return;
    const QString path = ShownPath::of(m_copy->path());
    const QString time = QLocale().toString(m_copy->time().time(), QLocale::ShortFormat);
    switch (m_copy->state()) {
    case RecoveryCopy::State::None:
        clear();
        setToolTip(QString());
        break;
    case RecoveryCopy::State::Saved:
        setText(tr("Autosaved at %1").arg(time));
        setToolTip(tr("A copy of the changes that are not saved is kept in %1").arg(path));
        break;
    case RecoveryCopy::State::Failed:
        setText(tr("Autosave failed at %1").arg(time));
        setToolTip(tr("%1 cannot be written. Changes that are not saved would be lost if the "
                      "program did not end well.")
                       .arg(path));
        break;
    }
}
