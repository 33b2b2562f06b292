// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/editing/pastedialog.h>
#include <app/files/mappingdialog.h>
#include <fishbone/exchange/ziparchive.h>

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTreeWidget>

using DialogAnswers::enter;
using TestSupport::ModalDriver;

namespace {

using Role = TableMapping::Role;

void choose(QDialog &dialog, const char *name, int value)
{
    auto *const box = dialog.findChild<QComboBox *>(QLatin1String(name));
    QVERIFY(box);
    box->setCurrentIndex(box->findData(value));
}

/** Chooses an entry of a list as people do: a click opens the list, another one takes the entry. */
void chooseByMouse(QDialog &dialog, const char *name, int value)
{
    auto *const box = dialog.findChild<QComboBox *>(QLatin1String(name));
    QVERIFY(box);
    QTest::mouseClick(box, Qt::LeftButton);
    QTRY_VERIFY(box->view()->isVisible());
    const int row = box->findData(value);
    const QModelIndex entry = box->model()->index(row, 0);
    box->view()->scrollTo(entry);
    // A click that opens a list must not take an entry of it at once.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      box->view()->visualRect(entry).center());
    QTRY_COMPARE(box->currentIndex(), row);
}

QPushButton *okOf(QDialog &dialog)
{
    return dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
}

} // namespace

/** What the user sees and decides when something comes from another program. */
class TestImportDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shouldShowWhatColumnsStandFor();
    void shouldLetTheUserChangeWhatColumnsStandFor();
    void shouldBeToldByMouseWhatColumnsStandFor();
    void shouldImportNothingWithoutTitles();
    void shouldNotImportWhatTheUserDoesNotWant();
    void shouldListWhatBecameOfEverything();
    void shouldSayNothingWhereNothingIsLost();
    void shouldRefuseForeignJson();
    void shouldAskWhatDoubtfulTextIs();
    void shouldPasteNothingThatTheUserDoesNotWant();
    void shouldPasteNotesBelowTheLinesThatHeadThem();
    void shouldPasteCopiedFiles_data();
    void shouldPasteCopiedFiles();
};

void TestImportDialogs::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_importdialogs"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestImportDialogs::init()
{
    QGuiApplication::clipboard()->clear();
}

void TestImportDialogs::shouldShowWhatColumnsStandFor()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("list.csv"));
    AppFixture::writeFile(path, "Summary,Owner,Colour\nSlow,Ann,red\nFast,Bo,blue\n");
    const ModalDriver<QFileDialog> files(enter(path));
    QStringList headings;
    QList<int> roles;
    QString example;
    const ModalDriver<MappingDialog> driver([&](MappingDialog &dialog) {
        auto *const table = dialog.findChild<QTableWidget *>();
        for (int column = 0; column < table->columnCount(); ++column) {
            headings.append(table->horizontalHeaderItem(column)->text());
            roles.append(int(dialog.mapping().roles.at(column)));
        }
        example = table->item(2, 1)->text();
        okOf(dialog)->click();
    });
    app.trigger("import");
    QVERIFY(driver.isDone());
    QCOMPARE(headings, QStringList({QStringLiteral("Summary"), QStringLiteral("Owner"),
                                    QStringLiteral("Colour")}));
    QCOMPARE(roles, QList<int>({int(Role::Title), int(Role::Manager), int(Role::Other)}));
    QCOMPARE(example, QStringLiteral("Bo"));
    QCOMPARE(app.text(), QStringLiteral("Imported diagram[Slow,Fast]"));
    QCOMPARE(app.subject("Slow")->managerName(), QStringLiteral("Ann"));
}

void TestImportDialogs::shouldLetTheUserChangeWhatColumnsStandFor()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("list.csv"));
    AppFixture::writeFile(path, "Was,Gehört zu,Wer\nSlow,,Ann\nStaff,Slow,Bo\n");
    const ModalDriver<QFileDialog> files(enter(path));
    const ModalDriver<MappingDialog> driver([&](MappingDialog &dialog) {
        QVERIFY(!okOf(dialog)->isEnabled()); // nobody knows these headings
        choose(dialog, "role0", int(Role::Title));
        QVERIFY(okOf(dialog)->isEnabled());
        choose(dialog, "role1", int(Role::Parent));
        choose(dialog, "role2", int(Role::Manager));
        okOf(dialog)->click();
    });
    app.trigger("import");
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), QStringLiteral("Slow[Staff]"));
    QCOMPARE(app.subject("Staff")->managerName(), QStringLiteral("Bo"));
}

