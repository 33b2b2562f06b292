// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

/**
 * Prints what is below @p index as an outline. Depth is the caller's only by a list, not by the
 * stack of calls, so that any diagram can be printed.
 */
void print(const QAbstractItemModel &model, const QModelIndex &top, QTextStream &out)
{
    struct Line
    {
        QModelIndex index;
        int depth;
    };
    QList<Line> open{{top, 0}};
    while (!open.isEmpty()) {
        const Line line = open.takeLast();
        out << QString(2 * line.depth, QLatin1Char(' ')) << line.index.data().toString() << '\n';
        for (int row = model.rowCount(line.index) - 1; row >= 0; --row)
            open.append({model.index(row, 0, line.index), line.depth + 1});
    }
}

QJsonObject readObject(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

} // namespace

/**
 * Loads a diagram without any window, prints it as an outline, saves it under another name and
 * compares what both files hold.
 */
int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 3) {
        errors << "Usage: fishbone-model-only DIAGRAM COPY\n";
        return 2;
    }

    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM); // plain titles, without the counts of tasks
    if (model.loadFishFromFile(arguments.at(1)) != MODEL_NO_ERROR) {
        errors << "There is no diagram in " << arguments.at(1) << '\n';
        return 1;
    }
    QTextStream out(stdout);
    print(model, model.index(0, 0), out);

    if (!model.fishList().constFirst()->saveFile(arguments.at(2))) {
        errors << "Nothing can be written to " << arguments.at(2) << '\n';
        return 1;
    }
    FishModel copies;
    copies.loadFishFromFile(arguments.at(2));
    QJsonObject original;
    FishModel::write(original, model.getFishHeadTreeItem(), true);
    const bool isEqual = original == readObject(arguments.at(2));
    out << (isEqual ? "The copy holds the same diagram.\n" : "The copy differs.\n");
    return isEqual ? 0 : 1;
}
