// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/style/penselect.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>
#include <tests/support/dialogchecks.h>

#include <QComboBox>
#include <QFont>
#include <QJsonObject>
#include <QLineEdit>
#include <QPen>

/** The parts of the style and pen dialogs, and styles to edit, as their tests use them. */
namespace StyleDialogParts {

inline constexpr int styleCombo = 0;
inline constexpr int capCombo = 1;
inline constexpr int joinCombo = 2;

inline QLineEdit *widthEdit(const PenSelect &dialog)
{
    return dialog.findChild<QLineEdit *>();
}

inline QComboBox *combo(const PenSelect &dialog, int which)
{
    return dialog.findChildren<QComboBox *>().at(which);
}

inline QLineEdit *previewText(const SpearStyleDialog &dialog)
{
    return dialog.findChild<QLineEdit *>(QStringLiteral("PreviewText"));
}

inline QLineEdit *textCount(const SpearStyleDialog &dialog)
{
    const auto edits = dialog.findChildren<QLineEdit *>();
    return edits.at(edits.first() == previewText(dialog) ? 1 : 0);
}

inline QComboBox *stateCombo(const SpearStyleDialog &dialog)
{
    return dialog.findChild<QComboBox *>();
}

inline void click(const SpearStyleDialog &dialog, const char *button)
{
    QTest::mouseClick(TestSupport::buttonWithText(dialog, QLatin1String(button)), Qt::LeftButton);
}

inline QJsonObject written(const SpearStyle &style)
{
    QJsonObject object;
    style.write(object);
    return object;
}

/** A style with everything set in every state, each state another way. */
inline void fillStyle(SpearStyle &style)
{
    for (int i = 0; i < 4; ++i) {
        const auto state = static_cast<SpearStyle::SpearState>(i);
        style.setTextFont(state, QFont(QStringLiteral("DejaVu Sans"), 10 + 2 * i));
        style.setTextColor(state, QColor(10 * i, 0, 0));
        style.setTextBkColor(state, QColor(200, 200, 100 + 10 * i, 250));
        style.setBroderPen(state, QPen(QColor(0, 0, 100 + 10 * i), 1 + i));
    }
}

} // namespace StyleDialogParts
