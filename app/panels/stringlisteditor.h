// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QWidget>

class QLineEdit;
class QListWidget;
class QToolButton;

/** A list of texts to which the user adds, in which they are changed, and from which they go. */
class StringListEditor : public QWidget
{
    Q_OBJECT

public:
    explicit StringListEditor(QWidget *parent = nullptr);

    /** What the controls are called for those who do not see them: the list, and one of it. */
    void setNames(const QString &list, const QString &entry);

    /** The list, and at its end what is typed and not added yet. */
    QStringList texts() const;
    /** Shows @p texts, without a signal. */
    void setTexts(const QStringList &texts);

Q_SIGNALS:
    /** The user changed the list. */
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void append(const QString &text);
    void add();
    void remove();
    void updateButtons();

    QListWidget *m_list;
    QLineEdit *m_text;
    QToolButton *m_add;
    QToolButton *m_remove;
};
