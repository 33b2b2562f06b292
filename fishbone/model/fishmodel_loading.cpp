// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT
//
// How documents get into FishModel from text, files and the network.

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/modelchange.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include <chrono>
#include <limits>
#include <memory>

namespace {

/** A load takes so many times as long as it may go without progress, at most. */
constexpr int longestLoad = 20;

/** Ends @p reply after so many milliseconds, however it creeps along. */
void limitTime(QNetworkReply *reply, qint64 ms)
{
    QTimer::singleShot(std::chrono::milliseconds(ms), reply, &QNetworkReply::abort);
}

/** Ends @p reply as soon as it is known to be larger than @p limit bytes. */
void limitReply(QNetworkReply *reply, qint64 limit)
{
    const auto check = [reply, limit] {
        const qint64 announced = reply->header(QNetworkRequest::ContentLengthHeader).toLongLong();
        if (announced > limit || reply->bytesAvailable() > limit)
            reply->abort();
    };
    // Otherwise Qt unpacks a small reply to a large one before anybody is asked. One byte more than
    // the greatest number there is would be less than none.
    if (limit < std::numeric_limits<qint64>::max())
        reply->setReadBufferSize(limit + 1);
    QObject::connect(reply, &QNetworkReply::metaDataChanged, reply, check);
    QObject::connect(reply, &QNetworkReply::readyRead, reply, check);
}

} // namespace

/** Reads a whole file; false when it cannot be opened. */
bool FishModel::readFile(const QString &path, QByteArray *content)
{
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    if (isOpen)
        *content = file.readAll();
    m_loadError = isOpen ? QString() : file.errorString();
    return isOpen;
}

/** The document of a text; null, with the reason kept, when it is none. */
QJsonDocument FishModel::parse(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(json, &error);
    if (!parsed.isNull())
        m_loadError.clear();
    else if (error.error == QJsonParseError::NoError)
        m_loadError = tr("it is not a JSON document");
    else
        m_loadError = tr("it is not a JSON document (line %1: %2)")
                          .arg(json.left(error.offset).count('\n') + 1)
                          .arg(error.errorString());
    return parsed;
}

FishInfo *FishModel::loadJsonFish(const QByteArray &json)
{
    const QJsonDocument parsed = parse(json);
    if (parsed.isNull())
        return nullptr;
    auto document = std::make_unique<FishInfo>();
    document->buildTree(parsed.object());
    // Who hears of the new row may unload it at once.
    const QPointer<FishInfo> loaded(document.release());
    loaded->setParent(this); // while it waits
    whenChanged([this, loaded] {
        if (!loaded)
            return;
        loaded->setParent(nullptr);
        insertFish(m_fishList.size(), loaded);
    });
    return loaded;
}

void FishModel::reportLoad(FishInfo *document)
{
    const QPointer<FishInfo> loaded(document);
    whenChanged([this, loaded] { Q_EMIT fishLoaded(index(fishRow(loaded), 0), MODEL_NO_ERROR); });
}

/** Loads a file and announces it; the document takes the file's name when it is to be @p named. */
int FishModel::loadFile(const QString &path, bool named)
{
    QByteArray content;
    if (!readFile(path, &content))
        return MODEL_FILE_OPEN_ERROR;
    FishInfo *const document = loadJsonFish(content);
    if (!document)
        return MODEL_DATA_ERROR;
    if (named)
        document->setFileName(path);
    reportLoad(document);
    return MODEL_NO_ERROR;
}

int FishModel::loadFishFromFile(const QString &path)
{
    return loadFile(path, true);
}

int FishModel::loadFishFromTemplate(const QString &path)
{
    return loadFile(path, false);
}

int FishModel::loadFishTempl()
{
    QByteArray content;
    if (!readFile(QStringLiteral(":/res/default.json"), &content))
        return MODEL_FILE_OPEN_ERROR;
    return loadJsonFish(content) ? MODEL_NO_ERROR : MODEL_DATA_ERROR;
}

