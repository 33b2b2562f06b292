// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Finding, editing and filtering subjects, without a drawing.

#include <QJsonDocument>
#include <QLineEdit>
#include <QTreeView>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/model/fishproxymodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/attributecommands.h>
#include <fishbone/undo/structuralcommands.h>
#include <fishbone/undo/subjectlookup.h>
#include <fishbone/undo/undostack.h>

#include <benchmarks/baretree.h>
#include <benchmarks/paired.h>
#include <benchmarks/rows.h>
#include <benchmarks/shownfish.h>

namespace {

/** So many calls make one measurement, since one alone is too short. */
constexpr int calls = 20;

TreeItem *lastNode(TreeItem *head)
{
    while (head->childCount() > 0)
        head = head->childItems().last();
    return head;
}

/** The first node in pre-order that @p wanted accepts, found by walking the pointers. */
template <typename Wanted>
TreeItem *walkTo(TreeItem *head, Wanted &&wanted)
{
    std::vector<TreeItem *> pending{head};
    while (!pending.empty()) {
        TreeItem *const node = pending.back();
        pending.pop_back();
        if (wanted(node))
            return node;
        const QList<TreeItem *> &children = node->childItems();
        for (auto child = children.crbegin(); child != children.crend(); ++child)
            pending.push_back(*child);
    }
    return nullptr;
}

/** The seconds that one of many calls takes. */
template <typename Call>
double secondsOfEach(Call &&call)
{
    return Paired::secondsOf([&call] {
               for (int i = 0; i < calls; ++i)
                   call();
           }) /
           calls;
}

/** Finding the last subject by its uuid as the commands do, against a walk to it. */
class FindingUuid : LoadedFish
{
public:
    FindingUuid(Synthetic::Shape shape, int count)
        : LoadedFish(shape, count)
        , m_key(keyFromItem(model, lastNode(head())))
    {
    }

    double ours()
    {
        return secondsOfEach([this] { benchmark::DoNotOptimize(findSubject(model, m_key)); });
    }

    double bare() const
    {
        return secondsOfEach([this] {
            const auto isWanted = [this](TreeItem *node) { return node->uuid() == m_key.uuid; };
            benchmark::DoNotOptimize(walkTo(head(), isWanted));
        });
    }

private:
    SubjectKey m_key;
};

/**
 * The search of the find dialog for the title of the last subject, against a walk over all titles.
 */
class Searching : LoadedFish
{
public:
    Searching(Synthetic::Shape shape, int count)
        : LoadedFish(shape, count)
    {
        lastNode(head())->setTitle(m_key);
        m_dialog.searchField()->setText(m_key);
    }

    double ours()
    {
        m_dialog.setModel(nullptr);
        m_dialog.setModel(&model);
        const double seconds = Paired::secondsOf([this] { m_dialog.find(); });
        if (m_dialog.matches().size() != 1)
            qFatal("the search does not find the subject");
        return seconds;
    }

    double bare() const
    {
        return Paired::secondsOf([this] {
            QModelIndexList found;
            walkTo(head(), [&](TreeItem *node) {
                if (node->title().contains(m_key, Qt::CaseInsensitive))
                    found.append(model.indexFromItem(node));
                return false;
            });
            benchmark::DoNotOptimize(found.size());
        });
    }

private:
    const QString m_key = QStringLiteral("the only one");
    ReplaceFindDialog m_dialog;
};

/**
 * A command at the last subject, against inserting a row beside it and removing that again in a
 * model over plain structs, which finds the place by walking to the uuid as a command has to.
 */
class Editing : protected LoadedFish
{
public:
    Editing(Synthetic::Shape shape, int count)
        : LoadedFish(shape, count)
        , m_bare(
              bareTreeFrom(QJsonDocument::fromJson(Synthetic::makeDocument(shape, count)).object()))
    {
        m_stack.setRolling(true);
    }

