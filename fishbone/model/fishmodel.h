// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>
#include <fishbone/model/dragdropmodel.h>

#include <QList>
#include <QMetaType>
#include <QPointer>

#include <functional>
#include <memory>

class FishInfo;
class QByteArray;
class QJsonDocument;
class QJsonObject;
class QNetworkReply;
class QUrl;
class TreeItem;

/** What the rows of diagram heads show. */
enum FISH_MODEL_TYPE : int {
    FISH_MODEL_NORMAL = 0, ///< the title followed by the task counts
    FISH_MODEL_DIAGRAM = 1 ///< the plain title, as for any other value but 0
};

/** The outcome of a load. */
enum MODEL_ERROR : int {
    MODEL_NO_ERROR = 0,
    MODEL_FILE_OPEN_ERROR = -10001, ///< the file or template cannot be opened for reading
    MODEL_DATA_ERROR = -10002,      ///< what arrived is no JSON document, or did not arrive
    MODEL_NO_DOCUMENT = -10003      ///< a reload was given no document
};

Q_DECLARE_METATYPE(MODEL_ERROR)

/**
 * The loaded diagrams as an item model.
 *
 * A top-level row stands for a document (FishInfo) and points at its head; the rows below a node
 * are its children. The internal pointer of an index is its TreeItem. Columns: title, uuid, showid,
 * pid, type. The top-level index of a document without a head is invalid, and everything skips it.
 *
 * The model owns its documents, and they know it. Row operations check their arguments first,
 * announce exactly what they do, and on false have changed nothing. The tree must not be changed
 * behind the model's back while views are attached; insertFishToList() and removeFishFromList(),
 * which are meant for callers that announce by themselves, keep persistent indexes valid but tell
 * no view.
 *
 * Whoever hears of a change may change the model again, or end it. Between the announcement of a
 * change (rowsAboutToBeInserted() and its like) and the change itself all other changes of the tree
 * are refused, as any that cannot be, and loads come when the change is through; to end the model
 * there is an error. A node that lives in another model is refused everywhere.
 */
class FISHBONE_EXPORT FishModel : public DragDropModel
{
    Q_OBJECT

public:
    /** A model without documents. */
    explicit FishModel(QObject *parent = nullptr);
    /** Deletes the documents. */
    ~FishModel() override;

    /**
     * @name Structure and data
     * @{
     */
    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    using QObject::parent;
    /** Constant time, also with many documents. */
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /** Selectable and enabled, nothing else. */
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /** Edits a column. The type (column 4) is stored, but the result is false and no signal comes.
     */
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /** @} */

    /**
     * @name Row operations
     * @{
     */
    /**
     * Inserts new subjects, or new documents at the top level, each with a uuid of its own and at
     * @p row, so that the newest comes first; or the nodes that insertExistItemRows() left waiting,
     * likewise, so that they end up in reverse.
     */
    bool insertRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    /**
     * Appends existing nodes under @p parent, or as new documents at the top level, and takes them
     * over; null entries are skipped. False, with nothing changed, when one of them is in a model
     * already, is listed twice, is above @p parent, or is below one that comes before it.
     */
    bool insertExistItemRows(const QModelIndex &parent, const QList<TreeItem *> &items);
    /** Deletes rows with all below them; at the top level the documents. */
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;
    /**
     * Moves rows as TreeItem::moveChildren() does. A head that moves under a node loses its
     * document, a node that moves to the top level becomes the head of a new one and has no parent
     * task then. A move below a moved row is refused; one that leaves everything in place is true.
     */
    bool moveRows(const QModelIndex &sourceParent, int sourceRow, int count,
                  const QModelIndex &destinationParent, int destinationChild) override;
    /** As moveRows(), with nodes for the parents and null for the top level; announced alike. */
    bool moveSrcToDstWithList(TreeItem *source, int sourceRow, int count, TreeItem *destination,
                              int destinationChild);
    /**
     * Takes a row out, announced, and hands it to the caller without a parent. At the top level the
     * head is handed out and its document deleted. Null when there is no such row.
     */
    TreeItem *takeRow(int row, const QModelIndex &parent);
    /**
     * The reverse of takeRow() below a node: puts @p item, which no list may hold, at @p row,
     * announced, and takes it over; its pid stays. False, with nothing changed, otherwise.
     */
    bool putRow(int row, TreeItem *item, const QModelIndex &parent);
    /**
     * Copies title, detail, manager, followers, planned end and priority of @p source to the node
     * at @p index and marks it edited. Emits nothing: the caller refreshes. @p source stays the
     * caller's; nothing for null.
     */
    void updateItem(const QModelIndex &index, TreeItem *source);
    /** How often updateItem() has changed a node: what was worked out before may be wrong. */
    quint64 silentChanges() const;
    /**
     * Says that the node at @p index was changed otherwise than by setData(), as by its setters or
     * by updateItem(): emits dataChanged() for all columns of its row. Nothing for an index of
     * another model.
     */
    void announceChange(const QModelIndex &index);
    /** What announceChange() emits, for any rectangle of indexes. */
    void tellData(const QModelIndex &first, const QModelIndex &last);
    /** Emits nodeChanged() for what the caller has changed in a node. */
    void tellNode(const QModelIndex &index);
    /** Announces a reset of the whole model. */
    void refreshModel();
    /** Whether a change is announced and not made yet, so that any other is refused. */
    bool isAnnouncing() const;
    /** @} */

