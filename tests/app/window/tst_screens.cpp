// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/app/picturesubject.h>

#include <app/common/actionset.h>
#include <app/common/language.h>
#include <app/documents/closequestion.h>
#include <app/editing/pastedialog.h>
#include <app/export/exportdialog.h>
#include <app/export/picturesource.h>
#include <app/export/printpreview.h>
#include <app/files/mappingdialog.h>
#include <app/files/templategallery.h>
#include <app/recovery/recoverydialog.h>
#include <app/window/keysdialog.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/dialogs/urldialog.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/style/penselect.h>
#include <fishbone/style/spearstyle.h>
#include <fishbone/style/spearstyledialog.h>

#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QAbstractButton>
#include <QDirIterator>
#include <QDockWidget>
#include <QLabel>
#include <QPen>
#include <QSettings>
#include <QTabBar>
#include <QToolButton>

#include <functional>

namespace {

/** Something of the program to be looked at: makes it out of a window, which shows it or owns it,
 * and returns it. */
struct Screen
{
    const char *name;
    const char *className; ///< of the dialog, or of the window
    std::function<QWidget *(AppFixture &)> show;
};

QWidget *withDock(AppFixture &app, const char *name)
{
    auto *const dock = app.window.findChild<QDockWidget *>(QLatin1String(name));
    dock->show();
    AppFixture::settle();
    return &app.window;
}

QWidget *withRanks(AppFixture &app)
{
    withDock(app, "actionsDock");
    const auto *const dock = app.window.findChild<QDockWidget *>(QStringLiteral("actionsDock"));
    auto *const bar = dock->findChild<QTabBar *>();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    return &app.window;
}

QWidget *triggered(AppFixture &app, const char *action)
{
    app.trigger(action);
    return &app.window;
}

QWidget *mapping(AppFixture &app)
{
    TableMapping table;
    table.headings = QStringList{QStringLiteral("Summary"), QStringLiteral("Owner")};
    table.roles = {TableMapping::Role::Title, TableMapping::Role::Manager};
    return new MappingDialog(QStringLiteral("list.csv"), table, &app.window);
}

QWidget *recovery(AppFixture &app)
{
    LeftCopy copy;
    copy.copy = app.path();
    copy.original = app.path();
    copy.name = QStringLiteral("Late");
    copy.saved = QDateTime(QDate(2026, 3, 4), QTime(17, 5));
    copy.size = 12345;
    return new RecoveryDialog({copy}, &app.window);
}

QWidget *preview(AppFixture &app)
{
    DiagramView view;
    view.look = DiagramLook::Clear;
    auto *const source = new PictureSource(app.window.editor());
    auto *const dialog = new PrintPreview(source, view, nullptr, &app.window);
    QObject::connect(dialog, &QObject::destroyed, [source] { delete source; });
    return dialog;
}

QWidget *found(AppFixture &app)
{
    app.trigger("find");
    return app.window.findChild<ReplaceFindDialog *>();
}

/** All dialogs and panels of the program. */
QVector<Screen> screens()
{
    const auto dock = [](const char *name) {
        return [name](AppFixture &app) { return withDock(app, name); };
    };
    return {
        {"window", "MainWindow", [](AppFixture &app) { return &app.window; }},
        {"panel-subjects", "documentsDock", dock("documentsDock")},
        {"panel-overview", "overviewDock", dock("overviewDock")},
        {"panel-details", "detailsDock", dock("detailsDock")},
        {"panel-history", "historyDock", dock("historyDock")},
        {"panel-actions", "actionsDock", dock("actionsDock")},
        {"panel-ranks", "actionsDock", withRanks},
        {"filter", "FilterBar", [](AppFixture &app) { return triggered(app, "filter"); }},
        {"empty", "EmptyPage", [](AppFixture &app) { return triggered(app, "close"); }},
        {"close", "CloseQuestion",
         [](AppFixture &app) {
             return new CloseQuestion({app.window.tabs()->current()}, &app.window);
         }},
        {"export", "ExportDialog",
         [](AppFixture &app) {
             return new ExportDialog(QStringLiteral("late.png"), pictureSubject(DiagramLook::Clear),
                                     &app.window);
         }},
        {"find", "ReplaceFindDialog", found},
        {"keys", "KeysDialog",
         [](AppFixture &app) {
             return new KeysDialog(*app.window.findChild<ActionSet *>(), &app.window);
         }},
        {"mapping", "MappingDialog", mapping},
        {"paste", "PasteDialog",
         [](AppFixture &app) {
             return new PasteDialog(QStringLiteral("# Late\n- People\n  - Too few"), &app.window);
         }},
        {"pen", "PenSelect", [](AppFixture &app) { return new PenSelect(QPen(), &app.window); }},
        {"preview", "PrintPreview", preview},
        {"recovery", "RecoveryDialog", recovery},
        {"style", "SpearStyleDialog",
         [](AppFixture &app) {
             return new SpearStyleDialog(*SpearStyle::global(), true, &app.window);
         }},
        {"templates", "TemplateGallery",
         [](AppFixture &app) { return new TemplateGallery(&app.window); }},
        {"url", "URLDialog",
         [](AppFixture &app) { return new URLDialog(QString(), QString(), &app.window); }},
    };
}

/** What does not show all of its text. */
QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    const QList<QAbstractButton *> buttons = window.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
        const auto *const tool = qobject_cast<const QToolButton *>(button);
        const bool isIcon =
            tool && !tool->icon().isNull() && tool->toolButtonStyle() == Qt::ToolButtonIconOnly;
        if (button->isVisible() && !isIcon && text.width() > button->width())
            cut.append(button->text());
    }
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const bool isWhole = label->wordWrap() || label->width() >= label->sizeHint().width() ||
                             !label->toolTip().isEmpty();
        if (label->isVisible() && !label->text().isEmpty() && !isWhole)
            cut.append(label->text());
    }
    return cut;
}

} // namespace

