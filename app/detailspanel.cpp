// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/detailspanel.h>

#include <app/diagramsession.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>

#include <limits>

namespace {

constexpr int noStatus = -1;

/** Any number that a document may hold. */
void allowAnyNumber(QSpinBox &box)
{
    box.setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
}

QString listed(const QStringList &parts)
{
    return parts.join(QStringLiteral(", "));
}

} // namespace

DetailsPanel::DetailsPanel(DiagramSession *session, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_form(new QWidget(this))
    , m_title(new QLineEdit(m_form))
    , m_detail(new QPlainTextEdit(m_form))
    , m_status(new QComboBox(m_form))
    , m_progress(new QSpinBox(m_form))
    , m_priority(new QSpinBox(m_form))
    , m_managerName(new QLineEdit(m_form))
    , m_managerId(new QLineEdit(m_form))
    , m_followers(new QLineEdit(m_form))
    , m_hasPlannedEnd(new QCheckBox(m_form))
    , m_plannedEnd(new QDateEdit(m_form))
    , m_facts(new QLabel(m_form))
    , m_apply(new QPushButton(tr("&Apply"), this))
    , m_revert(new QPushButton(tr("Re&vert"), this))
{
    m_title->setObjectName(QStringLiteral("detailsTitle"));
    m_detail->setObjectName(QStringLiteral("detailsText"));
    m_status->setObjectName(QStringLiteral("detailsStatus"));
    m_progress->setObjectName(QStringLiteral("detailsProgress"));
    m_priority->setObjectName(QStringLiteral("detailsPriority"));
    m_managerName->setObjectName(QStringLiteral("detailsManager"));
    m_followers->setObjectName(QStringLiteral("detailsFollowers"));
    m_apply->setObjectName(QStringLiteral("detailsApply"));
    m_revert->setObjectName(QStringLiteral("detailsRevert"));
    buildLayout();
    watchFields();
    showSubject({});
}

void DetailsPanel::buildLayout()
{
    const QString names[] = {tr("unknown"),       tr("cancelled"),           tr("finished"),
                             tr("finished late"), tr("postponed"),           tr("under way"),
                             tr("waiting"),       tr("waiting for approval")};
    m_status->addItem(tr("none"), noStatus);
    for (int status = tsUnknown; status <= tsWaittingAgree; ++status) {
        const TaskStatusInfo info{TaskStatus(status), 0};
        m_status->addItem(QIcon(info.iconPath()), names[status], status);
    }
    m_status->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_status->setMinimumContentsLength(8);
    allowAnyNumber(*m_progress);
    allowAnyNumber(*m_priority);
    m_progress->setSuffix(QStringLiteral(" %"));
    m_followers->setPlaceholderText(tr("separated by commas"));
    m_plannedEnd->setCalendarPopup(true);
    m_plannedEnd->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    m_hasPlannedEnd->setAccessibleName(tr("Has a planned end"));
    m_detail->setTabChangesFocus(true);
    m_facts->setWordWrap(true);
    m_facts->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_facts->setTextFormat(Qt::PlainText);

    auto *const end = new QHBoxLayout;
    end->addWidget(m_hasPlannedEnd);
    end->addWidget(m_plannedEnd, 1);
    auto *const rows = new QFormLayout(m_form);
    rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
    rows->addRow(tr("Title:"), m_title);
    rows->addRow(tr("Status:"), m_status);
    rows->addRow(tr("Progress:"), m_progress);
    rows->addRow(tr("Priority:"), m_priority);
    rows->addRow(tr("Responsible:"), m_managerName);
    rows->addRow(tr("Their id:"), m_managerId);
    rows->addRow(tr("Followers:"), m_followers);
    rows->addRow(tr("Planned end:"), end);
    rows->addRow(tr("Details:"), m_detail);
    rows->addRow(m_facts);

    auto *const scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(m_form);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_apply);
    buttons->addWidget(m_revert);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(scroll);
    layout->addLayout(buttons);
}

void DetailsPanel::watchFields()
{
    const auto changed = [this] { setChanged(true); };
    for (QLineEdit *field : {m_title, m_managerName, m_managerId, m_followers}) {
        connect(field, &QLineEdit::textChanged, this, changed);
        connect(field, &QLineEdit::returnPressed, this, &DetailsPanel::apply);
    }
    for (QSpinBox *field : {m_progress, m_priority})
        connect(field, QOverload<int>::of(&QSpinBox::valueChanged), this, changed);
    connect(m_status, QOverload<int>::of(&QComboBox::currentIndexChanged), this, changed);
    connect(m_detail, &QPlainTextEdit::textChanged, this, changed);
    connect(m_plannedEnd, &QDateEdit::dateChanged, this, changed);
    connect(m_hasPlannedEnd, &QCheckBox::toggled, this, changed);
    connect(m_hasPlannedEnd, &QCheckBox::toggled, m_plannedEnd, &QDateEdit::setEnabled);
    connect(m_apply, &QPushButton::clicked, this, &DetailsPanel::apply);
    connect(m_revert, &QPushButton::clicked, this, &DetailsPanel::revert);
}

