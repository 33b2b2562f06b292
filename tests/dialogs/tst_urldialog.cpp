// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/dialogs/urldialog.h>
#include <tests/dialogs/urldialogparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/messagebox.h>

#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace UrlDialogParts;
using TestSupport::buttonWithText;
using TestSupport::keepMessage;
using TestSupport::Message;
using TestSupport::ModalDriver;

class TestURLDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldHaveDefaultsForItsArguments();
    void shouldBeModal();
    void shouldShowItsTitleAndUseItsFile();
    void shouldStartOnTheFirstUrlSelected();
    void shouldPutAUrlIntoTheEditField();
    void shouldParseTheUrlTolerantly_data();
    void shouldParseTheUrlTolerantly();
    void shouldAppendANewUrl();
    void shouldNotAppendAKnownUrl_data();
    void shouldNotAppendAKnownUrl();
    void shouldTellUpperFromLowerCase();
    void shouldTrimTheUrlOnAccept();
    void shouldStayOpenWithoutAUrl_data();
    void shouldStayOpenWithoutAUrl();
    void shouldOpenOnceOnReturn();
    void shouldLetReturnActOnTheDefaultButtonOnly_data();
    void shouldLetReturnActOnTheDefaultButtonOnly();
    void shouldCompleteCaseSensitively();
    void shouldPickAUrlFromTheList();
    void shouldNameEveryControlInTabOrder();
    void shouldTranslateEveryText();

private:
    std::unique_ptr<WorkingFolder> m_folder;
};

void TestURLDialog::init()
{
    m_folder = std::make_unique<WorkingFolder>();
    QVERIFY(m_folder->isValid());
}

void TestURLDialog::cleanup()
{
    QVERIFY(!QGuiApplication::overrideCursor());
    m_folder.reset();
}

void TestURLDialog::shouldHaveDefaultsForItsArguments()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://a/\n"));
    const URLDialog dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Input Url"));
    QCOMPARE(entries(dialog), QStringLiteral("http://a/"));
    QCOMPARE(dialog.windowFlags(), QDialog().windowFlags());
    const QStringList texts = TestSupport::writtenTexts(dialog);
    for (const char *const text : {"Url:", "Clean", "Open", "Cancel"})
        QVERIFY2(texts.contains(QLatin1String(text)), text);
}

void TestURLDialog::shouldBeModal()
{
    QVERIFY(URLDialog().isModal());
}

void TestURLDialog::shouldShowItsTitleAndUseItsFile()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://other/\n"));
    QVERIFY(writeContent(QStringLiteral("mine.txt"), "http://mine/\n"));
    const URLDialog dialog(QStringLiteral("Pick"), m_folder->filePath(QStringLiteral("mine.txt")));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Pick"));
    QCOMPARE(entries(dialog), QStringLiteral("http://mine/"));
}

void TestURLDialog::shouldStartOnTheFirstUrlSelected()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://b/\nhttp://a/\n"));
    const URLDialog dialog;
    QCOMPARE(combo(dialog)->lineEdit()->text(), QStringLiteral("http://b/"));
    QCOMPARE(combo(dialog)->lineEdit()->selectedText(), QStringLiteral("http://b/"));
}

void TestURLDialog::shouldPutAUrlIntoTheEditField()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://a/\n"));
    URLDialog dialog;
    dialog.setUrl(QStringLiteral("http://new/"));
    QCOMPARE(combo(dialog)->currentText(), QStringLiteral("http://new/"));
    QCOMPARE(dialog.url(), QUrl(QStringLiteral("http://new/")));
    QCOMPARE(entries(dialog), QStringLiteral("http://a/"));
    dialog.setUrl(QString());
    QCOMPARE(combo(dialog)->currentText(), QString());
}

void TestURLDialog::shouldParseTheUrlTolerantly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("encoded");
    QTest::newRow("plain") << "http://a/b?c=d#e" << QByteArray("http://a/b?c=d#e");
    QTest::newRow("blank") << "http://a/b c" << QByteArray("http://a/b%20c");
    QTest::newRow("stray percent sign") << "http://a/100%" << QByteArray("http://a/100%25");
    QTest::newRow("relative") << "folder/file.json" << QByteArray("folder/file.json");
    QTest::newRow("empty") << "" << QByteArray("");
}

void TestURLDialog::shouldParseTheUrlTolerantly()
{
    QFETCH(QString, text);
    URLDialog dialog;
    dialog.setUrl(text);
    QTEST(dialog.url().toEncoded(), "encoded");
}

void TestURLDialog::shouldAppendANewUrl()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://b/\nhttp://a/\n"));
    URLDialog dialog;
    dialog.show();
    QTest::keyClicks(combo(dialog), QStringLiteral("http://new/"));
    click(dialog, "Open");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.url(), QUrl(QStringLiteral("http://new/")));
    QCOMPARE(entries(dialog), QStringLiteral("http://b/|http://a/|http://new/"));
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")),
             QByteArray("http://b/\nhttp://a/\nhttp://new/\n"));
}

void TestURLDialog::shouldNotAppendAKnownUrl_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("the first") << "http://b/";
    QTest::newRow("the last") << "http://a/";
    QTest::newRow("white space around") << "  http://a/ ";
}

void TestURLDialog::shouldNotAppendAKnownUrl()
{
    QFETCH(QString, typed);
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://b/\nhttp://a/\n"));
    URLDialog dialog;
    dialog.setUrl(typed);
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.url(), QUrl(typed.trimmed()));
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray("http://b/\nhttp://a/\n"));
}

