// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/importedtree.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/model/subjectwalk.h>
#include <fishbone/model/systemhelper.h>

#include <QSet>

namespace {

QString tooDeep()
{
    return DiagramExchange::tr("there are more than %1 levels").arg(DiagramExchange::maximalLevels);
}

} // namespace

/** Gives each subject a uuid of its own, the pid that follows from its place, and the details that
 * were added. */
void ImportedTree::complete(TreeItem &head)
{
    QSet<QString> taken;
    visitSubjects(&head, [this, &taken](TreeItem *subject) {
        subject->ensureUuid();
        if (taken.contains(subject->uuid()))
            subject->setUuid(SystemHelper::randomUuid());
        taken.insert(subject->uuid());
        subject->setPid(subject->parent() ? subject->parent()->uuid() : TreeItem::noIdentity());
        QStringList details = m_details.take(subject);
        if (!details.isEmpty() && !subject->detail().isEmpty())
            details.prepend(subject->detail());
        if (!details.isEmpty())
            subject->setDetail(details.join(QLatin1Char('\n')));
        return true;
    });
}

TreeItem *ImportedTree::add(int rank, const QString &title, qint64 line)
{
    while (!m_open.empty() && m_open.back().rank >= rank)
        m_open.pop_back();
    if (m_open.size() >= std::size_t(DiagramExchange::maximalLevels)) {
        fail(line, tooDeep());
        return nullptr;
    }
    if (m_count >= DiagramExchange::maximalSubjects) {
        fail(line, DiagramExchange::tr("there are more than %1 subjects")
                       .arg(DiagramExchange::maximalSubjects));
        return nullptr;
    }
    TreeItem *const parent = m_open.empty() ? m_container.get() : m_open.back().subject;
    auto *const subject = new TreeItem; // owned by its parent
    parent->appendChild(subject);
    subject->setTitle(title);
    m_open.push_back({rank, subject});
    m_levels = std::max(m_levels, int(m_open.size()));
    ++m_count;
    return subject;
}

void ImportedTree::addDetail(const TreeItem &subject, const QString &text, const QString &what,
                             qint64 line)
{
    if (text.isEmpty())
        return;
    m_details[&subject].append(text);
    note(ExchangeReport::Kind::InDetails, what, line);
}

void ImportedTree::addNamedDetail(const TreeItem &subject, const QString &name,
                                  const QString &value, qint64 line)
{
    if (!value.isEmpty())
        addDetail(subject, QStringLiteral("%1: %2").arg(name, value),
                  QLatin1Char('"') + name + QLatin1Char('"'), line);
}

void ImportedTree::addContent(TreeItem &subject, const QStringList &links,
                              const QStringList &images, qint64 line)
{
    for (const QString &link : links) {
        if (subject.url().isEmpty())
            subject.setUrl(link);
        else if (subject.url() != link)
            addNamedDetail(subject, DiagramExchange::tr("Link"), link, line);
    }
    for (const QString &image : images)
        addNamedDetail(subject, DiagramExchange::tr("Image"), image, line);
}

void ImportedTree::note(ExchangeReport::Kind kind, const QString &what, qint64 line)
{
    m_report.add(kind, what, line);
}

bool ImportedTree::fail(qint64 line, const QString &reason)
{
    return fail(DiagramExchange::tr("line %1: %2").arg(line).arg(reason));
}

bool ImportedTree::fail(const QString &reason)
{
    m_error = reason;
    return false;
}

std::unique_ptr<TreeItem> ImportedTree::takeAsItStands()
{
    if (m_container->childCount() == 0) {
        fail(DiagramExchange::tr("it holds no diagram"));
        return nullptr;
    }
    std::unique_ptr<TreeItem> head(m_container->takeAt(0));
    head->setParent(nullptr);
    return head;
}

std::unique_ptr<TreeItem> ImportedTree::takeCompleted()
{
    if (m_container->childCount() < 2) {
        std::unique_ptr<TreeItem> head = takeAsItStands();
        if (head)
            complete(*head);
        return head;
    }
    if (m_levels >= DiagramExchange::maximalLevels) {
        fail(tooDeep());
        return nullptr;
    }
    m_container->setTitle(m_commonTitle.isEmpty() ? DiagramExchange::tr("Imported diagram")
                                                  : m_commonTitle);
    m_open.clear();
    complete(*m_container);
    return std::move(m_container);
}

std::unique_ptr<TreeItem> ImportedTree::takeBranches()
{
    if (m_container->childCount() == 0) {
        fail(DiagramExchange::tr("it holds no diagram"));
        return nullptr;
    }
    m_open.clear();
    complete(*m_container);
    return std::move(m_container);
}
