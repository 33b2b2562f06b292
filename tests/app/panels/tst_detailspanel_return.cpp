// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>

#include <tests/program/testprogram.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

/** Return in any field of the details takes them over, as it does in the title. */
class TestDetailsPanelReturn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldApplyInEveryField();
    void shouldBeginALineInTheText();
};

namespace {

/** The fields that have the focus while a user changes a single value. */
QList<QWidget *> fieldsOf(const QWidget &panel)
{
    QList<QWidget *> fields;
    const QList<QWidget *> all =
        panel.findChildren<QWidget *>(QRegularExpression(QStringLiteral("^details")));
    for (QWidget *field : all) {
        if (qobject_cast<QLineEdit *>(field) || qobject_cast<QAbstractSpinBox *>(field) ||
            qobject_cast<QComboBox *>(field) || qobject_cast<QCheckBox *>(field))
            fields.append(field);
    }
    return fields;
}

/** Changes what @p field says, by a key. */
void change(QWidget *field)
{
    if (qobject_cast<QLineEdit *>(field))
        QTest::keyClick(field, Qt::Key_X);
    else if (qobject_cast<QCheckBox *>(field))
        QTest::keyClick(field, Qt::Key_Space);
    else
        QTest::keyClick(field, qobject_cast<QComboBox *>(field) ? Qt::Key_Down : Qt::Key_Up);
}

} // namespace

void TestDetailsPanelReturn::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_detailspanel_return"));
}

void TestDetailsPanelReturn::shouldApplyInEveryField()
{
    AppFixture app;
    app.select("Machines");
    app.subject("Machines")->setPlanEndDate(86400000);
    app.select("Rust");
    app.select("Machines");
    const auto *const panel = app.window.tabs()->current()->details();
    const auto *const apply = app.widget<QPushButton>("detailsApply");
    const QList<QWidget *> fields = fieldsOf(*panel);
    QVERIFY(fields.size() >= 10);
    for (QWidget *field : fields) {
        const QByteArray name = field->objectName().toUtf8();
        if (!field->isEnabled())
            app.widget<QCheckBox>("detailsHasPlannedEnd")->setChecked(true);
        field->setFocus();
        change(field);
        QVERIFY2(apply->isEnabled(), name.constData());
        const int steps = app.window.editor()->undoStack()->currentIndex();
        QTest::keyClick(field, Qt::Key_Return);
        AppFixture::settle();
        QVERIFY2(!apply->isEnabled(), name.constData());
        QVERIFY2(app.window.editor()->undoStack()->currentIndex() == steps + 1, name.constData());
    }
}

void TestDetailsPanelReturn::shouldBeginALineInTheText()
{
    AppFixture app;
    app.select("Machines");
    auto *const text = app.widget<QWidget>("detailsText");
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("a"));
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClicks(text, QStringLiteral("b"));
    QVERIFY(app.widget<QPushButton>("detailsApply")->isEnabled());
    app.widget<QPushButton>("detailsApply")->click();
    QCOMPARE(app.subject("Machines")->detail(), QStringLiteral("a\nb"));
}

FISHBONE_TEST(TestDetailsPanelReturn)
#include "tst_detailspanel_return.moc"
