// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/taskvalues.h>

#include <fishbone/exchange/taskstatuses.h>

#include <QDateTime>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace {

struct Words
{
    int value;
    const char *words; ///< separated by bars
};

/** A word in the form in which words are compared. */
QString plainWord(const QString &text)
{
    QString word = text.trimmed().toLower();
    word.replace(QLatin1Char('_'), QLatin1Char(' '));
    word.replace(QLatin1Char('-'), QLatin1Char(' '));
    word.remove(QChar(u'\u2019')).remove(QLatin1Char('\''));
    return word.simplified();
}

template <std::size_t size>
QHash<QString, int> tableOf(const Words (&words)[size])
{
    QHash<QString, int> table;
    for (const Words &entry : words) {
        const QStringList names = QString::fromUtf8(entry.words).split(QLatin1Char('|'));
        for (const QString &name : names)
            table.insert(plainWord(name), entry.value);
    }
    return table;
}

std::optional<int> numberOrWord(const QString &text, const QHash<QString, int> &words)
{
    const QString trimmed = text.trimmed();
    bool isNumber = false;
    const int number = trimmed.toInt(&isNumber);
    if (isNumber)
        return number;
    const auto found = words.constFind(plainWord(trimmed));
    return found == words.constEnd() ? std::nullopt : std::make_optional(*found);
}

/** A level with a number and a word, "2 - High", of which the number counts. */
std::optional<int> numberBeforeAWord(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*[Pp]?([0-9])\\s*[-.:]\\s*[A-Za-z]{1,30}$"));
    const auto match = form.match(text.left(50));
    return match.hasMatch() ? std::make_optional(match.captured(1).toInt()) : std::nullopt;
}

const Words statusWords[] = {
    {TaskStatuses::unknown, "unknown|no status|未知"},
    {TaskStatuses::cancelled,
     "cancelled|canceled|cancel|rejected|declined|abandoned|aborted|duplicate|invalid|wontfix|"
     "wont fix|wont do|not planned|discarded|dropped|removed|cannot reproduce|not a bug|"
     "works for me|worksforme|取消|已取消|已拒绝|拒绝|作废|废弃|不予处理|无效|无法重现"},
    {TaskStatuses::finished,
     "done|finish|finished|complete|completed|closed|close|resolved|fixed|accepted|merged|"
     "delivered|released|shipped|deployed|live|verified|yes|x|true|✓|✔|✅|☑|完成|已完成|关闭|"
     "已关闭|已解决|解决|已发布|已实现|已修复|已验证|已验收|已上线"},
    {TaskStatuses::finishedLate,
     "finish delay|finished late|done late|completed late|延期完成|逾期完成|已延期完成"},
    {TaskStatuses::postponed,
     "postponed|postpone|on hold|hold|deferred|blocked|stuck|parked|paused|suspended|icebox|"
     "later|someday|"
     "延期|已延期|推迟|已推迟|挂起|暂停|已暂停|搁置|阻塞|受阻"},
    {TaskStatuses::running,
     "in progress|progress|doing|started|running|active|under way|underway|wip|working|ongoing|"
     "in development|in work|working on it|assigned|implementing|committed|on track|at risk|"
     "off track|进行中|处理中|正在进行|开发中|执行中|实施中|实现中|修复中|已开始|已分配"},
    {TaskStatuses::waiting,
     "to do|todo|open|opened|new|backlog|waiting|waitting|planned|not started|unstarted|"
     "unscheduled|scheduled|pending|ready|reopened|triage|selected for development|next|queued|"
     "proposed|draft|not "
     "done|incomplete|confirmed|unconfirmed|no|false|☐|规划中|激活|未处理|待办|未开始|新建|新的|"
     "打开|等待|待处理|未完成|未解决|计划中|待开始|"
     "重新打开"},
    {TaskStatuses::approval,
     "waiting for approval|waitting agree|in review|review|reviewing|under review|code review|"
     "awaiting approval|pending approval|needs review|ready for review|approval|qa|in qa|"
     "testing|in testing|in test|ready for test|"
     "feedback|verify|to verify|verification|待审批|审核中|待审核|评审中|待评审|待确认|等待审批|"
     "测试中|待验收|反馈"},
};

const Words priorityWords[] = {
    {0, "p0"},
    {1,
     "highest|blocker|show stopper|urgent|immediate|top|p1|最高|紧急|特急|立即|立刻|非常高|阻塞"},
    {2, "high|critical|important|p2|高|较高|重要|严重"},
    {3, "medium|normal|major|middle|moderate|standard|default|p3|中|普通|一般|正常|中等|主要"},
    {4, "low|minor|optional|p4|低|较低|次要"},
    {5, "lowest|trivial|nice to have|p5|最低|微不足道|非常低"},
    {-1, "none|no priority|not set|unset|-|无|未设置|没有"},
};

