// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/export/picturesource.h>

#include <fishbone/exchange/pagesize.h>
#include <fishbone/exchange/pictureexport.h>

#include <QDialog>
#include <QTimer>

#include <functional>
#include <optional>

class PictureLevelFields;
class PictureLookFields;
class PicturePreview;
class PictureSizeFields;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QVBoxLayout;

/** Asks for the file and the looks of a picture, and shows what becomes of it. What was chosen last
 * is chosen the next time. */
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /** What there is to make a picture of. */
    struct Subject
    {
        int depth = 0;             ///< the levels of bones below the main bones
        QColor canvas = Qt::white; ///< what it is drawn on, on the screen
        DiagramView view;          ///< how it is shown there
        /** What the drawing covers when it is what is wished, in scene units. May take its time. */
        std::function<QRectF(const PictureWish &wish)> extent;
        /** Paints that drawing into the target, as on paper or as on the screen. */
        std::function<void(QPainter &painter, const QRectF &target, bool isLight)> paint;
    };

    /** Proposes the file @p path for a picture of @p subject. */
    ExportDialog(const QString &path, Subject subject, QWidget *parent = nullptr);

    QString fileName() const;
    /** The chosen options; the title is left to the caller. */
    PictureOptions options() const;
    /** What the picture shall show. */
    PictureWish wish() const;
    /** How many levels below the main bones are to be expanded, Expansion::allLevels for all;
     * nothing for those that are expanded on the screen. */
    std::optional<int> levels() const;
    /** The page that it is for, if any. */
    std::optional<PageSize> page() const;
    /** Whether it shall look as on paper, whatever the screen looks like. */
    bool isLight() const;

public Q_SLOTS:
    /** Takes the answer when the file's name tells a format that can hold the picture and an
     * existing file may go. */
    void accept() override;

private:
    void addFields(QVBoxLayout *layout);
    void addFile(QFormLayout *layout);
    void addColours(QFormLayout *layout);
    void restore();
    void remember() const;
    void browse();
    void followFile();
    void followLook();
    void followLight();
    void measure();
    void showPreview();
    QString objection() const;

    Subject m_subject;
    QLineEdit *m_file;
    PictureLookFields *m_look = nullptr;
    PictureSizeFields *m_size = nullptr;
    PictureLevelFields *m_levels = nullptr;
    QCheckBox *m_light;
    QComboBox *m_background;
    PicturePreview *m_preview;
    QTimer m_measuring; ///< so that it is measured once for several steps of a field
};
