// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <app/common/language.h>

#include <QMenu>

class QActionGroup;

/** The languages that the program can show, the one that it shows checked. */
class LanguageMenu : public QMenu
{
    Q_OBJECT

public:
    explicit LanguageMenu(QWidget *parent = nullptr);

private:
    void add(const QString &language, const Language::Text &text);

    QActionGroup *m_languages;
};
