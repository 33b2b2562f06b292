// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <pagesnippets.h>

#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace TestSupport;

/**
 * The pages about the library for those who embed it: there is one for each folder, what they show
 * runs and prints what they say, and what they name is there.
 */
class TestPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldBeThereForEachFolderOfTheLibrary();
    void shouldNameEachPublicClassOfTheirFolder();
    void shouldTellOwnershipSignalsErrorsAndCost_data();
    void shouldTellOwnershipSignalsErrorsAndCost();
    void shouldPrintWhatTheySay_data();
    void shouldPrintWhatTheySay();
    void shouldNameWhatIsThere_data();
    void shouldNameWhatIsThere();
    void shouldLeadToWhatIsThere_data();
    void shouldLeadToWhatIsThere();
    void shouldAnswerThirtyQuestionsAndMore();
    void shouldNeedNoNeighbourToUnderstandAHeader_data();
    void shouldNeedNoNeighbourToUnderstandAHeader();

private:
    QHash<QString, QString> m_code;    // of the headers, without comments, by the classes in them
    QHash<QString, QString> m_classes; // that are public, with their folders
};

namespace {

QString contents(const QString &path)
{
    QFile file(sourceFile(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** The paths of the files in @p folder of the sources with the ending @p suffix. */
QStringList files(const QString &folder, const QString &suffix)
{
    QStringList paths;
    QDirIterator each(sourceFile(folder), {QStringLiteral("*.") + suffix}, QDir::Files,
                      QDirIterator::Subdirectories);
    const QDir top(sourceFile(QString()));
    while (each.hasNext())
        paths.append(top.relativeFilePath(each.next()));
    paths.sort();
    return paths;
}

QStringList pages()
{
    return files(QStringLiteral("docs/library"), QStringLiteral("md"));
}

void addPages(const QStringList &paths)
{
    QTest::addColumn<QString>("page");
    for (const QString &path : paths)
        QTest::newRow(qPrintable(path)) << path;
}

QString withoutComments(QString code)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/|//[^\\n]*"),
                                            QRegularExpression::DotMatchesEverythingOption);
    return code.remove(comment);
}

/** Everything that @p pattern captures in @p text. */
QStringList captured(const QString &text, const QString &pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    QStringList found;
    QRegularExpressionMatchIterator each = expression.globalMatch(text);
    while (each.hasNext())
        found.append(each.next().captured(1));
    return found;
}

bool hasWord(const QString &text, const QString &word)
{
    return text.contains(QRegularExpression(QStringLiteral("\\b%1\\b").arg(word)));
}

/** What a link to a heading of @p page calls each of its headings. */
QStringList anchors(const QString &page)
{
    QStringList names = captured(page, QStringLiteral("^#+ (.*)$"));
    for (QString &name : names) {
        name = name.toLower();
        name.remove(QRegularExpression(QStringLiteral("[^\\w\\- ]")));
        name.replace(QLatin1Char(' '), QLatin1Char('-'));
    }
    return names;
}

} // namespace

void TestPages::initTestCase()
{
    const QStringList headers = files(QStringLiteral("fishbone"), QStringLiteral("h"));
    const QString declared = QStringLiteral(
        "^(?:class|struct|namespace|enum class|enum) (?:FISHBONE_EXPORT )?(\\w+)[^;]*$");
    for (const QString &header : headers) {
        const QString code = withoutComments(contents(header));
        const QStringList classes = captured(code, declared);
        for (const QString &name : classes) {
            m_code[name] += code;
            if (code.contains(QStringLiteral("FISHBONE_EXPORT ") + name))
                m_classes[name] = header.section(QLatin1Char('/'), 1, 1);
        }
        // Functions that are exported one by one are known by their namespace.
        if (code.contains(QLatin1String("\nFISHBONE_EXPORT "))) {
            const QStringList names = captured(code, QStringLiteral("^namespace (\\w+)"));
            for (const QString &name : names)
                m_classes[name] = header.section(QLatin1Char('/'), 1, 1);
        }
    }
    QVERIFY(m_classes.size() > 30);
    QVERIFY(m_classes.contains(QStringLiteral("FileNames")));
}

void TestPages::shouldBeThereForEachFolderOfTheLibrary()
{
    QStringList folders =
        QDir(sourceFile(QStringLiteral("fishbone"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(folders.size() > 5);
    for (const QString &folder : qAsConst(folders)) {
        QVERIFY2(pages().contains(QStringLiteral("docs/library/%1.md").arg(folder)),
                 qPrintable(folder));
    }
}

void TestPages::shouldNameEachPublicClassOfTheirFolder()
{
    QStringList missing;
    for (auto each = m_classes.cbegin(); each != m_classes.cend(); ++each) {
        const QString page = contents(QStringLiteral("docs/library/%1.md").arg(each.value()));
        // What is a base of the classes that a host uses, and no more.
        if (each.key() != QLatin1String("AttributeCommand") &&
            each.key() != QLatin1String("InsertCommand") && !hasWord(page, each.key()))
            missing.append(each.key());
    }
    QCOMPARE(missing.join(QLatin1Char(' ')), QString());
}

void TestPages::shouldTellOwnershipSignalsErrorsAndCost_data()
{
    addPages(pages());
}

void TestPages::shouldTellOwnershipSignalsErrorsAndCost()
{
    QFETCH(QString, page);
    const QStringList told = captured(contents(page), QStringLiteral("^\\*\\*(\\w+)\\.\\*\\* \\S"));
    QCOMPARE(told.join(QLatin1Char(' ')), QStringLiteral("Ownership Signals Errors Cost"));
}

void TestPages::shouldPrintWhatTheySay_data()
{
    addPages(pages());
}

void TestPages::shouldPrintWhatTheySay()
{
    QFETCH(QString, page);
    const QRegularExpression promise(QStringLiteral("<!-- prints -->\\n```text\\n(.*?)```"),
                                     QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch promised = promise.match(contents(page));
    QVERIFY(promised.hasMatch());
    const QString name = QFileInfo(page).completeBaseName();
    const auto *const snippet = std::find_if(
        std::begin(PageSnippets::all), std::end(PageSnippets::all),
        [&name](const PageSnippets::Snippet &each) { return name == QLatin1String(each.page); });
    QVERIFY(snippet != std::end(PageSnippets::all));
    QString printed;
    QTextStream out(&printed);
    snippet->run(out);
    out.flush();
    QCOMPARE(printed, promised.captured(1));
}

void TestPages::shouldNameWhatIsThere_data()
{
    addPages(pages() +
             QStringList{QStringLiteral("docs/how-do-i.md"), QStringLiteral("docs/embedding.md")});
}

void TestPages::shouldNameWhatIsThere()
{
    QFETCH(QString, page);
    const QStringList names =
        captured(contents(page), QStringLiteral("`([A-Z]\\w+(?:::~?\\w+)*)(?:\\(\\))?`"));
    QVERIFY(!names.isEmpty());
    QStringList missing;
    for (const QString &name : names) {
        const QStringList parts = name.split(QStringLiteral("::"));
        const QString &owner = parts.first();
        if (owner.startsWith(QLatin1Char('Q')) || owner == QLatin1String("Fishbone") ||
            owner == owner.toUpper() || owner.startsWith(QLatin1String("FishboneQt")))
            continue; // the toolkit's, a target, a macro or an option
        const QString code = m_code.value(owner);
        bool isThere = !code.isEmpty();
        for (const QString &part : parts)
            isThere = isThere && hasWord(code, part);
        if (!isThere)
            missing.append(name);
    }
    QCOMPARE(missing.join(QLatin1Char(' ')), QString());
}

void TestPages::shouldLeadToWhatIsThere_data()
{
    QStringList paths = files(QStringLiteral("docs"), QStringLiteral("md"));
    paths.removeAll(QStringLiteral("docs/classes.md")); // of which Doxygen knows the pictures
    paths.append({QStringLiteral("README.md"), QStringLiteral("CONTRIBUTING.md")});
    addPages(paths);
}

void TestPages::shouldLeadToWhatIsThere()
{
    QFETCH(QString, page);
    const QString folder = QFileInfo(page).path();
    const QStringList links =
        captured(contents(page), QStringLiteral("\\]\\((?!\\w+://)([^)\\s]+)\\)"));
    QStringList broken;
    for (const QString &link : links) {
        const QString file = link.section(QLatin1Char('#'), 0, 0);
        const QString heading = link.section(QLatin1Char('#'), 1);
        const QString target =
            file.isEmpty() ? page : QDir::cleanPath(folder + QLatin1Char('/') + file);
        if (!QFileInfo::exists(sourceFile(target)) ||
            (!heading.isEmpty() && !anchors(contents(target)).contains(heading)))
            broken.append(link);
    }
    QCOMPARE(broken.join(QLatin1Char(' ')), QString());
}

void TestPages::shouldAnswerThirtyQuestionsAndMore()
{
    const QString index = contents(QStringLiteral("docs/how-do-i.md"));
    const QStringList questions = captured(index, QStringLiteral("^- \\*\\*(.+\\?)\\*\\*"));
    QVERIFY2(questions.size() >= 30, qPrintable(QString::number(questions.size())));
    QCOMPARE(QSet<QString>(questions.cbegin(), questions.cend()).size(), questions.size());
    // Each leads to a page.
    QCOMPARE(captured(index, QStringLiteral("^(- )\\*\\*")).size(), questions.size());
    const QStringList entries = index.split(QStringLiteral("\n- **")).mid(1);
    for (const QString &entry : entries)
        QVERIFY2(entry.contains(QLatin1String("](")), qPrintable(entry));
}

void TestPages::shouldNeedNoNeighbourToUnderstandAHeader_data()
{
    QTest::addColumn<QString>("header");
    const QStringList headers = files(QStringLiteral("fishbone"), QStringLiteral("h"));
    for (const QString &header : headers) {
        if (contents(header).contains(QLatin1String("FISHBONE_EXPORT ")))
            QTest::newRow(qPrintable(header)) << header;
    }
}

/** Each name has a page, or a place on one, for itself: what its neighbour says is not there. */
void TestPages::shouldNeedNoNeighbourToUnderstandAHeader()
{
    QFETCH(QString, header);
    const QStringList empty = captured(
        contents(header),
        QStringLiteral("/\\*\\*\\s+(?:\\* )?((?:That|Those|The same|And|Whether that|"
                       "(?:Adds|Chooses|Replaces|Sets|Stores) (?:it|that|them|those))\\b[^*]*)"));
    QCOMPARE(empty.join(QLatin1Char('|')), QString());
}

FISHBONE_TEST(TestPages)
#include "tst_pages.moc"
