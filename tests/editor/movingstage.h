// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/support/editorfixture.h>
#include <tests/support/viewmouse.h>

namespace TestSupport {

/**
 * An expanded diagram on the screen. What the view asks of the editor after a move is written down
 * and, unless @p connected, not carried out.
 */
class MovingStage : public EditorFixture
{
public:
    explicit MovingStage(bool connected = false)
        : EditorFixture(document())
        , view(*editor.view())
        , mouse(view)
    {
        editor.expandAll();
        if (!show())
            qFatal("The editor does not show.");
        QObject::connect(&view, &GraphicsView::moveSpear, &view,
                         [this](const QPoint &pos, const QList<QGraphicsItem *> &items,
                                const QModelIndex &target, int row) {
                             QStringList titles;
                             for (const QGraphicsItem *item : items)
                                 titles.append(qgraphicsitem_cast<const SpearItem *>(item)->text());
                             moves.append(QStringLiteral("%1 to %2 row %3")
                                              .arg(titles.join(QLatin1Char('+')),
                                                   target.isValid() ? target.data().toString()
                                                                    : QStringLiteral("nothing"),
                                                   QString::number(row)));
                             position = pos;
                         });
        if (!connected)
            QObject::disconnect(&view, &GraphicsView::moveSpear, &editor, nullptr);
    }

    static QString document()
    {
        return QStringLiteral("Effect[Man[Train,Cost,Time],Machine[Wear],Method,Matter]");
    }

    QPoint tip(const char *title) const { return tipOf(view, spear(QString::fromLatin1(title))); }
    SpearItem *spear(const QString &title) const { return EditorFixture::spear(title); }
    SpearItem *spear(const char *title) const { return spear(QString::fromLatin1(title)); }
    /** A point of the viewport with nothing around. */
    QPoint nowhere() const { return {8, 8}; }

    /** "Man Wear": the titles of all faded spears. */
    QString faded() const
    {
        QStringList titles;
        for (const QString &title : all()) {
            const SpearItem *const item = spear(title);
            if (qFuzzyCompare(item->opacity(), 0.2) && item->isMoving())
                titles.append(title);
            else if (!qFuzzyCompare(item->opacity(), 1.0) || item->isMoving())
                titles.append(title + QLatin1Char('?'));
        }
        return titles.join(QLatin1Char(' '));
    }

    /** "Method 0": the target with the row shown at it. */
    QString linked() const
    {
        QStringList titles;
        for (const QString &title : all()) {
            const SpearItem *const item = spear(title);
            if (item->isLinked() != (item == view.linkedSpear()))
                titles.append(title + QLatin1Char('?'));
            if (item->isLinked())
                titles.append(QStringLiteral("%1 %2").arg(title).arg(item->linkNumber()));
        }
        return titles.join(QLatin1Char(' '));
    }

    QString takeMoves()
    {
        const QString text = moves.join(QLatin1String("; "));
        moves.clear();
        return text;
    }

    GraphicsView &view;
    ViewMouse mouse;
    QStringList moves;
    QPoint position;

private:
    QStringList all() const
    {
        QStringList titles;
        for (const char *title :
             {"Effect", "Man", "Train", "Cost", "Time", "Machine", "Wear", "Method", "Matter"}) {
            if (spear(title))
                titles.append(QString::fromLatin1(title));
        }
        return titles;
    }
};

} // namespace TestSupport
