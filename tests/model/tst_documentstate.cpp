// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QtTest>

#include <fishbone/model/documentstate.h>
#include <tests/program/testprogram.h>

/** The name of a document and whether it has unsaved changes. */
class TestDocumentState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeNewAtFirst();
    void shouldTellFromTheEventLoop();
    void shouldTellNothingThatWasTakenBack();
    void shouldHaveANameOnceItIsSaved();
    void shouldTellNothingMoreWhenAListenerEndsIt();
};

namespace {
const QString name = QStringLiteral("fish1.json");
} // namespace

void TestDocumentState::shouldBeNewAtFirst()
{
    const DocumentState state(name);
    QCOMPARE(state.file(), name);
    QVERIFY(state.isUntitled());
    QVERIFY(!state.isModified());
}

void TestDocumentState::shouldTellFromTheEventLoop()
{
    DocumentState state(name);
    QSignalSpy modified(&state, &DocumentState::modifiedChanged);
    const QSignalSpy file(&state, &DocumentState::fileChanged);
    state.setModified(true);
    state.setFile(QStringLiteral("other.json"));
    QVERIFY(state.isModified());
    QCOMPARE(modified.count() + file.count(), 0);
    QVERIFY(modified.wait());
    QCOMPARE(modified, (QList<QList<QVariant>>{{true}}));
    QCOMPARE(file, (QList<QList<QVariant>>{{QStringLiteral("other.json")}}));
    QVERIFY(state.isUntitled());
}

void TestDocumentState::shouldTellNothingThatWasTakenBack()
{
    DocumentState state(name);
    const QSignalSpy modified(&state, &DocumentState::modifiedChanged);
    const QSignalSpy file(&state, &DocumentState::fileChanged);
    state.setModified(true);
    state.setModified(false);
    state.setFile(QStringLiteral("other.json"));
    state.setFile(name);
    QCoreApplication::processEvents();
    QCOMPARE(modified.count() + file.count(), 0);
}

void TestDocumentState::shouldHaveANameOnceItIsSaved()
{
    DocumentState state(name);
    state.setModified(true);
    state.setSaved(QStringLiteral("saved.json"));
    QCOMPARE(state.file(), QStringLiteral("saved.json"));
    QVERIFY(!state.isUntitled());
    QVERIFY(!state.isModified());
}

void TestDocumentState::shouldTellNothingMoreWhenAListenerEndsIt()
{
    auto state = std::make_unique<DocumentState>(name);
    int heard = 0;
    connect(state.get(), &DocumentState::modifiedChanged, this, [&state] { state.reset(); });
    connect(state.get(), &DocumentState::fileChanged, this, [&heard] { ++heard; });
    state->setModified(true);
    state->setFile(QStringLiteral("other.json"));
    QCoreApplication::processEvents();
    QVERIFY(!state);
    QCOMPARE(heard, 0);
}

FISHBONE_GUILESS_TEST(TestDocumentState)
#include "tst_documentstate.moc"
