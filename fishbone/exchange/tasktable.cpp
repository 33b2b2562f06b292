// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/tasktable.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/taskcells.h>
#include <fishbone/exchange/taskheadings.h>
#include <fishbone/exchange/taskrownames.h>

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <limits>

namespace {

using Role = TableMapping::Role;
using Kind = ExchangeReport::Kind;
using TaskTable::Row;

constexpr int noParent = -1;

/** A subject that is to be made. */
struct Node
{
    std::size_t row;
    QString title;
    int parent = noParent; ///< another node
    bool isWhole = true;   ///< whether the cells of the row are its own
};

/** Makes subjects of the rows of a table. */
class TableReader
{
public:
    TableReader(const std::vector<Row> &rows, std::size_t header, const TableMapping &mapping,
                TaskTable::Texts texts, ImportedTree &tree)
        : m_rows(rows)
        , m_first(header + 1)
        , m_mapping(mapping)
        , m_tree(tree)
        , m_cells(rows, m_first, mapping, texts, tree)
    {
    }

    bool read()
    {
        noteRepeatedUuids();
        makeNodes();
        return addSubjects();
    }

private:
    QString cell(std::size_t row, int column) const { return m_cells.text(m_rows[row], column); }

    /** Finds out what makes the tree, and makes the nodes with it. */
    void makeNodes()
    {
        if (m_mapping.roles.contains(Role::Path)) {
            makePathNodes();
            return;
        }
        const int title = m_mapping.roles.indexOf(Role::Title);
        for (std::size_t row = m_first; row < m_rows.size(); ++row) {
            if (m_rows[row].cells == m_mapping.headings)
                m_tree.note(Kind::Appearance, DiagramExchange::tr("headings that are repeated"),
                            m_rows[row].line);
            else
                m_nodes.push_back({row, cell(row, title)});
        }
        const int level = m_mapping.roles.indexOf(Role::Level);
        const int outline = outlineColumn();
        if (hasParents())
            linkByParents();
        else if (level >= 0)
            linkByRanks([&](const Node &node) { return levelOf(node, level); });
        else if (outline >= 0)
            linkByRanks([&](const Node &node) {
                return int(cell(node.row, outline).trimmed().count(QLatin1Char('.')));
            });
        else if (isIndented())
            linkByIndentation();
    }

    bool hasParents() const
    {
        const QList<int> parents = m_cells.columnsOf(Role::Parent);
        return std::any_of(parents.cbegin(), parents.cend(), [this](int column) {
            return std::any_of(m_nodes.cbegin(), m_nodes.cend(),
                               [&](const Node &node) { return !cell(node.row, column).isEmpty(); });
        });
    }

    /** A column with numbers such as 1.2: one that is called so, or one of ids with such values. */
    int outlineColumn() const
    {
        static const QRegularExpression form(QStringLiteral("^\\s*\\d+(\\.\\d+)+\\s*$"));
        const int named = m_mapping.roles.indexOf(Role::Outline);
        if (named >= 0)
            return named;
        const QList<int> ids = m_cells.columnsOf(Role::Id);
        for (const int column : ids) {
            if (std::any_of(m_nodes.cbegin(), m_nodes.cend(), [&](const Node &node) {
                    return form.match(cell(node.row, column)).hasMatch();
                }))
                return column;
        }
        return -1;
    }

    /** The level of a row; remarks, which have none, lie below the row that they follow. */
    int levelOf(const Node &node, int column) const
    {
        const QString level = cell(node.row, column);
        const int type = m_mapping.roles.indexOf(Role::Type);
        const bool isRemark =
            level.trimmed().isEmpty() && type >= 0 && cell(node.row, type) == QLatin1String("note");
        return isRemark ? std::numeric_limits<int>::max() : levelFrom(level);
    }

    /** A level, which some spreadsheets write as 2.0. */
    static int levelFrom(const QString &text)
    {
        constexpr double deepest = 1e6;
        return int(qBound(-deepest, text.trimmed().toDouble(), deepest));
    }

    static int blanksBefore(const QString &text)
    {
        const auto end = std::find_if(text.cbegin(), text.cend(), [](QChar c) {
            return !c.isSpace() && c != QChar(u'\u3000');
        });
        return int(end - text.cbegin());
    }

