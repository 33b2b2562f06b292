// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

/** What every page with a drawing has besides the drawing. */
namespace HtmlParts {

extern const char style[];  ///< how it looks
extern const char script[]; ///< what it does; knows no texts of its own

} // namespace HtmlParts
