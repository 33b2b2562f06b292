// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/program/testprogram.h>

#include <fishbone/model/documentfile.h>

#include <QtTest>

using FileNames::System;

/** The names that autosave gives its files. */
class TestDocumentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLeaveOrdinaryTitlesAsTheyAre();
    void shouldReplaceWhatTheSystemHasAMeaningFor();
    void shouldBoundTheLengthOfWhatItReplacedToo();
};

void TestDocumentFile::shouldLeaveOrdinaryTitlesAsTheyAre()
{
    for (const System system : {System::Unix, System::Mac, System::Windows}) {
        for (const char *title : {"Pump worn", "Größe 大", "v1.2 (draft)", "Console"})
            QCOMPARE(DocumentFile::namePart(QString::fromUtf8(title), system),
                     QString::fromUtf8(title));
    }
}

void TestDocumentFile::shouldReplaceWhatTheSystemHasAMeaningFor()
{
    const QString title = QStringLiteral("C:\\a/b?\n");
    QCOMPARE(DocumentFile::namePart(title, System::Unix), QStringLiteral("C:_a_b?_"));
    QCOMPARE(DocumentFile::namePart(title, System::Windows), QStringLiteral("C__a_b__"));
    // The time that follows a dot makes no file of a device.
    QCOMPARE(DocumentFile::namePart(QStringLiteral("nul"), System::Windows),
             QStringLiteral("_nul"));
    QCOMPARE(DocumentFile::namePart(QStringLiteral("nul"), System::Unix), QStringLiteral("nul"));
}

void TestDocumentFile::shouldBoundTheLengthOfWhatItReplacedToo()
{
    const QString device = QStringLiteral("con.") + QString(300, QLatin1Char('a'));
    const QString part = DocumentFile::namePart(device, System::Windows);
    QCOMPARE(int(part.size()), 200);
    QVERIFY(part.startsWith(QLatin1String("_con.")));
}

FISHBONE_GUILESS_TEST(TestDocumentFile)
#include "tst_documentfile.moc"
