// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishinfo.h>

#include <QPointer>

class TreeItem;

/**
 * What has changed in one model, for who asks afterwards: which documents since when, what the
 * latest signal was sent for, and how often something changed of which no signal tells.
 *
 * Stamps are numbers that grow with each change in any model of the process.
 */
class ChangeRecord
{
public:
    /** The stamp of the latest change of any model. */
    static quint64 latestStamp();
    /** The stamp of the latest change of @p document. */
    static quint64 stampOf(const FishInfo &document);

    /** Something of @p document changes, or for null the list of documents does. */
    void note(FishInfo *document);
    /** The tree changes, announced or not. */
    void noteTreeChange() { ++m_treeChanges; }
    /** Something of @p document has changed that no signal tells. */
    void noteSilentChange(FishInfo *document);
    /** A signal is about to be sent for @p item, which lives in @p document; both may be null. */
    void noteTold(const TreeItem *item, FishInfo *document);

    /** Whether anything has changed since latestStamp() was @p stamp. */
    bool isChangedSince(quint64 stamp) const { return m_lastStamp > stamp; }
    /** Whether documents came, went or moved since then. */
    bool isListChangedSince(quint64 stamp) const { return m_listStamp > stamp; }
    /** How often the tree has changed. */
    int treeChanges() const { return m_treeChanges; }
    /** How often something has changed silently. */
    quint64 silentChanges() const { return m_silentChanges; }

    /** Whether the latest signal was sent for @p item, which may be gone. */
    bool isTold(const TreeItem *item) const { return item == m_told; }
    /** Whether the tree has not changed since that signal, so that what it was sent for lives. */
    bool isTreeAsTold() const { return m_treeChanges == m_treeChangesWhenTold; }
    /** The document that the latest signal was sent for; null when it is gone. */
    FishInfo *toldDocument() const { return m_toldDocument; }

private:
    quint64 m_lastStamp = 0;
    quint64 m_listStamp = 0;
    quint64 m_silentChanges = 0;
    int m_treeChanges = 0;
    int m_treeChangesWhenTold = 0;
    const TreeItem *m_told = nullptr; ///< only compared
    QPointer<FishInfo> m_toldDocument;
};
