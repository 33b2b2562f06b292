// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QObject>
#include <QString>

#include <algorithm>
#include <memory>
#include <vector>

namespace TestSupport {

/**
 * Keeps a copy of what a model shows in one column, going by the model's announcements alone, as a
 * view does. When copy and model differ, the model did something else than it announced.
 */
class ModelFollower : public QObject
{
public:
    explicit ModelFollower(const QAbstractItemModel &model, int column = 0)
        : m_model(model)
        , m_column(column)
    {
        using Model = QAbstractItemModel;
        read();
        connect(&model, &Model::modelReset, this, [this] { read(); });
        connect(&model, &Model::layoutChanged, this, [this] { read(); });
        connect(&model, &Model::rowsInserted, this, &ModelFollower::insertRows);
        connect(&model, &Model::rowsRemoved, this, &ModelFollower::removeRows);
        connect(&model, &Model::rowsAboutToBeMoved, this, &ModelFollower::noteMove);
        connect(&model, &Model::rowsMoved, this, &ModelFollower::moveRows);
        connect(&model, &Model::dataChanged, this, &ModelFollower::changeData);
    }

    /** The copy as text, "Effect[Man[Training],Machine];Cause". */
    QString text() const { return textBelow(m_top, QLatin1Char(';')); }

    /** The model as text, in the same form. */
    QString modelText() const
    {
        Node top;
        fill(top, QModelIndex());
        return textBelow(top, QLatin1Char(';'));
    }

    int announcements() const { return m_announcements; }

private:
    struct Node
    {
        QString text;
        std::vector<std::unique_ptr<Node>> children;
    };

    void read()
    {
        ++m_announcements;
        m_top = Node();
        fill(m_top, QModelIndex());
    }

    void fill(Node &node, const QModelIndex &index) const
    {
        const int rows = m_model.rowCount(index);
        for (int row = 0; row < rows; ++row)
            node.children.push_back(make(m_model.index(row, 0, index)));
    }

    std::unique_ptr<Node> make(const QModelIndex &index) const
    {
        auto node = std::make_unique<Node>();
        if (!index.isValid())
            return node; // below the invalid index is the top level
        node->text = index.siblingAtColumn(m_column).data().toString();
        fill(*node, index);
        return node;
    }

    Node &at(const QModelIndex &index)
    {
        return index.isValid() ? *at(index.parent()).children.at(std::size_t(index.row())) : m_top;
    }

    void insertRows(const QModelIndex &parent, int first, int last)
    {
        ++m_announcements;
        Node &node = at(parent);
        for (int row = first; row <= last; ++row)
            node.children.insert(node.children.begin() + row, make(m_model.index(row, 0, parent)));
    }

    void removeRows(const QModelIndex &parent, int first, int last)
    {
        ++m_announcements;
        Node &node = at(parent);
        node.children.erase(node.children.begin() + first, node.children.begin() + last + 1);
    }

    void noteMove(const QModelIndex &from, int, int, const QModelIndex &to)
    {
        m_from = &at(from);
        m_to = &at(to);
    }

    void moveRows(const QModelIndex &, int first, int last, const QModelIndex &, int before)
    {
        ++m_announcements;
        std::vector<std::unique_ptr<Node>> moved;
        for (int row = first; row <= last; ++row)
            moved.push_back(std::move(m_from->children.at(std::size_t(row))));
        m_from->children.erase(m_from->children.begin() + first,
                               m_from->children.begin() + last + 1);
        const int row = m_from == m_to && before > last ? before - int(moved.size()) : before;
        m_to->children.insert(m_to->children.begin() + row, std::make_move_iterator(moved.begin()),
                              std::make_move_iterator(moved.end()));
    }

    void changeData(const QModelIndex &first, const QModelIndex &last)
    {
        ++m_announcements;
        for (int row = first.row(); row <= last.row(); ++row)
            at(first.sibling(row, 0)).text = first.sibling(row, m_column).data().toString();
    }

    static QString textBelow(const Node &node, QChar separator)
    {
        QStringList parts;
        for (const std::unique_ptr<Node> &child : node.children) {
            const QString below = textBelow(*child, QLatin1Char(','));
            parts.append(below.isEmpty()
                             ? child->text
                             : child->text + QLatin1Char('[') + below + QLatin1Char(']'));
        }
        return parts.join(separator);
    }

    const QAbstractItemModel &m_model;
    int m_column;
    Node m_top;
    Node *m_from = nullptr;
    Node *m_to = nullptr;
    int m_announcements = 0;
};

} // namespace TestSupport
