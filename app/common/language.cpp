// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/language.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace {

void installFrom(const QLocale &locale, const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(locale, name, QStringLiteral("_"), folder))
        return;
    translator->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(translator.release());
}

QString toolkitTranslations()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace

namespace Language {

void install(const QString &language)
{
    QLocale locale;
    if (language == QLatin1String("zh"))
        locale = QLocale(QLocale::Chinese, QLocale::China);
    else if (!language.isEmpty())
        locale = QLocale(language);
    if (!language.isEmpty())
        QLocale::setDefault(locale);
    installFrom(locale, QStringLiteral("qtbase"), toolkitTranslations());
    installFrom(locale, QStringLiteral("fishbone"), QStringLiteral(":/i18n"));
}

} // namespace Language
