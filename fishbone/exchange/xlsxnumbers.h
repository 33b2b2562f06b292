// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QVector>

/** The numbers in the cells of a workbook as they are shown: by the style of a cell a number is a
 * date, a percentage or just a number. */
class XlsxNumbers
{
public:
    /** Has days counted from 1904 on, as some workbooks do, instead of from 1900. */
    void setSince1904(bool isSince1904) { m_isSince1904 = isSince1904; }
    /** Defines the number form @p id; most have none and are known by their ids. */
    void addForm(int id, const QString &form) { m_forms.insert(id, form); }
    /** Adds the next style of cells, which has the number form @p id. */
    void addStyle(int id);

    /** @p value in a cell of the style @p style: a date in the form of ISO, a percentage with its
     * sign; anything else as it is. */
    QString text(const QString &value, int style) const;

private:
    enum class Kind { Plain, Date, Percent };

    QHash<int, QString> m_forms;
    QVector<Kind> m_styles;
    bool m_isSince1904 = false;
};
