// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/base/filenames.h>

#include <QStringList>

namespace {

/** @p path with the separators that every system takes. */
QString withSlashes(QString path)
{
    return path.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

bool isAsciiLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
           (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

} // namespace

namespace FileNames {

bool isForbidden(QChar c, System system)
{
    if (c == QLatin1Char('/') || c == QLatin1Char('\\') || c.category() == QChar::Other_Control)
        return true;
    return system == System::Windows && QStringLiteral("<>:\"|?*").contains(c);
}

bool isDevice(const QString &name)
{
    const QString stem = name.section(QLatin1Char('.'), 0, 0).trimmed().toUpper();
    static const QStringList names{QStringLiteral("CON"),    QStringLiteral("PRN"),
                                   QStringLiteral("AUX"),    QStringLiteral("NUL"),
                                   QStringLiteral("CONIN$"), QStringLiteral("CONOUT$")};
    if (names.contains(stem))
        return true;
    const bool isPort = stem.size() == 4 && (stem.startsWith(QLatin1String("COM")) ||
                                             stem.startsWith(QLatin1String("LPT")));
    // Digits as of a footnote count, too.
    return isPort && stem.at(3).digitValue() >= 0;
}

bool areSame(const QString &first, const QString &second, System system)
{
    switch (system) {
    case System::Windows:
        return withSlashes(first).compare(withSlashes(second), Qt::CaseInsensitive) == 0;
    case System::Mac:
        return first.normalized(QString::NormalizationForm_C)
                   .compare(second.normalized(QString::NormalizationForm_C), Qt::CaseInsensitive) ==
               0;
    case System::Unix:
        break;
    }
    return first == second;
}

bool isWindowsPath(const QString &text)
{
    const bool isShare = text.size() > 2 && text.startsWith(QLatin1String("\\\\")) &&
                         text.at(2) != QLatin1Char('\\');
    const bool hasDrive = text.size() > 2 && isAsciiLetter(text.at(0)) &&
                          text.at(1) == QLatin1Char(':') &&
                          (text.at(2) == QLatin1Char('\\') || text.at(2) == QLatin1Char('/'));
    return isShare || hasDrive;
}

QUrl toUrl(const QString &link)
{
    return isWindowsPath(link) ? QUrl::fromLocalFile(withSlashes(link))
                               : QUrl(link, QUrl::TolerantMode);
}

} // namespace FileNames
