// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

class QWidget;

/** Takes files and web addresses that are dragged onto widgets, in place of these. Every other drag
 * stays theirs. */
class FileDrop : public QObject
{
    Q_OBJECT

public:
    explicit FileDrop(QObject *parent = nullptr);

    /** Takes what is dropped on @p widget from now on. */
    void watch(QWidget *widget);

Q_SIGNALS:
    /** These were dropped: paths of files and http or https URLs. */
    void dropped(const QStringList &sources);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
