// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/makedialog.h>

#include <app/common/language.h>
#include <app/editing/titleeditor.h>

#include <tests/app/programrunner.h>
#include <tests/program/testprogram.h>
#include <tests/support/shownvalues.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/dialogs/urldialog.h>
#include <fishbone/style/penselect.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QMenu>
#include <QPen>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QSpinBox>
#include <QStatusBar>

#include <functional>
#include <memory>

namespace {

/**
 * The window with as much shown as there can be: a document with a change, the details of a bone,
 * the find dialog with what it has found, and a question about the file.
 */
class FullWindow : public AppFixture
{
public:
    FullWindow()
    {
        select("Machines");
        trigger("moveDown");
        trigger("details");
        trigger("find");
        widget<QLineEdit>("detailsLink")->setText(QStringLiteral("http://localhost"));
        auto *const dialog = window.findChild<ReplaceFindDialog *>();
        dialog->searchField()->setText(QStringLiteral("Too"));
        dialog->replacementField()->setText(QStringLiteral("Two"));
        QTest::keyClick(dialog->searchField(), Qt::Key_Return);
        writeFile(path(), "{}");
        QTRY_VERIFY(widget<QWidget>("messageBar")->isVisible());
        settle();
    }

    /** Everything that a user reads or hears in the window and its dialogs. */
    QStringList values() const
    {
        QStringList values = TestSupport::shownValues(window);
        values.replaceInStrings(folder.path(), QStringLiteral("FOLDER"));
        return values;
    }
};

/** Those of @p left that are not in @p right. */
QString missing(const QStringList &left, QStringList right)
{
    QStringList lines;
    for (const QString &each : left) {
        if (!right.removeOne(each))
            lines.append(each);
    }
    return lines.join(QLatin1Char('\n'));
}

void verifySame(const QStringList &actual, const QStringList &expected)
{
    QVERIFY2(missing(actual, expected).isEmpty(), qPrintable(missing(actual, expected)));
    QVERIFY2(missing(expected, actual).isEmpty(), qPrintable(missing(expected, actual)));
}

} // namespace

/** Another language while the program runs. */
class TestLanguageSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); }
    void cleanup() { Language::install(QString()); }

    void shouldShowWhatAWindowShowsThatWasMadeInTheLanguage_data();
    void shouldShowWhatAWindowShowsThatWasMadeInTheLanguage();
    void shouldGoBackToTheLanguageOfTheSystem();
    void shouldTranslateADialogThatIsOpen_data();
    void shouldTranslateADialogThatIsOpen();

    void shouldKeepWhatIsTyped();
    void shouldKeepATitleThatIsEditedInThePlace();
    void shouldKeepTheDrawing();
    void shouldKeepTheDocumentAndItsHistory();
    void shouldNameTheHistory();
    void shouldShowTheCountsOfTheHead();
    void shouldFindAndReplaceAfterwards();
    void shouldAnswerAQuestionAfterwards();

    void shouldOfferTheLanguages();
    void shouldKeepTheChoice();
    void shouldTakeAnUnknownChoiceForTheSystem();
    void shouldShowTheWindowInTheLanguage_data();
    void shouldShowTheWindowInTheLanguage();
};

void TestLanguageSwitch::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_languageswitch"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestLanguageSwitch::shouldShowWhatAWindowShowsThatWasMadeInTheLanguage_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    QTest::newRow("Chinese to English") << QStringLiteral("zh") << QStringLiteral("en");
    QTest::newRow("English to Chinese") << QStringLiteral("en") << QStringLiteral("zh");
}

void TestLanguageSwitch::shouldShowWhatAWindowShowsThatWasMadeInTheLanguage()
{
    QFETCH(QString, before);
    QFETCH(QString, after);

    Language::install(before);
    QStringList switched;
    {
        const FullWindow full;
        const QStringList old = full.values();
        Language::install(after);
        FullWindow::settle();
        switched = full.values();
        QVERIFY(old.size() > 500);
        QVERIFY(missing(old, switched).count(QLatin1Char('\n')) > 200);
    }
    QSettings().clear(); // of the files that were open
    const FullWindow made;
    const QStringList expected = made.values();
    verifySame(switched, expected);
}

void TestLanguageSwitch::shouldGoBackToTheLanguageOfTheSystem()
{
    const FullWindow full;
    const QStringList before = full.values();
    Language::install(QStringLiteral("zh"));
    FullWindow::settle();
    QVERIFY(full.values() != before);
    Language::install(QString());
    FullWindow::settle();
    verifySame(full.values(), before);
}

