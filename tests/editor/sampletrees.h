// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/support/editorfixture.h>

/** The diagrams that most tests of the editor show, as documentFromText() reads them. */
namespace SampleTrees {

/** Two categories with children and one without. */
inline QString lettered()
{
    return QStringLiteral("Head[A[A1,A2],B[B1],C]");
}

/** One category with a child and one without. */
inline QString small()
{
    return QStringLiteral("Effect[Man[Training],Machine]");
}

/** The same with short titles. */
inline QString narrow()
{
    return QStringLiteral("Effect[Man[Train],Machine]");
}

/** Three levels below the head. */
inline QString deep()
{
    return QStringLiteral("Effect[Man[Train[Cost]],Machine[Wear],Method]");
}

/** The tree of the fixture's document. */
inline QString treeOf(const TestSupport::EditorFixture &fixture)
{
    return TestSupport::treeToText(*fixture.model.fishList().at(0)->treeItem()->childAtIndex(0));
}

} // namespace SampleTrees
