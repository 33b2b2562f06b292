// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/window/guideplayer.h>

#include <app/common/language.h>
#include <app/export/exportdialog.h>

#include <fishbone/style/spearstyledialog.h>

#include <tests/program/testprogram.h>

#include <QSettings>

using DialogAnswers::enter;
using TestSupport::ModalDriver;

/** Does what the guide for new users describes by keyboard alone. */
class TestGuideKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void leadsFromNothingToAPictureByKeyboardAlone();

private:
    QTemporaryDir m_folder;
};

void TestGuideKeyboard::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_guide_keyboard"));
    QSettings().clear();
    Language::install(QStringLiteral("en"));
}

void TestGuideKeyboard::leadsFromNothingToAPictureByKeyboardAlone()
{
    GuidePlayer player;
    MainWindow &window = player.window;
    GuidePlayer::press(Qt::Key_N, Qt::ControlModifier);
    GuidePlayer::type(QStringLiteral("Late deliveries"));
    GuidePlayer::press(Qt::Key_Return);
    GuidePlayer::insert(Qt::Key_Tab, QStringLiteral("People"));
    GuidePlayer::press(Qt::Key_Return);
    GuidePlayer::type(QStringLiteral("Machines"));
    GuidePlayer::press(Qt::Key_Return);
    GuidePlayer::insert(Qt::Key_Return, QStringLiteral("Materials"));
    GuidePlayer::insert(Qt::Key_Tab, QStringLiteral("Rust"));
    GuidePlayer::insert(Qt::Key_Return, QStringLiteral("Wrong parts"));
    GuidePlayer::press(Qt::Key_Up, Qt::ControlModifier);   // Materials
    GuidePlayer::press(Qt::Key_Left, Qt::ControlModifier); // Machines
    GuidePlayer::insert(Qt::Key_Tab, QStringLiteral("Old drill"));
    GuidePlayer::press(Qt::Key_Up, Qt::ControlModifier);
    GuidePlayer::press(Qt::Key_Left, Qt::ControlModifier); // People
    GuidePlayer::insert(Qt::Key_Tab, QStringLiteral("Too few"));
    GuidePlayer::insert(Qt::Key_Return, QStringLiteral("Too new"));
    QCOMPARE(player.outline(), QStringLiteral("Late deliveries[People[Too few,Too new],"
                                              "Machines[Old drill],Materials[Rust,Wrong parts]]"));
    GuidePlayer::press(Qt::Key_Home);

    // Rearranged: "Too new" before "Too few", "Old drill" beside "Machines" and back.
    GuidePlayer::press(Qt::Key_Up, Qt::AltModifier);
    QVERIFY(player.outline().contains(QLatin1String("People[Too new,Too few]")));
    GuidePlayer::press(Qt::Key_F2);
    GuidePlayer::press(Qt::Key_End);
    GuidePlayer::type(QStringLiteral(" to it"));
    GuidePlayer::press(Qt::Key_Return);
    QVERIFY(player.outline().contains(QLatin1String("People[Too new to it,Too few]")));
    GuidePlayer::press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(player.outline().contains(QLatin1String("People[Too new,Too few]")));
    GuidePlayer::press(Qt::Key_Up, Qt::ControlModifier);

    // Details of "People".
    GuidePlayer::press(Qt::Key_F4);
    auto *const details = window.findChild<QWidget *>(QStringLiteral("detailsDock"));
    QVERIFY(details->isAncestorOf(QApplication::focusWidget()));
    GuidePlayer::press(Qt::Key_End);
    GuidePlayer::type(QStringLiteral(" and hands"));
    GuidePlayer::press(Qt::Key_Return);
    QVERIFY(player.outline().contains(QLatin1String("[People and hands[")));

    // Restyled: the normal state of the bone shows at most five characters.
    window.editor()->view()->setFocus();
    {
        const ModalDriver<SpearStyleDialog> driver([](SpearStyleDialog &dialog) {
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            auto *const count = dialog.findChild<QLineEdit *>();
            count->setFocus();
            count->selectAll();
            QTest::keyClicks(count, QStringLiteral("5"));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        player.chooseFromMenu(Qt::Key_S, "style");
        QVERIFY(driver.isDone());
    }
    player.returnToWindow();
    const TreeItem *const head = window.session()->document()->treeItem()->childAtIndex(0);
    QVERIFY(head->childAtIndex(0)->spearStyle());
    QCOMPARE(head->childAtIndex(0)->spearStyle()->textCount(), 5);

    // Saved, closed, opened again, exported.
    const QString file = m_folder.filePath(QStringLiteral("late.json"));
    {
        const ModalDriver<QFileDialog> driver(enter(file));
        GuidePlayer::press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(driver.isDone());
    }
    player.returnToWindow();
    QVERIFY(!window.isWindowModified());
    const QString saved = player.outline();
    GuidePlayer::press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(window.tabs()->tabs().isEmpty());
    {
        const ModalDriver<QFileDialog> driver(enter(file));
        GuidePlayer::press(Qt::Key_O, Qt::ControlModifier);
        QVERIFY(driver.isDone());
    }
    player.returnToWindow();
    AppFixture::settle();
    QCOMPARE(player.outline(), saved);
    const QString picture = m_folder.filePath(QStringLiteral("late.svg"));
    {
        const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
            auto *const name = dialog.findChild<QLineEdit *>(QStringLiteral("file"));
            name->setFocus();
            name->selectAll();
            QTest::keyClicks(name, picture);
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        GuidePlayer::press(Qt::Key_E, Qt::ControlModifier);
        QVERIFY(driver.isDone());
    }
    QVERIFY(AppFixture::contentOf(picture).contains("<svg"));
}

FISHBONE_TEST(TestGuideKeyboard)
#include "tst_guide_keyboard.moc"
