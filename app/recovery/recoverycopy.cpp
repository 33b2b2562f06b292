// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/recovery/recoverycopy.h>

#include <app/diagram/diagramsession.h>
#include <app/recovery/recoverystore.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishinfo.h>

#include <QFile>
#include <QLockFile>
#include <QSettings>

namespace {

/** Milliseconds between two copies; a setting, for whoever wants to lose less. */
int interval()
{
    constexpr int usual = 30;
    const int seconds = QSettings().value(QStringLiteral("autosaveSeconds"), usual).toInt();
    return qBound(1, seconds, 3600) * 1000;
}

} // namespace

RecoveryCopy::RecoveryCopy(DiagramSession *session, QObject *parent)
    : QObject(parent)
    , m_session(session)
{
    session->editor()->setAutosaveInterval(0);
    connect(session, &DiagramSession::stateChanged, this, &RecoveryCopy::expectChanges);
    connect(&m_timer, &QTimer::timeout, this, &RecoveryCopy::saveChanges);
    m_timer.setInterval(interval());
}

RecoveryCopy::~RecoveryCopy() = default;

void RecoveryCopy::setDocument(FishInfo *document)
{
    m_document = document;
    redirect();
    expectChanges();
}

/** Chooses the path of the copy. Whatever else autosaves the document writes there as well, and not
 * over its file. */
void RecoveryCopy::redirect()
{
    if (m_path.isEmpty())
        m_path = RecoveryStore::newCopy(m_document->userFriendlyCurrentFile());
    m_document->setAutoSaveFile(m_path);
}

/** The timer runs while there may be something to save only: an idle program wakes for nothing. */
void RecoveryCopy::expectChanges()
{
    m_mayHaveChanged = true;
    if (!m_timer.isActive())
        m_timer.start();
}

void RecoveryCopy::saveChanges()
{
    if (m_document && m_mayHaveChanged) {
        if (m_document->modified())
            save();
        else if (QFile::exists(m_path))
            discard(); // all of it was undone
        else
            m_mayHaveChanged = false;
    }
    if (!m_mayHaveChanged || !m_document)
        m_timer.stop();
}

bool RecoveryCopy::save()
{
    if (!m_document)
        return false;
    redirect();
    m_mayHaveChanged = false;
    const bool saved = write();
    if (!saved)
        expectChanges(); // to be tried again
    setState(saved ? State::Saved : State::Failed);
    return saved;
}

/** Writes note and copy, in this order: what is there is always known. */
bool RecoveryCopy::write()
{
    if (!m_lock) {
        m_lock = std::make_unique<QLockFile>(RecoveryStore::lockOf(m_path));
        m_lock->setStaleLockTime(0); // it counts as long as the program runs
    }
    if (!m_lock->isLocked() && !m_lock->tryLock(0))
        return false;
    const QString original = m_document->isUntitled() ? QString() : m_document->fileName();
    return RecoveryStore::writeNote(m_path, original, m_document->userFriendlyCurrentFile()) &&
           m_document->saveTmpFile();
}

void RecoveryCopy::discard()
{
    if (!m_document)
        return;
    RecoveryStore::remove(m_path);
    m_lock.reset();
    m_path.clear();
    m_mayHaveChanged = false;
    redirect();
    setState(State::None);
}

void RecoveryCopy::setState(State state)
{
    m_state = state;
    m_time = QDateTime::currentDateTime();
    Q_EMIT changed();
}
