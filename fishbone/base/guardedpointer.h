// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

/**
 * What an object that GuardedPointer points at keeps as a member: made when it is first asked for,
 * and cleared with the object.
 */
template <typename Object>
class GuardCell
{
public:
    /** A cell that nobody shares yet. */
    GuardCell() = default;
    GuardCell(const GuardCell &) = delete;
    GuardCell &operator=(const GuardCell &) = delete;
    ~GuardCell() { clear(); }

    /** The cell for pointers at @p object, whose member this is and which owns it with them. */
    std::shared_ptr<Object *> shared(Object *object)
    {
        if (!m_cell)
            m_cell = std::make_shared<Object *>(object);
        return m_cell;
    }
    /** All pointers are null from now on. For a destructor that must not be seen half done. */
    void clear()
    {
        if (m_cell)
            *m_cell = nullptr;
    }

private:
    std::shared_ptr<Object *> m_cell;
};

/**
 * A pointer that turns null when its object is destroyed, for classes that are no QObjects. The
 * object gives out its cell with guardCell().
 */
template <typename Object>
class GuardedPointer
{
public:
    /** Points at nothing. */
    GuardedPointer() = default;
    /** Guards @p object, which may be null. */
    GuardedPointer(Object *object)
        : m_cell(object ? object->guardCell() : nullptr)
    {
    }

    /** The object, or null when there is none (any more). */
    Object *get() const { return m_cell ? *m_cell : nullptr; }

private:
    std::shared_ptr<Object *> m_cell;
};
