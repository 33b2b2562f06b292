// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/editor/shownroot.h>

#include <algorithm>
#include <utility>

#include <QPersistentModelIndex>
#include <QVector>

#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/showndrawing.h>
#include <fishbone/editor/shownsubject.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/subjectwalk.h>

namespace {

QVector<ShownRoot *> &livingRoots()
{
    static QVector<ShownRoot *> roots;
    return roots;
}

} // namespace

ShownRoot::ShownRoot(ShownSubject &shown, ShownDrawing &drawing, EditorCalls &calls)
    : m_shown(shown)
    , m_drawing(drawing)
    , m_calls(calls)
{
    livingRoots().append(this);
}

ShownRoot::~ShownRoot()
{
    livingRoots().removeOne(this);
}

void ShownRoot::setModel(QAbstractItemModel *model)
{
    m_shown.setModel(model);
    if (!model)
        return;
    // Unique, so that a model that is set twice is not heard twice.
    const auto unique = Qt::UniqueConnection;
    using Model = QAbstractItemModel;
    connect(model, &Model::rowsAboutToBeRemoved, this, &ShownRoot::forgetRemovedRoot, unique);
    connect(model, &Model::rowsRemoved, this, &ShownRoot::forgetLostRoot, unique);
    connect(model, &Model::rowsInserted, this, &ShownRoot::showReturnedRoot, unique);
    connect(model, &Model::rowsMoved, this, &ShownRoot::followMove, unique);
    connect(model, &Model::modelReset, this, &ShownRoot::followReset, unique);
    connect(model, &Model::layoutChanged, this, &ShownRoot::followHead, unique);
    connect(model, &QObject::destroyed, this, &ShownRoot::forgetDestroyedModel, unique);
}

void ShownRoot::showNothing()
{
    const EditorCall call(m_calls);
    m_drawing.clear();
}

void ShownRoot::unlinkSubjects() const
{
    if (!m_shown.isOfModel())
        return;
    visitSubjects(m_shown.subjectOf(m_shown.index()), [](TreeItem *subject) {
        subject->setSpear(nullptr, QModelIndex());
        return true;
    });
}

void ShownRoot::takeOverFromOthers()
{
    const FishInfo *const document = m_shown.document();
    QVector<QPointer<ShownRoot>> roots; // which listeners of the others may end
    for (ShownRoot *root : std::as_const(livingRoots()))
        roots.append(root);
    const QPointer<ShownRoot> alive(this);
    for (const QPointer<ShownRoot> &other : std::as_const(roots)) {
        if (alive && other && other != this && other->m_shown.model() == m_shown.model() &&
            other->m_shown.document() == document)
            other->yield();
    }
}

/** Shows nothing any more, since another shows the document now. */
void ShownRoot::yield()
{
    m_last.forget();
    const EditorCall call(m_calls);
    showNothing();
    m_shown.setIndex(QModelIndex());
}

bool ShownRoot::isShownByAnother(const FishInfo *document) const
{
    const QVector<ShownRoot *> &roots = livingRoots();
    return std::any_of(roots.cbegin(), roots.cend(), [&](const ShownRoot *other) {
        return other != this && other->m_drawing.head() && other->m_shown.document() == document;
    });
}

void ShownRoot::show(const QModelIndex &index)
{
    const QModelIndex own = m_shown.fishModel() ? m_shown.ownIndex(index) : QModelIndex();
    const QPersistentModelIndex root = own.sibling(own.row(), 0);
    const EditorCall call(m_calls); // until the new drawing stands
    unlinkSubjects();
    showNothing();
    if (!root.isValid())
        return;
    m_shown.setIndex(root);
    takeOverFromOthers();
    if (!call.isAlive() || !root.isValid() || root.model() != m_shown.model())
        return;
    remember();
    load(root);
    expandBones(false);
    m_drawing.center(spearOf(root));
    if (call.isAlive()) // whoever hears of the scroll bars
        m_drawing.reveal(spearOf(root));
}

void ShownRoot::load(const QModelIndex &index)
{
    const FishModel *const model = m_shown.fishModel();
    const QModelIndex own = m_shown.ownIndex(index);
    if (model && own.isValid())
        m_drawing.show(SpearBuilder(*model).buildHead(own));
}

void ShownRoot::update(bool rebuild)
{
    const EditorCall call(m_calls);
    const SpearItem *const head = m_drawing.head();
    if (rebuild) {
        show(m_shown.index());
    } else if (head && !head->treeItem()) {
        // The subject left in a way that nobody announced. If it died, so did what the index has.
        const FishModel *const model = m_shown.fishModel();
        if (model && !m_last.subjectIn(*model))
            m_shown.setIndex(QModelIndex());
        showNothing();
    } else if (head) {
        updateHeadText();
        m_drawing.update();
        return;
    }
    if (!call.isAlive())
        return;
    if (FishInfo *const document = m_shown.document())
        document->updateNoParentNodeCount();
}

