// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>

#include <QPointer>

#include <functional>
#include <vector>

/**
 * Announces the changes of a FishModel, notes them in its ChangeRecord, and keeps what is wanted
 * meanwhile.
 */
class FISHBONE_NO_EXPORT FishModel::Announcer
{
    Q_DISABLE_COPY(Announcer)

public:
    explicit Announcer(FishModel &model)
        : m_model(model)
    {
    }

    /** Whether a change is announced and not made yet. */
    bool isAnnouncing() const { return m_announcements > 0; }

    Change inserting(const QModelIndex &parent, int first, int last);
    Change removing(const QModelIndex &parent, int first, int last);
    Change moving(const QModelIndex &from, int row, int count, const QModelIndex &to, int before);
    Change resetting();
    Change arranging();

    /** Sends dataChanged(). */
    void tellData(const QModelIndex &first, const QModelIndex &last);
    /** Sends nodeChanged(). */
    void tellNode(const QModelIndex &index);
    /** Notes a change of the document of @p item, or of the list of documents for null. */
    void note(const TreeItem *item);

    /** Does @p action now, or when the change that is announced just now is made. */
    void whenChanged(const std::function<void()> &action);

private:
    friend class FishModel::Change;

    void noteTold(const QModelIndex &index);
    void runWaiting();

    FishModel &m_model;
    int m_announcements = 0; ///< whose listeners run just now
    std::vector<std::function<void()>> m_waiting;
};

/**
 * One announced change, which is carried out while the object lives.
 *
 * Who hears of the announcement may want to change the model itself. Until the change that was
 * announced is made, the model refuses that, or no row would stand where everybody was told; loads
 * wait. The end of the object tells that the change was made, whereupon anything may happen, the
 * end of the model included; then come the loads that have waited.
 */
class FISHBONE_NO_EXPORT FishModel::Change
{
    Q_DISABLE_COPY(Change)

public:
    /** Announces with @p begin; @p end tells that it was made. */
    template <typename Begin>
    Change(FishModel &model, Begin begin, void (*end)(FishModel &))
        : m_model(&model)
        , m_end(end)
    {
        Announcer &announcer = beginTreeChange(model);
        ++announcer.m_announcements;
        begin();
        --announcer.m_announcements;
    }
    ~Change();

private:
    static Announcer &beginTreeChange(FishModel &model);

    FishModel *m_model;
    void (*m_end)(FishModel &);
};
