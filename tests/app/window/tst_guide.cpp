// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/exportdialogparts.h>
#include <tests/app/palettes.h>
#include <tests/app/window/guideplayer.h>
#include <tests/app/window/guidewords.h>

#include <app/common/language.h>
#include <app/export/exportdialog.h>
#include <app/export/printpreview.h>
#include <app/files/templategallery.h>
#include <app/panels/actionlist.h>
#include <app/panels/rankedlist.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/model/subjectmarks.h>

#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QClipboard>
#include <QComboBox>
#include <QDockWidget>
#include <QListWidget>
#include <QMimeData>
#include <QPainter>
#include <QProcess>
#include <QSettings>
#include <QTabBar>

using DialogAnswers::enter;
using TestSupport::ModalDriver;

/**
 * Plays the two stories of the guide for users, with keys and the mouse, in both of its languages,
 * and takes the guide's pictures of them: into the folder FISHBONE_GUIDE_PICTURES, if that is set,
 * otherwise to be looked at once.
 */
class TestGuide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { Language::install(QStringLiteral("en")); }
    void welcomesANewUser_data() { languages(); }
    void welcomesANewUser();
    void reviewsAnIncident_data() { languages(); }
    void reviewsAnIncident();
    void leadsAQualityCircle_data() { languages(); }
    void leadsAQualityCircle();
    void findsAndReplaces_data() { languages(); }
    void findsAndReplaces();
    void lightensAndDarkens_data() { languages(); }
    void lightensAndDarkens();
    void everyPictureOfTheGuideIsTaken_data() { languages(); }
    void everyPictureOfTheGuideIsTaken();
    void everyPictureOfTheReadmeIsThere();

private:
    static void languages();
    void take(QWidget &window, const char *name);
    void save(const QImage &picture, const char *name);
    void beginFromTemplate(GuidePlayer &player, int row, const QString &title);
    void insertCauses(GuidePlayer &player);
    void judge(GuidePlayer &player);
    void giveTo(GuidePlayer &player, const QString &title, const QString &person, int daysLater);
    void showActions(GuidePlayer &player);
    void filterRootCauses(GuidePlayer &player);
    void writeReport(GuidePlayer &player);
    void vote(GuidePlayer &player);
    void rank(GuidePlayer &player);
    void exportPage(GuidePlayer &player);
    void exportSlide(GuidePlayer &player);
    void previewPaper(GuidePlayer &player);

    QTemporaryDir m_folder;
    QString m_pictures;
    QString m_language;
    GuideWords m_words;
    QMap<QString, QStringList> m_taken; ///< in each language
};

void TestGuide::languages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QStringLiteral("en");
    QTest::newRow("Chinese") << QStringLiteral("zh");
}

void TestGuide::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_guide"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_pictures = qEnvironmentVariable("FISHBONE_GUIDE_PICTURES", m_folder.path());
    QVERIFY(QDir().mkpath(m_pictures + QStringLiteral("/zh")));
}

void TestGuide::init()
{
    QSettings().clear();
    if (!QTest::currentDataTag())
        return;
    m_language = QTest::currentDataTag() == QByteArray("Chinese") ? QStringLiteral("zh")
                                                                  : QStringLiteral("en");
    m_words = m_language == QLatin1String("zh") ? GuideWords::chinese() : GuideWords::english();
    Language::install(m_language);
}

void TestGuide::take(QWidget &window, const char *name)
{
    AppFixture::settle();
    const auto *const program = qobject_cast<MainWindow *>(&window);
    if (program && program->editor())
        QCOMPARE(program->editor()->look(), DiagramLook::Clear);
    if (qEnvironmentVariableIsSet("FISHBONE_GUIDE_PICTURES"))
        QTest::qWait(500); // for what follows a moment later, as the overview does
    QImage picture = window.grab().toImage();
    if (QWidget *const popup = QApplication::activePopupWidget()) {
        QPainter painter(&picture);
        painter.drawPixmap(window.mapFromGlobal(popup->mapToGlobal(QPoint())), popup->grab());
    }
    save(picture, name);
}

void TestGuide::save(const QImage &picture, const char *name)
{
    const bool isChinese = m_language == QLatin1String("zh");
    const QString file = (isChinese ? QStringLiteral("zh/") : QString()) + QLatin1String(name) +
                         QStringLiteral(".png");
    QVERIFY(picture.width() > 200);
    QVERIFY(picture.save(m_pictures + QLatin1Char('/') + file));
    m_taken[m_language].append(file);
}

