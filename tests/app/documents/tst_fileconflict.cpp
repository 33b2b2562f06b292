// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <app/documents/fileconflict.h>
#include <app/files/filewatch.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QSignalSpy>

using DialogAnswers::enter;
using DialogAnswers::press;
using TestSupport::ModalDriver;

namespace {

QByteArray theirs()
{
    return R"({"title": "Late", "uuid": "{h}", "children": [{"title": "Theirs", "uuid": "{t}"}]})";
}

void replace(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
    QVERIFY(file.commit());
}

/** The fixture, with what the bar of the current tab shows. */
class ConflictFixture : public AppFixture
{
public:
    bool isAsked() const { return widget<QWidget>("messageBar")->isVisible(); }
    QString question() const { return widget<QLabel>("messageText")->text(); }

    void answer(const char *name)
    {
        auto *const button = widget<QPushButton>(name);
        QVERIFY2(button, name);
        QTest::mouseClick(button, Qt::LeftButton);
        settle();
    }

    void change()
    {
        select("Machines");
        trigger("delete");
    }
};

} // namespace

/** Files that somebody else changes while they are open. */
class TestFileConflict : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldNoticeEveryKindOfChange_data();
    void shouldNoticeEveryKindOfChange();
    void shouldNoticeAChangeAfterAReplacement();
    void shouldCompareByContent();
    void shouldKnowWhatItAccepted();
    void shouldAskNothingAboutItsOwnSaving();
    void shouldReload();
    void shouldAskBeforeItReloadsOverChanges();
    void shouldKeepMine();
    void shouldSaveUnderAnotherName();
    void shouldTakeTheQuestionBack();
    void shouldSayThatTheFileIsGone();
    void shouldHideTheQuestion();
    void shouldLeaveTheQuestionToItsTab();
    void shouldAskBeforeItSavesOverAChangedFile_data();
    void shouldAskBeforeItSavesOverAChangedFile();
    void shouldNoticeASecondWindow();
};

void TestFileConflict::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_fileconflict"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestFileConflict::shouldNoticeEveryKindOfChange_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<int>("state");

    QTest::newRow("written") << QByteArray("write") << int(FileWatch::State::Changed);
    QTest::newRow("replaced") << QByteArray("replace") << int(FileWatch::State::Changed);
    QTest::newRow("deleted") << QByteArray("delete") << int(FileWatch::State::Missing);
    QTest::newRow("moved away") << QByteArray("move") << int(FileWatch::State::Missing);
}

void TestFileConflict::shouldNoticeEveryKindOfChange()
{
    QFETCH(QByteArray, kind);
    QFETCH(int, state);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.json"));
    AppFixture::writeFile(path, "before");
    FileWatch watch;
    watch.setFile(path);
    QList<FileWatch::State> heard;
    connect(&watch, &FileWatch::changed, this, [&heard](FileWatch::State s) { heard.append(s); });
    QCOMPARE(watch.look(), FileWatch::State::Same);
    if (kind == "write")
        AppFixture::writeFile(path, "after");
    else if (kind == "replace")
        replace(path, "after");
    else if (kind == "delete")
        QVERIFY(QFile::remove(path));
    else
        QVERIFY(QFile::rename(path, path + QLatin1Char('~')));
    QCOMPARE(int(watch.look()), state); // at once
    QTRY_COMPARE(heard.size(), 1);
    QCOMPARE(int(heard.first()), state);
}

void TestFileConflict::shouldNoticeAChangeAfterAReplacement()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.json"));
    AppFixture::writeFile(path, "1");
    FileWatch watch;
    watch.setFile(path);
    QList<FileWatch::State> heard;
    connect(&watch, &FileWatch::changed, this, [&heard](FileWatch::State s) { heard.append(s); });
    replace(path, "2");
    QTRY_COMPARE(heard.size(), 1);
    AppFixture::writeFile(path, "3"); // in place: only the watch on the file sees that
    QTRY_COMPARE(heard.size(), 2);
    QVERIFY(QFile::remove(path));
    QTRY_COMPARE(heard.size(), 3);
    AppFixture::writeFile(path, "1"); // as it was known
    QTRY_COMPARE(heard.size(), 4);
    QCOMPARE(heard, QList<FileWatch::State>({FileWatch::State::Changed, FileWatch::State::Changed,
                                             FileWatch::State::Missing, FileWatch::State::Same}));
}

void TestFileConflict::shouldCompareByContent()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.json"));
    AppFixture::writeFile(path, "same");
    qRegisterMetaType<FileWatch::State>();
    FileWatch watch;
    watch.setFile(path);
    const QSignalSpy spy(&watch, &FileWatch::changed);
    replace(path, "same");
    QCOMPARE(watch.look(), FileWatch::State::Same);
    replace(path, "other"); // and what comes now is the first that is heard
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(watch.look(), FileWatch::State::Changed);
}

void TestFileConflict::shouldKnowWhatItAccepted()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.json"));
    AppFixture::writeFile(path, "mine");
    FileWatch watch;
    watch.setFile(path);
    AppFixture::writeFile(path, "theirs");
    watch.accept();
    QCOMPARE(watch.look(), FileWatch::State::Same);
    watch.setFile(QString());
    QCOMPARE(watch.look(), FileWatch::State::Same);
}

void TestFileConflict::shouldAskNothingAboutItsOwnSaving()
{
    ConflictFixture app;
    app.change();
    app.trigger("save");
    QVERIFY(!app.window.tabs()->current()->conflict()->isOpen());
    // A change of somebody else, which comes later, is noticed; the own one was not.
    replace(app.path(), theirs());
    QTRY_VERIFY(app.isAsked());
    QVERIFY(!app.question().isEmpty());
    app.trigger("undo");
    const ModalDriver<QMessageBox> driver(press(QMessageBox::Save));
    app.trigger("save");
    QVERIFY(driver.isDone());
    QVERIFY(!app.isAsked()); // there is nothing to ask any more
    QVERIFY(!app.window.isWindowModified());
}

