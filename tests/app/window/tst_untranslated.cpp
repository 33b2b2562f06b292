// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/common/translationfile.h>
#include <tests/app/window/cuttexts.h>
#include <tests/app/window/screens.h>

#include <app/common/language.h>

#include <tests/program/testprogram.h>
#include <tests/support/shownvalues.h>

#include <QRegularExpression>
#include <QSet>
#include <QSettings>

namespace {

/** What users read or hear in @p window: texts alone, without their places. */
QSet<QString> textsIn(const QWidget &window)
{
    static const QSet<QString> read{
        QStringLiteral("text"),           QStringLiteral("title"),
        QStringLiteral("windowTitle"),    QStringLiteral("toolTip"),
        QStringLiteral("statusTip"),      QStringLiteral("placeholderText"),
        QStringLiteral("accessibleName"), QStringLiteral("accessibleDescription"),
        QStringLiteral("item"),           QStringLiteral("specialValueText"),
        QStringLiteral("prefix"),         QStringLiteral("suffix")};
    static const QRegularExpression form(QStringLiteral("^(\\w+): (.*)$"),
                                         QRegularExpression::DotMatchesEverythingOption);
    QSet<QString> texts;
    const QStringList values = TestSupport::shownValues(window);
    for (const QString &value : values) {
        const QString shown = value.mid(value.lastIndexOf(QStringLiteral(" | ")) + 3);
        const QRegularExpressionMatch match = form.match(shown);
        if (!match.hasMatch())
            texts.insert(shown);
        else if (read.contains(match.captured(1)))
            texts.insert(match.captured(2));
    }
    return texts;
}

/** Whether @p text has a word of Latin letters, which it would not keep in another language. */
bool hasWord(const QString &text)
{
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{3}"));
    return text.contains(word);
}

/** @p text without the mark of a menu key and dots. */
QString plain(QString text)
{
    static const QRegularExpression brackets(QStringLiteral("\\s*\\(&.\\)"));
    return text.remove(brackets).remove(QLatin1Char('&')).remove(QStringLiteral("…"));
}

/** What is called the same in another language without standing in its file. */
bool isSame(const QString &language, const QString &text)
{
    static const QStringList french{QStringLiteral("Portrait"), QStringLiteral("1 page")};
    const bool isFrench = language == QLatin1String("fr");
    const bool hasPixels = isFrench || language == QLatin1String("pt_BR");
    return (isFrench && french.contains(text)) ||
           (hasPixels && text.endsWith(QLatin1String(" pixels")));
}

/** What stands in documents, files and names, and what no language calls otherwise. */
bool isData(const QString &text)
{
    static const QRegularExpression data(
        QStringLiteral(
            "^(?:.*(?:Late|People|Too few|Illness|Too "
            "new|Machines|Material|Rust|Ann|late|list\\.csv|"
            "Fishbone|/tmp/|Noto|DejaVu|Summary|Owner|https?:|#[0-9A-Fa-f]{6}).*|"
            "(?:&?\\w+ "
            ")?\\(?(?:PNG|SVG|PDF|HTML|PPTX|JPEG|PowerPoint|URL|Qt|CSV|JSON|Markdown|OPML|"
            "FreeMind|Mermaid|XMind|Org|PlantUML|Excel|A[0-9]|Letter|Legal)\\)?.*|"
            "title|[0-9.]+ [KM]iB|" // a heading that is hidden, the size of a file
            "(?:Ctrl|Alt|Shift|F[0-9]+|Del|Home|Return|Space|Tab)\\b.*|.* "
            "\\((?:Ctrl|Alt|Shift|F[0-9]+|Del|Ins|Esc).*\\))$"),
        QRegularExpression::DotMatchesEverythingOption);
    if (data.match(plain(text)).hasMatch())
        return true;
    const QStringList languages = Language::all();
    return std::any_of(languages.cbegin(), languages.cend(), [&text](const QString &language) {
        return text == Language::nameOf(language);
    });
}

/** All texts of a language that stand in its file. */
QSet<QString> knownTexts(const QString &language)
{
    QSet<QString> known;
    const QVector<Translations::Text> all = Translations::readTexts(language);
    for (const Translations::Text &text : all) {
        for (const QString &form : text.forms)
            known.insert(plain(form));
    }
    return known;
}

} // namespace

