// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/meetingpage.h>

#include <fishbone/drawing/clearcontent.h>
#include <fishbone/exchange/csvtable.h>
#include <fishbone/exchange/htmlparts.h>
#include <fishbone/exchange/linksafety.h>
#include <fishbone/model/treeitem.h>

#include <QLocale>
#include <QUrl>

#include <algorithm>

namespace {

QString inHtml(const QString &text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

QString linkInHtml(const QString &text, const QString &url)
{
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(url.toHtmlEscaped(), text);
}

QString strongInHtml(const QString &text)
{
    return QStringLiteral("<span class=\"over\">%1</span>").arg(text);
}

QString strongInMarkdown(const QString &text)
{
    return QStringLiteral("**%1**").arg(text);
}

/** @p text so that it is no markup, in one line. */
QString textInMarkdown(const QString &text)
{
    QString plain;
    for (const QChar c : text) {
        if (QStringLiteral("\\`*_[]<>|#~&").contains(c))
            plain.append(QLatin1Char('\\'));
        plain.append(c == QLatin1Char('\r') ? QChar(QLatin1Char(' ')) : c);
    }
    return plain.replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

QString linkInMarkdown(const QString &text, const QString &url)
{
    QString target = url;
    for (const char c : {'(', ')', '<', '>', ' ', '|'})
        target.replace(QLatin1Char(c),
                       QString::fromLatin1(QUrl::toPercentEncoding(QString(QLatin1Char(c)))));
    return QStringLiteral("[%1](%2)").arg(text, target);
}

/** Whether a page that is mailed may lead there. */
bool mayLeadTo(const QString &url)
{
    return !LinkSafety::webOrMail(url).isEmpty();
}

/** What is told of a verdict for whoever was not there. */
QString explained(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Suspected:
        return MeetingReport::tr("it may be a cause");
    case Verdict::Checking:
        return MeetingReport::tr("somebody is looking into it");
    case Verdict::Confirmed:
        return MeetingReport::tr("it contributes");
    case Verdict::RuledOut:
        return MeetingReport::tr("it does not contribute");
    case Verdict::RootCause:
        return MeetingReport::tr("all comes from it");
    case Verdict::None:
        break;
    }
    return QString();
}

// The margins of a window are in properties that the toolkit, which prints the page, does not know.
constexpr char pageStyle[] =
    "body{font-family:sans-serif;margin-inline:auto;max-width:70em;padding-inline:1em;color:#222;"
    "background:#fff}svg,img{max-width:100%;height:auto}svg{direction:ltr}h1,td{unicode-bidi:"
    "plaintext}table{border-collapse:collapse;width:100%}"
    "th,td{border:1px solid #bbb;padding:.3em "
    ".5em;text-align:left;text-align:start;vertical-align:top}"
    "th{background:#eee}.over{color:#b00020;font-weight:bold}"
    "h1{margin-top:0px;margin-bottom:12px}h2,h3{margin-top:16px;margin-bottom:8px}";

} // namespace

MeetingPage::MeetingPage(const TreeItem &head, const QVector<MeetingReport::Cause> &causes,
                         const QVector<MeetingReport::Action> &actions)
    : m_head(head)
    , m_causes(causes)
    , m_actions(actions)
{
}

/** The votes as a number behind a bar, ten blocks long for the most. */
QString MeetingPage::bar(int votes) const
{
    constexpr int longest = 10;
    int most = 1;
    for (const MeetingReport::Cause &cause : m_causes)
        most = std::max(most, cause.votes);
    if (votes == 0)
        return QString();
    const int length = std::max(1, int(qint64(votes) * longest / most));
    return QString(length, QChar(u'\u2588')) + QLatin1Char(' ') + QLocale().toString(votes);
}

MeetingPage::Table MeetingPage::causesTable(const Markup &markup) const
{
    const auto &[text, link, strong] = markup;
    Table table{MeetingReport::tr("Ranked causes"),
                {QStringLiteral("#"), MeetingReport::tr("Cause"), MeetingReport::tr("Verdict"),
                 MeetingReport::tr("Votes"), MeetingReport::tr("Evidence")},
                {},
                MeetingReport::tr("No cause has a verdict or votes.")};
    for (const MeetingReport::Cause &cause : m_causes) {
        const TreeItem &subject = *cause.subject;
        const QString title = text(subject.title());
        const QString above = cause.above.join(QStringLiteral(" › "));
        table.rows.append({QString::number(table.rows.size() + 1),
                           (mayLeadTo(subject.url()) ? link(title, subject.url()) : title) +
                               (above.isEmpty() ? QString() : text(QLatin1Char('\n') + above)),
                           text(ClearContent::meaningOf(cause.verdict)), bar(cause.votes),
                           text(subject.detail())});
    }
    return table;
}

QStringList MeetingPage::people() const
{
    QStringList all;
    for (const MeetingReport::Action &action : m_actions) {
        if (all.isEmpty() || all.constLast() != action.person)
            all.append(action.person);
    }
    return all;
}

MeetingPage::Table MeetingPage::actionsTable(const QString &person, const Markup &markup) const
{
    const auto &[text, link, strong] = markup;
    Table table{person.isEmpty() ? MeetingReport::tr("Nobody yet") : text(person),
                {MeetingReport::tr("Action"), MeetingReport::tr("Status"),
                 MeetingReport::tr("Progress"), MeetingReport::tr("Until")},
                {},
                QString(),
                3};
    for (const MeetingReport::Action &action : m_actions) {
        if (action.person != person)
            continue;
        const TreeItem &subject = *action.subject;
        const QString title = text(subject.title());
        const QString day = QLocale().toString(action.end, QLocale::ShortFormat);
        table.rows.append(
            {mayLeadTo(subject.url()) ? link(title, subject.url()) : title,
             text(ClearContent::meaningOf(subject.status())),
             subject.progress() > 0 ? QStringLiteral("%1 %").arg(subject.progress()) : QString(),
             action.isOverdue ? strong(MeetingReport::tr("%1, overdue").arg(day)) : day});
    }
    return table;
}

MeetingPage::Table MeetingPage::legend() const
{
    Table table{MeetingReport::tr("Legend"),
                {MeetingReport::tr("Verdict"), MeetingReport::tr("Meaning")},
                {},
                QString()};
    for (const Verdict verdict : {Verdict::RootCause, Verdict::Confirmed, Verdict::Checking,
                                  Verdict::Suspected, Verdict::RuledOut}) {
        const bool occurs =
            std::any_of(m_causes.cbegin(), m_causes.cend(),
                        [verdict](const auto &cause) { return cause.verdict == verdict; });
        if (occurs)
            table.rows.append({ClearContent::meaningOf(verdict), explained(verdict)});
    }
    return table;
}

/** A heading, and below it a table for each person. */
QVector<MeetingPage::Table> MeetingPage::actionsTables(const Markup &markup) const
{
    QVector<Table> all{
        {MeetingReport::tr("Actions"), {}, {}, MeetingReport::tr("Nobody is to do anything.")}};
    const QStringList everybody = people();
    if (!everybody.isEmpty())
        all.last().remark.clear();
    for (const QString &person : everybody)
        all.append(actionsTable(person, markup));
    return all;
}

QVector<MeetingPage::Table> MeetingPage::tables(const Markup &markup) const
{
    QVector<Table> all = QVector<Table>{causesTable(markup)} + actionsTables(markup);
    if (const Table last = legend(); !last.rows.isEmpty())
        all.append(last);
    return all;
}

QString MeetingPage::html(const QString &picture) const
{
    const QString title = inHtml(m_head.title());
    QString page = QStringLiteral("<!DOCTYPE html>\n%1\n<head>\n"
                                  "<meta charset=\"utf-8\">\n<title>%2</title>\n"
                                  "<style>%3</style>\n</head>\n<body>\n<h1>%2</h1>\n")
                       .arg(QString::fromUtf8(HtmlParts::root(QLocale().bcp47Name())), title,
                            QLatin1String(pageStyle));
    page += QStringLiteral("<div>%1</div>\n").arg(picture);
    const QVector<Table> all = tables({inHtml, linkInHtml, strongInHtml});
    for (const Table &table : all) {
        page += QStringLiteral("<h%1>%2</h%1>\n").arg(table.level).arg(table.heading);
        if (table.rows.isEmpty()) {
            page += QStringLiteral("<p>%1</p>\n").arg(table.remark);
            continue;
        }
        page += QStringLiteral("<table width=\"100%\" border=\"1\" cellspacing=\"0\" "
                               "cellpadding=\"4\">\n<tr><th>%1</th></tr>\n")
                    .arg(table.columns.join(QLatin1String("</th><th>")));
        for (const QStringList &row : table.rows)
            page +=
                QStringLiteral("<tr><td>%1</td></tr>\n").arg(row.join(QLatin1String("</td><td>")));
        page += QLatin1String("</table>\n");
    }
    return page + QLatin1String("</body>\n</html>\n");
}

QString MeetingPage::inMarkdown(const QVector<Table> &tables)
{
    QString page;
    for (const Table &table : tables) {
        page += QLatin1Char('\n') + QString(table.level, QLatin1Char('#')) + QLatin1Char(' ') +
                table.heading + QLatin1Char('\n');
        if (table.rows.isEmpty()) {
            if (!table.remark.isEmpty())
                page += QLatin1Char('\n') + table.remark + QLatin1Char('\n');
            continue;
        }
        const QString rule = QStringLiteral("|---").repeated(int(table.columns.size()));
        page +=
            QStringLiteral("\n| %1 |\n%2|\n").arg(table.columns.join(QLatin1String(" | ")), rule);
        for (const QStringList &row : table.rows)
            page += QStringLiteral("| %1 |\n").arg(row.join(QLatin1String(" | ")));
    }
    return page;
}

QString MeetingPage::markdown(const QString &pictureName) const
{
    const QString title = textInMarkdown(m_head.title());
    return QStringLiteral("# %1\n\n").arg(title) + QLatin1Char('!') +
           linkInMarkdown(title, pictureName) + QLatin1Char('\n') +
           inMarkdown(tables({textInMarkdown, linkInMarkdown, strongInMarkdown}));
}

QString MeetingPage::actionsMarkdown() const
{
    return QStringLiteral("# %1\n").arg(textInMarkdown(m_head.title())) +
           inMarkdown(actionsTables({textInMarkdown, linkInMarkdown, strongInMarkdown}));
}

QByteArray MeetingPage::actionsCsv(QChar separator) const
{
    // The mark in front tells spreadsheets that it is UTF-8.
    QByteArray bytes = "\xef\xbb\xbf" +
                       CsvTable::line({MeetingReport::tr("Action"), MeetingReport::tr("In"),
                                       MeetingReport::tr("Responsible"), MeetingReport::tr("Until"),
                                       MeetingReport::tr("Status"), MeetingReport::tr("Progress"),
                                       MeetingReport::tr("Overdue")},
                                      separator);
    for (const MeetingReport::Action &action : m_actions) {
        const TreeItem &subject = *action.subject;
        bytes += CsvTable::line({CsvTable::guarded(subject.title()),
                                 CsvTable::guarded(subject.parent()->title()),
                                 CsvTable::guarded(action.person), action.end.toString(Qt::ISODate),
                                 ClearContent::meaningOf(subject.status()),
                                 QString::number(std::max(0, subject.progress())),
                                 action.isOverdue ? MeetingReport::tr("yes") : QString()},
                                separator);
    }
    return bytes;
}
