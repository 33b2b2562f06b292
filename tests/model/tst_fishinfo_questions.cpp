// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/model/savingfixture.h>
#include <tests/program/testprogram.h>
#include <tests/support/messagebox.h>
#include <tests/support/modaldriver.h>

#include <fishbone/model/systemhelper.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

using namespace TestSupport;

/** What a document asks before it saves, and where to. */
class TestFishInfoQuestions : public QObject, SavingFixture
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { prepare(); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }
    void shouldAskForANameWhileItHasNone();
    void shouldProposeItsStrippedName();
    void shouldReportWhenTheChosenFileCannotBeWritten();
    void shouldSaveNothingWhenNoNameIsChosen();
    void shouldAskNothingWhenNothingChanged();
    void shouldAskWhetherToSave();
    void shouldShowMarkupInANameAsItIs();
    void shouldDoAsTheUserAnswers_data();
    void shouldDoAsTheUserAnswers();
    void shouldSaveAsTheHostDoes_data();
    void shouldSaveAsTheHostDoes();
    void shouldReportASaveThatFailsAfterTheQuestion();
    void shouldSurviveItsOwnEndWhileItAsks();
    void shouldSurviveItsOwnEndWhileANameIsChosen();
};

void TestFishInfoQuestions::shouldAskForANameWhileItHasNone()
{
    m_info->setModified(true);
    const QString name = m_info->fileName();
    const QString chosen = path("chosen.json");
    QString caption;
    const auto choose = [&](QFileDialog &dialog) {
        caption = dialog.windowTitle();
        dialog.selectFile(chosen);
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    };
    for (int i = 0; i < 2; ++i) {
        QFile::remove(chosen);
        const ModalDriver<QFileDialog> user(choose);

        QVERIFY(m_info->save());

        QVERIFY(user.isDone());
        QCOMPARE(caption, QStringLiteral("Save As"));
        QVERIFY(contentOf(chosen).contains("Plan"));
        // It is still the same unnamed document, so the next time it asks again.
        QVERIFY(m_info->isUntitled());
        QVERIFY(m_info->modified());
        QCOMPARE(m_info->fileName(), name);
    }
}

void TestFishInfoQuestions::shouldProposeItsStrippedName()
{
    m_info->setFileName(QStringLiteral("http://example.org/d/effect.json"));
    QDir().mkpath(SystemHelper::documentsLocation());
    QString folder;
    QStringList files;
    const ModalDriver<QFileDialog> user([&](QFileDialog &dialog) {
        folder = dialog.directory().absolutePath();
        files = dialog.selectedFiles();
        dialog.reject();
    });

    QVERIFY(!m_info->saveAs());

    QVERIFY(user.isDone());
    QCOMPARE(folder, QDir(SystemHelper::documentsLocation()).absolutePath());
    QCOMPARE(files,
             QStringList(SystemHelper::documentsLocation() + QStringLiteral("/effect.json")));
}

void TestFishInfoQuestions::shouldReportWhenTheChosenFileCannotBeWritten()
{
    addDocument(*m_model, makeChain(600)); // too deep to be read again
    const QString chosen = path("deep.json");
    const ModalDriver<QFileDialog> user([&chosen](QFileDialog &dialog) {
        dialog.selectFile(chosen);
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    });

    QVERIFY(!m_model->fishList().last()->saveAs());

    QVERIFY(user.isDone());
    QVERIFY(!QFileInfo::exists(chosen));
}

void TestFishInfoQuestions::shouldSaveNothingWhenNoNameIsChosen()
{
    const ModalDriver<QFileDialog> user([](QFileDialog &dialog) { dialog.reject(); });

    QVERIFY(!m_info->save());

    QVERIFY(user.isDone());
}

void TestFishInfoQuestions::shouldAskNothingWhenNothingChanged()
{
    const ModalDriver<QMessageBox> user([](QMessageBox &box) { box.reject(); });

    QVERIFY(m_info->maybeSave());

    QVERIFY(!user.isDone());
}

void TestFishInfoQuestions::shouldAskWhetherToSave()
{
    m_info->setFileName(QStringLiteral("/x/y/effect.json"));
    m_info->setModified(true);
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));

    m_info->maybeSave();

    QVERIFY(user.isDone());
    QCOMPARE(message.title, QStringLiteral("FishInfo"));
    QCOMPARE(message.text, QStringLiteral("'effect.json' has been modified.\n"
                                          "Do you want to save your changes?"));
    QCOMPARE(message.icon, QMessageBox::Warning);
    QCOMPARE(message.buttons, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
}

