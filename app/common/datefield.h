// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateEdit>
#include <QString>

/**
 * A field for a date, which shows it as lists and reports do: in the short form of the language.
 *
 * A date that is typed from its beginning, after Tab or with all selected, is taken as it is typed
 * (the toolkit's field reads each number on its own, and makes another date of it): in the order of
 * the language or as 2026-03-04, with any marks between the numbers and a year of two or four
 * digits. What is no date yet leaves the one before.
 */
class DateField : public QDateEdit
{
    Q_OBJECT

public:
    explicit DateField(QWidget *parent = nullptr);

    /** Shows dates, those in its calendar included, in the language of now. */
    void followLanguage();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool isBeginning() const;
    QDate read(const QString &text) const;
    void showTyped(const QString &text);
    void endTyping();

    bool m_isUntouched = false; ///< since the focus came by a key
    QString m_typed;            ///< empty while single numbers are edited
};
