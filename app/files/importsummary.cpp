// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/importsummary.h>

#include <app/files/documentloader.h>

#include <QFileInfo>
#include <QMessageBox>

#include <cstdio>

namespace {

using Kind = ExchangeReport::Kind;

/** Whether anything stands elsewhere than somebody would look for it, or nowhere. */
bool isWorthABox(const ExchangeReport &report)
{
    return report.losesContent() || report.count(Kind::InDetails) > 0;
}

} // namespace

ImportSummary::ImportSummary(DocumentLoader *loader, QWidget *window)
    : QObject(loader)
    , m_window(window)
{
    connect(loader, &DocumentLoader::reported, this, &ImportSummary::note);
    // Queued, so that several files that were asked for at once share a box.
    connect(loader, &DocumentLoader::idle, this, &ImportSummary::show, Qt::QueuedConnection);
}

void ImportSummary::print(const QString &source, const ExchangeReport &report)
{
    const QStringList lines = report.lines();
    for (const QString &line : lines)
        std::fprintf(stderr, "fishbone: %s: %s\n", qPrintable(source), qPrintable(line));
}

void ImportSummary::note(const QString &source, const ExchangeReport &report)
{
    if (isWorthABox(report))
        m_reports.append({source, report});
}

void ImportSummary::show()
{
    if (m_reports.isEmpty())
        return;
    QStringList summaries;
    QStringList details;
    for (const auto &[source, report] : qAsConst(m_reports)) {
        const QString name = QFileInfo(source).fileName();
        summaries.append(tr("%1: %2 left out, %3 put into details.")
                             .arg(name)
                             .arg(report.count(Kind::LeftOut))
                             .arg(report.count(Kind::InDetails)));
        details += name;
        details += report.lines();
        details += QString();
    }
    m_reports.clear();
    auto *const box = new QMessageBox(QMessageBox::Information, tr("Import"),
                                      summaries.join(QLatin1Char('\n')), QMessageBox::Ok, m_window);
    box->setObjectName(QStringLiteral("importSummary"));
    box->setTextFormat(Qt::PlainText);
    box->setDetailedText(details.join(QLatin1Char('\n')));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->show();
}
