// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonDocument>

#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <tests/support/documents.h>

/** A document to look at and what a view does to its spears. */
namespace ShownBones {

using TestSupport::documentFromText;

const QString man = QStringLiteral("Man");
const QString machine = QStringLiteral("Machine");
const QString training = QStringLiteral("Training");
const QString effect = QStringLiteral("Effect");

inline QJsonObject sampleDocument(const QJsonObject &style)
{
    QJsonObject document = documentFromText(
        QStringLiteral("Effect[Man[Training[Course,Mentor],Shift],Machine[Wear,Tools[Age]],"
                       "Method,Material[Supplier]]"));
    if (style.isEmpty())
        return document;
    QByteArray text = QJsonDocument(document).toJson(QJsonDocument::Compact);
    text.replace("\"title\"",
                 "\"spearstyle\":" + QJsonDocument(style).toJson(QJsonDocument::Compact) +
                     ",\"status\":2,\"url\":\"https://example.org\",\"title\"");
    return QJsonDocument::fromJson(text).object();
}

/** The middle of a spear's text box in the scene. */
inline QPointF onText(const SpearItem *spear)
{
    return spear->textItem()->mapToScene(spear->textItem()->boundingRect().center());
}

/** A point of a spear's line in the scene. */
inline QPointF onBone(const SpearItem *spear)
{
    return spear->mapToScene(spear->line().pointAt(0.93));
}

inline void repaint(SpearItem *spear)
{
    spear->update();
    spear->textItem()->update();
}

inline void link(SpearItem *spear, int number)
{
    spear->setLinked(true, number);
    repaint(spear);
}

inline void unlink(SpearItem *spear)
{
    spear->setLinked(false, 0);
    repaint(spear);
}

inline void fade(SpearItem *spear, bool faded)
{
    spear->setMoving(faded);
    spear->setOpacity(faded ? 0.2 : 1.0);
    repaint(spear);
}

} // namespace ShownBones
