// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/csvtable.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/foreignformats.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/model/jsonnodes.h>
#include <fishbone/model/systemhelper.h>

#include <QDateTime>
#include <QHash>
#include <QSet>

#include <array>

namespace {

using SubjectAttributes::Attribute;

enum class Kind {
    Text,   ///< guarded against spreadsheets
    Number, ///< as it is
    Date,   ///< ISO 8601
};

struct Column
{
    QLatin1String name;
    QLatin1String key; ///< of the diagram format; the pid stands for the parent in the tree
    Kind kind = Kind::Text;
};

const std::array<Column, 17> &columns()
{
    using namespace JsonNodes;
    static const std::array<Column, 17> all{{
        {QLatin1String("uuid"), uuidKey},
        {QLatin1String("parent"), pidKey},
        {QLatin1String("title"), titleKey},
        {QLatin1String("status"), statusKey, Kind::Number},
        {QLatin1String("progress"), progressKey, Kind::Number},
        {QLatin1String("priority"), priorityKey, Kind::Number},
        {QLatin1String("manager"), managerNameKey},
        {QLatin1String("manager id"), managerIdKey},
        {QLatin1String("creator"), creatorNameKey},
        {QLatin1String("creator id"), creatorIdKey},
        {QLatin1String("followers"), followersKey},
        {QLatin1String("created"), createDateKey, Kind::Date},
        {QLatin1String("planned end"), planEndDateKey, Kind::Date},
        {QLatin1String("url"), urlKey},
        {QLatin1String("detail"), detailKey},
        {QLatin1String("short id"), showidKey},
        {QLatin1String("type"), typeKey, Kind::Number},
    }};
    return all;
}

bool hasAttribute(const Column &column)
{
    return column.key != JsonNodes::pidKey && column.key != JsonNodes::titleKey;
}

/** A number of milliseconds as a date, or as it is when no date can tell it. */
QString dateFrom(const QString &milliseconds)
{
    const qint64 number = milliseconds.toLongLong();
    const QString text =
        QDateTime::fromMSecsSinceEpoch(number, Qt::UTC).toString(Qt::ISODateWithMs);
    return QDateTime::fromString(text, Qt::ISODateWithMs).isValid() ? text : milliseconds;
}

/** The milliseconds of a date; what is no date comes back as it is. */
QString millisecondsFrom(const QString &date)
{
    const QDateTime time = QDateTime::fromString(date, Qt::ISODateWithMs);
    return time.isValid() ? QString::number(time.toMSecsSinceEpoch()) : date;
}

QString cellFrom(const Column &column, const QString &value)
{
    if (column.kind == Kind::Text)
        return CsvTable::guarded(value);
    return column.kind == Kind::Date && !value.isEmpty() ? dateFrom(value) : value;
}

QString valueFrom(const Column &column, const QString &cell)
{
    if (column.kind == Kind::Text)
        return CsvTable::unguarded(cell);
    return column.kind == Kind::Date ? millisecondsFrom(cell.trimmed()) : cell.trimmed();
}

/** Makes subjects of the rows of a table. */
class TableReader
{
public:
    TableReader(std::vector<CsvTable::Row> rows, ImportedTree &tree)
        : m_rows(std::move(rows))
        , m_tree(tree)
    {
    }

    bool read() { return readHeader() && linkRows() && addSubjects(); }

private:
    bool readHeader()
    {
        if (m_rows.empty())
            return m_tree.fail(DiagramExchange::tr("it holds no diagram"));
        const CsvTable::Row header = m_rows.front();
        m_rows.erase(m_rows.begin());
        for (int i = 0; i < header.cells.size(); ++i) {
            const QString name = header.cells.at(i).trimmed();
            for (const Column &column : columns()) {
                if (name.compare(column.name, Qt::CaseInsensitive) == 0)
                    m_places.insert(column.key, i);
            }
        }
        if (m_places.contains(JsonNodes::titleKey))
            return true;
        return m_tree.fail(header.line, DiagramExchange::tr("there is no column \"title\""));
    }

    QString cell(const CsvTable::Row &row, QLatin1String key) const
    {
        return row.cells.value(m_places.value(key, -1));
    }

    /** What the row is called, or names as its parent; empty for nothing. */
    QString identity(const CsvTable::Row &row, QLatin1String key) const
    {
        const QString text = CsvTable::unguarded(cell(row, key));
        return text == QLatin1String("-1") ? QString() : text;
    }

