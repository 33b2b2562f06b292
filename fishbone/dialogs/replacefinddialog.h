// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QDialog>
#include <QList>
#include <QModelIndexList>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QString>

class QAbstractItemModel;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

/**
 * A dialog that searches one column of an item model for a text and keeps the matches.
 *
 * A host gives it a model with setModel() and reads matches(); the dialog itself shows nothing but
 * the warning that nothing was found. It does not change the model: replace() and replaceAll() end
 * before they would. Without a model, and once the model is gone, every search and replace
 * operation does nothing.
 */
class FISHBONE_EXPORT ReplaceFindDialog : public QDialog
{
    Q_OBJECT

public:
    /** Makes a dialog without a model. */
    explicit ReplaceFindDialog(QWidget *parent = nullptr);

    /**
     * Sets the model to search, which is not owned and may be null. Another model than the present
     * one empties the matches.
     */
    void setModel(QAbstractItemModel *model);

    /**
     * The matches of the last search, in pre-order. They follow their rows through changes of the
     * model; removed ones drop out.
     */
    QModelIndexList matches() const;

public Q_SLOTS:
    /**
     * Searches the chosen column, on all levels, unless the matches of the same search are still
     * there. Shows a warning when there are no matches.
     */
    void find();

    /**
     * Computes what the last match would read after a replacement and drops the result: the model
     * is not changed.
     */
    void replace();

    /** Changes nothing. */
    void replaceAll();

    /**
     * Takes over column \a index (0 title, 1 uuid, 2 showid, 3 pid), which empties the matches when
     * it is another one than before. Uuids and pids are compared by their ending and cannot be
     * replaced.
     */
    void enableCtrl(int index);

private:
    void showTexts();
    void buildLayout();
    void connectControls(QPushButton *find);
    QList<QPersistentModelIndex> search(const QString &text, Qt::CaseSensitivity sensitivity) const;
    bool eventFilter(QObject *watched, QEvent *event) override;

    QPointer<QAbstractItemModel> m_model;
    QList<QPersistentModelIndex> m_matches;
    QString m_lastText;
    int m_column = 0;
    bool m_lastCaseSensitive = false;
    Qt::MatchFlags m_matchFlags = Qt::MatchContains | Qt::MatchRecursive;
    QLineEdit *m_find;
    QLineEdit *m_replace;
    QCheckBox *m_caseSensitive;
    QComboBox *m_columns;
    QPushButton *m_replaceButton;
    QPushButton *m_replaceAllButton;
};
