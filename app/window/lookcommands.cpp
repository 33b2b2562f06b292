// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/lookcommands.h>

#include <app/common/actionset.h>
#include <app/common/busycursor.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/documentlook.h>
#include <app/diagram/palettes.h>
#include <app/diagram/subjectstyles.h>

#include <fishbone/drawing/lookinfo.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/exchange/diagrampicture.h>
#include <fishbone/exchange/pagesize.h>
#include <fishbone/model/fishmodel.h>

#include <QAction>
#include <QMenu>

LookCommands::LookCommands(DiagramSession *session, ActionSet *actions, QWidget *window)
    : DiagramCommands(session, actions, window)
    , m_window(window)
{
    addLooks();
    addPages();
}

QMenu *LookCommands::addMenu(const char *name, const char *title)
{
    auto *const menu = new QMenu(m_window);
    menu->setObjectName(QLatin1String(name) + QStringLiteral("Menu"));
    Language::bind(menu, &QMenu::setTitle, [title] { return tr(title); });
    m_menus.insert(QLatin1String(name), menu);
    return menu;
}

/** Adds an entry that is checked while @p test holds, and makes @p change of the view. */
QAction *LookCommands::add(QMenu *menu, const char *name, const Language::Text &text,
                           const Change &change, const Test &test)
{
    const QString actionName = QLatin1String(name);
    QAction *const action =
        m_actions->add(actionName, text, {}, ActionSet::Scope::Window, [this, actionName, change] {
            if (!m_look)
                return;
            DiagramView view = m_look->view();
            change(view);
            const QPointer<QAction> entry = m_actions->action(actionName);
            m_look->choose(view, [entry] {
                return tr("Look: %1").arg(entry ? ActionSet::plainText(*entry) : QString());
            });
            updateActions(); // also when the entry was what is shown already
        });
    action->setCheckable(true);
    m_tests.insert(action, test);
    menu->addAction(action);
    return action;
}

void LookCommands::addLooks()
{
    QMenu *const menu = addMenu("look", QT_TR_NOOP("Loo&k"));
    for (const LookInfo &look : LookInfo::all()) {
        QByteArray name = look.name().data();
        name[0] = char(name.at(0) - 'a' + 'A');
        m_looks.append(add(
            menu, ("look" + name).constData(), [&look] { return look.title(); },
            [kind = look.kind()](DiagramView &view) { view.look = kind; },
            [kind = look.kind()](const DiagramView &view) { return view.look == kind; }));
    }
    menu->addSeparator();
    addPalettes(menu);
    addLines(menu);
    addSwitches(menu);
}

void LookCommands::addPages()
{
    QMenu *const menu = addMenu("page", QT_TR_NOOP("Arrang&e for page"));
    add(
        menu, "pageScreen", [] { return tr("&Screen"); },
        [](DiagramView &view) { view.arrangeForScreen(); },
        [](const DiagramView &view) { return view.page.isEmpty(); });
    const QStringList names = PageSize::names();
    for (const QString &page : names) {
        const QByteArray name = "page" + page.toLatin1().replace(':', 'x');
        add(
            menu, name.constData(),
            [page] { return QString(page).insert(page.size() - 1, QLatin1Char('&')); },
            [this, page](DiagramView &view) { arrange(view, page); },
            [page](const DiagramView &view) { return view.page == page; });
    }
}

/** Chooses the arrangement of what is shown that is largest on @p page. */
void LookCommands::arrange(DiagramView &view, const QString &page) const
{
    const TreeItem *const root = m_session->model()->getTreeItem(m_editor->rootIndex());
    const BusyCursor busy(m_session->container());
    view.arrangeForScreen();
    view.page = page;
    view.options = DiagramPicture::arrangedFor(PageSize::of(page)->drawable(), root, view.options);
}

void LookCommands::addPalettes(QMenu *parent)
{
    QMenu *const menu = parent->addMenu(QString());
    menu->setObjectName(QStringLiteral("paletteMenu"));
    Language::bind(menu, &QMenu::setTitle, [] { return tr("&Palette"); });
    for (const Palettes::Entry &entry : Palettes::all()) {
        const DiagramLook::Palette palette = entry.palette;
        add(
            menu, entry.action, [&entry] { return entry.menuText(); },
            [palette](DiagramView &view) { view.options.palette = palette; },
            [palette](const DiagramView &view) { return view.options.palette == palette; });
    }
    menu->addSeparator();
    m_plain = m_actions->add(
        QStringLiteral("ownColoursOff"), [] { return tr("&Take off all own colours and styles"); },
        {}, ActionSet::Scope::Window, [this] { takeOffOwn(); });
    menu->addAction(m_plain);
}

/** Makes the palette, and the style of all subjects, hold for the whole diagram. */
void LookCommands::takeOffOwn()
{
    const int count = SubjectStyles::removeAll(*m_session);
    Q_EMIT message(count > 0 ? tr("%n subject(s) changed", nullptr, count)
                             : tr("No subject has a colour or a style of its own"));
}

void LookCommands::addLines(QMenu *parent)
{
    QMenu *const menu = parent->addMenu(QString());
    menu->setObjectName(QStringLiteral("linesMenu"));
    Language::bind(menu, &QMenu::setTitle, [] { return tr("Lines of &titles"); });
    const auto addLimit = [this, menu](const char *name, const char *text, double limit) {
        add(
            menu, name, [text] { return tr(text); },
            [limit](DiagramView &view) {
                view.arrangeForScreen();
                view.options.wrapLimit = limit;
            },
            [limit](const DiagramView &view) {
                return view.page.isEmpty() && view.options.wrapLimit == limit;
            });
    };
    addLimit("linesAny", QT_TR_NOOP("&Not broken"), 0);
    addLimit("linesLong", QT_TR_NOOP("&Long"), 200);
    addLimit("linesMedium", QT_TR_NOOP("&Medium"), 145);
    addLimit("linesShort", QT_TR_NOOP("&Short"), 110);
}

void LookCommands::addSwitches(QMenu *menu)
{
    add(
        menu, "bothSides", [] { return tr("&Bones on both sides"); },
        [](DiagramView &view) {
            view.options.sides = view.options.sides == DiagramLook::BothSides
                                     ? DiagramLook::OneSide
                                     : DiagramLook::BothSides;
        },
        [](const DiagramView &view) { return view.options.sides == DiagramLook::BothSides; });
    add(
        menu, "headLeft", [] { return tr("&Head on the left"); },
        [](DiagramView &view) { view.options.isHeadLeft = !view.options.isHeadLeft; },
        [](const DiagramView &view) { return view.options.isHeadLeft; });
    add(
        menu, "legend", [] { return tr("&Legend"); },
        [](DiagramView &view) { view.options.hasLegend = !view.options.hasLegend; },
        [](const DiagramView &view) { return view.options.hasLegend; });
}

void LookCommands::setLook(DocumentLook *look)
{
    m_look = look;
}

void LookCommands::updateActions()
{
    if (!m_look)
        return;
    const DiagramView &view = m_look->view();
    const bool isShown = m_session->document();
    m_plain->setEnabled(isShown);
    for (auto entry = m_tests.cbegin(); entry != m_tests.cend(); ++entry) {
        const bool isLook = m_looks.contains(entry.key());
        // The other looks have nothing to choose.
        entry.key()->setEnabled(isShown && (isLook || view.look == DiagramLook::Clear));
        entry.key()->setChecked(entry.value()(view));
    }
}
