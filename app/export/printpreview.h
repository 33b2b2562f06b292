// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/diagramview.h>
#include <app/export/drawingprinter.h>

#include <QPrintPreviewDialog>

class CanvasTheme;
class PictureSource;
class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;
class QToolBar;

/**
 * Shows the drawing as it will be on paper and prints exactly that: fitted to the page or to its
 * width, or at a percentage on several pages; in the look of the screen or another one, arranged
 * for the paper or as on the screen. What was chosen last is chosen the next time, but for the look
 * and its colours, which begin as on the screen.
 */
class PrintPreview : public QPrintPreviewDialog
{
    Q_OBJECT

public:
    /** Shows @p source, which must outlive the dialog, as @p shown has it; on the paper of @p
     * theme, if that is not null. */
    PrintPreview(PictureSource *source, const DiagramView &shown,
                 const CanvasTheme *theme = nullptr, QWidget *parent = nullptr);
    ~PrintPreview() override;

    /** Where a print into a file goes unless the user says otherwise. */
    void setTarget(const QString &path) { m_target = path; }

    /** Prints on @p device what would be shown for it. False when there is nothing to print, or
     * when the user has cancelled it. */
    bool printTo(QPrinter *device);

protected:
    void childEvent(QChildEvent *event) override;

private:
    QWidget *makeBars();
    QToolBar *makeSizeBar();
    QToolBar *makeLookBar();
    QComboBox *addBox(QToolBar *bar, const char *name, const QString &text);
    void restore();
    void takeOver(const QPrinter &device);
    bool paintOn(QPrinter *device);
    void follow();
    void refresh();

    PictureSource *m_source;
    QString m_target;
    const CanvasTheme *m_theme;
    DiagramView m_shown;
    DrawingPrinter m_drawing;
    QComboBox *m_fit = nullptr;
    QSpinBox *m_percent;
    QLabel *m_pages;
    QComboBox *m_look = nullptr;
    QComboBox *m_palette = nullptr;
    QCheckBox *m_arranged;
    QCheckBox *m_legend;
};
