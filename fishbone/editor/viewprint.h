// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

class QGraphicsView;
class QWidget;

/** Prints what @p view shows on one page, after the print dialog over @p window. */
void printView(QGraphicsView &view, QWidget *window);
