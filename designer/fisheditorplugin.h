// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/**
 * What Qt Designer asks about the editor.
 *
 * The widget that stands in a form shows the template diagram, so that the form looks like the
 * program; a program that loads the form gets an editor that shows nothing, as always. Zoom and
 * rotation are properties of the editor.
 */
class FishEditorPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")

public:
    explicit FishEditorPlugin(QObject *parent = nullptr);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    /** A new editor with the template diagram in it; owned by @p parent or by the caller. */
    QWidget *createWidget(QWidget *parent) override;
    /** The editor as it enters a form, with a size at which the template can be read. */
    QString domXml() const override;
};
