// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/documenttabs.h>

#include <app/common/crossstyle.h>
#include <app/common/language.h>
#include <app/common/shownpath.h>
#include <app/common/tabbuttons.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documenttab.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>

DocumentTabs::DocumentTabs(CanvasTheme *theme, QWidget *parent)
    : QStackedWidget(parent)
    , m_theme(theme)
    , m_tabs(new QTabWidget(this))
    , m_none(new DocumentTab(theme, this))
{
    m_none->hide();
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_tabs->setDocumentMode(true);
    m_tabs->setMovable(true);
    m_tabs->setTabsClosable(true);
    m_tabs->setElideMode(Qt::ElideMiddle);
    m_tabs->setUsesScrollButtons(true);
    QTabBar *const bar = m_tabs->tabBar();
    Language::bind(bar, &QWidget::setAccessibleName, [] { return tr("Open documents"); });
    bar->setChangeCurrentOnDrag(true);
    bar->setContextMenuPolicy(Qt::CustomContextMenu);
    bar->installEventFilter(this);
    addWidget(m_tabs);
    connect(bar, &QTabBar::customContextMenuRequested, this, &DocumentTabs::showContextMenu);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this,
            [this](int position) { Q_EMIT closeRequested({tabAt(position)}); });
    connect(m_tabs, &QTabWidget::currentChanged, this, &DocumentTabs::follow);
    Language::bind(this, [this] {
        TabButtons::name(*m_tabs);
        refresh();
    });
}

DocumentTabs::~DocumentTabs()
{
    // Nobody hears of the tabs that go with this.
    m_tabs->disconnect(this);
}

void DocumentTabs::setEmptyPage(QWidget *page)
{
    // It gives way: otherwise no window, with or without documents, would be lower than it.
    page->setMinimumHeight(1);
    insertWidget(0, page);
    follow();
}

DocumentTab *DocumentTabs::tabAt(int position) const
{
    return qobject_cast<DocumentTab *>(m_tabs->widget(position));
}

DocumentTab *DocumentTabs::current() const
{
    DocumentTab *const shown = tabAt(m_tabs->currentIndex());
    return shown ? shown : m_none;
}

QList<DocumentTab *> DocumentTabs::tabs() const
{
    QList<DocumentTab *> all;
    for (int position = 0; position < m_tabs->count(); ++position)
        all.append(tabAt(position));
    return all;
}

QList<FishInfo *> DocumentTabs::documents() const
{
    QList<FishInfo *> all;
    const QList<DocumentTab *> open = tabs();
    for (const DocumentTab *tab : open)
        all.append(tab->document());
    return all;
}

DocumentTab *DocumentTabs::tabOf(const FishInfo *document) const
{
    const QList<DocumentTab *> open = tabs();
    for (DocumentTab *tab : open) {
        if (document && tab->document() == document)
            return tab;
    }
    return nullptr;
}

DocumentTab *DocumentTabs::tabOfFile(const QString &path) const
{
    const QList<DocumentTab *> open = tabs();
    for (DocumentTab *tab : open) {
        if (!path.isEmpty() && tab->path() == path)
            return tab;
    }
    return nullptr;
}

DocumentTab *DocumentTabs::insert(int position, FishInfo *document)
{
    if (auto *const model = qobject_cast<FishModel *>(document->model()))
        model->takeFish(model->fishRow(document));
    auto *const tab = new DocumentTab(m_theme, m_tabs);
    tab->setDocument(document);
    connect(tab->session(), &DiagramSession::stateChanged, this, &DocumentTabs::refresh);
    connect(tab, &DocumentTab::documentCame, this, &DocumentTabs::add);
    Q_EMIT added(tab);
    m_tabs->insertTab(position, tab, QString()); // which shows it when it is the first one
    refresh();
    return tab;
}

DocumentTab *DocumentTabs::add(FishInfo *document)
{
    DocumentTab *const tab = insert(m_tabs->count(), document);
    setCurrent(tab);
    tab->editor()->view()->setFocus(); // ready to be typed into
    return tab;
}

DocumentTab *DocumentTabs::replace(DocumentTab *tab, FishInfo *document)
{
    const bool wasCurrent = tab == current();
    DocumentTab *const successor = insert(m_tabs->indexOf(tab) + 1, document);
    if (wasCurrent)
        setCurrent(successor);
    successor->takeLook(*tab);
    remove(tab);
    return successor;
}

void DocumentTabs::remove(DocumentTab *tab)
{
    m_tabs->removeTab(m_tabs->indexOf(tab));
    follow();
    tab->deleteLater(); // it may be one of its own buttons that closes it
}

void DocumentTabs::setCurrent(DocumentTab *tab)
{
    m_tabs->setCurrentWidget(tab);
    follow();
}

void DocumentTabs::go(int step)
{
    const int count = m_tabs->count();
    if (count > 0)
        m_tabs->setCurrentIndex((m_tabs->currentIndex() + step + count) % count);
}

void DocumentTabs::follow()
{
    DocumentTab *const tab = current();
    setCurrentIndex(m_tabs->count() > 0 ? indexOf(m_tabs) : 0);
    if (tab == m_shown)
        return;
    m_shown = tab;
    Q_EMIT currentChanged(tab);
}

void DocumentTabs::refresh()
{
    QTabBar *const bar = m_tabs->tabBar();
    const auto closeSide = QTabBar::ButtonPosition(
        bar->style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, bar));
    for (int position = 0; position < m_tabs->count(); ++position) {
        const DocumentTab *const tab = tabAt(position);
        const FishInfo *const document = tab->document();
        QString text = tab->name();
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        if (document && document->modified())
            text += QLatin1Char('*');
        m_tabs->setTabText(position, text);
        QWidget *const close = bar->tabButton(position, closeSide);
        close->setToolTip(tr("Close"));
        CrossStyle::giveTo(close);
        m_tabs->setTabToolTip(position, tab->path().isEmpty() ? tr("Not saved to a file yet")
                                                              : ShownPath::of(tab->path()));
    }
}

bool DocumentTabs::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *const release = static_cast<QMouseEvent *>(event);
        DocumentTab *const tab = tabAt(m_tabs->tabBar()->tabAt(release->pos()));
        if (tab && release->button() == Qt::MiddleButton) {
            Q_EMIT closeRequested({tab});
            return true;
        }
    }
    return QStackedWidget::eventFilter(watched, event);
}

void DocumentTabs::showContextMenu(const QPoint &pos)
{
    DocumentTab *const tab = tabAt(m_tabs->tabBar()->tabAt(pos));
    if (!tab)
        return;
    auto *const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("tabMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QList<DocumentTab *> others = tabs();
    others.removeOne(tab);
    menu->addAction(tr("&Close"), tab, [this, tab] { Q_EMIT closeRequested({tab}); });
    menu->addAction(tr("Close &others"), tab, [this, others] { Q_EMIT closeRequested(others); })
        ->setEnabled(!others.isEmpty());
    menu->addSeparator();
    menu->addAction(
            tr("Copy &path"), tab,
            [tab] { QGuiApplication::clipboard()->setText(QDir::toNativeSeparators(tab->path())); })
        ->setEnabled(!tab->path().isEmpty());
    menu->popup(m_tabs->tabBar()->mapToGlobal(pos));
}
