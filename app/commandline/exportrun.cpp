// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/exportrun.h>

#include <app/commandline/commandline.h>
#include <app/common/canvastheme.h>
#include <app/export/clearexport.h>
#include <app/export/leveldrawing.h>
#include <app/files/documentloader.h>
#include <app/files/importsummary.h>

#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QEventLoop>

namespace {

/** Loads @p source into @p loader's model; null and a message when that fails. */
FishInfo *loadNow(DocumentLoader &loader, const QString &source, QString &message)
{
    FishInfo *loadedDocument = nullptr;
    QEventLoop loop;
    QObject::connect(&loader, &DocumentLoader::loaded, &loop,
                     [&](const QString &, FishInfo *document) { loadedDocument = document; });
    QObject::connect(&loader, &DocumentLoader::failed, &loop,
                     [&](const QString &, const QString &reason) {
                         message = CommandLine::tr("cannot read %1: %2").arg(source, reason);
                     });
    QObject::connect(&loader, &DocumentLoader::reported, &loop, &ImportSummary::print);
    QObject::connect(&loader, &DocumentLoader::idle, &loop, &QEventLoop::quit);
    loader.load(source);
    if (!loader.isIdle())
        loop.exec();
    return loadedDocument;
}

/** What @p line has the drawing arranged for, a wide slide when it does not say. */
QSizeF pageOf(const CommandLine &line)
{
    if (line.look.page)
        return line.look.page->drawable();
    return line.options.size.isEmpty() ? QSizeF(16, 9) : QSizeF(line.options.size);
}

/** Draws @p document of @p model into a slide; returns an exit code. */
int drawSlide(FishModel &model, FishInfo *document, const CommandLine &line, QString &message)
{
    const CanvasTheme theme; // gives the bones the user's style
    LevelDrawing drawing(model, model.index(model.fishRow(document), 0));
    const TreeItem &head = *document->treeItem()->childAtIndex(0);
    const QSizeF page = pageOf(line);
    DiagramLook::Options options = line.look.view.options;
    if (line.look.view.look == DiagramLook::Clear) {
        DiagramPicture picture(&head, options, line.levels);
        picture.arrangeFor(page);
        options = picture.options();
    }
    drawing.setLook(line.look.view.look, options);
    drawing.expand(line.levels);
    drawing.update();
    QString reason;
    if (SlideExport::write(*drawing.scene(), head, line.target, SlideExport::aspectFor(page),
                           &reason))
        return CommandLine::success;
    message = CommandLine::tr("cannot write %1: %2").arg(line.target, reason);
    return CommandLine::failure;
}

/** Draws the diagram below @p head in the clear look into the target of @p line. */
PictureExport::Result drawClear(const TreeItem *head, const CommandLine &line,
                                const PictureOptions &options)
{
    const LookChoice &look = line.look;
    DiagramPicture picture(head, look.view.options, line.levels);
    picture.arrangeFor(pageOf(line));
    return ClearExport::write(picture, look.page, line.target,
                              ClearExport::suited(options, look.view.options));
}

/** Draws @p document of @p model in a look that draws with items. */
PictureExport::Result drawItems(FishModel &model, FishInfo *document, const CommandLine &line,
                                const PictureOptions &options)
{
    const CanvasTheme theme; // gives the bones the user's style
    LevelDrawing drawing(model, model.index(model.fishRow(document), 0));
    drawing.setLook(line.look.view.look, line.look.view.options);
    drawing.expand(line.levels);
    return PictureExport::write(*drawing.scene(), line.target, options);
}

/** Draws @p document of @p model into the target of @p line; returns an exit code. */
int drawPicture(FishModel &model, FishInfo *document, const CommandLine &line, QString &message)
{
    if (SlideExport::isSlide(line.target))
        return drawSlide(model, document, line, message);
    const TreeItem *const head = document->treeItem()->childAtIndex(0);
    PictureOptions options = line.options;
    options.title = head->title();
    const PictureExport::Result result = line.look.view.look == DiagramLook::Clear
                                             ? drawClear(head, line, options)
                                             : drawItems(model, document, line, options);
    if (result)
        return CommandLine::success;
    message = CommandLine::tr("cannot write %1: %2").arg(line.target, result.reason);
    return CommandLine::failure;
}

} // namespace

int runExport(const CommandLine &line, QString &message)
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM); // a picture shows the diagram's title without counts
    DocumentLoader loader(&model);
    FishInfo *const document = loadNow(loader, line.documents.constFirst(), message);
    return document ? drawPicture(model, document, line, message) : CommandLine::failure;
}

int drawPicture(std::unique_ptr<TreeItem> head, const CommandLine &line, QString &message)
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    model.insertExistItemRows(QModelIndex(), {head.release()});
    return drawPicture(model, model.fishList().constFirst(), line, message);
}

std::unique_ptr<TreeItem> fetchDiagram(const QString &source, QString &message)
{
    FishModel model;
    DocumentLoader loader(&model);
    FishInfo *const document = loadNow(loader, source, message);
    return std::unique_ptr<TreeItem>(
        document ? model.takeRow(model.fishRow(document), QModelIndex()) : nullptr);
}
