// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <fishbone/model/subjectmarks.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>

using TestSupport::ModalDriver;

namespace {

/** What a user does in the dialog of a style before he accepts it. */
using Edit = std::function<void(SpearStyleDialog &)>;

void accept(SpearStyleDialog &dialog)
{
    const QDialogButtonBox *const buttons = dialog.findChild<QDialogButtonBox *>();
    for (QAbstractButton *button : buttons->buttons()) {
        if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
            QTest::mouseClick(button, Qt::LeftButton);
    }
}

/** Presses "Set TextColor", and chooses @p color. */
void chooseColor(SpearStyleDialog &dialog, const QColor &color)
{
    const ModalDriver<QColorDialog> driver([color](QColorDialog &colors) {
        colors.setCurrentColor(color);
        colors.accept();
    });
    auto *const button = dialog.findChild<QPushButton *>(QStringLiteral("Set TextColor"));
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(driver.isDone());
}

void mark(SpearStyleDialog &dialog)
{
    auto *const box = dialog.findChild<QCheckBox *>();
    QVERIFY(box->isVisible());
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
}

/** Selects the subject @p title, and edits its style by the command. */
void edit(AppFixture &app, const char *title, const Edit &how)
{
    app.select(title);
    const ModalDriver<SpearStyleDialog> driver([&how](SpearStyleDialog &dialog) {
        how(dialog);
        accept(dialog);
    });
    app.trigger("style");
    QVERIFY(driver.isDone());
}

Edit coloured(Qt::GlobalColor color)
{
    return [color](SpearStyleDialog &dialog) { chooseColor(dialog, color); };
}

QColor colorOf(const AppFixture &app, const char *title)
{
    const SpearStyle *const style = app.subject(title)->spearStyle();
    return style ? style->textColor(SpearStyle::ssNormal) : QColor();
}

} // namespace

/** Styles of single subjects, as a user gives and inherits them. */
class TestSubjectStyles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); }
    void shouldInheritTheStyleOfTheParent();
    void shouldFollowTheStyleOfTheParent();
    void shouldInheritWithinASelection();
    void shouldInheritThatOfAllWhereTheParentHasNone();
    void shouldOfferAHeadNothingToInherit();
    void shouldTakeOffAllOwnColoursAndStyles();
};

void TestSubjectStyles::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_subjectstyles"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestSubjectStyles::shouldInheritTheStyleOfTheParent()
{
    AppFixture app;
    edit(app, "People", coloured(Qt::red));
    edit(app, "Too few", mark);
    QCOMPARE(colorOf(app, "Too few"), QColor(Qt::red));
    QVERIFY(app.subject("Too few")->spearStyle()->inheritanceParent());
    QCOMPARE(app.subject("Too few")->spear()->textColor(SpearStyle::ssNormal), QColor(Qt::red));
    // Whatever is chosen beside the mark is the parent's all the same.
    edit(app, "Too few", coloured(Qt::blue));
    QCOMPARE(colorOf(app, "Too few"), QColor(Qt::red));
    app.trigger("undo");
    QVERIFY(!app.subject("Too few")->spearStyle());
    app.trigger("redo");
    QCOMPARE(colorOf(app, "Too few"), QColor(Qt::red));
}

void TestSubjectStyles::shouldFollowTheStyleOfTheParent()
{
    AppFixture app;
    edit(app, "Too few", mark);
    edit(app, "Illness", mark);
    const int steps = app.window.editor()->undoStack()->count();
    edit(app, "People", coloured(Qt::green));
    QCOMPARE(app.window.editor()->undoStack()->count(), steps + 1);
    for (const char *title : {"People", "Too few", "Illness"})
        QCOMPARE(colorOf(app, title), QColor(Qt::green));
    QVERIFY(!app.subject("Too new")->spearStyle());
    app.trigger("undo");
    QVERIFY(!app.subject("People")->spearStyle());
    QVERIFY(colorOf(app, "Illness") != QColor(Qt::green));
    app.trigger("redo");
    app.select("People");
    app.trigger("removeStyle");
    QVERIFY(!app.subject("People")->spearStyle());
    QCOMPARE(colorOf(app, "Illness"), SpearStyle::global()->textColor(SpearStyle::ssNormal));
    // What does not inherit any more keeps what it has.
    edit(app, "Too few", mark);
    edit(app, "People", coloured(Qt::green));
    QVERIFY(colorOf(app, "Too few") != QColor(Qt::green));
}

void TestSubjectStyles::shouldInheritWithinASelection()
{
    AppFixture app;
    edit(app, "People", coloured(Qt::red));
    edit(app, "Material", coloured(Qt::blue));
    app.window.session()->select({app.find("Too few"), app.find("Illness"), app.find("Rust")});
    AppFixture::settle();
    const ModalDriver<SpearStyleDialog> driver([](SpearStyleDialog &dialog) {
        mark(dialog);
        accept(dialog);
    });
    app.trigger("style");
    QVERIFY(driver.isDone());
    QCOMPARE(colorOf(app, "Too few"), QColor(Qt::red));
    QCOMPARE(colorOf(app, "Illness"), QColor(Qt::red));
    QCOMPARE(colorOf(app, "Rust"), QColor(Qt::blue));
}

void TestSubjectStyles::shouldInheritThatOfAllWhereTheParentHasNone()
{
    AppFixture app;
    edit(app, "Rust", coloured(Qt::red));
    edit(app, "Rust", mark);
    QCOMPARE(colorOf(app, "Rust"), SpearStyle::global()->textColor(SpearStyle::ssNormal));
    QVERIFY(app.subject("Rust")->spearStyle()->inheritanceParent());
}

void TestSubjectStyles::shouldOfferAHeadNothingToInherit()
{
    AppFixture app;
    edit(app, "Late", [](SpearStyleDialog &dialog) {
        QVERIFY(!dialog.findChild<QCheckBox *>()->isVisible());
        chooseColor(dialog, Qt::red);
    });
    QCOMPARE(colorOf(app, "Late"), QColor(Qt::red));
}

void TestSubjectStyles::shouldTakeOffAllOwnColoursAndStyles()
{
    AppFixture app;
    edit(app, "Rust", coloured(Qt::red));
    app.select("People");
    app.trigger("colourRed");
    app.trigger("verdictSuspected");
    const int steps = app.window.editor()->undoStack()->count();
    app.trigger("ownColoursOff");
    QVERIFY(!app.subject("Rust")->spearStyle());
    QVERIFY(!SubjectMarks::colour(*app.subject("People")).isValid());
    QCOMPARE(SubjectMarks::verdict(*app.subject("People")), Verdict::Suspected);
    QCOMPARE(app.window.editor()->undoStack()->count(), steps + 1);
    app.trigger("ownColoursOff"); // with nothing left to do
    QCOMPARE(app.window.editor()->undoStack()->count(), steps + 1);
    QCOMPARE(app.window.statusBar()->currentMessage(),
             QStringLiteral("No subject has a colour or a style of its own"));
    app.trigger("undo");
    QCOMPARE(colorOf(app, "Rust"), QColor(Qt::red));
    QVERIFY(SubjectMarks::colour(*app.subject("People")).isValid());
}

FISHBONE_TEST(TestSubjectStyles)
#include "tst_subjectstyles.moc"
