// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/plannedendfield.h>

#include <app/common/datefield.h>
#include <app/panels/detailsform.h>

#include <fishbone/model/treeitem.h>

#include <QCheckBox>
#include <QDateTime>
#include <QHBoxLayout>

PlannedEndField::PlannedEndField(Language::Text label, QWidget *parent)
    : DetailsField("planenddate", std::move(label), Sharing::Common, parent)
    , m_row(new QWidget(parent))
    , m_isSet(new QCheckBox(m_row))
    , m_day(new DateField(m_row))
{
    m_isSet->setObjectName(QStringLiteral("detailsHasPlannedEnd"));
    m_day->setObjectName(QStringLiteral("detailsPlannedEnd"));
    m_day->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto *const layout = new QHBoxLayout(m_row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_isSet);
    layout->addWidget(m_day);
    connect(m_day, &QDateEdit::dateChanged, this, &DetailsField::changed);
    connect(m_isSet, &QCheckBox::stateChanged, this, [this](int state) {
        m_day->setEnabled(state == Qt::Checked);
        Q_EMIT changed();
    });
}

void PlannedEndField::showTexts(const QString &several)
{
    m_isSet->setToolTip(several);
    m_isSet->setAccessibleName(DetailsForm::tr("Has a planned end"));
    m_day->setAccessibleName(DetailsForm::tr("Planned end"));
    m_day->followLanguage();
    m_day->setMinimumWidth(m_day->sizeHint().width());
}

void PlannedEndField::fill(const TreeItem &subject, bool isMixed)
{
    const qint64 date = subject.planEndDate();
    m_isSet->setTristate(isMixed);
    m_isSet->setCheckState(isMixed     ? Qt::PartiallyChecked
                           : date != 0 ? Qt::Checked
                                       : Qt::Unchecked);
    m_day->setEnabled(m_isSet->checkState() == Qt::Checked);
    m_day->setDate(date != 0 ? QDateTime::fromMSecsSinceEpoch(date).date() : QDate::currentDate());
}

bool PlannedEndField::hasValue() const
{
    return m_isSet->checkState() != Qt::PartiallyChecked;
}

void PlannedEndField::store(TreeItem &target) const
{
    if (!hasValue())
        return;
    const qint64 before = target.planEndDate();
    if (!m_isSet->isChecked())
        target.setPlanEndDate(0);
    else if (before == 0 || QDateTime::fromMSecsSinceEpoch(before).date() != m_day->date())
        target.setPlanEndDate(QDateTime(m_day->date(), QTime(0, 0)).toMSecsSinceEpoch());
}
