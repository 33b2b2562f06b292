// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <benchmarks/synthetic.h>

#include <deque>

#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QUuid>

#include <fishbone/model/fishmodel.h>

namespace Synthetic {

namespace {

constexpr int chainLength = 400;
constexpr qint64 firstDay = 1767225600000; // 2026-01-01, milliseconds since the epoch
constexpr qint64 day = 86400000;

class Writer
{
public:
    explicit Writer(quint32 seed)
        : m_random(seed)
    {
    }

    int between(int lowest, int highest) { return m_random.bounded(lowest, highest + 1); }

    TreeItem *append(TreeItem *parent)
    {
        auto item = std::make_unique<TreeItem>(text(between(8, 20)), uuid(), showId(),
                                               parent->uuid(), between(0, 3), parent);
        fill(*item);
        TreeItem *const appended = item.release();
        parent->appendChild(appended);
        return appended;
    }

    std::unique_ptr<TreeItem> head()
    {
        auto item = std::make_unique<TreeItem>(text(12), uuid(), showId(), QStringLiteral("-1"), 0);
        fill(*item);
        return item;
    }

private:
    QString text(int length)
    {
        static const QString letters =
            QStringLiteral("etaoin shrdlu cmfwyp ETAOINS 人机料法环测缺陷原因分析延期质量");
        QString result;
        for (int i = 0; i < length; ++i)
            result.append(letters.at(between(0, letters.length() - 1)));
        return result;
    }

    QString uuid()
    {
        quint32 words[4];
        m_random.fillRange(words);
        const auto *const bytes = reinterpret_cast<const char *>(words);
        return QUuid::fromRfc4122(QByteArray(bytes, sizeof words)).toString();
    }

    QString showId() { return QStringLiteral("T-%1").arg(++m_written, 6, 10, QLatin1Char('0')); }

    void fill(TreeItem &item)
    {
        item.setDetail(text(40));
        item.setStatus(between(0, 7));
        item.setProgress(between(0, 100));
        item.setPriority(between(0, 4));
        item.setUrl(QStringLiteral("https://example.org/task/%1").arg(m_written));
        item.setManagerName(text(8));
        item.setManagerId(QStringLiteral("u-%1").arg(between(1, 999)));
        item.setCreatorName(text(8));
        item.setCreatorId(QStringLiteral("u-%1").arg(between(1, 999)));
        item.setFollowers(QStringList{QStringLiteral("u-1"), QStringLiteral("u-2")});
        item.setCreateDate(firstDay + day * between(0, 300));
        item.setPlanEndDate(firstDay + day * between(300, 600));
    }

    QRandomGenerator m_random;
    int m_written = 0;
};

void growFan(Writer &writer, TreeItem *head, int missing)
{
    std::deque<TreeItem *> parents{head};
    while (missing > 0) {
        TreeItem *const parent = parents.front();
        parents.pop_front();
        for (int children = qMin(missing, writer.between(5, 8)); children > 0; --children) {
            parents.push_back(writer.append(parent));
            --missing;
        }
    }
}

void growChains(Writer &writer, TreeItem *head, int missing, int length)
{
    while (missing > 0) {
        TreeItem *end = head;
        for (int i = qMin(missing, length); i > 0; --i) {
            end = writer.append(end);
            --missing;
        }
    }
}

QStringList shapeNames()
{
    return {QStringLiteral("fan"), QStringLiteral("wide"), QStringLiteral("wide2"),
            QStringLiteral("deep")};
}

} // namespace

QString nameOf(Shape shape)
{
    return shapeNames().at(int(shape));
}

bool shapeFromName(const QString &name, Shape *shape)
{
    const int found = shapeNames().indexOf(name);
    if (found < 0)
        return false;
    *shape = static_cast<Shape>(found);
    return true;
}

std::unique_ptr<TreeItem> makeTree(Shape shape, int count, quint32 seed)
{
    Writer writer(seed);
    std::unique_ptr<TreeItem> head = writer.head();
    const int missing = qMax(0, count - 1);
    switch (shape) {
    case Shape::Fan:
        growFan(writer, head.get(), missing);
        break;
    case Shape::Wide:
        growChains(writer, head.get(), missing, 1);
        break;
    case Shape::Wide2:
        growChains(writer, head.get(), missing, 2);
        break;
    case Shape::Deep:
        growChains(writer, head.get(), missing, chainLength);
        break;
    }
    return head;
}

QByteArray makeDocument(Shape shape, int count, quint32 seed)
{
    const std::unique_ptr<TreeItem> head = makeTree(shape, count, seed);
    QJsonObject object;
    FishModel::write(object, head.get(), true);
    return QJsonDocument(object).toJson();
}

} // namespace Synthetic
