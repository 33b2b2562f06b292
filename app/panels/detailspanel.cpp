// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/detailspanel.h>

#include <app/common/language.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/subjectedit.h>
#include <app/panels/stringlisteditor.h>

#include <fishbone/items/linkitem.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectattribute.h>
#include <fishbone/model/systemhelper.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>

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
#include <QToolButton>

#include <iterator>
#include <limits>

namespace {

/** An attribute that has a plain number field. */
struct NumberField
{
    const char *key;
    const char *name;  ///< of the field
    const char *label; ///< for tr()

    const SubjectAttribute &attribute() const
    {
        return *SubjectAttribute::find(QLatin1String(key));
    }
};

const NumberField numberFields[] = {
    {"priority", "detailsPriority", QT_TRANSLATE_NOOP("DetailsPanel", "Priority:")},
};

constexpr int noStatus = -1;
constexpr int iconSize = 20;

/** Any number that a document may hold, with room for those that are usual. */
void allowAnyNumber(QSpinBox &box)
{
    constexpr int usual = 80;
    box.setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    box.setMinimumWidth(usual);
}

/** The boxes of all number fields. */
QVector<QSpinBox *> boxesOfNumbers(QWidget *form)
{
    QVector<QSpinBox *> boxes;
    for (const NumberField &field : numberFields) {
        auto *const box = new QSpinBox(form);
        box->setObjectName(QLatin1String(field.name));
        allowAnyNumber(*box);
        boxes.append(box);
    }
    return boxes;
}

/** @p state with what differs between @p from and @p to as it is in the latter. */
QJsonObject changedAs(QJsonObject state, const QJsonObject &from, const QJsonObject &to)
{
    const QStringList keys = from.keys() + to.keys();
    for (const QString &key : keys) {
        if (from.value(key) != to.value(key))
            state.insert(key, to.value(key));
    }
    return state;
}

QHBoxLayout *beside(QWidget *first, QWidget *second)
{
    auto *const row = new QHBoxLayout; // the form takes it over
    row->addWidget(first);
    row->addWidget(second);
    return row;
}

} // namespace

