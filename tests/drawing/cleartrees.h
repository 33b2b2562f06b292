// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/cleartree.h>
#include <tests/support/sourcefolder.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QStringList>

#include <set>
#include <vector>

/** What tests lay out: trees from files and random ones. */
namespace ClearTrees {

struct Loaded
{
    std::vector<ClearSubject> subjects;
    std::vector<int> statuses; ///< one a subject
};

inline void append(Loaded &out, const QJsonObject &node, int parent)
{
    ClearSubject subject;
    subject.parent = parent;
    subject.title = node.value(QStringLiteral("title")).toString();
    const int status = node.value(QStringLiteral("status")).toInt(-1);
    subject.hasStatus = status > 0;
    subject.hasLink = !node.value(QStringLiteral("url")).toString().isEmpty();
    const int index = int(out.subjects.size());
    out.subjects.push_back(subject);
    out.statuses.push_back(status);
    const QJsonArray children = node.value(QStringLiteral("children")).toArray();
    for (const QJsonValue &child : children)
        append(out, child.toObject(), index);
}

/** The tree of the document @p path, which is no deeper than documents are. */
inline Loaded load(const QString &path)
{
    Loaded out;
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        append(out, QJsonDocument::fromJson(file.readAll()).object(), -1);
    return out;
}

inline QString fixture(const char *name)
{
    return TestSupport::sourceFile(QStringLiteral("tests/drawing/fixtures/tree_%1.json"))
        .arg(QLatin1String(name));
}

/** The names of the statuses that are in use. */
inline std::vector<QString> legend(const Loaded &tree)
{
    static const QStringList names{QStringLiteral("unknown"),   QStringLiteral("cancelled"),
                                   QStringLiteral("finished"),  QStringLiteral("finished late"),
                                   QStringLiteral("postponed"), QStringLiteral("running"),
                                   QStringLiteral("waiting"),   QStringLiteral("for approval")};
    const std::set<int> used(tree.statuses.cbegin() + 1, tree.statuses.cend());
    std::vector<QString> out;
    for (const int status : used) {
        if (status > 0 && status < names.size())
            out.push_back(names.at(status));
    }
    return out;
}

struct Kind
{
    int subjects = 100;
    int categories = 6;
    int depth = 4;
    bool hasOddities = true; ///< hidden subjects, links, line breaks, own fonts
};

inline QString randomTitle(QRandomGenerator &random)
{
    static const QStringList latin{
        QStringLiteral("Worn"),
        QStringLiteral("bearing"),
        QStringLiteral("not"),
        QStringLiteral("calibrated"),
        QStringLiteral("since"),
        QStringLiteral("a"),
        QStringLiteral("last"),
        QStringLiteral("audit"),
        QStringLiteral("network-interface"),
        QStringLiteral("Donaudampfschifffahrtsgesellschaftskapit\u00e4n"),
        QStringLiteral("/var/lib/service_account/credentials-cache")};
    static const QString chinese = QStringLiteral("\u667a\u80fd\u67dc\u9879\u76ee\u4ea4\u4ed8"
                                                  "\u5ef6\u671f\u4e09\u5468\u6d4b\u91cf");
    static const QStringList arabic{QStringLiteral("\u062a\u0623\u062e\u064a\u0631"),
                                    QStringLiteral("\u0627\u0644\u062a\u0633\u0644\u064a\u0645"),
                                    QStringLiteral("\u0641\u064a"),
                                    QStringLiteral("\u0627\u0644\u0645\u0635\u0646\u0639")};
    const int script = int(random.bounded(8));
    QString title;
    if (script == 0) {
        const int length = 1 + int(random.bounded(30));
        for (int i = 0; i < length; ++i)
            title += chinese.at(int(random.bounded(int(chinese.size()))));
        return title;
    }
    const QStringList &words = script == 1 ? arabic : latin;
    const int length = 1 + int(random.bounded(8));
    for (int i = 0; i < length; ++i)
        title += (i ? QStringLiteral(" ") : QString()) +
                 words.at(int(random.bounded(int(words.size()))));
    return title;
}

/** A tree made with @p seed. */
inline std::vector<ClearSubject> random(quint32 seed, const Kind &kind)
{
    QRandomGenerator random(seed);
    std::vector<std::vector<int>> children(1);
    std::vector<int> levels{0};
    for (int i = 1; i < kind.subjects; ++i) {
        int parent = 0;
        if (i > kind.categories) {
            do
                parent = 1 + int(random.bounded(i - 1));
            while (levels[std::size_t(parent)] >= kind.depth);
        }
        children[std::size_t(parent)].push_back(i);
        children.emplace_back();
        levels.push_back(levels[std::size_t(parent)] + 1);
    }
    // Into document order.
    std::vector<ClearSubject> out;
    std::vector<std::pair<int, int>> open{{0, -1}};
    while (!open.empty()) {
        const auto [node, parent] = open.back();
        open.pop_back();
        ClearSubject subject;
        subject.parent = parent;
        subject.title = randomTitle(random);
        subject.hasStatus = random.bounded(2) == 0;
        const std::vector<int> &below = children[std::size_t(node)];
        if (kind.hasOddities) {
            subject.hasLink = random.bounded(4) == 0;
            if (random.bounded(4) == 0)
                subject.votes = 1 + int(random.bounded(120));
            subject.isFilled = (subject.votes + subject.title.size()) % 3 == 0;
            if (below.empty() && random.bounded(5) == 0)
                subject.hidden = 1 + int(random.bounded(200));
            if (random.bounded(10) == 0)
                subject.title.insert(subject.title.size() / 2, u'\n');
            if (random.bounded(12) == 0)
                subject.font =
                    ClearFont(QFont(QStringLiteral("DejaVu Sans")), 8 + int(random.bounded(20)));
        }
        const int index = int(out.size());
        out.push_back(subject);
        for (auto child = below.crbegin(); child != below.crend(); ++child)
            open.emplace_back(*child, index);
    }
    return out;
}

} // namespace ClearTrees