void TestLanguageSwitch::shouldTranslateADialogThatIsOpen_data()
{
    QTest::addColumn<MakeDialog>("make");

    QTest::newRow("URL") << MakeDialog([] { return std::make_unique<URLDialog>(); });
    QTest::newRow("find") << MakeDialog([] { return std::make_unique<ReplaceFindDialog>(); });
    QTest::newRow("style") << MakeDialog(
        [] { return std::make_unique<SpearStyleDialog>(*SpearStyle::global()); });
    QTest::newRow("pen") << MakeDialog([] { return std::make_unique<PenSelect>(QPen()); });
}

void TestLanguageSwitch::shouldTranslateADialogThatIsOpen()
{
    QFETCH(MakeDialog, make);

    Language::install(QStringLiteral("zh"));
    const std::unique_ptr<QDialog> switched = make();
    switched->show();
    AppFixture::settle();
    const QStringList before = TestSupport::shownValues(*switched);
    Language::install(QStringLiteral("en"));
    AppFixture::settle();
    const std::unique_ptr<QDialog> made = make();
    made->show();
    AppFixture::settle();
    QVERIFY(TestSupport::shownValues(*switched) != before);
    verifySame(TestSupport::shownValues(*switched), TestSupport::shownValues(*made));
}

void TestLanguageSwitch::shouldKeepWhatIsTyped()
{
    AppFixture app;
    app.select("People");
    app.trigger("details");
    auto *const title = app.widget<QLineEdit>("detailsTitle");
    QTest::keyClicks(title, QStringLiteral("Staff"));
    auto *const text = app.widget<QPlainTextEdit>("detailsText");
    QTest::keyClicks(text, QStringLiteral("Details"));
    auto *const progress = app.widget<QSpinBox>("detailsProgress");
    progress->selectAll();
    QTest::keyClicks(progress, QStringLiteral("40"));
    auto *const status = app.widget<QComboBox>("detailsStatus");
    status->setCurrentIndex(3);
    auto *const date = app.widget<QDateEdit>("detailsPlannedEnd");
    app.widget<QCheckBox>("detailsHasPlannedEnd")->setChecked(true);
    date->setDate(QDate(2031, 2, 3));
    title->setFocus();
    title->setSelection(1, 2);
    AppFixture::settle();

    Language::choose(QStringLiteral("zh"));
    AppFixture::settle();
    QCOMPARE(title->text(), QStringLiteral("Staff"));
    QCOMPARE(title->selectedText(), QStringLiteral("ta"));
    QVERIFY(title->hasFocus());
    QCOMPARE(text->toPlainText(), QStringLiteral("Details"));
    QCOMPARE(progress->value(), 40);
    QCOMPARE(status->currentIndex(), 3);
    QCOMPARE(status->currentText(), QStringLiteral("已完成"));
    QCOMPARE(date->date(), QDate(2031, 2, 3));
    QVERIFY(app.widget<QPushButton>("detailsApply")->isEnabled());
    QCOMPARE(app.subject("People")->status(), -1); // nothing is applied

    QTest::mouseClick(app.widget<QPushButton>("detailsApply"), Qt::LeftButton);
    AppFixture::settle();
    QCOMPARE(app.text(),
             QStringLiteral("Late[Staff[Too few[Illness],Too new],Machines,Material[Rust]]"));
    QCOMPARE(app.subject("Staff")->progress(), 40);
}

void TestLanguageSwitch::shouldKeepATitleThatIsEditedInThePlace()
{
    AppFixture app;
    app.select("Machines");
    app.trigger("rename");
    auto *const title = app.window.editor()->findChild<TitleEditor *>(QStringLiteral("title"));
    QVERIFY(title);
    QTest::keyClicks(title, QStringLiteral("Engines"));
    Language::choose(QStringLiteral("zh"));
    AppFixture::settle();
    QVERIFY(title->isVisible());
    QCOMPARE(title->accessibleName(), QStringLiteral("标题"));
    QTest::keyClick(title, Qt::Key_Return);
    AppFixture::settle();
    QVERIFY(app.find("Engines").isValid());
}

