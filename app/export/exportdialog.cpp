// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/exportdialog.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

ExportDialog::ExportDialog(const QString &path, QWidget *parent)
    : QDialog(parent)
    , m_file(new QLineEdit(path, this))
    , m_scale(new QDoubleSpinBox(this))
    , m_background(new QComboBox(this))
{
    setWindowTitle(tr("Export picture"));
    m_file->setObjectName(QStringLiteral("file"));
    m_file->setMinimumWidth(320);
    m_scale->setRange(0.1, 20);
    m_scale->setSingleStep(0.5);
    m_scale->setValue(1);
    m_scale->setPrefix(QStringLiteral("× "));
    m_background->addItem(tr("White"), QColor(Qt::white));
    m_background->addItem(tr("Transparent"), QColor(Qt::transparent));

    auto *const browseButton = new QPushButton(tr("&Browse…"), this);
    connect(browseButton, &QPushButton::clicked, this, &ExportDialog::browse);
    auto *const file = new QHBoxLayout;
    file->addWidget(m_file);
    file->addWidget(browseButton);
    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);

    auto *const layout = new QFormLayout(this);
    auto *const fileLabel = new QLabel(tr("&File:"), this);
    fileLabel->setBuddy(m_file); // a row finds one by itself only for a widget
    layout->addRow(fileLabel, file);
    layout->addRow(tr("&Scale:"), m_scale);
    layout->addRow(tr("&Background:"), m_background);
    layout->addRow(buttons);
}

QString ExportDialog::fileName() const
{
    return m_file->text();
}

PictureOptions ExportDialog::options() const
{
    PictureOptions options;
    options.scale = m_scale->value();
    options.background = m_background->currentData().value<QColor>();
    return options;
}

void ExportDialog::browse()
{
    const QString chosen = QFileDialog::getSaveFileName(this, windowTitle(), fileName(),
                                                        tr("Pictures (*.png *.svg *.pdf)"), nullptr,
                                                        QFileDialog::DontConfirmOverwrite);
    if (!chosen.isEmpty())
        m_file->setText(chosen);
}

void ExportDialog::accept()
{
    if (!PictureExport::formatOf(fileName())) {
        QMessageBox::warning(this, windowTitle(),
                             tr("The file name must end in .png, .svg or .pdf."));
        return;
    }
    if (QFileInfo::exists(fileName()) &&
        QMessageBox::question(this, windowTitle(),
                              tr("%1 exists already. Replace it?")
                                  .arg(QFileInfo(fileName()).fileName().toHtmlEscaped())) !=
            QMessageBox::Yes)
        return;
    QDialog::accept();
}
