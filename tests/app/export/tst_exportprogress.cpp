// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/common/workprogress.h>
#include <app/diagram/diagramview.h>
#include <app/export/exportdialog.h>
#include <app/recovery/recoverystore.h>

#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QStatusBar>

using TestSupport::ModalDriver;

namespace {

/** A diagram of @p count main bones with 40 causes each. */
QByteArray largeDiagram(int count = 30)
{
    QByteArray bones;
    for (int i = 0; i < count; ++i) {
        QByteArray causes;
        for (int j = 0; j < 40; ++j)
            causes += (j > 0 ? "," : "") + QByteArray(R"({"title": "Cause", "status": 5})");
        bones +=
            (i > 0 ? "," : "") + QByteArray(R"({"title": "Bone", "children": [)") + causes + "]}";
    }
    return R"({"title": "Large", "uuid": "{h}", "pid": "-1", "children": [)" + bones + "]}";
}

} // namespace

/** What a user sees of an export that takes its time. */
class TestExportProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldKeepTheOldFileWhenCancelled_data();
    void shouldKeepTheOldFileWhenCancelled();
    void shouldNotLetTheUserCloseTheWindowMeanwhile();
    void shouldShowNothingForAQuickExport();
    void shouldShowNothingBeforeASecondIsOver();
    void shouldShowHowFarItIs();
    void shouldEndOnEscape();
    void shouldCancelASlide();
    void shouldCancelTheExpansionOfAll();

private:
    /** Exports all levels of @p app into a large PNG, while @p watch sees the progress. */
    bool exportSlowly(AppFixture &app, const QString &path,
                      const std::function<void(QProgressDialog &)> &watch);
};

void TestExportProgress::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_exportprogress"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestExportProgress::init()
{
    QDir(RecoveryStore::folder()).removeRecursively();
    QSettings().remove(QStringLiteral("export"));
    QSettings().remove(QStringLiteral("progressAfterMilliseconds"));
    DiagramView classic; // which takes its time
    classic.look = DiagramLook::Classic;
    classic.becomeUsual();
}

bool TestExportProgress::exportSlowly(AppFixture &app, const QString &path,
                                      const std::function<void(QProgressDialog &)> &watch)
{
    const QString source = app.path(QStringLiteral("large.json"));
    AppFixture::writeFile(source, largeDiagram());
    app.window.open({source});
    AppFixture::settle();
    std::unique_ptr<ModalDriver<QProgressDialog>> progress;
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("file"))->setText(path);
        dialog.findChild<QComboBox *>(QStringLiteral("expansion"))->setCurrentIndex(1);
        dialog.findChild<QSpinBox *>(QStringLiteral("height"))->setValue(12000);
        const ModalDriver<QMessageBox> replacing(
            [](QMessageBox &box) { box.button(QMessageBox::Yes)->click(); });
        dialog.accept();
        progress = std::make_unique<ModalDriver<QProgressDialog>>(watch, 60000);
    });
    app.trigger("export");
    return driver.isDone() && progress && progress->isDone();
}

void TestExportProgress::shouldKeepTheOldFileWhenCancelled_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("classic") << int(DiagramLook::Classic);
    QTest::newRow("clear") << int(DiagramLook::Clear);
}

void TestExportProgress::shouldKeepTheOldFileWhenCancelled()
{
    QFETCH(int, look);
    DiagramView view;
    view.look = DiagramLook::Kind(look);
    view.becomeUsual();
    AppFixture app;
    const QString path = app.path(QStringLiteral("a.png"));
    AppFixture::writeFile(path, "old");
    int done = -1;
    int whole = 0;
    const bool isShown = exportSlowly(app, path, [&](QProgressDialog &dialog) {
        done = dialog.value();
        whole = dialog.maximum();
        QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
    });
    QVERIFY(isShown);
    QVERIFY2(done > 0 && done < whole, qPrintable(QString::number(done)));
    QCOMPARE(AppFixture::contentOf(path), QByteArray("old"));
    QVERIFY(!app.document()->modified());
    QVERIFY(app.window.updatesEnabled());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(app.window.statusBar()->currentMessage().contains(path));
    QVERIFY(app.action("export")->isEnabled());
    QCOMPARE(QDir(app.folder.path()).entryList(QDir::Files),
             (QStringList{QStringLiteral("a.png"), QStringLiteral("large.json"),
                          QStringLiteral("late.json")}));
}

void TestExportProgress::shouldNotLetTheUserCloseTheWindowMeanwhile()
{
    AppFixture app;
    QWidget *blocker = nullptr;
    Qt::WindowModality modality = Qt::NonModal;
    const bool isShown =
        exportSlowly(app, app.path(QStringLiteral("a.png")), [&](QProgressDialog &dialog) {
            blocker = dialog.parentWidget();
            modality = dialog.windowModality();
            const QString before = app.text();
            QTest::keyClick(app.window.windowHandle(), Qt::Key_Delete);
            QTest::keyClick(app.window.windowHandle(), Qt::Key_W, Qt::ControlModifier);
            QCOMPARE(app.text(), before);
            QCOMPARE(app.tabCount(), 2);
            dialog.cancel();
        });
    QVERIFY(isShown);
    QCOMPARE(blocker, &app.window);
    QCOMPARE(modality, Qt::WindowModal);
}

