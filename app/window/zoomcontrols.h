// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

class FishEditor;
class QSlider;
class QSpinBox;
class QToolButton;

/**
 * Zoom and rotation of the drawing: a slider with the percentage, which leads back to 100 % when it
 * is clicked, and a field for the angle. Takes over what the editor asks for and applies it.
 */
class ZoomControls : public QWidget
{
    Q_OBJECT

public:
    explicit ZoomControls(FishEditor *editor, QWidget *parent = nullptr);

    /** From now on shows and changes what @p editor draws, as that stands. */
    void setEditor(FishEditor *editor);

    /** The range of zoom values that the user can reach: 1/32 and 32 times the size. */
    static constexpr int minimum = 0;
    static constexpr int maximum = 500;

    /** Turns the drawing to @p degrees, any number of turns. */
    void setRotation(int degrees);

    /** What a zoom value means, such as "100 %". */
    static QString percentage(int zoomValue);

private:
    void applyZoom(int value);
    void showZoom(int value);
    void showRotation(int degrees);
    void showTexts();

    QPointer<FishEditor> m_editor;
    QSlider *m_zoom;
    QToolButton *m_percentage;
    QSpinBox *m_rotation;
};
