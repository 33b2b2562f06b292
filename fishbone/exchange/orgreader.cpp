// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/orgreader.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/orgkeywords.h>
#include <fishbone/exchange/orgtext.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/exchange/taskstatuses.h>
#include <fishbone/exchange/taskvalues.h>
#include <fishbone/model/jsonnodes.h>

#include <QRegularExpression>

namespace {

using Kind = ExchangeReport::Kind;

/** The number of stars in front of a heading, 0 when the line is none. */
int levelOf(const QString &line)
{
    int level = 0;
    while (level < line.size() && line.at(level) == QLatin1Char('*'))
        ++level;
    return level < line.size() && line.at(level) == QLatin1Char(' ') ? level : 0;
}

/** What stands behind the last blank of @p title. */
QString lastWordOf(const QString &title)
{
    int begin = int(title.size());
    while (begin > 0 && !title.at(begin - 1).isSpace())
        --begin;
    return title.mid(begin);
}

} // namespace

bool OrgReader::read()
{
    while (m_lines.next()) {
        const QString line = m_lines.raw();
        if (const int level = m_isInBlock ? 0 : levelOf(line); level > 0) {
            if (!takeHeading(line, level))
                return false;
            continue;
        }
        if (takeDrawer(line) || takeKeyword(line) || takePlanning(line))
            continue;
        if (!m_isInBlock && takeListItem(line)) {
            if (!m_tree.error().isEmpty())
                return false;
            continue;
        }
        if (m_subject)
            m_detail.append(OrgText::uncovered(line));
        else if (!line.trimmed().isEmpty())
            m_front.append(line);
    }
    finishSubject();
    const bool isSingle = m_tree.container().childCount() == 1;
    const TreeItem &head = isSingle ? *m_tree.container().childAtIndex(0) : m_tree.container();
    if (isSingle && !m_title.isEmpty() && m_title != head.title())
        m_tree.addNamedDetail(head, QStringLiteral("title"), m_title);
    for (const QString &line : qAsConst(m_front))
        m_tree.addDetail(head, line, DiagramExchange::tr("text above the outline"));
    return true;
}

bool OrgReader::takeHeading(const QString &line, int level)
{
    finishSubject();
    if (m_isList)
        m_isList = false;
    m_subject = m_tree.add(level, QString(), m_lines.number());
    if (!m_subject)
        return false;
    QString title = line.mid(level).trimmed();
    const QString word = title.section(QLatin1Char(' '), 0, 0);
    const int status = m_declared.value(word, OrgKeywords::statusOf(word));
    if (status >= 0 || m_declared.contains(word)) {
        title = title.mid(word.size()).trimmed();
        if (status >= 0)
            m_subject->setStatus(status);
        else
            m_tree.addNamedDetail(*m_subject, QStringLiteral("TODO"), word, m_lines.number());
        if (OrgKeywords::wordOf(status) != word)
            m_tree.note(Kind::ReadAs, DiagramExchange::tr("\"%1\" as %2").arg(word).arg(status),
                        m_lines.number());
    }
    takePriority(title);
    takeTags(title);
    takeCookie(title);
    takeLinks(title);
    m_subject->setTitle(title);
    return true;
}

void OrgReader::takePriority(QString &title)
{
    static const QRegularExpression form(QStringLiteral("^\\[#([A-Z0-9]{1,2})\\]\\s*"));
    const auto match = form.match(title);
    if (!match.hasMatch())
        return;
    bool isNumber = false;
    const int number = match.captured(1).toInt(&isNumber);
    m_subject->setPriority(isNumber ? number : match.captured(1).at(0).unicode() - u'A' + 1);
    title = title.mid(match.capturedLength());
}

