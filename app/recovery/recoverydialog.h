// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/recovery/recoverystore.h>

#include <QDialog>

class QPushButton;
class QTreeView;
class RecoveryModel;

/** Lets the user open or discard what a run that did not end well has left, or do so later. */
class RecoveryDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RecoveryDialog(const QList<LeftCopy> &copies, QWidget *parent = nullptr);

    /** Takes the copy at the path @p copy out of the list. With the last one the dialog closes. */
    void forget(const QString &copy);

Q_SIGNALS:
    /** The user wants to go on with @p copy. */
    void openRequested(const LeftCopy &copy);
    /** The user gives @p copy up. */
    void discardRequested(const LeftCopy &copy);

private:
    QList<LeftCopy> selected() const;
    void openSelected();
    void discardSelected();
    void updateButtons();

    RecoveryModel *m_model;
    QTreeView *m_view;
    QPushButton *m_open;
    QPushButton *m_discard;
};
