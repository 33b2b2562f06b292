// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModelTester>
#include <QGraphicsScene>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <memory>
#include <vector>

#include <fishbone/drawing/spearbuilder.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/undo/undocommand.h>
#include <fishbone/undo/undostack.h>
#include <tests/support/documents.h>

namespace TestSupport {

/** All nodes of a model, heads first and in the order of the documents. */
inline std::vector<TreeItem *> allNodes(const FishModel &model)
{
    std::vector<TreeItem *> nodes;
    const QList<FishInfo *> documents = model.fishList();
    for (const FishInfo *document : documents) {
        const QList<TreeItem *> &heads = document->treeItem()->childItems();
        nodes.insert(nodes.end(), heads.cbegin(), heads.cend());
    }
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const QList<TreeItem *> children = nodes[i]->children();
        nodes.insert(nodes.end(), children.cbegin(), children.cend());
    }
    return nodes;
}

/** Everything there is in a model: what its documents would be saved as, and what no file tells. */
inline QString modelText(const FishModel &model)
{
    QStringList parts;
    const QList<FishInfo *> documents = model.fishList();
    for (const FishInfo *document : documents) {
        QJsonObject object;
        FishModel::write(object, document->treeItem(), false);
        parts.append(document->fileName());
        parts.append(QString::fromUtf8(QJsonDocument(object).toJson()));
    }
    for (const TreeItem *node : allNodes(model)) {
        if (!node->spearItemIsMovable())
            parts.append(QStringLiteral("immovable: ") + node->title());
    }
    return parts.join(QLatin1Char('\n'));
}

/**
 * What is wrong with the spears; empty when each hangs below the one of its subject's parent, in
 * the order of the rows, and when a subject shows either all of its children or none.
 */
inline QString spearFault(const FishModel &model)
{
    for (const TreeItem *node : allNodes(model)) {
        QList<SpearItem *> expected;
        for (const TreeItem *child : node->childItems()) {
            if (!child->spear())
                continue;
            if (child->spear()->treeItem() != child)
                return child->title() + QStringLiteral(" is not shown by its own spear");
            if (child->spear()->modelIndex() != model.indexFromItem(child))
                return child->title() + QStringLiteral(" is shown with another index");
            expected.append(child->spear());
        }
        if (!node->spear() && !expected.isEmpty() && expected.first()->parentItem())
            return QStringLiteral("children hang off a spear that is not that of ") + node->title();
        if (!node->spear())
            continue;
        if (node->spear()->childSpears() != expected)
            return QStringLiteral("wrong order or strangers below ") + node->title();
        if (!expected.isEmpty() && expected.size() != node->childCount())
            return QStringLiteral("spears are missing below ") + node->title();
    }
    return QString();
}

/** A model, its history and, once draw() was called, a scene with all spears for each document. */
class CommandFixture
{
    Q_DISABLE_COPY(CommandFixture)

public:
    /**
     * The documents are written as documentFromText() reads them, with ";" between them. Heads
     * show their plain title: the counts of the first document change what the other rows show.
     */
    explicit CommandFixture(const QString &documents = QString())
    {
        model->setModelType(FISH_MODEL_DIAGRAM);
        const QStringList texts = documents.split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (const QString &text : texts)
            loadDocument(*model, text);
    }

    ~CommandFixture()
    {
        stack.reset();
        model.reset();
    }

    /** Makes all spears that there are not, each document in a scene of its own. */
    void draw()
    {
        const SpearBuilder builder(*model);
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex head = model->index(row, 0);
            SpearItem *const spear = builder.buildHead(head);
            builder.buildDescendants(head);
            m_scenes.push_back(std::make_unique<QGraphicsScene>());
            m_scenes.back()->addItem(spear);
        }
        m_isDrawn = true;
    }

    TreeItem *node(const char *title) const { return nodeTitled(*model, QString::fromUtf8(title)); }
    QModelIndex index(const char *title) const { return model->indexFromItem(node(title)); }
    SpearItem *spear(const char *title) const { return node(title)->spear(); }
    FishInfo *document(int row) const { return model->fishList().at(row); }

    /** The snapshot of the subjects of these titles, as an editor takes it. */
    QJsonObject snapshot(const QStringList &titles) const
    {
        QJsonArray objects;
        for (const QString &title : titles) {
            QJsonObject object;
            FishModel::write(object, nodeTitled(*model, title), true);
            objects.append(object);
        }
        if (objects.size() == 1)
            return objects.first().toObject();
        return {{QStringLiteral("children"), objects}};
    }

    /** The trees of all documents with ";" between them; "+" is a new subject, "*" a new head. */
    QString text() const
    {
        QStringList texts;
        const QList<FishInfo *> documents = model->fishList();
        for (const FishInfo *shown : documents) {
            const TreeItem *const head = shown->treeItem()->childAtIndex(0);
            texts.append(head ? treeToText(*head) : QStringLiteral("-"));
        }
        return texts.join(QLatin1Char(';'))
            .replace(QStringLiteral("子主题"), QStringLiteral("+"))
            .replace(QStringLiteral("自由主题"), QStringLiteral("*"));
    }

    /**
     * Pushes a command and takes it back and carries it out again, twice. What is wrong with the
     * bytes or the spears in between; empty when nothing is.
     */
    QString roundTripFault(UndoCommand *command)
    {
        const QString before = modelText(*model);
        stack->push(command);
        const QString after = modelText(*model);
        for (int pass = 0; pass < 2; ++pass) {
            const QString fault = m_isDrawn ? spearFault(*model) : QString();
            if (!fault.isEmpty())
                return fault + QStringLiteral(" after redo: ") + text();
            stack->undo();
            if (modelText(*model) != before)
                return QStringLiteral("undo: ") + text() + difference(before);
            const QString undone = m_isDrawn ? spearFault(*model) : QString();
            if (!undone.isEmpty())
                return undone + QStringLiteral(" after undo: ") + text();
            stack->redo();
            if (modelText(*model) != after)
                return QStringLiteral("redo: ") + text() + difference(after);
        }
        return QString();
    }

    std::unique_ptr<FishModel> model = std::make_unique<FishModel>();
    std::unique_ptr<UndoStack> stack = std::make_unique<UndoStack>();

private:
    /** The first line in which the model differs from what was expected. */
    QString difference(const QString &expected) const
    {
        const QStringList lines = modelText(*model).split(QLatin1Char('\n'));
        const QStringList expectedLines = expected.split(QLatin1Char('\n'));
        int line = 0;
        while (line < lines.size() && lines.at(line) == expectedLines.value(line))
            ++line;
        return QStringLiteral("\n%1\nexpected\n%2")
            .arg(lines.value(line), expectedLines.value(line));
    }

    std::vector<std::unique_ptr<QGraphicsScene>> m_scenes;
    bool m_isDrawn = false;
    QAbstractItemModelTester m_tester{model.get(),
                                      QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace TestSupport
