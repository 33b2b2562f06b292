// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/dragdropmodel.h>

#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/documents.h>

#include <QDataStream>
#include <QMimeData>
#include <QtTest>

#include <limits>
#include <memory>

using namespace TestSupport;

namespace {

/** A plain list of nodes on top of the class under test, with nothing added. */
class NodeList : public DragDropModel
{
public:
    using DragDropModel::createIndex;

    explicit NodeList(int rows)
    {
        for (int row = 0; row < rows; ++row) {
            m_nodes.push_back(std::make_unique<TreeItem>());
            m_nodes.back()->setTitle(QStringLiteral("n%1").arg(row));
        }
    }

    TreeItem *node(int row) const { return m_nodes.at(std::size_t(row)).get(); }

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override
    {
        return hasIndex(row, column, parent) ? createIndex(row, column, node(row)) : QModelIndex();
    }
    QModelIndex parent(const QModelIndex &) const override { return {}; }
    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_nodes.size());
    }
    int columnCount(const QModelIndex & = {}) const override { return 2; }
    QVariant data(const QModelIndex &index, int = Qt::DisplayRole) const override
    {
        return index.isValid() ? node(index.row())->data(index.column()) : QVariant();
    }

private:
    std::vector<std::unique_ptr<TreeItem>> m_nodes;
};

QByteArray payloadOf(const QMimeData &mime)
{
    return mime.data(QStringLiteral("QModelIndexList"));
}

std::unique_ptr<QMimeData> mimeWith(const QByteArray &payload)
{
    auto mime = std::make_unique<QMimeData>();
    mime->setData(QStringLiteral("QModelIndexList"), payload);
    return mime;
}

/** Records spelled out byte by byte, most significant first. */
QByteArray record(qint32 row, qint32 column, quint64 pointer)
{
    QByteArray bytes;
    const auto add = [&bytes](quint64 number, int size) {
        while (size-- > 0)
            bytes.append(char(number >> (8 * size) & 0xff));
    };
    add(quint64(quint32(row)), 4);
    add(quint64(quint32(column)), 4);
    add(pointer, 8);
    return bytes;
}

quint64 number(const void *pointer)
{
    return reinterpret_cast<quintptr>(pointer);
}

} // namespace

/** Indexes as mime data, in any model and in FishModel. */
class TestDragDropModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameItsFormats();
    void shouldWriteRecordsAndText();
    void shouldWriteNothingForNoIndexes();
    void shouldReadBackWhatItWrote();
    void shouldReadNothingWithoutItsFormat();
    void shouldReadWholeRecordsOnly_data();
    void shouldReadWholeRecordsOnly();
    void shouldAcceptDropsOfText();
    void shouldSupportCopyAndMove();
    void shouldLetMovableNodesBeDragged();
    void shouldReadBackIndexesOfAFishModel();
    void shouldNeverBelievePointersInAFishModel_data();
    void shouldNeverBelievePointersInAFishModel();
    void shouldPlaceStaleRecordsWhereTheNodeIsNow();
    void shouldReadManyRecordsInTime();
};

void TestDragDropModel::shouldNameItsFormats()
{
    const NodeList model(0);

    QCOMPARE(model.mimeTypes(),
             QStringList({QStringLiteral("text/plain"), QStringLiteral("QModelIndexList"),
                          QStringLiteral("TreeItems")}));
}

void TestDragDropModel::shouldWriteRecordsAndText()
{
    const NodeList model(3);

    const std::unique_ptr<QMimeData> mime(model.mimeData({model.index(0, 0), model.index(2, 0)}));

    QCOMPARE(payloadOf(*mime),
             record(0, 0, number(model.node(0))) + record(2, 0, number(model.node(2))));
    QCOMPARE(mime->text(), QStringLiteral("n0;n2;"));
    QVERIFY(!mime->hasFormat(QStringLiteral("TreeItems")));
}

void TestDragDropModel::shouldWriteNothingForNoIndexes()
{
    const NodeList model(3);

    const std::unique_ptr<QMimeData> mime(model.mimeData({}));

    QVERIFY(mime->hasFormat(QStringLiteral("QModelIndexList")));
    QCOMPARE(payloadOf(*mime), QByteArray());
    QCOMPARE(mime->text(), QString());
    QCOMPARE(model.indexList(mime.get()), QModelIndexList());
}

void TestDragDropModel::shouldReadBackWhatItWrote()
{
    const NodeList model(3);
    const QModelIndexList indexes{model.index(2, 1), model.index(0, 0), model.index(2, 1)};

    const std::unique_ptr<QMimeData> mime(model.mimeData(indexes));

    QCOMPARE(model.indexList(mime.get()), indexes);
}

void TestDragDropModel::shouldReadNothingWithoutItsFormat()
{
    const NodeList model(3);
    QMimeData mime;
    mime.setText(QStringLiteral("n0;"));

    QCOMPARE(model.indexList(&mime), QModelIndexList());
    QCOMPARE(model.indexList(nullptr), QModelIndexList());
}

void TestDragDropModel::shouldReadWholeRecordsOnly_data()
{
    QTest::addColumn<int>("bytes");
    QTest::addColumn<int>("count");

    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("one byte") << 1 << 0;
    QTest::newRow("cut in the row") << 18 << 1;
    QTest::newRow("cut in the column") << 23 << 1;
    QTest::newRow("cut in the pointer") << 31 << 1;
    QTest::newRow("whole") << 32 << 2;
}