void TestLanguageSwitch::shouldKeepTheDrawing()
{
    AppFixture app;
    app.select("Illness"); // which expands what is above
    app.window.editor()->zoomFish(310);
    app.window.editor()->rotateFish(15);
    AppFixture::settle();
    app.window.editor()->view()->horizontalScrollBar()->setValue(40);
    const auto state = [&app] {
        const FishEditor *const editor = app.window.editor();
        QStringList shown;
        for (const QGraphicsItem *item : editor->scene()->items()) {
            const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
            if (spear && spear->isVisible())
                shown.append(QStringLiteral("%1 at %2, %3")
                                 .arg(spear->textDisplay())
                                 .arg(spear->scenePos().x())
                                 .arg(spear->scenePos().y()));
        }
        const QScrollBar *const bar = editor->view()->horizontalScrollBar();
        return QStringList{
            shown.join(QLatin1Char(';')),         app.selectedInDrawing().join(QChar()),
            app.selectedInTree().join(QChar()),   QString::number(bar->value()),
            QString::number(editor->zoomValue()), QString::number(editor->rotateValue())};
    };
    const QStringList before = state();
    QVERIFY(before.first().contains(QStringLiteral("Illness")));
    Language::choose(QStringLiteral("zh"));
    AppFixture::settle();
    QCOMPARE(state(), before);
}

void TestLanguageSwitch::shouldKeepTheDocumentAndItsHistory()
{
    AppFixture app;
    const QByteArray file = AppFixture::contentOf(app.path());
    Language::choose(QStringLiteral("zh"));
    AppFixture::settle();
    QVERIFY(!app.document()->modified());
    QCOMPARE(AppFixture::contentOf(app.path()), file);
    const QString before = app.text();
    app.select("Machines");
    app.trigger("delete");
    const QString after = app.text();
    Language::choose(QStringLiteral("en"));
    AppFixture::settle();
    QCOMPARE(app.text(), after);
    QVERIFY(app.document()->modified());
    app.trigger("undo");
    QCOMPARE(app.text(), before);
    Language::choose(QStringLiteral("zh"));
    AppFixture::settle();
    app.trigger("redo");
    QCOMPARE(app.text(), after);
}

void TestLanguageSwitch::shouldNameTheHistory()
{
    Language::install(QStringLiteral("en"));
    AppFixture app;
    app.select("Machines");
    app.trigger("child");
    QTest::keyClick(app.window.editor()->findChild<TitleEditor *>(QStringLiteral("title")),
                    Qt::Key_Return);
    app.select("Material");
    app.trigger("delete");
    const auto rows = [&app] {
        QStringList texts;
        for (int row = 0; row < app.window.tabs()->current()->history()->topLevelItemCount(); ++row)
            texts.append(app.window.tabs()->current()->history()->topLevelItem(row)->text(0));
        return texts;
    };
    QCOMPARE(rows(), QStringList({QStringLiteral("(beginning)"),
                                  QStringLiteral("Insert child subject “Subtopic”"),
                                  QStringLiteral("Delete subjects “Material”")}));
    Language::choose(QStringLiteral("zh"));
    AppFixture::settle();
    QCOMPARE(rows(),
             QStringList({QStringLiteral("（初始状态）"), QStringLiteral("插入子主题 “Subtopic”"),
                          QStringLiteral("删除所选主题 “Material”")}));
}

void TestLanguageSwitch::shouldShowTheCountsOfTheHead()
{
    Language::install(QStringLiteral("en"));
    AppFixture app;
    app.trigger("taskMode");
    const SpearItem *const head = app.window.editor()->headSpear();
    QVERIFY2(head->text().contains(QLatin1String("in all")), qPrintable(head->text()));
    Language::choose(QStringLiteral("zh"));
    AppFixture::settle();
    QVERIFY2(head->text().contains(QStringLiteral("个任务")), qPrintable(head->text()));
    QCOMPARE(head->textDisplay(), QStringLiteral("Late"));
}

void TestLanguageSwitch::shouldFindAndReplaceAfterwards()
{
    AppFixture app;
    Language::choose(QStringLiteral("zh"));
    app.trigger("find");
    auto *const dialog = app.window.findChild<ReplaceFindDialog *>();
    QTest::keyClicks(dialog->searchField(), QStringLiteral("Too"));
    QTest::keyClicks(dialog->replacementField(), QStringLiteral("Two"));
    QCOMPARE(dialog->replaceAllButton()->text(), QStringLiteral("全部替换"));
    QTest::mouseClick(dialog->replaceAllButton(), Qt::LeftButton);
    AppFixture::settle();
    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Two few[Illness],Two new],Machines,Material[Rust]]"));
    QCOMPARE(app.window.statusBar()->currentMessage(), QStringLiteral("已替换 2 处文本"));
}

