// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QDialog>
#include <QModelIndexList>

#include <memory>

class QAbstractItemModel;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

/**
 * A dialog that searches one column of an item model for a text and keeps the matches.
 *
 * A host gives it a model with setModel() and reads matches(); the dialog itself shows nothing but
 * the warning that nothing was found. A host that shows more puts it into the results area, and
 * listens to the controls, which belong to the dialog: when it hears of a click on findButton() or
 * of a return in searchField() the search is done. The dialog does not change the model:
 * replace() and replaceAll() end before they would. Without a model, and once the model is gone,
 * every search and replace operation does nothing.
 */
class FISHBONE_EXPORT ReplaceFindDialog : public QDialog
{
    Q_OBJECT

public:
    /** Makes a dialog without a model. */
    explicit ReplaceFindDialog(QWidget *parent = nullptr);
    ~ReplaceFindDialog() override;

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

    /**
     * Shows @p area below the controls, where it gets all the room that there is, and takes it
     * over. The one that was there before is deleted; null leaves none.
     */
    void setResultsArea(QWidget *area);

    /** @name Controls, for hosts that act on them; never null
     * @{ */
    QLineEdit *searchField() const;        /**< the text to find */
    QLineEdit *replacementField() const;   /**< what it is to be replaced with */
    QCheckBox *caseBox() const;            /**< checked when upper and lower case differ */
    QComboBox *columnBox() const;          /**< the column to search */
    QPushButton *findButton() const;       /**< calls find() */
    QPushButton *replaceButton() const;    /**< calls replace() */
    QPushButton *replaceAllButton() const; /**< calls replaceAll() */
    /** @} */

    /** As find(), but without a warning: whether there are matches. */
    bool search();

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
     * Takes over column @p index (0 title, 1 uuid, 2 showid, 3 pid), which empties the matches when
     * it is another one than before. Uuids and pids are compared by their ending and cannot be
     * replaced.
     */
    void enableCtrl(int index);

private:
    struct Private;

    bool eventFilter(QObject *watched, QEvent *event) override;

    const std::unique_ptr<Private> m_d;
};