    bool isIndented() const
    {
        return !m_cells.isOwn() &&
               std::any_of(m_nodes.cbegin(), m_nodes.cend(), [this](const Node &node) {
                   return m_rows[node.row].indent > 0 || blanksBefore(node.title) > 0;
               });
    }

    void linkByIndentation()
    {
        linkByRanks([this](const Node &node) {
            return m_rows[node.row].indent * 1000 + blanksBefore(node.title);
        });
        for (Node &node : m_nodes)
            node.title = node.title.trimmed();
    }

    /** Puts each node below the latest one of a lower rank. */
    template <typename Rank>
    void linkByRanks(Rank rankOf)
    {
        std::vector<std::pair<int, int>> open; ///< rank and node
        for (std::size_t i = 0; i < m_nodes.size(); ++i) {
            const int rank = rankOf(m_nodes[i]);
            while (!open.empty() && open.back().first >= rank)
                open.pop_back();
            m_nodes[i].parent = open.empty() ? noParent : open.back().second;
            open.emplace_back(rank, int(i));
        }
    }

    /** Makes a node for each title of a row that is not repeated from the row before. */
    void makePathNodes()
    {
        const QList<int> columns = m_cells.columnsOf(Role::Path);
        std::vector<int> path(std::size_t(columns.size()), noParent);
        for (std::size_t row = m_first; row < m_rows.size(); ++row) {
            int parent = noParent;
            int deepest = -1;
            for (int level = 0; level < columns.size(); ++level) {
                if (!cell(row, columns.at(level)).trimmed().isEmpty())
                    deepest = level;
            }
            for (int level = 0; level < columns.size(); ++level) {
                int &open = path[std::size_t(level)];
                const QString title = cell(row, columns.at(level)).trimmed();
                const bool isSame = open != noParent && m_nodes[std::size_t(open)].title == title;
                const bool isRepeated = level < deepest && (title.isEmpty() || isSame);
                if (!isRepeated && level <= deepest && !title.isEmpty()) {
                    m_nodes.push_back({row, title, parent, level == deepest});
                    open = int(m_nodes.size()) - 1;
                    std::fill(path.begin() + level + 1, path.end(), noParent);
                }
                parent = open == noParent ? parent : open;
                if (level >= deepest)
                    break;
            }
            if (deepest < 0)
                m_tree.note(Kind::LeftOut, m_rows[row].cells.join(QLatin1Char(' ')).simplified(),
                            m_rows[row].line);
        }
    }

    /** Notes the uuids that stand twice, of which the later ones do not count. */
    void noteRepeatedUuids()
    {
        QSet<QString> taken;
        const int column = m_mapping.roles.indexOf(Role::Uuid);
        for (std::size_t row = m_first; row < m_rows.size() && column >= 0; ++row) {
            const QString uuid = cell(row, column);
            if (taken.contains(uuid) && !uuid.isEmpty())
                m_tree.note(Kind::LeftOut,
                            DiagramExchange::tr("the uuid \"%1\" a second time").arg(uuid),
                            m_rows[row].line);
            taken.insert(uuid);
        }
    }

    void linkByParents()
    {
        for (const Role role : {Role::Uuid, Role::Id, Role::ShortId, Role::Title}) {
            const QList<int> columns = m_cells.columnsOf(role);
            for (std::size_t i = 0; i < m_nodes.size(); ++i) {
                for (const int column : columns) {
                    m_names.add(cell(m_nodes[i].row, column), int(i));
                }
            }
        }
        for (std::size_t i = 0; i < m_nodes.size(); ++i)
            findParent(int(i));
    }

    void findParent(int index)
    {
        Node &node = m_nodes[std::size_t(index)];
        const QList<int> columns = m_cells.columnsOf(Role::Parent);
        for (const int column : columns) {
            const QString reference = cell(node.row, column);
            if (reference.trimmed().isEmpty() || reference == QLatin1String("-1"))
                continue;
            const int parent = m_names.find(reference, index, node.title);
            if (parent >= 0 && node.parent == noParent)
                node.parent = parent;
            else if (parent != node.parent || parent < 0)
                m_otherParents[node.row].append(column);
        }
    }

