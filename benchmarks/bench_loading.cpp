// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Loading a document and showing it, against parsing its JSON alone; and the memory that a loaded
// document takes, against a bare tree of the same strings.

#include <memory>
#include <vector>

#include <malloc.h>

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

#include <benchmarks/paired.h>
#include <benchmarks/synthetic.h>

namespace {

/// What a host without the library would keep of a subject.
struct BareNode
{
    QString title, uuid, showid, pid, detail, url;
    QString managerName, managerId, creatorName, creatorId;
    QStringList followers;
    int type = 0, status = 0, progress = 0, priority = 0;
    qint64 createDate = 0, planEndDate = 0;
    BareNode *parent = nullptr;
    std::vector<std::unique_ptr<BareNode>> children;
};

QString textOf(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

std::unique_ptr<BareNode> bareTree(const QJsonObject &object, BareNode *parent)
{
    auto node = std::make_unique<BareNode>();
    node->parent = parent;
    node->title = textOf(object, "title");
    node->uuid = textOf(object, "uuid");
    node->showid = textOf(object, "showid");
    node->pid = textOf(object, "pid");
    node->detail = textOf(object, "detail");
    node->url = textOf(object, "url");
    node->managerName = textOf(object, "mgrname");
    node->managerId = textOf(object, "mgrid");
    node->creatorName = textOf(object, "creatorname");
    node->creatorId = textOf(object, "creatorid");
    node->type = object.value(QLatin1String("type")).toInt();
    node->status = object.value(QLatin1String("status")).toInt();
    node->progress = object.value(QLatin1String("progress")).toInt();
    node->priority = object.value(QLatin1String("priority")).toInt();
    node->createDate = qint64(object.value(QLatin1String("createdate")).toDouble());
    node->planEndDate = qint64(object.value(QLatin1String("planenddate")).toDouble());
    const QJsonArray followers = object.value(QLatin1String("followers")).toArray();
    for (const QJsonValue &follower : followers)
        node->followers.append(follower.toString());
    const QJsonArray children = object.value(QLatin1String("children")).toArray();
    node->children.reserve(std::size_t(children.count()));
    for (const QJsonValue &child : children)
        node->children.push_back(bareTree(child.toObject(), node.get()));
    return node;
}

std::size_t bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void loadAndShow(benchmark::State &state, Synthetic::Shape shape)
{
    const QByteArray document = Synthetic::makeDocument(shape, int(state.range(0)));
    const auto ours = [&document] {
        FishModel model;
        FishEditor editor;
        editor.setModel(&model);
        return Paired::secondsOf([&] {
            model.loadJsonFish(document);
            editor.setRootIndex(model.index(0, 0));
        });
    };
    const auto parseOnly = [&document] {
        QJsonDocument parsed;
        return Paired::secondsOf([&] { parsed = QJsonDocument::fromJson(document); });
    };
    Paired::compare(state, ours, parseOnly);
}

void loadIntoModel(benchmark::State &state, Synthetic::Shape shape)
{
    const QByteArray document = Synthetic::makeDocument(shape, int(state.range(0)));
    const auto ours = [&document] {
        FishModel model;
        return Paired::secondsOf([&] { model.loadJsonFish(document); });
    };
    const auto bare = [&document] {
        std::unique_ptr<BareNode> head;
        return Paired::secondsOf(
            [&] { head = bareTree(QJsonDocument::fromJson(document).object(), nullptr); });
    };
    Paired::compare(state, ours, bare);
}

void memoryOfLoaded(benchmark::State &state, Synthetic::Shape shape)
{
    const QByteArray document = Synthetic::makeDocument(shape, int(state.range(0)));
    double ours = 0;
    double bare = 0;
    for (auto _ : state) {
        const std::size_t before = bytesInUse();
        const std::unique_ptr<BareNode> head =
            bareTree(QJsonDocument::fromJson(document).object(), nullptr);
        const std::size_t between = bytesInUse();
        FishModel model;
        model.loadJsonFish(document);
        ours = double(bytesInUse() - between);
        bare = double(between - before);
    }
    state.counters["ours_bytes_each"] = ours / double(state.range(0));
    state.counters["bare_bytes_each"] = bare / double(state.range(0));
    state.counters["ratio"] = ours / bare;
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

void timed(benchmark::internal::Benchmark *benchmark)
{
    sizes(benchmark);
    benchmark->UseManualTime()->Iterations(Paired::repetitions);
}

void once(benchmark::internal::Benchmark *benchmark)
{
    sizes(benchmark);
    benchmark->Iterations(1);
}

BENCHMARK_CAPTURE(loadAndShow, fan, Synthetic::Shape::Fan)->Apply(timed);
BENCHMARK_CAPTURE(loadIntoModel, fan, Synthetic::Shape::Fan)->Apply(timed);
BENCHMARK_CAPTURE(memoryOfLoaded, fan, Synthetic::Shape::Fan)->Apply(once);

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
