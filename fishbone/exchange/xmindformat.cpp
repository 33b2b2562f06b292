// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/exchange/xmindparts.h>
#include <fishbone/exchange/ziparchive.h>

namespace {

/** The levels of topics that JSON may nest for Qt's reader to take it, with room to spare. */
constexpr int jsonLevels = 300;

const QString jsonName = QStringLiteral("content.json");
const QString xmlName = QStringLiteral("content.xml");
// Of the older generation:
const QString commentsName = QStringLiteral("comments.xml");
const QString manifestName = QStringLiteral("META-INF/manifest.xml");

/** Notes the files of an archive that hold more than how a map looks. */
void noteOtherFiles(const QStringList &names, ImportedTree &tree)
{
    static const QStringList known{jsonName,
                                   xmlName,
                                   QStringLiteral("metadata.json"),
                                   QStringLiteral("manifest.json"),
                                   QStringLiteral("meta.xml"),
                                   QStringLiteral("styles.xml"),
                                   manifestName};
    const bool isJson = names.contains(jsonName);
    for (const QString &name : names) {
        const bool isRead = known.contains(name) || (name == commentsName && !isJson);
        if (isRead || name.endsWith(QLatin1Char('/')))
            continue;
        const bool isLook = name.startsWith(QLatin1String("Thumbnails/")) ||
                            name.startsWith(QLatin1String("Revisions/")) ||
                            name.startsWith(QLatin1String("markers/"));
        tree.note(isLook ? ExchangeReport::Kind::Appearance : ExchangeReport::Kind::LeftOut,
                  DiagramExchange::tr("the file \"%1\"").arg(name));
    }
}

/** Reads the older generation of the format, which names encrypted files in its manifest. */
bool readXml(ZipReader &archive, ImportedTree &tree)
{
    const auto part = [&archive](const QString &name) {
        return archive.contains(name) ? archive.file(name) : QByteArray();
    };
    const std::optional<QByteArray> manifest = part(manifestName);
    if (manifest && manifest->contains("<encryption-data"))
        return tree.fail(DiagramExchange::tr("the map is protected by a password"));
    const std::optional<QByteArray> xml = part(xmlName);
    const std::optional<QByteArray> comments = part(commentsName);
    return manifest && xml && comments && XmindXml::read(*xml, *comments, tree);
}

bool readXMind(const QByteArray &bytes, ImportedTree &tree)
{
    ZipReader archive(bytes, tree);
    if (!archive.isOpen())
        return false;
    if (archive.contains(jsonName) || archive.contains(xmlName))
        noteOtherFiles(archive.names(), tree);
    // Newer programs add a page in the older format that only says to get a newer program.
    if (archive.contains(jsonName)) {
        const std::optional<QByteArray> json = archive.file(jsonName);
        return json && XmindJson::read(*json, tree);
    }
    if (archive.contains(xmlName))
        return readXml(archive, tree);
    return tree.fail(DiagramExchange::tr("the archive has neither content.json nor content.xml, "
                                         "one of which holds the map"));
}

QByteArray manifest(const QString &content)
{
    return QStringLiteral("{\"file-entries\":{\"%1\":{},\"metadata.json\":{}}}")
        .arg(content)
        .toUtf8();
}

QByteArray writeXMind(const TreeItem &head)
{
    const QByteArray metadata = "{\"creator\":{\"name\":\"Fishbone\"}}";
    if (OutlineWalk::levelsOf(head) <= jsonLevels)
        return ZipWriter::archive({{jsonName, XmindJson::write(head)},
                                   {QStringLiteral("metadata.json"), metadata},
                                   {QStringLiteral("manifest.json"), manifest(jsonName)}});
    return ZipWriter::archive(
        {{xmlName, XmindXml::write(head)},
         {manifestName,
          "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
          "<manifest xmlns=\"urn:xmind:xmap:xmlns:manifest:1.0\">"
          "<file-entry full-path=\"content.xml\" media-type=\"text/xml\"/></manifest>"}});
}

} // namespace

const ExchangeFormat ExchangeFormats::xmind{DiagramExchange::Format::Xmind,
                                            "xmind",
                                            QT_TRANSLATE_NOOP("DiagramExchange", "XMind map"),
                                            "xmind",
                                            "title children *",
                                            readXMind,
                                            writeXMind};
