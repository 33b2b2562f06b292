// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/filterbar.h>

#include <app/common/language.h>
#include <app/common/themedicon.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/drawingfilter.h>
#include <app/diagram/people.h>
#include <app/panels/markbox.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

FilterBar::FilterBar(DiagramSession *session, DrawingFilter *filter, QWidget *parent)
    : QFrame(parent)
    , m_session(session)
    , m_filter(filter)
    , m_text(new QLineEdit(this))
    , m_status(new QComboBox(this))
    , m_verdict(new QComboBox(this))
    , m_person(new QComboBox(this))
    , m_votes(new QSpinBox(this))
    , m_overdue(new QCheckBox(this))
    , m_fold(new QCheckBox(this))
    , m_count(new QLabel(this))
    , m_close(new QToolButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    nameFields();
    buildLayout();
    connectFields();
    hide();
    Language::bind(this, [this] { showTexts(); });
}

void FilterBar::nameFields()
{
    setObjectName(QStringLiteral("filterBar"));
    m_text->setObjectName(QStringLiteral("filterText"));
    m_status->setObjectName(QStringLiteral("filterStatus"));
    m_verdict->setObjectName(QStringLiteral("filterVerdict"));
    m_person->setObjectName(QStringLiteral("filterPerson"));
    m_votes->setObjectName(QStringLiteral("filterVotes"));
    m_overdue->setObjectName(QStringLiteral("filterOverdue"));
    m_fold->setObjectName(QStringLiteral("filterFold"));
    m_count->setObjectName(QStringLiteral("filterCount"));
    m_close->setObjectName(QStringLiteral("filterClose"));
}

/** In two rows, so that it fits above the drawing of a small window. */
void FilterBar::buildLayout()
{
    m_text->setClearButtonEnabled(true);
    m_votes->setMaximum(9999);
    showCross();
    m_close->setAutoRaise(true);
    constexpr int letters = 8; // of the chosen entry; the list shows them whole
    for (QComboBox *box : {m_status, m_verdict, m_person}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(letters);
    }
    auto *const first = new QHBoxLayout;
    first->addWidget(m_text, 1);
    first->addWidget(m_overdue);
    first->addWidget(m_fold);
    first->addWidget(m_count);
    first->addWidget(m_close);
    auto *const second = new QHBoxLayout;
    for (QComboBox *box : {m_status, m_verdict, m_person})
        second->addWidget(box, 1);
    second->addWidget(m_votes);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->setSpacing(4);
    layout->addLayout(first);
    layout->addLayout(second);
    QWidget *before = m_text;
    for (QWidget *field : QList<QWidget *>{m_overdue, m_fold, m_close, m_status, m_verdict,
                                           m_person, m_votes}) { // as the eye goes
        setTabOrder(before, field);
        before = field;
    }
}

void FilterBar::connectFields()
{
    const auto set = [this] { m_filter->setFilter(entered()); };
    connect(m_text, &QLineEdit::textChanged, this, set);
    for (QComboBox *box : {m_status, m_verdict, m_person}) {
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, set);
        connect(box, &QComboBox::currentTextChanged, box, &QWidget::setToolTip); // may be cut
    }
    connect(m_votes, QOverload<int>::of(&QSpinBox::valueChanged), this, set);
    connect(m_overdue, &QCheckBox::toggled, this, set);
    connect(m_fold, &QCheckBox::toggled, m_filter, &DrawingFilter::setFolding);
    connect(m_close, &QToolButton::clicked, this, &FilterBar::leave);
    connect(m_filter, &DrawingFilter::changed, this, &FilterBar::showCount);
    connect(m_session, &DiagramSession::stateChanged, this, &FilterBar::listPeople);
}

void FilterBar::showTexts()
{
    MarkBox::listStatuses(*m_status, tr("Any status"));
    MarkBox::listVerdicts(*m_verdict, tr("Any verdict"));
    for (QComboBox *box : {m_status, m_verdict})
        box->setToolTip(box->currentText());
    m_text->setPlaceholderText(tr("Text"));
    m_votes->setSpecialValueText(tr("Any votes"));
    m_votes->setPrefix(tr("Votes ≥ "));
    m_overdue->setText(tr("Overdue"));
    m_fold->setText(tr("Fold the others"));
    m_close->setToolTip(tr("Close the filter"));
    setAccessibleName(tr("Filter"));
    m_text->setAccessibleName(tr("Text in title, number or details"));
    m_status->setAccessibleName(tr("Status"));
    m_verdict->setAccessibleName(tr("Verdict"));
    m_person->setAccessibleName(tr("Responsible"));
    m_votes->setAccessibleName(tr("Least number of votes"));
    m_close->setAccessibleName(m_close->toolTip());
    showAnybody();
    listPeople();
    showCount();
}

/** Names the two choices that are nobody's name. */
void FilterBar::showAnybody()
{
    if (m_person->count() < 2)
        return;
    m_person->setItemText(0, tr("Anybody"));
    m_person->setItemText(1, tr("Nobody"));
}

/** Offers those that the document names by now. What is chosen stays. */
void FilterBar::listPeople()
{
    if (!isVisible())
        return;
    const QStringList names = People::in(m_session->container()).names();
    QStringList listed;
    for (int row = 2; row < m_person->count(); ++row)
        listed.append(m_person->itemData(row).toString());
    const std::optional<QString> chosen = entered().person;
    if (m_person->count() > 0 && listed == names)
        return;
    {
        const QSignalBlocker blocker(m_person);
        m_person->clear();
        m_person->addItem(QString());
        m_person->addItem(QString(), QString());
        showAnybody();
        for (const QString &name : names)
            m_person->addItem(name, name);
        m_person->setCurrentIndex(chosen ? qMax(0, m_person->findData(*chosen)) : 0);
    }
    m_filter->setFilter(entered()); // somebody who was chosen may be gone
}

SubjectFilter FilterBar::entered() const
{
    SubjectFilter filter;
    filter.text = m_text->text().trimmed();
    if (const QVariant status = m_status->currentData(); status.isValid())
        filter.status = status.toInt();
    if (const QVariant verdict = m_verdict->currentData(); verdict.isValid())
        filter.verdict = Verdict(verdict.toInt());
    if (const QVariant person = m_person->currentData(); person.isValid())
        filter.person = person.toString();
    filter.isOverdue = m_overdue->isChecked();
    filter.votes = m_votes->value();
    return filter;
}

void FilterBar::showCount()
{
    m_count->setText(m_filter->isActive() ? tr("%n found", nullptr, m_filter->count()) : QString());
}

void FilterBar::open()
{
    show();
    listPeople();
    m_text->setFocus();
    m_text->selectAll();
}

/** Empties all fields. */
void FilterBar::clear()
{
    m_text->clear();
    for (QComboBox *box : {m_status, m_verdict, m_person})
        box->setCurrentIndex(0);
    m_votes->setValue(0);
    m_overdue->setChecked(false);
}

void FilterBar::leave()
{
    clear();
    hide();
    Q_EMIT closed();
}

/** In the colour of texts, as no icon of the style is. */
void FilterBar::showCross()
{
    m_close->setIcon(ThemedIcon::icon(QStringLiteral("closepanel"), palette()));
}

void FilterBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        showCross();
    QFrame::changeEvent(event);
}

void FilterBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        leave();
    else
        QFrame::keyPressEvent(event);
}
