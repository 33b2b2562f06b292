// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/export/drawingprinter.h>

#include <QPrintPreviewDialog>

class QComboBox;
class QLabel;
class QSpinBox;

/**
 * Shows the drawing as it will be on paper and prints exactly that: fitted to the page or to its
 * width, or at a percentage on several pages. What was chosen last is chosen the next time.
 */
class PrintPreview : public QPrintPreviewDialog
{
    Q_OBJECT

public:
    /** Shows @p scene, which must outlive the dialog, under @p title. */
    PrintPreview(QGraphicsScene *scene, const QString &title, QWidget *parent = nullptr);
    ~PrintPreview() override;

private:
    void addControls();
    void restore();
    void takeOver();
    void follow();
    void refresh();

    DrawingPrinter m_drawing;
    QComboBox *m_fit;
    QSpinBox *m_percent;
    QLabel *m_pages;
};
