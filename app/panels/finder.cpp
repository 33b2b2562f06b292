// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/finder.h>

#include <app/common/busycursor.h>
#include <app/common/keepclear.h>
#include <app/common/workprogress.h>
#include <app/diagram/diagramsession.h>
#include <app/panels/hitlist.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/editattributes.h>

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include <memory>

namespace {

constexpr int firstColumn = 0;

} // namespace

Finder::Finder(DiagramSession *session, QWidget *window)
    : QObject(window)
    , m_session(session)
    , m_dialog(new ReplaceFindDialog(window))
    , m_hits(new HitList(session->model(), m_dialog))
    , m_search(m_dialog->searchField())
    , m_replacement(m_dialog->replacementField())
{
    m_dialog->setModel(session->model());
    m_dialog->installEventFilter(this);
    m_hits->setObjectName(QStringLiteral("hits"));
    m_dialog->setResultsArea(m_hits);
    m_dialog->resize(560, 420);
    constexpr int pause = 150; // milliseconds, after which somebody looks up
    m_typing.setSingleShot(true);
    m_typing.setInterval(pause);
    m_aside.setSingleShot(true);
    connect(&m_aside, &QTimer::timeout, this, &Finder::keepClear);
    followView();
    connectControls();
}

/** These come after the dialog's own connections, so the search is done. */
void Finder::connectControls()
{
    connect(m_search, &QLineEdit::returnPressed, this, &Finder::showNext);
    connect(m_search, &QLineEdit::textChanged, this, &Finder::findSoon);
    connect(&m_typing, &QTimer::timeout, this, [this] {
        if (m_dialog->search())
            showNext();
        else
            Q_EMIT message(tr("No match"));
    });
    connect(m_dialog->findButton(), &QPushButton::clicked, this, &Finder::showNext);
    connect(m_replacement, &QLineEdit::returnPressed, this, &Finder::replaceCurrent);
    connect(m_replacement, &QLineEdit::textChanged, this, &Finder::preview);
    connect(m_dialog->replaceButton(), &QPushButton::clicked, this, &Finder::replaceCurrent);
    connect(m_dialog->replaceAllButton(), &QPushButton::clicked, this, &Finder::replaceAll);
    connect(m_dialog->caseBox(), &QCheckBox::toggled, this, &Finder::forgetHits);
    connect(m_dialog->columnBox(), QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &Finder::forgetHits);
    connect(m_hits, &HitList::hitChosen, this, &Finder::showHit);
    connect(m_hits, &HitList::itemActivated, m_dialog, &QDialog::accept);
}

void Finder::setSession(DiagramSession *session)
{
    m_session = session;
    m_dialog->setModel(session->model());
    m_hits->setSource(session->model());
    followView();
    rememberLook();
    forgetHits();
}

/** Has the dialog step aside again when the canvas is scrolled or gets another size. */
void Finder::followView()
{
    for (const QMetaObject::Connection &connection : qAsConst(m_connections))
        disconnect(connection);
    m_connections.clear();
    const auto start = QOverload<>::of(&QTimer::start);
    const GraphicsView *const view = m_session->editor()->view();
    for (const QScrollBar *bar : {view->horizontalScrollBar(), view->verticalScrollBar()}) {
        m_connections.append(connect(bar, &QScrollBar::valueChanged, &m_aside, start));
        m_connections.append(connect(bar, &QScrollBar::rangeChanged, &m_aside, start));
    }
}

/** Keeps what Esc brings back. */
void Finder::rememberLook()
{
    m_look = DrawingState::capture(*m_session->editor());
    m_searchedFrom = m_session->editor()->rootIndex();
}

void Finder::show()
{
    if (!m_dialog->isVisible()) {
        rememberLook();
        forgetHits();
    }
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
    m_search->setFocus();
    m_search->selectAll();
}

/** What is to be replaced as the dialog has it now. */
Replacement Finder::replacement() const
{
    return {m_search->text(), m_replacement->text(),
            m_dialog->caseBox()->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive};
}

/** What becomes of a text that is listed. */
QString Finder::replaced(const QString &text) const
{
    const bool isPossible = !m_matches.isEmpty() && Replacement::isPossible(m_matches.constFirst());
    return isPossible ? replacement().of(text) : text;
}

/** The list is of another search than the one that is entered. */
void Finder::forgetHits()
{
    m_matches.clear();
    m_current = -1;
    m_hits->setHits({}, {});
}

void Finder::listHits()
{
    const QModelIndexList matches = m_dialog->matches();
    if (matches == m_matches && m_hits->topLevelItemCount() == matches.size())
        return;
    m_matches = matches;
    m_current = -1;
    m_hits->setHits(matches, [this](const QString &text) { return replaced(text); });
}

