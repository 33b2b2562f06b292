// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/subjectclipboard.h>

#include <app/diagram/diagramsession.h>
#include <app/editing/pastedialog.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/pastednotes.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>
#include <QUrl>
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

/** The first file of a known format among what was copied in a file manager; empty for none. */
QString copiedFile(const QMimeData &data)
{
    const QList<QUrl> urls = data.hasUrls() ? data.urls() : QList<QUrl>();
    for (const QUrl &url : urls) {
        const auto format = DiagramExchange::formatOf(url.fileName());
        if (url.isLocalFile() && format && DiagramExchange::canRead(*format))
            return url.toLocalFile();
    }
    return QString();
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
    QString reason;
    ExchangeReport report;
    const auto branches = branchesOf(data, reason, report);
    if (branches)
        m_session->paste(snapshotOf(*branches, *target->treeItem()));
    else if (!reason.isEmpty())
        Q_EMIT message(tr("cannot paste the text: %1").arg(reason));
    if (branches && report.losesContent())
        Q_EMIT message(report.lines().constFirst());
}

/** What the clipboard holds as subjects; null when it holds none, or, without a reason, when the
 * user does not want them. */
std::unique_ptr<TreeItem> SubjectClipboard::branchesOf(const QMimeData &data, QString &reason,
                                                       ExchangeReport &report) const
{
    using Format = DiagramExchange::Format;
    const QString path = copiedFile(data);
    QFile file(path);
    if (!path.isEmpty() && file.open(QIODevice::ReadOnly))
        return DiagramExchange::readBranches(file, *DiagramExchange::formatOf(path), &reason,
                                             &report);
    const bool isOwn = data.hasFormat(copyFormat()); // copied as text, whatever it looks like
    if (isOwn || data.hasFormat(QStringLiteral("text/markdown"))) {
        QByteArray text = data.text().toUtf8();
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        return DiagramExchange::readBranches(buffer, isOwn ? Format::Text : Format::Markdown,
                                             &reason, &report);
    }
    PastedNotes::Kind kind = PastedNotes::kindOf(data.text());
    if (PastedNotes::isDoubtful(data.text())) {
        const QString text = data.text(); // the clipboard may change while the dialog is open
        PasteDialog dialog(text, m_session->editor());
        if (dialog.exec() != QDialog::Accepted)
            return nullptr;
        kind = dialog.kind();
        return PastedNotes::read(text, kind, &reason, &report);
    }
    return PastedNotes::read(data.text(), kind, &reason, &report);
}