void TestFileConflict::shouldReload()
{
    ConflictFixture app;
    app.select("Illness");
    replace(app.path(), QByteArray(AppFixture::diagram()).replace("Machines", "Tools"));
    QTRY_VERIFY(app.isAsked());
    QVERIFY2(app.question().contains(QLatin1String("late.json")), qPrintable(app.question()));
    app.answer("conflictReload");
    QCOMPARE(app.text(),
             QStringLiteral("Late[People[Too few[Illness],Too new],Tools,Material[Rust]]"));
    QVERIFY(!app.isAsked());
    QVERIFY(!app.window.isWindowModified());
    QCOMPARE(app.tabCount(), 1);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Illness")));
}

void TestFileConflict::shouldAskBeforeItReloadsOverChanges()
{
    ConflictFixture app;
    app.change();
    replace(app.path(), theirs());
    QTRY_VERIFY(app.isAsked());
    const ModalDriver<QMessageBox> driver(press(QMessageBox::No));
    app.answer("conflictReload");
    QVERIFY(driver.isDone());
    QVERIFY(!app.find("Theirs").isValid());
    QVERIFY(app.isAsked());
}

void TestFileConflict::shouldKeepMine()
{
    ConflictFixture app;
    replace(app.path(), theirs());
    QTRY_VERIFY(app.isAsked());
    app.answer("conflictKeep");
    QVERIFY(!app.isAsked());
    QVERIFY(app.window.isWindowModified()); // it differs from its file
    app.trigger("save");                    // without a further question
    QVERIFY(AppFixture::contentOf(app.path()).contains("Machines"));
    QVERIFY(!app.window.isWindowModified());
}

void TestFileConflict::shouldSaveUnderAnotherName()
{
    ConflictFixture app;
    replace(app.path(), theirs());
    QTRY_VERIFY(app.isAsked());
    const QString other = app.path(QStringLiteral("mine.json"));
    const ModalDriver<QFileDialog> driver(enter(other));
    app.answer("conflictSaveAs");
    QVERIFY(driver.isDone());
    QVERIFY(!app.isAsked());
    QCOMPARE(AppFixture::contentOf(app.path()), theirs());
    QVERIFY(AppFixture::contentOf(other).contains("Machines"));
    QCOMPARE(app.window.tabs()->current()->name(), QStringLiteral("mine.json"));
}

void TestFileConflict::shouldTakeTheQuestionBack()
{
    ConflictFixture app;
    replace(app.path(), theirs());
    QTRY_VERIFY(app.isAsked());
    replace(app.path(), AppFixture::diagram());
    QTRY_VERIFY(!app.isAsked());
}

void TestFileConflict::shouldSayThatTheFileIsGone()
{
    ConflictFixture app;
    QVERIFY(QFile::remove(app.path()));
    QTRY_VERIFY(app.isAsked());
    AppFixture::settle();
    QVERIFY(app.window.isWindowModified());
    app.answer("conflictSave");
    QVERIFY(AppFixture::contentOf(app.path()).contains("Machines"));
    QVERIFY(!app.isAsked());
    QVERIFY(!app.window.isWindowModified());
}

void TestFileConflict::shouldHideTheQuestion()
{
    ConflictFixture app;
    QVERIFY(QFile::remove(app.path()));
    QTRY_VERIFY(app.isAsked());
    app.answer("conflictHide");
    QVERIFY(!app.isAsked());
    QVERIFY(app.window.isWindowModified());
}

void TestFileConflict::shouldLeaveTheQuestionToItsTab()
{
    ConflictFixture app;
    app.trigger("new");
    replace(app.path(), theirs());
    const DocumentTab *const first = app.window.tabs()->tabs().at(0);
    QTRY_VERIFY(!first->findChild<QWidget *>(QStringLiteral("messageBar"))->isHidden());
    QVERIFY(!app.isAsked());
    app.showTab(0);
    QVERIFY(app.isAsked());
    app.answer("conflictReload");
    QVERIFY(app.find("Theirs").isValid());
}

void TestFileConflict::shouldAskBeforeItSavesOverAChangedFile_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("replaced");

    QTest::newRow("save") << int(QMessageBox::Save) << true;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false;
}

void TestFileConflict::shouldAskBeforeItSavesOverAChangedFile()
{
    QFETCH(int, answer);
    QFETCH(bool, replaced);
    ConflictFixture app;
    app.change();
    replace(app.path(), theirs());
    const ModalDriver<QMessageBox> driver(press(QMessageBox::StandardButton(answer)));
    app.trigger("save"); // before the watch has said anything
    QVERIFY(driver.isDone());
    QCOMPARE(AppFixture::contentOf(app.path()) != theirs(), replaced);
    QCOMPARE(app.window.isWindowModified(), !replaced);
}

void TestFileConflict::shouldNoticeASecondWindow()
{
    ConflictFixture app;
    MainWindow other;
    other.show();
    other.open({app.path()});
    AppFixture::settle();
    other.editor()->renameItem(other.editor()->rootIndex(), QStringLiteral("Too late"));
    other.findChild<QAction *>(QStringLiteral("save"))->trigger();
    QTRY_VERIFY(app.isAsked());
    app.answer("conflictReload");
    QCOMPARE(app.text().left(8), QStringLiteral("Too late"));
}

FISHBONE_TEST(TestFileConflict)
#include "tst_fileconflict.moc"
