// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <python/binding/scriptdocument.h>

#include <python/binding/scriptjson.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/exchangereport.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QBuffer>

namespace {

QStringList notesOf(const ExchangeReport &report)
{
    QStringList notes;
    for (const ExchangeReport::Entry &entry : report.entries())
        notes.append(entry.what);
    return notes;
}

QStringList idsOf(bool (*fits)(DiagramExchange::Format))
{
    QStringList ids;
    for (const DiagramExchange::Format format : DiagramExchange::formats()) {
        if (fits(format))
            ids.append(DiagramExchange::id(format));
    }
    return ids;
}

} // namespace

ScriptDocument::ScriptDocument(FishModel *model, FishInfo *document)
    : m_model(model)
    , m_document(document)
{
}

QStringList ScriptDocument::readableFormats()
{
    return idsOf(&DiagramExchange::canRead);
}

QStringList ScriptDocument::writableFormats()
{
    return idsOf(&DiagramExchange::canWrite);
}

QString ScriptDocument::formatOf(const QString &fileName)
{
    const auto format = DiagramExchange::formatOf(fileName);
    return format ? DiagramExchange::id(*format) : QString();
}

ScriptDocument ScriptDocument::failed(const QString &reason)
{
    ScriptDocument nothing;
    nothing.m_reason = reason;
    return nothing;
}

ScriptDocument ScriptDocument::take(FishModel *model, std::unique_ptr<TreeItem> head,
                                    const QString &error, const ExchangeReport &report)
{
    if (!head)
        return failed(error);
    TreeItem *const item = head.get();
    if (!model || !model->insertExistItemRows(QModelIndex(), {item}))
        return failed(QStringLiteral("the model is changing and takes no document now"));
    head.release(); // the model has taken it over
    ScriptDocument document(model, model->fishOf(item));
    document.m_notes = notesOf(report);
    return document;
}

ScriptDocument ScriptDocument::create(FishModel *model, const QString &title)
{
    auto head = std::make_unique<TreeItem>();
    head->setTitle(title);
    head->ensureUuid();
    return take(model, std::move(head), QString(), ExchangeReport());
}

ScriptDocument ScriptDocument::open(FishModel *model, const QString &fileName,
                                    const QString &format)
{
    const auto known = DiagramExchange::formatById(format);
    if (!known)
        return failed(QStringLiteral("the format is not known"));
    if (*known != DiagramExchange::Format::Json) {
        QString error;
        ExchangeReport report;
        auto head = DiagramExchange::readFile(fileName, *known, &error, &report);
        return take(model, std::move(head), error, report);
    }
    const QPointer<FishModel> guard = model;
    const QList<FishInfo *> before = model->fishList();
    if (model->loadFishFromFile(fileName) != MODEL_NO_ERROR)
        return failed(model->loadError());
    const QList<FishInfo *> after = guard ? guard->fishList() : QList<FishInfo *>();
    for (FishInfo *const document : after) {
        if (!before.contains(document))
            return ScriptDocument(guard, document);
    }
    return failed(QStringLiteral("the document was closed while it was opened"));
}

ScriptDocument ScriptDocument::read(FishModel *model, const QByteArray &contents,
                                    const QString &format)
{
    const auto known = DiagramExchange::formatById(format);
    if (!known)
        return failed(QStringLiteral("the format is not known"));
    QBuffer buffer;
    buffer.setData(contents);
    buffer.open(QIODevice::ReadOnly);
    QString error;
    ExchangeReport report;
    auto head = DiagramExchange::read(buffer, *known, &error, &report);
    return take(model, std::move(head), error, report);
}

QList<ScriptDocument> ScriptDocument::documentsOf(FishModel *model)
{
    QList<ScriptDocument> documents;
    const QList<FishInfo *> listed = model ? model->fishList() : QList<FishInfo *>();
    for (FishInfo *const document : listed)
        documents.append(ScriptDocument(model, document));
    return documents;
}

ScriptDocument ScriptDocument::of(const ScriptSubject &subject)
{
    return ScriptDocument(subject.model(), subject.document());
}

bool ScriptDocument::isThere() const
{
    return m_model && m_document && m_model->fishRow(m_document) >= 0;
}

ScriptSubject ScriptDocument::head() const
{
    return isThere() ? ScriptSubject(m_model, m_document->treeItem()->childAtIndex(0))
                     : ScriptSubject();
}

QString ScriptDocument::view() const
{
    return ScriptJson::textOf(isThere() ? m_document->view() : QJsonObject());
}

QString ScriptDocument::fileName() const
{
    return isThere() && !m_document->isUntitled() ? m_document->fileName() : QString();
}

bool ScriptDocument::isModified() const
{
    return isThere() && m_document->modified();
}

void ScriptDocument::setModified(bool modified)
{
    if (isThere())
        m_document->setModified(modified);
}

bool ScriptDocument::isSame(const ScriptDocument &other) const
{
    return m_document == other.m_document;
}

const TreeItem *ScriptDocument::headItem()
{
    const TreeItem *const item = head().item();
    m_reason = item ? QString() : QStringLiteral("there is no diagram");
    return item;
}

bool ScriptDocument::save(const QString &fileName)
{
    if (!headItem())
        return false;
    if (!m_document->saveFile(fileName)) {
        m_reason = m_document->saveError();
        return false;
    }
    m_document->setCurrentFile(fileName);
    return true;
}

bool ScriptDocument::exportTo(const QString &fileName, const QString &format)
{
    const TreeItem *const item = headItem();
    const auto known = DiagramExchange::formatById(format);
    if (!item || !known) {
        if (item)
            m_reason = QStringLiteral("the format is not known");
        return false;
    }
    m_notes = notesOf(DiagramExchange::lossesOf(*item, *known));
    return DiagramExchange::writeFile(fileName, *item, *known, &m_reason);
}

QByteArray ScriptDocument::contents(const QString &format)
{
    const TreeItem *const item = headItem();
    const auto known = DiagramExchange::formatById(format);
    if (!item || !known) {
        if (item)
            m_reason = QStringLiteral("the format is not known");
        return QByteArray();
    }
    m_notes = notesOf(DiagramExchange::lossesOf(*item, *known));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return DiagramExchange::write(buffer, *item, *known, &m_reason) ? buffer.data() : QByteArray();
}

bool ScriptDocument::close()
{
    if (!isThere())
        return false;
    m_model->unloadFish(m_document);
    return !isThere();
}