void Finder::preview()
{
    m_hits->preview([this](const QString &text) { return replaced(text); });
}

void Finder::findSoon()
{
    forgetHits();
    if (m_search->text().isEmpty())
        m_typing.stop();
    else if (m_dialog->isVisible())
        m_typing.start();
}

void Finder::showNext()
{
    m_typing.stop();
    listHits();
    if (!m_matches.isEmpty()) // otherwise the dialog has said so
        showHit((m_current + 1) % m_matches.size());
}

void Finder::showHit(int row)
{
    const QModelIndexList matches = m_dialog->matches();
    if (matches != m_matches) { // some are gone
        listHits();
        return;
    }
    if (row < 0 || row >= matches.size())
        return;
    m_current = row;
    m_hits->setCurrentHit(row);
    m_session->select(matches.at(row).siblingAtColumn(firstColumn));
    m_aside.start();
    Q_EMIT message(tr("Match %1 of %2").arg(row + 1).arg(matches.size()));
}

/** Has the dialog step aside from the title of the current hit. */
void Finder::keepClear()
{
    const QModelIndex hit = m_dialog->matches().value(m_current);
    const TreeItem *const subject = m_session->model()->getTreeItem(hit);
    const SpearItem *const spear = subject ? subject->spear() : nullptr;
    if (!spear || !m_dialog->isVisible())
        return;
    constexpr int margin = 12;
    const GraphicsView *const view = m_session->editor()->view();
    const QRect title = view->mapFromScene(spear->textItem()->sceneBoundingRect()).boundingRect() &
                        view->viewport()->rect();
    KeepClear::of(QRect(view->viewport()->mapToGlobal(title.topLeft()), title.size())
                      .adjusted(-margin, -margin, margin, margin),
                  *m_dialog);
}

/** The step that replaces in what was found at @p hits; null when the user cancels it. */
std::unique_ptr<EditAttributes> Finder::draftAll(const QModelIndexList &hits)
{
    const DiagramSession *const session = m_session;
    WorkProgress progress(m_dialog->replaceAllButton()->text().remove(u'&'), m_dialog);
    return replacement().draft(m_session->model(), hits, [&](int done, int total) {
        return progress.report(done, total) && m_session == session;
    });
}

/** Runs @p command as one step; how many texts have changed. */
int Finder::run(std::unique_ptr<EditAttributes> command)
{
    const BusyCursor busy(m_session->container());
    const int count = command->count();
    if (count == 0)
        return 0;
    command->setText([count] { return tr("Replace %n text(s)", nullptr, count); });
    m_session->editor()->run(std::move(command));
    m_session->touch();
    return count;
}

void Finder::replaceCurrent()
{
    const QModelIndexList matches = m_dialog->matches();
    if (matches != m_matches || m_current < 0 || m_current >= matches.size()) {
        m_dialog->find();
        showNext();
        return;
    }
    const QModelIndex hit = matches.at(m_current);
    const int current = m_current;
    const bool isReplaced =
        run(replacement().draft(m_session->model(), {hit}, [](int, int) { return true; })) > 0;
    m_matches.clear(); // so that they are listed with their new texts
    listHits();
    m_current = current;
    showNext();
    if (!isReplaced && !Replacement::isPossible(hit))
        Q_EMIT message(tr("Only titles and numbers can be replaced."));
}

void Finder::replaceAll()
{
    const bool isListed = !m_matches.isEmpty() && m_matches == m_dialog->matches();
    if (!isListed) {
        m_dialog->find();
        listHits();
    }
    QModelIndexList hits;
    const QList<int> rows = m_hits->checkedRows();
    for (int row : rows)
        hits.append(m_matches.value(row));
    std::unique_ptr<EditAttributes> command = draftAll(hits);
    const bool isCancelled = !command;
    const int count = isCancelled ? 0 : run(std::move(command));
    if (!isCancelled) {
        m_matches.clear();
        listHits();
    }
    Q_EMIT message(tr("%n text(s) replaced", nullptr, count));
}

/** Makes the drawing look as it did before the search, as far as it is still there. */
void Finder::restoreLook()
{
    if (m_session->editor()->headSpear() && m_session->editor()->rootIndex() == m_searchedFrom)
        m_session->restore(m_look);
}

bool Finder::eventFilter(QObject *watched, QEvent *event)
{
    // Esc alone: whoever closes the window stays where the search has led.
    if (watched == m_dialog && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
        restoreLook();
    return QObject::eventFilter(watched, event);
}
