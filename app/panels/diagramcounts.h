// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QPointer>

class DiagramSession;

/** Says in the status bar how many subjects the document has and how many are selected. */
class DiagramCounts : public QLabel
{
    Q_OBJECT

public:
    explicit DiagramCounts(QWidget *parent = nullptr);

    /** Counts what @p session shows. */
    void setSession(DiagramSession *session);

private:
    void count();

    QPointer<DiagramSession> m_session;
};