void FishModel::loadFishFromUrl(const QUrl &url)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setTransferTimeout(m_transferTimeout);
    auto *const manager = new QNetworkAccessManager(this);
    connect(manager, &QNetworkAccessManager::finished, this, &FishModel::replyFinished);
    QNetworkReply *const reply = manager->get(request);
    m_replies.append(reply);
    // The reply's own report leaves out what comes shortly after the one before.
    connect(reply, &QNetworkReply::readyRead, this, [this, reply, url] {
        const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
        Q_EMIT loadProgress(url, reply->bytesAvailable(),
                            length.isValid() ? length.toLongLong() : -1);
    });
    if (m_replyLimit > 0)
        limitReply(reply, m_replyLimit);
    if (m_transferTimeout > 0)
        limitTime(reply, qint64(longestLoad) * m_transferTimeout);
}

void FishModel::cancelLoads()
{
    const QList<QNetworkReply *> replies = m_replies;
    for (QNetworkReply *reply : replies) {
        // Who hears of the end of one may end the model, and another one with it.
        const QPointer<FishModel> alive(this);
        if (m_replies.contains(reply))
            reply->abort();
        if (!alive)
            return;
    }
}

/** Why there is nothing to load in a reply. */
QString FishModel::reasonOf(const QNetworkReply &reply) const
{
    const bool isEnded = reply.error() == QNetworkReply::NoError ||
                         reply.error() == QNetworkReply::OperationCanceledError;
    return isEnded ? tr("the reply took too long or was too large") : reply.errorString();
}

void FishModel::replyFinished(QNetworkReply *reply)
{
    if (!reply)
        return;
    m_replies.removeOne(reply);
    reply->deleteLater();
    QNetworkAccessManager *const manager = reply->manager();
    if (manager && manager->QObject::parent() == this)
        manager->deleteLater();

    const QPointer<FishModel> alive(this);
    const bool fits = m_replyLimit <= 0 || reply->bytesAvailable() <= m_replyLimit;
    FishInfo *document = nullptr;
    if (fits && reply->error() == QNetworkReply::NoError)
        document = loadJsonFish(reply->readAll());
    else
        m_loadError = reasonOf(*reply);
    if (!alive)
        return;
    if (!document) {
        Q_EMIT fishLoaded(QModelIndex(), MODEL_DATA_ERROR);
        return;
    }
    document->setFileName(reply->url().toString());
    reportLoad(document);
}

int FishModel::reloadDataFromFile(const QString &path, FishInfo *document)
{
    QByteArray content;
    if (!readFile(path, &content))
        return MODEL_FILE_OPEN_ERROR;
    const QJsonDocument parsed = parse(content);
    if (parsed.isNull())
        return MODEL_DATA_ERROR;
    if (!document) {
        m_loadError = tr("there is no document to load it into");
        return MODEL_NO_DOCUMENT;
    }
    FishModel *const shown = document->m_owner ? document->m_owner : this;
    const QPointer<FishModel> alive(this);
    const QPointer<FishInfo> reloaded(document);
    const QJsonObject root = parsed.object();
    const auto reload = [reloaded, root, shown] {
        reloaded->clearTree();
        reloaded->buildTree(root);
        reloaded->setModel(shown);
    };
    if (document->m_owner) {
        shown->rebuild(document, reload);
    } else {
        whenChanged([this, reloaded, reload] {
            const Change reset = resetting();
            if (reloaded)
                reload();
        });
    }
    if (alive)
        whenChanged([this, reloaded] {
            const FishModel *const lists = reloaded ? reloaded->m_owner : nullptr;
            Q_EMIT fishLoaded(lists ? lists->index(lists->fishRow(reloaded), 0) : QModelIndex(),
                              MODEL_NO_ERROR);
        });
    return MODEL_NO_ERROR;
}
