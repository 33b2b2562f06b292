// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QtTest>

#include <fishbone/editor/droptarget.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

namespace {

Drawing &drawing()
{
    static Drawing shown(QStringLiteral("H[A[B,C],D]"));
    return shown;
}

SpearItem &bone(const char *title)
{
    return *drawing().spear(QString::fromLatin1(title));
}

TreeItem *subject(const char *title)
{
    return drawing().node(QString::fromLatin1(title));
}

} // namespace

/** The bone that would take what is moved over it. */
class TestDropTarget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldMarkOneBone();
    void shouldForgetTheRowWhenCleared();
    void shouldOfferWhereASubjectMayGo_data();
    void shouldOfferWhereASubjectMayGo();
    void shouldForgetABoneThatDies();
};

void TestDropTarget::shouldMarkOneBone()
{
    DropTarget target;
    QVERIFY(!target.spear());
    QCOMPARE(target.rowAt(QPointF(), nullptr), 0);
    const QPointF farLeft(-1e6, 0);
    target.mark(bone("A"), farLeft, nullptr);
    QCOMPARE(target.spear(), &bone("A"));
    QVERIFY(bone("A").isLinked());
    QCOMPARE(target.row(), bone("A").dropRow(farLeft, nullptr));
    QCOMPARE(bone("A").linkNumber(), target.row());

    target.mark(bone("D"), QPointF(), nullptr);
    QVERIFY(!bone("A").isLinked());
    QVERIFY(bone("D").isLinked());
    target.unmark();
    QVERIFY(!bone("D").isLinked());
    QVERIFY(!target.spear());
}

void TestDropTarget::shouldForgetTheRowWhenCleared()
{
    const SpearItem &a = bone("A");
    QPointF behind(1e6, 1e6);
    if (a.dropRow(behind, nullptr) == 0)
        behind = -behind;
    const int row = a.dropRow(behind, nullptr);
    QVERIFY(row > 0);
    DropTarget target;
    target.mark(bone("A"), behind, nullptr);
    target.unmark();
    QCOMPARE(target.row(), row); // the release still wants it
    target.clear();
    QCOMPARE(target.row(), 0);
}

void TestDropTarget::shouldOfferWhereASubjectMayGo_data()
{
    QTest::addColumn<QByteArray>("dragged");
    QTest::addColumn<QByteArray>("under");
    QTest::addColumn<bool>("fits");
    QTest::newRow("onto another") << QByteArray("D") << QByteArray("B") << true;
    QTest::newRow("onto its parent") << QByteArray("B") << QByteArray("A") << true;
    QTest::newRow("onto nothing") << QByteArray("D") << QByteArray() << true;
    QTest::newRow("onto itself") << QByteArray("A") << QByteArray("A") << false;
    QTest::newRow("below itself") << QByteArray("A") << QByteArray("C") << false;
    QTest::newRow("nothing") << QByteArray() << QByteArray("A") << false;
}

void TestDropTarget::shouldOfferWhereASubjectMayGo()
{
    QFETCH(QByteArray, dragged);
    QFETCH(QByteArray, under);
    QFETCH(bool, fits);
    DropTarget target;
    target.mark(bone("H"), QPointF(), nullptr);
    SpearItem *const spear = under.isEmpty() ? nullptr : &bone(under.constData());
    const TreeItem *const item = dragged.isEmpty() ? nullptr : subject(dragged.constData());
    QCOMPARE(target.offer(item, spear, QPointF()), fits);
    QCOMPARE(target.spear(), fits ? spear : nullptr);
    QVERIFY(!bone("H").isLinked());
    target.clear();
}

void TestDropTarget::shouldForgetABoneThatDies()
{
    Drawing mortal(QStringLiteral("H[A]"));
    DropTarget target;
    target.mark(*mortal.spear(QStringLiteral("A")), QPointF(), nullptr);
    delete mortal.spear(QStringLiteral("A"));
    QVERIFY(!target.spear());
    target.clear();
}

FISHBONE_TEST(TestDropTarget)
#include "tst_droptarget.moc"
