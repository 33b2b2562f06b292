// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/common/translationfile.h>
#include <tests/program/testprogram.h>

#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

using namespace Translations;

namespace {

/** A term, the pattern by which it is found in English, and the beginnings of words that it is
 * called by in a language, none where it is no term. */
struct Term
{
    QString english;
    QRegularExpression pattern;
    QStringList forms;
};

/** Spoken names of a term that a table has between bars. */
QStringList alternatives(const QString &cell)
{
    return cell.split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

Term termOf(const QString &english, const QString &forms)
{
    QStringList names = alternatives(english);
    for (QString &name : names)
        name = QRegularExpression::escape(name) + QStringLiteral("(?:s|es)?");
    const QRegularExpression pattern(
        QStringLiteral("\\b(?:%1)\\b").arg(names.join(QLatin1Char('|'))),
        QRegularExpression::CaseInsensitiveOption);
    return {english, pattern, alternatives(forms)};
}

/** The cells of a line of a table, some of them in quotation marks. */
QStringList cellsOf(const QString &line)
{
    QStringList cells{QString()};
    bool isQuoted = false;
    for (const QChar letter : line) {
        if (letter == QLatin1Char('"'))
            isQuoted = !isQuoted;
        else if (letter == QLatin1Char(',') && !isQuoted)
            cells.append(QString());
        else
            cells.last().append(letter);
    }
    return cells;
}

/** The rows of translations/glossary.csv, the headings first. */
QList<QStringList> glossary()
{
    QFile file(TestSupport::sourceFile(QStringLiteral("translations/glossary.csv")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QStringList> rows;
    const QStringList lines =
        QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines)
        rows.append(cellsOf(line));
    return rows;
}

/** The terms with their names in the column of @p language, the longest first: a main bone is no
 * bone. */
QVector<Term> termsIn(const QString &language)
{
    const QList<QStringList> rows = glossary();
    const int column = rows.isEmpty() ? -1 : int(rows.constFirst().indexOf(language));
    QVector<Term> terms;
    for (int row = 1; row < rows.size() && column > 0; ++row)
        terms.append(termOf(rows.at(row).constFirst(), rows.at(row).value(column)));
    const auto length = [](const Term &term) {
        int longest = 0;
        for (const QString &name : alternatives(term.english))
            longest = qMax(longest, int(name.size()));
        return longest;
    };
    std::stable_sort(terms.begin(), terms.end(), [&](const Term &left, const Term &right) {
        return length(left) > length(right);
    });
    return terms;
}

bool hasAny(const QString &text, const QStringList &forms)
{
    return std::any_of(forms.begin(), forms.end(), [&](const QString &form) {
        return text.contains(form, Qt::CaseInsensitive);
    });
}

/** The terms of the @p english text that its translation @p form calls something else. */
QStringList otherWords(QString english, QString form, const QVector<Term> &terms)
{
    static const QRegularExpression option(QStringLiteral("--[a-z]+"));
    english.remove(QLatin1Char('&')).remove(option);
    form.remove(QLatin1Char('&'));
    QStringList faults;
    for (const Term &term : terms) {
        if (!english.contains(term.pattern))
            continue;
        english.replace(term.pattern, QStringLiteral(" "));
        if (!term.forms.isEmpty() && !hasAny(form, term.forms))
            faults.append(term.english);
    }
    return faults;
}

} // namespace

/** That each language has one word for each thing: what translations/glossary.csv says. */
class TestGlossary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHaveAColumnForEachLanguage();
    void shouldNameEachTermInEachLanguage();
    void shouldBeKeptToByEachText_data();
    void shouldBeKeptToByEachText();
    void shouldFindWhatIsCalledSomethingElse_data();
    void shouldFindWhatIsCalledSomethingElse();
};

void TestGlossary::shouldHaveAColumnForEachLanguage()
{
    QStringList columns = glossary().value(0);
    QCOMPARE(columns.takeFirst(), QStringLiteral("English"));
    QCOMPARE(columns.takeLast(), QStringLiteral("Note"));
    QStringList translated = translatedLanguages();
    translated.removeOne(QStringLiteral("en"));
    QCOMPARE(columns, translated);
}

/** Or in none: what is no term says so in its note. */
void TestGlossary::shouldNameEachTermInEachLanguage()
{
    QList<QStringList> rows = glossary();
    QVERIFY(rows.size() > 40);
    const int columns = int(rows.takeFirst().size());
    for (const QStringList &row : qAsConst(rows)) {
        QVERIFY2(row.size() == columns, qPrintable(row.join(QLatin1Char('|'))));
        const int empty = int(row.mid(1, columns - 2).count(QString()));
        const bool isTerm = !row.constLast().startsWith(QLatin1String("no term"));
        QVERIFY2(empty == (isTerm ? 0 : columns - 2), qPrintable(row.constFirst()));
    }
}

void TestGlossary::shouldBeKeptToByEachText_data()
{
    QTest::addColumn<QString>("language");
    QStringList translated = translatedLanguages();
    translated.removeOne(QStringLiteral("en"));
    for (const QString &language : qAsConst(translated))
        QTest::newRow(qPrintable(language)) << language;
}

void TestGlossary::shouldBeKeptToByEachText()
{
    QFETCH(QString, language);
    const QHash<QString, QString> english = englishTexts();
    const QVector<Term> terms = termsIn(language);
    const QVector<Text> texts = readTexts(language);
    QVERIFY(!texts.isEmpty() && !terms.isEmpty());
    QStringList faults;
    for (const Text &text : texts) {
        for (const QString &form : text.forms) {
            const QStringList other = otherWords(english.value(text.name()), form, terms);
            if (!other.isEmpty())
                faults.append(QStringLiteral("%1: %2 calls %3 something else")
                                  .arg(text.name(), form, other.join(QLatin1String(", "))));
        }
    }
    QCOMPARE(faults.join(QLatin1Char('\n')), QString());
}

void TestGlossary::shouldFindWhatIsCalledSomethingElse_data()
{
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("german");
    QTest::addColumn<QStringList>("faults");

    const QStringList none;
    QTest::newRow("as agreed") << "Expand all &bones"
                               << "Alle &Gräten aufklappen" << none;
    QTest::newRow("something else")
        << "Expand all bones"
        << "Alle Knochen aufklappen" << QStringList{QStringLiteral("bone")};
    QTest::newRow("longer term") << "Main bones"
                                 << "Hauptgräten" << none;
    QTest::newRow("shorter in place of longer")
        << "Main bones"
        << "Gräten" << QStringList{QStringLiteral("main bone")};
    QTest::newRow("part of a word") << "Backbones"
                                    << "Rückgrate" << none;
    QTest::newRow("option") << "--export is needed"
                            << "--export wird gebraucht" << none;
    QTest::newRow("no term") << "Look at it"
                             << "Ansehen" << none;
    QTest::newRow("two") << "bone and cause"
                         << "Bein und Grund"
                         << QStringList{QStringLiteral("cause"), QStringLiteral("bone")};
}

void TestGlossary::shouldFindWhatIsCalledSomethingElse()
{
    QFETCH(QString, english);
    QFETCH(QString, german);
    QFETCH(QStringList, faults);
    QCOMPARE(otherWords(english, german, termsIn(QStringLiteral("de"))), faults);
}

FISHBONE_GUILESS_TEST(TestGlossary)
#include "tst_glossary.moc"
