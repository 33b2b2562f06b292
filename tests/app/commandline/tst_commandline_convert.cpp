// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QImage>

using namespace ProgramRunner;

/** "fishbone convert" as it is typed. */
class TestCommandLineConvert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldConvertToEveryFormatAndBack_data();
    void shouldConvertToEveryFormatAndBack();
    void shouldDrawPicturesOfEveryFormat_data();
    void shouldDrawPicturesOfEveryFormat();
    void shouldGoByTheOptionsMoreThanByTheEndings();
    void shouldTakeTheOptionsOfPictures();
    void shouldTakeTheOptionsOfLooks_data();
    void shouldTakeTheOptionsOfLooks();
    void shouldSayWhatIsLeftOut();
    void shouldWriteNothingThatLosesContentWhenStrict();
    void shouldReadFileUrls();
    void shouldRefuseWhatMakesNoSense_data();
    void shouldRefuseWhatMakesNoSense();
    void shouldSayWhyAFileCannotBeRead_data();
    void shouldSayWhyAFileCannotBeRead();
    void shouldKeepTheFileThatWasThereOnFailure();
    void shouldSayWhyAFileCannotBeWritten();
    void shouldShowHelpForTheCommand();
    void shouldSayAllThatInChinese();
    void shouldDescribeEveryOptionInTheManPage();

private:
    QString path(const QString &name) const { return m_folder->path(name); }
    Outcome convert(const QStringList &arguments) const
    {
        return run(QStringList{QStringLiteral("convert")} + arguments, m_folder->environment());
    }
    QString titlesIn(const QString &file) const;

    QScopedPointer<Folder> m_folder;
};

void TestCommandLineConvert::init()
{
    m_folder.reset(new Folder);
}

/** The titles of a diagram in any format, indented. */
QString TestCommandLineConvert::titlesIn(const QString &file) const
{
    const QString titles = path(QStringLiteral("titles.txt"));
    QFile::remove(titles);
    const Outcome outcome = convert({file, titles});
    return outcome.code == 0 ? QString::fromUtf8(contentOf(titles)) : outcome.err;
}

void TestCommandLineConvert::shouldConvertToEveryFormatAndBack_data()
{
    QTest::addColumn<QString>("suffix");
    for (const char *suffix : {"json", "md", "markdown", "txt", "opml", "mm", "mmd", "csv", "xmind",
                               "xlsx", "org", "MD"})
        QTest::newRow(suffix) << QString::fromLatin1(suffix);
}

void TestCommandLineConvert::shouldConvertToEveryFormatAndBack()
{
    QFETCH(QString, suffix);
    const QString target = path(QStringLiteral("target.") + suffix);
    const Outcome outcome = convert({m_folder->document(), target});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.code, 0);
    QCOMPARE(titlesIn(target),
             QStringLiteral("Late\n\tPeople\n\t\tToo few\n\t\t\tIllness\n\tMachines\n"));
}

void TestCommandLineConvert::shouldDrawPicturesOfEveryFormat_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QByteArray>("beginning");

    const QByteArray png("\x89PNG");
    for (const char *source : {"md", "txt", "opml", "mm", "mmd", "csv", "json"})
        QTest::newRow(source) << QString::fromLatin1(source) << QStringLiteral("png") << png;
    QTest::newRow("svg") << QStringLiteral("md") << QStringLiteral("svg") << QByteArray("<?xml");
    QTest::newRow("pdf") << QStringLiteral("md") << QStringLiteral("pdf") << QByteArray("%PDF-");
    QTest::newRow("html") << QStringLiteral("md") << QStringLiteral("html")
                          << QByteArray("<!DOCTYPE html>");
    QTest::newRow("pptx") << QStringLiteral("md") << QStringLiteral("pptx") << QByteArray("PK");
}

