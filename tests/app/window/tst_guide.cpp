// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/canvastheme.h>
#include <app/common/language.h>
#include <app/export/exportdialog.h>
#include <app/export/printpreview.h>
#include <app/window/keysdialog.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/style/spearstyledialog.h>

#include <tests/app/appfixture.h>
#include <tests/app/dialoganswers.h>
#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>
#include <tests/support/sourcefolder.h>

#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QSpinBox>

using DialogAnswers::enter;
using TestSupport::ModalDriver;

/**
 * Does what the guide for new users describes, by keyboard alone, and takes the guide's pictures
 * of it: into the folder FISHBONE_GUIDE_PICTURES, if that is set, otherwise to be looked at once.
 */
class TestGuide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void welcomesANewUser();
    void leadsFromNothingToAPictureByKeyboardAlone();
    void findsAndReplaces();
    void showsTheKeys();
    void previewsThePaper();
    void lightensAndDarkens();
    void everyPictureOfTheGuideIsTaken();
    void everyPictureOfTheReadmeIsThere();

private:
    void take(QWidget &window, const char *name);
    static QWidget *focus()
    {
        return QApplication::focusWidget() ? QApplication::focusWidget()
                                           : QApplication::activeWindow();
    }
    /** Types @p text wherever the focus goes meanwhile. */
    static void type(const char *text)
    {
        const QString characters = QString::fromUtf8(text);
        for (const QChar &character : characters)
            QTest::keyClicks(focus(), QString(character));
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(focus(), key, modifiers);
        AppFixture::settle();
    }
    /** Inserts with @p key and gives the title. */
    static void insert(Qt::Key key, const char *title)
    {
        press(key);
        type(title);
        press(Qt::Key_Return);
    }
    /** Opens the menu of the menu bar by its key and walks to an entry. */
    static void chooseFromMenu(MainWindow &window, Qt::Key key, const char *entry)
    {
        QTest::keyClick(window.menuBar(), key, Qt::AltModifier);
        QVERIFY(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        auto *const menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        const auto isThere = [&] {
            return menu->activeAction() &&
                   menu->activeAction()->objectName() == QLatin1String(entry);
        };
        for (int step = 0; step < menu->actions().size() && !isThere(); ++step)
            QTest::keyClick(menu, Qt::Key_Down);
        QVERIFY(isThere());
        QTest::keyClick(menu, Qt::Key_Return);
        AppFixture::settle();
    }
    /** Goes on in @p window when a dialog is gone: there is no desktop that would activate it. */
    static void returnTo(MainWindow &window)
    {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.editor()->view()->setFocus();
    }
    static QString outline(const MainWindow &window)
    {
        return AppFixture::textOf(window.session()->document()->treeItem()->childAtIndex(0));
    }

    QTemporaryDir m_folder;
    QString m_pictures;
    QStringList m_taken;
};

void TestGuide::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_guide"));
    QSettings().clear();
    Language::install(QStringLiteral("en"));
    m_pictures = qEnvironmentVariable("FISHBONE_GUIDE_PICTURES", m_folder.path());
}

void TestGuide::take(QWidget &window, const char *name)
{
    AppFixture::settle();
    const auto *const program = qobject_cast<MainWindow *>(&window);
    if (program && program->editor())
        QCOMPARE(program->editor()->look(), DiagramLook::Clear);
    if (qEnvironmentVariableIsSet("FISHBONE_GUIDE_PICTURES"))
        QTest::qWait(500); // for what follows a moment later, as the overview does
    const QString file = QLatin1String(name) + QStringLiteral(".png");
    const QImage picture = window.grab().toImage();
    QVERIFY(picture.width() > 200);
    QVERIFY(picture.save(m_pictures + QLatin1Char('/') + file));
    m_taken.append(file);
}

void TestGuide::welcomesANewUser()
{
    MainWindow window;
    window.resize(1100, 700);
    window.show();
    window.open({});
    AppFixture::settle();
    take(window, "welcome");
}

