// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/templatecommands.h>

#include <app/common/actionset.h>
#include <app/common/plainbox.h>
#include <app/diagram/diagramsession.h>
#include <app/documents/documentsaver.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/files/documentloader.h>
#include <app/files/loadfailure.h>
#include <app/files/templategallery.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QPointer>

TemplateCommands::TemplateCommands(DocumentTabs *tabs, ActionSet *actions, QWidget *window)
    : QObject(window)
    , m_tabs(tabs)
    , m_actions(actions)
    , m_window(window)
    , m_arrivals(new FishModel(this))
{
    actions->add(
        QStringLiteral("newFromTemplate"), [] { return tr("New from &template…"); },
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N)}, ActionSet::Scope::Window,
        [this] { choose(); });
    actions->add(
        QStringLiteral("saveAsTemplate"), [] { return tr("Save as te&mplate…"); }, {},
        ActionSet::Scope::Window, [this] { saveAsTemplate(); });
}

void TemplateCommands::updateActions()
{
    m_actions->action(QStringLiteral("saveAsTemplate"))->setEnabled(m_tabs->current()->document());
}

void TemplateCommands::choose()
{
    TemplateGallery gallery(m_window);
    if (gallery.exec() != QDialog::Accepted)
        return;
    if (gallery.wantsFile())
        makeFromFile();
    else
        make(gallery.chosen());
}

void TemplateCommands::make(const Templates::Template &chosen)
{
    if (chosen.isOwn) { // with its look
        if (FishInfo *const document = load(chosen.path))
            show(document);
        return;
    }
    auto diagram = Templates::diagram(chosen);
    if (!diagram || !m_arrivals->insertExistItemRows(QModelIndex(), {diagram.get()}))
        return;
    diagram.release(); // the model has it
    show(m_arrivals->fishList().constLast());
}

void TemplateCommands::makeFromFile()
{
    const QString path = QFileDialog::getOpenFileName(m_window, tr("New from template"),
                                                      m_tabs->current()->session()->folder(),
                                                      DocumentSaver::documentFilter());
    if (path.isEmpty())
        return;
    if (FishInfo *const document = load(path))
        show(document);
}

/** The diagram in the file @p path; null, after a message, when there is none. */
FishInfo *TemplateCommands::load(const QString &path)
{
    const bool isLoaded = m_arrivals->loadFishFromTemplate(path) == MODEL_NO_ERROR;
    FishInfo *const document = isLoaded ? m_arrivals->fishList().constLast() : nullptr;
    if (document && document->treeItem()->childCount() > 0)
        return document;
    const QString reason =
        document ? DocumentLoader::tr("it holds no diagram") : LoadFailure::reasonOf(path);
    m_arrivals->unloadFish(document);
    PlainBox::warning(m_window, tr("New from template"),
                      tr("%1 is no template: %2.").arg(path, reason));
    return nullptr;
}

/** Shows all of the new @p document, its head ready to be typed over. */
void TemplateCommands::show(FishInfo *document)
{
    DocumentTab *const tab = m_tabs->add(document);
    tab->editor()->expandAll();
    m_actions->action(QStringLiteral("fit"))->trigger();
    tab->session()->select(tab->session()->headOf(document));
}

void TemplateCommands::saveAsTemplate()
{
    DocumentTab *const tab = m_tabs->current();
    tab->takeTyped();
    QInputDialog dialog(m_window);
    dialog.setWindowTitle(tr("Save as template"));
    dialog.setLabelText(tr("Name of the template:"));
    dialog.setTextValue(QFileInfo(tab->name()).completeBaseName());
    const QPointer<DocumentTab> alive(tab); // the dialog runs an event loop
    if (dialog.exec() != QDialog::Accepted || !alive)
        return;
    const QString path = Templates::pathOf(dialog.textValue());
    const QString name = QFileInfo(path).completeBaseName();
    if (QFileInfo::exists(path) &&
        !PlainBox::ask(m_window, dialog.windowTitle(),
                       tr("There is a template %1 already. Replace it?").arg(name)))
        return;
    QDir().mkpath(Templates::folder());
    if (alive && alive->document()->saveFile(path))
        Q_EMIT message(tr("File > New from template offers %1 now").arg(name));
    else if (alive)
        PlainBox::warning(
            m_window, dialog.windowTitle(),
            tr("%1 cannot be written: %2.").arg(path, alive->document()->saveError()));
}
