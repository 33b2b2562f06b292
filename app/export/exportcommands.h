// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/diagramview.h>
#include <app/editing/diagramcommands.h>

#include <fishbone/exchange/pictureexport.h>

#include <QString>

#include <optional>

class CanvasTheme;
class ExportDialog;
class FishInfo;
class PictureSource;
class QWidget;

/** The commands that bring the shown document out of the program: as a picture, in the format of
 * another program, on paper. */
class ExportCommands : public DiagramCommands
{
    Q_OBJECT

public:
    /** Adds the actions to @p actions. Dialogs stand over @p window, which owns this object. */
    ExportCommands(DiagramSession *session, CanvasTheme *theme, ActionSet *actions,
                   QWidget *window);

    /** Enables the actions as the shown document allows. */
    void updateActions() override;

Q_SIGNALS:
    /** Something for the status bar. */
    void message(const QString &text);

private:
    DiagramView shownView() const;
    QString proposedName(const QString &suffix) const;
    void exportPicture();
    PictureExport::Result writePicture(PictureSource &source, const ExportDialog &dialog);
    std::optional<QString> writeAs(const FishInfo &document, const QString &path) const;
    std::optional<QString> writeSlide(const FishInfo &document, const QString &path) const;
    QString lossesOf(const FishInfo &document, const QString &path) const;
    void exportAs();
    QString targetOfExport() const;
    void copyPicture();
    void print();
    void previewPrint();

    CanvasTheme *m_theme;
    QWidget *m_window;
};
