// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/documenttab.h>

#include <app/common/canvastheme.h>
#include <app/common/language.h>
#include <app/common/messagebar.h>
#include <app/diagram/diagramsession.h>
#include <app/diagram/documentlook.h>
#include <app/diagram/drawingfilter.h>
#include <app/diagram/drawingstate.h>
#include <app/documents/fileconflict.h>
#include <app/editing/canvasgestures.h>
#include <app/editing/titleeditor.h>
#include <app/files/safename.h>
#include <app/panels/detailspanel.h>
#include <app/panels/filterbar.h>
#include <app/panels/historypanel.h>
#include <app/panels/subjecttree.h>
#include <app/panels/treedrops.h>
#include <app/panels/treesync.h>
#include <app/recovery/recoverycopy.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>
#include <fishbone/undo/undostack.h>

#include <QRegularExpression>
#include <QVBoxLayout>

#include <optional>

namespace {
const QLatin1String ending(".json");
} // namespace

DocumentTab::DocumentTab(CanvasTheme *theme, QWidget *parent)
    : QWidget(parent)
    , m_model(new FishModel(this))
    , m_editor(new FishEditor(this))
    , m_session(new DiagramSession(m_model, m_editor, this))
    , m_recovery(new RecoveryCopy(m_session, this))
    , m_tree(new SubjectTree(m_model, this))
    , m_sync(new TreeSync(m_session, m_tree, this))
    , m_details(new DetailsPanel(m_session, this))
    , m_history(new HistoryPanel(m_session, this))
{
    m_editor->setModel(m_model);
    m_editor->setPasteAsNew(true);
    m_editor->undoStack()->setRolling(true);
    m_editor->setFrameShape(QFrame::NoFrame);
    m_editor->layout()->setContentsMargins(0, 0, 0, 0);
    m_editor->view()->setFrameShape(QFrame::NoFrame);
    theme->add(m_editor);
    m_look = new DocumentLook(m_session, theme, this);
    new CanvasGestures(m_session, m_sync, this); // which owns it
    new TreeDrops(m_session, m_tree, m_tree);    // which owns it
    connect(m_tree, &SubjectTree::renameWanted, m_editor,
            [this](const QModelIndex &index, const QString &title) {
                m_editor->renameItem(index, title);
                m_session->touch();
            });
    for (QWidget *panel : QList<QWidget *>{m_tree, m_details, m_history})
        panel->hide(); // until a dock shows it
    setFocusProxy(m_editor->view());

    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto *const bar = new MessageBar(this);
    m_conflict = new FileConflict(bar, this);
    layout->addWidget(bar);
    addFilter();
    layout->addWidget(m_filterBar);
    layout->addWidget(m_editor, 1);
    connect(m_session, &DiagramSession::stateChanged, this, &DocumentTab::followState);
    // The counts of a head are in the language of the moment.
    Language::bind(this, [this] { m_tree->view()->viewport()->update(); });
}

/** Makes what shows some of the subjects, on the drawing and in the tree. */
void DocumentTab::addFilter()
{
    auto *const filter = new DrawingFilter(m_session, m_session); // which owns it
    m_filterBar = new FilterBar(m_session, filter, this);
    connect(filter, &DrawingFilter::changed, m_tree, [this, filter] {
        m_tree->setShown(filter->isActive() ? std::make_optional(filter->shown()) : std::nullopt);
    });
    connect(m_filterBar, &FilterBar::closed, this, [this] { m_editor->view()->setFocus(); });
}

DocumentTab::~DocumentTab()
{
    // What listens to the drawing goes before it, and what edits the model before that.
    delete m_filterBar;
    delete m_sync;
    delete m_tree;
    delete m_details;
    delete m_history;
    delete m_recovery;
    delete m_look;
    delete m_editor;
    delete m_session;
}

void DocumentTab::setDocument(FishInfo *document)
{
    if (!m_model->insertFish(0, document))
        return;
    static const QRegularExpression numbered(QStringLiteral("^fish\\d+\\.json$"));
    m_isNamedByHead = document->isUntitled() && numbered.match(document->fileName()).hasMatch();
    followHead();
    m_recovery->setDocument(document);
    m_conflict->settle();
    m_session->showDocument(document);
    if (!document->modified())
        m_session->markSaved();
}

/** A new document is called what its head says, until it has a file. */
void DocumentTab::followHead()
{
    FishInfo *const shown = document();
    const TreeItem *const head = shown ? shown->treeItem()->childAtIndex(0) : nullptr;
    if (!m_isNamedByHead || !head || !shown->isUntitled())
        return;
    const QString wanted = safeFileName(head->title()) + ending;
    if (shown->fileName() != wanted)
        shown->setFileName(wanted);
}

FishInfo *DocumentTab::document() const
{
    return m_model->fishList().value(0);
}

SubjectTree *DocumentTab::tree() const
{
    return m_tree;
}

DetailsPanel *DocumentTab::details() const
{
    return m_details;
}

HistoryPanel *DocumentTab::history() const
{
    return m_history;
}

QString DocumentTab::name() const
{
    const FishInfo *const shown = document();
    QString shownName = shown ? shown->userFriendlyCurrentFile() : QString();
    if (shown && shown->isUntitled() && m_isNamedByHead && shownName.endsWith(ending))
        shownName.chop(ending.size());
    return shownName;
}

QString DocumentTab::path() const
{
    const FishInfo *const shown = document();
    return shown && !shown->isUntitled() ? shown->fileName() : QString();
}

void DocumentTab::takeTyped()
{
    TitleEditor::finishIn(*m_editor);
    m_details->apply();
}

void DocumentTab::takeLook(const DocumentTab &other)
{
    m_editor->zoomFish(other.m_editor->zoomValue());
    m_editor->rotateFish(other.m_editor->rotateValue());
    DrawingState::capture(*other.m_editor).restore(*m_editor);
    m_sync->followExpansion();
    m_session->touch();
}

void DocumentTab::followState()
{
    followHead();
    m_details->showSubjects(m_session->selected());
    m_tree->view()->viewport()->update(); // not every change of a title is announced
    const QList<FishInfo *> others = m_model->fishList().mid(1);
    for (FishInfo *other : others)
        Q_EMIT documentCame(other);
}
