// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tests/app/appfixture.h>

#include <app/common/actionset.h>
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

#include <QDockWidget>
#include <QTabBar>

#include <functional>
#include <memory>

/** The dialogs and panels of the program, for tests that go through all of them. */
namespace Screens {

/** Something of the program to be looked at: makes it out of a window, which shows it or owns it,
 * and returns it. */
struct Screen
{
    const char *name;
    const char *className; ///< of the dialog, or of the window
    std::function<QWidget *(AppFixture &)> show;
};

inline QWidget *withDock(AppFixture &app, const char *name)
{
    auto *const dock = app.window.findChild<QDockWidget *>(QLatin1String(name));
    dock->show();
    AppFixture::settle();
    return &app.window;
}

inline QWidget *withRanks(AppFixture &app)
{
    withDock(app, "actionsDock");
    const auto *const dock = app.window.findChild<QDockWidget *>(QStringLiteral("actionsDock"));
    auto *const bar = dock->findChild<QTabBar *>();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(1).center());
    return &app.window;
}

inline QWidget *triggered(AppFixture &app, const char *action)
{
    app.trigger(action);
    return &app.window;
}

inline QWidget *mapping(AppFixture &app)
{
    TableMapping table;
    table.headings = QStringList{QStringLiteral("Summary"), QStringLiteral("Owner")};
    table.roles = {TableMapping::Role::Title, TableMapping::Role::Manager};
    return new MappingDialog(QStringLiteral("list.csv"), table, &app.window);
}

inline QWidget *recovery(AppFixture &app)
{
    LeftCopy copy;
    copy.copy = app.path();
    copy.original = app.path();
    copy.name = QStringLiteral("Late");
    copy.saved = QDateTime(QDate(2026, 3, 4), QTime(17, 5));
    copy.size = 12345;
    return new RecoveryDialog({copy}, &app.window);
}

inline QWidget *exported(AppFixture &app)
{
    DiagramView view;
    view.look = DiagramLook::Clear;
    const auto source = std::make_shared<PictureSource>(app.window.editor());
    const auto extent = [source](const PictureWish &wish) {
        source->setWish(wish);
        return source->extent();
    };
    const auto paint = [source](QPainter &painter, const QRectF &target, bool) {
        source->paint(painter, target);
    };
    return new ExportDialog(QStringLiteral("late.png"),
                            {source->depth(), Qt::white, view, extent, paint}, &app.window);
}

inline QWidget *preview(AppFixture &app)
{
    DiagramView view;
    view.look = DiagramLook::Clear;
    auto *const source = new PictureSource(app.window.editor());
    auto *const dialog = new PrintPreview(source, view, nullptr, &app.window);
    QObject::connect(dialog, &QObject::destroyed, [source] { delete source; });
    return dialog;
}

inline QWidget *found(AppFixture &app)
{
    app.trigger("find");
    return app.window.findChild<ReplaceFindDialog *>();
}

/** Has @p dialog preview on the canvas, as the program does. */
template <typename Dialog>
QWidget *onCanvas(Dialog *dialog, const AppFixture &app)
{
    dialog->setPreviewBackground(app.window.editor()->view()->backgroundBrush().color());
    return dialog;
}

/** All dialogs and panels of the program. */
inline QVector<Screen> all()
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
        {"export", "ExportDialog", exported},
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
        {"pen", "PenSelect",
         [](AppFixture &app) {
             auto *const dialog =
                 new PenSelect(*SpearStyle::global()->broderPen(SpearStyle::ssNormal), &app.window);
             return onCanvas(dialog, app);
         }},
        {"preview", "PrintPreview", preview},
        {"recovery", "RecoveryDialog", recovery},
        {"style", "SpearStyleDialog",
         [](AppFixture &app) {
             return onCanvas(new SpearStyleDialog(*SpearStyle::global(), true, &app.window), app);
         }},
        {"templates", "TemplateGallery",
         [](AppFixture &app) { return new TemplateGallery(&app.window); }},
        {"url", "URLDialog",
         [](AppFixture &app) { return new URLDialog(QString(), QString(), &app.window); }},
    };
}

/** Gives the diagram of @p app what the panels show of marks, and draws all of it. */
inline void prepare(AppFixture &app, const QSize &size)
{
    app.window.resize(size);
    SubjectMarks::setVotes(*app.subject("Rust"), 3);
    SubjectMarks::setVerdict(*app.subject("Rust"), Verdict::RootCause);
    app.subject("Machines")->setManagerName(QStringLiteral("Ann"));
    app.trigger("expandall");
    app.trigger("fit");
    app.select("Machines");
}

} // namespace Screens
