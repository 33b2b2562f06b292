// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/filecommands.h>

#include <app/actionset.h>
#include <app/autosave.h>
#include <app/diagramsession.h>
#include <app/documentloader.h>
#include <app/lastdocuments.h>
#include <app/recentfiles.h>

#include <fishbone/dialogs/urldialog.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

#include <cstdio>

namespace {

QString documentFilter()
{
    return FileCommands::tr("Fishbone diagrams (*.json);;All files (*)");
}

QString anyFilter()
{
    return FileCommands::tr("Fishbone diagrams (*.json);;%1;;All files (*)")
        .arg(DiagramExchange::importFilter());
}

QString shownName(const FishInfo *document)
{
    return document->userFriendlyCurrentFile();
}

} // namespace

FileCommands::FileCommands(DiagramSession *session, ActionSet *actions, QWidget *window)
    : QObject(window)
    , m_session(session)
    , m_actions(actions)
    , m_window(window)
    , m_loader(new DocumentLoader(session->model(), this))
    , m_recent(new RecentFiles(window))
{
    connect(m_loader, &DocumentLoader::loaded, this, &FileCommands::showLoaded);
    connect(m_loader, &DocumentLoader::failed, this, &FileCommands::reportFailure);
    // Queued, so that several files that fail at once share a box.
    connect(m_loader, &DocumentLoader::idle, this, &FileCommands::showFailures,
            Qt::QueuedConnection);
    connect(m_recent, &RecentFiles::chosen, m_loader, &DocumentLoader::load);
    addActions(actions);
}

QMenu *FileCommands::recentMenu() const
{
    return m_recent->menu();
}

void FileCommands::addActions(ActionSet *actions)
{
    using Scope = ActionSet::Scope;
    const auto add = [&](const char *name, const QString &text, const QKeySequence &shortcut,
                         void (FileCommands::*run)()) {
        actions->add(QLatin1String(name), text, {shortcut}, Scope::Window,
                     [this, run] { (this->*run)(); });
    };
    add("new", tr("&New"), QKeySequence::New, &FileCommands::newDocument);
    add("newExample", tr("New from the &example"), {}, &FileCommands::newFromBuiltInTemplate);
    actions->add(QStringLiteral("newFromTemplate"), tr("New from &template…"), {}, Scope::Window,
                 [this] { newFromTemplate(m_session->folder()); });
    add("open", tr("&Open…"), QKeySequence::Open, &FileCommands::openFiles);
    add("import", tr("&Import…"), QKeySequence(Qt::CTRL | Qt::Key_I), &FileCommands::importFiles);
    add("url", tr("Open &URL…"), QKeySequence(Qt::CTRL | Qt::Key_U), &FileCommands::openUrl);
    actions->add(QStringLiteral("recover"), tr("Open an a&utosave…"), {}, Scope::Window,
                 [this] { newFromTemplate(Autosave::folder()); });
    actions->add(QStringLiteral("save"), tr("&Save"), {QKeySequence::Save}, Scope::Window,
                 [this] { save(m_session->document()); });
    actions->add(QStringLiteral("saveAs"), tr("Save &as…"),
                 {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)}, Scope::Window,
                 [this] { saveAs(m_session->document()); });
    add("saveAll", tr("Save a&ll"), {}, &FileCommands::saveAll);
    add("close", tr("&Close"), QKeySequence(Qt::CTRL | Qt::Key_W), &FileCommands::closeDocument);
    QAction *const reopen = actions->add(
        QStringLiteral("reopen"), tr("Reopen &documents at the start"), {}, Scope::Window,
        [actions] {
            LastDocuments::setWanted(actions->action(QStringLiteral("reopen"))->isChecked());
        });
    reopen->setCheckable(true);
    reopen->setChecked(LastDocuments::areWanted());
    actions->add(QStringLiteral("quit"), tr("&Quit"), {QKeySequence(Qt::CTRL | Qt::Key_Q)},
                 Scope::Window, [this] { m_window->close(); });
}

void FileCommands::updateActions()
{
    const bool shown = m_session->document() != nullptr;
    for (const char *name : {"save", "saveAs", "saveAll", "close"})
        m_actions->action(QLatin1String(name))->setEnabled(shown);
}

void FileCommands::open(const QStringList &sources)
{
    const QStringList wanted = sources.isEmpty() ? LastDocuments::files() : sources;
    if (wanted.isEmpty())
        newFromBuiltInTemplate();
    for (const QString &source : wanted)
        m_loader->load(source);
}

void FileCommands::showLoaded(const QString &source, FishInfo *document)
{
    m_session->showDocument(document);
    const QString path = DocumentLoader::localPath(source);
    if (!path.isEmpty())
        m_recent->add(path);
    Q_EMIT message(tr("%1 loaded").arg(shownName(document)));
    if (!path.isEmpty() && document->autoSaveFile() == document->fileName())
        offerAutosave(document->fileName(), document);
    Autosave::redirect(document);
}

