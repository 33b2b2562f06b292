// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <optional>

class QComboBox;
class QFormLayout;
class QSpinBox;
class QWidget;

/** The fields for how far the bones of a picture are expanded. What was chosen last is chosen the
 * next time. */
class PictureLevelFields : public QObject
{
    Q_OBJECT

public:
    /** Adds its row to @p layout, for a diagram with @p depth levels of bones below the main
     * bones. */
    PictureLevelFields(QFormLayout *layout, int depth, QWidget *parent);

    /** How many levels below the main bones are to be expanded, Expansion::allLevels for all;
     * nothing for those that are expanded on the screen. */
    std::optional<int> levels() const;

    /** Remembers for the next time what was chosen. */
    void remember() const;

Q_SIGNALS:
    /** Something else is chosen. */
    void changed();

private:
    void follow();

    QComboBox *m_expansion;
    QSpinBox *m_levels;
};