void TestURLDialog::shouldTellUpperFromLowerCase()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://host/Path\n"));
    URLDialog dialog;
    dialog.show();
    QTest::keyClicks(combo(dialog), QStringLiteral("http://host/path"));
    QTest::keyClick(combo(dialog), Qt::Key_Return);
    QCOMPARE(dialog.url(), QUrl(QStringLiteral("http://host/path")));
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")),
             QByteArray("http://host/Path\nhttp://host/path\n"));
}

void TestURLDialog::shouldTrimTheUrlOnAccept()
{
    URLDialog dialog;
    dialog.setUrl(QStringLiteral(" \thttp://a/b  "));
    dialog.accept();
    QCOMPARE(combo(dialog)->currentText(), QStringLiteral("http://a/b"));
    QCOMPARE(dialog.url().toEncoded(), QByteArray("http://a/b"));
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray("http://a/b\n"));
}

void TestURLDialog::shouldStayOpenWithoutAUrl_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("nothing") << "";
    QTest::newRow("white space") << "  \t ";
}

void TestURLDialog::shouldStayOpenWithoutAUrl()
{
    QFETCH(QString, typed);
    URLDialog dialog;
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.show();
    dialog.setUrl(typed);
    click(dialog, "Open");
    QTest::keyClick(combo(dialog), Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QCOMPARE(finished.size(), 0);
    QCOMPARE(combo(dialog)->count(), 0);
    QVERIFY(!QFile::exists(QStringLiteral("moraine2.urllist")));
}

void TestURLDialog::shouldOpenOnceOnReturn()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://a/\n"));
    URLDialog dialog;
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    dialog.show();
    QTest::keyClicks(combo(dialog), QStringLiteral("http://new/"));
    QCOMPARE(entries(dialog), QStringLiteral("http://a/"));
    QTest::keyClick(combo(dialog), Qt::Key_Return);
    QCOMPARE(accepted.size(), 1);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray("http://a/\nhttp://new/\n"));
}

void TestURLDialog::shouldLetReturnActOnTheDefaultButtonOnly_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("Clean") << "Clean";
    QTest::newRow("Cancel") << "Cancel";
}

void TestURLDialog::shouldLetReturnActOnTheDefaultButtonOnly()
{
    QFETCH(QString, button);
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://a/\n"));
    URLDialog dialog;
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    QVERIFY(buttonWithText<QPushButton>(dialog, QStringLiteral("Open"))->isDefault());
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *const widget = buttonWithText<QPushButton>(dialog, button);
    widget->setFocus();
    QVERIFY(!widget->isDefault());
    QTest::keyClick(widget, Qt::Key_Return);
    QCOMPARE(accepted.size(), 1);
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray("http://a/\n"));
}

void TestURLDialog::shouldCompleteCaseSensitively()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://host/Path\n"));
    URLDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClicks(combo(dialog), QStringLiteral("http://host/P"));
    QCOMPARE(combo(dialog)->currentText(), QStringLiteral("http://host/Path"));
    combo(dialog)->clearEditText();
    QTest::keyClicks(combo(dialog), QStringLiteral("http://host/p"));
    QCOMPARE(combo(dialog)->currentText(), QStringLiteral("http://host/p"));
}

void TestURLDialog::shouldPickAUrlFromTheList()
{
    QVERIFY(writeContent(QStringLiteral("moraine2.urllist"), "http://b/\nhttp://a/\n"));
    URLDialog dialog;
    dialog.show();
    QTest::keyClick(combo(dialog), Qt::Key_Down);
    click(dialog, "Open");
    QCOMPARE(dialog.url(), QUrl(QStringLiteral("http://a/")));
    QCOMPARE(contentOf(QStringLiteral("moraine2.urllist")), QByteArray("http://b/\nhttp://a/\n"));
}

void TestURLDialog::shouldNameEveryControlInTabOrder()
{
    URLDialog dialog;
    QCOMPARE(TestSupport::tabOrder(dialog).join(QLatin1Char('|')),
             QStringLiteral("Url:|Clean|Open|Cancel"));
    QCOMPARE(TestSupport::strayLabels(dialog), QStringList());
}

void TestURLDialog::shouldTranslateEveryText()
{
    const TestSupport::BracketTranslator translator("URLDialog");
    const URLDialog dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("[Input Url]"));
    const QStringList texts = TestSupport::writtenTexts(dialog);
    for (const QString &text : texts)
        QVERIFY2(text.startsWith(QLatin1Char('[')), qPrintable(text));

    QString title;
    const ModalDriver<URLDialog> user([&](URLDialog &linkDialog) {
        title = linkDialog.windowTitle();
        linkDialog.reject();
    });
    URLDialog::linkToUrlDialog(QString());
    QVERIFY(user.isDone());
    QCOMPARE(title, QStringLiteral("[Link to url]"));

    URLDialog unwritable(QString(), QStringLiteral("missing/a"));
    Message message;
    const ModalDriver<QMessageBox> reader(keepMessage(message));
    unwritable.saveUrl();
    QVERIFY(reader.isDone());
    QCOMPARE(message.title, QStringLiteral("[Error]"));
    QVERIFY(message.text.startsWith(QStringLiteral("[Failed to open missing/a\n")));
}

FISHBONE_TEST(TestURLDialog)
#include "tst_urldialog.moc"
