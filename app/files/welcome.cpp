// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/welcome.h>

#include <fishbone/model/treeitem.h>

#include <QCoreApplication>
#include <QSettings>

namespace {

struct Line
{
    int level;
    const char *title;
};

constexpr Line lines[] = {
    {0, QT_TRANSLATE_NOOP("Welcome", "Your first fishbone")},
    {1, QT_TRANSLATE_NOOP("Welcome", "Build it")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Tab: a child")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Enter: one after it")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Shift+Enter: one before it")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Ctrl+Enter: a parent")},
    {1, QT_TRANSLATE_NOOP("Welcome", "Change it")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Just type: a new title")},
    {2, QT_TRANSLATE_NOOP("Welcome", "F2: edit the title")},
    {2, QT_TRANSLATE_NOOP("Welcome", "F4: details")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Ctrl+Z: undo")},
    {1, QT_TRANSLATE_NOOP("Welcome", "Mark it")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Space: all marks")},
    {2, QT_TRANSLATE_NOOP("Welcome", "F7: a vote")},
    {1, QT_TRANSLATE_NOOP("Welcome", "Walk in it")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Arrows: as you see it")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Ctrl+arrows: by level")},
    {2, QT_TRANSLATE_NOOP("Welcome", "+ and −: expand, contract")},
    {1, QT_TRANSLATE_NOOP("Welcome", "Rearrange it")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Drag a bone onto another")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Alt+arrows: move a bone")},
    {1, QT_TRANSLATE_NOOP("Welcome", "Look at it")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Home: all of it")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Ctrl+wheel: zoom")},
    {1, QT_TRANSLATE_NOOP("Welcome", "Take it with you")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Ctrl+S: save")},
    {2, QT_TRANSLATE_NOOP("Welcome", "Ctrl+E: a picture")},
    {2, QT_TRANSLATE_NOOP("Welcome", "F1: all keys")},
};

} // namespace

namespace Welcome {

std::unique_ptr<TreeItem> diagram()
{
    std::unique_ptr<TreeItem> head;
    TreeItem *latest[3] = {}; // of each level
    for (const Line &line : lines) {
        auto item = std::make_unique<TreeItem>();
        item->setTitle(QCoreApplication::translate("Welcome", line.title));
        item->ensureUuid();
        latest[line.level] = item.get();
        if (line.level == 0) {
            head = std::move(item);
            continue;
        }
        TreeItem *const parent = latest[line.level - 1];
        item->setPid(parent->uuid());
        parent->appendChild(item.release()); // which takes it over
    }
    return head;
}

bool isFirstStart()
{
    QSettings settings;
    const QString key = QStringLiteral("welcomed");
    const bool isFirst = !settings.value(key).toBool();
    settings.setValue(key, true);
    return isFirst;
}

} // namespace Welcome
