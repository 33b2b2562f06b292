// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/panels/detailsfield.h>

class DateField;
class QCheckBox;
class QWidget;

/** The row for the day that something is to be done until, if there is one. */
class PlannedEndField : public DetailsField
{
    Q_OBJECT

public:
    PlannedEndField(Language::Text label, QWidget *parent);

    QWidget *widget() const override { return m_row; }
    void fill(const TreeItem &subject, bool isMixed) override;
    /** A day that is the same keeps its time. */
    void store(TreeItem &target) const override;
    bool hasValue() const override;
    void showTexts(const QString &several) override;

private:
    QWidget *m_row;
    QCheckBox *m_isSet;
    DateField *m_day;
};
