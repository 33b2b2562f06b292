// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/drawing/diagramlook.h>
#include <fishbone/fishbone_export.h>

#include <QLatin1String>
#include <QString>
#include <QVector>

#include <memory>

class DrawingLook;

/**
 * A look as hosts offer it: its name and what users read.
 *
 * all() is the one list of the looks. Menus, dialogs and command lines follow it, and so does
 * whoever draws: what is in the list can be chosen everywhere.
 */
class FISHBONE_EXPORT LookInfo
{
public:
    /** The classic look. */
    LookInfo() = default;

    /** All looks, in the order in which they are offered. */
    static const QVector<LookInfo> &all();
    /** The look with the name @p name, null when there is none; lives as long as the process. */
    static const LookInfo *find(const QString &name);
    /** The look of the number @p kind; the classic one for a number that stands for none. */
    static const LookInfo &of(DiagramLook::Kind kind);

    /** What FishEditor::setLook() takes. */
    DiagramLook::Kind kind() const { return m_kind; }
    /** A lower-case word, for documents and command lines. */
    QLatin1String name() const { return m_name; }
    /** What users read, in their language, with the mark of a menu key. */
    QString title() const;

private:
    friend class FishDrawing; // makes looks
    using Maker = std::shared_ptr<const DrawingLook> (*)(const DiagramLook::Options &);

    LookInfo(DiagramLook::Kind kind, QLatin1String name, const char *title, Maker make);

    DiagramLook::Kind m_kind = DiagramLook::Classic;
    QLatin1String m_name;
    const char *m_title = "";
    Maker m_make = nullptr;
};
