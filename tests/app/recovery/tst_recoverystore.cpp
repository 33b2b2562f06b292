// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/recovery/recoverymodel.h>
#include <app/recovery/recoverystore.h>
#include <tests/program/testprogram.h>

#include <QAbstractItemModelTester>
#include <QDir>
#include <QLockFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

void putFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

/** A copy as a run that is gone has left it. */
QString leaveCopy(const QString &name, const QString &original, const QByteArray &content)
{
    const QString copy = RecoveryStore::newCopy(name);
    putFile(copy, content);
    [&] { QVERIFY(RecoveryStore::writeNote(copy, original, name)); }();
    return copy;
}

} // namespace

class TestRecoveryStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldNameCopiesApart();
    void shouldFindWhatWasLeft();
    void shouldFindACopyWithoutANote_data();
    void shouldFindACopyWithoutANote();
    void shouldLeaveOutWhatBelongsToALivingProcess();
    void shouldRemoveCopiesThatAreNoNewer();
    void shouldKeepTheCopyOfAFileThatIsGone();
    void shouldRemoveACopyWithItsNote();
    void shouldListCopiesWithPictures();
};

void TestRecoveryStore::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_recoverystore"));
}

void TestRecoveryStore::init()
{
    QDir(RecoveryStore::folder()).removeRecursively();
}

void TestRecoveryStore::shouldNameCopiesApart()
{
    const QString name = QStringLiteral("http://localhost/a b?c=d/é*.json");
    const QString first = RecoveryStore::newCopy(name);
    QVERIFY(first != RecoveryStore::newCopy(name));
    QCOMPARE(QFileInfo(first).absolutePath(), QDir(RecoveryStore::folder()).absolutePath());
    putFile(first, "{}"); // the name can be that of a file
    QVERIFY(!QFileInfo(first).fileName().contains(QLatin1Char('*')));
}

void TestRecoveryStore::shouldFindWhatWasLeft()
{
    QVERIFY(RecoveryStore::left().isEmpty());
    const QString copy = leaveCopy(QStringLiteral("a.json"), QStringLiteral("/x/a.json"), "{}");
    const QList<LeftCopy> left = RecoveryStore::left();
    QCOMPARE(left.size(), 1);
    QCOMPARE(QFileInfo(left.first().copy), QFileInfo(copy));
    QCOMPARE(left.first().original, QStringLiteral("/x/a.json"));
    QCOMPARE(left.first().name, QStringLiteral("a.json"));
    QCOMPARE(left.first().size, qint64(2));
    QVERIFY(qAbs(left.first().saved.secsTo(QDateTime::currentDateTime())) < 60);
}

void TestRecoveryStore::shouldFindACopyWithoutANote_data()
{
    QTest::addColumn<QByteArray>("note");

    QTest::newRow("none") << QByteArray();
    QTest::newRow("cut off") << QByteArray("{\"file\": \"/x");
    QTest::newRow("something else") << QByteArray("[1, 2]");
}

void TestRecoveryStore::shouldFindACopyWithoutANote()
{
    QFETCH(QByteArray, note);
    const QString copy = leaveCopy(QStringLiteral("a.json"), QStringLiteral("/x/a.json"), "{}");
    QVERIFY(QFile::remove(RecoveryStore::noteOf(copy)));
    if (!note.isEmpty())
        putFile(RecoveryStore::noteOf(copy), note);
    const QList<LeftCopy> left = RecoveryStore::left();
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.first().original, QString());
    QCOMPARE(left.first().name, QFileInfo(copy).fileName());
}

void TestRecoveryStore::shouldLeaveOutWhatBelongsToALivingProcess()
{
    const QString copy = leaveCopy(QStringLiteral("a.json"), QString(), "{}");
    {
        QLockFile lock(RecoveryStore::lockOf(copy));
        lock.setStaleLockTime(0);
        QVERIFY(lock.tryLock(0));
        QVERIFY(RecoveryStore::left().isEmpty());
    }
    QCOMPARE(RecoveryStore::left().size(), 1);
}

void TestRecoveryStore::shouldRemoveCopiesThatAreNoNewer()
{
    const QTemporaryDir folder;
    const QString original = folder.filePath(QStringLiteral("a.json"));
    putFile(original, "{\"title\": \"a\"}");
    const QString copy = leaveCopy(QStringLiteral("a.json"), original, "{\"title\": \"a\"}");
    QVERIFY(RecoveryStore::left().isEmpty());
    QVERIFY(!QFileInfo::exists(copy));
    QVERIFY(!QFileInfo::exists(RecoveryStore::noteOf(copy)));
}

void TestRecoveryStore::shouldKeepTheCopyOfAFileThatIsGone()
{
    leaveCopy(QStringLiteral("a.json"), QStringLiteral("/nowhere/a.json"), "");
    QCOMPARE(RecoveryStore::left().size(), 1);
}

void TestRecoveryStore::shouldRemoveACopyWithItsNote()
{
    const QString copy = leaveCopy(QStringLiteral("a.json"), QString(), "{}");
    RecoveryStore::remove(copy);
    QCOMPARE(QDir(RecoveryStore::folder()).entryList(QDir::Files), QStringList());
}

void TestRecoveryStore::shouldListCopiesWithPictures()
{
    leaveCopy(QStringLiteral("broken.json"), QString(), "{");
    const QString good = leaveCopy(QStringLiteral("good.json"), QStringLiteral("/x/good.json"),
                                   R"({"title": "A", "children": [{"title": "B"}]})");
    RecoveryModel model(RecoveryStore::left());
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 2);
    const int row = model.copyAt(0).name == QLatin1String("good.json") ? 0 : 1;
    const auto shown = [&model](int r, int column) {
        return model.index(r, column).data().toString();
    };
    QCOMPARE(shown(row, RecoveryModel::Name), QStringLiteral("good.json"));
    QCOMPARE(shown(row, RecoveryModel::File),
             QDir::toNativeSeparators(QStringLiteral("/x/good.json")));
    QVERIFY(!shown(row, RecoveryModel::Size).isEmpty());
    QVERIFY(!shown(row, RecoveryModel::Saved).isEmpty());
    const auto picture = [&model](int r) {
        const QVariant icon = model.index(r, RecoveryModel::Name).data(Qt::DecorationRole);
        return icon.value<QIcon>().pixmap(RecoveryModel::pictureSize);
    };
    QVERIFY(!picture(row).isNull());
    // Something is drawn in it.
    QImage empty(picture(row).size(), QImage::Format_RGB32);
    empty.fill(picture(row).toImage().pixelColor(0, 0));
    QVERIFY(picture(row).toImage().convertToFormat(QImage::Format_RGB32) != empty);
    QVERIFY(picture(1 - row).isNull());

    model.forget(good);
    QCOMPARE(model.rowCount(), 1);
    model.forget(good); // once more changes nothing
    QCOMPARE(shown(0, RecoveryModel::Name), QStringLiteral("broken.json"));
}

FISHBONE_TEST(TestRecoveryStore)
#include "tst_recoverystore.moc"
