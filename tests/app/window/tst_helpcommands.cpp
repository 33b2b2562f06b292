// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/helpcommands.h>
#include <app/window/keysdialog.h>

#include <fishbone/version.h>

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QTreeWidget>

using TestSupport::ModalDriver;

class TestHelpCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheVersions();
    void tellsAboutTheToolkit();
    void listsTheKeysOfTheCommands();
    void findsACommandByItsNameOrKey();
    void helpIsTheLastMenu();
};

void TestHelpCommands::tellsTheVersions()
{
    AppFixture app;
    QString text;
    const ModalDriver<QMessageBox> driver([&text](QMessageBox &box) {
        text = box.text();
        box.accept();
    });
    app.trigger("about");
    QVERIFY(driver.isDone());
    QVERIFY(text.contains(QLatin1String(fishboneVersion())));
    QVERIFY(text.contains(QLatin1String(qVersion())));
    QVERIFY(text.contains(QLatin1String("MIT")));
}

void TestHelpCommands::tellsAboutTheToolkit()
{
    AppFixture app;
    const ModalDriver<QMessageBox> driver([](QMessageBox &box) { box.accept(); });
    app.trigger("aboutQt");
    QVERIFY(driver.isDone());
}

void TestHelpCommands::listsTheKeysOfTheCommands()
{
    AppFixture app;
    QHash<QString, QString> keys;
    const ModalDriver<KeysDialog> driver([&keys](KeysDialog &dialog) {
        const auto *const list = dialog.findChild<QTreeWidget *>();
        for (int row = 0; row < list->topLevelItemCount(); ++row)
            keys.insert(list->topLevelItem(row)->text(0), list->topLevelItem(row)->text(1));
        dialog.reject();
    });
    QTest::keyClick(&app.window, Qt::Key_F1);
    QVERIFY(driver.isDone());
    QCOMPARE(keys.value(QStringLiteral("Undo")), QStringLiteral("Ctrl+Z"));
    QCOMPARE(keys.value(QStringLiteral("Details")), QStringLiteral("F4"));
    QVERIFY(!keys.contains(QStringLiteral("About Qt"))); // which has no key
}

void TestHelpCommands::findsACommandByItsNameOrKey()
{
    AppFixture app;
    QStringList byName;
    QStringList byKey;
    const ModalDriver<KeysDialog> driver([&](KeysDialog &dialog) {
        const auto *const list = dialog.findChild<QTreeWidget *>();
        auto *const search = dialog.findChild<QLineEdit *>();
        const auto found = [&](const char *text) {
            search->clear();
            QTest::keyClicks(search, QLatin1String(text));
            QStringList names;
            for (int row = 0; row < list->topLevelItemCount(); ++row) {
                if (!list->topLevelItem(row)->isHidden())
                    names.append(list->topLevelItem(row)->text(0));
            }
            return names;
        };
        byName = found("detail");
        byKey = found("ctrl+z");
        dialog.reject();
    });
    app.trigger("keys");
    QVERIFY(driver.isDone());
    QCOMPARE(byName, QStringList(QStringLiteral("Details")));
    QCOMPARE(byKey.value(0), QStringLiteral("Undo"));
}

void TestHelpCommands::helpIsTheLastMenu()
{
    const AppFixture app;
    QCOMPARE(app.window.menuBar()->actions().constLast()->menu()->objectName(),
             QStringLiteral("helpMenu"));
}

FISHBONE_TEST(TestHelpCommands)
#include "tst_helpcommands.moc"
