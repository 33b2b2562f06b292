// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/canvastheme.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QFile>
#include <QJsonDocument>
#include <QPalette>
#include <QSaveFile>

namespace {

QString darkStyleFile()
{
    return SystemHelper::appliactionDirPath() + QStringLiteral("global-dark.spearstyle");
}

QJsonObject readStyle(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

void writeStyle(const QString &path, const QJsonObject &style)
{
    QSaveFile file(path);
    const QByteArray text = QJsonDocument(style).toJson();
    // What stays in the buffer until the commit could fail without a report.
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush())
        file.commit();
}

} // namespace

CanvasTheme::CanvasTheme(QObject *parent)
    : QObject(parent)
{
    SpearStyle::global()->write(m_light);
    if (!SpearStyle::m_isGlobalInited)
        m_light = readStyle(QStringLiteral(":/app/global.spearstyle"));
    m_dark = readStyle(darkStyleFile());
    if (m_dark.isEmpty())
        m_dark = readStyle(QStringLiteral(":/app/global-dark.spearstyle"));
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

QColor CanvasTheme::canvasColor() const
{
    return m_isDark ? QColor(0x1e, 0x23, 0x29) : QColor(0xfd, 0xfd, 0xfb);
}

void CanvasTheme::show(bool dark)
{
    m_isDark = dark;
    SpearStyle::global()->read(dark ? m_dark : m_light);
    for (FishEditor *editor : qAsConst(m_editors))
        show(*editor);
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
    if (dialog.exec() == QDialog::Accepted)
        storeStyle();
    show(m_isDark);
}

void CanvasTheme::storeStyle()
{
    if (m_isDark) {
        SpearStyle::global()->write(m_dark);
        writeStyle(darkStyleFile(), m_dark);
    } else {
        SpearStyle::global()->write(m_light);
        SpearStyle::saveGlobal();
    }
}

CanvasTheme::Paper::Paper(CanvasTheme *theme, FishEditor *editor)
    : m_theme(theme)
    , m_wasDark(theme->m_isDark)
{
    if (m_wasDark)
        m_theme->show(false);
    editor->view()->setBackgroundBrush(Qt::white);
}

CanvasTheme::Paper::~Paper()
{
    m_theme->show(m_wasDark);
}