void TestDragDropModel::shouldReadWholeRecordsOnly()
{
    QFETCH(int, bytes);
    QFETCH(int, count);
    const NodeList model(3);
    const std::unique_ptr<QMimeData> whole(model.mimeData({model.index(0, 0), model.index(2, 0)}));

    const auto cut = mimeWith(payloadOf(*whole).left(bytes));

    QCOMPARE(model.indexList(cut.get()).size(), count);
}

void TestDragDropModel::shouldAcceptDropsOfText()
{
    NodeList model(1);
    QMimeData text;
    text.setText(QStringLiteral("n0;"));
    const auto records = mimeWith(QByteArray());

    QVERIFY(model.dropMimeData(&text, Qt::CopyAction, 0, 0, QModelIndex()));
    QVERIFY(model.dropMimeData(&text, Qt::MoveAction, 0, 0, QModelIndex()));
    QVERIFY(!model.dropMimeData(records.get(), Qt::MoveAction, 0, 0, QModelIndex()));
    QVERIFY(model.dropMimeData(records.get(), Qt::IgnoreAction, 0, 0, QModelIndex()));
    QVERIFY(model.dropMimeData(nullptr, Qt::IgnoreAction, 0, 0, QModelIndex()));
    QVERIFY(!model.dropMimeData(nullptr, Qt::MoveAction, 0, 0, QModelIndex()));
    QCOMPARE(model.rowCount(), 1);
}

void TestDragDropModel::shouldSupportCopyAndMove()
{
    const NodeList model(0);

    QCOMPARE(model.supportedDropActions(), Qt::CopyAction | Qt::MoveAction);
    QCOMPARE(model.supportedDragActions(), Qt::CopyAction);
}

void TestDragDropModel::shouldLetMovableNodesBeDragged()
{
    const NodeList model(2);
    model.node(1)->setSpearItemIsMovable(false);
    const Qt::ItemFlags base = Qt::ItemIsSelectable | Qt::ItemIsEnabled;

    QCOMPARE(model.flags(model.index(0, 0)), base | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled);
    QCOMPARE(model.flags(model.index(1, 0)), base);
    QCOMPARE(model.flags(model.createIndex(0, 0)), base);
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
}

void TestDragDropModel::shouldReadBackIndexesOfAFishModel()
{
    FishModel model;
    model.setModelType(FISH_MODEL_DIAGRAM);
    loadDocument(model, QStringLiteral("A[a,b[c]]"));
    loadDocument(model, QStringLiteral("B"));
    const QModelIndexList indexes{model.index(1, 0), indexTitled(model, QStringLiteral("c")),
                                  indexTitled(model, QStringLiteral("a")).siblingAtColumn(1)};

    const std::unique_ptr<QMimeData> mime(model.mimeData(indexes));

    QCOMPARE(model.indexList(mime.get()), indexes);
    QCOMPARE(mime->text(), QStringLiteral("B;c;u-a;"));
}

void TestDragDropModel::shouldNeverBelievePointersInAFishModel_data()
{
    QTest::addColumn<quint64>("pointer");

    QTest::newRow("null") << quint64(0);
    QTest::newRow("small") << quint64(8);
    QTest::newRow("everything set") << std::numeric_limits<quint64>::max();
    QTest::newRow("beyond this process") << quint64(0x7fffdeadbeefULL);
    static const TreeItem elsewhere;
    QTest::newRow("node elsewhere") << number(&elsewhere);
}

void TestDragDropModel::shouldNeverBelievePointersInAFishModel()
{
    QFETCH(quint64, pointer);
    FishModel model;
    FishInfo *const info = loadDocument(model, QStringLiteral("A[a]"));
    Q_UNUSED(info)
    TreeItem *const a = nodeTitled(model, QStringLiteral("a"));

    const auto mime =
        mimeWith(record(0, 0, pointer) + record(0, 0, number(a)) + record(0, 0, pointer));

    // The others keep their places, so that the last one stays the last one.
    QCOMPARE(model.indexList(mime.get()),
             QModelIndexList({QModelIndex(), model.indexFromItem(a), QModelIndex()}));
}

void TestDragDropModel::shouldPlaceStaleRecordsWhereTheNodeIsNow()
{
    FishModel model;
    loadDocument(model, QStringLiteral("A[a,b]"));
    TreeItem *const b = nodeTitled(model, QStringLiteral("b"));
    const std::unique_ptr<QMimeData> mime(model.mimeData({model.indexFromItem(b)}));

    model.removeRows(0, 1, model.index(0, 0));
    QCOMPARE(model.indexList(mime.get()), QModelIndexList({model.index(0, 0, model.index(0, 0))}));
    model.removeRows(0, 1, model.index(0, 0));
    QCOMPARE(model.indexList(mime.get()), QModelIndexList({QModelIndex()}));

    const quint64 head = number(model.getFishHeadTreeItem());
    const auto odd = mimeWith(record(77, 4, head) + record(-5, 5, head) + record(0, -1, head));
    QCOMPARE(model.indexList(odd.get()),
             QModelIndexList({model.index(0, 4), QModelIndex(), QModelIndex()}));
}

void TestDragDropModel::shouldReadManyRecordsInTime()
{
    constexpr int size = 100000;
    FishModel model;
    const TreeItem *const fan = addDocument(model, makeFan(size));
    QModelIndexList indexes;
    for (int row = 0; row < size; ++row)
        indexes.append(model.indexFromItem(fan->childAtIndex(row)));

    const std::unique_ptr<QMimeData> mime(model.mimeData(indexes));

    QCOMPARE(model.indexList(mime.get()), indexes);
}

FISHBONE_TEST(TestDragDropModel)

#include "tst_dragdropmodel.moc"