void TestImportDialogs::shouldBeToldByMouseWhatColumnsStandFor()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("list.csv"));
    AppFixture::writeFile(path, "Was,Wer\nSlow,Ann\n");
    const ModalDriver<QFileDialog> files(enter(path));
    const ModalDriver<MappingDialog> driver([](MappingDialog &dialog) {
        QTest::mouseClick(okOf(dialog), Qt::LeftButton);
        QVERIFY(dialog.isVisible()); // without titles there is nothing to import
        chooseByMouse(dialog, "role0", int(Role::Title));
        chooseByMouse(dialog, "role1", int(Role::Manager));
        QTest::mouseClick(okOf(dialog), Qt::LeftButton);
    });
    app.trigger("import");
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), QStringLiteral("Slow"));
    QCOMPARE(app.subject("Slow")->managerName(), QStringLiteral("Ann"));
}

void TestImportDialogs::shouldImportNothingWithoutTitles()
{
    TableMapping mapping;
    mapping.headings = QStringList{QStringLiteral("a")};
    mapping.roles = {Role::Title};
    MappingDialog dialog(QStringLiteral("a.csv"), mapping);
    QVERIFY(okOf(dialog)->isEnabled());
    choose(dialog, "role0", int(Role::Status));
    QVERIFY(!okOf(dialog)->isEnabled());
    QCOMPARE(int(dialog.mapping().roles.at(0)), int(Role::Status));
}

void TestImportDialogs::shouldNotImportWhatTheUserDoesNotWant()
{
    AppFixture app;
    const QString before = app.text();
    const QString path = app.path(QStringLiteral("list.csv"));
    AppFixture::writeFile(path, "Summary\nSlow\n");
    const ModalDriver<QFileDialog> files(enter(path));
    const ModalDriver<MappingDialog> driver([](MappingDialog &dialog) { dialog.reject(); });
    app.trigger("import");
    QVERIFY(driver.isDone());
    QCOMPARE(app.tabCount(), 1);
    QCOMPARE(app.text(), before);
}

void TestImportDialogs::shouldListWhatBecameOfEverything()
{
    AppFixture app;
    const QString first = app.path(QStringLiteral("a.md"));
    const QString second = app.path(QStringLiteral("b.csv"));
    AppFixture::writeFile(first, "# a\n<!-- hidden -->\n");
    AppFixture::writeFile(second, "title,colour\nb,red\n");
    app.window.open({first, second});
    QMessageBox *box = nullptr;
    QTRY_VERIFY(box = app.window.findChild<QMessageBox *>(QStringLiteral("importSummary")));
    QVERIFY(!box->isModal()); // nobody has to answer before they go on
    QCOMPARE(box->text(), QStringLiteral("a.md: 1 left out, 0 put into details.\n"
                                         "b.csv: 0 left out, 1 put into details."));
    const QString all = box->detailedText();
    QVERIFY(all.contains(QLatin1String("left out: the comment \"hidden\" (line 2)")));
    QVERIFY(all.contains(QLatin1String("put into the details: \"colour\" (line 2)")));
    box->close();
}

void TestImportDialogs::shouldSayNothingWhereNothingIsLost()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("a.md"));
    AppFixture::writeFile(path, "# a\n- b\n");
    app.window.open({path});
    QTRY_COMPARE(app.text(), QStringLiteral("a[b]"));
    AppFixture::settle();
    QVERIFY(!app.window.findChild<QMessageBox *>(QStringLiteral("importSummary")));
}

