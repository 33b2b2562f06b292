// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QJsonObject>
#include <QList>
#include <QObject>

class FishEditor;
class QPalette;

/**
 * Makes the canvases and their bones suit the palette: paper with the global style in a light one,
 * and a dark canvas with a style of its own in a dark one. Both styles can be edited; the user's
 * are kept in the user's data folder, and stand in place of those beside the program.
 */
class CanvasTheme : public QObject
{
    Q_OBJECT

public:
    explicit CanvasTheme(QObject *parent = nullptr);

    /** Gives the canvas of @p editor, as long as that lives, the look of the others. */
    void add(FishEditor *editor);

    /** Shows the canvas that suits @p palette. */
    void follow(const QPalette &palette);

    bool isDark() const { return m_isDark; }
    /** The colour of the canvas as it is shown. */
    QColor canvasColor() const { return canvasColor(m_isDark); }
    /** The colour of a dark canvas, or of a light one. */
    static QColor canvasColor(bool dark);

    /** Lets the user edit the style of all bones without a style of their own, and keeps it. */
    void editStyle(QWidget *parent);

    /**
     * Gives bones without a style of their own the one for paper while it lives, whatever the
     * palette: for what is laid out and painted meanwhile to print or export it. The canvases stay
     * as they are, and nothing of them may be painted before it is gone.
     */
    class Paper
    {
        Q_DISABLE_COPY(Paper)

    public:
        explicit Paper(const CanvasTheme *theme);
        ~Paper();

    private:
        const CanvasTheme *m_theme;
    };

Q_SIGNALS:
    /** The canvases are shown anew, perhaps as dark ones or no longer so. */
    void shown();
    /** Something for the status bar. */
    void message(const QString &text);

private:
    void show(bool dark);
    void show(FishEditor &editor) const;
    void storeStyle();

    QList<FishEditor *> m_editors;
    QJsonObject m_light;
    QJsonObject m_dark;
    bool m_isDark = false;
};
