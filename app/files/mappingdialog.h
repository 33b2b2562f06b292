// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/tablemapping.h>

#include <QDialog>
#include <QList>

class QComboBox;
class QDialogButtonBox;
class QTableWidget;

/** Shows what the columns of a table are taken for, with its first rows, and lets the user change
 * it. */
class MappingDialog : public QDialog
{
    Q_OBJECT

public:
    MappingDialog(const QString &fileName, const TableMapping &mapping, QWidget *parent = nullptr);

    /** The mapping as the user wants it. */
    TableMapping mapping() const;

private:
    void addColumn(QTableWidget *table, int column);
    void updateButtons();

    const TableMapping m_mapping;
    QList<QComboBox *> m_roles; ///< of the columns
    QDialogButtonBox *m_buttons;
};