void TestGuide::leadsFromNothingToAPictureByKeyboardAlone()
{
    MainWindow window;
    window.resize(1100, 700);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    press(Qt::Key_N, Qt::ControlModifier);
    type("Late deliveries");
    press(Qt::Key_Return);
    insert(Qt::Key_Tab, "People");
    press(Qt::Key_Return);
    type("Machines");
    take(window, "typing");
    press(Qt::Key_Return);
    insert(Qt::Key_Return, "Materials");
    insert(Qt::Key_Tab, "Rust");
    insert(Qt::Key_Return, "Wrong parts");
    press(Qt::Key_Up, Qt::ControlModifier);   // Materials
    press(Qt::Key_Left, Qt::ControlModifier); // Machines
    insert(Qt::Key_Tab, "Old drill");
    press(Qt::Key_Up, Qt::ControlModifier);
    press(Qt::Key_Left, Qt::ControlModifier); // People
    insert(Qt::Key_Tab, "Too few");
    insert(Qt::Key_Return, "Too new");
    QCOMPARE(outline(window), QStringLiteral("Late deliveries[People[Too few,Too new],"
                                             "Machines[Old drill],Materials[Rust,Wrong parts]]"));
    press(Qt::Key_Home);
    take(window, "built");

    // Rearranged: "Too new" before "Too few", "Old drill" beside "Machines" and back.
    press(Qt::Key_Up, Qt::AltModifier);
    QVERIFY(outline(window).contains(QLatin1String("People[Too new,Too few]")));
    press(Qt::Key_F2);
    press(Qt::Key_End);
    type(" to it");
    press(Qt::Key_Return);
    QVERIFY(outline(window).contains(QLatin1String("People[Too new to it,Too few]")));
    press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(outline(window).contains(QLatin1String("People[Too new,Too few]")));
    press(Qt::Key_Up, Qt::ControlModifier);

    // Details of "People".
    press(Qt::Key_F4);
    auto *const details = window.findChild<QWidget *>(QStringLiteral("detailsDock"));
    QVERIFY(details->isAncestorOf(QApplication::focusWidget()));
    press(Qt::Key_End);
    type(" and hands");
    take(window, "details");
    press(Qt::Key_Return);
    QVERIFY(outline(window).contains(QLatin1String("[People and hands[")));

    // Restyled: the normal state of the bone shows at most five characters.
    window.editor()->view()->setFocus();
    {
        const ModalDriver<SpearStyleDialog> driver([this](SpearStyleDialog &dialog) {
            auto *const count = dialog.findChild<QLineEdit *>();
            count->setFocus();
            count->selectAll();
            QTest::keyClicks(count, QStringLiteral("5"));
            take(dialog, "style");
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        chooseFromMenu(window, Qt::Key_S, "style");
        QVERIFY(driver.isDone());
    }
    returnTo(window);
    const TreeItem *const head = window.session()->document()->treeItem()->childAtIndex(0);
    QVERIFY(head->childAtIndex(0)->spearStyle());
    QCOMPARE(head->childAtIndex(0)->spearStyle()->textCount(), 5);

    // Saved, closed, opened again, exported.
    const QString file = m_folder.filePath(QStringLiteral("late.json"));
    {
        const ModalDriver<QFileDialog> driver(enter(file));
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(driver.isDone());
    }
    returnTo(window);
    QVERIFY(!window.isWindowModified());
    const QString saved = outline(window);
    press(Qt::Key_W, Qt::ControlModifier);
    QVERIFY(window.tabs()->tabs().isEmpty());
    take(window, "empty");
    {
        const ModalDriver<QFileDialog> driver(enter(file));
        press(Qt::Key_O, Qt::ControlModifier);
        QVERIFY(driver.isDone());
    }
    returnTo(window);
    AppFixture::settle();
    QCOMPARE(outline(window), saved);
    const QString picture = m_folder.filePath(QStringLiteral("late.svg"));
    {
        const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
            auto *const name = dialog.findChild<QLineEdit *>(QStringLiteral("file"));
            name->setFocus();
            name->selectAll();
            QTest::keyClicks(name, QStringLiteral("late.svg"));
            take(dialog, "export");
            name->selectAll();
            QTest::keyClicks(name, picture);
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        press(Qt::Key_E, Qt::ControlModifier);
        QVERIFY(driver.isDone());
    }
    QVERIFY(AppFixture::contentOf(picture).contains("<svg"));
}

void TestGuide::findsAndReplaces()
{
    AppFixture app;
    QTest::keyClick(&app.window, Qt::Key_F, Qt::ControlModifier);
    AppFixture::settle();
    auto *const dialog = app.window.findChild<ReplaceFindDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    type("Too");
    press(Qt::Key_Tab);
    type("Far too");
    press(Qt::Key_Tab, Qt::ShiftModifier);
    press(Qt::Key_Return);
    take(*dialog, "find");
    QCOMPARE(dialog->matches().size(), 2);
}

void TestGuide::showsTheKeys()
{
    AppFixture app;
    const ModalDriver<KeysDialog> driver([this](KeysDialog &dialog) {
        take(dialog, "keys");
        dialog.reject();
    });
    app.trigger("keys");
    QVERIFY(driver.isDone());
}

void TestGuide::previewsThePaper()
{
    AppFixture app;
    app.window.editor()->expandAll();
    const ModalDriver<PrintPreview> driver([this](PrintPreview &preview) {
        QTest::qWait(50); // the preview is made when it is shown
        take(preview, "preview");
        preview.reject();
    });
    app.trigger("printPreview");
    QVERIFY(driver.isDone());
}

void TestGuide::lightensAndDarkens()
{
    AppFixture app;
    app.window.resize(1100, 700);
    app.window.editor()->expandAll();
    app.trigger("fit");
    const QPalette light = QApplication::palette();
    QPalette dark(QColor(0x31, 0x36, 0x3b));
    dark.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
    dark.setColor(QPalette::AlternateBase, QColor(0x2b, 0x2f, 0x33));
    QApplication::setPalette(dark);
    AppFixture::settle();
    take(app.window, "dark");
    const QColor canvas = app.window.editor()->view()->backgroundBrush().color();
    QVERIFY(canvas.lightness() < 80);
    QApplication::setPalette(light);
    AppFixture::settle();
    QVERIFY(app.window.editor()->view()->backgroundBrush().color().lightness() > 200);
}

void TestGuide::everyPictureOfTheGuideIsTaken()
{
    QFile guide(TestSupport::sourceFile(QStringLiteral("docs/guide/README.md")));
    QVERIFY(guide.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(guide.readAll());
    static const QRegularExpression reference(QStringLiteral("\\(pictures/([^)]+)\\)"));
    QStringList shown;
    for (auto found = reference.globalMatch(text); found.hasNext();)
        shown.append(found.next().captured(1));
    shown.sort();
    m_taken.sort();
    QCOMPARE(shown, m_taken);
    for (const QString &picture : qAsConst(shown))
        QVERIFY2(QFile::exists(TestSupport::sourceFile(QStringLiteral("docs/guide/pictures/")) +
                               picture),
                 qPrintable(picture));
}

void TestGuide::everyPictureOfTheReadmeIsThere()
{
    const QString readme = QString::fromUtf8(
        AppFixture::contentOf(TestSupport::sourceFile(QStringLiteral("README.md"))));
    static const QRegularExpression reference(QStringLiteral("!\\[[^]]+\\]\\(([^)]+)\\)"));
    int pictures = 0;
    for (auto found = reference.globalMatch(readme); found.hasNext(); ++pictures) {
        const QString name = found.next().captured(1);
        const QImage picture(TestSupport::sourceFile(name));
        QVERIFY2(picture.width() >= 600, qPrintable(name));
    }
    QVERIFY(pictures >= 1);
}

FISHBONE_TEST(TestGuide)
#include "tst_guide.moc"
