// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/messagebar.h>

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
}

void MessageBar::ask(const QString &question, const QList<Answer> &answers)
{
    dismiss();
    m_text->setText(question);
    setAccessibleName(question);
    for (const Answer &answer : answers) {
        auto *const button = new QPushButton(answer.text, this);
        button->setObjectName(answer.name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, answer.run);
        m_layout->addWidget(button);
        m_buttons.append(button);
    }
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageBar::dismiss()
{
    hide();
    for (QPushButton *button : qAsConst(m_buttons))
        button->deleteLater(); // it may be the one that was clicked
    m_buttons.clear();
}
