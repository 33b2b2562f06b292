// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

class FishInfo;
class FishModel;
class SelectionHold;
class TreeItem;

/**
 * A subject that is out of the model, owned by a command: a node with all below it, or a head with
 * its whole document. It goes back as it came out.
 */
class HeldSubject
{
public:
    HeldSubject();
    HeldSubject(HeldSubject &&other) noexcept;
    HeldSubject &operator=(HeldSubject &&other) noexcept;
    /** Deletes what is held. */
    ~HeldSubject();

    bool isEmpty() const { return !m_item && !m_document; }
    /** The node, also of a held document; null when nothing is held. */
    TreeItem *item() const;

    /** Takes over a node that is in no list. */
    void adopt(TreeItem *item);
    /** Takes over a node that is in no list as the head of a new document. */
    void adoptHead(TreeItem *item);
    /** Gives the node up without deleting it. */
    void release();

    /**
     * Takes @p subject out of @p model, and deletes its spears; @p hold keeps the selection that
     * goes with them. False, with nothing changed, when the model does not have it or refuses.
     */
    bool take(FishModel &model, TreeItem *subject, SelectionHold &hold);
    /**
     * Puts what is held into @p row below @p parent, or, for a document and without a parent, of
     * the top level; a row past the end is the end. False, still holding it, when it cannot go
     * there.
     */
    bool putBack(FishModel &model, TreeItem *parent, int row);

private:
    std::unique_ptr<TreeItem> m_item;
    std::unique_ptr<FishInfo> m_document;
};
