// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/diagram/diagramview.h>

#include <QRectF>
#include <QSet>
#include <QString>

#include <memory>
#include <optional>

class DiagramPicture;
class FishEditor;
class FishModel;
class FishScene;
class LevelDrawing;
class QPainter;
class TreeItem;

/** What a picture shall show. */
struct PictureWish
{
    std::optional<int> levels; ///< below the main bones, Expansion::allLevels for all; nothing for
                               ///< those that are expanded on the screen
    DiagramView view;          ///< with a page, arranged as it is largest there

    bool operator==(const PictureWish &other) const
    {
        return levels == other.levels && view == other.view;
    }
    bool operator!=(const PictureWish &other) const { return !(*this == other); }
};

/**
 * What a picture shows of the diagram in an editor, in any look and expanded to any level. It is a
 * copy, so that neither the drawing on the screen nor the document hears of it, and has neither
 * buttons nor a selection.
 */
class PictureSource
{
    Q_DISABLE_COPY(PictureSource)

public:
    /** What of the diagram there is in the picture. */
    enum class Part {
        All,
        Selection, ///< what is selected and below it, with the bones that lead there; all, when
                   ///< nothing is selected or the head is
    };

    /** Of what @p editor shows, which must not be null. Takes a copy, in linear time. */
    explicit PictureSource(const FishEditor *editor, Part part = Part::All);
    ~PictureSource();

    /** The head of the copy. */
    const TreeItem &root() const;
    /** The title of the diagram. */
    QString title() const;
    /** How many levels there are below the main bones. */
    int depth() const;

    /** What picture() and scene() show from now on. */
    void setWish(const PictureWish &wish);
    /** The look that is wished. */
    DiagramLook::Kind look() const { return m_wish.view.look; }
    /** What the drawing covers. May take its time. */
    QRectF extent();
    /** Paints the drawing as large as it fits into @p target. */
    void paint(QPainter &painter, const QRectF &target);

    /** The drawing in the clear look, which the wish must have. Lives until the next wish. */
    const DiagramPicture &picture();
    /** The drawing as items, for whoever takes nothing else. Lays out again what the style of all
     * subjects may have changed. Linear in the size of the diagram. */
    FishScene *scene();

private:
    bool isClear() const { return m_wish.view.look == DiagramLook::Clear; }
    void take(const TreeItem &shownRoot, const FishEditor &editor,
              const QSet<const TreeItem *> &selected);

    PictureWish m_wish;
    std::unique_ptr<FishModel> m_copy;
    QSet<const TreeItem *> m_expanded; ///< of the copy, those that are on the screen
    std::unique_ptr<DiagramPicture> m_picture;
    std::unique_ptr<LevelDrawing> m_drawing;
    bool m_isDrawn = false; ///< the drawing is what is wished
};
