// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModelTester>
#include <QGraphicsView>
#include <QSignalSpy>

#include <fishbone/editor/boneexpansion.h>
#include <fishbone/editor/commandrunner.h>
#include <fishbone/editor/editorcall.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/showndrawing.h>
#include <fishbone/editor/shownroot.h>
#include <fishbone/editor/shownsubject.h>
#include <fishbone/editor/subjectedits.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/undo/undostack.h>
#include <tests/support/documents.h>

namespace TestSupport {

/**
 * The parts of an editor without one, in a view that is no more than that: a model with one
 * document, which is shown. Heads show their plain title.
 */
class EditorParts
{
    Q_DISABLE_COPY(EditorParts)

public:
    /** The document is written as documentFromText() reads it. */
    explicit EditorParts(FishModel &shownModel, const QString &document)
        : model(shownModel)
    {
        model.setModelType(FISH_MODEL_DIAGRAM);
        info = loadDocument(model, document);
        view.setScene(drawing.scene());
        QObject::connect(drawing.scene(), &FishScene::selectionChanged, &calls,
                         &EditorCalls::noteSelection);
        root.setModel(&model);
        root.show(model.indexFromItem(info->treeItem()->childAtIndex(0)));
    }

    QModelIndex index(const char *title) const
    {
        return indexTitled(model, QString::fromLatin1(title));
    }
    TreeItem *node(const char *title) const
    {
        return nodeTitled(model, QString::fromLatin1(title));
    }
    SpearItem *spear(const char *title) const { return node(title)->spear(); }
    void select(const char *title) const
    {
        drawing.scene()->clearSelection();
        spear(title)->setSelected(true);
    }
    /** The tree of the shown document; "+" is a new subject. */
    QString text() const
    {
        return treeToText(*info->treeItem()->childAtIndex(0))
            .replace(QStringLiteral("子主题"), QStringLiteral("+"));
    }
    /** The titles in the drawing, in the form of text(). */
    QString drawn() const { return drawing.head() ? textOf(*drawing.head()) : QString(); }

    FishModel &model;
    FishInfo *info = nullptr;
    UndoStack stack;
    QGraphicsView view;
    ShownSubject shown;
    ShownDrawing drawing{view};
    EditorCalls calls{*drawing.scene(), shown};
    ShownRoot root{shown, drawing, calls};
    CommandRunner runner{stack, root, calls};
    BoneExpansion expansion{shown, drawing, root, calls};
    SubjectEdits edits{{shown, drawing, root, calls, runner}};

private:
    // Documents of tests are shallow.
    static QString textOf(const SpearItem &spear)
    {
        QStringList below;
        const QList<SpearItem *> children = spear.childSpears();
        for (const SpearItem *child : children)
            below.append(textOf(*child));
        const QString title = spear.text();
        return below.isEmpty()
                   ? title
                   : title + QLatin1Char('[') + below.join(QLatin1Char(',')) + QLatin1Char(']');
    }
};

/** A model of its own with its parts. */
class OwnEditorParts
{
public:
    explicit OwnEditorParts(const char *document)
        : parts(model, QString::fromLatin1(document))
    {
    }

    EditorParts *operator->() { return &parts; }

    FishModel model;
    EditorParts parts;

private:
    QAbstractItemModelTester m_tester{&model,
                                      QAbstractItemModelTester::FailureReportingMode::QtTest};
};

} // namespace TestSupport
