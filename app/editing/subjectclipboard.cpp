// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/subjectclipboard.h>

#include <app/diagram/diagramsession.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QRegularExpression>
#include <QUuid>

#include <memory>

namespace {

/** The copied subjects with all attributes, as objects of the diagram format. */
QString copyFormat()
{
    return QStringLiteral("application/x-fishbone-copy");
}

/** The selected subjects and what is below them as indented text; empty when they nest too deep. */
QByteArray selectedText(const FishEditor &editor)
{
    QList<QGraphicsItem *> items = editor.selectedItems();
    FishEditor::excludeCenterSubject(items);
    FishEditor::excludeChildSubject(items);
    QBuffer text;
    text.open(QIODevice::WriteOnly);
    for (const QGraphicsItem *item : qAsConst(items)) {
        const auto *const spear = qgraphicsitem_cast<const SpearItem *>(item);
        if (spear &&
            !DiagramExchange::write(text, *spear->treeItem(), DiagramExchange::Format::Text))
            return QByteArray();
    }
    return text.data();
}

/** Whether at least half of the lines of @p text begin as list items or headings do. */
bool looksLikeMarkdown(const QString &text)
{
    static const QRegularExpression line(QStringLiteral("^.*\\S"),
                                         QRegularExpression::MultilineOption);
    static const QRegularExpression marked(
        QStringLiteral("^[ \\t]*([-*+]|[0-9]{1,9}[.)]|#{1,6})[ \\t]"),
        QRegularExpression::MultilineOption);
    const int marks = text.count(marked);
    return marks > 0 && 2 * marks >= text.count(line);
}

DiagramExchange::Format formatOf(const QMimeData &data)
{
    if (data.hasFormat(copyFormat())) // copied as text, whatever it looks like
        return DiagramExchange::Format::Text;
    return data.hasFormat(QStringLiteral("text/markdown")) || looksLikeMarkdown(data.text())
               ? DiagramExchange::Format::Markdown
               : DiagramExchange::Format::Text;
}

/** The children of @p branches as EditPaste takes them, to become children of @p target. */
QJsonObject snapshotOf(const TreeItem &branches, TreeItem &target)
{
    target.ensureUuid();
    QJsonArray subjects;
    for (TreeItem *branch : branches.childItems()) {
        branch->setPid(target.uuid());
        QJsonObject subject;
        FishModel::write(subject, branch, true);
        subjects.append(subject);
    }
    return {{QStringLiteral("children"), subjects}};
}

} // namespace

SubjectClipboard::SubjectClipboard(DiagramSession *session, QObject *parent)
    : QObject(parent)
{
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &SubjectClipboard::look);
    setSession(session);
}

void SubjectClipboard::setSession(DiagramSession *session)
{
    m_session = session;
    connect(session->editor(), &FishEditor::clipBoardAvailable, this, &SubjectClipboard::publish,
            Qt::UniqueConnection);
    look();
}

void SubjectClipboard::publish()
{
    QJsonObject subjects;
    m_session->editor()->selectedObjects(subjects);
    subjects.insert(QStringLiteral("copy"), QUuid::createUuid().toString());
    m_copy = QJsonDocument(subjects).toJson(QJsonDocument::Compact);
    m_source = m_session->editor();
    auto data = std::make_unique<QMimeData>();
    data->setData(copyFormat(), m_copy);
    data->setText(QString::fromUtf8(selectedText(*m_session->editor())));
    QGuiApplication::clipboard()->setMimeData(data.release()); // which takes it over
}

/** Finds out whether there is something to paste, once for each change: the program that holds it
 * has to be asked. */
void SubjectClipboard::look()
{
    const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
    m_canPaste = data && (isOwn(*data) || data->hasText());
    m_session->touch();
}

bool SubjectClipboard::isOwn(const QMimeData &data) const
{
    return m_source == m_session->editor() && m_source->hasClipBoardData() &&
           data.data(copyFormat()) == m_copy;
}

void SubjectClipboard::paste()
{
    const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
    if (data && isOwn(*data))
        m_session->paste();
    else if (data && data->hasFormat(copyFormat()))
        pasteCopy(*data);
    else if (data)
        pasteText(*data);
}

/** Pastes what another tab or window has copied. */
void SubjectClipboard::pasteCopy(const QMimeData &data)
{
    const SpearItem *const target = m_session->editor()->firstSelectedSpear();
    const QJsonObject copied = QJsonDocument::fromJson(data.data(copyFormat())).object();
    const QString children = QStringLiteral("children");
    const bool isOne = copied.contains(QStringLiteral("uuid"));
    const QJsonArray subjects = isOne ? QJsonArray{copied} : copied.value(children).toArray();
    if (!target)
        return;
    if (subjects.isEmpty()) { // nested too deep to be read, or of another version
        pasteText(data);
        return;
    }
    QJsonArray adopted;
    target->treeItem()->ensureUuid();
    for (const QJsonValue &subject : subjects) {
        QJsonObject object = subject.toObject();
        object.remove(QStringLiteral("copy"));
        object.insert(QStringLiteral("pid"), target->treeItem()->uuid());
        adopted.append(object);
    }
    m_session->paste({{children, adopted}});
}

void SubjectClipboard::pasteText(const QMimeData &data)
{
    const SpearItem *const target = m_session->editor()->firstSelectedSpear();
    if (!target)
        return;
    QByteArray text = data.text().toUtf8();
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    QString reason;
    const auto branches = DiagramExchange::readBranches(buffer, formatOf(data), &reason);
    if (branches)
        m_session->paste(snapshotOf(*branches, *target->treeItem()));
    else
        Q_EMIT message(tr("cannot paste the text: %1").arg(reason));
}