void TestGuide::welcomesANewUser()
{
    GuidePlayer player;
    player.window.open({});
    take(player.window, "welcome");
}

/** Begins with the template in that row of the gallery, and gives the head its @p title. */
void TestGuide::beginFromTemplate(GuidePlayer &player, int row, const QString &title)
{
    const ModalDriver<TemplateGallery> driver([&](TemplateGallery &gallery) {
        auto *const list = gallery.findChild<QListWidget *>(QStringLiteral("templateList"));
        // Keys move nothing before the list is laid out.
        for (int tries = 0; tries < 1000 && list->currentRow() < row; ++tries) {
            QTest::keyClick(list, list->currentRow() + 4 <= row ? Qt::Key_Down : Qt::Key_Right);
            QCoreApplication::processEvents();
        }
        QCOMPARE(list->currentRow(), row);
        if (row == 6)
            take(gallery, "templates");
        QTest::keyClick(list, Qt::Key_Return);
    });
    GuidePlayer::press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(driver.isDone());
    player.returnToWindow();
    GuidePlayer::type(title);
    GuidePlayer::press(Qt::Key_Return);
    QVERIFY(player.outline().startsWith(title + QLatin1Char('[')));
}

void TestGuide::insertCauses(GuidePlayer &player)
{
    player.insertBelow(m_words.change, m_words.dropped);
    player.insertBelow(m_words.alarm, m_words.lateAlarm);
    player.insertBelow(m_words.wayBack, m_words.slowWayBack);
    player.click(m_words.tests);
    GuidePlayer::press(Qt::Key_Tab);
    GuidePlayer::type(m_words.untested);
    take(player.window, "incident-causes");
    GuidePlayer::press(Qt::Key_Return);
    QVERIFY(player.outline().contains(m_words.tests + QLatin1Char('[') + m_words.untested));
}

void TestGuide::judge(GuidePlayer &player)
{
    player.click(m_words.load);
    GuidePlayer::press(Qt::Key_4, Qt::AltModifier);
    player.click(m_words.lateAlarm);
    GuidePlayer::press(Qt::Key_2, Qt::AltModifier);
    player.click(m_words.slowWayBack);
    player.click(m_words.untested, Qt::ControlModifier);
    GuidePlayer::press(Qt::Key_3, Qt::AltModifier);
    player.click(m_words.dropped);
    GuidePlayer::press(Qt::Key_Space);
    QVERIFY(QApplication::activePopupWidget());
    take(player.window, "incident-palette");
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_O);
    AppFixture::settle();
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(SubjectMarks::verdict(*player.subject(m_words.dropped)), Verdict::RootCause);
    QCOMPARE(SubjectMarks::verdict(*player.subject(m_words.load)), Verdict::RuledOut);
    QCOMPARE(SubjectMarks::verdict(*player.subject(m_words.untested)), Verdict::Confirmed);
    QCOMPARE(SubjectMarks::verdict(*player.subject(m_words.slowWayBack)), Verdict::Confirmed);

    GuidePlayer::press(Qt::Key_F4);
    GuidePlayer::tabTo("detailsText");
    GuidePlayer::type(m_words.evidence);
    take(player.window, "incident-evidence");
    // In a text of several lines Return begins the next one.
    QTest::mouseClick(
        player.window.findChild<DocumentTabs *>()->current()->details()->findChild<QWidget *>(
            QStringLiteral("detailsApply")),
        Qt::LeftButton);
    AppFixture::settle();
    QVERIFY(player.subject(m_words.dropped)->detail().contains(m_words.evidence));
}

/** Makes @p person responsible for @p title, due so many days from now. */
void TestGuide::giveTo(GuidePlayer &player, const QString &title, const QString &person,
                       int daysLater)
{
    player.click(title);
    GuidePlayer::press(Qt::Key_F4);
    GuidePlayer::tabTo("detailsManager");
    GuidePlayer::type(person);
    GuidePlayer::tabTo("detailsHasPlannedEnd");
    GuidePlayer::press(Qt::Key_Space);
    GuidePlayer::tabTo("detailsPlannedEnd");
    const QDate day = QDate::currentDate().addDays(daysLater);
    GuidePlayer::press(Qt::Key_A, Qt::ControlModifier);
    GuidePlayer::type(QLocale().toString(day, QLocale::ShortFormat));
    GuidePlayer::press(Qt::Key_Return);
    const TreeItem &subject = *player.subject(title);
    QCOMPARE(subject.managerName(), person);
    QCOMPARE(QDateTime::fromMSecsSinceEpoch(subject.planEndDate()).date(), day);
    player.window.editor()->view()->setFocus();
}

