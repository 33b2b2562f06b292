// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/detailsform.h>

#include <app/common/language.h>
#include <app/common/rowtaborder.h>
#include <app/diagram/marknames.h>
#include <app/panels/prioritybox.h>
#include <app/panels/stringlisteditor.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/subjectattribute.h>
#include <fishbone/model/subjectmarks.h>
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
    {"priority", "detailsPriority", QT_TRANSLATE_NOOP("DetailsForm", "Priority:")},
};

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
        auto *const box = new PriorityBox(form);
        box->setObjectName(QLatin1String(field.name));
        allowAnyNumber(*box);
        boxes.append(box);
    }
    return boxes;
}

QHBoxLayout *beside(QWidget *first, QWidget *second)
{
    auto *const row = new QHBoxLayout; // the form takes it over
    row->addWidget(first);
    row->addWidget(second);
    return row;
}

} // namespace

DetailsForm::DetailsForm(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLineEdit(this))
    , m_number(new QLineEdit(this))
    , m_detail(new QPlainTextEdit(this))
    , m_status(new QComboBox(this))
    , m_verdict(new QComboBox(this))
    , m_votes(new QSpinBox(this))
    , m_progress(new QSpinBox(this))
    , m_statusIcon(new QLabel(this))
    , m_numbers(boxesOfNumbers(this))
    , m_managerName(new QLineEdit(this))
    , m_managerId(new QLineEdit(this))
    , m_followers(new StringListEditor(this))
    , m_hasPlannedEnd(new QCheckBox(this))
    , m_plannedEnd(new QDateEdit(this))
    , m_link(new QLineEdit(this))
    , m_openLink(new QToolButton(this))
    , m_style(new QPushButton(this))
    , m_facts(new QLabel(this))
{
    nameFields();
    setUpFields();
    addRows(*new QFormLayout(this));
    watchFields();
}

/** Names for the style sheets and tests. */
void DetailsForm::nameFields()
{
    m_title->setObjectName(QStringLiteral("detailsTitle"));
    m_number->setObjectName(QStringLiteral("detailsNumber"));
    m_detail->setObjectName(QStringLiteral("detailsText"));
    m_status->setObjectName(QStringLiteral("detailsStatus"));
    m_verdict->setObjectName(QStringLiteral("detailsVerdict"));
    m_votes->setObjectName(QStringLiteral("detailsVotes"));
    m_progress->setObjectName(QStringLiteral("detailsProgress"));
    m_statusIcon->setObjectName(QStringLiteral("detailsStatusIcon"));
    m_managerName->setObjectName(QStringLiteral("detailsManager"));
    m_followers->setObjectName(QStringLiteral("detailsFollowers"));
    m_hasPlannedEnd->setObjectName(QStringLiteral("detailsHasPlannedEnd"));
    m_plannedEnd->setObjectName(QStringLiteral("detailsPlannedEnd"));
    m_link->setObjectName(QStringLiteral("detailsLink"));
    m_openLink->setObjectName(QStringLiteral("detailsOpenLink"));
    m_style->setObjectName(QStringLiteral("detailsStyle"));
}

/** The texts but for those of the labels. */
void DetailsForm::showTexts()
{
    const QStringList statuses = MarkNames::statuses();
    for (int row = 0; row < statuses.size(); ++row)
        m_status->setItemText(row, statuses.at(row));
    const QStringList verdicts = MarkNames::verdicts();
    for (int row = 0; row < verdicts.size(); ++row)
        m_verdict->setItemText(row, verdicts.at(row));
    m_verdict->setMinimumWidth(m_verdict->sizeHint().width());
    m_status->setMinimumWidth(m_status->sizeHint().width()); // of its own it keeps the first one
    m_openLink->setText(tr("Open"));
    m_style->setText(tr("Edit style…"));
    m_hasPlannedEnd->setAccessibleName(tr("Has a planned end"));
    m_plannedEnd->setAccessibleName(tr("Planned end"));
    m_detail->setToolTip(
        tr("What there is to say of it; of a cause, the evidence for its verdict"));
    m_progress->setAccessibleName(tr("Progress"));
    m_link->setAccessibleName(tr("Link"));
    m_openLink->setAccessibleName(tr("Open the link"));
    m_followers->setNames(tr("Followers"), tr("New follower"));
    m_facts->setAccessibleName(tr("Origin"));
    const QString several = tr("several");
    for (QComboBox *field : {m_status, m_verdict})
        field->setPlaceholderText(several);
    for (QLineEdit *field : {m_number, m_managerName, m_managerId, m_link})
        field->setPlaceholderText(isMixed(field) ? several : QString());
    m_detail->setPlaceholderText(isMixed(m_detail) ? several : QString());
    m_title->setPlaceholderText(m_count > 1 ? tr("%n subjects", nullptr, m_count) : QString());
    for (QSpinBox *field : allNumbers())
        field->setSpecialValueText(isMixed(field) ? several : QString());
    m_followers->setToolTip(isMixed(m_followers) ? several : QString());
}

