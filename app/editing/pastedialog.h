// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/pastednotes.h>

#include <QDialog>

class QComboBox;
class QTreeWidget;

/** Shows what would become of a text that can be taken for several things, and lets the user say
 * what it is. */
class PasteDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PasteDialog(const QString &text, QWidget *parent = nullptr);

    /** What the text shall be taken for. */
    PastedNotes::Kind kind() const;

private:
    void showPreview();

    const QString m_text;
    QComboBox *m_kind;
    QTreeWidget *m_preview;
};
