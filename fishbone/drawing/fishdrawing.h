// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>

#include <fishbone/drawing/diagramlook.h>
#include <fishbone/drawing/fishlayout.h>

class QGraphicsScene;

/** How one editor draws: its look, and the state of its drawing after the last layout. */
class FishDrawing
{
public:
    FishDrawing();

    DiagramLook::Kind kind() const { return m_kind; }
    const DiagramLook::Options &options() const { return m_options; }
    /** Draws in a look from the next layout on. */
    void choose(DiagramLook::Kind kind, const DiagramLook::Options &options);
    /** Draws in a look of the caller's. */
    void setLook(std::shared_ptr<const DrawingLook> look);

    /** A layout of what is below @p head, for one pass. */
    FishLayout layout(SpearItem *head) const { return FishLayout(head, m_look); }
    /** Lays out what is below @p head, as far as that is needed. */
    void update(SpearItem *head);

    /** Whether @p scene holds what is below @p head as it was laid out last, and nothing else.
     * Constant time. */
    bool isAlone(const QGraphicsScene &scene, const SpearItem *head) const;

private:
    DiagramLook::Kind m_kind = DiagramLook::Classic;
    DiagramLook::Options m_options;
    std::shared_ptr<const DrawingLook> m_look;
    SettledDrawing m_settled;
    std::optional<FishLayout> m_layout; ///< the last one, of use while the tree is the same
    const SpearItem *m_head = nullptr;  ///< that was laid out last; only compared
    quint64 m_treeChanges = 0;          ///< as SpearItem counted them then
    int m_items = 0;                    ///< spears and companions then
};