    /**
     * @name Documents
     * @{
     */
    /** The documents in the order of their rows; owned by the model. */
    QList<FishInfo *> fishList() const;
    /**
     * Makes @p count documents with a head without uuid, each at @p row, so that the newest comes
     * first; tells no view.
     */
    bool insertFishToList(int row, int count);
    /** Makes a document of @p head at @p row and takes it over; tells no view. False for a node of
     * this model, which stays where it is, and for null. */
    bool insertFishToList(int row, TreeItem *head);
    /** Deletes @p count documents from @p row on; tells no view. */
    bool removeFishFromList(int row, int count);
    /**
     * Deletes @p document, announced; nothing for one that this model does not list, which may be
     * gone already.
     */
    void unloadFish(FishInfo *document);
    /**
     * Takes a document out of the model, announced; the caller owns it. Null for a wrong row. What
     * is taken out has no model, so that saving it fails and leaves an empty file: it is to be
     * saved before, or put into a model again.
     */
    FishInfo *takeFish(int row);
    /**
     * Puts @p document into the model, announced, and takes it over. False for null, for a row
     * outside 0..number of documents and for a document that some model lists already.
     */
    bool insertFish(int row, FishInfo *document);
    /**
     * Moves the head of the document at @p row to @p position under @p parent, announced as a move.
     * The emptied document leaves the model, and the caller owns it. Null, with nothing changed,
     * when moveRows() would refuse.
     */
    FishInfo *moveHeadUnder(int row, const QModelIndex &parent, int position);
    /**
     * Moves the node at @p index to the top level, announced as a move, as the head of @p document.
     * The document must be empty and in no model; it enters at @p row, and the model takes it over.
     * The node's pid stays. False, with nothing changed, otherwise.
     */
    bool moveToTopLevel(const QModelIndex &index, int row, FishInfo *document);
    /**
     * Makes @p newHead, which no list may hold, the head of @p document, with the old head as its
     * first child, whose pid becomes its uuid. The model takes it over. Announced as a change of
     * the layout, with the document and its row as they were. False, with nothing changed, when
     * that cannot be.
     */
    bool wrapHead(FishInfo *document, TreeItem *newHead);
    /**
     * The reverse: makes @p child, a child of the head of @p document, the head. The old head
     * leaves the model with its other children, and the caller owns it. Null, with nothing changed,
     * when
     * @p child is no such child.
     */
    TreeItem *unwrapHead(FishInfo *document, TreeItem *child);
    /** The row of @p document, -1 when this model does not list it. */
    int fishRow(const FishInfo *document) const;
    /** The document that holds @p item, null when no document of this model does. Takes a step for
     * each level above the node. */
    FishInfo *fishOf(const TreeItem *item) const;
    /** A number that grows with each change of any document of any model. */
    static quint64 changeStamp();
    /**
     * The documents of all models in which rows, data or nodes have changed, as their models told,
     * since changeStamp() was @p stamp; a document that was only loaded anew has not. Linear in the
     * number of documents of the models that changed.
     */
    static QList<QPointer<FishInfo>> fishChangedSince(quint64 stamp);
    /** Whether documents came, went or moved since changeStamp() was @p stamp. */
    bool isListChangedSince(quint64 stamp) const;
    /**
     * The document of an index that came with a signal, also when another listener has ended its
     * subject since; null when that cannot be known any more. Linear in that case, and when the
     * signal was emitted by hand.
     */
    FishInfo *fishOfTold(const QModelIndex &index) const;
    /** The top-level index of the first document of that file name, invalid when there is none.
     * Linear in the number of documents. */
    QModelIndex findFish(const QString &fileName) const;
    /** @} */

    /**
     * @name Lookup
     * @{
     */
    /** The node of @p index, null for an invalid index and for one of another model. */
    TreeItem *getTreeItem(const QModelIndex &index) const;
    /** The node above @p index, null for a head; owned by the model, as all nodes are. */
    TreeItem *getParentTreeItem(const QModelIndex &index) const;
    /** The head of the first document, null without one; owned by the model. */
    TreeItem *getFishHeadTreeItem() const;
    /**
     * The index of a living node, invalid when it is not in this model. Takes a step for each level
     * above the node.
     */
    QModelIndex indexFromItem(const TreeItem *item, int column = 0) const;
    /** Whether @p item is a node of this model; only compared, so it may point anywhere. Linear. */
    bool contains(const TreeItem *item) const;
    /** The first index, in pre-order, whose node has exactly this uuid. Linear. */
    QModelIndex modelIndexByUuid(const QString &uuid) const;
    /** All indexes, in pre-order, whose title contains @p key in any case. Linear. */
    QModelIndexList searchModelIndexes(const QString &key) const;
    /** What heads show and which context menu the editor offers. */
    FISH_MODEL_TYPE modelType() const;
    /** Chooses what heads show and which menu the editor offers; views are not told. */
    void setModelType(FISH_MODEL_TYPE type);
    /** @} */

