// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/filecommands.h>

#include <app/common/actionset.h>
#include <app/common/busycursor.h>
#include <app/common/plainbox.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documentcloser.h>
#include <app/documents/documentsaver.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/documents/fileconflict.h>
#include <app/documents/openfilesnote.h>
#include <app/documents/sourcedialogs.h>
#include <app/files/documentloader.h>
#include <app/files/importsummary.h>
#include <app/files/lastdocuments.h>
#include <app/files/loadfailure.h>
#include <app/files/recentfiles.h>
#include <app/files/welcome.h>
#include <app/recovery/recoverycopy.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QAction>
#include <QMessageBox>
#include <QPointer>

#include <cstdio>
#include <functional>

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
    , m_closer(new DocumentCloser(tabs, m_saver, window))
    , m_sources(new SourceDialogs(m_loader, tabs, window))
    , m_remembered(new OpenFilesNote(tabs, this))
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
    connect(m_sources, &SourceDialogs::message, this, &FileCommands::message);
    connect(m_tabs, &DocumentTabs::added, this, &FileCommands::answerConflicts);
    connect(m_tabs, &DocumentTabs::closeRequested, m_closer, &DocumentCloser::close);
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
    const auto addDialog = [this](const char *name, const char *text, const QKeySequence &shortcut,
                                  void (SourceDialogs::*run)()) {
        m_actions->add(
            QLatin1String(name), [text] { return tr(text); }, {shortcut}, ActionSet::Scope::Window,
            [this, run] { (m_sources->*run)(); });
    };
    add("new", QT_TR_NOOP("&New"), QKeySequence::New, &FileCommands::newDocument);
    add("newExample", QT_TR_NOOP("New from the &example"), {},
        &FileCommands::newFromBuiltInTemplate);
    add("welcome", QT_TR_NOOP("&Welcome diagram"), {}, &FileCommands::newWelcome);
    addDialog("open", QT_TR_NOOP("&Open…"), QKeySequence::Open, &SourceDialogs::openFiles);
    addDialog("import", QT_TR_NOOP("&Import…"), QKeySequence(Qt::CTRL | Qt::Key_I),
              &SourceDialogs::importFiles);
    addDialog("url", QT_TR_NOOP("Open &URL…"), QKeySequence(Qt::CTRL | Qt::Key_U),
              &SourceDialogs::openUrl);
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
    m_actions->add(
        QStringLiteral("saveAll"), [] { return tr("Save a&ll"); }, {}, ActionSet::Scope::Window,
        [this] { m_closer->saveAll(); });
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
    m_remembered->update();
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
        m_remembered->begin();
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
    m_remembered->begin();
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
                                 : LoadFailure::reasonOf(path));
    m_arrivals->unloadFish(document);
    showFailures();
    return nullptr;
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
        m_closer->close({m_tabs->current()});
}

bool FileCommands::mayCloseAll()
{
    return m_closer->mayCloseAll();
}

void FileCommands::end()
{
    m_remembered->end();
    const QList<DocumentTab *> tabs = m_tabs->tabs();
    for (const DocumentTab *tab : tabs)
        tab->recovery()->discard();
}