void TestImportDialogs::shouldRefuseForeignJson()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("package.json"));
    AppFixture::writeFile(path, R"({"name": "x", "version": "1.0.0"})");
    QString shown;
    const ModalDriver<QMessageBox> driver([&shown](QMessageBox &box) {
        shown = box.text();
        box.accept();
    });
    app.window.open({path});
    QTRY_VERIFY(driver.isDone());
    QVERIFY2(shown.contains(QLatin1String("this has \"name\", \"version\"")), qPrintable(shown));
    QCOMPARE(app.tabCount(), 1);
}

void TestImportDialogs::shouldAskWhatDoubtfulTextIs()
{
    AppFixture app;
    const QString before = app.text();
    QGuiApplication::clipboard()->setText(QStringLiteral("Wear\told\nHeat\tnew\n"));
    AppFixture::settle();
    app.select("Machines");
    QStringList previews;
    const ModalDriver<PasteDialog> driver([&](PasteDialog &dialog) {
        auto *const preview = dialog.findChild<QTreeWidget *>();
        previews.append(preview->topLevelItem(0)->text(0));
        choose(dialog, "pasteKind", int(PastedNotes::Kind::Notes));
        previews.append(preview->topLevelItem(0)->text(0));
        choose(dialog, "pasteKind", int(PastedNotes::Kind::Table));
        dialog.accept();
    });
    app.trigger("paste");
    QVERIFY(driver.isDone());
    QCOMPARE(previews, QStringList({QStringLiteral("Wear"), QStringLiteral("Wear\told")}));
    QVERIFY2(app.text().contains(QLatin1String("Machines[Wear,Heat]")), qPrintable(app.text()));
    QCOMPARE(app.subject("Wear")->detail(), QStringLiteral("old"));
    QCOMPARE(app.window.editor()->undoStack()->commandNames().size(), 1);
    app.trigger("undo");
    QCOMPARE(app.text(), before);
}

void TestImportDialogs::shouldPasteNothingThatTheUserDoesNotWant()
{
    AppFixture app;
    const QString before = app.text();
    QGuiApplication::clipboard()->setText(QStringLiteral("Wear\told\nHeat\tnew\n"));
    AppFixture::settle();
    app.select("Machines");
    const ModalDriver<PasteDialog> driver([](PasteDialog &dialog) { dialog.reject(); });
    app.trigger("paste");
    QVERIFY(driver.isDone());
    QCOMPARE(app.text(), before);
    QVERIFY(!app.window.editor()->undoStack()->canUndo());
}

void TestImportDialogs::shouldPasteNotesBelowTheLinesThatHeadThem()
{
    AppFixture app;
    QGuiApplication::clipboard()->setText(QStringLiteral("Wear\n- Belt\n- Gear\nHeat\n- Sun\n"));
    AppFixture::settle();
    app.select("Machines");
    app.trigger("paste");
    QVERIFY2(app.text().contains(QLatin1String("Machines[Wear[Belt,Gear],Heat[Sun]]")),
             qPrintable(app.text()));
}

void TestImportDialogs::shouldPasteCopiedFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("outline") << QStringLiteral("list.opml")
                             << QByteArray("<opml><body><outline text='Wear'>"
                                           "<outline text='Belt'/></outline></body></opml>");
    QTest::newRow("map") << QStringLiteral("list.xmind")
                         << ZipWriter::archive({{QStringLiteral("content.json"),
                                                 R"([{"rootTopic": {"title": "Wear", "children":
                                  {"attached": [{"title": "Belt"}]}}}])"}});
}

void TestImportDialogs::shouldPasteCopiedFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    AppFixture app;
    const QString path = app.path(name);
    AppFixture::writeFile(path, content);
    auto *const data = new QMimeData; // the clipboard takes it over
    data->setUrls({QUrl::fromLocalFile(path)});
    data->setText(path);
    QGuiApplication::clipboard()->setMimeData(data);
    AppFixture::settle();
    app.select("Machines");
    app.trigger("paste");
    QVERIFY2(app.text().contains(QLatin1String("Machines[Wear[Belt]]")), qPrintable(app.text()));
}

FISHBONE_TEST(TestImportDialogs)

#include "tst_importdialogs.moc"
