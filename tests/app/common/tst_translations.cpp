// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

#include <algorithm>

#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

namespace {

/** One text of a translation file. */
struct Text
{
    QString context;
    QString source;
    QStringList forms; ///< more than one where the number of things matters
    bool isNumerus = false;
    bool isFinished = false;

    /** What names the text in a message. */
    QString name() const { return context + QLatin1String(": ") + source; }
};

Text readMessage(QXmlStreamReader &xml, const QString &context)
{
    Text text;
    text.context = context;
    text.isNumerus = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            text.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            if (!text.isNumerus)
                text.forms.append(xml.readElementText());
            while (text.isNumerus && xml.readNextStartElement())
                text.forms.append(xml.readElementText());
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

/** The texts of translations/fishbone_<language>.ts. */
QVector<Text> readTexts(const QString &language)
{
    QFile file(
        TestSupport::sourceFile(QStringLiteral("translations/fishbone_%1.ts")).arg(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QVector<Text> texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            texts.append(readMessage(xml, context));
    }
    return xml.hasError() ? QVector<Text>() : texts;
}

bool hasChinese(const QString &text)
{
    static const QRegularExpression sign(QStringLiteral("\\p{Han}"));
    return text.contains(sign);
}

/**
 * Names, which are the same in Chinese: of the program, and of new files, because some systems
 * cannot write a Chinese one.
 */
bool isName(const Text &text)
{
    static const QStringList names{QStringLiteral("Fishbone"), QStringLiteral("%1[*] – Fishbone"),
                                   QStringLiteral("fish%1.json")};
    return names.contains(text.source);
}

/** What the program replaces or looks for in a text, sorted. */
QStringList marksOf(const QString &text)
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
    static const QRegularExpression mnemonic(QStringLiteral("&[A-Za-z0-9]"));
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
    void shouldHoldTheSameTextsInBothLanguages();
    void shouldTranslateTheLibraryAndTheProgram();

private:
    static void addLanguages()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("Chinese") << QStringLiteral("zh");
        QTest::newRow("English") << QStringLiteral("en");
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
    QVERIFY(translator.load(QStringLiteral(":/i18n/fishbone_%1.qm").arg(language)));
    const QVector<Text> all = texts();
    QVERIFY(!all.isEmpty());
    for (const Text &text : all) {
        const auto found = [&](int number) {
            return translator.translate(text.context.toUtf8().constData(),
                                        text.source.toUtf8().constData(), nullptr, number);
        };
        QCOMPARE(found(text.isNumerus ? 1 : -1), text.forms.constFirst());
        QCOMPARE(found(text.isNumerus ? 2 : -1), text.forms.constLast());
    }
}

void TestTranslations::shouldLeaveNoTextUntranslated()
{
    QFETCH(QString, language);
    const bool wantsChinese = language == QLatin1String("zh");
    const QVector<Text> all = texts();
    QVERIFY(!all.isEmpty());
    for (const Text &text : all) {
        QVERIFY2(text.isFinished, qPrintable(text.name()));
        for (const QString &form : text.forms) {
            QVERIFY2(!form.trimmed().isEmpty(), qPrintable(text.name()));
            QVERIFY2(hasChinese(form) == wantsChinese || isName(text), qPrintable(text.name()));
        }
    }
}

void TestTranslations::shouldKeepWhatTheProgramReplaces()
{
    const QVector<Text> all = texts();
    QVERIFY(!all.isEmpty());
    for (const Text &text : all) {
        for (const QString &form : text.forms)
            QVERIFY2(marksOf(form) == marksOf(text.source), qPrintable(text.name()));
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

void TestTranslations::shouldHoldTheSameTextsInBothLanguages()
{
    const auto names = [](const QString &language) {
        QStringList list;
        for (const Text &text : readTexts(language))
            list.append(text.name());
        return list;
    };
    QVERIFY(!names(QStringLiteral("en")).isEmpty());
    QCOMPARE(names(QStringLiteral("zh")), names(QStringLiteral("en")));
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

FISHBONE_GUILESS_TEST(TestTranslations)
#include "tst_translations.moc"