    bool addSubjects()
    {
        struct Waiting
        {
            int node;
            int level;
        };
        std::vector<std::vector<int>> children(m_nodes.size());
        std::vector<int> tops;
        for (std::size_t i = 0; i < m_nodes.size(); ++i) {
            const int parent = m_nodes[i].parent;
            (parent == noParent ? tops : children[std::size_t(parent)]).push_back(int(i));
        }
        std::vector<Waiting> waiting;
        const auto wait = [&waiting](const std::vector<int> &nodes, int level) {
            for (auto node = nodes.crbegin(); node != nodes.crend(); ++node)
                waiting.push_back({*node, level});
        };
        std::vector<bool> isAdded(m_nodes.size(), false);
        wait(tops, 0);
        while (!waiting.empty()) {
            const Waiting next = waiting.back();
            waiting.pop_back();
            if (!addSubject(m_nodes[std::size_t(next.node)], next.level))
                return false;
            isAdded[std::size_t(next.node)] = true;
            wait(children[std::size_t(next.node)], next.level + 1);
        }
        const auto left = std::find(isAdded.cbegin(), isAdded.cend(), false);
        if (left == isAdded.cend())
            return true;
        return m_tree.fail(m_rows[m_nodes[std::size_t(left - isAdded.cbegin())].row].line,
                           DiagramExchange::tr("the subject lies below itself"));
    }

    bool addSubject(const Node &node, int level)
    {
        const Row &row = m_rows[node.row];
        TreeItem *const subject = m_tree.add(level, node.title, row.line);
        if (!subject)
            return false;
        if (!node.isWhole)
            return true;
        m_cells.apply(row, *subject);
        const QList<int> others = m_otherParents.value(node.row);
        for (const int column : others)
            m_tree.addNamedDetail(*subject, m_mapping.headings.value(column),
                                  cell(node.row, column), row.line);
        return true;
    }

    const std::vector<Row> &m_rows;
    const std::size_t m_first; ///< the first row behind the headings
    const TableMapping &m_mapping;
    ImportedTree &m_tree;
    TaskCells m_cells;
    std::vector<Node> m_nodes;
    TaskRowNames m_names;
    QHash<std::size_t, QList<int>> m_otherParents; ///< of rows, the columns that make no parent
};

} // namespace

namespace TaskTable {

int headerOf(const std::vector<Row> &rows)
{
    return TaskHeadings::rowOf(rows);
}

TableMapping mappingOf(const std::vector<Row> &rows)
{
    constexpr std::size_t shown = 5;
    TableMapping mapping;
    const int header = std::max(headerOf(rows), 0);
    if (rows.empty())
        return mapping;
    mapping.headings = rows[std::size_t(header)].cells;
    mapping.roles = TableMapping::guessed(mapping.headings);
    for (std::size_t i = std::size_t(header) + 1; i < rows.size() && i <= header + shown; ++i)
        mapping.examples.append(rows[i].cells);
    return mapping;
}

bool read(const std::vector<Row> &rows, ImportedTree &tree, Texts texts)
{
    if (rows.empty())
        return tree.fail(DiagramExchange::tr("it holds no diagram"));
    TableMapping mapping = mappingOf(rows);
    if (tree.mapping() && tree.mapping()->roles.size() == mapping.roles.size())
        mapping.roles = tree.mapping()->roles;
    const std::size_t header = std::size_t(std::max(headerOf(rows), 0));
    if (!TableMapping::hasTitles(mapping.roles))
        return tree.fail(
            rows[header].line,
            DiagramExchange::tr("there is no column of titles, such as \"title\", \"summary\" or "
                                "\"name\"; the columns are %1")
                .arg(TaskHeadings::listed(mapping.headings)));
    for (std::size_t i = 0; i < header; ++i)
        tree.note(Kind::LeftOut, rows[i].cells.join(QLatin1Char(' ')).simplified(), rows[i].line);
    return TableReader(rows, header, mapping, texts, tree).read();
}

} // namespace TaskTable