const Words verdictWords[] = {
    {int(Verdict::Suspected), "suspected|suspect|possible|likely|怀疑|可疑|疑似"},
    {int(Verdict::Checking),
     "checking|being checked|investigating|under investigation|调查中|验证中"},
    {int(Verdict::Confirmed),
     "confirmed|verified|contributing|contributing cause|已确认|确认|要因"},
    {int(Verdict::RuledOut), "ruledout|ruled out|not a cause|excluded|rejected|已排除|排除|非要因"},
    {int(Verdict::RootCause), "rootcause|root cause|root|根本原因|根因"},
};

int monthOf(const QString &name)
{
    static const QStringList months{
        QStringLiteral("jan"), QStringLiteral("feb"), QStringLiteral("mar"), QStringLiteral("apr"),
        QStringLiteral("may"), QStringLiteral("jun"), QStringLiteral("jul"), QStringLiteral("aug"),
        QStringLiteral("sep"), QStringLiteral("oct"), QStringLiteral("nov"), QStringLiteral("dec")};
    return int(months.indexOf(name.left(3).toLower())) + 1;
}

int fullYear(const QString &digits)
{
    const int year = digits.toInt();
    constexpr int pivot = 70; // two digits from here on belong to the last century
    if (digits.size() > 2)
        return year;
    return year + (year < pivot ? 2000 : 1900);
}

/** A day and what is left of the text behind it. */
struct Day
{
    QDate date;
    QString rest;
};

Day dayOf(const QRegularExpressionMatch &match, const QDate &date, const QString &text)
{
    return {date, text.mid(match.capturedEnd()).trimmed()};
}

/** A day written with the month as a number. */
Day numberedDay(const QString &text, TaskValues::NumberOrder order)
{
    static const QRegularExpression yearFirst(
        QStringLiteral("^(\\d{4})[-/.](\\d{1,2})[-/.](\\d{1,2})(?=\\D|$)"));
    static const QRegularExpression chinese(
        QString::fromUtf8("^(\\d{4})\\s*年\\s*(\\d{1,2})\\s*月\\s*(\\d{1,2})\\s*日?"));
    static const QRegularExpression dotted(
        QStringLiteral("^(\\d{1,2})\\.\\s?(\\d{1,2})\\.\\s?(\\d{4}|\\d{2})(?=\\D|$)"));
    static const QRegularExpression slashed(
        QStringLiteral("^(\\d{1,2})/(\\d{1,2})/(\\d{4}|\\d{2})(?=\\D|$)"));
    for (const QRegularExpression &form : {yearFirst, chinese}) {
        if (const auto match = form.match(text); match.hasMatch())
            return dayOf(match,
                         QDate(match.captured(1).toInt(), match.captured(2).toInt(),
                               match.captured(3).toInt()),
                         text);
    }
    if (const auto match = dotted.match(text); match.hasMatch())
        return dayOf(match,
                     QDate(fullYear(match.captured(3)), match.captured(2).toInt(),
                           match.captured(1).toInt()),
                     text);
    if (const auto match = slashed.match(text); match.hasMatch()) {
        const bool monthFirst = order == TaskValues::NumberOrder::MonthFirst;
        return dayOf(match,
                     QDate(fullYear(match.captured(3)), match.captured(monthFirst ? 1 : 2).toInt(),
                           match.captured(monthFirst ? 2 : 1).toInt()),
                     text);
    }
    return {};
}

/** A day written with the name of the month. */
Day namedDay(const QString &text)
{
    static const QRegularExpression dayFirst(
        QStringLiteral("^(?:[A-Za-z]{3,9},?\\s+)?(\\d{1,2})[-/\\s.]\\s?([A-Za-z]{3,9})[-/\\s.,]\\s?"
                       "(\\d{4}|\\d{2})(?=\\D|$)"));
    static const QRegularExpression monthFirst(QStringLiteral(
        "^(?:[A-Za-z]{3,9},?\\s+)?([A-Za-z]{3,9})\\.?\\s+(\\d{1,2})(?:st|nd|rd|th)?,?\\s+(\\d{4})"
        "(?=\\D|$)"));
    if (const auto match = dayFirst.match(text); match.hasMatch())
        return dayOf(match,
                     QDate(fullYear(match.captured(3)), monthOf(match.captured(2)),
                           match.captured(1).toInt()),
                     text);
    if (const auto match = monthFirst.match(text); match.hasMatch())
        return dayOf(
            match,
            QDate(match.captured(3).toInt(), monthOf(match.captured(1)), match.captured(2).toInt()),
            text);
    return {};
}

