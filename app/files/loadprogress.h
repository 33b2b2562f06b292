// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTimer>
#include <QWidget>

class DocumentLoader;
class QProgressBar;
class QUrl;

/** How far a document has come from the network, or that a large file is read, and a button that
 * ends the wait. Hidden while nothing is under way. */
class LoadProgress : public QWidget
{
    Q_OBJECT

public:
    explicit LoadProgress(DocumentLoader *loader, QWidget *parent = nullptr);

private:
    void begin(const QUrl &url);
    void follow(qint64 received, qint64 total);
    void showReceived();

    void end();

    QProgressBar *m_bar;
    QTimer m_patience; ///< before a file is said to be read
    qint64 m_received = 0;
};
