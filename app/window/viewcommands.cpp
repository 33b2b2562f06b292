// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/viewcommands.h>

#include <app/common/actionset.h>
#include <app/common/busycursor.h>
#include <app/common/canvastheme.h>
#include <app/common/workprogress.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/expansion.h>
#include <app/window/windowlayout.h>
#include <app/window/zoomcontrols.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/pictureexport.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace {

constexpr int zoomStep = 25; ///< half way to twice the size
constexpr int rotateStep = 15;

} // namespace

ViewCommands::ViewCommands(DiagramSession *session, CanvasTheme *theme, ZoomControls *controls,
                           ActionSet *actions, QWidget *window)
    : DiagramCommands(session, actions, window)
    , m_theme(theme)
    , m_controls(controls)
    , m_window(window)
{
    addZoomActions();
    addExpandActions();
    addDiagramActions();
}

void ViewCommands::addZoomActions()
{
    const auto add = [this](const char *name, const char *text,
                            const QList<QKeySequence> &shortcuts, std::function<void()> run) {
        m_actions->add(
            QLatin1String(name), [text] { return tr(text); }, shortcuts, ActionSet::Scope::Window,
            std::move(run));
    };
    add("zoomin", QT_TR_NOOP("Zoom &in"),
        {QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)},
        [this] { m_editor->zoomIn(zoomStep); });
    add("zoomout", QT_TR_NOOP("Zoom &out"), {QKeySequence::ZoomOut},
        [this] { m_editor->zoomOut(zoomStep); });
    add("fullsize", QT_TR_NOOP("&100 %"), {QKeySequence(Qt::CTRL | Qt::Key_0)},
        [this] { m_editor->fullSize(); });
    m_actions->add(
        QStringLiteral("fit"), [] { return tr("&Fit all"); },
        {Qt::Key_Home, QKeySequence(Qt::CTRL | Qt::Key_9)}, ActionSet::Scope::Drawing,
        [this] { fitAll(); });
    add("fitselection", QT_TR_NOOP("Fit &selection"), {QKeySequence(Qt::CTRL | Qt::Key_8)},
        [this] { m_editor->showSelected(); });
    add("rotateRight", QT_TR_NOOP("Rotate &right"), {QKeySequence(Qt::CTRL | Qt::Key_BracketRight)},
        [this] { m_controls->setRotation(m_editor->rotateValue() + rotateStep); });
    add("rotateLeft", QT_TR_NOOP("Rotate &left"), {QKeySequence(Qt::CTRL | Qt::Key_BracketLeft)},
        [this] { m_controls->setRotation(m_editor->rotateValue() - rotateStep); });
    add("rotateReset", QT_TR_NOOP("U&pright"), {}, [this] { m_controls->setRotation(0); });
    add("fullScreen", QT_TR_NOOP("S&how full screen"), {Qt::Key_F11},
        [this] { m_window->setWindowState(m_window->windowState() ^ Qt::WindowFullScreen); });
}

void ViewCommands::addExpandActions()
{
    const auto add = [this](const char *name, const char *text, const QKeySequence &shortcut,
                            std::function<void()> run) {
        m_actions->add(
            QLatin1String(name), [text] { return tr(text); }, {shortcut},
            ActionSet::Scope::Selection, std::move(run));
    };
    add("expand", QT_TR_NOOP("E&xpand"), Qt::Key_Plus, [this] {
        // The editor shows the children that there are; those that were never shown are made
        // first.
        m_editor->generateSpear(m_session->model(), m_editor->firstSelectedSpearIndex());
        m_editor->modifyExpand();
    });
    add("contract", QT_TR_NOOP("&Contract"), Qt::Key_Minus, [this] { m_editor->modifyContract(); });
    add("expandall", QT_TR_NOOP("Expand &all"), Qt::Key_Asterisk, [this] { expandAll(); });
    add("contractall", QT_TR_NOOP("Con&tract all"), Qt::Key_Slash, [this] {
        const BusyCursor busy(m_session->container());
        m_editor->modifyContractAll();
    });
}

/** Makes the bones that were never shown, which may take its time, and shows them all. */
void ViewCommands::expandAll()
{
    {
        WorkProgress progress(tr("Expanding all bones…"), m_window);
        const auto report = [&progress](int done, int total) {
            return progress.report(done, total);
        };
        if (!Expansion::makeBones(*m_editor, report)) {
            m_editor->updateFish(false);
            return;
        }
    }
    const BusyCursor busy(m_session->container());
    m_editor->generateAllSubSpear(m_session->model(), m_editor->rootIndex());
    m_editor->modifyExpandAll();
}

