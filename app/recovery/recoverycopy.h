// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class DiagramSession;
class FishInfo;
class QLockFile;

/**
 * Keeps a copy of the unsaved changes of one document in the user's data folder, in case that the
 * program does not end well; the document's own file is written only when the user saves. The copy
 * is renewed twice a minute while there are new changes.
 */
class RecoveryCopy : public QObject
{
    Q_OBJECT

public:
    /** How the latest attempt to write the copy went. */
    enum class State {
        None,   ///< there is no copy, and no need for one
        Saved,  ///< the copy was written
        Failed, ///< it could not be written
    };

    RecoveryCopy(DiagramSession *session, QObject *parent);
    /** Leaves the copy, unless it was discarded: whoever may go has discarded it. */
    ~RecoveryCopy() override;

    /** From now on keeps a copy of @p document, which is that of the session. */
    void setDocument(FishInfo *document);

    /** Writes the copy now; false when that fails. */
    bool save();

    /** Removes the copy: the document was saved, or is given up. */
    void discard();

    State state() const { return m_state; }
    /** When the copy was written, or could not be. */
    QDateTime time() const { return m_time; }
    /** The path of the copy; there need not be one yet. */
    QString path() const { return m_path; }

Q_SIGNALS:
    /** Something was written, removed, or could not be written. */
    void changed();

private:
    void expectChanges();
    void saveChanges();
    bool write();
    void redirect();
    void setState(State state);

    DiagramSession *m_session;
    FishInfo *m_document = nullptr; ///< lives as long as the session's model
    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
    QTimer m_timer;
    bool m_mayHaveChanged = false; ///< since the copy was written
    State m_state = State::None;
    QDateTime m_time;
};
