// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QSpinBox>

/** A field for the priority of a subject, in which -1 is none. */
class PriorityBox : public QSpinBox
{
    Q_DECLARE_TR_FUNCTIONS(PriorityBox)

public:
    using QSpinBox::QSpinBox;

protected:
    QString textFromValue(int value) const override;
    int valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;
};
