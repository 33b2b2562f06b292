// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/language.h>

#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>
#include <tests/app/common/translationfile.h>

#include <algorithm>

#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

using namespace Translations;

namespace {

QString textOfFile(const char *name)
{
    QFile file(TestSupport::sourceFile(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** The number of plural forms of a language. */
int formsOf(const QString &language)
{
    static const QHash<QString, int> others{{QStringLiteral("ar"), 6},   {QStringLiteral("pl"), 3},
                                            {QStringLiteral("ru"), 3},   {QStringLiteral("ja"), 1},
                                            {QStringLiteral("ko"), 1},   {QStringLiteral("zh"), 1},
                                            {QStringLiteral("zh_TW"), 1}};
    return others.value(language, 2);
}

/** A number of things for which a language takes the last of its forms. */
int lastNumber(const QString &language)
{
    if (language == QLatin1String("ar"))
        return 100;
    return language == QLatin1String("pl") || language == QLatin1String("ru") ? 5 : 2;
}

/** What a text has that is in the language; nothing for those with the letters of English. */
QRegularExpression lettersOf(const QString &language)
{
    static const QHash<QString, QString> scripts{
        {QStringLiteral("ar"), QStringLiteral("\\p{Arabic}")},
        {QStringLiteral("ja"), QStringLiteral("[\\p{Han}\\p{Hiragana}\\p{Katakana}]")},
        {QStringLiteral("ko"), QStringLiteral("\\p{Hangul}")},
        {QStringLiteral("ru"), QStringLiteral("\\p{Cyrillic}")},
        {QStringLiteral("zh"), QStringLiteral("\\p{Han}")},
        {QStringLiteral("zh_TW"), QStringLiteral("\\p{Han}")}};
    return QRegularExpression(scripts.value(language));
}

/** Whether @p text may be the same in every language: a name, of the program for one, or of new
 * files, because some systems cannot write others; or what has hardly a word. */
bool isName(const QString &text)
{
    static const QRegularExpression fixed(
        QStringLiteral("%L?[0-9n]|Fishbone|Graphviz|Mermaid|fish%1|\\*?\\.[a-z]+|[A-Z0-9]{2,}|"
                       "https?|Ctrl|px|[Uu]uid|Id"));
    static const QRegularExpression word(QStringLiteral("\\p{L}{2,}"));
    return !QString(text).remove(fixed).contains(word);
}

/** Whether @p form of a text that is @p english is a translation of it. */
bool isTranslated(const QString &form, const QString &english, const QString &language)
{
    if (isName(english) || language == QLatin1String("en"))
        return !form.trimmed().isEmpty();
    const QRegularExpression letters = lettersOf(language);
    if (!letters.pattern().isEmpty())
        return form.contains(letters);
    // A word or two may well be the same: "Format", "Version %1".
    static const QRegularExpression word(QStringLiteral("\\b\\p{L}{2,}\\b"));
    return !form.trimmed().isEmpty() && (form != english || english.count(word) <= 2);
}

/** The sign with which a text leads on to what follows, the same in each language's own form. */
QChar endOf(const QString &text)
{
    static const QString ends = QStringLiteral(":：…");
    const QString end = text.trimmed().right(1);
    const QChar last = end.isEmpty() ? QChar() : end.at(0);
    return last == QChar(u'：') ? QChar(u':') : ends.contains(last) ? last : QChar();
}

/** What the program replaces or looks for in a text, sorted. */
QStringList replacedIn(const QString &text)
{
    static const QRegularExpression mark(
        QStringLiteral("%[0-9n]|\\[\\*\\]|<[a-z]+>|#rrggbb|\\*?\\.[a-z]{3,4}\\b|--[a-z]+|;;|\\n"));
    QStringList marks;
    for (auto match = mark.globalMatch(text); match.hasNext();)
        marks.append(match.next().captured());
    std::sort(marks.begin(), marks.end());
    return marks;
}

int mnemonicsIn(const QString &text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&[\\p{L}\\p{N}]"));
    return text.count(mnemonic);
}

} // namespace

/** The files in translations/ and what is built of them. */
class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindEveryText_data() { addLanguages(); }
    void shouldFindEveryText();
    void shouldLeaveNoTextUntranslated_data() { addLanguages(); }
    void shouldLeaveNoTextUntranslated();
    void shouldKeepWhatTheProgramReplaces_data() { addLanguages(); }
    void shouldKeepWhatTheProgramReplaces();
    void shouldHaveTheMnemonicsOfTheSource_data() { addLanguages(); }
    void shouldHaveTheMnemonicsOfTheSource();
    void shouldEndAsEnglishDoes_data() { addLanguages(); }
    void shouldEndAsEnglishDoes();
    void shouldHaveTheFormsOfTheLanguage_data() { addLanguages(); }
    void shouldHaveTheFormsOfTheLanguage();
    void shouldBeOfferedAsALanguage();
    void shouldHoldTheSameTextsInEachLanguage_data() { addLanguages(); }
    void shouldHoldTheSameTextsInEachLanguage();
    void shouldTranslateTheLibraryAndTheProgram();
    void shouldDescribeTheProgramInEachLanguage_data() { addLanguages(); }
    void shouldDescribeTheProgramInEachLanguage();

private:
    static void addLanguages()
    {
        QTest::addColumn<QString>("language");
        const QStringList all = translatedLanguages();
        for (const QString &language : all)
            QTest::newRow(qPrintable(language)) << language;
    }

    /** The texts in the current row's language. */
    static QVector<Text> texts()
    {
        QFETCH(QString, language);
        return readTexts(language);
    }
};

void TestTranslations::shouldFindEveryText()
{
    QFETCH(QString, language);
    QTranslator translator;
    const int firstNumber = language == QLatin1String("ar") ? 0 : 1;
    QVERIFY(translator.load(QStringLiteral(":/i18n/fishbone_%1.qm").arg(language)));
    const QVector<Text> all = texts();
    QVERIFY(!all.isEmpty());
    for (const Text &text : all) {
        const auto found = [&](int number) {
            return translator.translate(text.context.toUtf8().constData(),
                                        text.source.toUtf8().constData(), nullptr, number);
        };
        QCOMPARE(found(text.isNumerus ? firstNumber : -1), text.forms.constFirst());
        QCOMPARE(found(text.isNumerus ? lastNumber(language) : -1), text.forms.constLast());
    }
}

void TestTranslations::shouldLeaveNoTextUntranslated()
{
    QFETCH(QString, language);
    const QHash<QString, QString> english = englishTexts();
    const QVector<Text> all = texts();
    QVERIFY(!all.isEmpty());
    QStringList faults;
    for (const Text &text : all) {
        for (const QString &form : text.forms) {
            if (!text.isFinished || !isTranslated(form, english.value(text.name()), language))
                faults.append(text.name());
        }
    }
    QCOMPARE(faults.join(QLatin1Char('\n')), QString());
}

void TestTranslations::shouldKeepWhatTheProgramReplaces()
{
    const QVector<Text> all = texts();
    QVERIFY(!all.isEmpty());
    for (const Text &text : all) {
        for (const QString &form : text.forms)
            QVERIFY2(replacedIn(form) == replacedIn(text.source), qPrintable(text.name()));
    }
}

void TestTranslations::shouldHaveTheMnemonicsOfTheSource()
{
    const QVector<Text> all = texts();
    QVERIFY(!all.isEmpty());
    for (const Text &text : all) {
        for (const QString &form : text.forms)
            QVERIFY2(mnemonicsIn(form) == mnemonicsIn(text.source), qPrintable(text.name()));
    }
}

void TestTranslations::shouldEndAsEnglishDoes()
{
    const QHash<QString, QString> english = englishTexts();
    const QVector<Text> all = texts();
    QVERIFY(!all.isEmpty());
    for (const Text &text : all) {
        for (const QString &form : text.forms)
            QVERIFY2(endOf(form) == endOf(english.value(text.name())), qPrintable(text.name()));
    }
}

void TestTranslations::shouldHaveTheFormsOfTheLanguage()
{
    QFETCH(QString, language);
    int numbers = 0;
    const QVector<Text> all = texts();
    for (const Text &text : all) {
        numbers += text.isNumerus ? 1 : 0;
        const int forms = text.isNumerus ? formsOf(language) : 1;
        QVERIFY2(text.forms.size() == forms, qPrintable(text.name()));
    }
    QVERIFY(numbers > 10);
}

/** In the menu and on the command line, with a name of its own. */
void TestTranslations::shouldBeOfferedAsALanguage()
{
    QStringList offered = Language::all();
    QSet<QString> names;
    for (const QString &language : qAsConst(offered))
        names.insert(Language::nameOf(language));
    QVERIFY(!names.contains(QString()));
    QCOMPARE(names.size(), offered.size());
    offered.sort();
    QCOMPARE(offered, translatedLanguages());
}

void TestTranslations::shouldHoldTheSameTextsInEachLanguage()
{
    QFETCH(QString, language);
    const auto names = [](const QString &language) {
        QStringList list;
        for (const Text &text : readTexts(language))
            list.append(text.name());
        list.sort();
        return list;
    };
    QVERIFY(!names(QStringLiteral("en")).isEmpty());
    QCOMPARE(names(language), names(QStringLiteral("en")));
}

void TestTranslations::shouldTranslateTheLibraryAndTheProgram()
{
    QSet<QString> contexts;
    for (const Text &text : readTexts(QStringLiteral("en")))
        contexts.insert(text.context);
    for (const char *name : {"FishInfo", "FishModel", "TreeItem", "InsertChild", "EditMove",
                             "ModifyName", "SpearStyleDialog", "PenSelect", "URLDialog",
                             "ReplaceFindDialog", "PictureExport", "MainWindow", "CommandLine"})
        QVERIFY2(contexts.contains(QLatin1String(name)), name);
}

/** In the menu of the desktop, in software centres and in the list of man pages. */
void TestTranslations::shouldDescribeTheProgramInEachLanguage()
{
    QFETCH(QString, language);
    if (language == QLatin1String("en"))
        return; // which stands there without a name of its own
    const QString code = language == QLatin1String("zh") ? QStringLiteral("zh_CN") : language;
    const QString entry = textOfFile("cmake/desktop/fishbone.desktop.in");
    for (const char *key : {"GenericName", "Comment", "Keywords"}) {
        const QString line = QStringLiteral("\n%1[%2]=").arg(QLatin1String(key), code);
        QVERIFY2(entry.count(line) == 1, qPrintable(line));
    }
    const QString page = textOfFile("cmake/desktop/fishbone.metainfo.xml.in");
    const QString tag = QString(code).replace(QLatin1Char('_'), QLatin1Char('-'));
    for (const char *element : {"summary", "p", "li"}) {
        const QString plain = QStringLiteral("<%1>").arg(QLatin1String(element));
        const QString own = plain.chopped(1) + QStringLiteral(" xml:lang=\"%1\">").arg(tag);
        QVERIFY(page.contains(plain));
        QVERIFY2(page.count(own) == page.count(plain), qPrintable(own));
    }
    QVERIFY(textOfFile("translations/summaries.txt").count(QStringLiteral("\n%1: ").arg(code)) ==
            1);
}

FISHBONE_GUILESS_TEST(TestTranslations)
#include "tst_translations.moc"
