// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>

class TranslationFolder;

/**
 * The language of what the program shows. It can change while the program runs, so a text that is
 * kept, by a widget or an action, is not set but bound: bind() sets it and sets it again in each
 * new language. A text that is made when it is needed, for a message say, takes tr() alone.
 */
class Language : public QObject
{
    Q_OBJECT

public:
    /** A text in the language of the moment. */
    using Text = std::function<QString()>;

    /** The languages that there are, as translations/ names them: "en", "zh", "pt_BR". English is
     * the first; whoever reads none of them gets it. */
    static QStringList all();
    /** What those who speak @p language call it. */
    static QString nameOf(const QString &language);

    /**
     * Shows everything in @p language, one of all(), or in that of the system when it is empty: the
     * texts of the program, the library and, as far as they are installed, the toolkit, numbers and
     * dates, and the direction in which it reads. The application object must exist.
     */
    static void install(const QString &language);
    /** What was installed last; empty for that of the system. */
    static QString installed();
    /** The one of all() that is shown, whatever was asked for. */
    static QString shown();

    /**
     * From now on shows the texts that the files in @p folder have, translations/ of the sources
     * for one, rather than the program's own, and shows them anew when such a file is changed.
     * Languages that only the folder has count among all(). Without a folder it is as before.
     */
    static void useFolder(const QString &folder);

    /** Installs @p language, and keeps it for the next runs. */
    static void choose(const QString &language);
    /** The language that was chosen, perhaps in an earlier run; empty for that of the system. */
    static QString chosen();

    /** Calls @p show now, and again in each new language while @p keeper lives, after what was
     * bound before. */
    static void bind(const QObject *keeper, const std::function<void()> &show);

    /** Gives @p text to @p keeper by its @p setter, now and in each new language. */
    template <typename Keeper, typename Class>
    static void bind(Keeper *keeper, void (Class::*setter)(const QString &), const Text &text)
    {
        bind(keeper, [keeper, setter, text] { (keeper->*setter)(text()); });
    }

Q_SIGNALS:
    /** The language is another one now. */
    void changed();

private:
    static Language &instance();
    QString nearest() const;
    QLocale locale() const;

    QPointer<TranslationFolder> m_folder; ///< null while there are only the own texts
    QString m_installed;
    QLocale m_system; ///< the default while no other language is installed
};
