// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/subjectlist.h>

#include <app/diagram/diagramsession.h>

#include <fishbone/exchange/meetingreport.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/model/treeitem.h>

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <tuple>

namespace {

constexpr int entryRole = Qt::UserRole; ///< the position among the entries, of the first cell

const QColor urgentColour(0xb0, 0x00, 0x20);
const QColor urgentOnDark(0xff, 0x8a, 0x80);

QString inHtml(const QString &text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

/** A row of a table, with its texts in @p element. */
QString rowInHtml(const QStringList &cells, const char *element)
{
    QString row;
    for (const QString &cell : cells)
        row += QStringLiteral("<td><%1>%2</%1></td>").arg(QLatin1String(element), inHtml(cell));
    return QStringLiteral("<tr>%1</tr>").arg(row);
}

} // namespace

bool SubjectList::Entry::operator==(const Entry &other) const
{
    return std::tie(subject, group, cells, values, isMarked) ==
           std::tie(other.subject, other.group, other.cells, other.values, other.isMarked);
}

SubjectList::SubjectList(QWidget *parent)
    : QTreeWidget(parent)
{
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    header()->setSectionResizeMode(QHeaderView::Interactive);
    connect(this, &QTreeWidget::currentItemChanged, this, &SubjectList::selectCurrent);
}

void SubjectList::setSession(DiagramSession *session)
{
    if (m_session)
        m_session->disconnect(this);
    m_session = session;
    if (session)
        connect(session, &DiagramSession::stateChanged, this, &SubjectList::refresh);
    refresh();
}

DiagramSession *SubjectList::session() const
{
    return m_session;
}

void SubjectList::refresh()
{
    // Whoever types into a cell goes on.
    if (!isVisible() || state() == EditingState)
        return;
    list(head() ? entries(MeetingReport(head())) : QVector<Entry>());
}

/** The head of the document, null when there is none. */
const TreeItem *SubjectList::head() const
{
    const FishInfo *const document = m_session ? m_session->document() : nullptr;
    return document ? m_session->container()->childAtIndex(0) : nullptr;
}

QString SubjectList::page() const
{
    if (!head())
        return QString();
    QStringList groups;
    QHash<QString, QString> rows;
    const QVector<Entry> all = entries(MeetingReport(head()));
    for (const Entry &entry : all) {
        if (!rows.contains(entry.group))
            groups.append(entry.group);
        rows[entry.group] += rowInHtml(entry.cells, entry.isMarked ? "b" : "span");
    }
    QStringList headings;
    for (int column = 0; column < columnCount(); ++column)
        headings.append(headerItem()->text(column));
    QString page = QStringLiteral("<h1>%1</h1><h2>%2</h2>")
                       .arg(inHtml(head()->title()), inHtml(accessibleName()));
    for (const QString &group : qAsConst(groups))
        page += QStringLiteral("<h3>%1</h3><table width=\"100%\" border=\"1\" cellspacing=\"0\" "
                               "cellpadding=\"4\">%2%3</table>")
                    .arg(inHtml(group), rowInHtml(headings, "b"), rows.value(group));
    return page;
}

void SubjectList::showEvent(QShowEvent *event)
{
    QTreeWidget::showEvent(event);
    refresh();
}

QSet<QString> SubjectList::foldedGroups() const
{
    QSet<QString> folded;
    for (int row = 0; row < topLevelItemCount(); ++row) {
        const QTreeWidgetItem *const item = topLevelItem(row);
        if (item->childCount() > 0 && !item->isExpanded())
            folded.insert(item->text(0));
    }
    return folded;
}

QTreeWidgetItem *SubjectList::rowFor(const Entry &entry, QTreeWidgetItem *group)
{
    auto *const row = group ? new QTreeWidgetItem(group) : new QTreeWidgetItem(this);
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    for (int column = 0; column < int(entry.cells.size()); ++column) {
        row->setText(column, entry.cells.at(column));
        row->setToolTip(column, entry.cells.at(column));
        row->setData(column, valueRole, entry.values.value(column));
        if (entry.isMarked)
            row->setForeground(column, isDark ? urgentOnDark : urgentColour);
    }
    row->setFlags(row->flags() | Qt::ItemIsEditable);
    return row;
}

void SubjectList::list(const QVector<Entry> &entries)
{
    if (entries == m_entries && topLevelItemCount() > 0)
        return;
    const QScopedValueRollback<bool> ours(m_isListing, true);
    const QTreeWidgetItem *const before = currentItem();
    const int current = before ? before->data(0, entryRole).toInt() : -1;
    const TreeItem *const subject = before ? m_entries.value(current).subject : nullptr;
    const int column = currentColumn();
    const int scrolled = verticalScrollBar()->value();
    const QSet<QString> folded = foldedGroups();
    m_entries = entries;
    clear();
    QHash<QString, QTreeWidgetItem *> groups;
    for (int i = 0; i < int(m_entries.size()); ++i) {
        const Entry &entry = m_entries.at(i);
        QTreeWidgetItem *&group = groups[entry.group];
        if (!group && !entry.group.isEmpty()) {
            group = new QTreeWidgetItem(this, {entry.group});
            group->setData(0, entryRole, -1);
            group->setFirstColumnSpanned(true);
            group->setExpanded(!folded.contains(entry.group));
        }
        QTreeWidgetItem *const row = rowFor(entry, group);
        row->setData(0, entryRole, i);
        if (subject && entry.subject == subject)
            setCurrentItem(row, qMax(0, column));
    }
    setRootIsDecorated(!m_entries.isEmpty() && !m_entries.constFirst().group.isEmpty());
    verticalScrollBar()->setValue(scrolled);
}

QModelIndex SubjectList::subjectAt(const QModelIndex &index) const
{
    const int position = index.siblingAtColumn(0).data(entryRole).toInt();
    const TreeItem *const wanted = index.isValid() ? m_entries.value(position).subject : nullptr;
    const TreeItem *const container = m_session ? m_session->container() : nullptr;
    QModelIndex found;
    if (!wanted || position < 0 || !container)
        return found;
    visitSubjects(container, [&](const TreeItem *subject) {
        if (subject == wanted)
            found = m_session->model()->indexFromItem(subject);
        return subject != wanted;
    });
    return found;
}

void SubjectList::selectCurrent()
{
    const QModelIndex subject = m_isListing ? QModelIndex() : subjectAt(currentIndex());
    if (subject.isValid())
        m_session->select(subject);
}
