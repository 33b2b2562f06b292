// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <conflictbar.h>

#include <tasksync.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

QString valueText(const QJsonValue &value)
{
    return value.isUndefined() ? ConflictBar::tr("nothing") : value.toVariant().toString();
}

QString describe(const Conflict &conflict)
{
    const Task &mine = conflict.mine;
    const Task &theirs = conflict.theirs;
    switch (conflict.kind) {
    case Conflict::Value:
        return ConflictBar::tr("%1 has changed \"%2\" of \"%3\" to \"%4\", and you to \"%5\".")
            .arg(theirs.author, conflict.key, theirs.title(),
                 valueText(theirs.fields.value(conflict.key)),
                 valueText(mine.fields.value(conflict.key)));
    case Conflict::Place:
        return ConflictBar::tr("%1 has moved \"%2\" or what it stands below, and so have you.")
            .arg(theirs.author, theirs.title());
    case Conflict::TheyDeleted:
        return ConflictBar::tr("Somebody has deleted \"%1\", which you have changed.")
            .arg(mine.title());
    case Conflict::IDeleted:
        return ConflictBar::tr("%1 has changed \"%2\", which you have deleted.")
            .arg(theirs.author, theirs.title());
    }
    return {};
}

} // namespace

ConflictBar::ConflictBar(TaskSync &sync, QWidget *parent)
    : QFrame(parent)
    , m_sync(sync)
    , m_label(new QLabel(this))
{
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    auto *const theirs = new QPushButton(tr("Keep theirs"), this);
    auto *const mine = new QPushButton(tr("Keep mine"), this);
    auto *const row = new QHBoxLayout(this);
    row->addWidget(m_label, 1);
    row->addWidget(theirs);
    row->addWidget(mine);
    connect(theirs, &QPushButton::clicked, this, [this] { settle(false); });
    connect(mine, &QPushButton::clicked, this, [this] { settle(true); });
    connect(&m_sync, &TaskSync::conflictsChanged, this, &ConflictBar::refresh);
    refresh();
}

QString ConflictBar::text() const
{
    return m_label->text();
}

void ConflictBar::settle(bool keepsMine)
{
    m_sync.settle(0, keepsMine);
}

void ConflictBar::refresh()
{
    const QList<Conflict> &conflicts = m_sync.conflicts();
    m_label->setText(conflicts.isEmpty() ? QString() : describe(conflicts.constFirst()));
    setVisible(!conflicts.isEmpty());
}
