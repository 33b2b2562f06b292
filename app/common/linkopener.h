// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

class QUrl;
class QWidget;

/**
 * Opens the links of diagrams with the desktop. A link that leads anywhere but to a web page or a
 * mail address is opened only when the user says so, since a diagram may come from anybody.
 */
class LinkOpener : public QObject
{
    Q_OBJECT

public:
    /** Takes over from the library as long as it lives. Questions are asked over @p window. */
    explicit LinkOpener(QWidget *window);
    ~LinkOpener() override;

    /** Whether @p url may be opened without a question. */
    static bool isHarmless(const QUrl &url);

Q_SIGNALS:
    /** Nothing on this desktop opens @p url. */
    void failed(const QUrl &url);

private:
    void open(const QUrl &url);

    QPointer<QWidget> m_window;
};
