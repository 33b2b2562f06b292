// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangefilters.h>

#include <fishbone/exchange/diagramexchange.h>

namespace {

/** The file patterns of a format, "*.md *.markdown". */
QString patterns(DiagramExchange::Format format)
{
    const QStringList suffixes = DiagramExchange::suffixes(format);
    return QLatin1String("*.") + suffixes.join(QLatin1String(" *."));
}

/** The foreign formats that @p can says yes to. */
QList<DiagramExchange::Format> foreignFormats(bool (*can)(DiagramExchange::Format))
{
    QList<DiagramExchange::Format> foreign;
    const QList<DiagramExchange::Format> all = DiagramExchange::formats();
    for (const DiagramExchange::Format format : all) {
        if (format != DiagramExchange::Format::Json && can(format))
            foreign.append(format);
    }
    return foreign;
}

/** A name filter for each of @p formats. */
QStringList nameFilters(const QList<DiagramExchange::Format> &formats)
{
    QStringList filters;
    for (const DiagramExchange::Format format : formats)
        filters.append(
            QStringLiteral("%1 (%2)").arg(DiagramExchange::name(format), patterns(format)));
    return filters;
}

} // namespace

QString ExchangeFilters::forImport()
{
    const QList<DiagramExchange::Format> formats = foreignFormats(DiagramExchange::canRead);
    QStringList all;
    for (const DiagramExchange::Format format : formats)
        all.append(patterns(format));
    const QString any = QStringLiteral("%1 (%2)").arg(DiagramExchange::tr("All formats"),
                                                      all.join(QLatin1Char(' ')));
    return (QStringList(any) + nameFilters(formats)).join(QLatin1String(";;"));
}

QString ExchangeFilters::forExport()
{
    return nameFilters(foreignFormats(DiagramExchange::canWrite)).join(QLatin1String(";;"));
}
