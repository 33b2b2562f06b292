// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/app/appfixture.h>

#include <app/editing/titleeditor.h>

namespace TestSupport {

/** The field over the drawing in which a title is changed; null when none is open. */
inline TitleEditor *titleField(const AppFixture &app)
{
    const QList<TitleEditor *> fields =
        app.window.editor()->view()->viewport()->findChildren<TitleEditor *>();
    for (TitleEditor *field : fields) {
        if (field->isVisible())
            return field;
    }
    return nullptr;
}

inline QString original()
{
    return QStringLiteral("Late[People[Too few[Illness],Too new],Machines,Material[Rust]]");
}

} // namespace TestSupport
