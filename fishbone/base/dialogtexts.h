// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/base/followlanguage.h>

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QStringList>

/** Gives the items of @p combo other texts, and makes those that are missing. The box, which
 * adjusts to its contents, gets no narrower than they are. */
inline void setItemTexts(QComboBox *combo, const QStringList &texts)
{
    for (int row = 0; row < texts.size(); ++row) {
        if (row < combo->count())
            combo->setItemText(row, texts.at(row));
        else
            combo->addItem(texts.at(row));
    }
    // The toolkit remembers the least width of the texts that were there first.
    combo->setMinimumWidth(combo->sizeHint().width());
}

/**
 * Adds @p field to @p form with @p name, a text of @p Dialog, on its label and for those who do
 * not see the label.
 */
template <typename Dialog>
void addNamedRow(QFormLayout *form, const char *name, QWidget *field)
{
    auto *const label = new QLabel(field->parentWidget());
    label->setBuddy(field);
    form->addRow(label, field);
    followLanguage(field, [name, label, field] {
        label->setText(Dialog::tr(name));
        field->setAccessibleName(label->text());
    });
}
