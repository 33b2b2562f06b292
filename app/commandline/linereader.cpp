// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/commandline/linereader.h>

#include <app/commandline/commandoptions.h>
#include <app/commandline/optionvalues.h>
#include <app/common/formatnames.h>
#include <app/files/documentloader.h>

#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/slideexport.h>

#include <QCommandLineParser>

LineReader::LineReader(const QCommandLineParser &parser, CommandLine &line)
    : m_parser(parser)
    , m_line(line)
{
}

bool LineReader::isSet(const QCommandLineOption &option) const
{
    return m_parser.isSet(option);
}

QString LineReader::valueOf(const QCommandLineOption &option) const
{
    return m_parser.value(option);
}

bool LineReader::writesPicture() const
{
    return DiagramPicture::canWrite(m_line.target) || SlideExport::isSlide(m_line.target);
}

bool LineReader::refuse(const QString &reason)
{
    m_line.action = CommandLine::Action::Refuse;
    m_line.text = reason;
    return false;
}

bool LineReader::refuseOptions(const QList<QCommandLineOption> &refused, const QString &reason)
{
    for (const QCommandLineOption &option : refused) {
        if (m_parser.isSet(option))
            return refuse(reason.arg(option.names().constFirst()));
    }
    return true;
}

bool LineReader::refuseOthers(const QString &reason)
{
    QList<QCommandLineOption> others = CommandOptions::forPictures();
    others += {CommandOptions::forExport(), CommandOptions::forTo(), CommandOptions::forStrict()};
    if (m_line.command != CommandLine::Command::Info)
        others += CommandOptions::forJson();
    return refuseOptions(others, reason);
}

bool LineReader::readSource()
{
    if (!DocumentLoader::isFromNetwork(m_line.documents.constFirst()))
        return readFormat(QStringLiteral("from"), m_line.documents.constFirst(), m_line.from);
    m_line.from = DiagramExchange::Format::Json;
    return refuseOptions({CommandOptions::forFrom()},
                         CommandLine::tr("--%1 does not go with a document from the network"));
}

bool LineReader::readFormat(const QString &name, const QString &fileName,
                            std::optional<DiagramExchange::Format> &format)
{
    const bool reads = name == QLatin1String("from");
    const auto can = reads ? DiagramExchange::canRead : DiagramExchange::canWrite;
    const bool isGiven = m_parser.isSet(name);
    const QString value = m_parser.value(name);
    format = isGiven ? DiagramExchange::formatById(value) : DiagramExchange::formatOf(fileName);
    if (format && can(*format))
        return true;
    if (format && reads)
        return refuse(
            CommandLine::tr("%1 can only be written").arg(DiagramExchange::name(*format)));
    if (format)
        return refuse(CommandLine::tr("%1 can only be read").arg(DiagramExchange::name(*format)));
    if (isGiven)
        return refuse(CommandOptions::expected(
            name, value, CommandLine::tr("one of %1").arg(FormatNames::ids(can))));
    if (reads)
        return refuse(
            CommandLine::tr("the format of \"%1\" is unknown: the name must end in one of %2, or "
                            "--from tell one of %3")
                .arg(fileName, FormatNames::endings(can), FormatNames::ids(can)));
    return refuse(
        CommandLine::tr("the format of \"%1\" is unknown: the name must end in one of %2, or in "
                        ".png, .svg, .pdf, .html or .pptx for a picture, or --to tell one of %3")
            .arg(fileName, FormatNames::endings(can), FormatNames::ids(can)));
}

/** Reads the option @p name into @p destination with @p read; false when that finds no value. */
template <typename Value>
bool LineReader::readOption(const QString &name, std::optional<Value> (*read)(const QString &),
                            const QString &what, Value &destination)
{
    if (!m_parser.isSet(name))
        return true;
    const std::optional<Value> value = read(m_parser.value(name));
    if (!value)
        return refuse(CommandOptions::expected(name, m_parser.value(name), what));
    destination = *value;
    return true;
}

bool LineReader::readPicture()
{
    if (m_parser.isSet(QStringLiteral("size")) && m_parser.isSet(QStringLiteral("scale")))
        return refuse(CommandLine::tr("--size and --scale exclude each other"));
    if (const QString reason = m_line.look.read(m_parser); !reason.isEmpty())
        return refuse(reason);
    if (m_line.look.view.look != DiagramLook::Clear && !PictureExport::formatOf(m_line.target) &&
        !SlideExport::isSlide(m_line.target))
        return refuse(CommandLine::tr("a page for the browser needs the clear look"));
    return readOption(QStringLiteral("expand"), OptionValues::levelsFrom,
                      CommandLine::tr("all, none or a number of levels"), m_line.levels) &&
           readOption(QStringLiteral("size"), OptionValues::sizeFrom,
                      CommandLine::tr("a size such as 1600x900"), m_line.options.size) &&
           readOption(QStringLiteral("scale"), OptionValues::scaleFrom,
                      CommandLine::tr("a number above 0"), m_line.options.scale) &&
           readOption(QStringLiteral("background"), OptionValues::colorFrom,
                      CommandLine::tr("the name of a colour, #rrggbb or transparent"),
                      m_line.options.background);
}
