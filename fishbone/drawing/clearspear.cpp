// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/drawing/clearspear.h>

#include <typeinfo>

#include <fishbone/items/spearitem.h>

namespace {
constexpr qreal boxMargin = 3; ///< around a title without a box of its own

bool isSame(const std::unique_ptr<const ClearFrame> &a, const std::unique_ptr<const ClearFrame> &b)
{
    return a && b ? *a == *b : !a && !b;
}
} // namespace

const ClearSpear *ClearSpear::of(const SpearItem &spear)
{
    // Asked several times a bone: comparing types is all that is needed of a last class.
    const SpearLookData *const data = spear.lookData();
    return data && typeid(*data) == typeid(ClearSpear) ? static_cast<const ClearSpear *>(data)
                                                       : nullptr;
}

bool ClearSpear::operator==(const ClearSpear &other) const
{
    return bone.text == other.bone.text && bone.isFilled == other.bone.isFilled &&
           bone.side == other.bone.side && bone.level == other.bone.level &&
           bone.category == other.bone.category && bone.line == other.bone.line &&
           bone.textRect == other.bone.textRect && bone.box == other.bone.box &&
           bone.status == other.bone.status && bone.votes == other.bone.votes &&
           bone.votesText == other.bone.votesText && bone.link == other.bone.link &&
           bone.badge == other.bone.badge && bone.button == other.bone.button &&
           extent == other.extent && hidden == other.hidden &&
           bone.badgeText == other.bone.badgeText && ink == other.ink && isSame(frame, other.frame);
}

QRectF ClearFrame::rect() const
{
    QRectF rect = head.boundingRect() | tail.boundingRect() | backbone.boundingRect();
    for (const ClearLegend::Entry &entry : legend)
        rect |= entry.symbol | entry.textRect;
    return rect;
}

QRectF ClearSpear::box() const
{
    if (bone.level == 1)
        return bone.box;
    const QRectF title = bone.votes.isNull() ? bone.textRect : bone.textRect | bone.votes;
    return title.adjusted(-boxMargin, -boxMargin / 2, boxMargin, boxMargin / 2);
}