void ShownRoot::updateHeadText()
{
    // The title of a document's head shows the counts, so these come first.
    if (FishInfo *const document = m_shown.document())
        document->updateNoParentNodeCount();
    m_drawing.updateHeadText();
}

void ShownRoot::refresh()
{
    if (!m_drawing.head() || !m_drawing.head()->treeItem())
        return;
    updateHeadText();
    m_drawing.refresh();
}

void ShownRoot::expandBones(bool expand)
{
    const EditorCall call(m_calls);
    m_drawing.expandBones(expand);
    update(false);
}

SpearItem *ShownRoot::spearOf(const QModelIndex &index) const
{
    return m_drawing.spearOf(m_shown.subjectOf(index));
}

void ShownRoot::followData(const QObject *teller, const QModelIndex &index)
{
    const auto *const told = qobject_cast<const QAbstractItemModel *>(teller);
    if (told && told != m_shown.model())
        return; // one that was set earlier
    const EditorCall call(m_calls);
    // Found first: another listener may have ended the subject, and the layout need not know it.
    const FishModel *const model = m_shown.fishModel();
    const QPointer<FishInfo> document =
        model && index.isValid() ? model->fishOfTold(m_shown.ownIndex(index)) : m_shown.document();
    if (index.column() == 0 && !m_calls.willLayOut())
        update(false);
    if (document)
        document->setModified(true);
}

void ShownRoot::remember()
{
    m_isRemoved = false;
    m_last.remember(m_shown);
}

QModelIndex ShownRoot::rememberedRoot() const
{
    return m_last.indexIn(m_shown.fishModel());
}

void ShownRoot::forgetRemovedRoot(const QModelIndex &parent, int first, int last)
{
    if (sender() != m_shown.index().model())
        return; // also when nothing is shown, or what is shown came from a model set earlier
    QModelIndex above = m_shown.index();
    while (above.isValid() && above.parent() != parent)
        above = above.parent();
    if (!above.isValid() || above.row() < first || above.row() > last)
        return;
    m_isRemoved = true;
    m_removal = std::make_unique<EditorCall>(m_calls); // nobody hears before the rows are gone
    showNothing();
}

/** Shows nothing any more when a listener of the announcement has drawn what was to go. */
void ShownRoot::forgetLostRoot()
{
    const std::unique_ptr<EditorCall> removal = std::move(m_removal); // which tells at the end
    if (!m_drawing.head() || m_drawing.head()->modelIndex().isValid())
        return;
    m_isRemoved = true;
    showNothing();
}

void ShownRoot::showReturnedRoot(const QModelIndex &parent)
{
    if (sender() != m_shown.model() || parent.isValid() || !m_isRemoved)
        return;
    const QModelIndex root = rememberedRoot();
    if (root.isValid())
        show(root);
}

void ShownRoot::followReset()
{
    if (sender() != m_shown.model() || !m_drawing.head())
        return;
    // A reset makes every index invalid, whether or not the subject is still there. One that is
    // keeps its spear; a document that was loaded anew has other subjects.
    const FishModel *const model = m_shown.fishModel();
    const TreeItem *const subject = model ? m_last.subjectIn(*model) : nullptr;
    if (subject && subject->spear() == m_drawing.head()) {
        m_shown.setIndex(model->indexFromItem(subject));
        update(false);
    } else {
        showNothing();
    }
}

void ShownRoot::followHead()
{
    if (sender() != m_shown.model() || !m_last.isHead())
        return;
    const QModelIndex head = rememberedRoot();
    if (head.isValid() && !m_last.isSubject(m_shown.subjectOf(head)))
        show(head);
}

/** The shown root has moved into another document. */
void ShownRoot::followToAnotherDocument()
{
    if (isShownByAnother(m_shown.document())) {
        // What moved into that editor's document is drawn there from now on.
        m_shown.setIndex(QModelIndex());
        m_isRemoved = true;
        showNothing();
    } else if (!m_last.isHead()) { // a head comes back as the head of its old document
        m_last.follow(m_shown.document());
    }
}

void ShownRoot::followMove()
{
    if (sender() != m_shown.model())
        return;
    if (m_isRemoved && m_last.isHead()) {
        const QModelIndex head = rememberedRoot();
        if (head.isValid())
            show(head);
    } else if (m_drawing.head() && m_shown.document() != m_last.document()) {
        followToAnotherDocument();
    }
}

void ShownRoot::forgetDestroyedModel()
{
    if (m_shown.index().isValid())
        return; // another one, set earlier
    m_last.forget();
    showNothing();
}
