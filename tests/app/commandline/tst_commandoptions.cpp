// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/commandoptions.h>
#include <app/commandline/linecommand.h>
#include <tests/program/testprogram.h>

#include <QCommandLineParser>
#include <QtTest>

Q_DECLARE_METATYPE(CommandLine::Command)

/** The options of the program's commands. */
class TestCommandOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDescribeWhatACommandTakes_data();
    void shouldDescribeWhatACommandTakes();
    void shouldKnowTheOptionsOfAllCommands();
    void shouldHaveNoOtherOptionsForPictures();
    void shouldNameTheFormatsThatAreConverted();
};

namespace {

const QStringList pictureNames{QStringLiteral("expand"),  QStringLiteral("size"),
                               QStringLiteral("scale"),   QStringLiteral("background"),
                               QStringLiteral("look"),    QStringLiteral("page"),
                               QStringLiteral("legend"),  QStringLiteral("no-legend"),
                               QStringLiteral("palette"), QStringLiteral("head")};

bool takes(const QCommandLineParser &parser, const QString &option)
{
    return parser.helpText().contains(QStringLiteral("--") + option);
}

} // namespace

void TestCommandOptions::shouldDescribeWhatACommandTakes_data()
{
    QTest::addColumn<CommandLine::Command>("command");
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QStringList>("refused");
    const QString exporting = QStringLiteral("export");
    const QString from = QStringLiteral("from");
    const QString to = QStringLiteral("to ");
    const QString strict = QStringLiteral("strict");
    QTest::newRow("window") << CommandLine::Command::None << pictureNames + QStringList(exporting)
                            << QStringList{from, to, strict};
    QTest::newRow("convert") << CommandLine::Command::Convert
                             << pictureNames + QStringList{from, to, strict}
                             << QStringList(exporting);
    const QString json = QStringLiteral("json ");
    QTest::newRow("check") << CommandLine::Command::Check << QStringList(from)
                           << pictureNames + QStringList{exporting, to, strict, json};
    QTest::newRow("merge") << CommandLine::Command::Merge << QStringList()
                           << pictureNames + QStringList{exporting, from, to, strict, json};
    QTest::newRow("info") << CommandLine::Command::Info << QStringList{from, json}
                          << pictureNames + QStringList{exporting, to, strict};
    QTest::newRow("report") << CommandLine::Command::Report << QStringList(from)
                            << pictureNames + QStringList{exporting, to, strict};
}

void TestCommandOptions::shouldDescribeWhatACommandTakes()
{
    QFETCH(CommandLine::Command, command);
    QFETCH(QStringList, taken);
    QFETCH(QStringList, refused);
    QCommandLineParser parser;
    LineCommand::of(command).describe(parser);
    QVERIFY(!parser.applicationDescription().isEmpty());
    taken += {QStringLiteral("help"), QStringLiteral("language")};
    for (const QString &option : qAsConst(taken))
        QVERIFY2(takes(parser, option), qPrintable(option));
    for (const QString &option : qAsConst(refused))
        QVERIFY2(!takes(parser, option), qPrintable(option));
}

void TestCommandOptions::shouldKnowTheOptionsOfAllCommands()
{
    QCommandLineParser parser;
    CommandOptions::describeAll(parser);
    QVERIFY(parser.parse({QStringLiteral("fishbone"), QStringLiteral("--from=md"),
                          QStringLiteral("--to=json"), QStringLiteral("--strict"),
                          QStringLiteral("--export=a.png"), QStringLiteral("--scale=2")}));
    QVERIFY(parser.isSet(CommandOptions::forStrict()));
    QCOMPARE(parser.value(CommandOptions::forFrom()), QStringLiteral("md"));
    QCOMPARE(parser.value(CommandOptions::forTo()), QStringLiteral("json"));
    QCOMPARE(parser.value(CommandOptions::forExport()), QStringLiteral("a.png"));
    QCOMPARE(parser.value(CommandOptions::forPictures().at(2)), QStringLiteral("2"));
}

/** So that the list above, by which the commands are checked, is complete. */
void TestCommandOptions::shouldHaveNoOtherOptionsForPictures()
{
    QStringList names;
    const QList<QCommandLineOption> options = CommandOptions::forPictures();
    for (const QCommandLineOption &option : options) {
        names += option.names();
        QVERIFY2(!option.description().isEmpty(), qPrintable(option.names().join(u' ')));
    }
    QCOMPARE(names, pictureNames);
}

void TestCommandOptions::shouldNameTheFormatsThatAreConverted()
{
    QCommandLineParser parser;
    LineCommand::of(CommandLine::Command::Convert).describe(parser);
    const QList<DiagramExchange::Format> formats = DiagramExchange::formats();
    for (const DiagramExchange::Format format : formats)
        QVERIFY(parser.applicationDescription().contains(DiagramExchange::id(format)));
    for (const char *picture : {"png", "svg", "pdf", "html", "pptx"})
        QVERIFY2(parser.applicationDescription().contains(QLatin1String(picture)), picture);
}

FISHBONE_GUILESS_TEST(TestCommandOptions)
#include "tst_commandoptions.moc"
