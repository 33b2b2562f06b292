// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/pagesize.h>

#include <fishbone/exchange/diagrampicture.h>

#include <QRegularExpression>

namespace {

constexpr double usualDots = 96;    ///< an inch
constexpr double printedDots = 192; ///< an inch of paper, as pixels
constexpr double inchInMillimetres = 25.4;

struct Named
{
    const char *name;
    double width;
    double height;
    bool isMillimetres;
};

constexpr Named pages[] = {
    {"16:9", 1920, 1080, false},
    {"A4", 297, 210, true},
    {"A3", 420, 297, true},
    {"Letter", 279.4, 215.9, true},
};

} // namespace

QStringList PageSize::names()
{
    QStringList names;
    for (const Named &page : pages)
        names.append(QLatin1String(page.name));
    return names;
}

std::optional<PageSize> PageSize::of(const QString &text)
{
    for (const Named &page : pages) {
        if (text.compare(QLatin1String(page.name), Qt::CaseInsensitive) == 0)
            return PageSize{QSizeF(page.width, page.height), page.isMillimetres};
    }
    static const QRegularExpression form(
        QStringLiteral("^([0-9]{1,5}(?:\\.[0-9]{1,3})?)x([0-9]{1,5}(?:\\.[0-9]{1,3})?)(mm|px)?$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    const QSizeF size(match.captured(1).toDouble(), match.captured(2).toDouble());
    if (size.isEmpty())
        return std::nullopt;
    return PageSize{size, match.captured(3).compare(QLatin1String("mm"), Qt::CaseInsensitive) == 0};
}

QSizeF PageSize::drawable() const
{
    if (!isMillimetres)
        return size;
    constexpr double margins = 2 * DiagramPicture::pageMargin;
    const QSizeF within = size - QSizeF(margins, margins);
    return within.isEmpty() ? size : within;
}

QSizeF PageSize::millimetres() const
{
    return isMillimetres ? size : size * (inchInMillimetres / usualDots);
}

QSize PageSize::pixels() const
{
    return (isMillimetres ? size * (printedDots / inchInMillimetres) : size).toSize();
}
