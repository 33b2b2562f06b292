// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/printpreview.h>

#include <app/common/actionset.h>
#include <app/common/busycursor.h>
#include <app/common/canvastheme.h>
#include <app/common/updatesheld.h>
#include <app/common/workprogress.h>
#include <app/diagram/palettes.h>
#include <app/export/picturesource.h>
#include <app/export/printtarget.h>

#include <fishbone/drawing/lookinfo.h>
#include <fishbone/editor/fishscene.h>

#include <QAction>
#include <QCheckBox>
#include <QChildEvent>
#include <QComboBox>
#include <QLabel>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QSettings>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>

#include <optional>

namespace {

using Fit = DrawingPrinter::Fit;

QString fitKey()
{
    return QStringLiteral("print/fit");
}

QString percentKey()
{
    return QStringLiteral("print/percent");
}

QString arrangedKey()
{
    return QStringLiteral("print/arranged");
}

QString printLegendKey()
{
    return QStringLiteral("print/legend");
}

/** The part of the paper that @p device prints on, as PageSize reads it. Without a unit, since a
 * sheet in millimetres would keep a margin within what is left of this one. */
QString pageOf(const QPrinter &device)
{
    const QSizeF size = device.pageRect(QPrinter::Millimeter).size();
    return QStringLiteral("%1x%2").arg(size.width(), 0, 'f', 1).arg(size.height(), 0, 'f', 1);
}

} // namespace

PrintPreview::PrintPreview(PictureSource *source, const DiagramView &shown,
                           const CanvasTheme *theme, QWidget *parent)
    : QPrintPreviewDialog(parent)
    , m_source(source)
    , m_theme(theme)
    , m_shown(shown)
    , m_percent(new QSpinBox(this))
    , m_pages(new QLabel(this))
    , m_arranged(new QCheckBox(tr("Arranged for the paper"), this))
    , m_legend(new QCheckBox(tr("Legend"), this))
{
    setWindowTitle(tr("Print preview"));
    printer()->setResolution(600); // the dialog's own has that of the screen
    printer()->setPageOrientation(QPageLayout::Landscape); // as wide as most fishbones are
    printer()->setDocName(source->title());
    layout()->setMenuBar(makeBars());
    restore();
    connect(this, &QPrintPreviewDialog::paintRequested, this, &PrintPreview::printTo);
    for (QComboBox *box : {m_fit, m_look, m_palette})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &PrintPreview::follow);
    for (QCheckBox *box : {m_arranged, m_legend})
        connect(box, &QCheckBox::toggled, this, &PrintPreview::follow);
    connect(m_percent, QOverload<int>::of(&QSpinBox::valueChanged), this, &PrintPreview::follow);
    resize(1000, 700);
}

PrintPreview::~PrintPreview()
{
    // A field that loses the focus tells its value, when the printer is gone already.
    m_fit->disconnect(this);
    m_percent->disconnect(this);
}

/** The toolkit makes the dialog that prints when it is wanted first. */
void PrintPreview::childEvent(QChildEvent *event)
{
    QPrintPreviewDialog::childEvent(event);
    auto *const dialog = event->polished() ? qobject_cast<QPrintDialog *>(event->child()) : nullptr;
    if (dialog)
        PrintTarget::propose(*dialog, m_target);
}

QComboBox *PrintPreview::addBox(QToolBar *bar, const char *name, const QString &text)
{
    auto *const box = new QComboBox(this);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(text);
    box->setToolTip(text);
    bar->addWidget(box);
    return box;
}

/** Two of them: what a bar has no room for would be out of reach. */
QWidget *PrintPreview::makeBars()
{
    auto *const bars = new QWidget(this);
    auto *const rows = new QVBoxLayout(bars);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(makeSizeBar());
    rows->addWidget(makeLookBar());
    return bars;
}

QToolBar *PrintPreview::makeSizeBar()
{
    auto *const bar = new QToolBar(this);
    m_fit = addBox(bar, "fit", tr("Size on paper"));
    m_fit->addItem(tr("Fit one page"), int(Fit::Page));
    m_fit->addItem(tr("Fit the width of the page"), int(Fit::Width));
    m_fit->addItem(tr("Scale"), int(Fit::Scale));
    m_percent->setObjectName(QStringLiteral("percent"));
    m_percent->setAccessibleName(tr("Scale in percent"));
    m_percent->setToolTip(m_percent->accessibleName());
    m_percent->setRange(5, 400);
    m_percent->setSuffix(QStringLiteral(" %"));
    m_percent->setKeyboardTracking(false);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_pages->setMargin(4);
    bar->addWidget(m_percent);
    bar->addWidget(m_pages);
    return bar;
}

