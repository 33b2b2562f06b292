// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>
#include <QStringList>

#include <functional>
#include <utility>

class PictureSink;

/** A drawing that describes itself, piece by piece, and says beforehand what a file of it needs. */
class DescribedPicture
{
    Q_DISABLE_COPY(DescribedPicture)

public:
    DescribedPicture() = default;
    virtual ~DescribedPicture() = default;

    /** What it covers. */
    virtual QRectF bounds() const = 0;
    /** The font family of most of its texts. */
    virtual QString family() const = 0;
    /** The resources of all icons that it describes; some more than once, some of them empty. */
    virtual QStringList icons() const = 0;
    /** The titles of its categories in row order, which say in short what it is about. */
    virtual QStringList categories() const = 0;
    /** How many subjects it describes. */
    virtual int count() const = 0;

    /** Hears from time to time how many subjects are described; false ends that. */
    using Follower = std::function<bool(int done)>;
    void setFollower(Follower follower) { m_follower = std::move(follower); }

    /** Describes all of it to @p sink, in the order in which it is drawn. Linear. False when the
     * follower has ended it. */
    virtual bool describe(PictureSink &sink) const = 0;

protected:
    /** Whether to go on after @p done subjects. */
    bool goesOn(int done) const
    {
        constexpr int betweenQuestions = 64;
        return !m_follower || done % betweenQuestions != 0 || m_follower(done);
    }

private:
    Follower m_follower;
};
