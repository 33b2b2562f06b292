// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <rehearsal.h>

#include <modeltree.h>
#include <taskdesk.h>
#include <tasktree.h>
#include <taskwindow.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>
#include <fishbone/undo/structuralcommands.h>

#include <QCoreApplication>
#include <QJsonDocument>

#include <cstdio>

Rehearsal::Rehearsal(TaskDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_out(stdout)
{
    constexpr int haste = 3; // milliseconds between two edits
    m_timer.setInterval(haste);
    connect(&m_timer, &QTimer::timeout, this, &Rehearsal::nextEdit);
    connect(&m_desk.sync(), &TaskSync::stored, this, &Rehearsal::tellStored);
    connect(&m_desk.sync(), &TaskSync::stateChanged, this, [this] {
        if (m_isTreeAsked)
            tellTree();
    });
}

void Rehearsal::command(const QString &line)
{
    const QStringList words = line.split(QLatin1Char(' '));
    if (words.constFirst() == QLatin1String("edit")) {
        m_left = words.value(1).toInt();
        m_random.seed(words.value(2).toUInt());
        m_timer.start();
    } else if (words.constFirst() == QLatin1String("tree")) {
        m_isTreeAsked = true;
        tellTree();
    } else if (words.constFirst() == QLatin1String("here")) {
        m_desk.sync().synchronize(); // or the next turn of the event loop
        tellTasks();
    } else if (words.constFirst() == QLatin1String("quit")) {
        QCoreApplication::quit();
    }
}

/** All tasks but the heads. */
QList<TreeItem *> Rehearsal::causes() const
{
    QList<TreeItem *> subjects;
    FishModel &model = m_desk.model();
    for (int row = 0; row < model.rowCount(); ++row)
        subjects += model.getTreeItem(model.index(row, 0))->childItems();
    for (int i = 0; i < subjects.size(); ++i)
        subjects += subjects.at(i)->childItems();
    return subjects;
}

int Rehearsal::random(int below)
{
    return int(m_random() % unsigned(below));
}

void Rehearsal::edit()
{
    constexpr int fewest = 10;
    constexpr int kinds = 10;
    FishModel &model = m_desk.model();
    const QList<TreeItem *> all = causes();
    if (m_desk.windows().isEmpty())
        return;
    FishEditor &editor = m_desk.windows().constFirst()->editor();
    const QModelIndex head = model.index(0, 0);
    TreeItem *const one = all.isEmpty() ? nullptr : all.at(random(int(all.size())));
    TreeItem *const other = all.isEmpty() ? nullptr : all.at(random(int(all.size())));
    const int kind = all.size() < fewest ? kinds : random(kinds);
    const QString title = QStringLiteral("%1 %2").arg(m_desk.store().author()).arg(++m_made);
    if (kind == 0) {
        editor.deleteItem(model.indexFromItem(one));
    } else if (kind <= 3) {
        editor.run(std::make_unique<EditMove>(
            &model, model.indexFromItem(other), random(other->childCount() + 1),
            QJsonObject{{QStringLiteral("uuid"), one->uuid()}}, QList<TreeItem *>{one}));
    } else if (kind <= 5) {
        editor.renameItem(model.indexFromItem(one), title);
    } else if (kind <= 7) {
        const QJsonObject before = EditAttributes::stateOf(*one);
        TreeItem edited(before);
        edited.setStatus(random(tsWaittingAgree));
        edited.setManagerName(title);
        edited.setPlanEndDate(qint64(random(1000)) * 86400000);
        editor.run(std::make_unique<EditAttributes>(&model, model.indexFromItem(one), before,
                                                    EditAttributes::stateOf(edited)));
    } else {
        auto *const task = new TreeItem;
        task->setTitle(title);
        const bool isMainBone = all.size() < fewest;
        editor.insertChildSubject(isMainBone ? head : model.indexFromItem(one), task);
    }
}

void Rehearsal::nextEdit()
{
    if (m_left-- > 0) {
        edit();
        return;
    }
    m_timer.stop();
    m_out << "done\n" << Qt::flush;
}

void Rehearsal::tellStored(qint64 revision)
{
    for (const Task &task : m_desk.sync().known()) {
        if (task.version == revision)
            m_out << "task " << task.uuid << ' ' << task.title() << '\n';
    }
    m_out << "stored " << revision << '\n' << Qt::flush;
}

void Rehearsal::tellTree()
{
    if (!m_desk.sync().synchronize())
        return; // as soon as it is
    m_isTreeAsked = false;
    tellTasks();
}

void Rehearsal::tellTasks()
{
    const TaskMap tasks = ModelTree::read(m_desk.model(), m_desk.sync().known());
    const QStringList order = TaskTree::preOrder(tasks);
    QHash<QString, int> levels;
    for (const QString &uuid : order) {
        const Task task = tasks.value(uuid);
        levels.insert(uuid, levels.value(task.parent, -1) + 1);
        m_out << levels.value(uuid) << ' ' << uuid << ' '
              << QJsonDocument(task.fields).toJson(QJsonDocument::Compact) << '\n';
    }
    m_out << "end " << m_desk.sync().revision() << '\n' << Qt::flush;
}
