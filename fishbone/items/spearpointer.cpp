// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearpointer.h>

#include <fishbone/items/spearitem.h>

SpearPointer::SpearPointer(SpearItem *spear)
    : m_cell(spear ? spear->guardCell() : nullptr)
{
}