void TestFishInfoQuestions::shouldShowMarkupInANameAsItIs()
{
    const QString name = QStringLiteral("<b>bold<br>&amp;.json");
    m_info->setFileName(QStringLiteral("/x/y/") + name);
    m_info->setModified(true);
    Message message;
    const ModalDriver<QMessageBox> user(keepMessage(message));

    m_info->maybeSave();

    QVERIFY(user.isDone());
    QCOMPARE(shownText(message), QStringLiteral("'%1' has been modified.\n"
                                                "Do you want to save your changes?")
                                     .arg(name));
}

void TestFishInfoQuestions::shouldDoAsTheUserAnswers_data()
{
    QTest::addColumn<int>("button"); // 0: Esc
    QTest::addColumn<bool>("result");
    QTest::addColumn<bool>("saves");

    QTest::newRow("save") << int(QMessageBox::Save) << true << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
    QTest::newRow("escape") << 0 << false << false;
}

void TestFishInfoQuestions::shouldDoAsTheUserAnswers()
{
    QFETCH(int, button);
    QFETCH(bool, result);
    QFETCH(bool, saves);
    QVERIFY(makeFile(path("effect.json"), "old"));
    m_info->setCurrentFile(path("effect.json"));
    m_info->setModified(true);
    const ModalDriver<QMessageBox> user([button](QMessageBox &box) {
        if (button == 0)
            QTest::keyClick(&box, Qt::Key_Escape);
        else
            box.button(QMessageBox::StandardButton(button))->click();
    });

    QCOMPARE(m_info->maybeSave(), result);

    QVERIFY(user.isDone());
    QCOMPARE(contentOf(path("effect.json")) != QByteArray("old"), saves);
    QVERIFY(m_info->modified());
}

void TestFishInfoQuestions::shouldSaveAsTheHostDoes_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("canSave");
    QTest::addColumn<int>("calls");
    QTest::addColumn<bool>("result");

    QTest::newRow("saved") << int(QMessageBox::Save) << true << 1 << true;
    QTest::newRow("not saved") << int(QMessageBox::Save) << false << 1 << false;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << 0 << true;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << true << 0 << false;
}

void TestFishInfoQuestions::shouldSaveAsTheHostDoes()
{
    QFETCH(int, button);
    QFETCH(bool, canSave);
    QFETCH(int, calls);
    QFETCH(bool, result);
    QVERIFY(makeFile(path("effect.json"), "old"));
    m_info->setCurrentFile(path("effect.json"));
    m_info->setModified(true);
    const ModalDriver<QMessageBox> user(
        [button](QMessageBox &box) { box.button(QMessageBox::StandardButton(button))->click(); });
    int called = 0;

    QCOMPARE(m_info->maybeSave([&] {
        ++called;
        return canSave;
    }),
             result);

    QVERIFY(user.isDone());
    QCOMPARE(called, calls);
    QCOMPARE(contentOf(path("effect.json")), QByteArray("old"));
}

void TestFishInfoQuestions::shouldReportASaveThatFailsAfterTheQuestion()
{
    m_info->setCurrentFile(path("missing.json")); // has no name then
    m_info->setModified(true);
    const ModalDriver<QMessageBox> user(
        [](QMessageBox &box) { box.button(QMessageBox::Save)->click(); });

    QVERIFY(!m_info->maybeSave());

    QVERIFY(user.isDone());
}

void TestFishInfoQuestions::shouldSurviveItsOwnEndWhileItAsks()
{
    m_info->setModified(true);
    const ModalDriver<QMessageBox> user([this](QMessageBox &box) {
        m_model->unloadFish(m_info);
        box.button(QMessageBox::Save)->click();
    });

    QVERIFY(!m_info->maybeSave());

    QVERIFY(user.isDone());
    QCOMPARE(m_model->rowCount(), 0);
}

void TestFishInfoQuestions::shouldSurviveItsOwnEndWhileANameIsChosen()
{
    const QString chosen = path("chosen.json");
    const ModalDriver<QFileDialog> user([this, &chosen](QFileDialog &dialog) {
        m_model->unloadFish(m_info);
        dialog.selectFile(chosen);
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    });

    QVERIFY(!m_info->saveAs());

    QVERIFY(user.isDone());
    QVERIFY(!QFile::exists(chosen));
}

FISHBONE_TEST(TestFishInfoQuestions)

#include "tst_fishinfo_questions.moc"
