// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <taskform.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

TaskForm::TaskForm(FishModel &model, FishEditor &editor, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_editor(editor)
    , m_title(new QLineEdit(this))
    , m_status(new QComboBox(this))
    , m_person(new QLineEdit(this))
    , m_hasEnd(new QCheckBox(tr("Planned end"), this))
    , m_end(new QDateEdit(this))
    , m_detail(new QPlainTextEdit(this))
{
    m_status->addItem(tr("None"), TreeItem::none);
    m_status->addItem(tr("Waiting"), tsWaitting);
    m_status->addItem(tr("Running"), tsRunning);
    m_status->addItem(tr("Postponed"), tsPostpone);
    m_status->addItem(tr("Finished"), tsFinish);
    m_status->addItem(tr("Cancelled"), tsCancel);
    m_end->setCalendarPopup(true);
    auto *const form = new QFormLayout(this);
    form->addRow(tr("Title"), m_title);
    form->addRow(tr("Status"), m_status);
    form->addRow(tr("Person"), m_person);
    form->addRow(m_hasEnd, m_end);
    form->addRow(tr("Details"), m_detail);
    auto *const button = new QPushButton(tr("Apply"), this);
    form->addRow(button);
    connect(button, &QPushButton::clicked, this, &TaskForm::apply);
    connect(m_hasEnd, &QCheckBox::toggled, m_end, &QWidget::setEnabled);
    refresh();
}

void TaskForm::show(const QModelIndex &index)
{
    m_index = index;
    refresh();
}

QString TaskForm::uuid() const
{
    const TreeItem *const subject = m_model.getTreeItem(m_index);
    return subject ? subject->uuid() : QString();
}

void TaskForm::refresh()
{
    const TreeItem nothing;
    const TreeItem *const shown = m_model.getTreeItem(m_index);
    const TreeItem &subject = shown ? *shown : nothing;
    setEnabled(shown);
    setTitle(subject.title());
    setStatus(subject.status());
    setPerson(subject.managerName());
    setDetail(subject.detail());
    setPlannedEnd(subject.planEndDate() == 0
                      ? QDate()
                      : QDateTime::fromMSecsSinceEpoch(subject.planEndDate()).date());
}

void TaskForm::setTitle(const QString &title)
{
    m_title->setText(title);
}

void TaskForm::setStatus(int status)
{
    if (m_status->findData(status) < 0)
        m_status->addItem(tr("Status %1").arg(status), status);
    m_status->setCurrentIndex(m_status->findData(status));
}

void TaskForm::setPerson(const QString &name)
{
    m_person->setText(name);
}

void TaskForm::setPlannedEnd(const QDate &day)
{
    m_hasEnd->setChecked(day.isValid());
    m_end->setEnabled(day.isValid());
    m_end->setDate(day.isValid() ? day : QDate::currentDate());
}

void TaskForm::setDetail(const QString &text)
{
    m_detail->setPlainText(text);
}

void TaskForm::apply()
{
    const TreeItem *const subject = m_model.getTreeItem(m_index);
    if (!subject)
        return;
    const QJsonObject before = EditAttributes::stateOf(*subject);
    TreeItem edited(before);
    edited.setTitle(m_title->text());
    edited.setStatus(m_status->currentData().toInt());
    edited.setManagerName(m_person->text());
    edited.setDetail(m_detail->toPlainText());
    const QDate end = m_hasEnd->isChecked() ? m_end->date() : QDate();
    const bool isSameDay = end.isValid() && subject->planEndDate() != 0 &&
                           end == QDateTime::fromMSecsSinceEpoch(subject->planEndDate()).date();
    if (!isSameDay) // the form knows days, and others may have set the time of the day
        edited.setPlanEndDate(end.isValid() ? end.startOfDay().toMSecsSinceEpoch() : 0);
    m_editor.run(std::make_unique<EditAttributes>(&m_model, m_index, before,
                                                  EditAttributes::stateOf(edited)));
}