DetailsPanel::DetailsPanel(DiagramSession *session, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_form(new QWidget(this))
    , m_title(new QLineEdit(m_form))
    , m_number(new QLineEdit(m_form))
    , m_detail(new QPlainTextEdit(m_form))
    , m_status(new QComboBox(m_form))
    , m_progress(new QSpinBox(m_form))
    , m_statusIcon(new QLabel(m_form))
    , m_numbers(boxesOfNumbers(m_form))
    , m_managerName(new QLineEdit(m_form))
    , m_managerId(new QLineEdit(m_form))
    , m_followers(new StringListEditor(m_form))
    , m_hasPlannedEnd(new QCheckBox(m_form))
    , m_plannedEnd(new QDateEdit(m_form))
    , m_link(new QLineEdit(m_form))
    , m_openLink(new QToolButton(m_form))
    , m_style(new QPushButton(m_form))
    , m_facts(new QLabel(m_form))
    , m_apply(new QPushButton(this))
    , m_revert(new QPushButton(this))
{
    nameFields();
    setUpFields();
    buildLayout();
    watchFields();
    showSubject({});
    Language::bind(this, [this] { showTexts(); });
}

/** Names for the style sheets and tests. */
void DetailsPanel::nameFields()
{
    m_title->setObjectName(QStringLiteral("detailsTitle"));
    m_number->setObjectName(QStringLiteral("detailsNumber"));
    m_detail->setObjectName(QStringLiteral("detailsText"));
    m_status->setObjectName(QStringLiteral("detailsStatus"));
    m_progress->setObjectName(QStringLiteral("detailsProgress"));
    m_statusIcon->setObjectName(QStringLiteral("detailsStatusIcon"));
    m_managerName->setObjectName(QStringLiteral("detailsManager"));
    m_followers->setObjectName(QStringLiteral("detailsFollowers"));
    m_hasPlannedEnd->setObjectName(QStringLiteral("detailsHasPlannedEnd"));
    m_plannedEnd->setObjectName(QStringLiteral("detailsPlannedEnd"));
    m_link->setObjectName(QStringLiteral("detailsLink"));
    m_openLink->setObjectName(QStringLiteral("detailsOpenLink"));
    m_style->setObjectName(QStringLiteral("detailsStyle"));
    m_apply->setObjectName(QStringLiteral("detailsApply"));
    m_revert->setObjectName(QStringLiteral("detailsRevert"));
}

/** The texts but for those of the labels. */
void DetailsPanel::showTexts()
{
    const QStringList statuses{tr("none"),      tr("unknown"),       tr("cancelled"),
                               tr("finished"),  tr("finished late"), tr("postponed"),
                               tr("under way"), tr("waiting"),       tr("waiting for approval")};
    for (int row = 0; row < statuses.size(); ++row)
        m_status->setItemText(row, statuses.at(row));
    m_status->setMinimumWidth(m_status->sizeHint().width()); // of its own it keeps the first one
    m_openLink->setText(tr("Open"));
    m_style->setText(tr("Edit style…"));
    m_apply->setText(tr("&Apply"));
    m_revert->setText(tr("Re&vert"));
    m_hasPlannedEnd->setAccessibleName(tr("Has a planned end"));
    m_plannedEnd->setAccessibleName(tr("Planned end"));
    m_progress->setAccessibleName(tr("Progress"));
    m_link->setAccessibleName(tr("Link"));
    m_openLink->setAccessibleName(tr("Open the link"));
    m_followers->setNames(tr("Followers"), tr("New follower"));
    m_facts->setAccessibleName(tr("Origin"));
    showFacts();
}

void DetailsPanel::setUpFields()
{
    m_status->addItem(QString(), noStatus);
    for (int status = tsUnknown; status <= tsWaittingAgree; ++status) {
        const TaskStatusInfo info{TaskStatus(status), 0};
        m_status->addItem(QIcon(info.iconPath()), QString(), status);
    }
    m_status->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    allowAnyNumber(*m_progress);
    m_progress->setSuffix(QStringLiteral(" %"));
    m_progress->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_statusIcon->setFixedSize(iconSize, iconSize);
    m_plannedEnd->setCalendarPopup(true);
    m_plannedEnd->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    m_plannedEnd->setMinimumWidth(m_plannedEnd->sizeHint().width());
    m_plannedEnd->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_detail->setTabChangesFocus(true);
    // Too wide to stand beside their labels: these get the whole width of the panel.
    constexpr int wide = 150;
    m_link->setMinimumWidth(wide);
    for (QWidget *field : {static_cast<QWidget *>(m_followers), static_cast<QWidget *>(m_detail)})
        field->setMinimumWidth(wide + 50);
    m_facts->setWordWrap(true);
    m_facts->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_facts->setTextFormat(Qt::PlainText);
}

void DetailsPanel::addRows(QFormLayout &rows)
{
    const auto add = [&rows](const Language::Text &name, auto *field) {
        rows.addRow(name(), field); // which makes the label
        auto *const label = qobject_cast<QLabel *>(rows.labelForField(field));
        Language::bind(label, &QLabel::setText, name);
    };
    rows.setRowWrapPolicy(QFormLayout::WrapLongRows);
    add([] { return tr("Title:"); }, m_title);
    add([] { return tr("Number:"); }, m_number);
    add([] { return tr("Status:"); }, m_status);
    add([] { return tr("Progress:"); }, beside(m_progress, m_statusIcon));
    for (std::size_t i = 0; i < std::size(numberFields); ++i)
        add([i] { return tr(numberFields[i].label); }, m_numbers.at(int(i)));
    add([] { return tr("Responsible:"); }, m_managerName);
    add([] { return tr("Their id:"); }, m_managerId);
    add([] { return tr("Planned end:"); }, beside(m_hasPlannedEnd, m_plannedEnd));
    add([] { return tr("Link:"); }, beside(m_link, m_openLink));
    add([] { return tr("Followers:"); }, m_followers);
    add([] { return tr("Details:"); }, m_detail);
    add([] { return tr("Style:"); }, m_style);
    rows.addRow(m_facts);
}

void DetailsPanel::buildLayout()
{
    auto *const rows = new QFormLayout(m_form);
    addRows(*rows);
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
    for (QLineEdit *field : {m_title, m_number, m_managerName, m_managerId, m_link}) {
        connect(field, &QLineEdit::textChanged, this, changed);
        connect(field, &QLineEdit::returnPressed, this, &DetailsPanel::apply);
    }
    for (QSpinBox *field : m_numbers + QVector<QSpinBox *>{m_progress})
        connect(field, QOverload<int>::of(&QSpinBox::valueChanged), this, changed);
    connect(m_status, QOverload<int>::of(&QComboBox::currentIndexChanged), this, changed);
    connect(m_detail, &QPlainTextEdit::textChanged, this, changed);
    connect(m_followers, &StringListEditor::changed, this, changed);
    connect(m_plannedEnd, &QDateEdit::dateChanged, this, changed);
    connect(m_hasPlannedEnd, &QCheckBox::toggled, this, changed);
    connect(m_hasPlannedEnd, &QCheckBox::toggled, m_plannedEnd, &QDateEdit::setEnabled);
    connect(m_openLink, &QToolButton::clicked, this, &DetailsPanel::openLink);
    connect(m_style, &QPushButton::clicked, this, &DetailsPanel::editStyle);
    connect(m_apply, &QPushButton::clicked, this, &DetailsPanel::apply);
    connect(m_revert, &QPushButton::clicked, this, &DetailsPanel::revert);
}

void DetailsPanel::setChanged(bool changed)
{
    m_isChanged = changed && m_index.isValid();
    m_apply->setEnabled(m_isChanged);
    m_revert->setEnabled(m_isChanged);
    m_openLink->setEnabled(!m_link->text().trimmed().isEmpty());
    showStatusIcon();
}

/** The icon that the bone will have. */
void DetailsPanel::showStatusIcon()
{
    const TaskStatusInfo info{TaskStatus(m_status->currentData().toInt()), m_progress->value()};
    const QIcon icon(info.iconPath());
    m_statusIcon->setPixmap(icon.pixmap(iconSize, iconSize));
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
    // As the fields say it: what they cannot show, an unnamed status for instance, is no change.
    TreeItem shown(EditAttributes::stateOf(subject ? *subject : none));
    store(shown);
    m_shown = EditAttributes::stateOf(shown);
    setChanged(false);
}

void DetailsPanel::fill(const TreeItem &subject)
{
    m_title->setText(subject.title());
    m_number->setText(subject.showid());
    m_detail->setPlainText(subject.detail());
    m_status->setCurrentIndex(qMax(0, m_status->findData(subject.status())));
    m_progress->setValue(subject.progress());
    for (std::size_t i = 0; i < std::size(numberFields); ++i)
        m_numbers.at(int(i))->setValue(numberFields[i].attribute().get(subject).toInt());
    m_managerName->setText(subject.managerName());
    m_managerId->setText(subject.managerId());
    m_followers->setTexts(subject.followers());
    m_hasPlannedEnd->setChecked(subject.planEndDate() != 0);
    m_plannedEnd->setEnabled(subject.planEndDate() != 0);
    m_plannedEnd->setDate(subject.planEndDate() != 0
                              ? QDateTime::fromMSecsSinceEpoch(subject.planEndDate()).date()
                              : QDate::currentDate());
    m_link->setText(subject.url());
    for (QLineEdit *field : {m_title, m_number, m_managerName, m_managerId, m_link})
        field->setCursorPosition(0); // a long text shows its beginning
    showFacts();
}

/** What of the subject cannot be changed. */
void DetailsPanel::showFacts()
{
    const TreeItem *const subject = m_session->model()->getTreeItem(m_index);
    QStringList facts;
    if (subject && !subject->creatorName().isEmpty())
        facts.append(tr("Created by: %1").arg(subject->creatorName()));
    if (subject && subject->createDate() != 0)
        facts.append(
            tr("Created on: %1").arg(SystemHelper::stringFromDateTimeMsecs(subject->createDate())));
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

/** Puts what the fields say into @p target. */
void DetailsPanel::store(TreeItem &target) const
{
    target.setTitle(m_title->text());
    target.setShowid(m_number->text());
    target.setDetail(m_detail->toPlainText());
    target.setStatus(m_status->currentData().toInt());
    target.setProgress(m_progress->value());
    for (std::size_t i = 0; i < std::size(numberFields); ++i)
        numberFields[i].attribute().set(target, m_numbers.at(int(i))->value());
    target.setManagerName(m_managerName->text());
    target.setManagerId(m_managerId->text());
    target.setFollowers(m_followers->texts());
    target.setPlanEndDate(plannedEnd(target.planEndDate()));
    target.setUrl(m_link->text().trimmed());
}

void DetailsPanel::apply()
{
    const TreeItem *const subject = m_session->model()->getTreeItem(m_index);
    if (!subject || !m_isChanged)
        return;
    TreeItem entered(m_shown);
    store(entered);
    const QJsonObject state =
        changedAs(EditAttributes::stateOf(*subject), m_shown, EditAttributes::stateOf(entered));
    setChanged(false); // before anybody hears of the change and shows it here
    SubjectEdit::replace(
        *m_session, m_index, [] { return tr("Edit details"); }, state);
    revert();
}

void DetailsPanel::openLink() const
{
    LinkItem::open(m_link->text().trimmed());
}

void DetailsPanel::editStyle()
{
    SubjectEdit::editStyle(*m_session, m_index);
}
