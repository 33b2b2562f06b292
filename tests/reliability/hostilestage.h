// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModelTester>
#include <QHash>
#include <QMetaMethod>
#include <QPointer>
#include <QTemporaryDir>

#include <functional>
#include <memory>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/undo/undostack.h>

/**
 * What a listener does harm to: a model of two documents, an editor for each and one more model
 * with its editor. Nothing of it is destroyed at the end, as the process ends.
 */
class HostileStage
{
    Q_DISABLE_COPY(HostileStage)

public:
    HostileStage();

    TreeItem *node(const char *title) const;    ///< by its title at the beginning; or null
    QModelIndex index(const char *title) const; ///< of the same
    SpearItem *spear(const char *title) const;  ///< of the same
    void select(const QList<const char *> &titles) const;
    /** The first subject of the first model that was not there at the beginning; null for none. */
    TreeItem *newNode() const;
    /** The document that the first editor shows at the beginning, as long as it is listed. */
    FishInfo *shownDocument() const;
    /** Nobody asks for that document any more: it is about to die, and nothing dies twice. */
    void forgetDocument() { m_shown.clear(); }
    /** A file with a document of its own. */
    QString file() const { return m_folder.filePath(QStringLiteral("diagram.json")); }

    /** Calls @p listener at each of the signal's emissions. */
    void listen(const QString &signal, const std::function<void()> &listener);
    /** The names of all signals that listen() takes. */
    QStringList signalNames() const;
    /** A dialog has come up; its signals can be listened to from now on. */
    void watchDialog(QObject *dialog);

    /** Allows a subject to change or vanish, with all below it; "*" all of the first document. */
    void giveUp(const QList<const char *> &titles);
    /** What is wrong with anything that was not given up; empty when nothing is. */
    QString fault() const;
    /** The tree of the first model as text, to be compared. */
    QString treeText() const;

    QPointer<FishModel> model;
    QPointer<FishModel> otherModel;
    QPointer<FishEditor> editor;       ///< shows the first document of the model
    QPointer<FishEditor> secondEditor; ///< shows its second document
    QPointer<FishEditor> otherEditor;  ///< shows the other model

private:
    struct Original
    {
        QString title;
        QString parent; ///< its uuid
        bool isGivenUp = false;
    };
    class Ear;

    void note(const TreeItem &node);
    void addEars(QObject *sender, const QString &name, const QMetaObject *from);
    QString originalsFault() const;
    QString drawingFault() const;

    QTemporaryDir m_folder;
    QHash<QString, Original> m_originals; ///< by uuid
    QHash<QString, Ear *> m_ears;         ///< by the name of the signal
    QPointer<FishInfo> m_shown;
};
