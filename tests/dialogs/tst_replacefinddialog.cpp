// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/dialogs/replacefinddialog.h>
#include <tests/dialogs/replacefindparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/messagebox.h>

#include <QCheckBox>
#include <QtTest>

using namespace ReplaceFindParts;
using TestSupport::keepMessage;
using TestSupport::Message;
using TestSupport::ModalDriver;
using TestSupport::shownText;

class TestReplaceFindDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLayOutItsControlsInAGrid();
    void shouldNameItsControlsForHosts();
    void shouldShowWhatAHostHasFound();
    void shouldDeclareItsSlotsInOrder();
    void shouldDoNothingWithoutAModel();
    void shouldWarnWhenNothingIsFound();
    void shouldShowMarkupInTheWarningAsItIs();
    void shouldSurviveItsOwnEndWhileItWarns();
    void shouldSearchOnceOnReturn();
    void shouldSearchOnceOnReturnAfterAClickOnAButton();
    void shouldLetReturnPressAFocusedButton();
    void shouldEnableReplacingForTitlesAndShowidsOnly_data();
    void shouldEnableReplacingForTitlesAndShowidsOnly();
    void shouldTakeAnyColumnFromAHost();
    void shouldNotChangeTheModelOnReplace();
    void shouldReadTheLastMatchOnReplace();
    void shouldReadNothingWhenThereIsNothingToReplace();
    void shouldNotChangeTheModelOnReplaceAll();
    void shouldFilterTheEventsOfItsButtonsOnly();
    void shouldNotShowTheSearchThatSucceeds();
    void shouldCloseOnEscape();
    void shouldNameEveryControlInTabOrder();
    void shouldTranslateEveryText();
};

void TestReplaceFindDialog::shouldLayOutItsControlsInAGrid()
{
    const ReplaceFindDialog dialog;
    const auto *const layout = qobject_cast<QGridLayout *>(dialog.layout());
    QVERIFY(layout);
    const auto widget = [&](int row, int column) -> QWidget * {
        QLayoutItem *const item = layout->itemAtPosition(row, column);
        return item ? item->widget() : nullptr;
    };
    const auto text = [&](int row, int column) {
        return widget(row, column)->property("text").toString();
    };
    QCOMPARE(text(0, 0), QStringLiteral("Find what:"));
    QVERIFY(qobject_cast<QLineEdit *>(widget(0, 1)));
    QCOMPARE(text(0, 2), QStringLiteral("Find"));
    QCOMPARE(text(1, 0), QStringLiteral("Replace with:"));
    QVERIFY(qobject_cast<QLineEdit *>(widget(1, 1)));
    QCOMPARE(text(1, 2), QStringLiteral("Replace"));
    QCOMPARE(text(2, 0), QStringLiteral("Case sensitive"));
    QVERIFY(!qobject_cast<QCheckBox *>(widget(2, 0))->isChecked());
    QCOMPARE(text(2, 2), QStringLiteral("Replace All"));

    const auto *const columns = qobject_cast<QComboBox *>(widget(2, 1));
    QVERIFY(columns);
    QStringList items;
    for (int i = 0; i < columns->count(); ++i)
        items.append(columns->itemText(i));
    QCOMPARE(items.join(QLatin1Char(' ')), QStringLiteral("title uuid showid pid"));
    QCOMPARE(columns->currentIndex(), 0);

    QVERIFY(findEdit(dialog)->text().isEmpty());
    QVERIFY(replaceEdit(dialog)->isEnabled());
    QVERIFY(button(dialog, "Replace")->isEnabled());
    QVERIFY(button(dialog, "Replace All")->isEnabled());
    QVERIFY(dialog.matches().isEmpty());
}

