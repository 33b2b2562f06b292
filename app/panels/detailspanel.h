// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QList>
#include <QModelIndexList>
#include <QPersistentModelIndex>
#include <QSet>
#include <QWidget>

class DetailsForm;
class DiagramSession;
class QPushButton;
class QScrollArea;
class TreeItem;

/**
 * The attributes of the selected subjects. What is changed here becomes theirs when the user
 * applies it, in one step of the undo history, and until then can be reverted. Only what was
 * changed here is applied: the rest stays as it is by then, what differs between several subjects
 * included.
 */
class DetailsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit DetailsPanel(DiagramSession *session, QWidget *parent = nullptr);

    /** Shows the subject at @p index, unless it is shown together with others, or changes to it
     * wait to be applied here. */
    void showSubject(const QModelIndex &index);
    /** Shows the subjects at @p indexes together, unless changes to them wait to be applied here.
     */
    void showSubjects(const QModelIndexList &indexes);
    /** Lets the user begin to type. */
    void focusTitle();

    QSize sizeHint() const override;

public Q_SLOTS:
    /** Gives the subjects what is entered. */
    void apply();
    /** Shows the subjects as they are. */
    void revert();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildLayout();
    void showTexts();
    void showFacts();
    void setChanged(bool changed);
    QModelIndexList living() const;
    QSet<QString> differing(const QModelIndexList &indexes) const;
    void editStyle();

    DiagramSession *m_session;
    QList<QPersistentModelIndex> m_indexes;
    QJsonObject m_shown;   ///< what the fields said when they were filled
    QSet<QString> m_mixed; ///< the attributes that are not the same in all subjects
    bool m_isChanged = false;
    QScrollArea *m_scroll;
    DetailsForm *m_form;
    QPushButton *m_apply;
    QPushButton *m_revert;
};
