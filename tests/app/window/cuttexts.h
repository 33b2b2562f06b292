// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QDateEdit>
#include <QDockWidget>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>
#include <QWidget>

/** What tests ask of the texts that a window shows. */
namespace CutTexts {

/** A text that is shown, the width that it has and the width that it needs. */
struct Fit
{
    QString text;
    int width = 0;
    int needed = 0;
};

/** Of the item of @p combo that needs most, or where it is not made for that, of what it shows. */
inline Fit fitOf(const QComboBox &combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const int width =
        combo.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo)
            .width();
    Fit widest{QString(), width, 0};
    const bool isWide =
        combo.sizeAdjustPolicy() != QComboBox::AdjustToMinimumContentsLengthWithIcon;
    for (int row = 0; row < combo.count(); ++row) {
        if (!isWide && row != combo.currentIndex())
            continue;
        const int icon = combo.itemIcon(row).isNull() ? 0 : combo.iconSize().width() + 4;
        const int needed = icon + combo.fontMetrics().horizontalAdvance(combo.itemText(row));
        if (needed > widest.needed)
            widest = {combo.itemText(row), width, needed};
    }
    return widest;
}

/** Of the tab in @p tabs that lacks most. */
inline Fit fitOf(const QTabBar &tabs)
{
    Fit worst;
    for (int i = 0; i < tabs.count(); ++i) {
        const Fit fit{tabs.tabText(i), tabs.tabRect(i).width(),
                      tabs.fontMetrics().size(Qt::TextShowMnemonic, tabs.tabText(i)).width()};
        if (fit.needed - fit.width > worst.needed - worst.width || worst.text.isEmpty())
            worst = fit;
    }
    return worst;
}

inline Fit fitOf(const QAbstractButton &button, int width)
{
    const auto *const tool = qobject_cast<const QToolButton *>(&button);
    const bool isIcon =
        tool && !tool->icon().isNull() && tool->toolButtonStyle() == Qt::ToolButtonIconOnly;
    const int text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width();
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width() + 4;
    return isIcon ? Fit() : Fit{button.text(), width, text + icon};
}

inline Fit fitOf(const QWidget &widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    const int width = widget.contentsRect().width();
    if (const auto *const label = qobject_cast<const QLabel *>(&widget)) {
        // What is cut on purpose is whole in its tool tip.
        return label->toolTip().isEmpty()
                   ? Fit{label->text(), width, label->minimumSizeHint().width()}
                   : Fit();
    }
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
        return fitOf(*button, width);
    if (const auto *const field = qobject_cast<const QLineEdit *>(&widget)) {
        const QString text = field->placeholderText();
        return {text, width, metrics.horizontalAdvance(text)};
    }
    if (const auto *const combo = qobject_cast<const QComboBox *>(&widget))
        return fitOf(*combo);
    if (const auto *const tabs = qobject_cast<const QTabBar *>(&widget))
        return fitOf(*tabs);
    if (const auto *const date = qobject_cast<const QDateEdit *>(&widget)) {
        const auto *const inner = date->findChild<const QLineEdit *>();
        constexpr int margins = 4;
        return {date->text(), inner->width(), metrics.horizontalAdvance(date->text()) + margins};
    }
    if (const auto *const dock = qobject_cast<const QDockWidget *>(&widget)) {
        const QString text = dock->windowTitle();
        constexpr int buttons = 40;
        return {text, width, metrics.horizontalAdvance(text) + buttons};
    }
    return {};
}

/** The texts in @p widget that are shown and find no room. */
inline QStringList in(const QWidget &widget)
{
    QStringList cut;
    const QList<QWidget *> all = widget.findChildren<QWidget *>();
    for (const QWidget *each : all) {
        // The rest of a bar: when it is disabled, it is of fields, which have no menu.
        if (each->isVisible() && !each->isEnabled() &&
            each->objectName() == QLatin1String("qt_toolbar_ext_button"))
            cut.append(QStringLiteral("fields of a bar"));
        const Fit fit = each->isVisible() ? fitOf(*each) : Fit();
        constexpr int rounding = 2; // of the widths of letters
        if (!fit.text.isEmpty() && fit.width < fit.needed - rounding)
            cut.append(
                QStringLiteral("%1 (%2 of %3)").arg(fit.text).arg(fit.width).arg(fit.needed));
    }
    return cut;
}

/** The texts of the labels and buttons in @p widget that are shown. */
inline QStringList shown(const QWidget &widget)
{
    QStringList texts;
    const QList<QWidget *> all = widget.findChildren<QWidget *>();
    for (const QWidget *each : all) {
        if (!each->isVisible())
            continue;
        if (const auto *const label = qobject_cast<const QLabel *>(each))
            texts.append(label->text());
        else if (const auto *const button = qobject_cast<const QAbstractButton *>(each))
            texts.append(button->text());
    }
    return texts;
}

/** Those of @p texts whose mnemonic one before them has, too. */
inline QStringList doubleMnemonics(const QStringList &texts)
{
    QHash<QString, QString> taken;
    QStringList twice;
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty())
            continue;
        if (taken.contains(key))
            twice.append(QStringLiteral("%1 beside %2").arg(text, taken.value(key)));
        taken.insert(key, text);
    }
    return twice;
}

} // namespace CutTexts
