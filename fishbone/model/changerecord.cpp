// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/changerecord.h>

#include <fishbone/model/fishinfo_p.h>

namespace {

quint64 latest = 0;

} // namespace

quint64 ChangeRecord::latestStamp()
{
    return latest;
}

quint64 ChangeRecord::stampOf(const FishInfo &document)
{
    return document.m_d->changeStamp;
}

void ChangeRecord::note(FishInfo *document)
{
    m_lastStamp = ++latest;
    if (document)
        document->m_d->changeStamp = latest;
    else
        m_listStamp = latest;
}

void ChangeRecord::noteSilentChange(FishInfo *document)
{
    ++m_silentChanges;
    note(document);
}

void ChangeRecord::noteTold(const TreeItem *item, FishInfo *document)
{
    m_told = item;
    m_toldDocument = document;
    m_treeChangesWhenTold = m_treeChanges;
    if (document)
        note(document);
}
