// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QPointer>

class RecoveryCopy;

/** Says when the changes of the shown document were autosaved, or that they could not be. */
class AutosaveStatus : public QLabel
{
    Q_OBJECT

public:
    explicit AutosaveStatus(QWidget *parent = nullptr);

    /** From now on tells of @p copy. */
    void setCopy(RecoveryCopy *copy);

private:
    void refresh();

    QPointer<RecoveryCopy> m_copy;
};