    /** Finds the children of each row. */
    bool linkRows()
    {
        QHash<QString, std::size_t> rowOf;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const QString uuid = identity(m_rows[i], JsonNodes::uuidKey);
            if (uuid.isEmpty())
                continue;
            if (rowOf.contains(uuid))
                return m_tree.fail(m_rows[i].line,
                                   DiagramExchange::tr("the uuid \"%1\" stands twice").arg(uuid));
            rowOf.insert(uuid, i);
        }
        m_children.resize(m_rows.size());
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const QString parent = identity(m_rows[i], JsonNodes::pidKey);
            if (parent.isEmpty()) {
                m_tops.push_back(i);
                continue;
            }
            const auto found = rowOf.constFind(parent);
            if (found == rowOf.constEnd())
                return m_tree.fail(
                    m_rows[i].line,
                    DiagramExchange::tr("there is no subject with the uuid \"%1\"").arg(parent));
            m_children[*found].push_back(i);
        }
        return true;
    }

    bool addSubjects()
    {
        struct Waiting
        {
            std::size_t row;
            int level;
        };
        std::vector<Waiting> waiting;
        const auto wait = [&waiting](const std::vector<std::size_t> &rows, int level) {
            for (auto row = rows.crbegin(); row != rows.crend(); ++row)
                waiting.push_back({*row, level});
        };
        std::vector<bool> isAdded(m_rows.size(), false);
        wait(m_tops, 0);
        while (!waiting.empty()) {
            const Waiting next = waiting.back();
            waiting.pop_back();
            if (!addSubject(m_rows[next.row], next.level))
                return false;
            isAdded[next.row] = true;
            wait(m_children[next.row], next.level + 1);
        }
        const auto left = std::find(isAdded.cbegin(), isAdded.cend(), false);
        if (left == isAdded.cend())
            return true;
        return m_tree.fail(m_rows[std::size_t(left - isAdded.cbegin())].line,
                           DiagramExchange::tr("the subject lies below itself"));
    }

    bool addSubject(const CsvTable::Row &row, int level)
    {
        TreeItem *const subject =
            m_tree.add(level, CsvTable::unguarded(cell(row, JsonNodes::titleKey)), row.line);
        if (!subject)
            return false;
        for (const Column &column : columns()) {
            const QString value = valueFrom(column, cell(row, column.key));
            if (value.isEmpty() || !hasAttribute(column))
                continue;
            if (!SubjectAttributes::named(column.key).setText(*subject, value))
                return m_tree.fail(row.line,
                                   DiagramExchange::tr("\"%1\" is no value for the column \"%2\"")
                                       .arg(value, column.name));
        }
        return true;
    }

    std::vector<CsvTable::Row> m_rows;
    ImportedTree &m_tree;
    QHash<QString, int> m_places; ///< of the columns
    std::vector<std::vector<std::size_t>> m_children;
    std::vector<std::size_t> m_tops;
};

} // namespace

bool CsvFormat::read(const QByteArray &bytes, ImportedTree &tree)
{
    const std::optional<QString> text = ExchangeText::decode(bytes, tree);
    if (!text)
        return false;
    std::vector<CsvTable::Row> rows = CsvTable::parse(*text, tree);
    return tree.error().isEmpty() && TableReader(std::move(rows), tree).read();
}

QByteArray CsvFormat::write(const TreeItem &head)
{
    QStringList names;
    for (const Column &column : columns())
        names.append(column.name);
    // The mark tells spreadsheets the encoding, which some would not guess.
    QByteArray bytes = "\xef\xbb\xbf" + CsvTable::line(names);
    QSet<QString> taken;
    std::vector<QString> path; // the uuids from the head down to the subject
    OutlineWalk::walk(head, [&](const TreeItem &subject, int level) {
        // The rows find their parents by the uuid, so that each has to have one of its own.
        QString uuid = SubjectAttributes::named(JsonNodes::uuidKey).text(subject);
        if (uuid.isEmpty() || taken.contains(uuid))
            uuid = SystemHelper::randomUuid();
        taken.insert(uuid);
        path.resize(std::size_t(level));
        QStringList cells{CsvTable::guarded(uuid),
                          CsvTable::guarded(path.empty() ? QString() : path.back()),
                          CsvTable::guarded(subject.title())};
        for (std::size_t i = std::size_t(cells.size()); i < columns().size(); ++i) {
            const Column &column = columns()[i];
            cells.append(cellFrom(column, SubjectAttributes::named(column.key).text(subject)));
        }
        bytes += CsvTable::line(cells);
        path.push_back(uuid);
    });
    return bytes;
}
