// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/language.h>

#include <app/common/toolkitfolder.h>
#include <app/common/translationfolder.h>

#include <QApplication>
#include <QFile>
#include <QGuiApplication>
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

struct Entry
{
    const char *code;
    const char *name;
};

constexpr Entry entries[] = {
    {"en", "English"},     {"ar", "العربية"},
    {"de", "Deutsch"},     {"es", "Español"},
    {"fr", "Français"},    {"it", "Italiano"},
    {"ja", "日本語"},      {"ko", "한국어"},
    {"pl", "Polski"},      {"pt_BR", "Português (Brasil)"},
    {"ru", "Русский"},     {"zh", "简体中文"},
    {"zh_TW", "繁體中文"},
};

/** The locale that a language is written for. */
QLocale localeOf(const QString &language)
{
    return language == QLatin1String("zh") ? QLocale(QLocale::Chinese, QLocale::China)
                                           : QLocale(language);
}

/** Whether who reads the language of @p left reads that of @p right: a script apart, Chinese is
 * two, and Portuguese is one anywhere. */
bool areRead(const QLocale &left, const QLocale &right)
{
    return left.language() == right.language() && left.script() == right.script();
}

/** Without "_BR" and the like at its end there may be a file @p name, too. */
void installFrom(const QString &folder, const QString &name)
{
    auto translator = std::make_unique<QTranslator>();
    if (name.isEmpty() || !translator->load(name, folder))
        return;
    translator->setObjectName(keyName());
    translator->setParent(QCoreApplication::instance());
    QCoreApplication::installTranslator(translator.release());
}

/** Lays out widgets in @p direction. One keeps the default locale of the time when it was made. A
 * run that draws nothing has no application to tell. */
void show(Qt::LayoutDirection direction)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return;
    QGuiApplication::setLayoutDirection(direction);
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
    QLocale::setDefault(self.locale());
    const QString shown = self.nearest();
    const QLocale locale = localeOf(shown);
    installFrom(ToolkitFolder::of(QLibraryInfo::TranslationsPath),
                QStringLiteral("qtbase_") + locale.name());
    installFrom(QStringLiteral(":/i18n"), QStringLiteral("fishbone_") + shown);
    if (self.m_folder)
        installFrom(QString(), self.m_folder->fileOf(shown));
    qDeleteAll(old);
    show(locale.textDirection());
    Q_EMIT self.changed();
}

/** The language that is asked for, else the first of those that the user reads. */
QString Language::nearest() const
{
    if (!m_installed.isEmpty())
        return m_installed;
    const QStringList languages = all();
    const QStringList read = m_system.uiLanguages();
    for (const QString &each : read) {
        const QLocale reader(each);
        for (const QString &language : languages) {
            if (areRead(localeOf(language), reader))
                return language;
        }
    }
    return QLatin1String(entries[0].code);
}

QLocale Language::locale() const
{
    // Whoever speaks the language anyway writes numbers and dates as at home.
    const bool isSystems = m_installed.isEmpty() || areRead(localeOf(m_installed), m_system);
    return isSystems ? m_system : localeOf(m_installed);
}

QString Language::installed()
{
    return instance().m_installed;
}

QString Language::shown()
{
    return instance().nearest();
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
    QStringList codes;
    for (const Entry &entry : entries) {
        const QString code = QLatin1String(entry.code);
        if (QFile::exists(QStringLiteral(":/i18n/fishbone_%1.qm").arg(code)))
            codes.append(code);
    }
    if (const TranslationFolder *const folder = instance().m_folder)
        codes += folder->languages();
    codes.removeDuplicates();
    return codes;
}

QString Language::nameOf(const QString &language)
{
    for (const Entry &entry : entries) {
        if (language == QLatin1String(entry.code))
            return QString::fromUtf8(entry.name);
    }
    return localeOf(language).nativeLanguageName();
}

void Language::useFolder(const QString &folder)
{
    Language &self = instance();
    delete self.m_folder;
    if (folder.isEmpty())
        return;
    self.m_folder = new TranslationFolder(folder, QCoreApplication::instance()); // which owns it
    connect(self.m_folder, &TranslationFolder::changed, &self,
            [&self] { install(self.m_installed); });
}

void Language::bind(const QObject *keeper, const std::function<void()> &show)
{
    connect(&instance(), &Language::changed, keeper, show);
    show();
}
