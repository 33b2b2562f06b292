// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/detailspanel.h>

#include <app/common/language.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/subjectedit.h>
#include <app/diagram/subjectstyles.h>
#include <app/panels/detailsform.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

namespace {

/** The keys under which @p one and @p other have different values. */
QSet<QString> differenceOf(const QJsonObject &one, const QJsonObject &other)
{
    QSet<QString> keys;
    const QStringList all = one.keys() + other.keys();
    for (const QString &key : all) {
        if (one.value(key) != other.value(key))
            keys.insert(key);
    }
    return keys;
}

} // namespace

DetailsPanel::DetailsPanel(DiagramSession *session, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_scroll(new QScrollArea(this))
    , m_form(new DetailsForm(this))
    , m_apply(new QPushButton(this))
    , m_revert(new QPushButton(this))
{
    m_apply->setObjectName(QStringLiteral("detailsApply"));
    m_revert->setObjectName(QStringLiteral("detailsRevert"));
    buildLayout();
    connect(m_form, &DetailsForm::changed, this, [this] { setChanged(true); });
    connect(m_form, &DetailsForm::entered, this, &DetailsPanel::apply);
    connect(m_form, &DetailsForm::editStyleWanted, this, &DetailsPanel::editStyle);
    connect(m_apply, &QPushButton::clicked, this, &DetailsPanel::apply);
    connect(m_revert, &QPushButton::clicked, this, &DetailsPanel::revert);
    showSubject({});
    Language::bind(this, [this] { showTexts(); });
}

/** Takes Return for all that have no use for it. Lines of text tell of it by themselves. */
void DetailsPanel::keyPressEvent(QKeyEvent *event)
{
    const QWidget *const field = focusWidget();
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isPlain = qobject_cast<const QAbstractSpinBox *>(field) ||
                         qobject_cast<const QComboBox *>(field) ||
                         qobject_cast<const QCheckBox *>(field);
    if (isReturn && isPlain)
        apply();
    else
        QWidget::keyPressEvent(event);
}

void DetailsPanel::buildLayout()
{
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus); // Tab leads from field to field
    m_scroll->setWidget(m_form);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_apply);
    buttons->addWidget(m_revert);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_scroll);
    layout->addLayout(buttons);
}

/** The texts but for those of the labels. */
void DetailsPanel::showTexts()
{
    m_apply->setText(tr("&Apply"));
    m_revert->setText(tr("Re&vert"));
    m_form->showTexts();
    showFacts();
}

/** As wide as it takes to scroll up and down alone. */
QSize DetailsPanel::sizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int width = m_form->minimumSizeHint().width() + margins.left() + margins.right() +
                      m_scroll->verticalScrollBar()->sizeHint().width();
    return QSize(width, QWidget::sizeHint().height());
}

void DetailsPanel::setChanged(bool changed)
{
    m_isChanged = changed && !living().isEmpty();
    m_apply->setEnabled(m_isChanged);
    m_revert->setEnabled(m_isChanged);
}

void DetailsPanel::focusTitle()
{
    m_form->begin();
}

void DetailsPanel::showSubject(const QModelIndex &index)
{
    const QModelIndexList shown = living();
    if (shown.contains(index)) // perhaps with others
        showSubjects(shown);
    else
        showSubjects(index.isValid() ? QModelIndexList{index} : QModelIndexList());
}

void DetailsPanel::showSubjects(const QModelIndexList &indexes)
{
    const QModelIndexList shown = living();
    if (m_isChanged && !shown.isEmpty() && shown == indexes)
        return;
    // Only what was typed for subjects that are still there is kept, by applying it.
    if (m_isChanged && !shown.isEmpty())
        apply();
    m_indexes.clear();
    for (const QModelIndex &index : indexes)
        m_indexes.append(index);
    revert();
}

/** Those of the subjects that are still there. */
QModelIndexList DetailsPanel::living() const
{
    QModelIndexList indexes;
    for (const QPersistentModelIndex &index : m_indexes) {
        if (m_session->model()->getTreeItem(index))
            indexes.append(index);
    }
    return indexes;
}

/** The attributes in which the subjects at @p indexes differ. */
QSet<QString> DetailsPanel::differing(const QModelIndexList &indexes) const
{
    QSet<QString> keys;
    QJsonObject first;
    for (const QModelIndex &index : indexes) {
        const QJsonObject state = EditAttributes::stateOf(*m_session->model()->getTreeItem(index));
        if (index == indexes.constFirst())
            first = state;
        else
            keys += differenceOf(first, state);
    }
    return keys;
}

void DetailsPanel::revert()
{
    const QModelIndexList indexes = living();
    const TreeItem none;
    const TreeItem *const subject =
        indexes.isEmpty() ? &none : m_session->model()->getTreeItem(indexes.constFirst());
    m_mixed = differing(indexes);
    m_form->setEnabled(!indexes.isEmpty());
    m_form->fill(*subject, m_mixed, int(indexes.size()));
    showFacts();
    // As the fields say it: what they cannot show, an unnamed status for instance, is no change.
    TreeItem shown(EditAttributes::stateOf(*subject));
    m_form->store(shown);
    m_shown = EditAttributes::stateOf(shown);
    setChanged(false);
}

/** What of a subject cannot be changed. */
void DetailsPanel::showFacts()
{
    const QModelIndexList indexes = living();
    const TreeItem *const subject =
        indexes.size() == 1 ? m_session->model()->getTreeItem(indexes.constFirst()) : nullptr;
    QStringList facts;
    if (subject && !subject->creatorName().isEmpty())
        facts.append(tr("Created by: %1").arg(subject->creatorName()));
    if (subject && subject->createDate() != 0)
        facts.append(tr("Created on: %1")
                         .arg(QLocale().toString(
                             QDateTime::fromMSecsSinceEpoch(subject->createDate()).date(),
                             QLocale::ShortFormat)));
    m_form->setFacts(facts);
}

void DetailsPanel::apply()
{
    const QModelIndexList indexes = living();
    if (indexes.isEmpty() || !m_isChanged)
        return;
    TreeItem entered(m_shown);
    m_form->store(entered);
    const QJsonObject wanted = EditAttributes::stateOf(entered);
    // A mixed field that was changed may say what the first subject has already.
    QSet<QString> keys = differenceOf(m_shown, wanted) - m_mixed;
    keys += m_form->touched() & m_mixed;
    setChanged(false); // before anybody hears of the change and shows it here
    SubjectEdit::changeAll(
        *m_session, indexes, [] { return tr("Edit details"); },
        [&](QJsonObject state) {
            for (const QString &key : qAsConst(keys))
                state.insert(key, wanted.value(key));
            return state;
        });
    revert();
}

void DetailsPanel::editStyle()
{
    SubjectStyles::edit(*m_session, living());
}
