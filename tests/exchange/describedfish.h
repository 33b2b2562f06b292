// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/svgpicture.h>

#include <tests/support/clearpictures.h>

#include <QBuffer>

/** Pictures that describe themselves, of diagrams that tests make up. */
namespace DescribedFish {

inline ClearFonts fonts()
{
    return ClearFonts(QFont(QStringLiteral("Noto Sans CJK SC")));
}

/** A picture with all that it needs. */
struct Made
{
    explicit Made(ClearPictureContent made, const ClearOptions &options = {})
        : content(std::move(made))
        , tree(content.subjects)
        , layout(tree, fonts(), options, cache, content.legendTexts())
        , picture(content, layout, fonts(), ClearColors(DiagramLook::DistinctColors))
    {
    }

    QByteArray svg(const SvgPictureOptions &options = {}) const
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return SvgPicture::write(picture, options, buffer) ? buffer.data() : QByteArray();
    }

    ClearPictureContent content;
    ClearTree tree;
    ClearTextCache cache;
    ClearLayout layout;
    ClearPicture picture;
};

/** A head, a category and causes with these titles, each with that link. */
inline ClearPictureContent contentWith(const QStringList &titles, const QString &link = {})
{
    std::vector<ClearSubject> subjects(2);
    subjects[0].title = QStringLiteral("Effect");
    subjects[1].title = QStringLiteral("Category");
    subjects[1].parent = 0;
    for (const QString &title : titles) {
        ClearSubject subject;
        subject.parent = 1;
        subject.title = title;
        subject.hasLink = !link.isEmpty();
        subjects.push_back(subject);
    }
    ClearPictureContent content = ClearPictures::contentOf(subjects);
    for (std::size_t i = 2; i < subjects.size(); ++i)
        content.meanings[i].link = link;
    return content;
}

} // namespace DescribedFish
