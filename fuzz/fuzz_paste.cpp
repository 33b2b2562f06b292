// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Text from anywhere on the clipboard: it is read as what it most likely is, and as everything else
// that it may be taken for.

#include <fuzz/fuzzing.h>

#include <fishbone/exchange/pastednotes.h>
#include <fishbone/model/treeitem.h>

#include <QRegularExpression>

#include <memory>

using namespace Fuzzing;
using Kind = PastedNotes::Kind;

namespace {

/** The titles and details of all subjects. */
QString allTextOf(const TreeItem &top)
{
    QString text;
    QVector<const TreeItem *> waiting{&top};
    while (!waiting.isEmpty()) {
        const TreeItem *const subject = waiting.takeLast();
        text += subject->title() + QLatin1Char(' ') + subject->detail() + QLatin1Char(' ');
        for (const TreeItem *child : subject->childItems())
            waiting.append(child);
    }
    return text;
}

/** Notes have no markup in which a word could go under. */
void requireEveryWord(const QString &notes, const TreeItem &top)
{
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{5,}"));
    const QString kept = allTextOf(top);
    for (auto matches = word.globalMatch(notes); matches.hasNext();) {
        const QString text = matches.next().captured();
        if (!kept.contains(text))
            requireEqual(kept.toUtf8(), text.toUtf8(), "every word of notes is kept");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    startApplication();
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    const Kind likely = PastedNotes::kindOf(text);
    PastedNotes::isDoubtful(text);
    for (const Kind kind : {likely, Kind::Notes, Kind::Markdown, Kind::Table, Kind::Opml,
                            Kind::FreeMind, Kind::Diagram}) {
        QString error;
        const std::unique_ptr<TreeItem> top = PastedNotes::read(text, kind, &error);
        require(bool(top) == error.isEmpty(), "what is not read is refused with a reason");
        require(!top || top->childCount() > 0, "what was read has a subject");
        if (top && kind == Kind::Notes)
            requireEveryWord(text, *top);
    }
    return 0;
}
