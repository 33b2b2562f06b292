// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/exchange/exchangefixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/importedtree.h>
#include <fishbone/exchange/ziparchive.h>
#include <fishbone/items/taskstatusinfo.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>
#include <QtTest>

using namespace ExchangeFixture;

namespace {

QByteArray partOf(const QByteArray &map, const char *name)
{
    ImportedTree tree;
    ZipReader archive(map, tree);
    return archive.file(QLatin1String(name)).value_or(QByteArray());
}

QStringList partsOf(const QByteArray &map)
{
    ImportedTree tree;
    return ZipReader(map, tree).names();
}

/** A head with a cause that has all that the program itself knows. */
std::unique_ptr<TreeItem> markedTree()
{
    auto head = treeFrom("Late[Worn]");
    TreeItem *const worn = head->childAtIndex(0);
    worn->setDetail(QStringLiteral("Since May"));
    worn->setUrl(QStringLiteral("https://example.org/"));
    worn->setPriority(2);
    worn->setStatus(tsFinish);
    worn->setProgress(100);
    return head;
}

/** A head with so many causes, each below the one before. */
std::unique_ptr<TreeItem> chainOf(int levels)
{
    auto head = treeFrom("a");
    TreeItem *last = head.get();
    for (int i = 1; i < levels; ++i) {
        auto *const next = new TreeItem;
        next->setTitle(QStringLiteral("b"));
        last->appendChild(next);
        last = next;
    }
    return head;
}

} // namespace

/** Maps of both generations of a program. */
class TestXmindWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteTheNewerForm();
    void shouldUseTheMarkersOfTheProgram();
    void shouldWriteTheOlderFormForDeepMaps();
};

void TestXmindWriting::shouldWriteTheNewerForm()
{
    const QByteArray map = exported(*markedTree(), Format::Xmind);
    QCOMPARE(partsOf(map),
             QStringList({QStringLiteral("content.json"), QStringLiteral("metadata.json"),
                          QStringLiteral("manifest.json")}));
    const QJsonObject entries = QJsonDocument::fromJson(partOf(map, "manifest.json"))
                                    .object()
                                    .value(QLatin1String("file-entries"))
                                    .toObject();
    for (const char *name : {"content.json", "metadata.json"})
        QVERIFY2(entries.contains(QLatin1String(name)), name);
    QCOMPARE(imported(map, Format::Xmind).text(), QStringLiteral("Late[Worn]"));
}

void TestXmindWriting::shouldUseTheMarkersOfTheProgram()
{
    const QJsonArray sheets =
        QJsonDocument::fromJson(partOf(exported(*markedTree(), Format::Xmind), "content.json"))
            .array();
    QCOMPARE(sheets.size(), 1);
    const QJsonObject root = sheets.at(0).toObject().value(QLatin1String("rootTopic")).toObject();
    QCOMPARE(root.value(QLatin1String("title")).toString(), QStringLiteral("Late"));
    const QJsonObject worn = root.value(QLatin1String("children"))
                                 .toObject()
                                 .value(QLatin1String("attached"))
                                 .toArray()
                                 .at(0)
                                 .toObject();
    QCOMPARE(worn.value(QLatin1String("title")).toString(), QStringLiteral("Worn"));
    QCOMPARE(worn.value(QLatin1String("href")).toString(), QStringLiteral("https://example.org/"));
    const QJsonObject plain =
        worn.value(QLatin1String("notes")).toObject().value(QLatin1String("plain")).toObject();
    QCOMPARE(plain.value(QLatin1String("content")).toString(), QStringLiteral("Since May"));
    QStringList markers;
    const QJsonArray list = worn.value(QLatin1String("markers")).toArray();
    for (const QJsonValue marker : list)
        markers.append(marker.toObject().value(QLatin1String("markerId")).toString());
    markers.sort();
    QCOMPARE(markers, QStringList({QStringLiteral("priority-2"), QStringLiteral("task-done")}));
}

void TestXmindWriting::shouldWriteTheOlderFormForDeepMaps()
{
    constexpr int levels = 320;
    const auto head = chainOf(levels);
    const QByteArray map = exported(*head, Format::Xmind);
    QCOMPARE(partsOf(map),
             QStringList({QStringLiteral("content.xml"), QStringLiteral("META-INF/manifest.xml")}));
    QVERIFY(partOf(map, "META-INF/manifest.xml").contains("full-path=\"content.xml\""));
    QXmlStreamReader reader(partOf(map, "content.xml"));
    int topics = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        topics += reader.isStartElement() && reader.name() == QLatin1String("topic") ? 1 : 0;
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QCOMPARE(topics, levels);
    const Imported result = imported(map, Format::Xmind);
    QVERIFY2(result.head, qPrintable(result.error));
    QCOMPARE(result.text(), TestSupport::treeToText(*head));
}

FISHBONE_GUILESS_TEST(TestXmindWriting)

#include "tst_xmindwriting.moc"
