// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/exchangereport.h>
#include <fishbone/exchange/tablemapping.h>
#include <fishbone/model/fishmodel.h>

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <optional>

class FishInfo;
class LargeFileReader;
class QJsonDocument;
class QUrl;

/**
 * Loads documents into a model, in the order in which they were asked for, and can say why one
 * failed. Files are named after their path, so that they are saved where they come from; what comes
 * from a URL, or from a file in the format of another program, has to be given a name.
 */
class DocumentLoader : public QObject
{
    Q_OBJECT

public:
    explicit DocumentLoader(FishModel *model, QObject *parent = nullptr);

    /** Asks @p documents, beside the model, for what is open already. */
    void setOpenDocuments(std::function<QList<FishInfo *>()> documents);

    /** A file of more bytes than that is read while the program goes on. */
    static constexpr qint64 largeFile = Q_INT64_C(8) << 20;

    /** Loads @p source, a file's path or an http, https or file URL. Reports with a signal, for a
     * file that is not large usually before this returns. */
    void load(const QString &source);

    /** As load(), of a table whose columns stand for what @p mapping says. */
    void loadTable(const QString &path, const TableMapping &mapping);

    /** Ends the fetch or the reading that is under way, if there is one; what waits behind it is
     * loaded still. */
    void cancel();

    /** Whether there are no loads under way. */
    bool isIdle() const { return m_waiting.isEmpty(); }

    /** Whether nothing waits behind the load that is being reported. */
    bool isLast() const { return m_waiting.size() <= 1; }

    /** The format of another program that the ending of @p path tells, if it tells one. */
    static std::optional<DiagramExchange::Format> foreignFormat(const QString &path);

    /** The path that @p source stands for, empty when it is fetched from the network. */
    static QString localPath(const QString &source);

    /** Whether @p source is an http or https URL. */
    static bool isFromNetwork(const QString &source);

Q_SIGNALS:
    /** @p source was loaded, or had been loaded before, as @p document, which has a head. */
    void loaded(const QString &source, FishInfo *document);
    /** What became of the things in @p source, a file of another program, that no field holds; only
     * when there are any. Reported before loaded(). */
    void reported(const QString &source, const ExchangeReport &report);
    /** @p source cannot be loaded; @p reason is a clause for the user. */
    void failed(const QString &source, const QString &reason);
    /** The user has cancelled the load of @p source. */
    void cancelled(const QString &source);
    /** A document is fetched from the network, or read from a large file. */
    void fetchStarted(const QUrl &url);
    /** So many bytes of it have come; @p total is -1 while nobody knows how many there are. Not
     * reported of a file. */
    void fetchProgress(qint64 received, qint64 total);
    /** It came, or will not come. Reported before that. */
    void fetchEnded();
    /** There is nothing more to load. */
    void idle();

private:
    void loadNext();
    void loadFile(const QString &path);
    QString reasonAgainstLoaded(const QString &path) const;
    void readLarge(const QString &path);
    void endReading(const QString &path, const QJsonDocument &json, const QString &reason);
    void importFile(const QString &path, DiagramExchange::Format format);
    QString freeName(const QString &baseName) const;
    void fetch(const QUrl &url);
    void endFetch(const QModelIndex &index, MODEL_ERROR error);
    void leave();
    void finish(FishInfo *document, const QString &reason);
    FishInfo *openDocument(const QString &path) const;

    QPointer<FishModel> m_model;
    std::function<QList<FishInfo *>()> m_openDocuments;
    QHash<QString, TableMapping> m_mappings; ///< of the tables that wait
    QStringList m_waiting;                   ///< the first one is being loaded
    LargeFileReader *m_reader;
    bool m_isFetching = false; ///< from the network
    bool m_isCancelled = false;
};
