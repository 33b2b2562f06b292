// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/documents/recoverycommands.h>

#include <app/common/actionset.h>
#include <app/common/plainbox.h>
#include <app/documents/documenttab.h>
#include <app/documents/documenttabs.h>
#include <app/files/documentloader.h>
#include <app/files/loadfailure.h>
#include <app/recovery/recoverycopy.h>
#include <app/recovery/recoverydialog.h>
#include <app/recovery/recoverystore.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QFileInfo>

RecoveryCommands::RecoveryCommands(DocumentTabs *tabs, ActionSet *actions, QWidget *window)
    : QObject(window)
    , m_tabs(tabs)
    , m_window(window)
    , m_arrivals(new FishModel(this))
{
    actions->add(
        QStringLiteral("recover"), [] { return tr("Reco&ver documents…"); }, {},
        ActionSet::Scope::Window, [this] { offerOnDemand(); });
}

void RecoveryCommands::offerOnDemand()
{
    if (RecoveryStore::left().isEmpty())
        Q_EMIT message(tr("There is nothing to recover."));
    else
        offer();
}

void RecoveryCommands::offer()
{
    const QList<LeftCopy> copies = RecoveryStore::left();
    if (copies.isEmpty())
        return;
    RecoveryDialog dialog(copies, m_window);
    connect(&dialog, &RecoveryDialog::openRequested, this, [this, &dialog](const LeftCopy &copy) {
        if (open(copy))
            dialog.forget(copy.copy);
    });
    connect(&dialog, &RecoveryDialog::discardRequested, this, [&dialog](const LeftCopy &copy) {
        RecoveryStore::remove(copy.copy);
        dialog.forget(copy.copy);
    });
    dialog.exec();
}

/** Goes on with @p copy in a tab; false when it cannot be read. */
bool RecoveryCommands::open(const LeftCopy &copy)
{
    FishInfo *const document = load(copy);
    if (!document)
        return false;
    const DocumentTab *const tab = show(document, copy.original);
    // Only what is kept elsewhere by now can go.
    if (tab->recovery()->save())
        RecoveryStore::remove(copy.copy);
    Q_EMIT message(tr("%1 recovered").arg(tab->name()));
    return true;
}

/** The document in @p copy, with the name that it had; null after a message when there is none. */
FishInfo *RecoveryCommands::load(const LeftCopy &copy)
{
    if (m_arrivals->loadFishFromTemplate(copy.copy) != MODEL_NO_ERROR ||
        m_arrivals->fishList().constLast()->treeItem()->childCount() == 0) {
        const QString reason = m_arrivals->fishList().isEmpty()
                                   ? LoadFailure::reasonOf(copy.copy)
                                   : DocumentLoader::tr("it holds no diagram");
        m_arrivals->unloadFish(m_arrivals->fishList().value(0));
        PlainBox::warning(
            m_window, tr("Recover documents"),
            tr("%1 cannot be recovered from %2: %3.").arg(copy.name, copy.copy, reason));
        return nullptr;
    }
    FishInfo *const document = m_arrivals->fishList().constLast();
    document->setFileName(copy.name);
    return document;
}

/** Shows @p document, a newer state of the file @p original, in place of that when it is open and
 * has no changes of its own. */
DocumentTab *RecoveryCommands::show(FishInfo *document, const QString &original)
{
    DocumentTab *const open = m_tabs->tabOfFile(original);
    const bool mayTakeItsPlace = !open || !open->document()->modified();
    if (mayTakeItsPlace && QFileInfo::exists(original))
        document->setCurrentFile(original);
    document->setModified(true);
    DocumentTab *tab = nullptr;
    if (open && mayTakeItsPlace)
        tab = m_tabs->replace(open, document);
    else
        tab = m_tabs->add(document);
    m_tabs->setCurrent(tab);
    return tab;
}
