// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/markdownlinks.h>

#include <fishbone/exchange/importedtree.h>

#include <QRegularExpression>

namespace {

/** A definition leads to an address; what begins with a caret is a footnote, which has words. */
const QRegularExpression &definitionForm()
{
    static const QRegularExpression form(
        QStringLiteral("^ {0,3}\\[((?!\\^)[^\\]\\n]{1,200})\\]:[ \\t]*+<?"
                       "((?=[^\\s<>:/#.]*+[:/#.])[^\\s<>]++)>?" // never looked at twice
                       "(?:[ \\t]++[\"'(][^\\n]*+)?[ \\t]*+\\r?$"),
        QRegularExpression::MultilineOption);
    return form;
}

} // namespace

MarkdownLinks::MarkdownLinks(const QString &text)
{
    if (!text.contains(QLatin1String("]:")))
        return;
    for (auto matches = definitionForm().globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        const QString name = match.captured(1).toLower();
        m_targets.insert(name, match.captured(2));
        m_names.append(name);
    }
}

bool MarkdownLinks::isDefinition(const QString &line)
{
    return definitionForm().match(line).hasMatch();
}

void MarkdownLinks::noteUsed(const QStringList &targets)
{
    for (const QString &target : targets)
        m_used.insert(target);
}

void MarkdownLinks::keepUnused(ImportedTree &tree) const
{
    const bool isSingle = tree.container().childCount() == 1;
    const TreeItem &head = isSingle ? *tree.container().childAtIndex(0) : tree.container();
    for (const QString &name : m_names) {
        const QString target = m_targets.value(name);
        if (!m_used.contains(target))
            tree.addNamedDetail(head, QLatin1Char('[') + name + QLatin1Char(']'), target);
    }
}
