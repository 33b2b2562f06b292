// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QColor>
#include <QString>

#include <array>
#include <memory>

class QFont;
class QJsonObject;
class QPen;

/**
 * How the text box of a bone looks in each of the states it can be in, and how much of the title it
 * shows.
 *
 * Whatever was never set is absent: no font, no pen, an invalid colour. A subject may own a style,
 * which then counts alone; all others are drawn with the global one, which comes from a file beside
 * the program. Styles are not merged. To copy a style, write() it and read() that into a fresh one.
 *
 * A style owns its fonts and pens. Not for use by several threads.
 */
class FISHBONE_EXPORT SpearStyle
{
    Q_DISABLE_COPY(SpearStyle)

public:
    /** The states of a bone; the numbers stand in documents. */
    enum SpearState : int {
        ssNormal = 0,   ///< neither selected, hovered nor linked
        ssSelected = 1, ///< selected
        ssHovered = 2,  ///< under the mouse
        ssLinked = 3,   ///< marked as the target of a move
    };

    /** Makes a style with nothing set, which shows 6 characters of a title. */
    SpearStyle();
    ~SpearStyle();

    /** Returns the font of the text, null when unset. Valid until it is set again. */
    QFont *textFont(SpearState state) const;

    /** Stores a copy of @p font. */
    void setTextFont(SpearState state, const QFont &font);

    /** Returns the colour of the text, invalid when unset. */
    QColor textColor(SpearState state) const;

    /** Sets the colour of the text; an invalid one unsets it. */
    void setTextColor(SpearState state, const QColor &color);

    /** Returns the colour behind the text, invalid when unset. */
    QColor textBkColor(SpearState state) const;

    /** Sets the colour behind the text; an invalid one unsets it. */
    void setTextBkColor(SpearState state, const QColor &color);

    /** Returns the pen of the border around the text, null when unset. Valid until it is set again.
     */
    QPen *broderPen(SpearState state) const;

    /** Stores a copy of @p pen. */
    void setBroderPen(SpearState state, const QPen &pen);

    /** Returns how many characters of a title are shown; below 1 means all of them. */
    int textCount() const { return m_textCount; }

    /** Sets how many characters of a title are shown, any number. */
    void setTextCount(int count);

    /** Returns a flag that users set and documents keep; nothing is drawn differently for it. */
    bool inheritanceParent() const { return m_inheritanceParent; }

    /** Sets the flag that inheritanceParent() returns. */
    void setInheritanceParent(bool inherit) { m_inheritanceParent = inherit; }

    /**
     * Takes over what @p object says about fonts, colours and pens, and leaves the others alone.
     *
     * An empty object changes nothing at all. Any other one sets both the number of characters and
     * the flag, to 0 and false when they are missing. Values of a wrong type count as missing, as
     * does a pen's line style, cap or join that Qt does not know; states that do not exist are
     * skipped.
     */
    void read(const QJsonObject &object);

    /** Replaces @p object by all that is set in this style. The width of a pen becomes a whole
     * number. */
    void write(QJsonObject &object) const;

    /** Returns the path of the file that holds the global style. Needs an application object. */
    static QString spearStyleFilePath();

    /**
     * Returns the one global style of the process, never null.
     *
     * It has the values of a fresh style until its file was read, which every call tries until it
     * works. Before and after the life of the application object it can be used but its file is not
     * known.
     */
    static SpearStyle *global();

    /**
     * Writes the global style to its file, which is replaced whole or not at all.
     *
     * Does nothing before the file was read once, so that a program without one does not make one.
     * A file that cannot be written stays as it is, without a report; where only the folder forbids
     * writing, the file is written in place.
     */
    static void saveGlobal();

    /** Whether the global style was read from its file. */
    static bool m_isGlobalInited;

private:
    static constexpr int stateCount = 4;

    std::array<std::unique_ptr<QFont>, stateCount> m_textFonts;
    std::array<QColor, stateCount> m_textColors;
    std::array<QColor, stateCount> m_textBkColors;
    std::array<std::unique_ptr<QPen>, stateCount> m_broderPens;
    int m_textCount = 6;
    bool m_inheritanceParent = false;
};
