// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/editor/rememberedroot.h>
#include <fishbone/editor/shownsubject.h>
#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

using namespace TestSupport;

/** The root that was shown last, whatever became of it. */
class TestRememberedRoot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldRememberNothingAtFirst();
    void shouldFollowTheHeadOfItsDocument();
    void shouldFollowASubjectThatIsNoHead();
    void shouldBeNowhereWhenItIsGone();
    void shouldBeNowhereInAnotherModel();

private:
    void show(const char *title)
    {
        m_shown.setModel(m_model.get());
        m_shown.setIndex(indexTitled(*m_model, QString::fromLatin1(title)));
    }

    std::unique_ptr<FishModel> m_model;
    ShownSubject m_shown;
};

void TestRememberedRoot::init()
{
    m_model = std::make_unique<FishModel>();
    m_model->setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(*m_model, QStringLiteral("G"));
    loadDocument(*m_model, QStringLiteral("H[A[B],C]"));
}

void TestRememberedRoot::shouldRememberNothingAtFirst()
{
    const RememberedRoot root;
    QVERIFY(!root.indexIn(m_model.get()).isValid());
    QVERIFY(!root.indexIn(nullptr).isValid());
    QVERIFY(!root.subjectIn(*m_model));
    QVERIFY(!root.isHead());
}

void TestRememberedRoot::shouldFollowTheHeadOfItsDocument()
{
    RememberedRoot root;
    show("H");
    root.remember(m_shown);
    QVERIFY(root.isHead());
    auto *const head = new TreeItem;
    head->setTitle(QStringLiteral("New"));
    QVERIFY(m_model->wrapHead(root.document(), head));
    QCOMPARE(root.indexIn(m_model.get()), indexTitled(*m_model, QStringLiteral("New")));
    QVERIFY(root.isSubject(nodeTitled(*m_model, QStringLiteral("H"))));
    root.forget();
    QVERIFY(!root.indexIn(m_model.get()).isValid());
}

void TestRememberedRoot::shouldFollowASubjectThatIsNoHead()
{
    RememberedRoot root;
    show("B");
    root.remember(m_shown);
    QVERIFY(!root.isHead());
    const QModelIndex a = indexTitled(*m_model, QStringLiteral("A"));
    QVERIFY(m_model->moveRows(a, 0, 1, a.parent(), 0));
    QCOMPARE(root.indexIn(m_model.get()), indexTitled(*m_model, QStringLiteral("B")));
    QCOMPARE(root.subjectIn(*m_model), nodeTitled(*m_model, QStringLiteral("B")));
    root.follow(m_model->fishList().at(0));
    QCOMPARE(root.document(), m_model->fishList().at(0));
}

void TestRememberedRoot::shouldBeNowhereWhenItIsGone()
{
    RememberedRoot root;
    show("A");
    root.remember(m_shown);
    QVERIFY(m_model->removeRows(0, 1, indexTitled(*m_model, QStringLiteral("H"))));
    QVERIFY(!root.subjectIn(*m_model));
    QVERIFY(!root.indexIn(m_model.get()).isValid());
    m_model.reset();
    QVERIFY(!root.document());
    QVERIFY(!root.indexIn(nullptr).isValid());
}

void TestRememberedRoot::shouldBeNowhereInAnotherModel()
{
    RememberedRoot root;
    show("H");
    root.remember(m_shown);
    const FishModel other;
    QVERIFY(!root.indexIn(&other).isValid());
}

FISHBONE_GUILESS_TEST(TestRememberedRoot)
#include "tst_rememberedroot.moc"
