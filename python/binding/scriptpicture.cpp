// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <python/binding/scriptpicture.h>

#include <python/binding/scriptjson.h>
#include <python/binding/scriptsubject.h>

#include <fishbone/drawing/lookinfo.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/style/spearstyle.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr double dotsOfPaper = 192; // for each inch of a picture of pixels
constexpr double millimetresPerInch = 25.4;

const LookInfo *lookOf(const QJsonObject &options)
{
    return LookInfo::find(options.value(QLatin1String("look")).toString());
}

QSizeF pageOf(const QJsonObject &options)
{
    return {options.value(QLatin1String("width")).toDouble(),
            options.value(QLatin1String("height")).toDouble()};
}

bool isPaper(const QJsonObject &options)
{
    return options.value(QLatin1String("isPaper")).toBool();
}

PictureOptions pictureOptions(const QJsonObject &options)
{
    PictureOptions picture;
    picture.scale = options.value(QLatin1String("scale")).toDouble(picture.scale);
    picture.margin = options.value(QLatin1String("margin")).toDouble(picture.margin);
    picture.title = options.value(QLatin1String("title")).toString();
    const QJsonValue background = options.value(QLatin1String("background"));
    if (background.isString())
        picture.background = QColor(background.toString());
    const QSizeF page = pageOf(options);
    if (!page.isEmpty())
        picture.size =
            (isPaper(options) ? page * (dotsOfPaper / millimetresPerInch) : page).toSize();
    return picture;
}

PictureExport::Result writeClear(const TreeItem *head, const QString &fileName,
                                 const QJsonObject &options)
{
    const QJsonValue levels = options.value(QLatin1String("levels"));
    DiagramPicture picture(head, DiagramLook::Options::fromJson(options),
                           levels.toInt(DiagramPicture::allLevels));
    const QSizeF page = pageOf(options);
    if (!page.isEmpty())
        picture.arrangeFor(page);
    const PictureOptions how = pictureOptions(options);
    const bool isPdf = PictureExport::formatOf(fileName) == PictureExport::Format::Pdf;
    if (isPdf && isPaper(options))
        return picture.writePage(fileName, page, DiagramPicture::pageMargin, how);
    return picture.write(fileName, how);
}

// An editor takes the diagram that it shows away from any other that shows it: this one gets a
// copy.
PictureExport::Result writeClassic(TreeItem *head, const QString &fileName,
                                   const QJsonObject &options)
{
    QJsonObject copy;
    FishModel::write(copy, head, true);
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    FishInfo *const document = model.loadJsonFish(QJsonDocument(copy).toJson());
    if (!document)
        return {PictureExport::Error::TooLarge, QStringLiteral("the diagram has too many levels")};
    FishEditor editor;
    editor.setAutosaveInterval(0);
    editor.setModel(&model);
    editor.setRootIndex(model.indexFromItem(document->treeItem()->childAtIndex(0)));
    editor.expandAll();
    return PictureExport::write(*static_cast<QGraphicsScene *>(editor.scene()), fileName,
                                pictureOptions(options));
}

} // namespace

QString ScriptPicture::write(const ScriptSubject &subject, const QString &fileName,
                             const QString &options)
{
    TreeItem *const head = subject.item();
    const QJsonObject how = ScriptJson::objectOf(options);
    const LookInfo *const look = lookOf(how);
    if (!head)
        return QStringLiteral("there is no diagram");
    if (!look)
        return QStringLiteral("there is no such look");
    const PictureExport::Result result = look->kind() == DiagramLook::Classic
                                             ? writeClassic(head, fileName, how)
                                             : writeClear(head, fileName, how);
    return result ? QString() : result.reason;
}

bool ScriptPicture::setLook(FishEditor *editor, const QString &options)
{
    const QJsonObject how = ScriptJson::objectOf(options);
    const LookInfo *const look = lookOf(how);
    if (!editor || !look)
        return false;
    editor->setLook(look->kind());
    editor->setLookOptions(DiagramLook::Options::fromJson(how));
    return true;
}

void ScriptPicture::setGlobalStyle(const QString &json)
{
    SpearStyle::global()->read(ScriptJson::objectOf(json));
    SpearStyle::m_isGlobalInited = true; // the folder of the interpreter has none
}