/** Takes over what an earlier run has left for the file that was just loaded, if the user likes. */
void FileCommands::offerAutosave(const QString &path, FishInfo *document)
{
    const QFileInfo left(Autosave::fileFor(path));
    if (!Autosave::differs(left.filePath(), document))
        return;
    const QString question = tr("There is an autosave of %1 from %2, which an earlier run did not "
                                "remove. Show that instead?");
    if (QMessageBox::question(m_window, tr("Autosave"),
                              question.arg(shownName(document).toHtmlEscaped(),
                                           QLocale().toString(left.lastModified()))) !=
        QMessageBox::Yes)
        return;
    if (m_session->model()->reloadDataFromFile(left.filePath(), document) == MODEL_NO_ERROR) {
        document->setModified(true);
        m_session->showDocument(document);
    }
}

void FileCommands::reportFailure(const QString &source, const QString &reason)
{
    const QString text = tr("cannot open %1: %2").arg(source, reason);
    std::fprintf(stderr, "fishbone: %s\n", qPrintable(text));
    Q_EMIT message(text);
    m_failures.append(text);
    m_recent->remove(DocumentLoader::localPath(source));
    // A window that was to show nothing else shows something to begin with.
    if (m_session->model()->fishList().isEmpty() && m_loader->isLast())
        newFromBuiltInTemplate();
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
    FishModel *const model = m_session->model();
    const int row = model->rowCount();
    if (!model->insertRows(row, 1))
        return;
    FishInfo *const document = model->fishList().at(row);
    Autosave::redirect(document);
    m_session->showDocument(document);
    m_session->select(m_session->headOf(document)); // ready to be typed over
}

void FileCommands::newFromBuiltInTemplate()
{
    if (m_session->model()->loadFishTempl() != MODEL_NO_ERROR)
        return;
    FishInfo *const document = m_session->model()->fishList().constLast();
    Autosave::redirect(document);
    m_session->showDocument(document);
}

void FileCommands::newFromTemplate(const QString &folder)
{
    const QString path =
        QFileDialog::getOpenFileName(m_window, tr("New from template"), folder, documentFilter());
    if (path.isEmpty())
        return;
    FishModel *const model = m_session->model();
    if (model->loadFishFromTemplate(path) != MODEL_NO_ERROR) {
        reportFailure(path, DocumentLoader::reasonOf(path));
        showFailures();
        return;
    }
    FishInfo *const document = model->fishList().constLast();
    Autosave::redirect(document);
    m_session->showDocument(document);
}

void FileCommands::openFiles()
{
    openChosen(tr("Open"), anyFilter());
}

void FileCommands::importFiles()
{
    openChosen(tr("Import"), DiagramExchange::importFilter());
}

/** Opens what the user chooses among the files that @p filter lets through. */
void FileCommands::openChosen(const QString &title, const QString &filter)
{
    const QStringList paths =
        QFileDialog::getOpenFileNames(m_window, title, m_session->folder(), filter);
    for (const QString &path : paths)
        m_loader->load(path);
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

bool FileCommands::save(FishInfo *document)
{
    if (!document)
        return false;
    return document->isUntitled() ? saveAs(document) : writeTo(document, document->fileName());
}

bool FileCommands::saveAs(FishInfo *document)
{
    if (!document)
        return false;
    const QString proposed = m_session->folder() + QLatin1Char('/') + shownName(document);
    const QString path =
        QFileDialog::getSaveFileName(m_window, tr("Save as"), proposed, documentFilter());
    if (path.isEmpty())
        return false;
    if (DocumentLoader::foreignFormat(path)) { // it would be read as something else
        QMessageBox::warning(m_window, tr("Save"),
                             tr("%1 would not be recognized as a diagram. Its name should end in "
                                ".json; \"Export as\" writes other formats.")
                                 .arg(path.toHtmlEscaped()));
        return false;
    }
    return writeTo(document, path);
}

bool FileCommands::writeTo(FishInfo *document, const QString &path)
{
    if (!document->saveFile(path)) {
        QMessageBox::warning(m_window, tr("Save"),
                             tr("%1 cannot be written.").arg(path.toHtmlEscaped()));
        return false;
    }
    Autosave::discard(document);
    document->setCurrentFile(path);
    m_recent->add(path);
    Autosave::redirect(document);
    m_session->touch();
    Q_EMIT message(tr("%1 saved").arg(shownName(document)));
    return true;
}

void FileCommands::saveAll()
{
    const QList<FishInfo *> documents = m_session->model()->fishList();
    for (FishInfo *document : documents) {
        if (document->modified() && !save(document))
            return;
    }
}

/** Lets the user save or cancel; the document may go when the result is true. */
bool FileCommands::mayClose(FishInfo *document)
{
    if (document->modified())
        m_session->showDocument(document); // so that the user sees what the question is about
    return document->maybeSave();
}

void FileCommands::closeDocument()
{
    FishInfo *const document = m_session->document();
    if (!document || !mayClose(document))
        return;
    Autosave::discard(document);
    m_session->model()->unloadFish(document);
}

bool FileCommands::closeAll()
{
    const QList<FishInfo *> documents = m_session->model()->fishList();
    for (FishInfo *document : documents) {
        if (!mayClose(document))
            return false;
    }
    for (FishInfo *document : documents)
        Autosave::discard(document);
    return true;
}
