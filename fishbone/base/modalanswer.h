// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QPointer>

#include <functional>
#include <optional>
#include <type_traits>

/**
 * Runs @p dialog modally, deletes it and returns what @p answer reads from it; nothing when it was
 * not accepted. A dialog that dies with its parent while it runs counts as not accepted, so that
 * a caller who returns on "nothing" never touches a parent that is gone.
 */
template <typename Dialog, typename Answer>
auto modalAnswer(Dialog *dialog, Answer answer)
    -> std::optional<std::decay_t<std::invoke_result_t<Answer, Dialog &>>>
{
    const QPointer<Dialog> guard(dialog);
    std::optional<std::decay_t<std::invoke_result_t<Answer, Dialog &>>> result;
    if (dialog->exec() == QDialog::Accepted)
        result = std::invoke(answer, *guard);
    delete guard.data();
    return result;
}