void TestReplaceFindDialog::shouldNameItsControlsForHosts()
{
    const ReplaceFindDialog dialog;
    const auto *const layout = qobject_cast<QGridLayout *>(dialog.layout());
    const auto at = [layout](int row, int column) {
        return layout->itemAtPosition(row, column)->widget();
    };
    QCOMPARE(at(0, 1), static_cast<QWidget *>(dialog.searchField()));
    QCOMPARE(at(0, 2), static_cast<QWidget *>(dialog.findButton()));
    QCOMPARE(at(1, 1), static_cast<QWidget *>(dialog.replacementField()));
    QCOMPARE(at(1, 2), static_cast<QWidget *>(dialog.replaceButton()));
    QCOMPARE(at(2, 0), static_cast<QWidget *>(dialog.caseBox()));
    QCOMPARE(at(2, 1), static_cast<QWidget *>(dialog.columnBox()));
    QCOMPARE(at(2, 2), static_cast<QWidget *>(dialog.replaceAllButton()));
}

void TestReplaceFindDialog::shouldShowWhatAHostHasFound()
{
    ReplaceFindDialog dialog;
    const QPointer<QWidget> first = new QWidget;
    dialog.setResultsArea(first);
    dialog.resize(600, 500);
    dialog.show();
    QVERIFY(first->isVisible());
    QVERIFY(first->y() > dialog.replaceAllButton()->y());
    QVERIFY(first->height() > 300); // all the room that there is
    QVERIFY(first->width() > 500);
    dialog.setResultsArea(first);
    QVERIFY(first);

    const QPointer<QWidget> second = new QWidget;
    dialog.setResultsArea(second);
    QVERIFY(!first);
    QCOMPARE(second->parentWidget(), &dialog);
    dialog.setResultsArea(nullptr);
    QVERIFY(!second);
    auto third = std::make_unique<QWidget>();
    dialog.setResultsArea(third.get());
    third.reset(); // by somebody else
    dialog.setResultsArea(nullptr);
}

void TestReplaceFindDialog::shouldDeclareItsSlotsInOrder()
{
    const QMetaObject &meta = ReplaceFindDialog::staticMetaObject;
    QStringList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        slotNames.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(slotNames.join(QLatin1Char(' ')),
             QStringLiteral("find() replace() replaceAll() enableCtrl(int)"));
}

void TestReplaceFindDialog::shouldDoNothingWithoutAModel()
{
    ReplaceFindDialog dialog;
    dialog.show();
    replaceEdit(dialog)->setText(QStringLiteral("x"));
    // A message box would be there while one of these runs, and the time limit would close it.
    bool warned = false;
    const ModalDriver<QMessageBox> user([&](QMessageBox &box) {
        warned = true;
        box.accept();
    });
    search(dialog, QStringLiteral("Man"));
    QTest::keyClick(findEdit(dialog), Qt::Key_Return);
    click(dialog, "Replace");
    QTest::keyClick(replaceEdit(dialog), Qt::Key_Return);
    click(dialog, "Replace All");
    dialog.setModel(nullptr);
    dialog.find();
    QVERIFY(!warned);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(dialog.matches().isEmpty());
}

void TestReplaceFindDialog::shouldWarnWhenNothingIsFound()
{
    QStandardItemModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    search(dialog, QStringLiteral("Method %1"));
    QVERIFY(user.isDone());
    QCOMPARE(message.title, QStringLiteral("Finder"));
    QCOMPARE(message.text, QStringLiteral("Not found key word Method %1."));
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(dialog.matches().isEmpty());
}

void TestReplaceFindDialog::shouldShowMarkupInTheWarningAsItIs()
{
    QStandardItemModel model;
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    search(dialog, QStringLiteral("<b>bold</b> & so on"));
    QVERIFY(user.isDone());
    QCOMPARE(shownText(message), QStringLiteral("Not found key word <b>bold</b> & so on."));
}

void TestReplaceFindDialog::shouldSurviveItsOwnEndWhileItWarns()
{
    QStandardItemModel model;
    auto dialog = std::make_unique<ReplaceFindDialog>();
    dialog->setModel(&model);
    const ModalDriver<QMessageBox> user([&dialog](QMessageBox &) { dialog.reset(); });
    dialog->find();
    QVERIFY(user.isDone());
    QVERIFY(!dialog);
}

