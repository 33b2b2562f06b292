// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/support/modaldriver.h>

#include <app/autosave.h>

#include <QMessageBox>

using DialogAnswers::press;
using TestSupport::ModalDriver;

namespace {

QStringList autosaves()
{
    return QDir(Autosave::folder()).entryList(QDir::Files);
}

} // namespace

class TestAutosave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldAutosaveAwayFromTheFile();
    void shouldRemoveTheAutosave();
    void shouldOfferWhatACrashHasLeft_data();
    void shouldOfferWhatACrashHasLeft();
    void shouldNotOfferAnAutosaveThatIsTheSame();
};

void TestAutosave::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_autosave"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestAutosave::init()
{
    QDir(Autosave::folder()).removeRecursively();
}

void TestAutosave::shouldAutosaveAwayFromTheFile()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    app.window.editor()->saveTmpFile();
    QCOMPARE(AppFixture::contentOf(app.path()), AppFixture::diagram());
    QCOMPARE(autosaves().size(), 1);
    QVERIFY(!AppFixture::contentOf(app.document()->autoSaveFile()).contains("Machines"));

    app.trigger("new");
    app.window.editor()->saveTmpFile();
    QCOMPARE(autosaves().size(), 2);
}

void TestAutosave::shouldRemoveTheAutosave()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("delete");
    app.window.editor()->saveTmpFile();
    QCOMPARE(autosaves().size(), 1);
    app.trigger("save");
    QCOMPARE(autosaves(), QStringList());
    app.window.editor()->saveTmpFile();
    app.trigger("close");
    QCOMPARE(autosaves(), QStringList());

    app.trigger("new");
    app.window.editor()->saveTmpFile();
    QCOMPARE(autosaves().size(), 1);
    QVERIFY(app.window.close());
    QCOMPARE(autosaves(), QStringList());
}

void TestAutosave::shouldOfferWhatACrashHasLeft_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("shown");

    QTest::newRow("yes") << int(QMessageBox::Yes) << QStringLiteral("Rescued");
    QTest::newRow("no") << int(QMessageBox::No)
                        << QStringLiteral("Late[People[Too few[Illness],Too new],Machines,"
                                          "Material[Rust]]");
}

void TestAutosave::shouldOfferWhatACrashHasLeft()
{
    QFETCH(int, answer);
    QFETCH(QString, shown);
    AppFixture app;
    const QString path = app.path();
    const QString left = app.document()->autoSaveFile();
    app.trigger("close");
    AppFixture::writeFile(left, R"({"title": "Rescued"})");

    const ModalDriver<QMessageBox> driver(press(QMessageBox::StandardButton(answer)));
    app.window.open({path});
    AppFixture::settle();
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), shown);
    QVERIFY(app.window.windowTitle().startsWith(QLatin1String("late.json")));
    QCOMPARE(app.document()->modified(), answer == QMessageBox::Yes);
    QCOMPARE(AppFixture::contentOf(path), AppFixture::diagram());
}

void TestAutosave::shouldNotOfferAnAutosaveThatIsTheSame()
{
    AppFixture app;
    app.window.editor()->saveTmpFile();
    const QByteArray left = AppFixture::contentOf(app.document()->autoSaveFile());
    const QString file = app.document()->autoSaveFile();
    app.trigger("close");
    AppFixture::writeFile(file, left);
    bool asked = false;
    const ModalDriver<QMessageBox> driver([&asked](QMessageBox &box) {
        asked = true;
        box.reject();
    });
    app.window.open({app.path()});
    AppFixture::settle();
    QVERIFY(!asked);
    QVERIFY(!app.document()->modified());
}

QTEST_MAIN(TestAutosave)
#include "tst_autosave.moc"
