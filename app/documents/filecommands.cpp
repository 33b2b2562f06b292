// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/filecommands.h>

#include <app/common/actionset.h>
#include <app/common/busycursor.h>
#include <app/common/plainbox.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/closequestion.h>
#include <app/documents/documentsaver.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/documents/fileconflict.h>
#include <app/files/documentloader.h>
#include <app/files/importsummary.h>
#include <app/files/lastdocuments.h>
#include <app/files/mappingdialog.h>
#include <app/files/recentfiles.h>
#include <app/files/welcome.h>
#include <app/recovery/recoverycopy.h>

#include <fishbone/dialogs/urldialog.h>
#include <fishbone/editor/fisheditor.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <iterator>
#include <optional>

namespace {

QString anyFilter()
{
    return FileCommands::tr("Fishbone diagrams (*.json);;%1;;All files (*)")
        .arg(DiagramExchange::importFilter());
}

/** Whether there is anything to save in @p tab, with what is typed into its fields. */
bool hasChanges(DocumentTab &tab)
{
    tab.takeTyped();
    return tab.document() && tab.document()->modified();
}

} // namespace

FileCommands::FileCommands(DocumentTabs *tabs, RecentFiles *recent, ActionSet *actions,
                           QWidget *window)
    : QObject(window)
    , m_tabs(tabs)
    , m_recent(recent)
    , m_actions(actions)
    , m_window(window)
    , m_arrivals(new FishModel(this))
    , m_loader(new DocumentLoader(m_arrivals, this))
    , m_saver(new DocumentSaver(recent, window))
{
    m_loader->setOpenDocuments([tabs] { return tabs->documents(); });
    connect(m_loader, &DocumentLoader::loaded, this, &FileCommands::showLoaded);
    connect(m_loader, &DocumentLoader::failed, this, &FileCommands::reportFailure);
    new ImportSummary(m_loader, window); // which owns it
    connect(m_loader, &DocumentLoader::cancelled, this, &FileCommands::endCancelled);
    // Queued, so that several files that fail at once share a box.
    connect(m_loader, &DocumentLoader::idle, this, &FileCommands::endLoading, Qt::QueuedConnection);
    connect(m_recent, &RecentFiles::chosen, m_loader, &DocumentLoader::load);
    connect(m_saver, &DocumentSaver::message, this, &FileCommands::message);
    connect(m_tabs, &DocumentTabs::added, this, &FileCommands::answerConflicts);
    connect(m_tabs, &DocumentTabs::closeRequested, this, &FileCommands::closeTabs);
    addOpenActions();
    addSaveActions();
    addCloseActions();
}

void FileCommands::add(const char *name, const char *text, const QKeySequence &shortcut,
                       void (FileCommands::*run)())
{
    m_actions->add(
        QLatin1String(name), [text] { return tr(text); }, {shortcut}, ActionSet::Scope::Window,
        [this, run] { (this->*run)(); });
}

void FileCommands::addOpenActions()
{
    add("new", QT_TR_NOOP("&New"), QKeySequence::New, &FileCommands::newDocument);
    add("newExample", QT_TR_NOOP("New from the &example"), {},
        &FileCommands::newFromBuiltInTemplate);
    add("welcome", QT_TR_NOOP("&Welcome diagram"), {}, &FileCommands::newWelcome);
    add("open", QT_TR_NOOP("&Open…"), QKeySequence::Open, &FileCommands::openFiles);
    add("import", QT_TR_NOOP("&Import…"), QKeySequence(Qt::CTRL | Qt::Key_I),
        &FileCommands::importFiles);
    add("url", QT_TR_NOOP("Open &URL…"), QKeySequence(Qt::CTRL | Qt::Key_U),
        &FileCommands::openUrl);
}

