// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QGraphicsItem>
#include <QJsonObject>
#include <QString>

#include <cmath>
#include <vector>

#include <fishbone/editor/fisheditor.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>
#include <tests/support/pictures.h>

/** An editor in the clear look. */
namespace ClearFishes {
using namespace TestSupport;

inline const QString man = QStringLiteral("Man");
inline const QString wear = QStringLiteral("Wear and tear");

inline const QString training = QStringLiteral("Training is missing");
inline const QString budget = QStringLiteral("No budget");

inline QJsonObject document()
{
    return documentFromText(
        QStringLiteral("Why are deliveries late?[Man[Training is missing[No budget,No time],Shift "
                       "plan],Machine[Wear and tear,Tools[Old]],Method[Nobody owns the "
                       "handover],Material[Supplier,Wrong parts[Catalogue]]]"));
}

struct ClearFish : EditorFixture
{
    explicit ClearFish(const QJsonObject &shown = document())
        : EditorFixture(shown)
    {
        editor.setLook(DiagramLook::Clear);
        editor.expandAll();
    }

    std::vector<SpearItem *> shownSpears() const
    {
        std::vector<SpearItem *> shown;
        for (SpearItem *const each : spearsInOrder(editor.headSpear())) {
            if (each->isVisible())
                shown.push_back(each);
        }
        return shown;
    }
};

/** Gives the subject titled @p title a field such as its verdict. */
inline void mark(const ClearFish &fish, const QString &title, const char *key,
                 const QJsonValue &value)
{
    QJsonObject fields = fish.subject(title)->otherFields();
    fields.insert(QLatin1String(key), value);
    fish.subject(title)->setOtherFields(fields);
}

inline QRectF sceneRect(const QGraphicsItem &item)
{
    return item.mapToScene(item.boundingRect()).boundingRect();
}

inline Canvas canvasOf(const QRectF &rect, int scale = 1)
{
    return {rect.toAlignedRect().adjusted(-4, -4, 4, 4), scale};
}

inline double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

inline double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

} // namespace ClearFishes
