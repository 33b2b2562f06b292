// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QtTest>

#include <fishbone/model/documentsaving.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>
#include <tests/support/modaldriver.h>

using namespace TestSupport;

/** How a document is written, and what is asked about that. */
class TestDocumentSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteADocumentThatCanBeReadAgain();
    void shouldSayWhyItCouldNotWrite();
    void shouldSaveWhenTheUserSaysSo();
    void shouldNotSaveADocumentThatEndedMeanwhile();
    void shouldChooseOneAutosaveFile();
    void shouldNotAutosaveWithoutAHead();

private:
    QTemporaryDir m_folder;
};

void TestDocumentSaving::shouldWriteADocumentThatCanBeReadAgain()
{
    FishModel model;
    DocumentSaving saving(*loadDocument(model, QStringLiteral("H[A[B],C]")));
    const QString file = m_folder.filePath(QStringLiteral("written.json"));
    QVERIFY(saving.write(file, QString()));
    QCOMPARE(saving.error(), QString());
    FishModel other;
    QCOMPARE(other.loadFishFromFile(file), int(MODEL_NO_ERROR));
    QCOMPARE(treeToText(*other.getFishHeadTreeItem()), QStringLiteral("H[A[B],C]"));
}

void TestDocumentSaving::shouldSayWhyItCouldNotWrite()
{
    FishModel model;
    DocumentSaving saving(*loadDocument(model, QStringLiteral("H")));
    QVERIFY(!saving.write(m_folder.filePath(QStringLiteral("no/such/folder.json")), QString()));
    QVERIFY(!saving.error().isEmpty());
    FishInfo alone;
    DocumentSaving unshown(alone);
    QVERIFY(!unshown.write(m_folder.filePath(QStringLiteral("unshown.json")), QString()));
    QCOMPARE(unshown.error(), QStringLiteral("no model shows the document"));
}

void TestDocumentSaving::shouldSaveWhenTheUserSaysSo()
{
    FishInfo document;
    DocumentSaving saving(document);
    int saved = 0;
    const auto save = [&saved] { return ++saved == 1; };
    const auto answer = [](QMessageBox::StandardButton button) {
        return [button](QMessageBox &box) { box.button(button)->click(); };
    };
    const auto ask = [&](QMessageBox::StandardButton button) {
        const ModalDriver<QMessageBox> user(answer(button));
        return saving.ask(save) && user.isDone();
    };
    QVERIFY(ask(QMessageBox::Save));
    QVERIFY(!ask(QMessageBox::Save)); // the second time it fails
    QCOMPARE(saved, 2);
    QVERIFY(ask(QMessageBox::Discard));
    QVERIFY(!ask(QMessageBox::Cancel));
    QCOMPARE(saved, 2);
}

void TestDocumentSaving::shouldNotSaveADocumentThatEndedMeanwhile()
{
    auto document = std::make_unique<FishInfo>();
    DocumentSaving saving(*document);
    int saved = 0;
    const ModalDriver<QMessageBox> user([&document](QMessageBox &box) {
        document.reset();
        box.button(QMessageBox::Save)->click();
    });
    QVERIFY(!saving.ask([&saved] { return ++saved > 0; }));
    QVERIFY(user.isDone());
    QCOMPARE(saved, 0);
}

void TestDocumentSaving::shouldChooseOneAutosaveFile()
{
    FishModel model;
    FishInfo *const document = loadDocument(model, QStringLiteral("H"));
    DocumentSaving saving(*document);
    QVERIFY(saving.autosave());
    const QString chosen = document->autoSaveFile();
    QVERIFY(QFile::exists(chosen));
    QVERIFY(saving.autosave());
    QCOMPARE(document->autoSaveFile(), chosen);
    QVERIFY(QFile::remove(chosen));
}

void TestDocumentSaving::shouldNotAutosaveWithoutAHead()
{
    FishModel model;
    FishInfo *const document = loadDocument(model, QStringLiteral("H"));
    FishInfo unshown;
    QVERIFY(!DocumentSaving(unshown).autosave());
    document->reset();
    QVERIFY(!DocumentSaving(*document).autosave());
    QCOMPARE(document->autoSaveFile(), QString());
}

FISHBONE_TEST(TestDocumentSaving)
#include "tst_documentsaving.moc"
