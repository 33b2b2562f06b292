// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// The program from start to end as it draws a picture of a document, against Graphviz drawing the
// same tree.

#include <deque>

#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <benchmarks/paired.h>
#include <benchmarks/rows.h>
#include <benchmarks/synthetic.h>

namespace {

const QSize pictureSize(1280, 800);

/**
 * The tree in the language of dot, as one writes it for a picture of causes: boxes from left to
 * right, in a font that has all characters of the titles, without which dot draws empty boxes
 * faster.
 */
QByteArray dotOf(const TreeItem *head)
{
    QByteArray text("digraph {\nrankdir=LR\nnode [shape=box fontname=\"Noto Sans CJK SC\"]\n");
    std::deque<std::pair<const TreeItem *, int>> pending{{head, 0}};
    for (int number = 0; !pending.empty(); ++number) {
        const TreeItem *const node = pending.front().first;
        const int parent = pending.front().second;
        pending.pop_front();
        const QByteArray name = QByteArray::number(number);
        text += name + " [label=\"" + node->title().toUtf8() + "\"]\n";
        if (number > 0)
            text += QByteArray::number(parent) + " -> " + name + '\n';
        for (const TreeItem *child : node->childItems())
            pending.emplace_back(child, number);
    }
    return text + "}\n";
}

void write(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(fileName));
}

/** The time on the wall, as a user waits for it. */
double secondsOfProcess(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    process.waitForFinished(-1);
    const double seconds = double(timer.nsecsElapsed()) * 1e-9;
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("%s failed", qPrintable(program));
    return seconds;
}

class Exporting
{
public:
    Exporting(Synthetic::Shape shape, int count)
    {
        write(path("document.json"), Synthetic::makeDocument(shape, count));
        write(path("tree.dot"), dotOf(Synthetic::makeTree(shape, count).get()));
    }

    double ours() const
    {
        const QString picture = path("ours.png");
        const double seconds =
            secondsOfProcess(QStringLiteral(FISHBONE_PROGRAM),
                             {QStringLiteral("--export"), picture, QStringLiteral("--size"),
                              QStringLiteral("1280x800"), QStringLiteral("--expand"),
                              QStringLiteral("all"), path("document.json")});
        if (QImageReader(picture).size() != pictureSize)
            qFatal("the picture has another size");
        return seconds;
    }

    /** The picture in the size that dot chooses for it, which it shrinks itself when that is too
     * much. */
    double dot() const
    {
        return secondsOfProcess(
            QStringLiteral("dot"),
            {QStringLiteral("-Tpng"), QStringLiteral("-o"), path("dot.png"), path("tree.dot")});
    }

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

void compareWithDot(benchmark::State &state, Synthetic::Shape shape, int size)
{
    const Exporting subject(shape, size);
    Paired::compare(
        state, [&subject] { return subject.ours(); }, [&subject] { return subject.dot(); });
}

/** Where dot would take minutes. */
void exportOnly(benchmark::State &state, Synthetic::Shape shape, int size)
{
    const Exporting subject(shape, size);
    std::vector<double> milliseconds;
    for (auto _ : state)
        milliseconds.push_back(subject.ours() * 1000);
    state.counters["ours_ms"] = Paired::median(milliseconds);
}

} // namespace

void addRows()
{
    using Synthetic::Shape;
    const std::string name("G17 export");
    for (const int size : Paired::gateSizes) {
        Paired::add(name, Shape::Fan, size, compareWithDot)->Iterations(Paired::repetitions);
        for (const Shape shape : {Shape::Wide, Shape::Wide2})
            Paired::add(name, shape, size, exportOnly)->Iterations(Paired::fewRepetitions);
    }
    Paired::add(name, Shape::Fan, Paired::largeSize, exportOnly)->Iterations(1);
}
