// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QMetaType>

#include <functional>
#include <memory>

/** Makes one of the dialogs that a test goes through. */
using MakeDialog = std::function<std::unique_ptr<QDialog>()>;
Q_DECLARE_METATYPE(MakeDialog)
