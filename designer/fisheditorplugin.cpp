// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <designer/fisheditorplugin.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishmodel.h>

#include <QIcon>
#include <QTimer>

#include <memory>

FishEditorPlugin::FishEditorPlugin(QObject *parent)
    : QObject(parent)
{
}

QString FishEditorPlugin::name() const
{
    return QStringLiteral("FishEditor");
}

QString FishEditorPlugin::group() const
{
    return QStringLiteral("Fishbone");
}

QString FishEditorPlugin::toolTip() const
{
    return QStringLiteral("Fishbone diagram");
}

QString FishEditorPlugin::whatsThis() const
{
    return QStringLiteral("Shows a cause-and-effect diagram and lets the user edit it.");
}

QString FishEditorPlugin::includeFile() const
{
    return QStringLiteral("fishbone/editor/fisheditor.h");
}

QIcon FishEditorPlugin::icon() const
{
    return QIcon(QStringLiteral(":/fishboneDiagram/head.svg"));
}

bool FishEditorPlugin::isContainer() const
{
    return false;
}

QWidget *FishEditorPlugin::createWidget(QWidget *parent)
{
    auto editor = std::make_unique<FishEditor>(parent);
    // What stands in a form is nobody's document: the autosave would put it beside Designer.
    const QList<QTimer *> timers =
        editor->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTimer *timer : timers)
        timer->stop();
    auto *const model = new FishModel(editor.get());
    model->loadFishTempl();
    editor->setModel(model);
    editor->setRootIndex(model->index(0, 0));
    return editor.release();
}

QString FishEditorPlugin::domXml() const
{
    return QStringLiteral("<ui language=\"c++\">\n"
                          " <widget class=\"FishEditor\" name=\"fishEditor\">\n"
                          "  <property name=\"geometry\">\n"
                          "   <rect><x>0</x><y>0</y><width>640</width><height>400</height></rect>\n"
                          "  </property>\n"
                          " </widget>\n"
                          "</ui>\n");
}
