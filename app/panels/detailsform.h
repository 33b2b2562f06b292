// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

class DetailsField;
class QLabel;
class QPushButton;
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
    /** Lets the user begin to type a title, or what can be changed of several. */
    void begin();

Q_SIGNALS:
    /** The user changed a field. */
    void changed();
    /** The user pressed Return. */
    void entered();
    /** The user wants to change the style. */
    void editStyleWanted();

private:
    void addRows();
    void watch(DetailsField *field);
    bool isTaken(const DetailsField &field) const;
    QString severalFor(const DetailsField &field) const;
    void showStatusIcon();

    QSet<QString> m_mixed;
    QSet<QString> m_touched;
    int m_count = 1;
    QLabel *m_statusIcon;
    QVector<DetailsField *> m_fields; ///< in the order of their rows
    QPushButton *m_style;
    QLabel *m_facts;
};
