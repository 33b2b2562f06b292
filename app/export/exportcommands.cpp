// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/exportcommands.h>

#include <app/common/actionset.h>
#include <app/common/busycursor.h>
#include <app/common/canvastheme.h>
#include <app/common/plainbox.h>
#include <app/common/savedialog.h>
#include <app/common/updatesheld.h>
#include <app/common/workprogress.h>
#include <app/diagram/diagramsession.h>
#include <app/export/clearexport.h>
#include <app/export/exportdialog.h>
#include <app/export/picturecopy.h>
#include <app/export/picturesource.h>
#include <app/export/printpreview.h>
#include <app/export/printtarget.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/exchangereport.h>
#include <fishbone/exchange/pagesize.h>
#include <fishbone/exchange/slideexport.h>
#include <fishbone/model/fishinfo.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

#include <QAction>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QWidget>

#include <optional>

namespace {

/** The usual ending of each foreign format that can be written, in the order of the name filters.
 */
QStringList foreignSuffixes()
{
    QStringList suffixes;
    const QList<DiagramExchange::Format> formats = DiagramExchange::formats();
    for (const DiagramExchange::Format format : formats) {
        if (format != DiagramExchange::Format::Json && DiagramExchange::canWrite(format))
            suffixes.append(DiagramExchange::suffixes(format).constFirst());
    }
    return suffixes;
}

/** The shape of the slide that suits what @p document was arranged for; the wide one for a screen.
 */
SlideExport::Aspect aspectOf(const FishInfo &document)
{
    const DiagramView view = DiagramView::of(document.view(), DiagramView::usual());
    const auto page = PageSize::of(view.page);
    const bool isArranged = page && view.look == DiagramLook::Clear;
    return SlideExport::aspectFor(isArranged ? page->size : QSizeF());
}

} // namespace

ExportCommands::ExportCommands(DiagramSession *session, CanvasTheme *theme, ActionSet *actions,
                               QWidget *window)
    : DiagramCommands(session, actions, window)
    , m_theme(theme)
    , m_window(window)
{
    using Scope = ActionSet::Scope;
    actions->add(
        QStringLiteral("export"), [] { return tr("&Export picture…"); },
        {QKeySequence(Qt::CTRL | Qt::Key_E)}, Scope::Window, [this] { exportPicture(); });
    actions->add(
        QStringLiteral("exportAs"), [] { return tr("E&xport as…"); },
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E)}, Scope::Window, [this] { exportAs(); });
    actions->add(
        QStringLiteral("copyPicture"), [] { return tr("Copy as p&icture"); },
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C)}, Scope::Window, [this] { copyPicture(); });
    actions->add(
        QStringLiteral("print"), [] { return tr("&Print…"); }, {QKeySequence::Print}, Scope::Window,
        [this] { print(); });
    actions->add(
        QStringLiteral("printPreview"), [] { return tr("Print previe&w…"); },
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P)}, Scope::Window,
        [this] { previewPrint(); });
}

void ExportCommands::updateActions()
{
    for (const char *name : {"export", "exportAs", "copyPicture", "print", "printPreview"})
        m_actions->action(QLatin1String(name))->setEnabled(m_session->document());
}

/** How the document is shown, in the colours for paper. */
DiagramView ExportCommands::shownView() const
{
    DiagramView view{m_editor->look(), QString(), m_editor->lookOptions()};
    if (m_theme->isDark()) // the colours are dark for the canvas alone
        view.options.palette = DiagramLook::onPaper(view.options.palette);
    return view;
}

/** The name of the shown document with another ending, beside its file. */
QString ExportCommands::proposedName(const QString &suffix) const
{
    const QFileInfo shown(m_session->document()->userFriendlyCurrentFile());
    return QStringLiteral("%1/%2.%3").arg(m_session->folder(), shown.completeBaseName(), suffix);
}

void ExportCommands::exportPicture()
{
    if (!m_session->document())
        return;
    PictureSource source(m_editor);
    const auto extent = [this, &source](const PictureWish &wish) {
        const BusyCursor busy(m_session->container());
        source.setWish(wish);
        return source.extent();
    };
    const auto paint = [this, &source](QPainter &painter, const QRectF &target, bool isLight) {
        const BusyCursor busy(m_session->container());
        std::optional<CanvasTheme::Paper> paper;
        if (isLight)
            paper.emplace(m_theme);
        source.paint(painter, target);
    };
    ExportDialog dialog(proposedName(QStringLiteral("png")),
                        {source.depth(), m_theme->canvasColor(), shownView(), extent, paint},
                        m_window);
    // What cannot be written can be chosen otherwise.
    while (dialog.exec() == QDialog::Accepted) {
        const PictureExport::Result result = writePicture(source, dialog);
        if (result || result.error == PictureExport::Error::Cancelled) {
            Q_EMIT message(result ? tr("%1 written").arg(dialog.fileName())
                                  : tr("%1 was not written").arg(dialog.fileName()));
            return;
        }
        PlainBox::warning(m_window, tr("Export picture"),
                          tr("%1 cannot be written: %2.").arg(dialog.fileName(), result.reason));
    }
}

