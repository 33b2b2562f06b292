// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodelloading.h>

#include <fishbone/base/jsonerrors.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel_p.h>

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
bool FishModel::Loading::readFile(const QString &path, QByteArray *content)
{
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    if (isOpen)
        *content = file.readAll();
    m_error = isOpen ? QString() : file.errorString();
    return isOpen;
}

/** The document of a text; null, with the reason kept, when it is none. */
QJsonDocument FishModel::Loading::parse(const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(json, &error);
    if (!parsed.isNull())
        m_error.clear();
    else
        m_error = JsonErrors::reason(json, error);
    return parsed;
}

FishInfo *FishModel::Loading::loadJson(const QByteArray &json)
{
    const QJsonDocument parsed = parse(json);
    if (parsed.isNull())
        return nullptr;
    auto document = std::make_unique<FishInfo>();
    document->buildTree(parsed.object());
    // Who hears of the new row may unload it at once.
    const QPointer<FishInfo> loaded(document.release());
    loaded->setParent(&m_model); // while it waits
    announcer().whenChanged([this, loaded] {
        if (!loaded)
            return;
        loaded->setParent(nullptr);
        m_model.insertFish(documents().count(), loaded);
    });
    return loaded;
}

/** Tells of a document that was loaded, once nothing is announced. */
void FishModel::Loading::report(FishInfo *document) const
{
    const QPointer<FishInfo> loaded(document);
    announcer().whenChanged([this, loaded] {
        Q_EMIT m_model.fishLoaded(m_model.index(documents().rowOf(loaded), 0), MODEL_NO_ERROR);
    });
}

/** Loads a file and announces it; the document takes the file's name when it is to be @p named. */
int FishModel::Loading::loadFile(const QString &path, bool named)
{
    QByteArray content;
    if (!readFile(path, &content))
        return MODEL_FILE_OPEN_ERROR;
    FishInfo *const document = loadJson(content);
    if (!document)
        return MODEL_DATA_ERROR;
    if (named)
        document->setFileName(path);
    report(document);
    return MODEL_NO_ERROR;
}

int FishModel::Loading::loadTemplate()
{
    QByteArray content;
    if (!readFile(QStringLiteral(":/res/default.json"), &content))
        return MODEL_FILE_OPEN_ERROR;
    return loadJson(content) ? MODEL_NO_ERROR : MODEL_DATA_ERROR;
}

void FishModel::Loading::fetch(const QUrl &url)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setTransferTimeout(m_timeout);
    auto *const manager = new QNetworkAccessManager(&m_model);
    connect(manager, &QNetworkAccessManager::finished, &m_model, &FishModel::replyFinished);
    QNetworkReply *const reply = manager->get(request);
    m_replies.append(reply);
    // The reply's own report leaves out what comes shortly after the one before.
    connect(reply, &QNetworkReply::readyRead, &m_model, [this, reply, url] {
        const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
        Q_EMIT m_model.loadProgress(url, reply->bytesAvailable(),
                                    length.isValid() ? length.toLongLong() : -1);
    });
    if (m_limit > 0)
        limitReply(reply, m_limit);
    if (m_timeout > 0)
        limitTime(reply, qint64(longestLoad) * m_timeout);
}

void FishModel::Loading::cancel()
{
    const QList<QNetworkReply *> replies = m_replies;
    for (QNetworkReply *reply : replies) {
        // Who hears of the end of one may end the model, and another one with it.
        const QPointer<FishModel> alive(&m_model);
        if (m_replies.contains(reply))
            reply->abort();
        if (!alive)
            return;
    }
}

/** Why there is nothing to load in a reply. */
QString FishModel::Loading::reasonOf(const QNetworkReply &reply)
{
    const bool isEnded = reply.error() == QNetworkReply::NoError ||
                         reply.error() == QNetworkReply::OperationCanceledError;
    return isEnded ? tr("the reply took too long or was too large") : reply.errorString();
}

void FishModel::Loading::finishFetch(QNetworkReply *reply)
{
    if (!reply)
        return;
    m_replies.removeOne(reply);
    reply->deleteLater();
    QNetworkAccessManager *const manager = reply->manager();
    if (manager && manager->parent() == &m_model)
        manager->deleteLater();

    const QPointer<FishModel> alive(&m_model);
    const bool fits = m_limit <= 0 || reply->bytesAvailable() <= m_limit;
    FishInfo *document = nullptr;
    if (fits && reply->error() == QNetworkReply::NoError)
        document = loadJson(reply->readAll());
    else
        m_error = reasonOf(*reply);
    if (!alive)
        return;
    if (!document) {
        Q_EMIT m_model.fishLoaded(QModelIndex(), MODEL_DATA_ERROR);
        return;
    }
    document->setFileName(reply->url().toString());
    report(document);
}

int FishModel::Loading::reload(const QString &path, FishInfo *document)
{
    QByteArray content;
    if (!readFile(path, &content))
        return MODEL_FILE_OPEN_ERROR;
    const QJsonDocument parsed = parse(content);
    if (parsed.isNull())
        return MODEL_DATA_ERROR;
    if (!document) {
        m_error = tr("there is no document to load it into");
        return MODEL_NO_DOCUMENT;
    }
    FishModel *const owner = ownerOf(document);
    FishModel *const shown = owner ? owner : &m_model;
    const QPointer<FishModel> alive(&m_model);
    const QPointer<FishInfo> reloaded(document);
    const QJsonObject root = parsed.object();
    const auto rebuild = [reloaded, root, shown] {
        reloaded->clearTree();
        reloaded->buildTree(root);
        reloaded->setModel(shown);
    };
    if (owner) {
        owner->rebuild(document, rebuild);
    } else {
        announcer().whenChanged([this, reloaded, rebuild] {
            const Change reset = announcer().resetting();
            if (reloaded)
                rebuild();
        });
    }
    if (alive)
        reportReload(reloaded);
    return MODEL_NO_ERROR;
}

/** Tells of a document that was loaded anew, once nothing is announced. */
void FishModel::Loading::reportReload(const QPointer<FishInfo> &document) const
{
    announcer().whenChanged([this, document] {
        const FishModel *const lists = ownerOf(document);
        Q_EMIT m_model.fishLoaded(lists ? lists->index(lists->fishRow(document), 0) : QModelIndex(),
                                  MODEL_NO_ERROR);
    });
}
