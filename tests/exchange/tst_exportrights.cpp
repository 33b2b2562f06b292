// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Whoever may not read a file may not read what is exported over it either.

#include <tests/exchange/exchangefixture.h>
#include <tests/exchange/picturefixture.h>
#include <tests/program/testprogram.h>

#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/meetingreport.h>
#include <fishbone/exchange/slideexport.h>

#include <QGraphicsScene>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

/** Writes a diagram, with a scene that shows something, to a file. */
using Export =
    std::function<bool(const TreeItem &head, QGraphicsScene &scene, const QString &file)>;

struct Exporter
{
    QString file; ///< its name
    Export write;
};

Export asPicture()
{
    return [](const TreeItem &, QGraphicsScene &scene, const QString &file) {
        return bool(PictureExport::write(scene, file));
    };
}

Export asDrawing()
{
    return [](const TreeItem &head, QGraphicsScene &, const QString &file) {
        return bool(DiagramPicture(&head).write(file));
    };
}

Export asReport()
{
    return [](const TreeItem &head, QGraphicsScene &, const QString &file) {
        return MeetingReport(&head, QDate(2024, 1, 31)).write(file);
    };
}

Export asActions()
{
    return [](const TreeItem &head, QGraphicsScene &, const QString &file) {
        return MeetingReport(&head, QDate(2024, 1, 31)).writeActions(file);
    };
}

std::vector<Exporter> exporters()
{
    std::vector<Exporter> all;
    for (const char *suffix : {"png", "svg", "pdf"})
        all.push_back({QStringLiteral("picture.") + QLatin1String(suffix), asPicture()});
    for (const char *suffix : {"png", "svg", "pdf", "html"})
        all.push_back({QStringLiteral("drawing.") + QLatin1String(suffix), asDrawing()});
    for (const char *suffix : {"html", "pdf", "md"})
        all.push_back({QStringLiteral("report.") + QLatin1String(suffix), asReport()});
    for (const char *suffix : {"csv", "md"})
        all.push_back({QStringLiteral("actions.") + QLatin1String(suffix), asActions()});
    all.push_back({QStringLiteral("page.pdf"),
                   [](const TreeItem &head, QGraphicsScene &, const QString &file) {
                       return bool(DiagramPicture(&head).writePage(file, QSizeF(297, 210), 10, {}));
                   }});
    all.push_back({QStringLiteral("slide.pptx"),
                   [](const TreeItem &head, QGraphicsScene &scene, const QString &file) {
                       return SlideExport::write(scene, head, file);
                   }});
    const QList<DiagramExchange::Format> formats = ExchangeFixture::wholeFormats();
    for (const DiagramExchange::Format format : formats) {
        all.push_back({QStringLiteral("diagram.") + DiagramExchange::id(format),
                       [format](const TreeItem &head, QGraphicsScene &, const QString &file) {
                           return DiagramExchange::writeFile(file, head, format);
                       }});
    }
    return all;
}

#ifdef Q_OS_UNIX
int modeOf(const QString &file)
{
    struct stat status = {};
    return stat(QFile::encodeName(file).constData(), &status) == 0 ? int(status.st_mode) & 0777
                                                                   : -1;
}
#endif

} // namespace

class TestExportRights : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLetNobodyElseReadWhatAnExportWrites_data();
    void shouldLetNobodyElseReadWhatAnExportWrites();
};

void TestExportRights::shouldLetNobodyElseReadWhatAnExportWrites_data()
{
    QTest::addColumn<int>("number");
    int number = 0;
    for (const Exporter &exporter : exporters())
        QTest::newRow(qPrintable(exporter.file)) << number++;
}

void TestExportRights::shouldLetNobodyElseReadWhatAnExportWrites()
{
#ifdef Q_OS_UNIX
    QFETCH(int, number);
    const Exporter exporter = exporters()[std::size_t(number)];
    const QTemporaryDir folder;
    const QString file = folder.filePath(exporter.file);
    PictureFixture::writeFile(file, "old");
    QCOMPARE(chmod(QFile::encodeName(file).constData(), 0600), 0);
    QGraphicsScene scene;
    PictureFixture::addRedRectangle(scene);
    const auto head = ExchangeFixture::treeFrom("Effect[Man[Training],Machine]");

    const mode_t mask = umask(022); // which would let all read a new file
    const bool isWritten = exporter.write(*head, scene, file);
    umask(mask);

    QVERIFY(isWritten);
    QVERIFY(PictureFixture::contentOf(file) != "old");
    // Nor what a report keeps beside it.
    const QStringList files = QDir(folder.path()).entryList(QDir::Files);
    for (const QString &name : files)
        QVERIFY2(modeOf(folder.filePath(name)) == 0600, qPrintable(name));
#else
    QSKIP("Needs the permissions of Unix files.");
#endif
}

FISHBONE_TEST(TestExportRights)
#include "tst_exportrights.moc"
