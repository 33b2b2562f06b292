// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>
#include <tests/support/sourcefolder.h>

#include <app/common/language.h>
#include <app/files/templategallery.h>

#include <fishbone/exchange/diagramexchange.h>

#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QStatusBar>

using TestSupport::ModalDriver;

namespace {

QListWidget *listOf(TemplateGallery &gallery)
{
    return gallery.findChild<QListWidget *>(QStringLiteral("templateList"));
}

QStringList namesIn(TemplateGallery &gallery)
{
    QStringList names;
    const QListWidget *const list = listOf(gallery);
    for (int row = 0; row < list->count(); ++row)
        names.append(list->item(row)->text());
    return names;
}

int coloursOf(const QImage &picture)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(picture.pixel(x, y));
    }
    return int(colours.size());
}

/** A tree without its titles, "[[]]". */
QString shapeOf(const TreeItem &subject)
{
    QString shape;
    for (const TreeItem *child : subject.childItems())
        shape += QLatin1Char('[') + shapeOf(*child) + QLatin1Char(']');
    return shape;
}

} // namespace

/** New diagrams from templates, and templates from diagrams. */
class TestTemplateCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { Language::install(QStringLiteral("en")); }
    void shouldShowAPictureOfEachTemplate();
    void shouldMakeADiagramByKeys();
    void shouldMakeNothingWhenCancelled();
    void shouldHaveEachTemplateInEachLanguage();
    void shouldOfferTheTemplatesInTheLanguageOfTheProgram();
    void shouldOfferWhatWasSavedAsATemplate();
    void shouldAskBeforeATemplateIsReplaced();
    void shouldTakeAFileAsATemplate();
    void shouldSayThatAFileIsNoTemplate();
};

void TestTemplateCommands::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_templatecommands"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Language::install(QStringLiteral("en"));
}

void TestTemplateCommands::init()
{
    QDir(Templates::folder()).removeRecursively();
}

void TestTemplateCommands::shouldShowAPictureOfEachTemplate()
{
    AppFixture app;
    QStringList names;
    QList<QImage> pictures;
    const ModalDriver<TemplateGallery> driver([&](TemplateGallery &gallery) {
        names = namesIn(gallery);
        const QListWidget *const list = listOf(gallery);
        for (int row = 0; row < list->count(); ++row)
            pictures.append(list->item(row)->icon().pixmap(list->iconSize()).toImage());
        if (const QString path = qEnvironmentVariable("FISHBONE_GALLERY"); !path.isEmpty())
            gallery.grab().save(path);
        gallery.reject();
    });
    app.trigger("newFromTemplate");
    QVERIFY(driver.isDone());
    QCOMPARE(names.join(QLatin1Char('|')),
             QStringLiteral("Empty|6M: production|4S: services|8P: marketing|4P: administration|"
                            "5 whys|Incident review|Project risks"));
    for (int i = 0; i < pictures.size(); ++i) {
        QVERIFY2(coloursOf(pictures.at(i)) > 8, qPrintable(names.at(i)));
        QVERIFY(i == 0 || pictures.at(i) != pictures.at(i - 1));
    }
}

void TestTemplateCommands::shouldMakeADiagramByKeys()
{
    AppFixture app;
    const ModalDriver<TemplateGallery> driver([](TemplateGallery &gallery) {
        QListWidget *const list = listOf(gallery);
        // Keys move nothing before the list is laid out.
        for (int tries = 0; tries < 1000 && list->currentRow() == 0; ++tries) {
            QTest::keyClick(list, Qt::Key_Right);
            QCoreApplication::processEvents();
        }
        QTest::keyClick(list, Qt::Key_Return);
    });
    QTest::keyClick(app.window.editor()->view(), Qt::Key_N,
                    Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(driver.isDone());
    AppFixture::settle();
    QCOMPARE(app.tabCount(), 2);
    QCOMPARE(app.text().left(51),
             QStringLiteral("Effect[People[Training,Workload,Handover],Machines["));
    QVERIFY(app.document()->isUntitled());
    QVERIFY(!app.window.isWindowModified());
    QVERIFY(app.subject("Sampling")->spear()); // all of it is shown
    // The head is ready to be typed over, and the document is called after it.
    app.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&app.window));
    QTest::keyClick(app.window.editor()->view(), Qt::Key_S);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("crap"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    AppFixture::settle();
    QCOMPARE(app.document()->treeItem()->childAtIndex(0)->title(), QStringLiteral("scrap"));
    QCOMPARE(app.window.tabs()->current()->name(), QStringLiteral("scrap"));
}

void TestTemplateCommands::shouldMakeNothingWhenCancelled()
{
    AppFixture app;
    const ModalDriver<TemplateGallery> driver(
        [](TemplateGallery &gallery) { QTest::keyClick(&gallery, Qt::Key_Escape); });
    app.trigger("newFromTemplate");
    QVERIFY(driver.isDone());
    QCOMPARE(app.tabCount(), 1);
}

void TestTemplateCommands::shouldHaveEachTemplateInEachLanguage()
{
    QStringList shapes;
    const QStringList languages = Language::all();
    for (const QString &language : languages) {
        Language::install(language);
        QStringList inThis;
        const QList<Templates::Template> templates = Templates::all();
        for (const Templates::Template &each : templates) {
            const auto diagram = Templates::diagram(each);
            QVERIFY2(diagram, qPrintable(each.path));
            QVERIFY(!diagram->title().isEmpty());
            inThis.append(shapeOf(*diagram));
        }
        QCOMPARE(inThis.size(), 8);
        if (!shapes.isEmpty())
            QCOMPARE(inThis, shapes);
        shapes = inThis;
    }
    QCOMPARE(shapes.at(5), QStringLiteral("[[[[[]]]]]")); // five times why
}

