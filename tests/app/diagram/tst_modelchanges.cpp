// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/diagram/modelchanges.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace TestSupport;

/** What has changed last in a model. */
class TestModelChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKnowWhatCame();
    void shouldKnowWhereSomethingWent();
    void shouldKnowWhichDocumentChanged();
    void shouldForget();
};

namespace {

struct Watched
{
    Watched()
        : document(loadDocument(model, documentFromText(QStringLiteral("H[A,B]"))))
    {
    }

    FishModel model;
    const QAbstractItemModelTester tester{&model};
    FishInfo *document;
    ModelChanges changes{&model};
};

} // namespace

void TestModelChanges::shouldKnowWhatCame()
{
    Watched watched;
    const QSignalSpy happened(&watched.changes, &ModelChanges::happened);
    QVERIFY(!watched.changes.inserted().isValid());
    const QModelIndex bone = indexTitled(watched.model, QStringLiteral("A"));
    QVERIFY(watched.model.insertRows(0, 1, bone));
    QCOMPARE(watched.changes.inserted(), watched.model.index(0, 0, bone));
    QVERIFY(happened.count() > 0);
}

void TestModelChanges::shouldKnowWhereSomethingWent()
{
    Watched watched;
    const QModelIndex head = indexTitled(watched.model, QStringLiteral("H"));
    QVERIFY(watched.model.removeRows(0, 1, head));
    QCOMPARE(watched.changes.removedFrom(), head);
    QVERIFY(!watched.changes.inserted().isValid());
}

void TestModelChanges::shouldKnowWhichDocumentChanged()
{
    Watched watched;
    const FishInfo *const other =
        loadDocument(watched.model, documentFromText(QStringLiteral("K[C]")));
    watched.changes.forget(); // the coming of a document
    const QSignalSpy changed(&watched.changes, &ModelChanges::documentChanged);
    QVERIFY(watched.model.removeRows(0, 1, indexTitled(watched.model, QStringLiteral("K"))));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(watched.changes.document(), other);
    QVERIFY(other->modified());
    QVERIFY(!watched.document->modified());
}

void TestModelChanges::shouldForget()
{
    Watched watched;
    const QModelIndex head = indexTitled(watched.model, QStringLiteral("H"));
    QVERIFY(watched.model.insertRows(0, 1, head));
    QVERIFY(watched.model.removeRows(2, 1, head));
    watched.changes.forget();
    QVERIFY(!watched.changes.inserted().isValid());
    QVERIFY(!watched.changes.removedFrom().isValid());
    QVERIFY(!watched.changes.document());
}

FISHBONE_TEST(TestModelChanges)
#include "tst_modelchanges.moc"