void FileCommands::addSaveActions()
{
    const auto addForTab = [this](const char *name, const char *text, const QKeySequence &shortcut,
                                  std::function<void(DocumentTab *)> run) {
        m_actions->add(
            QLatin1String(name), [text] { return tr(text); }, {shortcut}, ActionSet::Scope::Window,
            [this, run = std::move(run)] { run(m_tabs->current()); });
    };
    addForTab("save", QT_TR_NOOP("&Save"), QKeySequence::Save,
              [this](DocumentTab *tab) { m_saver->save(tab); });
    addForTab("saveAs", QT_TR_NOOP("Save &as…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
              [this](DocumentTab *tab) { m_saver->saveAs(tab); });
    addForTab("saveCopy", QT_TR_NOOP("Save a cop&y…"), {},
              [this](DocumentTab *tab) { m_saver->saveCopy(tab); });
    addForTab("revert", QT_TR_NOOP("Revert to &file"), {},
              [this](DocumentTab *tab) { revert(tab); });
    add("saveAll", QT_TR_NOOP("Save a&ll"), {}, &FileCommands::saveAll);
}

void FileCommands::addCloseActions()
{
    add("close", QT_TR_NOOP("&Close"), QKeySequence(Qt::CTRL | Qt::Key_W),
        &FileCommands::closeCurrent);
    QAction *const reopen = m_actions->add(
        QStringLiteral("reopen"), [] { return tr("Reopen &documents at the start"); }, {},
        ActionSet::Scope::Window,
        [this] {
            LastDocuments::setWanted(m_actions->action(QStringLiteral("reopen"))->isChecked());
        });
    reopen->setCheckable(true);
    reopen->setChecked(LastDocuments::areWanted());
    m_actions->add(
        QStringLiteral("quit"), [] { return tr("&Quit"); }, {QKeySequence(Qt::CTRL | Qt::Key_Q)},
        ActionSet::Scope::Window, [this] { m_window->close(); });
}

void FileCommands::updateActions()
{
    rememberOpen(Remembering::GoOn);
    const DocumentTab *const tab = m_tabs->current();
    for (const char *name : {"save", "saveAs", "saveCopy", "saveAll", "close"})
        m_actions->action(QLatin1String(name))->setEnabled(tab->document());
    m_actions->action(QStringLiteral("revert"))->setEnabled(!tab->path().isEmpty());
}

void FileCommands::open(const QStringList &sources)
{
    const QStringList wanted = sources.isEmpty() ? LastDocuments::files() : sources;
    if (sources.isEmpty())
        m_shownAtLast = LastDocuments::shownFile();
    // A document that ends the program while it is loaded is not opened again at the next start.
    if (!wanted.isEmpty())
        rememberOpen(Remembering::Begin);
    if (wanted.isEmpty() && m_tabs->tabs().isEmpty()) {
        if (Welcome::isFirstStart())
            newWelcome();
        else
            newFromBuiltInTemplate();
    }
    for (const QString &source : wanted)
        m_loader->load(source);
}

void FileCommands::showLoaded(const QString &source, FishInfo *document)
{
    DocumentTab *tab = m_tabs->tabOf(document);
    if (tab)
        m_tabs->setCurrent(tab);
    else
        tab = m_tabs->add(document);
    const QString path = DocumentLoader::localPath(source);
    if (!path.isEmpty())
        m_recent->add(path);
    Q_EMIT message(tr("%1 loaded").arg(tab->name()));
}

void FileCommands::reportFailure(const QString &source, const QString &reason)
{
    const QString text = tr("cannot open %1: %2").arg(source, reason);
    std::fprintf(stderr, "fishbone: %s\n", qPrintable(text));
    Q_EMIT message(text);
    m_failures.append(text);
    m_recent->remove(DocumentLoader::localPath(source));
    showSomething();
}

void FileCommands::endCancelled(const QString &source)
{
    Q_EMIT message(tr("%1 was not loaded").arg(source));
    showSomething();
}

/** A window that was to show nothing else shows something to begin with. */
void FileCommands::showSomething()
{
    if (m_tabs->tabs().isEmpty() && m_loader->isLast())
        newFromBuiltInTemplate();
}

/** Shows what was shown when the program ended, and what cannot be opened. */
void FileCommands::endLoading()
{
    if (DocumentTab *const tab = m_tabs->tabOfFile(m_shownAtLast))
        m_tabs->setCurrent(tab);
    m_shownAtLast.clear();
    rememberOpen(Remembering::Begin);
    showFailures();
}

/** Shows what could not be opened in one box, which waits for nobody. */
void FileCommands::showFailures()
{
    if (m_failures.isEmpty())
        return;
    const QString text = m_failures.join(QLatin1Char('\n'));
    m_failures.clear();
    auto *const box =
        new QMessageBox(QMessageBox::Warning, tr("Open"), text, QMessageBox::Ok, m_window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void FileCommands::newDocument()
{
    if (!m_arrivals->insertRows(m_arrivals->rowCount(), 1))
        return;
    DocumentTab *const tab = m_tabs->add(m_arrivals->fishList().constLast());
    tab->session()->select(tab->session()->headOf(tab->document())); // ready to be typed over
}

void FileCommands::newFromBuiltInTemplate()
{
    if (m_arrivals->loadFishTempl() == MODEL_NO_ERROR)
        m_tabs->add(m_arrivals->fishList().constLast());
}

/** Opens the diagram that teaches the keys, with all of it in view. */
void FileCommands::newWelcome()
{
    m_arrivals->insertExistItemRows(QModelIndex(), {Welcome::diagram().release()});
    FishInfo *const document = m_arrivals->fishList().constLast();
    m_tabs->add(document)->editor()->expandAll();
    m_actions->action(QStringLiteral("fit"))->trigger();
}

/** The document of the file @p path, whose load has ended with @p error; null, after a message,
 * when there is none or nothing in it. */
FishInfo *FileCommands::arrival(int error, const QString &path)
{
    FishInfo *const document =
        error == MODEL_NO_ERROR ? m_arrivals->fishList().constLast() : nullptr;
    if (document && document->treeItem()->childCount() > 0)
        return document;
    reportFailure(path, document ? DocumentLoader::tr("it holds no diagram")
                                 : DocumentLoader::reasonOf(path));
    m_arrivals->unloadFish(document);
    showFailures();
    return nullptr;
}

void FileCommands::openFiles()
{
    const QStringList paths = chosenFiles(tr("Open"), anyFilter());
    for (const QString &path : paths)
        m_loader->load(path);
}

void FileCommands::importFiles()
{
    const QStringList paths = chosenFiles(tr("Import"), DiagramExchange::importFilter());
    for (const QString &path : paths)
        importFile(path);
}

/** Imports the file @p path; the user looks first at what the columns of a table stand for. */
void FileCommands::importFile(const QString &path)
{
    const auto format = DocumentLoader::foreignFormat(path);
    const auto mapping =
        format ? DiagramExchange::tableMapping(path, *format) : std::optional<TableMapping>();
    if (!mapping) { // what is wrong is told when it is loaded
        m_loader->load(path);
        return;
    }
    MappingDialog dialog(QFileInfo(path).fileName(), *mapping, m_window);
    if (dialog.exec() == QDialog::Accepted)
        m_loader->loadTable(path, dialog.mapping());
}

/** What the user chooses among the files that @p filter lets through. */
QStringList FileCommands::chosenFiles(const QString &title, const QString &filter) const
{
    return QFileDialog::getOpenFileNames(m_window, title, m_tabs->current()->session()->folder(),
                                         filter);
}

void FileCommands::openUrl()
{
    const QUrl url = URLDialog::openUrlDialog(m_window);
    if (url.isEmpty())
        return;
    m_loader->load(url.toString());
    if (!m_loader->isIdle())
        Q_EMIT message(tr("Loading %1…").arg(url.toDisplayString()));
}

void FileCommands::saveAll()
{
    const QList<QPointer<DocumentTab>> tabs = openAmong(m_tabs->tabs());
    for (const QPointer<DocumentTab> &tab : tabs) {
        if (tab && hasChanges(*tab) && !m_saver->save(tab))
            return;
    }
}

/** Does what the user decides when somebody else has changed the file of @p tab. */
void FileCommands::answerConflicts(DocumentTab *tab)
{
    const FileConflict *const conflict = tab->conflict();
    connect(conflict, &FileConflict::reloadRequested, this, [this, tab] { revert(tab); });
    connect(conflict, &FileConflict::saveRequested, this, [this, tab] { m_saver->save(tab); });
    connect(conflict, &FileConflict::saveAsRequested, this, [this, tab] { m_saver->saveAs(tab); });
}

/** Loads the file @p path of @p document another time; returns as FishModel does. */
int FileCommands::loadAgain(const FishInfo *document, const QString &path)
{
    const BusyCursor busy(document->treeItem());
    return m_arrivals->loadFishFromFile(path);
}

/** Shows the document as its file has it. */
void FileCommands::revert(DocumentTab *tab)
{
    const QPointer<DocumentTab> alive(tab); // the question runs an event loop
    const QString path = tab->path();
    if (tab->document()->modified() &&
        !PlainBox::ask(m_window, tr("Revert"),
                       tr("Give up all changes of %1 since it was saved?").arg(tab->name())))
        return;
    if (!alive)
        return;
    FishInfo *const document = arrival(loadAgain(tab->document(), path), path);
    if (!document)
        return;
    document->setCurrentFile(path);
    tab->recovery()->discard();
    m_tabs->replace(tab, document);
}

void FileCommands::closeCurrent()
{
    if (m_tabs->current()->document())
        closeTabs({m_tabs->current()});
}

/** Closes @p tabs up to the first one that the user wants to keep. */
void FileCommands::closeTabs(const QList<DocumentTab *> &tabs)
{
    const QList<QPointer<DocumentTab>> open = openAmong(tabs);
    const bool areMany = changedAmong(open).size() > 1;
    if (areMany && !mayCloseMany(open))
        return;
    for (const QPointer<DocumentTab> &tab : open) {
        if (tab && !areMany && !mayClose(tab))
            return;
        if (!tab)
            continue;
        tab->recovery()->discard();
        m_tabs->remove(tab);
    }
}

/** Those of @p tabs that are open, guarded: each question runs an event loop. */
QList<QPointer<DocumentTab>> FileCommands::openAmong(const QList<DocumentTab *> &tabs) const
{
    QList<QPointer<DocumentTab>> found;
    const QList<DocumentTab *> open = m_tabs->tabs();
    for (DocumentTab *tab : tabs) {
        if (open.contains(tab))
            found.append(tab);
    }
    return found;
}

bool FileCommands::mayClose(DocumentTab *tab)
{
    if (hasChanges(*tab))
        m_tabs->setCurrent(tab); // so that the user sees what the question is about
    return m_saver->mayClose(tab);
}

bool FileCommands::mayCloseAll()
{
    const QList<QPointer<DocumentTab>> tabs = openAmong(m_tabs->tabs());
    if (changedAmong(tabs).size() > 1)
        return mayCloseMany(tabs);
    for (const QPointer<DocumentTab> &tab : tabs) {
        if (tab && !mayClose(tab))
            return false;
    }
    return true;
}

/** Those of @p tabs that have something to save, with what is typed into their fields. */
QList<QPointer<DocumentTab>>
FileCommands::changedAmong(const QList<QPointer<DocumentTab>> &tabs) const
{
    QList<QPointer<DocumentTab>> changed;
    std::copy_if(tabs.cbegin(), tabs.cend(), std::back_inserter(changed),
                 [](const QPointer<DocumentTab> &tab) { return tab && hasChanges(*tab); });
    return changed;
}

/** Asks one question for all changed ones of @p tabs; false when the user wants to go on working.
 */
bool FileCommands::mayCloseMany(const QList<QPointer<DocumentTab>> &tabs)
{
    CloseQuestion question(changedAmong(tabs), m_window);
    if (question.exec() != QDialog::Accepted)
        return false;
    const QList<QPointer<DocumentTab>> wanted = question.toSave();
    return std::all_of(wanted.cbegin(), wanted.cend(), [this](const QPointer<DocumentTab> &tab) {
        return !tab || m_saver->save(tab);
    });
}

void FileCommands::end()
{
    rememberOpen(Remembering::Begin);
    m_isRemembering = false; // the tabs are about to go
    const QList<DocumentTab *> tabs = m_tabs->tabs();
    for (const DocumentTab *tab : tabs)
        tab->recovery()->discard();
}

/** Notes which files are open, for the case that this run does not end well. */
void FileCommands::rememberOpen(Remembering remembering)
{
    m_isRemembering = m_isRemembering || remembering == Remembering::Begin;
    QStringList paths;
    const QList<DocumentTab *> tabs = m_tabs->tabs();
    for (const DocumentTab *tab : tabs) {
        if (!tab->path().isEmpty())
            paths.append(tab->path());
    }
    const QStringList open = paths + QStringList(m_tabs->current()->path());
    if (!m_isRemembering || (open == m_remembered && remembering == Remembering::GoOn))
        return;
    m_remembered = open;
    LastDocuments::remember(paths, m_tabs->current()->path());
}
