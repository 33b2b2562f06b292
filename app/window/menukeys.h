// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

/**
 * Keeps the keys for the menu while one is open, whoever opened it. The toolkit would run actions
 * whose shortcuts belong to the widget that had the focus before: Right would select another bone
 * instead of leading to the next menu, and Delete would delete.
 */
class MenuKeys : public QObject
{
    Q_OBJECT

public:
    /** Watches the whole application, as long as this object lives. */
    explicit MenuKeys(QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
