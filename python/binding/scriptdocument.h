// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <python/binding/scriptsubject.h>

#include <QByteArray>
#include <QPointer>
#include <QString>
#include <QStringList>

class ExchangeReport;
class FishInfo;
class FishModel;
class TreeItem;

/**
 * A document as a script holds it: a handle that may outlive the document and its model.
 *
 * Formats go by the names of DiagramExchange::id(). What fails leaves a reason: a clause without a
 * full stop, in the language of the translators that the application has installed; of this class
 * itself, which serves scripts, in English.
 */
class ScriptDocument
{
public:
    /** A handle of nothing. */
    ScriptDocument() = default;
    /** A handle of @p document, which @p model lists. */
    ScriptDocument(FishModel *model, FishInfo *document);

    /** The names of the formats that can be read. */
    static QStringList readableFormats();
    /** The names of the formats that can be written. */
    static QStringList writableFormats();
    /** The name of the format that the ending of @p fileName tells, empty when it tells none. */
    static QString formatOf(const QString &fileName);

    /** A new document of @p model, whose head has the title @p title. */
    static ScriptDocument create(FishModel *model, const QString &title);
    /** Opens a file in @p model. A handle of nothing, with a reason, when that cannot be. */
    static ScriptDocument open(FishModel *model, const QString &fileName, const QString &format);
    /** As open(), from the contents of a file. */
    static ScriptDocument read(FishModel *model, const QByteArray &contents, const QString &format);
    /** The documents of @p model, in the order of their rows. */
    static QList<ScriptDocument> documentsOf(FishModel *model);
    /** The document that holds @p subject. */
    static ScriptDocument of(const ScriptSubject &subject);

    /** Whether the document lives and its model lists it. */
    bool isThere() const;
    /** Why the last call that can fail did; empty when it did not. */
    QString reason() const { return m_reason; }
    /** What of the last file that was read or written no field holds. */
    QStringList notes() const { return m_notes; }
    /** Its head, a handle of nothing when it has none. */
    ScriptSubject head() const;
    /** How it was saved to be shown: FishInfo::view() as text. */
    QString view() const;
    /** Its file; empty while it has none. */
    QString fileName() const;
    /** Whether it has changes that are not saved. */
    bool isModified() const;
    /** Stores that mark. */
    void setModified(bool modified);
    /** Whether both are handles of one document. */
    bool isSame(const ScriptDocument &other) const;

    /** Writes @p fileName and names the document after it. Only the diagram format. */
    bool save(const QString &fileName);
    /** Writes @p fileName in that format; the document keeps its name and its mark. */
    bool exportTo(const QString &fileName, const QString &format);
    /** What a file of that format would hold; empty, with a reason, when that cannot be. */
    QByteArray contents(const QString &format);
    /** Takes the document out of its model and deletes it; changes are lost. */
    bool close();

private:
    static ScriptDocument failed(const QString &reason);
    static ScriptDocument take(FishModel *model, std::unique_ptr<TreeItem> head,
                               const QString &error, const ExchangeReport &report);
    const TreeItem *headItem();

    QPointer<FishModel> m_model;
    QPointer<FishInfo> m_document;
    QString m_reason;
    QStringList m_notes;
};