QToolBar *PrintPreview::makeLookBar()
{
    auto *const bar = new QToolBar(this);
    m_look = addBox(bar, "look", tr("Look"));
    for (const LookInfo &look : LookInfo::all())
        m_look->addItem(ActionSet::plainText(look.title()), int(look.kind()));
    m_palette = addBox(bar, "palette", tr("Palette"));
    for (const Palettes::Entry &entry : Palettes::all()) {
        if (entry.palette != DiagramLook::DarkColors) // paper is white
            m_palette->addItem(entry.name(), int(entry.palette));
    }
    m_arranged->setObjectName(QStringLiteral("arranged"));
    m_legend->setObjectName(QStringLiteral("legend"));
    bar->addWidget(m_arranged);
    bar->addWidget(m_legend);
    return bar;
}

void PrintPreview::restore()
{
    const QSettings settings;
    const int fit = m_fit->findData(settings.value(fitKey()));
    m_fit->setCurrentIndex(qMax(fit, 0));
    m_percent->setValue(settings.value(percentKey(), 100).toInt());
    m_arranged->setChecked(settings.value(arrangedKey(), true).toBool());
    m_legend->setChecked(settings.value(printLegendKey(), true).toBool());
    m_look->setCurrentIndex(m_look->findData(int(m_shown.look)));
    // Dark colours are for screens.
    m_palette->setCurrentIndex(qMax(m_palette->findData(int(m_shown.options.palette)), 0));
    takeOver(*printer());
    refresh();
}

/** Draws for the paper of @p device as the fields say, and lays the pages out. */
void PrintPreview::takeOver(const QPrinter &device)
{
    DiagramView view = m_shown;
    view.look = DiagramLook::Kind(m_look->currentData().toInt());
    view.page.clear();
    if (view.look == DiagramLook::Clear) {
        view.options.palette = DiagramLook::Palette(m_palette->currentData().toInt());
        view.options.hasLegend = m_legend->isChecked();
        if (m_arranged->isChecked())
            view.page = pageOf(device);
    }
    m_source->setWish({std::nullopt, view});
    const bool isClear = view.look == DiagramLook::Clear;
    m_drawing = DrawingPrinter(isClear ? PrintedDrawing::of(m_source->picture())
                                       : PrintedDrawing::of(*m_source->scene()),
                               m_source->title());
    m_drawing.setLayout({Fit(m_fit->currentData().toInt()), m_percent->value() / 100.0});
}

bool PrintPreview::printTo(QPrinter *device)
{
    std::optional<CanvasTheme::Paper> paper;
    if (m_theme)
        paper.emplace(m_theme);
    const bool isPrinted = paintOn(device);
    refresh();
    return isPrinted;
}

/** Draws on @p device: in one go what is only shown, since it is painted from that meanwhile; else
 * so that the user sees how far it is and can cancel it. */
bool PrintPreview::paintOn(QPrinter *device)
{
    if (device->paintEngine()->type() == QPaintEngine::Picture) {
        const BusyCursor busy(&m_source->root());
        takeOver(*device);
        return m_drawing.print(device);
    }
    QWidget *const window = isVisible() ? this : parentWidget();
    WorkProgress progress(tr("Printing…"), window);
    const UpdatesHeld still(parentWidget() ? parentWidget()->window() : nullptr);
    takeOver(*device);
    return m_drawing.print(
        device, [&progress](int done, int total) { return progress.report(done, total); });
}

/** Takes over what was chosen and shows it. */
void PrintPreview::follow()
{
    QSettings settings;
    settings.setValue(fitKey(), m_fit->currentData());
    settings.setValue(percentKey(), m_percent->value());
    settings.setValue(arrangedKey(), m_arranged->isChecked());
    settings.setValue(printLegendKey(), m_legend->isChecked());
    findChild<QPrintPreviewWidget *>()->updatePreview();
}

/** Says how many pages there are. */
void PrintPreview::refresh()
{
    m_percent->setEnabled(m_drawing.layout().fit == Fit::Scale);
    const bool isClear = m_look->currentData() == int(DiagramLook::Clear);
    for (QWidget *field : QList<QWidget *>{m_palette, m_arranged, m_legend})
        field->setEnabled(isClear);
    const int count = m_drawing.pages(*printer()).count();
    QString text = count > 0 ? tr("%n page(s)", nullptr, count)
                             : tr("Nothing to print, or more than %n page(s)", nullptr,
                                  DrawingPrinter::maximalPages);
    if (count > 0 && m_drawing.isReducedOn(*printer()))
        text = tr("%1, at %2 % so that no title is cut")
                   .arg(text)
                   .arg(int(m_drawing.scaleOn(*printer()) * 100));
    m_pages->setText(text);
}
