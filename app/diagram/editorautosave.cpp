// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/editorautosave.h>

#include <fishbone/editor/fisheditor.h>

#include <QTimer>

void endAutosave(FishEditor &editor)
{
    const QList<QTimer *> timers =
        editor.findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTimer *timer : timers)
        timer->disconnect(SIGNAL(timeout()), &editor);
}
