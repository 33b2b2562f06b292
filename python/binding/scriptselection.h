// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <python/binding/scriptsubject.h>

#include <QList>

class FishEditor;

/** What is selected in an editor, as a script has it. */
class ScriptSelection
{
public:
    /** The selected subjects in the order of the document. */
    static QList<ScriptSubject> of(FishEditor *editor);
    /** Selects @p subjects, as far as they have bones, and nothing else. */
    static void select(FishEditor *editor, const QList<ScriptSubject> &subjects);
};
