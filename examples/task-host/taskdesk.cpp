// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <taskdesk.h>

#include <boardwindow.h>
#include <modeltree.h>
#include <offlinedocument.h>
#include <taskwindow.h>
#include <waitingjournal.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/model/fishinfo.h>

#include <QDesktopServices>
#include <QNetworkReply>
#include <QUrl>

#include <algorithm>

namespace {

const QString &ownScheme()
{
    static const QString scheme = QStringLiteral("task");
    return scheme;
}

} // namespace

TaskDesk::TaskDesk(const QString &address, const QString &author, QObject *parent)
    : QObject(parent)
    , m_store(address, author)
    , m_sync(m_model, m_store)
{
    connect(&m_sync, &TaskSync::received, this, &TaskDesk::showFirstDiagram);
    LinkItem::setOpener([desk = QPointer<TaskDesk>(this)](const QUrl &url) {
        if (desk)
            desk->openLink(url);
    });
}

TaskDesk::~TaskDesk() = default;

void TaskDesk::setJournalFolder(const QString &folder)
{
    m_journal = std::make_unique<WaitingJournal>(folder, m_store.address());
    m_sync.setJournal(m_journal.get());
}

bool TaskDesk::start(bool hasTemplate)
{
    m_board = std::make_unique<BoardWindow>(m_model);
    connect(m_board.get(), &BoardWindow::taskOpened, this, &TaskDesk::openTask);
    m_board->show();
    const bool isOpen = m_sync.start();
    if (isOpen && hasTemplate && m_model.rowCount() == 0)
        beginWithTemplate();
    showFirstDiagram();
    return isOpen;
}

/** Through the data base, which takes the template of one host alone. */
void TaskDesk::beginWithTemplate()
{
    FishModel draft;
    draft.loadFishTempl();
    m_sync.begin(ModelTree::read(draft, {}));
}

QList<TaskWindow *> TaskDesk::windows() const
{
    QList<TaskWindow *> windows;
    for (const std::unique_ptr<TaskWindow> &window : m_windows)
        windows.append(window.get());
    return windows;
}

TaskWindow *TaskDesk::windowOf(const FishInfo *document) const
{
    const auto found =
        std::find_if(m_windows.cbegin(), m_windows.cend(),
                     [document](const std::unique_ptr<TaskWindow> &window) {
                         return document && window->editor().currentFishInfo() == document;
                     });
    return found == m_windows.cend() ? nullptr : found->get();
}

/** A diagram that comes later, or takes the place of one that went, is shown as well. */
void TaskDesk::showFirstDiagram()
{
    const QModelIndex head = m_model.index(0, 0);
    if (!head.isValid())
        return;
    if (m_windows.empty())
        openTask(head.siblingAtColumn(1).data().toString());
    else if (!m_windows.front()->editor().rootIndex().isValid())
        m_windows.front()->showDiagram(head);
}

TaskWindow *TaskDesk::openTask(const QString &uuid)
{
    const QModelIndex index = m_model.modelIndexByUuid(uuid);
    if (!index.isValid())
        return nullptr;
    const FishInfo *const document = m_model.fishOf(m_model.getTreeItem(index));
    TaskWindow *window = windowOf(document);
    if (!window) {
        m_windows.push_back(std::make_unique<TaskWindow>(*this));
        window = m_windows.back().get();
        window->resize(1200, 800);
        window->showDiagram(m_model.index(m_model.fishRow(document), 0));
        m_undoGroup.setActive(&window->editor());
    }
    window->show();
    window->editor().ensureVisible(index);
    return window;
}

QUrl TaskDesk::addressOf(const QString &uuid)
{
    QUrl address;
    address.setScheme(ownScheme());
    address.setPath(uuid);
    return address;
}

void TaskDesk::openLink(const QUrl &url)
{
    if (url.scheme() == ownScheme())
        openTask(url.path());
    else if (url.scheme() == QLatin1String("https"))
        QDesktopServices::openUrl(url);
}

QByteArray TaskDesk::documentOf(const QModelIndex &index) const
{
    const FishInfo *const document = m_model.fishOf(m_model.getTreeItem(index));
    return OfflineDocument::write(m_model, m_model.index(m_model.fishRow(document), 0),
                                  m_sync.revision());
}

void TaskDesk::merge(const QByteArray &document)
{
    m_sync.synchronize();
    m_sync.replace(OfflineDocument::merge(m_sync.current(), document));
    showFirstDiagram();
}

void TaskDesk::mergeFrom(const QUrl &url)
{
    QNetworkReply *const reply = m_network.get(QNetworkRequest(url));
    connect(reply, &QNetworkReply::finished, this, [this, reply] {
        reply->deleteLater();
        const bool hasCome = reply->error() == QNetworkReply::NoError;
        if (hasCome)
            merge(reply->readAll());
        Q_EMIT merged(hasCome ? QString() : reply->errorString());
    });
}
