// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <host.h>
#include <ui_host.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/dialogs/urldialog.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/style/spearstyledialog.h>
#include <fishbone/undo/undostack.h>
#include <fishbone/version.h>

#include <QFile>
#include <QImage>
#include <QLineEdit>

#include <cstring>

Host::Host()
    : m_form(new Ui::Host)
{
    m_form->setupUi(this);
    m_form->editor->setModel(&m_model);
    connect(m_form->editor, SIGNAL(copyAvailable(bool)), SLOT(countSelection(bool)));
    connect(this, SIGNAL(zoomWanted(int)), m_form->editor, SLOT(zoomFish(int)));
    m_model.loadFishTempl();
    m_form->editor->setRootIndex(m_model.index(0, 0));
    show();
}

Host::~Host()
{
    delete m_form->editor; // before the model that it shows
}

void Host::countSelection(bool selected)
{
    m_selections += selected ? 1 : 0;
}

void Host::expect(bool works, const char *what)
{
    if (!works)
        m_faults.append(QString::fromLatin1(what));
}

QStringList Host::findFaults()
{
    m_faults.clear();
    expect(std::strcmp(fishboneVersion(), FISHBONE_VERSION_STRING) == 0,
           "another version than that of the headers");
    tryResources();
    SpearItem *const head = m_form->editor->headSpear();
    expect(head && !head->childSpears().isEmpty(), "the template has no bones");
    if (!m_faults.isEmpty())
        return m_faults;
    m_bone = head->childSpears().first();
    trySignals();
    tryCommands();
    tryDialogs();
    tryDrawing();
    return m_faults;
}

void Host::tryResources()
{
    expect(QFile::exists(QStringLiteral(":/res/default.json")), "the template is not there");
    expect(QFile::exists(QStringLiteral(":/fishboneDiagram/expand.svg")),
           "the pictures are not there");
    expect(QFile::exists(QStringLiteral(":/host/host.txt")),
           "the host's own resource is not there");
}

void Host::trySignals()
{
    FishEditor *const editor = m_form->editor;
    editor->selectSpears({m_bone});
    expect(m_selections == 1, "a slot of the host was not called by the editor's signal");
    Q_EMIT zoomWanted(300);
    expect(editor->zoomValue() == 300, "a slot of the editor was not called by the host's signal");
    editor->zoomIn(50); // which the form connects to zoomFish()
    expect(editor->view()->transform().m11() > 1.9, "the form's connection does nothing");
}

void Host::tryCommands()
{
    FishEditor *const editor = m_form->editor;
    const QModelIndex parent = editor->spearIndex(m_bone);
    const int rows = m_model.rowCount(parent);
    int inserted = 0;
    bool undoable = false;
    const QMetaObject::Connection told =
        connect(editor->undoStack(), &UndoStack::undoAvailable, this,
                [&undoable](bool available) { undoable = available; });
    const QMetaObject::Connection grown =
        connect(&m_model, &FishModel::rowsInserted, this, [&inserted] { ++inserted; });
    editor->insertChildSubject();
    expect(m_model.rowCount(parent) == rows + 1 && inserted == 1, "no subject was inserted");
    expect(undoable && editor->canUndo(), "nothing can be undone");
    editor->undo();
    expect(m_model.rowCount(parent) == rows, "the insertion was not undone");
    disconnect(told);
    disconnect(grown);
}

void Host::tryDialogs()
{
    ReplaceFindDialog find(this);
    URLDialog link({}, {}, this);
    SpearStyle style;
    SpearStyleDialog text(style, true, this);
    expect(find.inherits("ReplaceFindDialog") && link.inherits("URLDialog") &&
               text.inherits("SpearStyleDialog"),
           "a dialog is not what it says it is");
    find.setModel(&m_model);
    find.searchField()->setText(m_model.index(0, 0).data().toString());
    expect(find.search() && find.matches().size() == 1, "the head was not found");
}

void Host::tryDrawing()
{
    m_form->editor->showEntire();
    const QImage picture = m_form->editor->view()->grab().toImage();
    const QRgb ground = picture.pixel(0, 0);
    int drawn = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            drawn += picture.pixel(x, y) == ground ? 0 : 1;
    }
    expect(drawn > 1000, "nothing was drawn");
}
