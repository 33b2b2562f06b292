// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/diagramview.h>

#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;

/** The fields for how a picture is drawn: look, page, palette, side of the head, legend. The page
 * and the legend that were chosen last are chosen the next time. */
class PictureLookFields : public QObject
{
    Q_OBJECT

public:
    /** Adds its rows to @p layout; begins with @p shown, what is on the screen. */
    PictureLookFields(QFormLayout *layout, const DiagramView &shown, QWidget *parent);

    /** What is chosen. */
    DiagramView view() const;

    /** Remembers for the next time what was chosen. */
    void remember() const;

Q_SIGNALS:
    /** Something else is chosen. */
    void changed();

private:
    void addPages(QFormLayout *layout);
    void addColours(QFormLayout *layout);
    void follow();

    DiagramView m_shown;
    QComboBox *m_look;
    QComboBox *m_page;
    QComboBox *m_palette;
    QComboBox *m_head;
    QCheckBox *m_legend;
};