void TestReplaceFindDialog::shouldSearchOnceOnReturn()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClicks(findEdit(dialog), QStringLiteral("Method"));
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    QTest::keyClick(findEdit(dialog), Qt::Key_Return);
    QVERIFY(user.isDone());
    QCOMPARE(model.m_searches, 1);
    QVERIFY(dialog.isVisible());

    QTest::keyClick(replaceEdit(dialog), Qt::Key_Return);
    QTest::keyClick(columnCombo(dialog), Qt::Key_Return);
    QTest::keyClick(dialog.findChild<QCheckBox *>(), Qt::Key_Return);
    QCOMPARE(model.m_searches, 1);
    QVERIFY(dialog.isVisible());
}

void TestReplaceFindDialog::shouldSearchOnceOnReturnAfterAClickOnAButton()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    search(dialog, QStringLiteral("man"));
    button(dialog, "Find")->setFocus();
    findEdit(dialog)->setText(QStringLiteral("Method"));
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    QTest::keyClick(findEdit(dialog), Qt::Key_Return);
    QVERIFY(user.isDone());
    QCOMPARE(model.m_searches, 2);
}

void TestReplaceFindDialog::shouldLetReturnPressAFocusedButton()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    findEdit(dialog)->setText(QStringLiteral("man"));
    button(dialog, "Find")->setFocus();
    QTest::keyClick(button(dialog, "Find"), Qt::Key_Return);
    QCOMPARE(model.m_searches, 1);
    findEdit(dialog)->setText(QStringLiteral("Mach"));
    QTest::keyClick(button(dialog, "Find"), Qt::Key_Enter);
    QCOMPARE(model.m_searches, 2);
    findEdit(dialog)->setText(QStringLiteral("Tr"));
    QTest::keyClick(button(dialog, "Find"), Qt::Key_Space);
    QCOMPARE(model.m_searches, 3);
}

void TestReplaceFindDialog::shouldEnableReplacingForTitlesAndShowidsOnly_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("uuid") << 0 << 1 << false;
    QTest::newRow("showid") << 1 << 2 << true;
    QTest::newRow("pid") << 2 << 3 << false;
    QTest::newRow("back to title") << 3 << 0 << true;
}

void TestReplaceFindDialog::shouldEnableReplacingForTitlesAndShowidsOnly()
{
    QFETCH(int, from);
    QFETCH(int, column);
    QFETCH(bool, enabled);
    const ReplaceFindDialog dialog;
    columnCombo(dialog)->setCurrentIndex(from);
    columnCombo(dialog)->setCurrentIndex(column);
    QCOMPARE(replaceEdit(dialog)->isEnabled(), enabled);
    QCOMPARE(button(dialog, "Replace")->isEnabled(), enabled);
    QCOMPARE(button(dialog, "Replace All")->isEnabled(), enabled);
    QVERIFY(findEdit(dialog)->isEnabled());
    QVERIFY(button(dialog, "Find")->isEnabled());
}

void TestReplaceFindDialog::shouldTakeAnyColumnFromAHost()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    dialog.enableCtrl(7);
    QVERIFY(!replaceEdit(dialog)->isEnabled());
    QVERIFY(!button(dialog, "Replace")->isEnabled());
    QVERIFY(!button(dialog, "Replace All")->isEnabled());
    dialog.enableCtrl(-1);
    QVERIFY(!replaceEdit(dialog)->isEnabled());
    // The search goes by the combo box and compares as the last column told it to.
    search(dialog, QStringLiteral("ma"));
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Man|man power|Machine|Manual"));
    dialog.enableCtrl(2);
    QVERIFY(replaceEdit(dialog)->isEnabled());
}

void TestReplaceFindDialog::shouldNotChangeTheModelOnReplace()
{
    QStandardItemModel model;
    fill(model);
    const QString before = content(model);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    dialog.show();
    search(dialog, QStringLiteral("man"));
    replaceEdit(dialog)->setText(QStringLiteral("woman"));
    click(dialog, "Replace");
    QTest::keyClick(replaceEdit(dialog), Qt::Key_Return);
    dialog.findChild<QCheckBox *>()->setChecked(true);
    click(dialog, "Replace");
    QCOMPARE(content(model), before);
    QCOMPARE(changed.size(), 0);
    QCOMPARE(titles(dialog.matches()), QStringLiteral("Man|man power|Manual"));
    QVERIFY(!QApplication::activeModalWidget());
}

