// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class DocumentLoader;
class QProgressBar;
class QUrl;

/** How far a document has come from the network, and a button that ends the wait. Hidden while
 * nothing is under way. */
class LoadProgress : public QWidget
{
    Q_OBJECT

public:
    explicit LoadProgress(DocumentLoader *loader, QWidget *parent = nullptr);

private:
    void begin(const QUrl &url);
    void follow(qint64 received, qint64 total);
    void showReceived();

    QProgressBar *m_bar;
    qint64 m_received = 0;
};
