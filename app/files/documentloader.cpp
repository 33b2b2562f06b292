// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/documentloader.h>

#include <app/common/busycursor.h>
#include <app/files/largefilereader.h>
#include <app/files/loadfailure.h>

#include <fishbone/base/filenames.h>
#include <fishbone/exchange/jsondiagram.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <memory>

namespace {

constexpr qint64 largeOutline = 1 << 20; ///< in bytes; makes some ten thousand subjects

bool isNetworkUrl(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

} // namespace

DocumentLoader::DocumentLoader(FishModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_openDocuments([this] { return m_model->fishList(); })
    , m_reader(new LargeFileReader(this))
{
    connect(m_reader, &LargeFileReader::ended, this, &DocumentLoader::endReading);
    connect(model, &FishModel::fishLoaded, this, &DocumentLoader::endFetch);
    connect(model, &FishModel::loadProgress, this,
            [this](const QUrl &, qint64 received, qint64 total) {
                Q_EMIT fetchProgress(received, total);
            });
}

void DocumentLoader::setOpenDocuments(std::function<QList<FishInfo *>()> documents)
{
    m_openDocuments = std::move(documents);
}

/** The open document in the file @p path, or null. */
FishInfo *DocumentLoader::openDocument(const QString &path) const
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    const QList<FishInfo *> documents = m_openDocuments();
    for (FishInfo *document : documents) {
        if (!canonical.isEmpty() && FileNames::areSame(document->fileName(), canonical))
            return document;
    }
    return nullptr;
}

QString DocumentLoader::localPath(const QString &source)
{
    const QUrl url(source);
    if (isNetworkUrl(url))
        return QString();
    return url.isLocalFile() ? url.toLocalFile() : source;
}

bool DocumentLoader::isFromNetwork(const QString &source)
{
    return isNetworkUrl(QUrl(source));
}

std::optional<DiagramExchange::Format> DocumentLoader::foreignFormat(const QString &path)
{
    const auto format = DiagramExchange::formatOf(path);
    return format == DiagramExchange::Format::Json ? std::nullopt : format;
}

void DocumentLoader::load(const QString &source)
{
    m_waiting.append(source);
    if (m_waiting.size() == 1)
        loadNext();
}

void DocumentLoader::loadTable(const QString &path, const TableMapping &mapping)
{
    m_mappings.insert(path, mapping);
    load(path);
}

void DocumentLoader::loadNext()
{
    const QString source = m_waiting.constFirst();
    if (!m_model)
        finish(nullptr, tr("the program is closing"));
    else if (const QString path = localPath(source); !path.isEmpty())
        loadFile(path);
    else if (!source.isEmpty())
        fetch(QUrl(source));
    else
        finish(nullptr, tr("there is no such file"));
}

void DocumentLoader::loadFile(const QString &path)
{
    if (const auto format = foreignFormat(path)) {
        importFile(path, *format);
        return;
    }
    if (FishInfo *const open = openDocument(path)) {
        finish(open, QString());
        return;
    }
    if (QFileInfo(path).size() > largeFile) {
        readLarge(path);
        return;
    }
    if (m_model->loadFishFromFile(path) != MODEL_NO_ERROR) {
        finish(nullptr, LoadFailure::reasonOf(path));
        return;
    }
    if (const QString foreign = reasonAgainstLoaded(path); !foreign.isEmpty()) {
        m_model->unloadFish(m_model->fishList().constLast());
        finish(nullptr, foreign);
        return;
    }
    FishInfo *const document = m_model->fishList().constLast();
    document->setCurrentFile(path);
    finish(document, QString());
}

/** Why what was loaded last, from the file @p path, is no diagram; empty when it is one. Only a
 * head that says nothing makes it worth reading the file again. */
QString DocumentLoader::reasonAgainstLoaded(const QString &path) const
{
    const TreeItem *const container = m_model->fishList().constLast()->treeItem();
    const TreeItem *const head = container->childAtIndex(0);
    if (head && (!head->title().isEmpty() || head->childCount() > 0))
        return QString();
    QFile file(path);
    return file.open(QIODevice::ReadOnly)
               ? JsonDiagram::reasonAgainst(QJsonDocument::fromJson(file.readAll()))
               : QString();
}

/** Reads and parses a file while the program goes on. */
void DocumentLoader::readLarge(const QString &path)
{
    Q_EMIT fetchStarted(QUrl::fromLocalFile(path));
    m_reader->read(path);
}

/** Makes a document of what was read from @p path. */
void DocumentLoader::endReading(const QString &path, const QJsonDocument &json,
                                const QString &reason)
{
    Q_EMIT fetchEnded();
    if (!m_model || !reason.isEmpty()) {
        finish(nullptr, m_model ? reason : tr("the program is closing"));
        return;
    }
    const BusyCursor busy; // the tree can only be made here
    auto document = std::make_unique<FishInfo>();
    document->loadFish(json.object(), m_model);
    FishInfo *const loadedDocument = document.release();
    m_model->insertFish(m_model->fishList().size(), loadedDocument); // which takes it over
    loadedDocument->setCurrentFile(path);
    finish(loadedDocument, QString());
}

/** Makes a new document of a file of another program, to which it is never saved. */
void DocumentLoader::importFile(const QString &path, DiagramExchange::Format format)
{
    std::optional<BusyCursor> busy;
    if (QFileInfo(path).size() > largeOutline)
        busy.emplace();
    QString reason;
    ExchangeReport report;
    const bool isMapped = m_mappings.contains(path);
    const TableMapping mapping = m_mappings.take(path);
    auto head =
        DiagramExchange::readFile(path, format, &reason, &report, isMapped ? &mapping : nullptr);
    if (!head) {
        finish(nullptr, reason);
        return;
    }
    const QString name = freeName(QFileInfo(path).completeBaseName());
    m_model->insertExistItemRows(QModelIndex(), {head.release()}); // which takes it over
    FishInfo *const document = m_model->fishList().constLast();
    document->setFileName(name);
    if (!report.isEmpty())
        Q_EMIT reported(m_waiting.constFirst(), report);
    finish(document, QString());
}

/** A name for a document without a file, which no other one bears. */
QString DocumentLoader::freeName(const QString &baseName) const
{
    QStringList taken;
    const QList<FishInfo *> documents = m_openDocuments();
    for (const FishInfo *document : documents)
        taken.append(document->userFriendlyCurrentFile());
    QString name = baseName + QStringLiteral(".json");
    for (int number = 2; taken.contains(name); ++number)
        name = QStringLiteral("%1 %2.json").arg(baseName).arg(number);
    return name;
}

void DocumentLoader::fetch(const QUrl &url)
{
    m_isFetching = true;
    m_isCancelled = false;
    m_model->loadFishFromUrl(url);
    Q_EMIT fetchStarted(url);
}

void DocumentLoader::cancel()
{
    if (m_reader->isReading()) {
        m_reader->drop();
        Q_EMIT fetchEnded();
        Q_EMIT cancelled(m_waiting.constFirst());
        leave();
        return;
    }
    if (!m_model || !m_model->isLoading())
        return;
    m_isCancelled = true;
    m_model->cancelLoads();
}

void DocumentLoader::endFetch(const QModelIndex &index, MODEL_ERROR error)
{
    Q_UNUSED(index) // invalid for a document without a head
    if (!m_isFetching || m_model->isLoading())
        return; // somebody else loaded a file meanwhile
    m_isFetching = false;
    Q_EMIT fetchEnded();
    if (error == MODEL_NO_ERROR) {
        finish(m_model->fishList().constLast(), QString());
    } else if (m_isCancelled) {
        Q_EMIT cancelled(m_waiting.constFirst());
        leave();
    } else {
        finish(nullptr, m_model->loadError());
    }
}

/** Reports the end of the load under way: @p document, or null and the reason. */
void DocumentLoader::finish(FishInfo *document, const QString &reason)
{
    const QString source = m_waiting.constFirst();
    if (document && document->treeItem()->childCount() == 0) {
        m_model->unloadFish(document);
        Q_EMIT failed(source, tr("it holds no diagram"));
    } else if (document) {
        Q_EMIT loaded(source, document);
    } else {
        Q_EMIT failed(source, reason);
    }
    leave();
}

/** Goes on to what waits behind the load that was reported. */
void DocumentLoader::leave()
{
    m_waiting.removeFirst();
    if (m_waiting.isEmpty())
        Q_EMIT idle();
    else
        QMetaObject::invokeMethod(this, &DocumentLoader::loadNext, Qt::QueuedConnection);
}