/** The time of a day that @p text tells, with its zone; nothing when it tells something else. */
std::optional<QDateTime> timeOf(const QDate &day, const QString &text)
{
    static const QRegularExpression form(QStringLiteral(
        "^(?:T|at|,)?\\s*(\\d{1,2}):(\\d{2})(?::(\\d{2})(?:[.,](\\d{1,3})\\d*)?)?"
        "\\s*([AaPp][Mm])?\\s*(?:(Z|UTC|GMT)?\\s*([+-]\\d{2}):?(\\d{2})?|(Z|UTC|GMT))"
        "?\\s*(?:\\([^)]*\\))?$"));
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    int hour = match.captured(1).toInt();
    const QString half = match.captured(5).toLower();
    if (!half.isEmpty())
        hour = hour % 12 + (half == QLatin1String("pm") ? 12 : 0);
    const int milliseconds = match.captured(4).leftJustified(3, QLatin1Char('0')).toInt();
    const QTime time(hour, match.captured(2).toInt(), match.captured(3).toInt(),
                     match.captured(4).isEmpty() ? 0 : milliseconds);
    if (!time.isValid())
        return std::nullopt;
    if (!match.captured(9).isEmpty())
        return QDateTime(day, time, Qt::UTC);
    if (match.captured(7).isEmpty())
        return QDateTime(day, time);
    const int hours = match.captured(7).toInt();
    const int minutes = match.captured(8).toInt();
    const bool isWest = match.captured(7).startsWith(QLatin1Char('-'));
    const int offset = hours * 3600 + (isWest ? -minutes : minutes) * 60;
    return QDateTime(day, time, Qt::UTC).addSecs(-offset);
}

} // namespace

namespace TaskValues {

std::optional<int> status(const QString &text)
{
    static const QHash<QString, int> words = tableOf(statusWords);
    return numberOrWord(text, words);
}

std::optional<int> storyState(const QString &text)
{
    const QString word = plainWord(text);
    if (word == QLatin1String("delivered"))
        return TaskStatuses::approval;
    if (word == QLatin1String("rejected"))
        return TaskStatuses::waiting;
    return status(text);
}

std::optional<int> priority(const QString &text)
{
    static const QHash<QString, int> words = tableOf(priorityWords);
    const std::optional<int> level = numberBeforeAWord(text);
    return level ? level : numberOrWord(text, words);
}

Verdict verdict(const QString &text)
{
    static const QHash<QString, int> words = tableOf(verdictWords);
    return Verdict(words.value(plainWord(text), int(Verdict::None)));
}

std::optional<int> progress(const QString &text)
{
    QString number = text.trimmed();
    const bool isPercent = number.endsWith(QLatin1Char('%')) || number.endsWith(QChar(u'\uff05'));
    if (isPercent)
        number = number.chopped(1).trimmed();
    bool isWhole = false;
    const int whole = number.toInt(&isWhole);
    if (isWhole)
        return whole;
    bool isNumber = false;
    const double value = number.replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    const double percent = isPercent ? value : value * 100;
    const bool fits = isNumber && percent >= 0 && percent <= 100 &&
                      std::abs(percent - std::round(percent)) < 1e-9;
    return fits ? std::make_optional(int(std::lround(percent))) : std::nullopt;
}

std::optional<qint64> date(const QString &text, NumberOrder order)
{
    const QString trimmed = text.trimmed();
    bool isNumber = false;
    const qint64 number = trimmed.toLongLong(&isNumber);
    if (isNumber)
        return number;
    const QDateTime iso = QDateTime::fromString(trimmed, Qt::ISODateWithMs);
    if (iso.isValid())
        return iso.toMSecsSinceEpoch();
    constexpr int longest = 80;
    if (trimmed.size() > longest)
        return std::nullopt;
    Day day = numberedDay(trimmed, order);
    if (!day.date.isValid())
        day = namedDay(trimmed);
    if (!day.date.isValid())
        return std::nullopt;
    if (day.rest.isEmpty())
        return day.date.startOfDay().toMSecsSinceEpoch();
    const std::optional<QDateTime> time = timeOf(day.date, day.rest);
    return time ? std::make_optional(time->toMSecsSinceEpoch()) : std::nullopt;
}

std::optional<std::pair<int, int>> slashedNumbers(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^\\s*(\\d{1,2})/(\\d{1,2})/\\d{2,4}\\b"));
    const auto match = form.match(text.left(20));
    if (!match.hasMatch())
        return std::nullopt;
    return std::make_pair(match.captured(1).toInt(), match.captured(2).toInt());
}

} // namespace TaskValues