    double bare()
    {
        const QString uuid = ::lastNode(m_bare.head())->uuid;
        return secondsOfEach([&] {
            const BareNode *const node = findByUuid(m_bare.head(), uuid);
            const QModelIndex parent = m_bare.indexOf(node->parent);
            m_bare.insertRows(node->row + 1, 1, parent);
            m_bare.removeRows(node->row + 1, 1, parent);
        });
    }

protected:
    QModelIndex last() const { return model.indexFromItem(lastNode(head())); }

    /**
     * The seconds that a command takes from its making to the end of its redo; it is undone again.
     */
    template <typename Make>
    double secondsOfCommand(Make &&make)
    {
        double seconds = 0;
        for (int i = 0; i < calls; ++i) {
            seconds += Paired::secondsOf([&] { m_stack.push(make()); });
            m_stack.undo();
        }
        return seconds / calls;
    }

private:
    UndoStack m_stack;
    BareModel m_bare;
};

class Inserting : public Editing
{
public:
    using Editing::Editing;

    double ours()
    {
        const QModelIndex index = last();
        return secondsOfCommand([&] { return new InsertBack(&model, index); });
    }
};

class Deleting : public Editing
{
public:
    using Editing::Editing;

    double ours()
    {
        return secondsOfCommand([&] { return new EditDelete(&model, last()); });
    }
};

class Renaming : public Editing
{
public:
    using Editing::Editing;

    double ours()
    {
        const QModelIndex index = last();
        return secondsOfCommand(
            [&] { return new ModifyName(&model, index, QStringLiteral("renamed")); });
    }
};

/** The last subject to the front of the head. */
class Moving : public Editing
{
public:
    using Editing::Editing;

    double ours()
    {
        TreeItem *const subject = lastNode(head());
        QJsonObject snapshot;
        FishModel::write(snapshot, subject, true);
        return secondsOfCommand([&] {
            auto command =
                std::make_unique<EditMove>(&model, top(), 0, snapshot, QList<TreeItem *>{subject});
            command->setDocument(document);
            return command.release();
        });
    }
};

/** A shown tree behind a filter that changes. */
template <typename Proxy>
class FilteredTree
{
public:
    explicit FilteredTree(QAbstractItemModel *model)
    {
        m_proxy.setRecursiveFilteringEnabled(!std::is_same_v<Proxy, FishProxyModel>);
        m_proxy.setSourceModel(model);
        m_view.setUniformRowHeights(true);
        m_view.setModel(&m_proxy);
        m_view.expandAll();
        m_view.resize(400, 800);
        m_view.show();
        settle();
    }

    /** The seconds until the tree shows what contains @p text. */
    double secondsOfFilter(const QString &text)
    {
        const double seconds = Paired::secondsOf([&] {
            m_proxy.setFilterFixedString(text);
            QApplication::processEvents();
        });
        settle();
        return seconds;
    }

private:
    Proxy m_proxy;
    QTreeView m_view;
};

class Filtering : LoadedFish
{
public:
    Filtering(Synthetic::Shape shape, int count)
        : LoadedFish(shape, count)
        , m_ours(&model)
        , m_bare(&model)
    {
    }

    double ours() { return m_ours.secondsOfFilter(next(m_oursTurn)); }
    double bare() { return m_bare.secondsOfFilter(next(m_bareTurn)); }

private:
    static QString next(int &turn)
    {
        const QString texts[] = {QStringLiteral("法"), QStringLiteral("et"), QString()};
        return texts[turn++ % 3];
    }

    FilteredTree<FishProxyModel> m_ours;
    FilteredTree<QSortFilterProxyModel> m_bare;
    int m_oursTurn = 0;
    int m_bareTurn = 0;
};

} // namespace

void addRows()
{
    Paired::addRow<FindingUuid>("G10a find a uuid");
    Paired::addRow<Searching>("G10b search of the find dialog");
    Paired::addRow<Inserting>("G11a insert command");
    Paired::addRow<Deleting>("G11b delete command");
    Paired::addRow<Renaming>("G11c retitle command");
    Paired::addRow<Moving>("G11d move command");
    // Each removed range is compared with every expanded row of the view.
    Paired::addRow<Filtering>("G13 filter change", Paired::Sizes::GatesOnly);
}
