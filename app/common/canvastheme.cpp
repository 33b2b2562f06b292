// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/canvastheme.h>

#include <app/common/jsonfile.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QDir>
#include <QPalette>
#include <QStandardPaths>

namespace {

QString fileName(bool dark)
{
    return dark ? QStringLiteral("global-dark.spearstyle") : QStringLiteral("global.spearstyle");
}

/** Where the user keeps a style: the folder of the program is often not writable. */
QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

/** The style of the user, or else that beside the program, or else the one that is built in. */
QJsonObject readStyle(bool dark)
{
    const QStringList places{folder() + QLatin1Char('/'), SystemHelper::appliactionDirPath(),
                             QStringLiteral(":/app/")};
    for (const QString &place : places) {
        const QJsonObject style = JsonFile::read(place + fileName(dark));
        if (!style.isEmpty())
            return style;
    }
    return {};
}

} // namespace

CanvasTheme::CanvasTheme(QObject *parent)
    : QObject(parent)
    , m_light(readStyle(false))
    , m_dark(readStyle(true))
{
    show(false);
}

void CanvasTheme::add(FishEditor *editor)
{
    m_editors.append(editor);
    connect(editor, &QObject::destroyed, this, [this, editor] { m_editors.removeOne(editor); });
    show(*editor);
}

void CanvasTheme::follow(const QPalette &palette)
{
    show(palette.color(QPalette::Active, QPalette::Base).lightness() < 128);
}

QColor CanvasTheme::canvasColor(bool dark)
{
    return dark ? QColor(0x1e, 0x23, 0x29) : QColor(0xfd, 0xfd, 0xfb);
}

void CanvasTheme::show(bool dark)
{
    m_isDark = dark;
    SpearStyle::global()->read(dark ? m_dark : m_light);
    for (FishEditor *editor : qAsConst(m_editors))
        show(*editor);
    Q_EMIT shown();
}

void CanvasTheme::show(FishEditor &editor) const
{
    editor.view()->setBackgroundBrush(canvasColor());
    editor.updateFish(false); // fonts may differ
    editor.view()->viewport()->update();
}

void CanvasTheme::editStyle(QWidget *parent)
{
    SpearStyleDialog dialog(*SpearStyle::global(), true, parent);
    dialog.setPreviewBackground(canvasColor());
    // What holds for all subjects has nothing to inherit from.
    dialog.setInheritanceOffered(false);
    if (dialog.exec() == QDialog::Accepted)
        storeStyle();
    show(m_isDark);
}

void CanvasTheme::storeStyle()
{
    QJsonObject &style = m_isDark ? m_dark : m_light;
    SpearStyle::global()->write(style);
    const QString path = folder() + QLatin1Char('/') + fileName(m_isDark);
    QDir().mkpath(folder());
    if (!JsonFile::write(path, style))
        Q_EMIT message(tr("The style is not kept: %1 cannot be written").arg(path));
}

CanvasTheme::Paper::Paper(const CanvasTheme *theme)
    : m_theme(theme)
{
    if (m_theme->m_isDark)
        SpearStyle::global()->read(m_theme->m_light);
}

CanvasTheme::Paper::~Paper()
{
    if (m_theme->m_isDark)
        SpearStyle::global()->read(m_theme->m_dark);
}