void ViewCommands::addDiagramActions()
{
    const auto add = [this](const char *name, const char *text, const QKeySequence &shortcut,
                            std::function<void()> run) {
        return m_actions->add(
            QLatin1String(name), [text] { return tr(text); }, {shortcut}, ActionSet::Scope::Window,
            std::move(run));
    };
    add("asDiagram", QT_TR_NOOP("Show as a &diagram of its own"), {},
        [this] { m_session->showAsDiagram(m_editor->firstSelectedSpearIndex()); });
    add("back", QT_TR_NOOP("&Back"), QKeySequence(Qt::ALT | Qt::Key_Backspace),
        [this] { m_session->goBack(); });
    add("whole", QT_TR_NOOP("Show the &whole diagram"), QKeySequence(Qt::ALT | Qt::Key_Home),
        [this] { m_session->showWhole(); });
    add("canvasStyle", QT_TR_NOOP("Style of &all subjects…"), {},
        [this] { m_theme->editStyle(m_window); });

    auto *const modes = new QActionGroup(this);
    QAction *const diagramMode =
        add("diagramMode", QT_TR_NOOP("&Diagram mode"), {}, [this] { setTaskMode(false); });
    QAction *const taskMode =
        add("taskMode", QT_TR_NOOP("&Task mode"), {}, [this] { setTaskMode(true); });
    for (QAction *mode : {diagramMode, taskMode}) {
        mode->setCheckable(true);
        modes->addAction(mode);
    }
    setTaskMode(false);
}

void ViewCommands::offerFocus(WindowLayout *layout)
{
    QAction *const focus = m_actions->add(
        QStringLiteral("focus"), [] { return tr("&Just the drawing"); },
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F)}, ActionSet::Scope::Window,
        [layout] { layout->setFocused(!layout->isFocused()); });
    focus->setCheckable(true);
    connect(layout, &WindowLayout::focusChanged, focus, &QAction::setChecked);
}

void ViewCommands::setTaskMode(bool taskMode)
{
    m_isTaskMode = taskMode;
    m_actions->action(taskMode ? QStringLiteral("taskMode") : QStringLiteral("diagramMode"))
        ->setChecked(true);
    showMode();
}

void ViewCommands::showMode()
{
    const BusyCursor busy(m_session->container());
    m_session->model()->setModelType(m_isTaskMode ? FISH_MODEL_NORMAL : FISH_MODEL_DIAGRAM);
    m_editor->updateFish(false); // the head shows counts or not
    m_session->touch();
}

/** The mode is the window's, whichever tab it was chosen in. */
void ViewCommands::setSession(DiagramSession *session)
{
    DiagramCommands::setSession(session);
    showMode();
}

void ViewCommands::fitAll()
{
    // Also the head itself, and nothing that is hidden.
    m_editor->equalRatio(PictureExport::visibleRect(*m_editor->scene()));
}

void ViewCommands::listVisited(QMenu *menu)
{
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        const QModelIndexList visited = m_session->visited();
        for (const QModelIndex &index : visited) {
            const QPersistentModelIndex subject = index;
            QString title = m_session->model()->getTreeItem(index)->title();
            menu->addAction(title.replace(QLatin1Char('&'), QStringLiteral("&&")), this,
                            [this, subject] { m_session->showAsDiagram(subject); });
        }
        if (visited.isEmpty())
            menu->addAction(tr("(nothing yet)"))->setEnabled(false);
    });
}

void ViewCommands::updateActions()
{
    const SpearItem *const spear = m_editor->firstSelectedSpear();
    const TreeItem *const subject = spear ? spear->treeItem() : nullptr;
    const bool hasChildren = subject && !spear->isHeader() && subject->childCount() > 0;
    const bool shown = m_editor->headSpear() != nullptr;
    m_actions->action(QStringLiteral("expand"))->setEnabled(hasChildren && !spear->isExpand());
    m_actions->action(QStringLiteral("contract"))->setEnabled(hasChildren && spear->isExpand());
    for (const char *name : {"expandall", "contractall", "fit"})
        m_actions->action(QLatin1String(name))->setEnabled(shown);
    m_actions->action(QStringLiteral("fitselection"))->setEnabled(spear);
    m_actions->action(QStringLiteral("asDiagram"))->setEnabled(subject && !spear->isHeader());
    m_actions->action(QStringLiteral("back"))->setEnabled(m_session->canGoBack());
    m_actions->action(QStringLiteral("whole"))->setEnabled(m_session->canGoBack());
}
