// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/language.h>

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>
#include <QWidget>

#include <memory>

namespace {

/** Of the setting, and of the translators that are installed. */
QString keyName()
{
    return QStringLiteral("language");
}

void installFrom(const QLocale &locale, const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(locale, name, QStringLiteral("_"), folder))
        return;
    translator->setObjectName(keyName());
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

/** A widget keeps the default locale of the time when it was made. */
void showFormats()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (!window->testAttribute(Qt::WA_SetLocale))
            window->unsetLocale(); // which asks for the default again, for all that is in it
    }
}

} // namespace

Language &Language::instance()
{
    static Language language;
    return language;
}

void Language::install(const QString &language)
{
    Language &self = instance();
    if (self.m_installed.isEmpty())
        self.m_system = QLocale();
    self.m_installed = language;
    const QList<QTranslator *> old =
        QCoreApplication::instance()->findChildren<QTranslator *>(keyName());
    const QLocale locale = self.locale();
    QLocale::setDefault(locale);
    installFrom(locale, QStringLiteral("qtbase"), toolkitTranslations());
    installFrom(locale, QStringLiteral("fishbone"), QStringLiteral(":/i18n"));
    qDeleteAll(old);
    showFormats();
    Q_EMIT self.changed();
}

QLocale Language::locale() const
{
    const QLocale wanted = m_installed == QLatin1String("zh")
                               ? QLocale(QLocale::Chinese, QLocale::China)
                               : QLocale(m_installed);
    // Whoever speaks the language anyway writes numbers and dates as at home.
    const bool isSystems = m_installed.isEmpty() || wanted.language() == m_system.language();
    return isSystems ? m_system : wanted;
}

QString Language::installed()
{
    return instance().m_installed;
}

void Language::choose(const QString &language)
{
    QSettings().setValue(keyName(), language);
    install(language);
}

QString Language::chosen()
{
    const QString language = QSettings().value(keyName()).toString();
    return all().contains(language) ? language : QString();
}

QStringList Language::all()
{
    return {QStringLiteral("zh"), QStringLiteral("en")};
}

void Language::bind(const QObject *keeper, const std::function<void()> &show)
{
    connect(&instance(), &Language::changed, keeper, show);
    show();
}
