// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <vector>

#include <QJsonObject>
#include <QString>

class SpearItem;
class TreeItem;

/**
 * Every public way to change what a drawing is made from, by name: subjects, styles, spears and
 * companions. None of them lays out.
 */
namespace AnySetter {

/** What a setter is given. The same values change two drawings alike. */
struct Choice
{
    quint32 number = 0;  ///< the setter picks its values by it
    quint32 another = 0; ///< where one is not enough
};

struct Setter
{
    const char *name;
    std::function<void(SpearItem &, const Choice &)> change;
};

const std::vector<Setter> &all();

/** Undoes what the setters do to what all drawings share. */
void restoreShared();

} // namespace AnySetter
