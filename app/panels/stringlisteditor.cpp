// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/stringlisteditor.h>

#include <app/common/language.h>

#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QToolButton>

StringListEditor::StringListEditor(QWidget *parent)
    : QWidget(parent)
    , m_list(new QListWidget(this))
    , m_text(new QLineEdit(this))
    , m_add(new QToolButton(this))
    , m_remove(new QToolButton(this))
{
    constexpr int shownRows = 3;
    m_list->setFixedHeight(shownRows * fontMetrics().lineSpacing() + 12);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTabKeyNavigation(false);
    m_add->setText(QStringLiteral("+"));
    Language::bind(m_add, &QWidget::setToolTip, [] { return tr("Add"); });
    m_remove->setText(QStringLiteral("−"));
    Language::bind(m_remove, &QWidget::setToolTip, [] { return tr("Remove"); });
    m_list->installEventFilter(this);
    m_text->installEventFilter(this);

    auto *const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list, 0, 0, 1, 3);
    layout->addWidget(m_text, 1, 0);
    layout->addWidget(m_add, 1, 1);
    layout->addWidget(m_remove, 1, 2);

    connect(m_text, &QLineEdit::textChanged, this, &StringListEditor::updateButtons);
    connect(m_text, &QLineEdit::textChanged, this, &StringListEditor::changed);
    connect(m_add, &QToolButton::clicked, this, &StringListEditor::add);
    connect(m_remove, &QToolButton::clicked, this, &StringListEditor::remove);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &StringListEditor::updateButtons);
    connect(m_list, &QListWidget::itemChanged, this, &StringListEditor::changed);
    updateButtons();
}

void StringListEditor::setNames(const QString &list, const QString &entry)
{
    m_list->setAccessibleName(list);
    m_text->setAccessibleName(entry);
    m_text->setPlaceholderText(entry);
    m_add->setAccessibleName(QStringLiteral("%1: %2").arg(m_add->toolTip(), entry));
    m_remove->setAccessibleName(QStringLiteral("%1: %2").arg(m_remove->toolTip(), list));
}

QStringList StringListEditor::texts() const
{
    QStringList texts;
    for (int row = 0; row < m_list->count(); ++row)
        texts.append(m_list->item(row)->text());
    if (const QString text = m_text->text().trimmed(); !text.isEmpty())
        texts.append(text);
    return texts;
}

void StringListEditor::setTexts(const QStringList &texts)
{
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    for (const QString &text : texts)
        append(text);
    m_text->clear();
    updateButtons();
}

void StringListEditor::append(const QString &text)
{
    auto *const item = new QListWidgetItem(text, m_list); // which owns it
    item->setFlags(item->flags() | Qt::ItemIsEditable);
}

void StringListEditor::add()
{
    const QString text = m_text->text().trimmed();
    if (text.isEmpty())
        return;
    {
        const QSignalBlocker blocker(m_list);
        append(text);
    }
    m_list->scrollToBottom();
    m_text->clear();
    Q_EMIT changed();
}

void StringListEditor::remove()
{
    const QList<QListWidgetItem *> selected = m_list->selectedItems();
    if (selected.isEmpty())
        return;
    qDeleteAll(selected);
    updateButtons();
    Q_EMIT changed();
}

void StringListEditor::updateButtons()
{
    m_add->setEnabled(!m_text->text().trimmed().isEmpty());
    m_remove->setEnabled(!m_list->selectedItems().isEmpty());
}

bool StringListEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (watched == m_list && key == Qt::Key_Delete) {
        remove();
        return true;
    }
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_text && isReturn && !m_text->text().trimmed().isEmpty()) {
        add();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