void OrgReader::takeTags(QString &title)
{
    static const QRegularExpression form(QString::fromUtf8("^:([\\w@#%:]+):$"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    const QString last = lastWordOf(title);
    const auto match = form.match(last);
    if (!match.hasMatch())
        return;
    m_tree.addNamedDetail(*m_subject, DiagramExchange::tr("Labels"),
                          match.captured(1).split(QLatin1Char(':')).join(QLatin1String(", ")),
                          m_lines.number());
    title = title.chopped(last.size()).trimmed();
}

/** Takes the progress that a heading shows: "[40%]", or as so many of so many. */
void OrgReader::takeCookie(QString &title)
{
    static const QRegularExpression form(QStringLiteral("\\[(\\d{1,9})(?:%|/(\\d{1,9}))\\]$"));
    constexpr int longest = 24;
    const auto match = form.match(title.right(longest));
    if (!match.hasMatch())
        return;
    const int all = match.captured(2).toInt();
    const int done = match.captured(1).toInt();
    const bool isShare = !match.captured(2).isEmpty();
    if (isShare && (all == 0 || done > all))
        return;
    constexpr qint64 whole = 100;
    m_subject->setProgress(isShare ? int(done * whole / all) : done);
    m_tree.note(Kind::ReadAs, DiagramExchange::tr("\"%1\" as a progress").arg(match.captured()),
                m_lines.number());
    title = title.chopped(match.capturedLength()).trimmed();
}

void OrgReader::takeLinks(QString &title)
{
    static const QRegularExpression form(
        QStringLiteral("\\[\\[([^\\]\\[]+)\\](?:\\[([^\\]\\[]+)\\])?\\]"));
    QStringList links;
    QString text;
    int end = 0;
    for (auto matches = form.globalMatch(title); matches.hasNext();) {
        const auto match = matches.next();
        text += title.mid(end, match.capturedStart() - end);
        text += match.captured(2).isEmpty() ? match.captured(1) : match.captured(2);
        links.append(match.captured(1));
        end = match.capturedEnd();
    }
    title = text + title.mid(end);
    m_tree.addContent(*m_subject, links, {}, m_lines.number());
}

/** Takes a line of settings, "#+TITLE: x" for instance, or a comment. */
bool OrgReader::takeKeyword(const QString &line)
{
    static const QRegularExpression form(QStringLiteral("^#\\+([A-Za-z_]+)(:?)\\s*(.*)$"));
    if (line.startsWith(QLatin1String("# "))) {
        m_tree.note(Kind::LeftOut, DiagramExchange::tr("the comment \"%1\"").arg(line.mid(2)),
                    m_lines.number());
        return true;
    }
    const auto match = form.match(line);
    if (!match.hasMatch())
        return false;
    const QString name = match.captured(1).toLower();
    const QString value = match.captured(3);
    if (name.startsWith(QLatin1String("begin_")) || name.startsWith(QLatin1String("end_"))) {
        m_isInBlock = name.startsWith(QLatin1String("begin_"));
        return false;
    }
    if (name == QLatin1String("title")) {
        m_title = value;
        m_tree.setCommonTitle(value);
    } else if (name == QLatin1String("todo") || name == QLatin1String("seq_todo") ||
               name == QLatin1String("typ_todo")) {
        static const QRegularExpression key(QStringLiteral("\\([^)]*\\)$"));
        const QStringList words = value.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        bool isDone = false;
        for (QString word : words) {
            isDone = isDone || word == QLatin1String("|");
            word.remove(key);
            const int known = OrgKeywords::statusOf(word);
            const auto meaning = TaskValues::status(word);
            if (word != QLatin1String("|"))
                m_declared.insert(word, known >= 0 ? known : meaning.value_or(isDone ? 2 : 6));
        }
    } else if (name == QLatin1String("startup") || name == QLatin1String("options")) {
        m_tree.note(Kind::Appearance, line, m_lines.number());
    } else if (m_subject) {
        return false;
    } else {
        m_front.append(line);
    }
    return true;
}

/** Takes a line of a drawer, in which names and values stand. */
bool OrgReader::takeDrawer(const QString &line)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*:([A-Za-z_][\\w-]*)(\\+?):\\s*(.*)$"));
    const auto match = form.match(line);
    if (m_drawer.isEmpty()) {
        const QString name = match.captured(1).toUpper();
        const bool isBeginning =
            match.hasMatch() && match.captured(3).isEmpty() && !m_isInBlock &&
            (name == QLatin1String("PROPERTIES") || name == QLatin1String("LOGBOOK"));
        if (isBeginning)
            m_drawer = name;
        return isBeginning;
    }
    if (match.captured(1).compare(QLatin1String("END"), Qt::CaseInsensitive) == 0)
        m_drawer.clear();
    else if (match.hasMatch() && m_subject && m_drawer == QLatin1String("PROPERTIES"))
        takeProperty(match.captured(1), match.captured(3));
    else if (m_subject)
        m_tree.addDetail(*m_subject, line.trimmed(), QLatin1Char('"') + m_drawer + QLatin1Char('"'),
                         m_lines.number());
    else if (match.captured(1).compare(QLatin1String("ID"), Qt::CaseInsensitive) != 0)
        m_front.append(line);
    return true;
}

void OrgReader::takeProperty(const QString &name, const QString &value)
{
    const QString key = name.toLower();
    const QString text = OrgText::unquoted(value);
    if (key == OrgText::titleProperty) {
        m_subject->setTitle(text);
        return;
    }
    if (key == OrgText::detailProperty) {
        m_subject->setDetail(text);
        return;
    }
    if (key == QLatin1String("id")) {
        m_subject->setUuid(text);
        return;
    }
    if (key == QLatin1String("effort") || key == QLatin1String("custom_id")) {
        m_tree.addNamedDetail(*m_subject, name, value, m_lines.number());
        return;
    }
    for (const SubjectAttributes::Attribute &attribute : SubjectAttributes::all()) {
        if (key == attribute.key && attribute.setText(*m_subject, text)) {
            m_hasPlannedEnd = m_hasPlannedEnd || key == JsonNodes::planEndDateKey;
            return;
        }
    }
    m_tree.addNamedDetail(*m_subject, name, value, m_lines.number());
}

/** Takes the line below a heading that says when: "DEADLINE: <2024-01-05 Fri> CLOSED: […]". */
bool OrgReader::takePlanning(const QString &line)
{
    static const QRegularExpression form(
        QStringLiteral("(DEADLINE|SCHEDULED|CLOSED):\\s*[<\\[](\\d{4}-\\d\\d-\\d\\d)[^\\d>\\]]*"
                       "(\\d{1,2}:\\d\\d)?([^>\\]]*)[>\\]]"));
    if (!m_subject || !m_detail.isEmpty() || m_isInBlock || !form.match(line).hasMatch() ||
        !line.trimmed().contains(
            QRegularExpression(QStringLiteral("^(DEADLINE|SCHEDULED|CLOSED):"))))
        return false;
    for (auto matches = form.globalMatch(line); matches.hasNext();) {
        const auto match = matches.next();
        const QString text = (match.captured(2) + QLatin1Char(' ') + match.captured(3)).trimmed();
        const std::optional<qint64> date = TaskValues::date(text);
        const QString rest = match.captured(4).trimmed();
        const bool isDeadline = match.captured(1) == QLatin1String("DEADLINE");
        const bool isTaken = isDeadline && date && !m_hasPlannedEnd;
        if (isTaken)
            m_subject->setPlanEndDate(*date);
        // How often it comes again, and how long before it is told, stay with it.
        if (isTaken ? !rest.isEmpty() : (!isDeadline || !m_hasPlannedEnd))
            m_tree.addDetail(*m_subject, match.captured(),
                             QLatin1Char('"') + match.captured(1) + QLatin1Char('"'),
                             m_lines.number());
    }
    return true;
}

/** Takes an item of a list as a subject, in an outline that has no heading above it. */
bool OrgReader::takeListItem(const QString &line)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(?:[-+]|\\d+[.)])\\s+(\\[[ Xx-]\\]\\s+)?(.*)$"));
    const auto match = form.match(line);
    if ((m_subject && !m_isList) || !match.hasMatch())
        return false;
    finishSubject();
    m_isList = true;
    m_subject = m_tree.add(m_lines.indentation(), match.captured(2).trimmed(), m_lines.number());
    const QString box = match.captured(1).trimmed().mid(1, 1).toUpper();
    if (m_subject && !box.isEmpty())
        m_subject->setStatus(box == QLatin1String("X")   ? TaskStatuses::finished
                             : box == QLatin1String("-") ? TaskStatuses::running
                                                         : TaskStatuses::waiting);
    return true;
}

void OrgReader::finishSubject()
{
    while (!m_detail.isEmpty() && m_detail.constFirst().trimmed().isEmpty())
        m_detail.removeFirst();
    while (!m_detail.isEmpty() && m_detail.constLast().trimmed().isEmpty())
        m_detail.removeLast();
    if (m_subject && !m_detail.isEmpty())
        m_subject->setDetail(m_subject->detail().isEmpty()
                                 ? m_detail.join(QLatin1Char('\n'))
                                 : m_subject->detail() + QLatin1Char('\n') +
                                       m_detail.join(QLatin1Char('\n')));
    m_detail.clear();
    m_drawer.clear();
    m_subject = nullptr;
    m_hasPlannedEnd = false;
    m_isInBlock = false;
}
