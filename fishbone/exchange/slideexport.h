// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QCoreApplication>
#include <QString>

#include <functional>

class QByteArray;
class QGraphicsScene;
class QSizeF;
class TreeItem;

/**
 * Writes the drawing of a scene as a PowerPoint presentation of one slide.
 *
 * The slide has native shapes that can be edited there: text boxes, lines and freeforms, in one
 * group with an alternative text. The colours that are used most are those of the theme. Titles
 * with links are links. The notes hold the outline and what is to be done. The scene is drawn as
 * PictureExport draws it.
 */
class FISHBONE_EXPORT SlideExport
{
    Q_DECLARE_TR_FUNCTIONS(SlideExport)

public:
    /** The shape of a slide. */
    enum class Aspect {
        Wide,   ///< 16:9
        Narrow, ///< 4:3
    };

    /** Is told from time to time how much is done: @c done of @c total steps, as
     * PictureOptions::progress is. False ends the export. */
    using Progress = std::function<bool(int done, int total)>;

    /** Whether the ending of @p fileName, in any case, is that of a presentation. */
    static bool isSlide(const QString &fileName);

    /** The shape of slide that is nearer to the proportions of @p page: the wide one for an empty
     * page. A4 and A3 lie nearer to 4:3. */
    static Aspect aspectFor(const QSizeF &page);

    /** The presentation of @p scene, which shows the diagram of @p head; empty, with an error, when
     * the scene shows nothing. */
    static QByteArray presentation(QGraphicsScene &scene, const TreeItem &head,
                                   Aspect aspect = Aspect::Wide, QString *error = nullptr);

    /** As presentation(), into the file @p fileName, which is replaced whole or not at all. False
     * on failure, and @p error says why: for the user, translated, a clause without a full stop. */
    static bool write(QGraphicsScene &scene, const TreeItem &head, const QString &fileName,
                      Aspect aspect = Aspect::Wide, QString *error = nullptr);
    /** As above, for somebody who waits: one that @p progress ended is false, and the file is as it
     * was. */
    static bool write(QGraphicsScene &scene, const TreeItem &head, const QString &fileName,
                      Aspect aspect, QString *error, const Progress &progress);
};
