// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>
#include <memory>

#include <fishbone/items/spearitem.h>

namespace BoneParts {

const double degree = std::acos(-1.0) / 180;
const double cos70 = std::cos(70 * degree);
const double sin70 = std::sin(70 * degree);
constexpr double widestBackboneAngle = 0.002181661564992912;

/** A spear that nothing shows. */
inline std::unique_ptr<SpearItem> newSpear(const QString &title = QStringLiteral("Cause"))
{
    return std::make_unique<SpearItem>(title, 0, 20.0);
}

/** The pictures of the button, as the resources name them. */
inline QString expandFile()
{
    return QStringLiteral(":/fishboneDiagram/expand.svg");
}

inline QString contractFile()
{
    return QStringLiteral(":/fishboneDiagram/contract.svg");
}

/** Whether two lengths agree to a billionth of a unit. */
inline bool alike(double a, double b)
{
    return std::abs(a - b) < 1e-9;
}

inline bool alike(const QPointF &a, const QPointF &b)
{
    return alike(a.x(), b.x()) && alike(a.y(), b.y());
}

/**
 * A spear directly below a header; their lines are the test's business. No subjects, so the global
 * style.
 */
struct MainBone
{
    explicit MainBone(int direction, const QString &text = QStringLiteral("Cause"))
        : head(QStringLiteral("Head"), 0, 20.0)
    {
        spear = std::make_unique<SpearItem>(text, direction, 20.0).release();
        spear->setParentItem(&head);
    }

    SpearItem head;
    SpearItem *spear = nullptr;
};

/** A spear below a spear of some direction below a header. */
struct DeeperBone
{
    explicit DeeperBone(int parentDirection, int direction)
        : head(QStringLiteral("Head"), 0, 20.0)
    {
        parent =
            std::make_unique<SpearItem>(QStringLiteral("Parent"), parentDirection, 20.0).release();
        parent->setParentItem(&head);
        spear = std::make_unique<SpearItem>(QStringLiteral("Cause"), direction, 20.0).release();
        spear->setParentItem(parent);
    }

    SpearItem head;
    SpearItem *parent = nullptr;
    SpearItem *spear = nullptr;
};

} // namespace BoneParts
