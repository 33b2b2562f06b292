// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class ActionSet;
class QTreeWidget;

/** Lists the keys of all commands, with a field that searches them by name or key. */
class KeysDialog : public QDialog
{
    Q_OBJECT

public:
    KeysDialog(const ActionSet &actions, QWidget *parent);

private:
    void fill(const ActionSet &actions);
    void showMatches(const QString &text);

    QTreeWidget *m_keys;
};
