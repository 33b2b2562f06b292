// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

class FishEditor;
class ScriptSubject;

/** Pictures of diagrams and the look of editors, with options as a script gives them: as text. */
class ScriptPicture
{
public:
    /** The names of the looks. */
    static QStringList lookNames();
    /** The names of the usual pages. */
    static QStringList pageNames();
    /** Whether @p text tells a page, by its name or its size. */
    static bool isPage(const QString &text);

    /**
     * Draws the diagram below @p subject into @p fileName, whose ending tells the format: a slide,
     * or what DiagramPicture writes. @p options is a JSON object: "look", "page", "arrange" for a
     * drawing that is arranged for the page or else a wide screen, "levels", "scale", "margin",
     * "background", "title", and what DiagramLook::Options::fromJson() knows. Returns why there is
     * no picture, empty when there is.
     */
    static QString write(const ScriptSubject &subject, const QString &fileName,
                         const QString &options);
    /** Has @p editor draw in the look and with the options of such an object. False, with nothing
     * changed, when there is no such look. */
    static bool setLook(FishEditor *editor, const QString &options);
    /** Has the classic look draw with the style in @p json, the contents of a file of a global
     * style. Needs a QGuiApplication. */
    static void setGlobalStyle(const QString &json);
};
