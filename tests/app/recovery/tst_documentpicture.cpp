// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/recovery/documentpicture.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <QSettings>

/** The small picture of a document that was recovered. */
class TestDocumentPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); }
    void shouldShowTheLookOfTheDocument();
    void shouldShowNothingOfAFileWithoutADiagram();

private:
    static QImage pictureOf(const QString &path)
    {
        return DocumentPicture::render(path, QSize(240, 160)).toImage();
    }
};

void TestDocumentPicture::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_documentpicture"));
}

void TestDocumentPicture::shouldShowTheLookOfTheDocument()
{
    const QTemporaryDir folder;
    const auto pictureWith = [&folder](const QByteArray &view) {
        const QString file = folder.filePath(QStringLiteral("a.json"));
        AppFixture::writeFile(file, R"({"title": "Late", "view": )" + view +
                                        R"(, "children": [{"title": "People"}]})");
        return pictureOf(file);
    };
    const QImage usual = pictureWith("{}");
    QVERIFY(!usual.isNull());
    QCOMPARE(pictureWith(R"({"look": "clear"})"), usual);
    QVERIFY(pictureWith(R"({"look": "clear", "head": "left"})") != usual);
    QVERIFY(pictureWith(R"({"look": "classic"})") != usual);
}

void TestDocumentPicture::shouldShowNothingOfAFileWithoutADiagram()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.json"));
    AppFixture::writeFile(file, "[]");
    QVERIFY(pictureOf(file).isNull());
    QVERIFY(pictureOf(folder.filePath(QStringLiteral("missing.json"))).isNull());
}

FISHBONE_TEST(TestDocumentPicture)
#include "tst_documentpicture.moc"
