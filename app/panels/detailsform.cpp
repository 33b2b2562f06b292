// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/detailsform.h>

#include <app/common/language.h>
#include <app/common/rowtaborder.h>
#include <app/panels/detailsfield.h>
#include <app/panels/detailsrows.h>

#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/model/treeitem.h>

#include <QFormLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int iconSize = 20;

} // namespace

DetailsForm::DetailsForm(QWidget *parent)
    : QWidget(parent)
    , m_statusIcon(new QLabel(this))
    , m_fields(DetailsRows::make(this, m_statusIcon))
    , m_style(new QPushButton(this))
    , m_facts(new QLabel(this))
{
    m_statusIcon->setObjectName(QStringLiteral("detailsStatusIcon"));
    m_statusIcon->setFixedSize(iconSize, iconSize);
    m_style->setObjectName(QStringLiteral("detailsStyle"));
    m_facts->setWordWrap(true);
    m_facts->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_facts->setTextFormat(Qt::PlainText);
    addRows();
    for (DetailsField *field : qAsConst(m_fields))
        watch(field);
    connect(m_style, &QPushButton::clicked, this, &DetailsForm::editStyleWanted);
}

void DetailsForm::addRows()
{
    auto *const rows = new QFormLayout(this);
    rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
    const auto add = [rows](const Language::Text &name, QWidget *field) {
        rows->addRow(name(), field); // which makes the label
        Language::bind(qobject_cast<QLabel *>(rows->labelForField(field)), &QLabel::setText, name);
    };
    for (const DetailsField *field : qAsConst(m_fields))
        add(field->label(), field->widget());
    add([] { return tr("Style:"); }, m_style);
    rows->addRow(m_facts);
    RowTabOrder::apply({rows});
}

void DetailsForm::watch(DetailsField *field)
{
    connect(field, &DetailsField::entered, this, &DetailsForm::entered);
    connect(field, &DetailsField::changed, this, [this, field] {
        m_touched.insert(field->key());
        showStatusIcon();
        Q_EMIT changed();
    });
}

/** The texts but for those of the labels. */
void DetailsForm::showTexts()
{
    for (DetailsField *field : qAsConst(m_fields))
        field->showTexts(severalFor(*field));
    m_style->setText(tr("Edit style…"));
    m_facts->setAccessibleName(tr("Origin"));
}

/** What stands in @p field in the place of the values of several. */
QString DetailsForm::severalFor(const DetailsField &field) const
{
    if (field.key() == QLatin1String("title")) // which is never the same
        return m_count > 1 ? tr("%n subjects", nullptr, m_count) : QString();
    return m_mixed.contains(field.key()) ? tr("several") : QString();
}

/** Whether what @p field says is meant for the subjects that are shown. */
bool DetailsForm::isTaken(const DetailsField &field) const
{
    return m_count <= 1 || field.sharing() == DetailsField::Sharing::Common;
}

QSet<QString> DetailsForm::touched() const
{
    QSet<QString> keys = m_touched;
    for (const DetailsField *field : m_fields) {
        if (!field->hasValue())
            keys.remove(field->key());
    }
    return keys;
}

/** The icon that the bone will have. */
void DetailsForm::showStatusIcon()
{
    TreeItem bone;
    for (const DetailsField *field : qAsConst(m_fields)) {
        if (field->key() == QLatin1String("status") || field->key() == QLatin1String("progress"))
            field->store(bone);
    }
    const TaskStatusInfo info{TaskStatus(bone.status()), bone.progress()};
    m_statusIcon->setPixmap(QIcon(info.iconPath()).pixmap(iconSize, iconSize));
}

void DetailsForm::begin()
{
    for (const DetailsField *field : qAsConst(m_fields)) {
        if (!isTaken(*field))
            continue;
        field->widget()->setFocus();
        if (auto *const line = qobject_cast<QLineEdit *>(field->widget()))
            line->selectAll();
        return;
    }
}

void DetailsForm::setFacts(const QStringList &facts)
{
    m_facts->setText(facts.join(QLatin1Char('\n')));
}

void DetailsForm::fill(const TreeItem &subject, const QSet<QString> &mixed, int count)
{
    m_count = count;
    m_mixed = mixed;
    if (count > 1)
        m_mixed.insert(QStringLiteral("title"));
    for (DetailsField *field : qAsConst(m_fields)) {
        field->widget()->setEnabled(isTaken(*field)); // first, since a field may know better
        field->fill(subject, m_mixed.contains(field->key()));
    }
    showTexts();
    showStatusIcon();
    m_touched.clear();
}

void DetailsForm::store(TreeItem &target) const
{
    for (const DetailsField *field : m_fields) {
        if (isTaken(*field))
            field->store(target);
    }
}
