// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/common/language.h>

#include <QObject>
#include <QString>

class QWidget;
class TreeItem;

/** A row of the details: what shows an attribute of a subject, or of several, and takes it. */
class DetailsField : public QObject
{
    Q_OBJECT

public:
    /** Whose value it is when several subjects are shown. */
    enum class Sharing {
        Common, ///< it may be given to all of them
        Own     ///< each has its own, which stays
    };

    /** For the attribute @p key of the diagram format, called @p label. */
    DetailsField(const char *key, Language::Text label, Sharing sharing, QObject *parent);

    QString key() const { return m_key; }
    /** What stands before the row, in the language of now. */
    const Language::Text &label() const { return m_label; }
    Sharing sharing() const { return m_sharing; }

    /** What stands in the row. */
    virtual QWidget *widget() const = 0;
    /** Shows the value of @p subject, or none when others have another one. */
    virtual void fill(const TreeItem &subject, bool isMixed) = 0;
    /** Gives @p target what is entered. */
    virtual void store(TreeItem &target) const = 0;
    /** Whether there is a value that can be stored. */
    virtual bool hasValue() const { return true; }
    /** Shows its texts in the language of now, and @p several in the place of a value. */
    virtual void showTexts(const QString &several) = 0;

Q_SIGNALS:
    /** The user changed it. */
    void changed();
    /** The user pressed Return in it. */
    void entered();

private:
    QString m_key;
    Language::Text m_label;
    Sharing m_sharing;
};
