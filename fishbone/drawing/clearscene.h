// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/describedpicture.h>

#include <memory>
#include <vector>

class ClearLook;
class QGraphicsScene;
class SpearItem;

/** What a scene shows of a diagram in the clear look: as it stands there, with what is selected and
 * pointed at, and without the buttons of bones. */
class ClearScene : public DescribedPicture
{
public:
    /** That of @p scene, which covers @p bounds and stays as it is. Null when it shows anything
     * else, other items beside such a diagram or on it included. Linear, without recursion. */
    static std::unique_ptr<ClearScene> of(const QGraphicsScene &scene, const QRectF &bounds);

    QRectF bounds() const override { return m_bounds; }
    QString family() const override;
    QStringList icons() const override;
    QStringList categories() const override;
    int count() const override { return int(m_spears.size()); }
    bool describe(PictureSink &sink) const override;

private:
    /** A bone, and which one it grows on. */
    struct Part
    {
        const SpearItem *spear;
        int parent;
        int level;
    };

    ClearScene(const SpearItem *head, const QRectF &bounds);
    bool collect(const SpearItem *head);

    const ClearLook *m_look;
    QRectF m_bounds;
    std::vector<Part> m_spears;
};
