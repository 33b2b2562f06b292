// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/languagemenu.h>

#include <app/common/language.h>

#include <QActionGroup>

LanguageMenu::LanguageMenu(QWidget *parent)
    : QMenu(parent)
    , m_languages(new QActionGroup(this))
{
    setObjectName(QStringLiteral("languageMenu"));
    Language::bind(this, &QMenu::setTitle, [] { return tr("Lang&uage"); });
    add(QString(), [] { return tr("&System language"); });
    addSeparator();
    // Each in itself, for those who do not read the one that is shown.
    const QStringList languages = Language::all();
    for (const QString &language : languages)
        add(language, [language] { return Language::nameOf(language); });
}

void LanguageMenu::add(const QString &language, const Language::Text &text)
{
    QAction *const action = addAction(QString());
    action->setObjectName(QStringLiteral("language-") + language);
    action->setCheckable(true);
    m_languages->addAction(action);
    connect(action, &QAction::triggered, this, [language] { Language::choose(language); });
    Language::bind(action, [action, language, text] {
        action->setText(text());
        action->setChecked(language == Language::installed());
    });
}