/**
 * Every dialog and panel in every language beside English: what it shows as the English window does
 * is what that language says, too, or belongs to the document.
 */
class TestUntranslated : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { Language::install(QStringLiteral("en")); }

    void shouldShowNoEnglishElsewhere_data();
    void shouldShowNoEnglishElsewhere();
    void shouldFindATextThatIsNotTranslated();

private:
    QStringList untranslated(QSet<QString> texts, const QSet<QString> &english,
                             const QString &language) const;

    QHash<QString, QSet<QString>> m_known; ///< the texts of each language
};

void TestUntranslated::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_untranslated"));
    const QStringList all = Language::all();
    for (const QString &language : all) {
        m_known.insert(language, knownTexts(language));
        QVERIFY2(m_known.value(language).size() > 500, qPrintable(language));
    }
}

void TestUntranslated::shouldShowNoEnglishElsewhere_data()
{
    QTest::addColumn<int>("number");
    const QVector<Screens::Screen> all = Screens::all();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all.at(i).name) << i;
}

/** Those of @p texts that are English ones, and that @p language does not have. */
QStringList TestUntranslated::untranslated(QSet<QString> texts, const QSet<QString> &english,
                                           const QString &language) const
{
    QStringList faults;
    texts.intersect(english);
    for (const QString &text : qAsConst(texts)) {
        const bool isKnown = m_known.value(language).contains(plain(text));
        if (hasWord(text) && !isData(text) && !isKnown && !isSame(language, text))
            faults.append(language + QStringLiteral(": ") + text);
    }
    return faults;
}

void TestUntranslated::shouldShowNoEnglishElsewhere()
{
    QFETCH(int, number);
    QSettings().clear();
    Language::install(QStringLiteral("en"));
    AppFixture app;
    Screens::prepare(app, QSize(1024, 700));
    const Screens::Screen screen = Screens::all().at(number);
    QPointer<QWidget> shown;
    QSet<QString> english;
    QStringList faults;
    const QStringList all = Language::all();
    QCOMPARE(all.constFirst(), QStringLiteral("en"));
    for (const QString &language : all) {
        Language::install(language);
        AppFixture::settle();
        if (!shown)
            shown = screen.show(app);
        shown->show();
        AppFixture::settle();
        // Of an empty window what is shown counts: the rest waits for the next document.
        const bool isEmpty = qstrcmp(screen.name, "empty") == 0;
        const QStringList visible = CutTexts::shown(*shown);
        const QSet<QString> texts =
            isEmpty ? QSet<QString>(visible.cbegin(), visible.cend()) : textsIn(*shown);
        QVERIFY(texts.size() > 3);
        if (english.isEmpty())
            english = texts;
        if (language != all.constFirst())
            faults += untranslated(texts, english, language);
        // What is modal hears of no other language while it is open, and is made anew.
        if (shown != &app.window && !qobject_cast<ReplaceFindDialog *>(shown))
            delete shown;
    }
    for (const QString &fault : qAsConst(faults))
        qWarning().noquote() << fault; // each, where a comparison shows the first few
    QVERIFY(faults.isEmpty());
}

/** That the check above is one. */
void TestUntranslated::shouldFindATextThatIsNotTranslated()
{
    QVERIFY(hasWord(QStringLiteral("Revert")) && !isData(QStringLiteral("Revert")));
    QVERIFY(!m_known.value(QStringLiteral("de")).contains(QStringLiteral("Revert to file")));
    QVERIFY(m_known.value(QStringLiteral("en")).contains(QStringLiteral("Revert to file")));
    QVERIFY(m_known.value(QStringLiteral("de")).contains(QStringLiteral("Status")));
}

FISHBONE_TEST(TestUntranslated)
#include "tst_untranslated.moc"
