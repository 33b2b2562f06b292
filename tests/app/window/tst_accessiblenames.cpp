// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/makedialog.h>
#include <tests/app/picturesubject.h>

#include <tests/program/testprogram.h>
#include <tests/support/dialogchecks.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/dialogs/urldialog.h>
#include <fishbone/style/penselect.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QLineEdit>
#include <QPen>

#include <functional>

/** Whoever does not see the window knows what each control is for. */
class TestAccessibleNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldNoticeAControlWithoutAName();
    void shouldNameTheControlsOfTheWindow();
    void shouldNameTheControlsOfDialogs_data();
    void shouldNameTheControlsOfDialogs();
};

void TestAccessibleNames::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_accessiblenames"));
}

void TestAccessibleNames::shouldNoticeAControlWithoutAName()
{
    QDialog dialog;
    QLineEdit nameless(&dialog);
    nameless.setObjectName(QStringLiteral("nobody"));
    dialog.show();
    QCOMPARE(TestSupport::namelessControls(dialog),
             QStringList(QStringLiteral("QLineEdit nobody")));
}

void TestAccessibleNames::shouldNameTheControlsOfTheWindow()
{
    AppFixture app;
    app.select("Machines");
    QCOMPARE(TestSupport::namelessControls(app.window).join(QLatin1String(", ")), QString());
}

void TestAccessibleNames::shouldNameTheControlsOfDialogs_data()
{
    QTest::addColumn<MakeDialog>("make");

    QTest::newRow("URL") << MakeDialog([] { return std::make_unique<URLDialog>(); });
    QTest::newRow("find") << MakeDialog([] { return std::make_unique<ReplaceFindDialog>(); });
    QTest::newRow("style") << MakeDialog(
        [] { return std::make_unique<SpearStyleDialog>(*SpearStyle::global()); });
    QTest::newRow("pen") << MakeDialog([] { return std::make_unique<PenSelect>(QPen()); });
    QTest::newRow("export") << MakeDialog(
        [] { return std::make_unique<ExportDialog>(QStringLiteral("a.png"), pictureSubject()); });
}

void TestAccessibleNames::shouldNameTheControlsOfDialogs()
{
    QFETCH(MakeDialog, make);
    const std::unique_ptr<QDialog> dialog = make();
    dialog->show();
    QCOMPARE(TestSupport::namelessControls(*dialog).join(QLatin1String(", ")), QString());
}

FISHBONE_TEST(TestAccessibleNames)
#include "tst_accessiblenames.moc"
