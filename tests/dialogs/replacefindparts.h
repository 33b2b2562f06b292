// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/dialogs/replacefinddialog.h>
#include <tests/support/dialogchecks.h>

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>

/** The parts of the find dialog, and what it searches, as its tests use them. */
namespace ReplaceFindParts {

/** A model that counts how often it is searched and notes which texts are read from it. */
class RecordingModel : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;

    /** A search begins by asking how many documents there are. */
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        m_searches += parent.isValid() ? 0 : 1;
        return QStandardItemModel::rowCount(parent);
    }

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        const QVariant value = QStandardItemModel::data(index, role);
        if (role == Qt::DisplayRole)
            m_readTexts.append(value.toString());
        return value;
    }

    mutable int m_searches = 0;
    mutable QStringList m_readTexts;
};

inline QList<QStandardItem *> row(const char *title, const char *uuid, const char *showid,
                                  const char *pid)
{
    QList<QStandardItem *> items;
    for (const char *const text : {title, uuid, showid, pid})
        items.append(new QStandardItem(QString::fromUtf8(text)));
    return items;
}

/** Two documents: Effect[Man[Training, man power], Machine] and Other[Manual]. */
inline void fill(QStandardItemModel &model)
{
    model.appendRow(row("Effect", "{head-01}", "100", ""));
    QStandardItem *const effect = model.item(0);
    effect->appendRow(row("Man", "{man-02}", "101", "{head-01}"));
    effect->appendRow(row("Machine", "{machine-03}", "102", "{head-01}"));
    effect->child(0)->appendRow(row("Training", "{train-04}", "201", "{man-02}"));
    effect->child(0)->appendRow(row("man power", "{power-05}", "202", "{man-02}"));
    model.appendRow(row("Other", "{other-06}", "110", ""));
    model.item(1)->appendRow(row("Manual", "{manual-07}", "301", "{other-06}"));
}

inline void fill(RecordingModel &model)
{
    fill(static_cast<QStandardItemModel &>(model));
    model.m_searches = 0;
}

inline QLineEdit *edit(const ReplaceFindDialog &dialog, int row)
{
    const auto *const layout = qobject_cast<QGridLayout *>(dialog.layout());
    return qobject_cast<QLineEdit *>(layout->itemAtPosition(row, 1)->widget());
}

inline QLineEdit *findEdit(const ReplaceFindDialog &dialog)
{
    return edit(dialog, 0);
}

inline QLineEdit *replaceEdit(const ReplaceFindDialog &dialog)
{
    return edit(dialog, 1);
}

inline QComboBox *columnCombo(const ReplaceFindDialog &dialog)
{
    return dialog.findChild<QComboBox *>();
}

inline QPushButton *button(const ReplaceFindDialog &dialog, const char *text)
{
    return TestSupport::buttonWithText<QPushButton>(dialog, QLatin1String(text));
}

inline void click(const ReplaceFindDialog &dialog, const char *text)
{
    QTest::mouseClick(button(dialog, text), Qt::LeftButton);
}

inline void search(const ReplaceFindDialog &dialog, const QString &text)
{
    findEdit(dialog)->setText(text);
    click(dialog, "Find");
}

inline QString titles(const QModelIndexList &indexes)
{
    QStringList texts;
    for (const QModelIndex &index : indexes)
        texts.append(index.sibling(index.row(), 0).data().toString());
    return texts.join(QLatin1Char('|'));
}

/** Everything a model holds, to see that it has not changed. */
inline QString content(const QAbstractItemModel &model)
{
    QStringList texts;
    const QModelIndexList all = model.match(model.index(0, 0), Qt::DisplayRole, QString(), -1,
                                            Qt::MatchContains | Qt::MatchRecursive);
    for (const QModelIndex &index : all) {
        for (int column = 0; column < model.columnCount(); ++column)
            texts.append(index.sibling(index.row(), column).data().toString());
    }
    return texts.join(QLatin1Char('|'));
}

} // namespace ReplaceFindParts
