// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodelpart.h>

#include <QIcon>
#include <QVariant>

/** What views show of the nodes of a FishModel. */
class FISHBONE_NO_EXPORT FishModel::Presentation : Part
{
public:
    static constexpr int columns = 5;

    explicit Presentation(FishModel &model)
        : Part(model)
    {
    }

    FISH_MODEL_TYPE type() const { return m_type; }
    void setType(FISH_MODEL_TYPE type) { m_type = type; }
    /** The title of a column; nothing for one that there is not. */
    static QVariant header(int column);
    QVariant data(const QModelIndex &index, int role) const;

private:
    QString headText(const TreeItem &head) const;

    FISH_MODEL_TYPE m_type = FISH_MODEL_NORMAL;
    mutable QIcon m_noParentIcon;
};