/** Draws @p source as the user of @p dialog wants it. */
PictureExport::Result ExportCommands::writePicture(PictureSource &source,
                                                   const ExportDialog &dialog)
{
    PictureOptions options = dialog.options();
    options.title = source.title();
    source.setWish(dialog.wish());
    WorkProgress progress(tr("Writing %1…").arg(QFileInfo(dialog.fileName()).fileName()), m_window);
    options.progress = [&progress](int done, int total) { return progress.report(done, total); };
    if (dialog.wish().view.look == DiagramLook::Clear)
        return ClearExport::write(source.picture(), dialog.page(), dialog.fileName(), options);
    std::optional<CanvasTheme::Paper> paper;
    if (dialog.isLight())
        paper.emplace(m_theme);
    const UpdatesHeld still(m_window); // the window does not show what is meant for the picture
    return PictureExport::write(*source.scene(), dialog.fileName(), options);
}

/** Puts a picture of what is selected, or of all, on the clipboard. */
void ExportCommands::copyPicture()
{
    PictureExport::Result result;
    std::unique_ptr<QMimeData> data;
    {
        const BusyCursor busy(m_session->container());
        const DiagramView view = shownView();
        const CanvasTheme::Paper paper(m_theme);
        PictureSource source(m_editor, PictureSource::Part::Selection);
        source.setWish({std::nullopt, view});
        data = PictureCopy::of(source, ClearExport::paperOf(view.options.palette), result);
    }
    if (data)
        QGuiApplication::clipboard()->setMimeData(data.release()); // which takes it over
    Q_EMIT message(result ? tr("Copied as a picture")
                          : tr("Not copied as a picture: %1").arg(result.reason));
}

/** Asks for the file of exportAs(); its ending tells the format. Empty when the user cancels. */
QString ExportCommands::targetOfExport() const
{
    const QString slide = QStringLiteral("pptx");
    const QStringList filters = DiagramExchange::exportFilter().split(QStringLiteral(";;")) +
                                QStringList(tr("PowerPoint slide (*.%1)").arg(slide));
    const QStringList suffixes = foreignSuffixes() + QStringList(slide);
    return SaveDialog::chosenFile(m_window, tr("Export as"), proposedName(suffixes.constFirst()),
                                  filters, suffixes);
}

/** Writes @p document in the format that the ending of @p path tells. Returns what went wrong,
 * empty when nothing did, or nothing at all when the user has cancelled. */
std::optional<QString> ExportCommands::writeAs(const FishInfo &document, const QString &path) const
{
    const auto format = DiagramExchange::formatOf(path);
    if (SlideExport::isSlide(path))
        return writeSlide(document, path);
    if (!format)
        return tr("its ending tells none of the formats");
    const BusyCursor busy(document.treeItem());
    QString reason;
    const TreeItem &head = *document.treeItem()->childAtIndex(0);
    return DiagramExchange::writeFile(path, head, *format, &reason) ? QString() : reason;
}

std::optional<QString> ExportCommands::writeSlide(const FishInfo &document,
                                                  const QString &path) const
{
    PictureSource source(m_editor);
    source.setWish({std::nullopt, shownView()});
    const SlideExport::Aspect aspect = aspectOf(document);
    WorkProgress progress(tr("Writing %1…").arg(QFileInfo(path).fileName()), m_window);
    bool goesOn = true;
    const auto report = [&progress, &goesOn](int done, int total) {
        return goesOn = progress.report(done, total);
    };
    const CanvasTheme::Paper paper(m_theme);
    const UpdatesHeld still(m_window); // the window does not show what is meant for the slide
    QString reason;
    const bool isWritten =
        SlideExport::write(*source.scene(), source.root(), path, aspect, &reason, report);
    if (!goesOn)
        return std::nullopt;
    return isWritten ? QString() : reason;
}

/** What of @p document is not in the file @p path, for the status bar; empty when all is. */
QString ExportCommands::lossesOf(const FishInfo &document, const QString &path) const
{
    const TreeItem &head = *document.treeItem()->childAtIndex(0);
    const ExchangeReport report =
        SlideExport::isSlide(path)
            ? DiagramExchange::lossesOfSlide(head, m_editor->look() == DiagramLook::Clear)
            : DiagramExchange::lossesOf(head, *DiagramExchange::formatOf(path));
    const QStringList lines = report.losesContent() ? report.lines() : QStringList();
    return lines.isEmpty() ? QString() : QLatin1String("; ") + lines.join(QLatin1String("; "));
}

void ExportCommands::exportAs()
{
    const QPointer<FishInfo> document = m_session->document(); // the dialog runs an event loop
    const QString path = document ? targetOfExport() : QString();
    if (path.isEmpty() || !document)
        return;
    const std::optional<QString> reason = writeAs(*document, path);
    if (!reason) {
        Q_EMIT message(tr("%1 was not written").arg(path));
        return;
    }
    if (reason->isEmpty()) {
        Q_EMIT message(tr("%1 written").arg(path) + lossesOf(*document, path));
        return;
    }
    PlainBox::warning(m_window, tr("Export as"),
                      tr("%1 cannot be written: %2.").arg(path, *reason));
}

void ExportCommands::previewPrint()
{
    if (!m_session->document())
        return;
    PictureSource source(m_editor);
    PrintPreview preview(&source, shownView(), m_theme, m_window);
    preview.setTarget(proposedName(QStringLiteral("pdf")));
    preview.exec();
}

/** Prints as the preview was last left, which need not have been seen. */
void ExportCommands::print()
{
    if (!m_session->document())
        return;
    PictureSource source(m_editor);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape); // as wide as most fishbones are
    printer.setDocName(source.title());
    QPrintDialog dialog(&printer, m_window);
    PrintTarget::propose(dialog, proposedName(QStringLiteral("pdf")));
    if (dialog.exec() == QDialog::Accepted &&
        !PrintPreview(&source, shownView(), m_theme, m_window).printTo(&printer))
        Q_EMIT message(tr("Nothing was printed"));
}
