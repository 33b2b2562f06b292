// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/rememberedroot.h>

#include <fishbone/editor/shownsubject.h>
#include <fishbone/model/fishmodel.h>

void RememberedRoot::remember(const ShownSubject &shown)
{
    m_document = shown.document();
    m_subject = shown.subjectOf(shown.index());
    m_isHead = !shown.index().parent().isValid();
}

const TreeItem *RememberedRoot::subjectIn(const FishModel &model) const
{
    return model.contains(m_subject) ? m_subject : nullptr;
}

QModelIndex RememberedRoot::indexIn(const FishModel *model) const
{
    const int row = model && m_document ? model->fishRow(m_document) : -1;
    if (row < 0)
        return {};
    return m_isHead ? model->index(row, 0) : model->indexFromItem(subjectIn(*model));
}
