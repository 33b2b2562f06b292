// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/documentstate.h>

#include <QPointer>

#include <utility>

DocumentState::DocumentState(const QString &file)
    : m_file(file)
    , m_toldFile(file)
{
}

void DocumentState::setFile(const QString &file)
{
    m_file = file;
    tellLater();
}

void DocumentState::setModified(bool modified)
{
    m_isModified = modified;
    tellLater();
}

void DocumentState::setSaved(const QString &file)
{
    m_file = file;
    m_isUntitled = false;
    m_isModified = false;
    tellLater();
}

/** Has the signals tell what has changed, when control is back in the event loop. */
void DocumentState::tellLater()
{
    const bool isTold = m_isModified == m_wasToldModified && m_file == m_toldFile;
    if (!isTold && !std::exchange(m_willTell, true))
        QMetaObject::invokeMethod(this, &DocumentState::tell, Qt::QueuedConnection);
}

void DocumentState::tell()
{
    m_willTell = false;
    const bool isModifiedNew = std::exchange(m_wasToldModified, m_isModified) != m_isModified;
    const bool isFileNew = std::exchange(m_toldFile, m_file) != m_file;
    // Who hears of the one may end the document before the other.
    const QPointer<DocumentState> alive(this);
    if (isModifiedNew)
        Q_EMIT modifiedChanged(m_wasToldModified);
    if (alive && isFileNew)
        Q_EMIT fileChanged(m_toldFile);
}
