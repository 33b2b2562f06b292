// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <python/binding/scriptpicture.h>

#include <python/binding/scriptjson.h>
#include <python/binding/scriptsubject.h>

#include <app/export/clearexport.h>
#include <app/export/leveldrawing.h>

#include <fishbone/drawing/lookinfo.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/pagesize.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/style/spearstyle.h>

namespace {

constexpr QSizeF wideScreen(16, 9);

/** What a script has told of a picture. */
struct Wish
{
    explicit Wish(const QJsonObject &options)
        : given(options)
        , look(DiagramLook::Options::fromJson(options))
        , page(PageSize::of(options.value(QLatin1String("page")).toString()))
        , levels(options.value(QLatin1String("levels")).toInt(DiagramPicture::allLevels))
        , isArranged(options.value(QLatin1String("arrange")).toBool())
    {
    }

    QSizeF shape() const { return page ? page->drawable() : wideScreen; }
    PictureOptions pictureOptions(bool isClear) const;
    std::unique_ptr<DiagramPicture> pictureOf(const TreeItem *head) const;

    QJsonObject given;
    DiagramLook::Options look;
    std::optional<PageSize> page;
    int levels;
    bool isArranged;
};

PictureOptions Wish::pictureOptions(bool isClear) const
{
    PictureOptions picture;
    if (isClear)
        picture = ClearExport::suited(picture, look);
    else if (page)
        picture.size = page->pixels();
    picture.scale = given.value(QLatin1String("scale")).toDouble(picture.scale);
    picture.margin = given.value(QLatin1String("margin")).toDouble(picture.margin);
    picture.title = given.value(QLatin1String("title")).toString();
    const QJsonValue background = given.value(QLatin1String("background"));
    if (background.isString())
        picture.background = QColor(background.toString());
    return picture;
}

std::unique_ptr<DiagramPicture> Wish::pictureOf(const TreeItem *head) const
{
    auto picture = std::make_unique<DiagramPicture>(head, look, levels);
    if (isArranged)
        picture->arrangeFor(shape());
    return picture;
}

const LookInfo *lookOf(const QJsonObject &options)
{
    return LookInfo::find(options.value(QLatin1String("look")).toString());
}

QString writeSlide(LevelDrawing &drawing, const TreeItem &head, const QString &fileName,
                   const QSizeF &shape)
{
    QString reason;
    SlideExport::write(*drawing.scene(), head, fileName, SlideExport::aspectFor(shape), &reason);
    return reason;
}

// An editor takes the diagram that it shows away from any other that shows it: this one gets a
// copy.
QString writeScene(TreeItem *head, const QString &fileName, const Wish &wish,
                   DiagramLook::Kind look)
{
    const bool isClear = look == DiagramLook::Clear;
    QJsonObject copy;
    FishModel::write(copy, head, true);
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    if (!model.loadJsonFish(QJsonDocument(copy).toJson()))
        return QStringLiteral("the diagram has too many levels");
    LevelDrawing drawing(model, model.index(0, 0));
    drawing.setLook(look, isClear ? wish.pictureOf(head)->options() : wish.look);
    drawing.expand(wish.levels);
    drawing.update();
    if (SlideExport::isSlide(fileName))
        return writeSlide(drawing, *head, fileName, wish.shape());
    return PictureExport::write(*drawing.scene(), fileName, wish.pictureOptions(isClear)).reason;
}

} // namespace

QStringList ScriptPicture::lookNames()
{
    QStringList names;
    for (const LookInfo &look : LookInfo::all())
        names.append(look.name());
    return names;
}

QStringList ScriptPicture::pageNames()
{
    return PageSize::names();
}

bool ScriptPicture::isPage(const QString &text)
{
    return PageSize::of(text).has_value();
}

QString ScriptPicture::write(const ScriptSubject &subject, const QString &fileName,
                             const QString &options)
{
    TreeItem *const head = subject.item();
    const Wish wish(ScriptJson::objectOf(options));
    const LookInfo *const look = lookOf(wish.given);
    if (!head)
        return QStringLiteral("there is no diagram");
    if (!look)
        return QStringLiteral("there is no such look");
    const bool isClear = look->kind() == DiagramLook::Clear;
    if (!isClear || SlideExport::isSlide(fileName))
        return writeScene(head, fileName, wish, look->kind());
    return ClearExport::write(*wish.pictureOf(head), wish.page, fileName,
                              wish.pictureOptions(isClear))
        .reason;
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
