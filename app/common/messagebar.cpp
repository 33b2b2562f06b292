// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/messagebar.h>

#include <app/common/language.h>

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_layout(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("messageBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    m_text->setObjectName(QStringLiteral("messageText"));
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto *const icon = new QLabel(this);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
    m_layout->setContentsMargins(8, 4, 8, 4);
    m_layout->addWidget(icon);
    m_layout->addWidget(m_text, 1);
    hide();
    Language::bind(this, [this] { showTexts(); });
}

void MessageBar::ask(const Language::Text &question, const QList<Answer> &answers)
{
    dismiss();
    m_question = question;
    m_answers = answers;
    for (const Answer &answer : answers) {
        auto *const button = new QPushButton(this);
        button->setObjectName(answer.name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, answer.run);
        m_layout->addWidget(button);
        m_buttons.append(button);
    }
    showTexts();
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageBar::showTexts()
{
    if (!m_question)
        return;
    m_text->setText(m_question());
    setAccessibleName(m_text->text());
    for (int i = 0; i < m_buttons.size(); ++i)
        m_buttons.at(i)->setText(m_answers.at(i).text());
}

void MessageBar::dismiss()
{
    hide();
    m_question = nullptr;
    for (QPushButton *button : qAsConst(m_buttons))
        button->deleteLater(); // it may be the one that was clicked
    m_buttons.clear();
}
