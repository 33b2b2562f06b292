// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/files/templates.h>

#include <QDialog>

class QListWidget;
class QListWidgetItem;
class QPushButton;

/** Lets the user choose among the templates by their pictures. */
class TemplateGallery : public QDialog
{
    Q_OBJECT

public:
    explicit TemplateGallery(QWidget *parent = nullptr);

    /** What was chosen, once the dialog was accepted. */
    Templates::Template chosen() const;
    /** Whether the user wants a file as the template instead. */
    bool wantsFile() const { return m_wantsFile; }

private:
    void addButtons();
    void list();
    void updateButtons();
    void removeChosen();

    QListWidget *m_list;
    QPushButton *m_create = nullptr;
    QPushButton *m_remove = nullptr;
    QList<Templates::Template> m_templates;
    bool m_wantsFile = false;
};
