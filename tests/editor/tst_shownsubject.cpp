// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QtTest>

#include <fishbone/editor/shownsubject.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

using namespace TestSupport;

/** Which subject of which model is shown. */
class TestShownSubject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldKnowNothingAtFirst();
    void shouldKnowTheDocumentOfADeepSubject();
    void shouldKnowNoDocumentOfAModelSetEarlier();
    void shouldTakeAnIndexOfAProxyForItsOwn();
    void shouldTakeNoOtherIndex();
    void shouldForgetAModelThatDied();
    void shouldKnowNoSubjectsOfAnotherKindOfModel();

private:
    std::unique_ptr<FishModel> m_model;
};

void TestShownSubject::init()
{
    m_model = std::make_unique<FishModel>();
    loadDocument(*m_model, QStringLiteral("H[A[B]]"));
    loadDocument(*m_model, QStringLiteral("I[C]"));
}

void TestShownSubject::shouldKnowNothingAtFirst()
{
    const ShownSubject shown;
    QVERIFY(!shown.model());
    QVERIFY(!shown.fishModel());
    QVERIFY(!shown.index().isValid());
    QVERIFY(!shown.isOfModel());
    QVERIFY(!shown.document());
    QVERIFY(!shown.subjectOf(m_model->index(0, 0)));
}

void TestShownSubject::shouldKnowTheDocumentOfADeepSubject()
{
    ShownSubject shown;
    shown.setModel(m_model.get());
    shown.setIndex(indexTitled(*m_model, QStringLiteral("B")));
    QCOMPARE(shown.document(), m_model->fishList().at(0));
    shown.setIndex(indexTitled(*m_model, QStringLiteral("I")));
    QCOMPARE(shown.document(), m_model->fishList().at(1));
    QVERIFY(shown.isOfModel());
}

void TestShownSubject::shouldKnowNoDocumentOfAModelSetEarlier()
{
    FishModel later;
    ShownSubject shown;
    shown.setModel(m_model.get());
    shown.setIndex(m_model->index(0, 0));
    shown.setModel(&later);
    QVERIFY(shown.index().isValid());
    QVERIFY(!shown.isOfModel());
    QVERIFY(!shown.document());
}

void TestShownSubject::shouldTakeAnIndexOfAProxyForItsOwn()
{
    QSortFilterProxyModel lower;
    QSortFilterProxyModel upper;
    lower.setSourceModel(m_model.get());
    upper.setSourceModel(&lower);
    ShownSubject shown;
    shown.setModel(m_model.get());
    QCOMPARE(shown.ownIndex(upper.index(1, 0)), m_model->index(1, 0));
    QCOMPARE(shown.subjectOf(upper.index(1, 0)), nodeTitled(*m_model, QStringLiteral("I")));
}

void TestShownSubject::shouldTakeNoOtherIndex()
{
    FishModel other;
    loadDocument(other, QStringLiteral("X"));
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&other);
    ShownSubject shown;
    shown.setModel(m_model.get());
    QVERIFY(!shown.ownIndex(other.index(0, 0)).isValid());
    QVERIFY(!shown.ownIndex(proxy.index(0, 0)).isValid());
    QVERIFY(!shown.ownIndex(QModelIndex()).isValid());
    QVERIFY(!shown.subjectOf(other.index(0, 0)));
}

void TestShownSubject::shouldForgetAModelThatDied()
{
    ShownSubject shown;
    shown.setModel(m_model.get());
    shown.setIndex(m_model->index(0, 0));
    m_model.reset();
    QVERIFY(!shown.model());
    QVERIFY(!shown.index().isValid());
    QVERIFY(!shown.document());
}

void TestShownSubject::shouldKnowNoSubjectsOfAnotherKindOfModel()
{
    QStringListModel texts({QStringLiteral("text")});
    ShownSubject shown;
    shown.setModel(&texts);
    shown.setIndex(texts.index(0, 0));
    QVERIFY(!shown.fishModel());
    QVERIFY(!shown.isOfModel());
    QVERIFY(!shown.document());
    QCOMPARE(shown.ownIndex(texts.index(0, 0)), texts.index(0, 0));
    QVERIFY(!shown.subjectOf(texts.index(0, 0)));
}

FISHBONE_GUILESS_TEST(TestShownSubject)
#include "tst_shownsubject.moc"
