// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/dialogs/urldialog.h>
#include <tests/dialogs/urldialogparts.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <QLineEdit>
#include <QtTest>

#include <functional>
#include <memory>

using namespace UrlDialogParts;
using TestSupport::ModalDriver;

using Entry = std::function<QUrl(QWidget *)>;
Q_DECLARE_METATYPE(Entry)

namespace {

/** The three ways in, each with its title and history file. */
void addEntryPoints()
{
    QTest::addColumn<Entry>("entry");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("fileName");
    QTest::newRow("link") << Entry([](QWidget *parent) {
        return URLDialog::linkToUrlDialog(QString(), parent);
    }) << "Link to url"
                          << "linkto.urllist";
    QTest::newRow("save") << Entry(URLDialog::saveUrlDialog) << "Save url"
                          << "save.urllist";
    QTest::newRow("open") << Entry(URLDialog::openUrlDialog) << "Open url"
                          << "open.urllist";
}

} // namespace

class TestUrlEntryPoints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldReturnTheEnteredUrl_data();
    void shouldReturnTheEnteredUrl();
    void shouldReturnAnEmptyUrlWhenCancelled_data();
    void shouldReturnAnEmptyUrlWhenCancelled();
    void shouldReturnAnEmptyUrlWhenItsParentDies();
    void shouldStartLinkingOnTheGivenUrl_data();
    void shouldStartLinkingOnTheGivenUrl();

private:
    std::unique_ptr<WorkingFolder> m_folder;
};

void TestUrlEntryPoints::init()
{
    m_folder = std::make_unique<WorkingFolder>();
    QVERIFY(m_folder->isValid());
}

void TestUrlEntryPoints::cleanup()
{
    QVERIFY(!QGuiApplication::overrideCursor());
    m_folder.reset();
}

void TestUrlEntryPoints::shouldReturnTheEnteredUrl_data()
{
    addEntryPoints();
}

void TestUrlEntryPoints::shouldReturnTheEnteredUrl()
{
    QFETCH(Entry, entry);
    QFETCH(QString, fileName);
    QVERIFY(writeContent(fileName, "http://a/\n"));
    QWidget parent;
    QString title;
    QString offered;
    const QObject *owner = nullptr;
    const ModalDriver<URLDialog> user([&](URLDialog &dialog) {
        title = dialog.windowTitle();
        offered = entries(dialog);
        owner = dialog.parent();
        combo(dialog)->clearEditText();
        QTest::keyClicks(combo(dialog), QStringLiteral("http://new/x"));
        QTest::keyClick(combo(dialog), Qt::Key_Return);
    });
    QCOMPARE(entry(&parent), QUrl(QStringLiteral("http://new/x")));
    QVERIFY(user.isDone());
    QTEST(title, "title");
    QCOMPARE(offered, QStringLiteral("http://a/"));
    QCOMPARE(owner, &parent);
    QVERIFY(parent.children().isEmpty());
    QCOMPARE(contentOf(fileName), QByteArray("http://a/\nhttp://new/x\n"));
    QCOMPARE(m_folder->entries(), QStringList{fileName});
}

void TestUrlEntryPoints::shouldReturnAnEmptyUrlWhenCancelled_data()
{
    addEntryPoints();
}

void TestUrlEntryPoints::shouldReturnAnEmptyUrlWhenCancelled()
{
    QFETCH(Entry, entry);
    QFETCH(QString, fileName);
    QVERIFY(writeContent(fileName, "http://a/\n"));
    const ModalDriver<URLDialog> user([&](URLDialog &dialog) {
        dialog.setUrl(QStringLiteral("http://new/"));
        click(dialog, "Cancel");
    });
    const QUrl url = entry(nullptr);
    QVERIFY(user.isDone());
    QVERIFY(url.isEmpty());
    QVERIFY(!url.isValid());
    QCOMPARE(contentOf(fileName), QByteArray("http://a/\n"));
}

void TestUrlEntryPoints::shouldReturnAnEmptyUrlWhenItsParentDies()
{
    auto parent = std::make_unique<QWidget>();
    const ModalDriver<URLDialog> user([&](URLDialog &) { parent.reset(); });
    QVERIFY(URLDialog::linkToUrlDialog(QStringLiteral("http://a/"), parent.get()).isEmpty());
    QVERIFY(user.isDone());
    QVERIFY(!parent);
}

void TestUrlEntryPoints::shouldStartLinkingOnTheGivenUrl_data()
{
    QTest::addColumn<QString>("url");
    QTest::newRow("a url") << "http://linked/";
    QTest::newRow("none") << "";
}

void TestUrlEntryPoints::shouldStartLinkingOnTheGivenUrl()
{
    QFETCH(QString, url);
    QVERIFY(writeContent(QStringLiteral("linkto.urllist"), "http://a/\n"));
    QString shown;
    QString selected;
    const ModalDriver<URLDialog> user([&](URLDialog &dialog) {
        shown = combo(dialog)->currentText();
        selected = combo(dialog)->lineEdit()->selectedText();
        dialog.setUrl(QStringLiteral("http://other/"));
        dialog.accept();
    });
    QCOMPARE(URLDialog::linkToUrlDialog(url), QUrl(QStringLiteral("http://other/")));
    QVERIFY(user.isDone());
    QCOMPARE(shown, url);
    QCOMPARE(selected, url);
}

FISHBONE_TEST(TestUrlEntryPoints)
#include "tst_urlentrypoints.moc"