void TestReplaceFindDialog::shouldReadTheLastMatchOnReplace()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("man"));
    replaceEdit(dialog)->setText(QStringLiteral("woman"));
    model.m_readTexts.clear();
    click(dialog, "Replace");
    QCOMPARE(model.m_readTexts, QStringList{QStringLiteral("Manual")});
}

void TestReplaceFindDialog::shouldReadNothingWhenThereIsNothingToReplace()
{
    RecordingModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    replaceEdit(dialog)->setText(QStringLiteral("woman"));
    model.m_readTexts.clear();
    click(dialog, "Replace");
    QVERIFY2(model.m_readTexts.isEmpty(), "without matches");

    search(dialog, QStringLiteral("man"));
    replaceEdit(dialog)->clear();
    model.m_readTexts.clear();
    click(dialog, "Replace");
    QVERIFY2(model.m_readTexts.isEmpty(), "without a replacement");
}

void TestReplaceFindDialog::shouldNotChangeTheModelOnReplaceAll()
{
    QStandardItemModel model;
    fill(model);
    const QString before = content(model);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    search(dialog, QStringLiteral("man"));
    replaceEdit(dialog)->setText(QStringLiteral("woman"));
    click(dialog, "Replace All");
    QCOMPARE(content(model), before);
    QCOMPARE(changed.size(), 0);
    QCOMPARE(dialog.matches().size(), 3);
}

void TestReplaceFindDialog::shouldFilterTheEventsOfItsButtonsOnly()
{
    ReplaceFindDialog dialog;
    QLineEdit edit;
    edit.installEventFilter(&dialog);
    QSignalSpy pressed(&edit, &QLineEdit::returnPressed);
    QTest::keyClicks(&edit, QStringLiteral("a"));
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(edit.text(), QStringLiteral("a"));
    QCOMPARE(pressed.size(), 1);
}

void TestReplaceFindDialog::shouldNotShowTheSearchThatSucceeds()
{
    QStandardItemModel model;
    fill(model);
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    dialog.show();
    const QList<QWidget *> before = QApplication::topLevelWidgets();
    bool warned = false;
    const ModalDriver<QMessageBox> user([&](QMessageBox &box) {
        warned = true;
        box.accept();
    });
    search(dialog, QStringLiteral("man"));
    QVERIFY(!warned);
    QCOMPARE(QApplication::topLevelWidgets().size(), before.size());
    QVERIFY(dialog.isVisible());
}

void TestReplaceFindDialog::shouldCloseOnEscape()
{
    ReplaceFindDialog dialog;
    dialog.show();
    QTest::keyClick(findEdit(dialog), Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void TestReplaceFindDialog::shouldNameEveryControlInTabOrder()
{
    ReplaceFindDialog dialog;
    QCOMPARE(TestSupport::tabOrder(dialog).join(QLatin1Char('|')),
             QStringLiteral("Find what:|Replace with:|Case sensitive|Column|Find|Replace|"
                            "Replace All"));
    QCOMPARE(TestSupport::strayLabels(dialog), QStringList());
}

void TestReplaceFindDialog::shouldTranslateEveryText()
{
    const TestSupport::BracketTranslator translator("ReplaceFindDialog");
    QStandardItemModel model;
    ReplaceFindDialog dialog;
    dialog.setModel(&model);
    const QStringList texts = TestSupport::writtenTexts(dialog);
    QVERIFY(texts.contains(QStringLiteral("[showid]")));
    for (const QString &text : texts)
        QVERIFY2(text.startsWith(QLatin1Char('[')), qPrintable(text));

    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));
    findEdit(dialog)->setText(QStringLiteral("x"));
    dialog.find();
    QVERIFY(user.isDone());
    QCOMPARE(message.title, QStringLiteral("[Finder]"));
    QCOMPARE(message.text, QStringLiteral("[Not found key word x.]"));
}

FISHBONE_TEST(TestReplaceFindDialog)
#include "tst_replacefinddialog.moc"