void TestCommandLineConvert::shouldDrawPicturesOfEveryFormat()
{
    QFETCH(QString, source);
    QFETCH(QString, suffix);
    QFETCH(QByteArray, beginning);
    const QString file = path(QStringLiteral("source.") + source);
    QCOMPARE(convert({m_folder->document(), file}).code, 0);
    const QString target = path(QStringLiteral("picture.") + suffix);
    const Outcome outcome = convert({file, target});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QVERIFY(contentOf(target).startsWith(beginning));
    if (beginning != "\x89PNG")
        return;
    // The same titles make the same picture as the document itself.
    QCOMPARE(run({QStringLiteral("--export"), m_folder->picture(), m_folder->document()},
                 m_folder->environment())
                 .code,
             0);
    QCOMPARE(QImage(target), QImage(m_folder->picture()));
}

void TestCommandLineConvert::shouldGoByTheOptionsMoreThanByTheEndings()
{
    const QString source = path(QStringLiteral("a.json"));
    const QString target = path(QStringLiteral("b.png"));
    writeFile(source, "# a\n- b\n");
    const Outcome outcome = convert({QStringLiteral("--from"), QStringLiteral("md"), source,
                                     QStringLiteral("--to=TXT"), target});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QCOMPARE(contentOf(target), QByteArray("a\n\tb\n"));
}

void TestCommandLineConvert::shouldTakeTheOptionsOfPictures()
{
    const Outcome outcome =
        convert({QStringLiteral("--size=321x123"), QStringLiteral("--background=#102030"),
                 QStringLiteral("--expand=none"), m_folder->document(), m_folder->picture()});
    QCOMPARE(outcome.err, QString());
    const QImage picture(m_folder->picture());
    QCOMPARE(picture.size(), QSize(321, 123));
    QCOMPARE(picture.pixelColor(0, 0), QColor(0x10, 0x20, 0x30));
}

void TestCommandLineConvert::shouldTakeTheOptionsOfLooks_data()
{
    QTest::addColumn<QString>("option");
    for (const char *option :
         {"--look=classic", "--page=400x300", "--palette=gray", "--head=left", "--no-legend"})
        QTest::newRow(option) << QString::fromLatin1(option);
}

/** The picture is another one, and the one that the same option makes without the command. */
void TestCommandLineConvert::shouldTakeTheOptionsOfLooks()
{
    QFETCH(QString, option);
    const QString sample =
        TestSupport::sourceFile(QStringLiteral("samples/solder-joint-voids.fishbone.json"));
    const QString plain = path(QStringLiteral("plain.png"));
    const QString converted = path(QStringLiteral("converted.png"));
    QCOMPARE(convert({sample, plain}).code, 0);
    const Outcome outcome = convert({option, sample, converted});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.code, 0);
    QCOMPARE(run({option, QStringLiteral("--export"), m_folder->picture(), sample},
                 m_folder->environment())
                 .code,
             0);
    QVERIFY(!QImage(plain).isNull());
    QVERIFY(QImage(converted) != QImage(plain));
    QCOMPARE(QImage(converted), QImage(m_folder->picture()));
}

void TestCommandLineConvert::shouldSayWhatIsLeftOut()
{
    const QString source = path(QStringLiteral("a.csv"));
    writeFile(source, "title,status,colour\na,done,red\n");
    const QString target = path(QStringLiteral("b.txt"));
    const Outcome outcome = convert({source, target});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err,
             QStringLiteral("fishbone: %1: put into the details: \"colour\" (line 2)\n"
                            "fishbone: %1: taken: \"done\" of \"status\" as 2 (line 2)\n"
                            "fishbone: %2: left out: \"status\"\n"
                            "fishbone: %2: left out: \"detail\"\n")
                 .arg(source, target));
    QCOMPARE(contentOf(target), QByteArray("a\n"));
}

