// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodelpart.h>

#include <QList>
#include <QString>

/** Gets documents into a FishModel from text, files and the network. */
class FISHBONE_NO_EXPORT FishModel::Loading : Part
{
public:
    explicit Loading(FishModel &model)
        : Part(model)
    {
    }

    FishInfo *loadJson(const QByteArray &json);
    /** Loads a file and reports it; the document takes the name of the file when it is to be @p
     * named. */
    int loadFile(const QString &path, bool named);
    int loadTemplate();
    int reload(const QString &path, FishInfo *document);

    void fetch(const QUrl &url);
    void finishFetch(QNetworkReply *reply);
    void cancel();
    bool isFetching() const { return !m_replies.isEmpty(); }

    QString error() const { return m_error; }
    void setTimeout(int ms) { m_timeout = ms; }
    void setLimit(qint64 bytes) { m_limit = bytes; }

private:
    bool readFile(const QString &path, QByteArray *content);
    QJsonDocument parse(const QByteArray &json);
    static QString reasonOf(const QNetworkReply &reply);
    void report(FishInfo *document) const;
    void reportReload(const QPointer<FishInfo> &document) const;

    QList<QNetworkReply *> m_replies; ///< of the fetches under way
    QString m_error;
    int m_timeout = 30000;
    qint64 m_limit = Q_INT64_C(256) * 1024 * 1024;
};
