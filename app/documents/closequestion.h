// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QList>
#include <QPointer>

class DocumentTab;
class QListWidget;

/** Asks once what becomes of the changes of several documents that are about to close. */
class CloseQuestion : public QDialog
{
    Q_OBJECT

public:
    /** Lists @p tabs, which have changes; all are chosen to be saved. */
    CloseQuestion(const QList<QPointer<DocumentTab>> &tabs, QWidget *parent);

    /** Those that the user wants to be saved, once the dialog was accepted; the changes of the
     * others are given up. */
    QList<QPointer<DocumentTab>> toSave() const;

private:
    QList<QPointer<DocumentTab>> m_tabs;
    QListWidget *m_list;
    bool m_savesNone = false;
};
