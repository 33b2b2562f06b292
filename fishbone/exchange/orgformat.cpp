// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/orgkeywords.h>
#include <fishbone/exchange/orgreader.h>
#include <fishbone/exchange/orgtext.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/subjectattributes.h>
#include <fishbone/model/jsonnodes.h>

#include <QDateTime>
#include <QLocale>

namespace {

using SubjectAttributes::Attribute;

/** Whether the field stands elsewhere than among the properties. */
bool isNative(const Attribute &attribute, const TreeItem &subject)
{
    if (attribute.key == JsonNodes::statusKey)
        return !OrgKeywords::wordOf(subject.status()).isEmpty();
    return attribute.key == JsonNodes::detailKey;
}

QString property(const QString &name, const QString &value)
{
    return QStringLiteral(":%1: %2\n").arg(name, OrgText::quoted(value));
}

QString propertiesOf(const TreeItem &subject)
{
    QString text;
    if (!OrgText::isPlainTitle(subject.title()))
        text += property(OrgText::titleProperty, subject.title());
    if (!subject.detail().isEmpty() && !OrgText::isPlainDetail(subject.detail()))
        text += property(OrgText::detailProperty, subject.detail());
    for (const Attribute &attribute : SubjectAttributes::all()) {
        const QString value = attribute.text(subject);
        const bool isId = attribute.key == JsonNodes::uuidKey;
        if (!value.isEmpty() && !isNative(attribute, subject))
            text += property(isId ? QStringLiteral("ID") : QString(attribute.key), value);
    }
    return text.isEmpty() ? text : QStringLiteral(":PROPERTIES:\n%1:END:\n").arg(text);
}

/** The line that shows when a subject shall be done; the exact time is among the properties. */
QString planningOf(const TreeItem &subject)
{
    const QDate day = QDateTime::fromMSecsSinceEpoch(subject.planEndDate()).date();
    if (subject.planEndDate() == 0 || day.year() < 1 || day.year() > 9999)
        return QString();
    return QStringLiteral("DEADLINE: <%1 %2>\n")
        .arg(day.toString(Qt::ISODate),
             QLocale::c().dayName(day.dayOfWeek(), QLocale::ShortFormat));
}

QString headingOf(const TreeItem &subject, int level)
{
    QString line(level + 1, QLatin1Char('*'));
    const QString word = OrgKeywords::wordOf(subject.status());
    if (!word.isEmpty())
        line += QLatin1Char(' ') + word;
    const QString title =
        OrgText::isPlainTitle(subject.title()) ? subject.title() : QStringLiteral("…");
    return line + QLatin1Char(' ') + title + QLatin1Char('\n');
}

bool readOrg(const QByteArray &bytes, ImportedTree &tree)
{
    const std::optional<QString> text = ExchangeText::decode(bytes, tree);
    return text && OrgReader(*text, tree).read();
}

QByteArray writeOrg(const TreeItem &head)
{
    QString text = OrgKeywords::declaration + QLatin1String("\n\n");
    OutlineWalk::walk(head, [&text](const TreeItem &subject, int level) {
        text += headingOf(subject, level) + planningOf(subject) + propertiesOf(subject);
        if (!subject.detail().isEmpty() && OrgText::isPlainDetail(subject.detail()))
            text += subject.detail() + QLatin1Char('\n');
    });
    return text.toUtf8();
}

} // namespace

const ExchangeFormat ExchangeFormats::org{DiagramExchange::Format::Org,
                                          "org",
                                          QT_TRANSLATE_NOOP("DiagramExchange", "Org outline"),
                                          "org",
                                          "title children *",
                                          readOrg,
                                          writeOrg};
