// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <task.h>

#include <QStringList>

class FishModel;
class TreeItem;

/**
 * The way between tasks and the model that the editors show.
 *
 * show() changes what differs and nothing else, and by the commands that the editor uses itself, so
 * that spears, selection and expansion stay. It pushes none of them: what somebody else did is
 * nothing that undo should take back here.
 */
class ModelTree
{
public:
    /**
     * The tasks of all documents of @p model. Positions and versions are those of @p known, where
     * the order allows. A subject without a uuid, or with that of one before it, is given a new
     * one.
     */
    static TaskMap read(FishModel &model, const TaskMap &known);
    /** Makes @p model hold @p target. Editors have to lay out afterwards. */
    static void show(FishModel &model, const TaskMap &target);

private:
    ModelTree(FishModel &model, const TaskMap &target);

    void insertMissing();
    void insertTop(TreeItem *item, const QString &parent);
    void arrange(const QString &parent);
    void move(TreeItem *item, TreeItem *parent, const TreeItem *behind);
    void removeOthers();
    void editFields();
    QVector<TreeItem *> standing(const QString &parent) const;

    FishModel &m_model;
    const TaskMap &m_target;
    const TaskChildren m_below;
    const QStringList m_order;
    QHash<QString, TreeItem *> m_items; // of the model
};
