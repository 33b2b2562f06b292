// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// A document from anywhere: loaded, shown, expanded, laid out again, painted, saved and loaded
// again.

#include <fuzz/fuzzing.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

using namespace Fuzzing;

namespace {

int nodesBelow(const TreeItem &container)
{
    QList<TreeItem *> nodes = container.childItems();
    for (int i = 0; i < nodes.size(); ++i)
        nodes.append(nodes.at(i)->childItems());
    return int(nodes.size());
}

int spearsBelow(SpearItem *head)
{
    QList<SpearItem *> spears{head};
    for (int i = 0; i < spears.size(); ++i)
        spears.append(spears.at(i)->childSpears());
    return int(spears.size());
}

void show(FishModel &model, int nodes)
{
    FishEditor editor;
    editor.resize(400, 300);
    editor.setModel(&model);
    editor.setRootIndex(model.index(0, 0));
    require(editor.headSpear(), "a loaded diagram is shown");
    editor.expandAll();
    require(spearsBelow(editor.headSpear()) == nodes, "an expanded diagram shows every subject");
    const QRectF expanded = editor.scene()->itemsBoundingRect();
    editor.updateFish(false);
    require(editor.scene()->itemsBoundingRect() == expanded, "a second layout changes nothing");
    editor.showEntire();
    QImage picture(64, 48, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    editor.scene()->render(&painter, picture.rect(), expanded);
    painter.end();
    editor.contractAll();
    editor.updateFish(true);
}

QByteArray saved(FishInfo &document)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("saved.fishbone.json"));
    writeFile(path, "old");
    const bool isSaved = document.saveFile(path);
    const QByteArray content = contentOf(path);
    require(isSaved || content == "old", "what is refused leaves the old content");
    return isSaved ? content : QByteArray();
}

QByteArray savedAfterLoading(const QByteArray &json, int nodes)
{
    FishModel model;
    FishInfo *const document = model.loadJsonFish(json);
    require(document, "what was saved is read again");
    require(document->nodeCount() == nodes, "saving keeps every subject");
    return saved(*document);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startApplication();
    FishModel model;
    const QByteArray json(reinterpret_cast<const char *>(data), int(size));
    FishInfo *const document = model.loadJsonFish(json);
    if (!document) {
        require(model.rowCount() == 0, "what is no document leaves nothing behind");
        return 0;
    }
    const int nodes = nodesBelow(*document->treeItem());
    require(document->nodeCount() == nodes, "the document counts its subjects");
    if (nodes > 0)
        show(model, nodes);

    const QByteArray first = saved(*document);
    require(!first.isEmpty(), "what was read can be saved");
    // A text of another type than a text is saved as none, read as an empty one and saved as that.
    const QByteArray second = savedAfterLoading(first, nodes);
    const QByteArray third = savedAfterLoading(second, nodes);
    requireEqual(third, second, "what was saved and read is saved as the same bytes");
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t room,
                                    unsigned int seed)
{
    return mutateJson(data, size, room, seed);
}