void TestTemplateCommands::shouldOfferTheTemplatesInTheLanguageOfTheProgram()
{
    Language::install(QStringLiteral("zh"));
    const QList<Templates::Template> templates = Templates::all();
    QCOMPARE(Templates::diagram(templates.at(1))->childAtIndex(0)->title(),
             QString::fromUtf8("人"));
    QVERIFY(templates.at(1).name != QLatin1String("6M: production"));
}

void TestTemplateCommands::shouldOfferWhatWasSavedAsATemplate()
{
    AppFixture app;
    const ModalDriver<QInputDialog> naming([](QInputDialog &dialog) {
        QCOMPARE(dialog.textValue(), QStringLiteral("late"));
        auto *const name = dialog.findChild<QLineEdit *>();
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("Our: line"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    app.trigger("saveAsTemplate");
    QVERIFY(naming.isDone());
    QVERIFY(QFile::exists(Templates::pathOf(QStringLiteral("Our line"))));
    QCOMPARE(app.window.tabs()->current()->path(), QFileInfo(app.path()).canonicalFilePath());

    const ModalDriver<TemplateGallery> choosing([](TemplateGallery &gallery) {
        QListWidget *const list = listOf(gallery);
        QListWidgetItem *const item = list->item(list->count() - 1);
        QCOMPARE(item->text(), QStringLiteral("Our line"));
        list->scrollToItem(item);
        const QPoint place = list->visualItemRect(item).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    });
    app.trigger("newFromTemplate");
    QVERIFY(choosing.isDone());
    QCOMPARE(app.tabCount(), 2);
    QVERIFY(app.text().startsWith(QLatin1String("Late[People[")));
    QVERIFY(app.document()->isUntitled());

    const ModalDriver<TemplateGallery> deleting([](TemplateGallery &gallery) {
        QListWidget *const list = listOf(gallery);
        auto *const remove = gallery.findChild<QPushButton *>(QStringLiteral("templateDelete"));
        list->setCurrentRow(0);
        QVERIFY(!remove->isEnabled()); // the program's own ones stay
        list->setCurrentRow(list->count() - 1);
        const ModalDriver<QMessageBox> sure(DialogAnswers::press(QMessageBox::Yes));
        QTest::mouseClick(remove, Qt::LeftButton);
        QVERIFY(sure.isDone());
        QVERIFY(!namesIn(gallery).contains(QStringLiteral("Our line")));
        gallery.reject();
    });
    app.trigger("newFromTemplate");
    QVERIFY(deleting.isDone());
    QVERIFY(!QFile::exists(Templates::pathOf(QStringLiteral("Our line"))));
}

void TestTemplateCommands::shouldAskBeforeATemplateIsReplaced()
{
    AppFixture app;
    const QString path = Templates::pathOf(QStringLiteral("late"));
    QVERIFY(QDir().mkpath(Templates::folder()));
    AppFixture::writeFile(path, R"({"title": "Mine"})");
    QStringList asked;
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        const ModalDriver<QInputDialog> naming([&](QInputDialog &dialog) { dialog.accept(); });
        const ModalDriver<QMessageBox> asking([&](QMessageBox &box) {
            asked.append(box.text());
            box.button(answer)->click();
        });
        app.trigger("saveAsTemplate");
        QVERIFY(naming.isDone() && asking.isDone());
        QCOMPARE(AppFixture::contentOf(path).contains("Mine"), answer == QMessageBox::No);
    }
    QVERIFY(asked.constFirst().contains(QLatin1String("late")));
}

void TestTemplateCommands::shouldTakeAFileAsATemplate()
{
    AppFixture app;
    const QString pattern = app.path(QStringLiteral("pattern.json"));
    AppFixture::writeFile(pattern, R"({"title": "Pattern"})");
    const ModalDriver<TemplateGallery> gallery([](TemplateGallery &dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("templateFile")),
                          Qt::LeftButton);
    });
    const ModalDriver<QFileDialog> driver(DialogAnswers::enter(pattern));
    app.trigger("newFromTemplate");
    QVERIFY(gallery.isDone() && driver.isDone());
    QCOMPARE(app.text(), QStringLiteral("Pattern"));
    QVERIFY(app.document()->isUntitled());
}

void TestTemplateCommands::shouldSayThatAFileIsNoTemplate()
{
    AppFixture app;
    const QString pattern = app.path(QStringLiteral("pattern.json"));
    AppFixture::writeFile(pattern, "nothing");
    const ModalDriver<TemplateGallery> gallery([](TemplateGallery &dialog) {
        dialog.findChild<QPushButton *>(QStringLiteral("templateFile"))->click();
    });
    const ModalDriver<QFileDialog> driver(DialogAnswers::enter(pattern));
    QString said;
    const ModalDriver<QMessageBox> box([&said](QMessageBox &warning) {
        said = warning.text();
        warning.accept();
    });
    app.trigger("newFromTemplate");
    QVERIFY(box.isDone());
    QVERIFY2(said.contains(QLatin1String("not a JSON document")), qPrintable(said));
    QCOMPARE(app.tabCount(), 1);
}

FISHBONE_TEST(TestTemplateCommands)
#include "tst_templatecommands.moc"
