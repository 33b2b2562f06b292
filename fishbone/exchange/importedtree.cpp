// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/importedtree.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/model/systemhelper.h>

#include <QSet>

namespace {

QString tooDeep()
{
    return DiagramExchange::tr("there are more than %1 levels").arg(DiagramExchange::maximalLevels);
}

/** Gives each subject a uuid of its own, and the pid that follows from its place. */
void complete(TreeItem &head)
{
    QSet<QString> taken;
    std::vector<TreeItem *> waiting{&head};
    while (!waiting.empty()) {
        TreeItem *const subject = waiting.back();
        waiting.pop_back();
        subject->ensureUuid();
        if (taken.contains(subject->uuid()))
            subject->setUuid(SystemHelper::randomUuid());
        taken.insert(subject->uuid());
        subject->setPid(subject->parent() ? subject->parent()->uuid() : QStringLiteral("-1"));
        const QList<TreeItem *> &children = subject->childItems();
        waiting.insert(waiting.end(), children.crbegin(), children.crend());
    }
}

} // namespace

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