void TestLanguageSwitch::shouldAnswerAQuestionAfterwards()
{
    FullWindow full;
    Language::choose(QStringLiteral("zh"));
    FullWindow::settle();
    QTest::mouseClick(full.widget<QPushButton>("conflictKeep"), Qt::LeftButton);
    FullWindow::settle();
    QVERIFY(!full.widget<QWidget>("messageBar")->isVisible());
    Language::choose(QStringLiteral("en")); // no question to translate
    FullWindow::settle();
    QVERIFY(!full.widget<QWidget>("messageBar")->isVisible());
}

void TestLanguageSwitch::shouldOfferTheLanguages()
{
    AppFixture app;
    QVERIFY(
        app.window.findChild<QMenu *>(QStringLiteral("viewMenu"))
            ->actions()
            .contains(app.window.findChild<QMenu *>(QStringLiteral("languageMenu"))->menuAction()));
    QVERIFY(app.action("language-")->isChecked());
    app.trigger("language-zh");
    QCOMPARE(app.action("save")->text(), QStringLiteral("保存(&S)"));
    QVERIFY(app.action("language-zh")->isChecked());
    QVERIFY(!app.action("language-")->isChecked());
    app.trigger("language-en");
    QCOMPARE(app.action("save")->text(), QStringLiteral("&Save"));
    QVERIFY(app.action("language-en")->isChecked());
    QVERIFY(!app.action("language-zh")->isChecked());
    // Whoever does not read the one finds the other.
    QCOMPARE(app.action("language-zh")->text(), QStringLiteral("简体中文"));
}

void TestLanguageSwitch::shouldKeepTheChoice()
{
    QCOMPARE(Language::chosen(), QString());
    AppFixture app;
    app.trigger("language-zh");
    QCOMPARE(Language::chosen(), QStringLiteral("zh"));
    QCOMPARE(Language::installed(), QStringLiteral("zh"));
    Language::install(QStringLiteral("en")); // as --language does, for one run
    QCOMPARE(Language::chosen(), QStringLiteral("zh"));
    app.trigger("language-");
    QCOMPARE(Language::chosen(), QString());
}

void TestLanguageSwitch::shouldTakeAnUnknownChoiceForTheSystem()
{
    QSettings().setValue(QStringLiteral("language"), QStringLiteral("xx"));
    QCOMPARE(Language::chosen(), QString());
}

void TestLanguageSwitch::shouldShowTheWindowInTheLanguage_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");

    const QString english = QStringLiteral("cannot open");
    const QString chinese = QStringLiteral("无法打开");
    const QStringList inEnglish{QStringLiteral("--language"), QStringLiteral("en")};
    QTest::newRow("nothing chosen") << QString() << QStringList() << english;
    QTest::newRow("chosen") << QStringLiteral("zh") << QStringList() << chinese;
    QTest::newRow("option") << QString()
                            << QStringList{QStringLiteral("--language"), QStringLiteral("zh")}
                            << chinese;
    QTest::newRow("option against choice") << QStringLiteral("zh") << inEnglish << english;
    // Scripts do not depend on what somebody chose in a window.
    QTest::newRow("no window") << QStringLiteral("zh") << QStringList{QStringLiteral("info")}
                               << QStringLiteral("cannot read");
}

void TestLanguageSwitch::shouldShowTheWindowInTheLanguage()
{
    QFETCH(QString, chosen);
    QFETCH(QStringList, arguments);
    QFETCH(QString, complaint);

    const QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral(".config/Fishbone"));
    QVERIFY(QDir().mkpath(folder));
    const QString settings = folder + QStringLiteral("/Fishbone.conf");
    const QByteArray content = "[General]\nlanguage=" + chosen.toUtf8() + '\n';
    ProgramRunner::writeFile(settings, content);

    QProcess program;
    QProcessEnvironment environment = ProgramRunner::bareEnvironment(home.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.remove(QStringLiteral("LANGUAGE"));
    program.setProcessEnvironment(environment);
    program.start(ProgramRunner::program(),
                  arguments + QStringList{QStringLiteral("/missing.json")});
    QString output;
    const bool hasComplained = QTest::qWaitFor(
        [&] {
            output += QString::fromUtf8(program.readAllStandardError());
            return output.contains(complaint);
        },
        ProgramRunner::timeLimit);
    program.kill();
    program.waitForFinished();
    QVERIFY2(hasComplained, qPrintable(output));
    QVERIFY(ProgramRunner::contentOf(settings).contains("language=" + chosen.toUtf8() + '\n'));
}

FISHBONE_TEST(TestLanguageSwitch)
#include "tst_languageswitch.moc"