void TestGuide::showActions(GuidePlayer &player)
{
    giveTo(player, m_words.dropped, m_words.anna, 3);
    giveTo(player, m_words.untested, m_words.anna, 10);
    giveTo(player, m_words.slowWayBack, m_words.ben, -2);
    auto *const dock = player.window.findChild<QDockWidget *>(QStringLiteral("actionsDock"));
    dock->toggleViewAction()->trigger();
    AppFixture::settle();
    GuidePlayer::press(Qt::Key_Home);
    take(player.window, "incident-actions");
    const auto *const list = player.window.findChild<ActionList *>();
    for (const QString &title : {m_words.dropped, m_words.untested, m_words.slowWayBack})
        QCOMPARE(list->findItems(title, Qt::MatchExactly | Qt::MatchRecursive).size(), 1);
    dock->toggleViewAction()->trigger();
    AppFixture::settle();
}

void TestGuide::filterRootCauses(GuidePlayer &player)
{
    player.window.editor()->view()->setFocus();
    GuidePlayer::press(Qt::Key_Home);
    GuidePlayer::press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    GuidePlayer::tabTo("filterVerdict");
    GuidePlayer::press(Qt::Key_End); // the root causes are last
    take(player.window, "incident-filter");
    QCOMPARE(player.subject(m_words.dropped)->spear()->opacity(), 1.0);
    QVERIFY(player.subject(m_words.load)->spear()->opacity() < 0.5);
    GuidePlayer::press(Qt::Key_Escape);
    QCOMPARE(player.subject(m_words.load)->spear()->opacity(), 1.0);
}

void TestGuide::writeReport(GuidePlayer &player)
{
    player.window.editor()->view()->setFocus();
    QGuiApplication::clipboard()->clear();
    GuidePlayer::press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(QGuiApplication::clipboard()->mimeData()->hasImage());

    const QString page = m_folder.filePath(m_language + QStringLiteral(".html"));
    const QString paper = m_folder.filePath(m_language + QStringLiteral(".pdf"));
    for (const QString &file : {page, paper}) {
        const ModalDriver<QFileDialog> driver(enter(file));
        player.chooseFromMenu(Qt::Key_F, "report");
        QVERIFY(driver.isDone());
        player.returnToWindow();
    }
    const QByteArray report = AppFixture::contentOf(page);
    for (const QString &word :
         {m_words.outage, m_words.dropped, m_words.evidence, m_words.anna, m_words.ben})
        QVERIFY2(report.contains(word.toUtf8()), qPrintable(word));

    // As whoever gets it by mail sees it.
    const QString shown = m_folder.filePath(m_language + QStringLiteral("-report"));
    QCOMPARE(QProcess::execute(QStringLiteral("pdftoppm"),
                               {QStringLiteral("-png"), QStringLiteral("-r"), QStringLiteral("80"),
                                QStringLiteral("-singlefile"), paper, shown}),
             0);
    save(QImage(shown + QStringLiteral(".png")), "incident-report");
}

void TestGuide::reviewsAnIncident()
{
    GuidePlayer player;
    beginFromTemplate(player, 6, m_words.outage);
    insertCauses(player);
    judge(player);
    showActions(player);
    filterRootCauses(player);
    writeReport(player);
}

void TestGuide::vote(GuidePlayer &player)
{
    player.insertBelow(m_words.settings, m_words.steep);
    player.insertBelow(m_words.storage, m_words.warm);
    player.insertBelow(m_words.sampling, m_words.fewBoards);
    GuidePlayer::press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    GuidePlayer::press(Qt::Key_Home);
    const auto give = [&player](const QString &title, int votes) {
        player.click(title);
        GuidePlayer::press(Qt::Key_F7, Qt::NoModifier, votes);
    };
    give(m_words.fewBoards, 3);
    give(m_words.steep, 5);
    give(m_words.warm, 8);
    take(player.window, "circle-votes");
    QCOMPARE(SubjectMarks::votes(*player.subject(m_words.warm)), 8);
    GuidePlayer::press(Qt::Key_Escape);
}

