// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeformat.h>
#include <fishbone/exchange/exchangetext.h>
#include <fishbone/exchange/mermaidreader.h>
#include <fishbone/exchange/mermaidtext.h>
#include <fishbone/exchange/outlinewalk.h>

namespace {

bool readMermaid(const QByteArray &bytes, ImportedTree &tree)
{
    const std::optional<QString> text = ExchangeText::decode(bytes, tree);
    // All that follows lies below the first line, also where it is not indented further.
    constexpr int headRank = -1;
    return text && MermaidReader(*text, tree).read(headRank, 0);
}

QByteArray writeMermaid(const TreeItem &head)
{
    constexpr int indentation = 2;
    QByteArray bytes = "ishikawa\n";
    OutlineWalk::walk(head, [&bytes](const TreeItem &subject, int level) {
        bytes += QByteArray((level + 1) * indentation, ' ');
        bytes += MermaidText::escaped(subject.title()).toUtf8() + '\n';
    });
    return bytes;
}

} // namespace

const ExchangeFormat ExchangeFormats::mermaid{
    DiagramExchange::Format::Mermaid,
    "mmd",
    QT_TRANSLATE_NOOP("DiagramExchange", "Mermaid ishikawa diagram"),
    "mmd mermaid",
    "title children",
    readMermaid,
    writeMermaid};
