// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Writes a synthetic document: fishbone-generate SHAPE COUNT [--seed N] [--output FILE]

#include <cstdio>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSaveFile>

#include <benchmarks/synthetic.h>

namespace {

[[noreturn]] void fail(const QString &message)
{
    std::fprintf(stderr, "fishbone-generate: %s\n", qPrintable(message));
    std::exit(2);
}

int numberFrom(const QString &text, const char *what)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    if (!ok || number < 1)
        fail(QStringLiteral("%1 is a number of at least 1, not '%2'")
                 .arg(QLatin1String(what), text));
    return number;
}

void write(const QByteArray &document, const QString &fileName)
{
    if (fileName.isEmpty()) {
        if (std::fwrite(document.constData(), 1, std::size_t(document.size()), stdout) !=
            std::size_t(document.size()))
            fail(QStringLiteral("cannot write to the standard output"));
        return;
    }
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size() ||
        !file.commit())
        fail(QStringLiteral("cannot write %1: %2").arg(fileName, file.errorString()));
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Writes a synthetic fishbone document."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("shape"),
                                 QStringLiteral("fan, wide, wide2 or deep"));
    parser.addPositionalArgument(QStringLiteral("count"), QStringLiteral("number of subjects"));
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("another document"),
                                  QStringLiteral("number"), QStringLiteral("1"));
    const QCommandLineOption output(QStringLiteral("output"), QStringLiteral("the file to write"),
                                    QStringLiteral("file"));
    parser.addOptions({seed, output});
    parser.process(application);

    const QStringList arguments = parser.positionalArguments();
    Synthetic::Shape shape;
    if (arguments.count() != 2)
        fail(QStringLiteral("a shape and a count are needed; see --help"));
    if (!Synthetic::shapeFromName(arguments.at(0), &shape))
        fail(QStringLiteral("there is no shape '%1'; see --help").arg(arguments.at(0)));
    write(Synthetic::makeDocument(shape, numberFrom(arguments.at(1), "the count"),
                                  quint32(numberFrom(parser.value(seed), "the seed"))),
          parser.value(output));
    return 0;
}
