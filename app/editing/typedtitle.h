// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class FishEditor;
class QKeyEvent;

/**
 * Notices when the user begins to type on the drawing, with the keyboard or an input method. Keys
 * that are shortcuts of the drawing are none of that, also while their action is disabled.
 */
class TypedTitle : public QObject
{
    Q_OBJECT

public:
    explicit TypedTitle(FishEditor *editor, QObject *parent = nullptr);

Q_SIGNALS:
    /** @p text was typed while the drawing had the focus. */
    void typed(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString typedText(const QKeyEvent &event) const;
    void enableInputMethod();

    FishEditor *m_editor;
};