void TestCommandLineConvert::shouldWriteNothingThatLosesContentWhenStrict()
{
    const QString source = path(QStringLiteral("a.md"));
    const QString target = path(QStringLiteral("b.json"));
    const QString strict = QStringLiteral("--strict");
    writeFile(source, "# a\n<!-- hidden -->\n");
    Outcome outcome = convert({strict, source, target});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.contains(QLatin1String("left out: the comment \"hidden\" (line 2)")),
             qPrintable(outcome.err));
    QVERIFY(!QFile::exists(target));

    // What is only put elsewhere is no loss.
    writeFile(source, "# a [x](http://x) [y](http://y)\n");
    outcome = convert({strict, source, target});
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.err.contains(QLatin1String("put into the details")));
    QVERIFY(QFile::exists(target));
    // What the target has no room for is one.
    const QString text = path(QStringLiteral("c.txt"));
    QCOMPARE(convert({strict, target, text}).code, 1);
    QVERIFY(!QFile::exists(text));
    const QString slide = path(QStringLiteral("d.pptx"));
    outcome = convert({strict, target, slide});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.contains(slide + QLatin1String(": left out: \"detail\"")),
             qPrintable(outcome.err));
    QVERIFY(!QFile::exists(slide));
}

void TestCommandLineConvert::shouldReadFileUrls()
{
    const QString url = QUrl::fromLocalFile(m_folder->document()).toString();
    QVERIFY(titlesIn(url).startsWith(QLatin1String("Late\n")));
}

void TestCommandLineConvert::shouldRefuseWhatMakesNoSense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("mentions");

    const auto row = [](const char *name, const char *arguments, const char *mentions) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                            << QString::fromLatin1(mentions).split(QLatin1Char('|'));
    };
    row("no file", "convert", "convert|file to write");
    row("one file", "convert a.md", "convert|file to write");
    row("three files", "convert a.md b.md c.md", "convert|file to write");
    row("unknown ending", "convert a.doc b.md", "a.doc|--from|.md|.opml|.plantuml");
    row("unknown target", "convert a.md b.jpg",
        "b.jpg|--to|.md|.opml|.drawio|.png|.svg|.pdf|.html|.pptx");
    row("only written", "convert a.drawio b.md", "draw.io|written");
    row("only read", "convert a.md b.puml", "PlantUML|read");
    row("strict without a command", "--strict a.md", "--strict|convert");
    row("strict info", "info --strict a.md", "--strict|info");
    row("picture to read", "convert a.png b.md", "a.png|--from");
    row("unknown format", "convert --from doc a.md b.md", "--from|doc|md");
    row("unknown target format", "convert --to png a.md b.md", "--to|png|md");
    row("size without a picture", "convert --size 10x10 a.md b.md", "--size|picture");
    row("size against the format", "convert --size 10x10 --to md a.md b.png", "--size|picture");
    row("size and scale", "convert --size 10x10 --scale 2 a.md b.png", "--size|--scale");
    row("no scale", "convert --scale 0 a.md b.png", "--scale|0");
    row("export", "convert --export a.png a.md b.md", "--export|convert");
    row("unknown option", "convert --nonsense a.md b.md", "nonsense");
    row("from without a command", "--from md a.md", "--from needs convert, info, report or check");
    row("to without a command", "--to md a.md", "--to needs convert");
    row("to without a command", "--to md a.md", "--to|convert");
}

void TestCommandLineConvert::shouldRefuseWhatMakesNoSense()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, mentions);
    const Outcome outcome = run(arguments, m_folder->environment());
    verifyUsageError(outcome, mentions);
}

void TestCommandLineConvert::shouldSayWhyAFileCannotBeRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content"); ///< null: there is no such file
    QTest::addColumn<QString>("reason");

    const auto row = [](const char *name, const QByteArray &content, const char *reason) {
        QTest::newRow(qPrintable(QLatin1String(name) + QLatin1Char(' ') + QLatin1String(reason)))
            << QString::fromLatin1(name) << content << QString::fromLatin1(reason);
    };
    row("a.md", QByteArray(), "there is no such file");
    row("a.md", "", "it is empty");
    row("a.md", "a\nM\x81ller\n", "line 2: the text is not encoded as UTF-8");
    row("a.json", "{\"name\": \"x\", \"version\": 1}", "this has \"name\", \"version\"");
    row("a.csv", "Amount,Colour\n1,red\n", "the columns are \"Amount\", \"Colour\"");
    row("a.xmind", "no archive", "zip");
    row("a.xlsx", "no archive", "zip");
    row("a.json", "{\n\"title\": }", "line 2");
    row("a.json", "[]", "it holds no diagram");
    row("a.opml", "<opml>\n<body>", "line 2: ");
    row("a.mm", "<opml/>", "line 1: the document begins with <opml>");
    row("a.mmd", "graph TD", "line 1: ");
    row("a.csv", "title\n\"a", "line 2: ");
}

