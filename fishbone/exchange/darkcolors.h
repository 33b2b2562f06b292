// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <vector>

class ClearPicture;

/**
 * What the elements of a picture look like in the dark, for a page that is light or dark as its
 * reader has it: style rules, and for each element, in the order in which the picture is described,
 * the class that they are for.
 */
class DarkColors
{
public:
    /** The way from @p light to @p dark, which differ in nothing but their colours. Linear. */
    DarkColors(const ClearPicture &light, const ClearPicture &dark);

    /** The class of the element at @p place; empty for one that looks the same in the dark. */
    QByteArray classOf(int place) const;
    /** A rule for each class. */
    const QByteArray &rules() const { return m_rules; }

private:
    std::vector<int> m_places; ///< of the classes in m_classes, for each element; -1 for none
    QByteArrayList m_classes;
    QByteArray m_rules;
};
