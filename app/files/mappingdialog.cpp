// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/mappingdialog.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

MappingDialog::MappingDialog(const QString &fileName, const TableMapping &mapping, QWidget *parent)
    : QDialog(parent)
    , m_mapping(mapping)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Import %1").arg(fileName));
    setObjectName(QStringLiteral("mappingDialog"));
    auto *const table =
        new QTableWidget(int(mapping.examples.size()) + 1, int(mapping.headings.size()), this);
    table->setObjectName(QStringLiteral("mappingTable"));
    table->setHorizontalHeaderLabels(mapping.headings);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setVerticalHeaderItem(0, new QTableWidgetItem(tr("Read as")));
    for (int column = 0; column < mapping.headings.size(); ++column)
        addColumn(table, column);
    table->resizeColumnsToContents();
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(
        new QLabel(tr("What the columns stand for, with the first rows of the table:"), this));
    layout->addWidget(table);
    layout->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    constexpr int width = 720;
    constexpr int height = 360;
    resize(width, height);
    updateButtons();
}

void MappingDialog::addColumn(QTableWidget *table, int column)
{
    auto *const roles = new QComboBox(table);
    const QList<TableMapping::Role> all = TableMapping::allRoles();
    for (const TableMapping::Role role : all)
        roles->addItem(TableMapping::nameOf(role), int(role));
    roles->setCurrentIndex(roles->findData(int(m_mapping.roles.at(column))));
    roles->setObjectName(QStringLiteral("role%1").arg(column));
    roles->setAccessibleName(tr("Read \"%1\" as").arg(m_mapping.headings.at(column)));
    table->setCellWidget(0, column, roles);
    for (int row = 0; row < m_mapping.examples.size(); ++row)
        table->setItem(row + 1, column,
                       new QTableWidgetItem(m_mapping.examples.at(row).value(column)));
    connect(roles, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &MappingDialog::updateButtons);
    m_roles.append(roles);
}

TableMapping MappingDialog::mapping() const
{
    TableMapping mapping = m_mapping;
    for (int column = 0; column < m_roles.size(); ++column)
        mapping.roles[column] = TableMapping::Role(m_roles.at(column)->currentData().toInt());
    return mapping;
}

/** Without a column of titles there is nothing to import. */
void MappingDialog::updateButtons()
{
    const bool isComplete = m_roles.size() == m_mapping.roles.size();
    m_buttons->button(QDialogButtonBox::Ok)
        ->setEnabled(isComplete && TableMapping::hasTitles(mapping().roles));
}
