// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>

#include <QPointer>

/**
 * One announced change of a FishModel, which is carried out while the object lives.
 *
 * Who hears of the announcement may want to change the model itself. Until the change that was
 * announced is made, the model refuses that, or no row would stand where everybody was told; loads
 * wait. The end of the object tells that the change was made, whereupon anything may happen, the
 * end of the model included; then come the loads that have waited.
 */
class FishModel::Change
{
    Q_DISABLE_COPY(Change)

public:
    /** Announces with @p begin; @p end tells that it was made. */
    template <typename Begin>
    Change(FishModel *model, Begin begin, void (*end)(FishModel &))
        : m_model(model)
        , m_end(end)
    {
        ++model->m_changes;
        ++model->m_announcements;
        begin();
        --model->m_announcements;
    }
    ~Change()
    {
        const QPointer<FishModel> alive(m_model);
        m_end(*m_model);
        if (alive)
            alive->runWaiting();
    }

private:
    FishModel *m_model;
    void (*m_end)(FishModel &);
};