void TestGuide::rank(GuidePlayer &player)
{
    auto *const dock = player.window.findChild<QDockWidget *>(QStringLiteral("actionsDock"));
    dock->toggleViewAction()->trigger();
    AppFixture::settle();
    auto *const ranked = player.window.findChild<RankedList *>();
    for (QTabBar *const bar : dock->findChildren<QTabBar *>())
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    AppFixture::settle();
    QVERIFY(ranked->isVisible());
    QCOMPARE(ranked->topLevelItem(0)->text(1), m_words.warm);
    QCOMPARE(ranked->topLevelItem(1)->text(1), m_words.steep);
    GuidePlayer::press(Qt::Key_Home);
    take(player.window, "circle-ranked");
    dock->toggleViewAction()->trigger();
    AppFixture::settle();
}

void TestGuide::exportPage(GuidePlayer &player)
{
    player.window.editor()->view()->setFocus();
    const QString file = m_folder.filePath(m_language + QStringLiteral("-circle.pdf"));
    const ModalDriver<ExportDialog> driver([&](ExportDialog &dialog) {
        auto *const name = dialog.findChild<QLineEdit *>(QStringLiteral("file"));
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("circle.pdf"));
        auto *const shape = dialog.findChild<QComboBox *>(QStringLiteral("page"));
        ExportDialogParts::chooseEntry(shape, 1);
        QCOMPARE(shape->currentIndex(), 1);
        take(dialog, "circle-export");
        name->selectAll();
        QTest::keyClicks(name, file);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    GuidePlayer::press(Qt::Key_E, Qt::ControlModifier);
    QVERIFY(driver.isDone());
    QVERIFY(AppFixture::contentOf(file).startsWith("%PDF"));
    player.returnToWindow();
}

void TestGuide::exportSlide(GuidePlayer &player)
{
    const QString file = m_folder.filePath(m_language + QStringLiteral("-circle.pptx"));
    const ModalDriver<QFileDialog> driver(enter(file));
    player.chooseFromMenu(Qt::Key_F, "exportAs");
    QVERIFY(driver.isDone());
    QVERIFY(AppFixture::contentOf(file).startsWith("PK"));
    player.returnToWindow();
}

void TestGuide::previewPaper(GuidePlayer &player)
{
    const ModalDriver<PrintPreview> driver([this](PrintPreview &preview) {
        QTest::qWait(50); // the preview is made when it is shown
        take(preview, "circle-paper");
        preview.reject();
    });
    player.chooseFromMenu(Qt::Key_F, "printPreview");
    QVERIFY(driver.isDone());
}

void TestGuide::leadsAQualityCircle()
{
    GuidePlayer player;
    beginFromTemplate(player, 1, m_words.voids);
    vote(player);
    rank(player);
    exportPage(player);
    exportSlide(player);
    previewPaper(player);
}

void TestGuide::findsAndReplaces()
{
    GuidePlayer player;
    beginFromTemplate(player, 1, m_words.voids);
    GuidePlayer::press(Qt::Key_F, Qt::ControlModifier);
    auto *const dialog = player.window.findChild<ReplaceFindDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    GuidePlayer::type(m_words.storage);
    GuidePlayer::press(Qt::Key_Tab);
    GuidePlayer::type(m_words.sampling);
    GuidePlayer::press(Qt::Key_Tab, Qt::ShiftModifier);
    GuidePlayer::press(Qt::Key_Return);
    take(*dialog, "find");
    QCOMPARE(dialog->matches().size(), 1);
}

void TestGuide::lightensAndDarkens()
{
    GuidePlayer player;
    const QPalette light = QApplication::palette();
    QApplication::setPalette(Palettes::dark());
    beginFromTemplate(player, 1, m_words.voids);
    take(player.window, "dark");
    const QColor canvas = player.window.editor()->view()->backgroundBrush().color();
    QVERIFY(canvas.lightness() < 80);
    QApplication::setPalette(light);
    AppFixture::settle();
    QVERIFY(player.window.editor()->view()->backgroundBrush().color().lightness() > 200);
}

void TestGuide::everyPictureOfTheGuideIsTaken()
{
    const bool isChinese = m_language == QLatin1String("zh");
    const QString name = isChinese ? QStringLiteral("README.zh.md") : QStringLiteral("README.md");
    QFile guide(TestSupport::sourceFile(QStringLiteral("docs/guide/") + name));
    QVERIFY(guide.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(guide.readAll());
    static const QRegularExpression reference(QStringLiteral("\\(pictures/([^)]+)\\)"));
    QStringList shown;
    for (auto found = reference.globalMatch(text); found.hasNext();)
        shown.append(found.next().captured(1));
    shown.sort();
    QStringList taken = m_taken.value(m_language);
    taken.sort();
    QCOMPARE(shown, taken);
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