void DetailsForm::setUpFields()
{
    m_status->addItem(QString(), MarkNames::noStatus);
    for (int status = tsUnknown; status <= tsWaittingAgree; ++status) {
        const TaskStatusInfo info{TaskStatus(status), 0};
        m_status->addItem(QIcon(info.iconPath()), QString(), status);
    }
    for (int verdict = int(Verdict::None); verdict <= int(Verdict::RootCause); ++verdict)
        m_verdict->addItem(QString(), verdict);
    for (QComboBox *field : {m_status, m_verdict})
        field->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // One below what can be means that they differ.
    m_votes->setRange(-1, std::numeric_limits<int>::max());
    m_votes->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_votes->setMinimumWidth(80);
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

void DetailsForm::addRows(QFormLayout &rows)
{
    const auto add = [&rows](const Language::Text &name, auto *field) {
        rows.addRow(name(), field); // which makes the label
        auto *const label = qobject_cast<QLabel *>(rows.labelForField(field));
        Language::bind(label, &QLabel::setText, name);
    };
    rows.setRowWrapPolicy(QFormLayout::WrapLongRows);
    add([] { return tr("Title:"); }, m_title);
    add([] { return tr("Number:"); }, m_number);
    add([] { return tr("Verdict:"); }, m_verdict);
    add([] { return tr("Votes:"); }, m_votes);
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
    RowTabOrder::apply(rows);
}

QVector<QSpinBox *> DetailsForm::allNumbers() const
{
    return m_numbers + QVector<QSpinBox *>{m_progress, m_votes};
}

void DetailsForm::watchFields()
{
    const auto watch = [this](QWidget *field, const char *key) {
        m_keys.insert(field, QLatin1String(key));
        return [this, field] { noteChange(field); };
    };
    const std::pair<QLineEdit *, const char *> lines[] = {{m_title, "title"},
                                                          {m_number, "showid"},
                                                          {m_managerName, "mgrname"},
                                                          {m_managerId, "mgrid"},
                                                          {m_link, "url"}};
    for (const auto &[field, key] : lines) {
        connect(field, &QLineEdit::textChanged, this, watch(field, key));
        connect(field, &QLineEdit::returnPressed, this, &DetailsForm::entered);
    }
    const auto valueChanged = QOverload<int>::of(&QSpinBox::valueChanged);
    for (std::size_t i = 0; i < std::size(numberFields); ++i) {
        QSpinBox *const field = m_numbers.at(int(i));
        connect(field, valueChanged, this, watch(field, numberFields[i].key));
    }
    connect(m_progress, valueChanged, this, watch(m_progress, "progress"));
    connect(m_status, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            watch(m_status, "status"));
    connect(m_verdict, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            watch(m_verdict, "verdict"));
    connect(m_votes, valueChanged, this, watch(m_votes, "votes"));
    connect(m_detail, &QPlainTextEdit::textChanged, this, watch(m_detail, "detail"));
    connect(m_followers, &StringListEditor::changed, this, watch(m_followers, "followers"));
    connect(m_plannedEnd, &QDateEdit::dateChanged, this, watch(m_plannedEnd, "planenddate"));
    connect(m_hasPlannedEnd, &QCheckBox::stateChanged, this, watch(m_hasPlannedEnd, "planenddate"));
    connect(m_hasPlannedEnd, &QCheckBox::stateChanged, m_plannedEnd,
            [this](int state) { m_plannedEnd->setEnabled(state == Qt::Checked); });
    connect(m_openLink, &QToolButton::clicked, this, &DetailsForm::openLinkWanted);
    connect(m_style, &QPushButton::clicked, this, &DetailsForm::editStyleWanted);
}

bool DetailsForm::isMixed(const QWidget *field) const
{
    return m_mixed.contains(m_keys.value(field));
}

void DetailsForm::noteChange(const QWidget *field)
{
    m_touched.insert(m_keys.value(field));
    m_openLink->setEnabled(!link().isEmpty());
    showStatusIcon();
    Q_EMIT changed();
}

QSet<QString> DetailsForm::touched() const
{
    QSet<QString> keys = m_touched;
    if (m_hasPlannedEnd->checkState() == Qt::PartiallyChecked)
        keys.remove(QStringLiteral("planenddate"));
    for (const QComboBox *field : {m_status, m_verdict}) {
        if (field->currentIndex() < 0)
            keys.remove(m_keys.value(field));
    }
    return keys;
}

QString DetailsForm::link() const
{
    return m_link->text().trimmed();
}

/** The icon that the bone will have. */
void DetailsForm::showStatusIcon()
{
    const QVariant status = m_status->currentData();
    const TaskStatusInfo info{TaskStatus(status.isValid() ? status.toInt() : MarkNames::noStatus),
                              m_progress->value()};
    const QIcon icon(info.iconPath());
    m_statusIcon->setPixmap(icon.pixmap(iconSize, iconSize));
}

void DetailsForm::begin()
{
    if (m_count > 1) {
        m_status->setFocus();
        return;
    }
    m_title->setFocus();
    m_title->selectAll();
}

void DetailsForm::setFacts(const QStringList &facts)
{
    m_facts->setText(facts.join(QLatin1Char('\n')));
}

void DetailsForm::fill(const TreeItem &subject, const QSet<QString> &mixed, int count)
{
    m_mixed = mixed;
    m_count = count;
    const auto setText = [this](QLineEdit *field, const QString &text) {
        field->setText(isMixed(field) ? QString() : text);
        field->setCursorPosition(0); // a long text shows its beginning
    };
    setText(m_title, count > 1 ? QString() : subject.title());
    setText(m_number, subject.showid());
    setText(m_managerName, subject.managerName());
    setText(m_managerId, subject.managerId());
    setText(m_link, subject.url());
    m_detail->setPlainText(isMixed(m_detail) ? QString() : subject.detail());
    choose(m_status, subject.status());
    choose(m_verdict, int(SubjectMarks::verdict(subject)));
    const auto setNumber = [this](QSpinBox *field, int value) {
        field->setValue(isMixed(field) ? field->minimum() : value);
    };
    setNumber(m_progress, subject.progress());
    setNumber(m_votes, SubjectMarks::votes(subject));
    for (std::size_t i = 0; i < std::size(numberFields); ++i)
        setNumber(m_numbers.at(int(i)), numberFields[i].attribute().get(subject).toInt());
    m_followers->setTexts(isMixed(m_followers) ? QStringList() : subject.followers());
    fillPlannedEnd(subject.planEndDate());
    // These are each subject's own.
    m_title->setEnabled(count <= 1);
    m_number->setEnabled(count <= 1);
    // A list that nobody sees would be replaced.
    m_followers->setEnabled(!isMixed(m_followers));
    showTexts();
    showStatusIcon();
    m_openLink->setEnabled(!link().isEmpty());
    m_touched.clear();
}

/** Shows @p value, or that it is not the same everywhere. */
void DetailsForm::choose(QComboBox *field, int value) const
{
    field->setCurrentIndex(isMixed(field) ? -1 : qMax(0, field->findData(value)));
}

void DetailsForm::fillPlannedEnd(qint64 date)
{
    const bool areMixed = isMixed(m_hasPlannedEnd);
    m_hasPlannedEnd->setTristate(areMixed);
    m_hasPlannedEnd->setCheckState(areMixed    ? Qt::PartiallyChecked
                                   : date != 0 ? Qt::Checked
                                               : Qt::Unchecked);
    m_plannedEnd->setEnabled(m_hasPlannedEnd->checkState() == Qt::Checked);
    m_plannedEnd->setDate(date != 0 ? QDateTime::fromMSecsSinceEpoch(date).date()
                                    : QDate::currentDate());
}

qint64 DetailsForm::plannedEnd(qint64 before) const
{
    if (m_hasPlannedEnd->checkState() == Qt::PartiallyChecked)
        return before;
    if (!m_hasPlannedEnd->isChecked())
        return 0;
    const QDateTime old = QDateTime::fromMSecsSinceEpoch(before);
    if (before != 0 && old.date() == m_plannedEnd->date())
        return before; // with its time of day
    return QDateTime(m_plannedEnd->date(), QTime(0, 0)).toMSecsSinceEpoch();
}

void DetailsForm::store(TreeItem &target) const
{
    if (m_count <= 1)
        target.setTitle(m_title->text());
    target.setShowid(m_number->text());
    target.setDetail(m_detail->toPlainText());
    if (m_status->currentIndex() >= 0)
        target.setStatus(m_status->currentData().toInt());
    if (m_verdict->currentIndex() >= 0 &&
        int(SubjectMarks::verdict(target)) != m_verdict->currentData().toInt())
        SubjectMarks::setVerdict(target, Verdict(m_verdict->currentData().toInt()));
    if (SubjectMarks::votes(target) != m_votes->value())
        SubjectMarks::setVotes(target, m_votes->value());
    target.setProgress(m_progress->value());
    for (std::size_t i = 0; i < std::size(numberFields); ++i)
        numberFields[i].attribute().set(target, m_numbers.at(int(i))->value());
    target.setManagerName(m_managerName->text());
    target.setManagerId(m_managerId->text());
    target.setFollowers(m_followers->texts());
    target.setPlanEndDate(plannedEnd(target.planEndDate()));
    target.setUrl(link());
}