    /**
     * @name Loading: each success appends a document
     * @{
     */
    /**
     * Loads from text; null when it is no JSON document, and when a listener of the insertion has
     * unloaded it again. Emits no fishLoaded(). A document that has to wait for the end of another
     * change is returned before it has a row.
     */
    FishInfo *loadJsonFish(const QByteArray &json);
    /** Loads a file and names the document after it. Returns a MODEL_ERROR number. */
    int loadFishFromFile(const QString &path);
    /** Loads the host's template diagram, unnamed and without a signal. A MODEL_ERROR number. */
    int loadFishTempl();
    /** Loads a file as an unnamed document. Returns a MODEL_ERROR number. */
    int loadFishFromTemplate(const QString &path);
    /**
     * Starts to fetch a diagram; fishLoaded() comes exactly once, never before this returns.
     * Redirects are followed, but never from https down to http.
     */
    void loadFishFromUrl(const QUrl &url);
    /** Whether anything is being fetched. */
    bool isLoading() const;
    /** Ends all fetches; each fails then, with a fishLoaded() of its own. */
    void cancelLoads();
    /**
     * Why the last load failed, a clause without a full stop in the user's language; empty when it
     * did not fail.
     */
    QString loadError() const;
    /**
     * Loads @p path into @p document in place of its tree. Returns a MODEL_ERROR number,
     * MODEL_NO_DOCUMENT for null, and reports the document's index with fishLoaded(), an invalid
     * one when no model lists it; who owns the document goes on to.
     */
    int reloadDataFromFile(const QString &path, FishInfo *document);
    /**
     * A transfer without progress for @p ms milliseconds fails, and so does one that takes twenty
     * times as long altogether; 0 waits for ever. Default 30000.
     */
    void setTransferTimeout(int ms);
    /** A reply of more than @p bytes fails; 0 takes any size. Default 256 MiB. */
    void setReplyLimit(qint64 bytes);
    /** @} */

    /**
     * @name Node objects of the diagram format
     * @{
     */
    /**
     * Sets @p out to the object of @p item with its subtree, or, with @p includeItem false, to that
     * of its last child (@p out stays when it has none). Nothing for null. A subtree of more than
     * 20,000 levels leaves @p out empty, since no JSON value of that depth can be destroyed safely.
     * Linear in the number of nodes.
     */
    static void write(QJsonObject &out, TreeItem *item, bool includeItem);
    /**
     * Inserts the subtree of @p root at @p position under @p parent, at the end when that is
     * negative or past it, announced. Descendants are placed with the same @p position, so that the
     * later ones of a longer list come in reverse from there on. Nothing for a null parent.
     */
    void read(const QJsonObject &root, TreeItem *parent, int position);
    /** @} */

public Q_SLOTS:
    /** Takes the reply of a fetch over: it is deleted later. Emits fishLoaded(); nothing for null.
     */
    void replyFinished(QNetworkReply *reply);

Q_SIGNALS:
    /**
     * @p received bytes of what loadFishFromUrl() fetches from @p url have come, of @p total, which
     * is -1 as long as nobody knows.
     */
    void loadProgress(const QUrl &url, qint64 received, qint64 total);
    /** A load ended; @p index is the document's top-level index, invalid on an error. */
    void fishLoaded(const QModelIndex &index, MODEL_ERROR errorCode);
    /**
     * Something of the subject at @p index has changed that no column shows, so that dataChanged()
     * does not tell: its link, or that it is the head now. Sent by the commands that do so, and by
     * wrapHead() and unwrapHead().
     */
    void nodeChanged(const QModelIndex &index);

protected:
    QModelIndexList indexesFromRecords(const QVector<Record> &records) const override;

private:
    friend class FishInfo; // announces its own reset, load and death
    class Announcer;
    class Change;
    class Documents;
    class Heads;
    class Loading;
    class Lookup;
    class Moves;
    class Part;
    class Presentation;
    class Rows;
    struct Private;

    void rebuild(FishInfo *document, const std::function<void()> &change);
    void forget(FishInfo *dying);
    static bool isInAnyModel(const TreeItem *item);
    int containerRow(const TreeItem *container) const;
    int rowOf(const TreeItem *item) const;
    QModelIndex rowIndex(const TreeItem *item) const;

    const std::unique_ptr<Private> m_d;
};