void DetailsPanel::setChanged(bool changed)
{
    m_isChanged = changed && m_index.isValid();
    m_apply->setEnabled(m_isChanged);
    m_revert->setEnabled(m_isChanged);
}

void DetailsPanel::focusTitle()
{
    m_title->setFocus();
    m_title->selectAll();
}

void DetailsPanel::showSubject(const QModelIndex &index)
{
    if (m_isChanged && m_index.isValid() && m_index == index)
        return;
    // Only what was typed for a subject that is still there is kept, by applying it.
    if (m_isChanged && m_index.isValid())
        apply();
    m_index = index;
    revert();
}

void DetailsPanel::revert()
{
    const TreeItem *const subject = m_session->model()->getTreeItem(m_index);
    m_form->setEnabled(subject);
    const TreeItem none;
    fill(subject ? *subject : none);
    setChanged(false);
}

void DetailsPanel::fill(const TreeItem &subject)
{
    m_title->setText(subject.title());
    m_detail->setPlainText(subject.detail());
    m_status->setCurrentIndex(qMax(0, m_status->findData(subject.status())));
    m_progress->setValue(subject.progress());
    m_priority->setValue(subject.priority());
    m_managerName->setText(subject.managerName());
    m_managerId->setText(subject.managerId());
    m_followers->setText(listed(subject.followers()));
    m_hasPlannedEnd->setChecked(subject.planEndDate() != 0);
    m_plannedEnd->setEnabled(subject.planEndDate() != 0);
    m_plannedEnd->setDate(subject.planEndDate() != 0
                              ? QDateTime::fromMSecsSinceEpoch(subject.planEndDate()).date()
                              : QDate::currentDate());
    for (QLineEdit *field : {m_title, m_managerName, m_managerId, m_followers})
        field->setCursorPosition(0); // a long text shows its beginning
    QStringList facts;
    if (!subject.showid().isEmpty())
        facts.append(tr("Number: %1").arg(subject.showid()));
    if (!subject.creatorName().isEmpty())
        facts.append(tr("Created by: %1").arg(subject.creatorName()));
    if (subject.createDate() != 0)
        facts.append(
            tr("Created on: %1").arg(SystemHelper::stringFromDateTimeMsecs(subject.createDate())));
    if (!subject.url().isEmpty())
        facts.append(tr("Link: %1").arg(subject.url()));
    m_facts->setText(facts.join(QLatin1Char('\n')));
}

qint64 DetailsPanel::plannedEnd(qint64 before) const
{
    if (!m_hasPlannedEnd->isChecked())
        return 0;
    const QDateTime old = QDateTime::fromMSecsSinceEpoch(before);
    if (before != 0 && old.date() == m_plannedEnd->date())
        return before; // with its time of day
    return QDateTime(m_plannedEnd->date(), QTime(0, 0)).toMSecsSinceEpoch();
}

QStringList DetailsPanel::enteredFollowers() const
{
    QStringList followers;
    const QStringList parts = m_followers->text().split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        if (!part.trimmed().isEmpty())
            followers.append(part.trimmed());
    }
    return followers;
}

/** Puts what is entered, or what @p subject has where nothing was changed, into @p target. */
void DetailsPanel::store(TreeItem &target, const TreeItem &subject) const
{
    target.setTitle(m_title->text());
    target.setDetail(m_detail->toPlainText());
    target.setManagerName(m_managerName->text());
    target.setManagerId(m_managerId->text());
    // A name may hold a comma: only a list that was changed is taken apart.
    target.setFollowers(m_followers->text() == listed(subject.followers()) ? subject.followers()
                                                                           : enteredFollowers());
    target.setPlanEndDate(plannedEnd(subject.planEndDate()));
    target.setPriority(m_priority->value());
}

/** The editor's operation leaves status and progress alone. */
void DetailsPanel::storeStatus(TreeItem &subject) const
{
    // A number without a name is shown as none, and stays unless another one is chosen.
    const bool unnamed = m_status->findData(subject.status()) < 0;
    if (!unnamed || m_status->currentIndex() > 0)
        subject.setStatus(m_status->currentData().toInt());
    subject.setProgress(m_progress->value());
}

void DetailsPanel::apply()
{
    TreeItem *const subject = m_session->model()->getTreeItem(m_index);
    if (!subject || !m_isChanged)
        return;
    TreeItem entered;
    store(entered, *subject);
    storeStatus(*subject);
    setChanged(false); // before anybody hears of the change and shows it here
    m_session->editor()->editSubject(m_index, &entered);
    if (FishInfo *const document = m_session->model()->fishOf(subject))
        document->setModified(true); // the one that is shown may be another
    m_session->touch();
    revert();
}
