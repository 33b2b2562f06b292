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
    connect(cancel, &QToolButton::clicked, loader, &DocumentLoader::cancel);
    connect(loader, &DocumentLoader::fetchStarted, this, &LoadProgress::begin);
    connect(loader, &DocumentLoader::fetchProgress, this, &LoadProgress::follow);
    connect(loader, &DocumentLoader::fetchEnded, this, &QWidget::hide);
}

void LoadProgress::begin(const QUrl &url)
{
    setToolTip(url.toDisplayString());
    follow(0, -1);
    show();
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
    m_bar->setToolTip(tr("%1 received").arg(QLocale().formattedDataSize(m_received)));
}