/**
 * Shows every dialog and panel in small and large windows, light and dark, in English and Chinese:
 * each fits the screen, and no text is cut. Writes pictures of them into the folder "screens"
 * beside the program, to be looked at.
 */
class TestScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldKnowAllDialogsAndPanels();
    void shouldFitAndShowTheirTexts_data();
    void shouldFitAndShowTheirTexts();

private:
    QString m_folder;
};

void TestScreens::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_screens"));
    m_folder = QCoreApplication::applicationDirPath() + QStringLiteral("/screens");
    QVERIFY(QDir().mkpath(m_folder));
}

void TestScreens::shouldKnowAllDialogsAndPanels()
{
    QSet<QString> known;
    const QVector<Screen> all = screens();
    for (const Screen &screen : all)
        known.insert(QLatin1String(screen.className));
    static const QRegularExpression dialog(QStringLiteral(
        "\\nclass (?:FISHBONE_EXPORT )?(\\w+) : public Q\\w*(Dialog|MainWindow)\\n"));
    int dialogs = 0;
    for (const char *folder : {"app", "fishbone"}) {
        QDirIterator headers(TestSupport::sourceFile(QLatin1String(folder)),
                             {QStringLiteral("*.h")}, QDir::Files, QDirIterator::Subdirectories);
        while (headers.hasNext()) {
            const QString text = QString::fromUtf8(AppFixture::contentOf(headers.next()));
            const QRegularExpressionMatch match = dialog.match(text);
            if (!match.hasMatch())
                continue;
            ++dialogs;
            QVERIFY2(known.contains(match.captured(1)), qPrintable(match.captured(1)));
        }
    }
    QVERIFY(dialogs >= 12);
    const AppFixture app;
    const QList<QDockWidget *> docks = app.window.findChildren<QDockWidget *>();
    QVERIFY(docks.size() >= 5);
    for (const QDockWidget *dock : docks)
        QVERIFY2(known.contains(dock->objectName()), qPrintable(dock->objectName()));
}

void TestScreens::shouldFitAndShowTheirTexts_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<QString>("language");
    const bool isFine = qApp->devicePixelRatio() > 1;
    // What 1600 x 1000 pixels are at two a pixel.
    const QList<QSize> sizes =
        isFine ? QList<QSize>{{800, 500}} : QList<QSize>{{1024, 700}, {1600, 1000}};
    for (const QSize &size : sizes) {
        for (const bool isDark : {false, true}) {
            for (const char *language : {"en", "zh"})
                QTest::addRow("%dx%d@%g %s %s", size.width(), size.height(),
                              qApp->devicePixelRatio(), isDark ? "dark" : "light", language)
                    << size << isDark << QString::fromLatin1(language);
        }
    }
}

void TestScreens::shouldFitAndShowTheirTexts()
{
    QFETCH(QSize, size);
    QFETCH(bool, isDark);
    QFETCH(QString, language);
    QSettings().clear();
    Language::install(language);
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(0x31, 0x36, 0x3b));
    dark.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
    QApplication::setPalette(isDark ? dark : QPalette(QColor(0xef, 0xef, 0xef)));
    QString folder = m_folder + QLatin1Char('/') + QString::fromLatin1(QTest::currentDataTag());
    folder.replace(QLatin1Char(' '), QLatin1Char('-'));
    QVERIFY(QDir().mkpath(folder));
    QStringList faults;
    const QVector<Screen> all = screens();
    for (const Screen &screen : all) {
        AppFixture app;
        app.window.resize(size);
        SubjectMarks::setVotes(*app.subject("Rust"), 3);
        SubjectMarks::setVerdict(*app.subject("Rust"), Verdict::RootCause);
        app.subject("Machines")->setManagerName(QStringLiteral("Ann"));
        app.trigger("expandall");
        app.trigger("fit");
        app.select("Machines");
        QWidget *const shown = screen.show(app);
        shown->resize(shown->size().boundedTo(size));
        shown->show();
        AppFixture::settle();
        // The export shows its preview beside its fields, and needs more room than a screen of
        // half that many pixels has.
        const bool isKnown =
            size.height() < 600 && QLatin1String(screen.name) == QLatin1String("export");
        if (!isKnown && (shown->width() > size.width() || shown->height() > size.height()))
            faults.append(QStringLiteral("%1 is %2 x %3")
                              .arg(QLatin1String(screen.name))
                              .arg(shown->width())
                              .arg(shown->height()));
        const QStringList cut = cutTexts(*shown);
        for (const QString &text : cut)
            faults.append(QStringLiteral("%1 cuts \"%2\"").arg(QLatin1String(screen.name), text));
        QVERIFY(shown->grab().save(folder + QLatin1Char('/') + QLatin1String(screen.name) +
                                   QStringLiteral(".png")));
        if (shown != &app.window)
            delete shown;
    }
    QApplication::setPalette(before);
    Language::install(QStringLiteral("en"));
    for (const QString &fault : qAsConst(faults))
        qWarning().noquote() << fault; // each, where a comparison shows the first few
    QVERIFY(faults.isEmpty());
}

FISHBONE_TEST(TestScreens)
#include "tst_screens.moc"
