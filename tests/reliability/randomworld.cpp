// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/reliability/randomworld.h>

#include <fishbone/editor/fishscene.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/undo/undostack.h>
#include <tests/support/commandfixture.h>
#include <tests/support/orphans.h>

#include <QFile>

using namespace TestSupport;

namespace {

constexpr std::size_t mostModels = 3;
constexpr std::size_t mostEditors = 3;
constexpr int mostDocuments = 4;
constexpr int mostNodes = 250;
constexpr int nodesOfADocument = 60;

} // namespace

RandomWorld::RandomWorld(QRandomGenerator &random, int subjects)
    : m_random(random)
    , m_subjects(subjects)
{
    keepInBounds();
}

RandomWorld::~RandomWorld()
{
    clear();
}

void RandomWorld::clear()
{
    while (!m_models.empty() || !m_editors.empty()) {
        if (m_random.bounded(2) == 0)
            removeModel();
        else
            removeEditor();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void RandomWorld::keepInBounds()
{
    if (m_models.empty())
        addModel();
    if (m_editors.empty())
        addEditor();
    for (const Model &entry : m_models) {
        FishModel &model = *entry.model;
        while (model.rowCount() > mostDocuments ||
               int(allNodes(model).size()) > m_subjects + mostNodes)
            model.unloadFish(model.fishList().at(m_random.bounded(model.rowCount())));
        if (model.rowCount() == 0)
            loadDocument(&model);
        const QList<FishInfo *> documents = model.fishList();
        for (FishInfo *document : documents) {
            if (document->autoSaveFile().isEmpty())
                document->setAutoSaveFile(newPath());
        }
    }
    for (const auto &editor : m_editors) {
        if (!editor->model())
            setModel(editor.get());
    }
}

QString RandomWorld::newPath()
{
    constexpr int files = 20; // they are written again and again
    return m_folder.filePath(QStringLiteral("document%1.json").arg(++m_paths % files));
}

FishModel *RandomWorld::anyModel()
{
    return m_models.empty() ? nullptr
                            : m_models[m_random.bounded(quint32(m_models.size()))].model.get();
}

FishEditor *RandomWorld::anyEditor()
{
    return m_editors.empty() ? nullptr
                             : m_editors[m_random.bounded(quint32(m_editors.size()))].get();
}

TreeItem *RandomWorld::anyNode(FishModel *model)
{
    const std::vector<TreeItem *> nodes = model ? allNodes(*model) : std::vector<TreeItem *>();
    return nodes.empty() ? nullptr : nodes[m_random.bounded(quint32(nodes.size()))];
}

QModelIndex RandomWorld::anyIndex(FishModel *model)
{
    const TreeItem *const node = m_random.bounded(20) == 0 ? nullptr : anyNode(model);
    const int column = m_random.bounded(8) == 0 ? m_random.bounded(5) : 0;
    return node ? model->indexFromItem(node, column) : QModelIndex();
}

SpearItem *RandomWorld::anySpear(FishEditor *editor)
{
    QList<SpearItem *> spears;
    if (editor && editor->headSpear())
        spears.append(editor->headSpear());
    for (int i = 0; i < spears.size(); ++i) {
        const QList<SpearItem *> children = spears.at(i)->childSpears();
        for (SpearItem *child : children) {
            if (child->isVisible())
                spears.append(child);
        }
    }
    return spears.isEmpty() ? nullptr : spears.at(m_random.bounded(int(spears.size())));
}

void RandomWorld::addModel()
{
    if (m_models.size() >= mostModels)
        return;
    Model added;
    added.model = std::make_unique<FishModel>();
    added.model->setModelType(FISH_MODEL_DIAGRAM);
    added.tester = std::make_unique<QAbstractItemModelTester>(
        added.model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    m_models.push_back(std::move(added));
    loadDocument(m_models.back().model.get());
}

void RandomWorld::addEditor()
{
    if (m_editors.size() >= mostEditors)
        return;
    auto editor = std::make_unique<FishEditor>();
    editor->setPasteAsNew(true);
    editor->undoStack()->setRolling(true);
    editor->resize(500, 400);
    editor->setModel(anyModel());
    editor->show();
    m_editors.push_back(std::move(editor));
    showSomething(m_editors.back().get());
}

void RandomWorld::removeModel()
{
    if (m_models.empty())
        return;
    const auto at = m_models.begin() + int(m_random.bounded(quint32(m_models.size())));
    const Model removed = std::move(*at);
    m_models.erase(at);
}

void RandomWorld::removeEditor()
{
    if (m_editors.empty())
        return;
    const auto at = m_editors.begin() + int(m_random.bounded(quint32(m_editors.size())));
    const std::unique_ptr<FishEditor> removed = std::move(*at);
    m_editors.erase(at);
}

void RandomWorld::loadDocument(FishModel *model)
{
    if (!model)
        return;
    RandomShape shape;
    const bool isLarge = m_subjects > 0 && model->rowCount() == 0;
    shape.nodes = isLarge ? m_subjects : m_random.bounded(1, nodesOfADocument + 1);
    // No two documents share a uuid, by which the history finds its subjects.
    TestSupport::loadDocument(*model, randomDocument(++m_documents, shape));
}

void RandomWorld::loadBrokenDocument(FishModel *model)
{
    if (!model)
        return;
    QByteArray json = QJsonDocument(randomDocument(++m_documents)).toJson(QJsonDocument::Compact);
    json.truncate(m_random.bounded(int(json.size())));
    model->loadJsonFish(json);
}

void RandomWorld::saveDocument(FishModel *model)
{
    if (!model || model->rowCount() == 0)
        return;
    FishInfo *const document = model->fishList().at(m_random.bounded(model->rowCount()));
    const QString path = newPath();
    // Whoever had that file reads another document from it otherwise, with uuids that exist twice.
    for (const Model &entry : m_models) {
        const QList<FishInfo *> documents = entry.model->fishList();
        for (FishInfo *other : documents) {
            if (other->fileName() == path)
                other->setFileName(QString());
        }
    }
    if (document->saveFile(path))
        document->setFileName(path);
}

void RandomWorld::reloadDocument(FishModel *model)
{
    if (!model || model->rowCount() == 0)
        return;
    FishInfo *const document = model->fishList().at(m_random.bounded(model->rowCount()));
    const QString path = document->autoSaveFile();
    if (document->saveTmpFile())
        model->reloadDataFromFile(path, document);
}

void RandomWorld::showSomething(FishEditor *editor)
{
    auto *const model = editor ? qobject_cast<FishModel *>(editor->model()) : nullptr;
    if (!model)
        return;
    const bool isHead = m_random.bounded(4) != 0 && model->rowCount() > 0;
    editor->setRootIndex(isHead ? model->index(m_random.bounded(model->rowCount()), 0)
                                : anyIndex(model));
}

void RandomWorld::setModel(FishEditor *editor)
{
    FishModel *const model = anyModel();
    if (!editor || !model)
        return;
    editor->setModel(model);
    editor->setRootIndex(model->index(0, 0));
}

void RandomWorld::redraw(FishModel *model)
{
    for (const auto &editor : m_editors) {
        if (editor->model() == model)
            editor->updateFish(true);
    }
}

void RandomWorld::redrawAll()
{
    for (const Model &entry : m_models)
        redraw(entry.model.get());
}

QString RandomWorld::quickFault() const
{
    for (const Model &entry : m_models) {
        if (entry.model->rowCount() != entry.model->fishList().size())
            return QStringLiteral("the model counts other documents than it has");
    }
    for (const auto &editor : m_editors) {
        const SpearItem *const head = editor->headSpear();
        if (!head)
            continue;
        if (!editor->model())
            return QStringLiteral("a head is shown without a model");
        if (!head->treeItem() || head->treeItem()->spear() != head)
            return QStringLiteral("the head and its subject do not know each other");
        const SpearItem *const selected = editor->firstSelectedSpear();
        if (selected && selected->scene() != editor->scene())
            return QStringLiteral("a selected spear of another scene");
    }
    return {};
}

QString RandomWorld::fault() const
{
    for (const Model &entry : m_models) {
        const QString found = spearFault(*entry.model);
        if (!found.isEmpty())
            return found;
    }
    for (const auto &editor : m_editors) {
        const QString found = orphanFault(*editor);
        if (!found.isEmpty())
            return found;
    }
    return quickFault();
}
