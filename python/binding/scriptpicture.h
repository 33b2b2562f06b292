// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class FishEditor;
class ScriptSubject;

/** Pictures of diagrams and the look of editors, with options as a script gives them: as text. */
class ScriptPicture
{
public:
    /**
     * Draws the diagram below @p subject into @p fileName. @p options is a JSON object: "look",
     * "levels", "scale", "margin", "background" and "title", the size of a page as "width" and
     * "height" with "isPaper" for millimetres in place of pixels, and whatever
     * DiagramLook::Options::fromJson() knows. Returns why there is no picture, empty when there is.
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
