// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/fishproxymodel.h>

#include <QRegularExpression>
#include <QStringList>

#include <utility>

namespace TestSupport {

/** Counts how often it is asked for a title. */
class CountingModel : public FishModel
{
public:
    QVariant data(const QModelIndex &index, int role) const override
    {
        m_questions += role == Qt::DisplayRole ? 1 : 0;
        return FishModel::data(index, role);
    }
    int takeQuestions() { return std::exchange(m_questions, 0); }

private:
    mutable int m_questions = 0;
};

/** What the proxy should show, worked out row by row as the rule says. */
inline bool isShown(const FishProxyModel &proxy, const QModelIndex &index)
{
    if (!index.parent().isValid())
        return true;
    const QString text = index.siblingAtColumn(proxy.filterKeyColumn()).data().toString();
    if (text.contains(proxy.filterRegularExpression()))
        return true;
    for (int row = 0; row < index.model()->rowCount(index); ++row) {
        if (isShown(proxy, index.model()->index(row, 0, index)))
            return true;
    }
    return false;
}

inline QString expectedText(const FishProxyModel &proxy, const QModelIndex &parent, QChar separator)
{
    QStringList parts;
    const QAbstractItemModel &source = *proxy.sourceModel();
    for (int row = 0; row < source.rowCount(parent); ++row) {
        const QModelIndex index = source.index(row, 0, parent);
        if (!isShown(proxy, index))
            continue;
        const QString below = expectedText(proxy, index, QLatin1Char(','));
        parts.append(below.isEmpty()
                         ? index.data().toString()
                         : index.data().toString() + QLatin1Char('[') + below + QLatin1Char(']'));
    }
    return parts.join(separator);
}

inline QString expectedText(const FishProxyModel &proxy)
{
    return expectedText(proxy, QModelIndex(), QLatin1Char(';'));
}

} // namespace TestSupport
