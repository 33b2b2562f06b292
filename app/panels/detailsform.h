// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;
class QToolButton;
class StringListEditor;
class TreeItem;

/** The fields for the attributes of a subject, or of several at once: those in which these differ
 * say so and are empty. Attributes have the keys of the diagram format. */
class DetailsForm : public QWidget
{
    Q_OBJECT

public:
    explicit DetailsForm(QWidget *parent = nullptr);

    /** Shows the texts, but for those of the labels, in the language of now. */
    void showTexts();
    /** Shows @p subject, which is one of @p count; of the attributes @p mixed that the others
     * differ in. */
    void fill(const TreeItem &subject, const QSet<QString> &mixed = {}, int count = 1);
    /** Puts what the fields say into @p target. Of attributes that are mixed, what touched() tells
     * alone is of any use. */
    void store(TreeItem &target) const;
    /** The attributes whose fields were changed since. */
    QSet<QString> touched() const;

    /** What of the subject cannot be changed. */
    void setFacts(const QStringList &facts);
    /** The link as it is typed. */
    QString link() const;
    /** Lets the user begin to type a title, or what can be changed of several. */
    void begin();

Q_SIGNALS:
    /** The user changed a field. */
    void changed();
    /** The user pressed Return. */
    void entered();
    /** The user wants to follow the link. */
    void openLinkWanted();
    /** The user wants to change the style. */
    void editStyleWanted();

private:
    void nameFields();
    void setUpFields();
    void addRows(QFormLayout &rows);
    void watchFields();
    QVector<QSpinBox *> allNumbers() const;
    bool isMixed(const QWidget *field) const;
    void noteChange(const QWidget *field);
    void fillPlannedEnd(qint64 date);
    void choose(QComboBox *field, int value) const;
    qint64 plannedEnd(qint64 before) const;
    void showStatusIcon();

    QHash<const QWidget *, QString> m_keys; ///< of what the fields are about
    QSet<QString> m_mixed;
    QSet<QString> m_touched;
    int m_count = 1;
    QLineEdit *m_title;
    QLineEdit *m_number;
    QPlainTextEdit *m_detail;
    QComboBox *m_status;
    QComboBox *m_verdict;
    QSpinBox *m_votes;
    QSpinBox *m_progress;
    QLabel *m_statusIcon;
    QVector<QSpinBox *> m_numbers; ///< in the order of their list
    QLineEdit *m_managerName;
    QLineEdit *m_managerId;
    StringListEditor *m_followers;
    QCheckBox *m_hasPlannedEnd;
    QDateEdit *m_plannedEnd;
    QLineEdit *m_link;
    QToolButton *m_openLink;
    QPushButton *m_style;
    QLabel *m_facts;
};
