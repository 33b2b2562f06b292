// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <algorithm>
#include <atomic>

/**
 * Rows that items of a list remember as numbers, so that one can tell its row without a search.
 *
 * A number counts from the number that the first row would have, which the list keeps. A change at
 * one place of the list shifts the rows before it or those behind it, whichever are fewer, and only
 * those have wrong numbers then. They are put right when somebody asks for one of them. So changes,
 * with any questions between them, take about the time that the list itself takes to close up.
 */
namespace RowNumbers {

/** How many numbers were given anew because a question found a wrong one, in the whole process. */
extern std::atomic<qint64> renewed;

/**
 * @p count rows come at @p row into a list of @p size rows, or go when @p count is negative; @p
 * size is that without them. @p first is the number of the first row.
 */
inline void shift(int &first, int row, int count, int size)
{
    if (row < size - row)
        first = int(uint(first) - uint(count));
}

/** The number of @p row. */
inline int numberOf(int first, int row)
{
    return int(uint(first) + uint(row));
}

/**
 * The row of an item in a list of @p size rows; -1 when it is in none of them. @p number is the
 * item's, @p isAt tells whether it stands in a row, and @p setNumber stores the number of the item
 * in a row.
 */
template <typename IsAt, typename SetNumber>
int find(int first, int number, int size, IsAt isAt, SetNumber setNumber)
{
    const int hint = int(uint(number) - uint(first));
    if (hint >= 0 && hint < size && isAt(hint))
        return hint;
    // From both ends, since wrong numbers are there, and twice as far as asked for, so that asking
    // for all of them takes no longer than asking for the last.
    int found = -1;
    int depth = (size + 1) / 2;
    qint64 steps = 0;
    for (int fromEnd = 0; fromEnd < depth; ++fromEnd) {
        for (const int row : {fromEnd, size - 1 - fromEnd}) {
            ++steps;
            setNumber(row, numberOf(first, row));
            if (found < 0 && isAt(row)) {
                found = row;
                depth = std::min(depth, 2 * fromEnd + 8);
            }
        }
    }
    renewed.fetch_add(steps, std::memory_order_relaxed);
    return found;
}

} // namespace RowNumbers
