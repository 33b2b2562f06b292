// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/loadprogress.h>

#include <app/common/language.h>
#include <app/files/documentloader.h>

#include <QHBoxLayout>
#include <QLocale>
#include <QProgressBar>
#include <QToolButton>
#include <QUrl>

namespace {

constexpr int wholeBar = 1000; ///< a transfer has more bytes than the bar can count

} // namespace

LoadProgress::LoadProgress(DocumentLoader *loader, QWidget *parent)
    : QWidget(parent)
    , m_bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("loadProgress"));
    m_bar->setObjectName(QStringLiteral("loadBar"));
    Language::bind(m_bar, &QWidget::setAccessibleName, [] { return tr("Loading"); });
    Language::bind(m_bar, [this] { showReceived(); });
    m_bar->setFixedWidth(160);
    auto *const cancel = new QToolButton(this);
    cancel->setObjectName(QStringLiteral("loadCancel"));
    Language::bind(cancel, &QToolButton::setText, [] { return tr("Cancel"); });
    cancel->setFocusPolicy(Qt::StrongFocus);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_bar);
    layout->addWidget(cancel);
    hide();
    m_patience.setSingleShot(true);
    m_patience.setInterval(500);
    connect(&m_patience, &QTimer::timeout, this, &QWidget::show);
    connect(cancel, &QToolButton::clicked, loader, &DocumentLoader::cancel);
    connect(loader, &DocumentLoader::fetchStarted, this, &LoadProgress::begin);
    connect(loader, &DocumentLoader::fetchProgress, this, &LoadProgress::follow);
    connect(loader, &DocumentLoader::fetchEnded, this, &LoadProgress::end);
}

void LoadProgress::begin(const QUrl &url)
{
    setToolTip(url.toDisplayString());
    follow(0, -1);
    if (url.isLocalFile())
        m_patience.start(); // it may be there at once
    else
        show();
}

void LoadProgress::end()
{
    m_patience.stop();
    hide();
}

void LoadProgress::follow(qint64 received, qint64 total)
{
    const bool isKnown = total > 0 && received <= total; // a packed reply grows as it comes
    m_bar->setRange(0, isKnown ? wholeBar : 0);          // or a bar that only shows that it goes on
    m_bar->setValue(isKnown ? int(double(received) / double(total) * wholeBar) : 0);
    m_bar->setFormat(isKnown ? QStringLiteral("%p %") : QString());
    m_received = received;
    showReceived();
}

void LoadProgress::showReceived()
{
    // Of a file nobody knows how much has been read.
    m_bar->setToolTip(m_received > 0
                          ? tr("%1 received").arg(QLocale().formattedDataSize(m_received))
                          : QString());
}
