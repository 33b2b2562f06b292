// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/translationfolder.h>

#include <tests/app/appfixture.h>
#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>

#include <app/common/language.h>

/** The folder that somebody translates in. */
class TestTranslationFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void shouldShowWhatTheFilesSay();
    void shouldShowAtOnceWhatIsChanged();
    void shouldKeepTheOwnTextsThatTheFilesLack();
    void shouldTakeWhatIsCompiled();
    void shouldOfferALanguageThatIsNew();
    void shouldStandBrokenFiles();
    void shouldBeGivenOnTheCommandLine();
    void shouldRefuseWhatIsNoFolder();

private:
    /** Writes a file of translations, with this text for "Save" in the menu. */
    static void write(const QTemporaryDir &folder, const QString &language, const QString &save)
    {
        const QString text = QStringLiteral(
            "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
            "<TS version=\"2.1\" language=\"%1\"><context><name>FileCommands</name><message>"
            "<source>&amp;Save</source><translation>%2</translation></message></context></TS>");
        AppFixture::writeFile(folder.filePath(QStringLiteral("fishbone_%1.ts").arg(language)),
                              text.arg(language, save).toUtf8());
    }

    static QString save() { return QCoreApplication::translate("FileCommands", "&Save"); }
};

void TestTranslationFolder::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_translationfolder"));
}

void TestTranslationFolder::cleanup()
{
    Language::useFolder(QString());
    Language::install(QString());
}

void TestTranslationFolder::shouldShowWhatTheFilesSay()
{
    const QTemporaryDir folder;
    write(folder, QStringLiteral("de"), QStringLiteral("Sichern"));
    Language::install(QStringLiteral("de"));
    QVERIFY(save() != QLatin1String("Sichern"));
    Language::useFolder(folder.path());
    Language::install(QStringLiteral("de"));
    QCOMPARE(save(), QStringLiteral("Sichern"));
    Language::useFolder(QString());
    Language::install(QStringLiteral("de"));
    QVERIFY(save() != QLatin1String("Sichern"));
}

void TestTranslationFolder::shouldShowAtOnceWhatIsChanged()
{
    const QTemporaryDir folder;
    write(folder, QStringLiteral("de"), QStringLiteral("Sichern"));
    Language::useFolder(folder.path());
    Language::install(QStringLiteral("de"));
    AppFixture app;
    QCOMPARE(app.action("save")->text(), QStringLiteral("Sichern"));
    // Some file systems tell the time of a change to the second.
    QTest::qWait(1100);
    write(folder, QStringLiteral("de"), QStringLiteral("Ablegen"));
    QTRY_COMPARE(app.action("save")->text(), QStringLiteral("Ablegen"));
    // As editors do that replace a file.
    QVERIFY(QFile::remove(folder.filePath(QStringLiteral("fishbone_de.ts"))));
    QTRY_VERIFY(app.action("save")->text() != QLatin1String("Ablegen"));
    write(folder, QStringLiteral("de"), QStringLiteral("Merken"));
    QTRY_COMPARE(app.action("save")->text(), QStringLiteral("Merken"));
}

void TestTranslationFolder::shouldKeepTheOwnTextsThatTheFilesLack()
{
    const QTemporaryDir folder;
    write(folder, QStringLiteral("de"), QStringLiteral("Sichern"));
    Language::install(QStringLiteral("de"));
    const QString quit = QCoreApplication::translate("FileCommands", "&Quit");
    QVERIFY(quit != QLatin1String("&Quit"));
    Language::useFolder(folder.path());
    Language::install(QStringLiteral("de"));
    QCOMPARE(QCoreApplication::translate("FileCommands", "&Quit"), quit);
}

void TestTranslationFolder::shouldTakeWhatIsCompiled()
{
    const QTemporaryDir folder;
    const QString french = folder.filePath(QStringLiteral("fishbone_de.qm"));
    QVERIFY(QFile::copy(QStringLiteral(":/i18n/fishbone_fr.qm"), french));
    Language::install(QStringLiteral("fr"));
    const QString inFrench = save();
    Language::useFolder(folder.path());
    Language::install(QStringLiteral("de"));
    QCOMPARE(save(), inFrench);
}

void TestTranslationFolder::shouldOfferALanguageThatIsNew()
{
    const QTemporaryDir folder;
    write(folder, QStringLiteral("fi"), QStringLiteral("Tallenna"));
    QVERIFY(!Language::all().contains(QStringLiteral("fi")));
    Language::useFolder(folder.path());
    QCOMPARE(Language::all().count(QStringLiteral("fi")), 1);
    QCOMPARE(Language::nameOf(QStringLiteral("fi")), QStringLiteral("suomi"));
    Language::install(QStringLiteral("fi"));
    QCOMPARE(save(), QStringLiteral("Tallenna"));
}

void TestTranslationFolder::shouldStandBrokenFiles()
{
    const QTemporaryDir folder;
    AppFixture::writeFile(folder.filePath(QStringLiteral("fishbone_de.ts")), "<TS");
    AppFixture::writeFile(folder.filePath(QStringLiteral("fishbone_fr.qm")), "none");
    for (const char *language : {"de", "fr"}) {
        Language::useFolder(QString());
        Language::install(QLatin1String(language));
        const QString own = save();
        Language::useFolder(folder.path());
        Language::install(QLatin1String(language));
        QCOMPARE(save(), own);
    }
}

void TestTranslationFolder::shouldBeGivenOnTheCommandLine()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(QStringLiteral(":/i18n/fishbone_fr.qm"),
                        folder.filePath(QStringLiteral("fishbone_de.qm"))));
    const QStringList help{QStringLiteral("--language"), QStringLiteral("de"),
                           QStringLiteral("--help")};
    const QProcessEnvironment environment = ProgramRunner::bareEnvironment(folder.path());
    QVERIFY(ProgramRunner::run(help, environment).out.contains(QStringLiteral("Bearbeitet")));
    const QStringList given{QStringLiteral("--translations"), folder.path()};
    QVERIFY(ProgramRunner::run(given + help, environment).out.contains(QStringLiteral("Édite")));
}

void TestTranslationFolder::shouldRefuseWhatIsNoFolder()
{
    const QTemporaryDir folder;
    const ProgramRunner::Outcome outcome =
        ProgramRunner::run({QStringLiteral("--translations"), QStringLiteral("/missing"),
                            QStringLiteral("--language"), QStringLiteral("en")},
                           ProgramRunner::bareEnvironment(folder.path()));
    QVERIFY2(
        outcome.err.contains(QStringLiteral("--translations takes a folder, not \"/missing\"")),
        qPrintable(outcome.err));
}

FISHBONE_TEST(TestTranslationFolder)
#include "tst_translationfolder.moc"
