// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/pictureexport.h>

#include <QDialog>

class QComboBox;
class QDoubleSpinBox;
class QLineEdit;

/** Asks for the file and the looks of a picture. */
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /** Proposes the file @p path. */
    explicit ExportDialog(const QString &path, QWidget *parent = nullptr);

    QString fileName() const;
    /** The chosen options; the title is left to the caller. */
    PictureOptions options() const;

public Q_SLOTS:
    /** Takes the answer when the file's name tells a format and an existing file may go. */
    void accept() override;

private:
    void browse();

    QLineEdit *m_file;
    QDoubleSpinBox *m_scale;
    QComboBox *m_background;
};