void TestCommandLineConvert::shouldSayWhyAFileCannotBeRead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    const QString source = path(name);
    if (!content.isNull())
        writeFile(source, content);
    const QString target = path(QStringLiteral("target.md"));
    const Outcome outcome = convert({source, target});
    QCOMPARE(outcome.code, 1);
    QVERIFY2(outcome.err.startsWith(QLatin1String("fishbone: cannot read ") + source),
             qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(reason), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
    QVERIFY(!QFile::exists(target));
}

void TestCommandLineConvert::shouldKeepTheFileThatWasThereOnFailure()
{
    const QString target = path(QStringLiteral("target.md"));
    writeFile(target, "old");
    QCOMPARE(convert({path(QStringLiteral("missing.md")), target}).code, 1);
    QCOMPARE(contentOf(target), QByteArray("old"));
}

void TestCommandLineConvert::shouldSayWhyAFileCannotBeWritten()
{
    const QString target = path(QStringLiteral("missing/a.md"));
    const Outcome outcome = convert({m_folder->document(), target});
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.err,
             QStringLiteral("fishbone: cannot write %1: No such file or directory\n").arg(target));
}

void TestCommandLineConvert::shouldShowHelpForTheCommand()
{
    const Outcome outcome = convert({QStringLiteral("--help")});
    QCOMPARE(outcome.code, 0);
    for (const char *part : {"convert in out", "--from", "--to", "--size", "opml", "mmd"})
        QVERIFY2(outcome.out.contains(QLatin1String(part)), part);
    QVERIFY(!outcome.out.contains(QLatin1String("--export")));
}

void TestCommandLineConvert::shouldSayAllThatInChinese()
{
    const QStringList chinese{QStringLiteral("--language"), QStringLiteral("zh"),
                              QStringLiteral("convert")};
    const Outcome help =
        run(chinese + QStringList{QStringLiteral("--help")}, m_folder->environment());
    QVERIFY(help.out.contains(QString::fromUtf8("要读取的文件")));
    const Outcome failure =
        run(chinese + QStringList{QStringLiteral("a.md"), QStringLiteral("b.md")},
            m_folder->environment());
    QVERIFY(failure.err.contains(QString::fromUtf8("文件不存在")));
}

void TestCommandLineConvert::shouldDescribeEveryOptionInTheManPage()
{
    QString page =
        QString::fromUtf8(contentOf(TestSupport::sourceFile(QStringLiteral("docs/fishbone.1"))));
    page.remove(QLatin1Char('\\'));
    QSet<QString> options;
    for (const QStringList &command :
         {QStringList(), QStringList{QStringLiteral("convert")},
          QStringList{QStringLiteral("info")}, QStringList{QStringLiteral("check")},
          QStringList{QStringLiteral("merge")}}) {
        const Outcome help =
            run(command + QStringList{QStringLiteral("--help")}, m_folder->environment());
        const QRegularExpression option(QStringLiteral("--[a-z]+(-[a-z]+)*"));
        for (auto match = option.globalMatch(help.out); match.hasNext();)
            options.insert(match.next().captured());
    }
    QVERIFY(options.size() >= 10);
    for (const QString &option : qAsConst(options))
        QVERIFY2(page.contains(option), qPrintable(option));
}

FISHBONE_GUILESS_TEST(TestCommandLineConvert)
#include "tst_commandline_convert.moc"
