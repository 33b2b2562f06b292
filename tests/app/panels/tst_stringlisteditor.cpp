// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/stringlisteditor.h>

#include <tests/program/testprogram.h>
#include <tests/support/dialogchecks.h>

#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

namespace {

const QStringList two{QStringLiteral("a"), QStringLiteral("b, c")};

/** The editor with two texts, on the screen. */
struct Fixture
{
    Fixture()
    {
        editor.setNames(QStringLiteral("Names"), QStringLiteral("New name"));
        editor.setTexts(two);
        editor.show();
    }

    QListWidget *list() const { return editor.findChild<QListWidget *>(); }
    QLineEdit *field() const { return editor.findChild<QLineEdit *>(); }
    QToolButton *button(const char *text) const
    {
        return TestSupport::buttonWithText<QToolButton>(editor, QString::fromUtf8(text));
    }

    StringListEditor editor;
    QSignalSpy changes{&editor, &StringListEditor::changed};
};

} // namespace

class TestStringListEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTextsWithoutASignal();
    void shouldAdd_data();
    void shouldAdd();
    void shouldAddNothingBlank();
    void shouldCountWhatIsTypedAndNotAdded();
    void shouldLeaveReturnToOthersWhenNothingIsTyped();
    void shouldRemove_data();
    void shouldRemove();
    void shouldChangeATextInPlace();
    void shouldNameItsControls();
};

void TestStringListEditor::shouldShowTextsWithoutASignal()
{
    Fixture f;
    QCOMPARE(f.editor.texts(), two);
    f.editor.setTexts({});
    QCOMPARE(f.editor.texts(), QStringList());
    QCOMPARE(f.changes.count(), 0);
}

void TestStringListEditor::shouldAdd_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by key") << true;
    QTest::newRow("by button") << false;
}

void TestStringListEditor::shouldAdd()
{
    QFETCH(bool, byKey);
    Fixture f;
    QVERIFY(!f.button("+")->isEnabled());
    QTest::keyClicks(f.field(), QStringLiteral(" d "));
    QVERIFY(f.button("+")->isEnabled());
    if (byKey)
        QTest::keyClick(f.field(), Qt::Key_Return);
    else
        QTest::mouseClick(f.button("+"), Qt::LeftButton);
    QCOMPARE(f.list()->count(), 3);
    QCOMPARE(f.editor.texts(), two + QStringList(QStringLiteral("d")));
    QVERIFY(f.field()->text().isEmpty());
    QVERIFY(f.changes.count() > 0);
}

void TestStringListEditor::shouldAddNothingBlank()
{
    Fixture f;
    QTest::keyClicks(f.field(), QStringLiteral("  "));
    QVERIFY(!f.button("+")->isEnabled());
    QTest::keyClick(f.field(), Qt::Key_Return);
    QCOMPARE(f.editor.texts(), two);
}

void TestStringListEditor::shouldCountWhatIsTypedAndNotAdded()
{
    Fixture f;
    QTest::keyClicks(f.field(), QStringLiteral("d"));
    QCOMPARE(f.editor.texts(), two + QStringList(QStringLiteral("d")));
    QCOMPARE(f.changes.count(), 1);
    QCOMPARE(f.list()->count(), 2);
}

void TestStringListEditor::shouldLeaveReturnToOthersWhenNothingIsTyped()
{
    Fixture f;
    const QSignalSpy returns(f.field(), &QLineEdit::returnPressed);
    QTest::keyClick(f.field(), Qt::Key_Return);
    QCOMPARE(returns.count(), 1);
}

void TestStringListEditor::shouldRemove_data()
{
    shouldAdd_data();
}

void TestStringListEditor::shouldRemove()
{
    QFETCH(bool, byKey);
    Fixture f;
    QVERIFY(!f.button("−")->isEnabled());
    f.list()->setCurrentRow(0);
    QVERIFY(f.button("−")->isEnabled());
    if (byKey)
        QTest::keyClick(f.list(), Qt::Key_Delete);
    else
        QTest::mouseClick(f.button("−"), Qt::LeftButton);
    QCOMPARE(f.editor.texts(), QStringList(QStringLiteral("b, c")));
    QCOMPARE(f.changes.count(), 1);
}

void TestStringListEditor::shouldChangeATextInPlace()
{
    Fixture f;
    f.list()->setFocus();
    f.list()->setCurrentRow(1);
    f.list()->editItem(f.list()->item(1));
    auto *const field = f.list()->viewport()->findChild<QLineEdit *>();
    QVERIFY(field);
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("x"));
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(f.editor.texts(), QStringList({QStringLiteral("a"), QStringLiteral("x")}));
    QCOMPARE(f.changes.count(), 1);
}

void TestStringListEditor::shouldNameItsControls()
{
    Fixture f;
    QTest::keyClicks(f.field(), QStringLiteral("d"));
    f.list()->setCurrentRow(0); // so that everything is enabled
    QCOMPARE(TestSupport::namelessControls(f.editor), QStringList());
    QCOMPARE(TestSupport::accessibleName(f.list()), QStringLiteral("Names"));
    QCOMPARE(TestSupport::accessibleName(f.button("+")), QStringLiteral("Add: New name"));
}

FISHBONE_TEST(TestStringListEditor)
#include "tst_stringlisteditor.moc"
