// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// What documents and drawings keep on the heap.

#include <malloc.h>

#include <QJsonDocument>

#include <benchmarks/baredrawing.h>
#include <benchmarks/baretree.h>
#include <benchmarks/paired.h>
#include <benchmarks/rows.h>
#include <benchmarks/shownfish.h>

namespace {

double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

/** What @p work leaves on the heap. */
template <typename Work>
double bytesKeptBy(Work &&work)
{
    const double before = bytesInUse();
    work();
    return bytesInUse() - before;
}

void report(benchmark::State &state, double ours, double bare, int count)
{
    state.counters["ours_bytes"] = ours / count;
    state.counters["bare_bytes"] = bare / count;
    state.counters["ratio"] = ours / bare;
}

void loadedNodes(benchmark::State &state, Synthetic::Shape shape, int size)
{
    const QByteArray document = Synthetic::makeDocument(shape, size);
    for (auto _ : state) {
        std::unique_ptr<BareNode> head;
        const double bare =
            bytesKeptBy([&] { head = bareTreeFrom(QJsonDocument::fromJson(document).object()); });
        FishModel model;
        const double ours = bytesKeptBy([&] { model.loadJsonFish(document); });
        report(state, ours, bare, size);
    }
}

void expandedBones(benchmark::State &state, Synthetic::Shape shape, int size)
{
    // Fonts, pictures and what else comes with the first drawing are there before.
    ShownFish fish(shape, size);
    fish.expandAll();
    const DrawingPlan plan = planOf(fish.editor.headSpear());
    BareDrawing drawing(plan);
    drawing.build();
    settle();
    for (auto _ : state) {
        fish.editor.setRootIndex(QModelIndex());
        drawing.clear();
        settle();
        const double bare = bytesKeptBy([&] {
            drawing.build();
            settle();
        });
        const double ours = bytesKeptBy([&] {
            fish.expandAll();
            settle();
        });
        report(state, ours, bare, size);
    }
}

double bytesToShowContracted(Synthetic::Shape shape, int size)
{
    ShownFish fish(shape, size);
    fish.editor.setRootIndex(fish.top());
    fish.editor.setRootIndex(QModelIndex());
    settle();
    return bytesKeptBy([&] {
        fish.editor.setRootIndex(fish.top());
        settle();
    });
}

/**
 * Of two fans that begin alike, the drawing of the larger one, contracted, takes as much: bones
 * that were never shown take nothing.
 */
void neverExpandedBones(benchmark::State &state, Synthetic::Shape shape, int size)
{
    for (auto _ : state) {
        const double small = bytesToShowContracted(shape, Paired::gateSizes[0]);
        const double large = bytesToShowContracted(shape, size);
        state.counters["bytes"] = (large - small) / (size - Paired::gateSizes[0]);
    }
}

} // namespace

void addRows()
{
    using Synthetic::Shape;
    for (const int size : {Paired::gateSizes[0], Paired::gateSizes[1], Paired::largeSize}) {
        for (const Shape shape : {Shape::Fan, Shape::Wide, Shape::Wide2}) {
            if (size == Paired::largeSize && shape != Shape::Fan)
                continue;
            Paired::add("G14a loaded node", shape, size, loadedNodes)->Iterations(1);
            Paired::add("G14b expanded bone", shape, size, expandedBones)->Iterations(1);
        }
    }
    for (const int size : {Paired::gateSizes[1], Paired::largeSize})
        Paired::add("G14c never expanded bone", Shape::Fan, size, neverExpandedBones)
            ->Iterations(1);
}