void TestExportProgress::shouldShowNothingForAQuickExport()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("a.png"));
    bool isSeen = false;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&isSeen] {
        isSeen = isSeen || qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
    });
    watch.start(1);
    const ModalDriver<ExportDialog> driver([&path](ExportDialog &dialog) {
        dialog.findChild<QLineEdit *>(QStringLiteral("file"))->setText(path);
        dialog.accept();
    });
    app.trigger("export");
    QVERIFY(driver.isDone());
    QVERIFY(QFile::exists(path));
    QVERIFY(!isSeen);
}

void TestExportProgress::shouldShowNothingBeforeASecondIsOver()
{
    QWidget window;
    window.show();
    WorkProgress progress(QStringLiteral("Working"), &window);
    for (int done = 0; done <= 100; ++done)
        QVERIFY(progress.report(done, 100));
    QVERIFY(!QApplication::activeModalWidget());
}

void TestExportProgress::shouldShowHowFarItIs()
{
    QWidget window;
    window.show();
    WorkProgress progress(QStringLiteral("Working"), &window);
    QElapsedTimer timer;
    timer.start();
    QList<int> shown;
    for (int done = 1; done < 1000 && shown.size() < 5; ++done) {
        QTest::qSleep(20);
        QVERIFY(progress.report(done, 1000));
        auto *const dialog = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
        if (dialog && (shown.isEmpty() || dialog->value() != shown.constLast()))
            shown.append(dialog->value());
    }
    QCOMPARE(shown.size(), 5);
    QVERIFY(std::is_sorted(shown.cbegin(), shown.cend()));
}

void TestExportProgress::shouldEndOnEscape()
{
    QWidget window;
    window.show();
    WorkProgress progress(QStringLiteral("Working"), &window);
    const ModalDriver<QProgressDialog> driver(
        [](QProgressDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    bool goesOn = true;
    for (int done = 1; done < 1000 && goesOn; ++done) {
        QTest::qSleep(20);
        goesOn = progress.report(done, 1000);
    }
    QVERIFY(driver.isDone());
    QVERIFY(!goesOn);
    QVERIFY(!progress.report(999, 1000));
    QVERIFY(!QApplication::activeModalWidget());
}

void TestExportProgress::shouldCancelASlide()
{
    QSettings().setValue(QStringLiteral("progressAfterMilliseconds"), 0);
    AppFixture app;
    const QString source = app.path(QStringLiteral("large.json"));
    AppFixture::writeFile(source, largeDiagram(100));
    app.window.open({source});
    app.trigger("expandall");
    const QString path = app.path(QStringLiteral("a.pptx"));
    AppFixture::writeFile(path, "old");
    int done = -1;
    std::unique_ptr<ModalDriver<QProgressDialog>> progress;
    const ModalDriver<QFileDialog> driver([&](QFileDialog &dialog) {
        const ModalDriver<QMessageBox> replacing(
            [](QMessageBox &box) { box.button(QMessageBox::Yes)->click(); });
        DialogAnswers::enter(path)(dialog);
        progress = std::make_unique<ModalDriver<QProgressDialog>>(
            [&done](QProgressDialog &shown) {
                done = shown.value();
                QTest::mouseClick(shown.findChild<QPushButton *>(), Qt::LeftButton);
            },
            60000);
    });
    app.trigger("exportAs");
    QVERIFY(driver.isDone());
    QVERIFY(progress && progress->isDone());
    QVERIFY(done > 0);
    QCOMPARE(AppFixture::contentOf(path), QByteArray("old"));
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(app.window.statusBar()->currentMessage(), path + QStringLiteral(" was not written"));
    QVERIFY(app.window.updatesEnabled());
}

void TestExportProgress::shouldCancelTheExpansionOfAll()
{
    QSettings().setValue(QStringLiteral("progressAfterMilliseconds"), 0);
    AppFixture app;
    const QString source = app.path(QStringLiteral("large.json"));
    AppFixture::writeFile(source, largeDiagram(400));
    app.window.open({source});
    AppFixture::settle();
    const auto visible = [&app] {
        int count = 0;
        const QList<QGraphicsItem *> items = app.window.editor()->scene()->items();
        for (const QGraphicsItem *item : items)
            count += item->type() == SpearItem::Type && item->isVisible() ? 1 : 0;
        return count;
    };
    const int before = visible();
    QCOMPARE(before, 401); // the head and the main bones
    {
        const ModalDriver<QProgressDialog> driver(
            [](QProgressDialog &shown) {
                QTest::mouseClick(shown.findChild<QPushButton *>(), Qt::LeftButton);
            },
            60000);
        QTest::keyClick(app.window.editor()->view(), Qt::Key_Asterisk);
        QVERIFY(driver.isDone());
    }
    AppFixture::settle();
    QCOMPARE(visible(), before);
    QVERIFY(!app.document()->modified());
    app.trigger("expandall"); // to its end
    QCOMPARE(visible(), 401 + 400 * 40);
}

FISHBONE_TEST(TestExportProgress)
#include "tst_exportprogress.moc"
