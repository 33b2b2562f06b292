// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/diagramview.h>

#include <fishbone/drawing/lookinfo.h>

#include <QGuiApplication>
#include <QJsonDocument>
#include <QSettings>

namespace {

const QLatin1String lookKey("look");
const QLatin1String pageKey("page");

QString usualKey()
{
    return QStringLiteral("view/usual");
}

} // namespace

DiagramView DiagramView::of(const QJsonObject &fields, const DiagramView &usual)
{
    const LookInfo *const look = LookInfo::find(fields.value(lookKey).toString());
    if (!look)
        return usual;
    return {look->kind(), fields.value(pageKey).toString(), DiagramLook::Options::fromJson(fields)};
}

void DiagramView::store(QJsonObject &fields) const
{
    const QJsonObject chosen = options.toJson();
    for (auto field = chosen.begin(); field != chosen.end(); ++field)
        fields.insert(field.key(), field.value());
    fields.insert(lookKey, LookInfo::of(look).name());
    if (page.isEmpty())
        fields.remove(pageKey);
    else
        fields.insert(pageKey, page);
}

DiagramView DiagramView::usual()
{
    const QByteArray stored = QSettings().value(usualKey()).toByteArray();
    DiagramView fresh;
    // The fish swims to where the language reads.
    fresh.options.isHeadLeft = QGuiApplication::isRightToLeft();
    return of(QJsonDocument::fromJson(stored).object(), fresh);
}

void DiagramView::becomeUsual() const
{
    DiagramView view = *this;
    view.arrangeForScreen();
    QJsonObject fields;
    view.store(fields);
    QSettings().setValue(usualKey(), QJsonDocument(fields).toJson(QJsonDocument::Compact));
}

void DiagramView::arrangeForScreen()
{
    const DiagramLook::Options fresh;
    page.clear();
    options.wrapLimit = fresh.wrapLimit;
    options.wrapLines = fresh.wrapLines;
    options.widensLines = fresh.widensLines;
    options.headWidth = fresh.headWidth;
    options.sides = fresh.sides;
}
