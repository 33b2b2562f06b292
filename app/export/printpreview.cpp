// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/printpreview.h>

#include <QAction>
#include <QComboBox>
#include <QGraphicsScene>
#include <QLabel>
#include <QLayout>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QSettings>
#include <QSpinBox>
#include <QToolBar>

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

} // namespace

PrintPreview::PrintPreview(QGraphicsScene *scene, const QString &title, QWidget *parent)
    : QPrintPreviewDialog(parent)
    , m_drawing(scene, title)
    , m_fit(new QComboBox(this))
    , m_percent(new QSpinBox(this))
    , m_pages(new QLabel(this))
{
    setWindowTitle(tr("Print preview"));
    printer()->setResolution(600); // the dialog's own has that of the screen
    printer()->setPageOrientation(QPageLayout::Landscape); // as wide as most fishbones are
    printer()->setDocName(title);
    addControls();
    restore();
    connect(this, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter *device) {
        m_drawing.print(device);
        refresh();
    });
    connect(m_fit, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &PrintPreview::follow);
    connect(m_percent, QOverload<int>::of(&QSpinBox::valueChanged), this, &PrintPreview::follow);
    resize(1000, 700);
}

PrintPreview::~PrintPreview()
{
    // A field that loses the focus tells its value, when the printer is gone already.
    m_fit->disconnect(this);
    m_percent->disconnect(this);
}

void PrintPreview::addControls()
{
    m_fit->setObjectName(QStringLiteral("fit"));
    m_fit->setAccessibleName(tr("Size on paper"));
    m_fit->setToolTip(m_fit->accessibleName());
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

    auto *const bar = new QToolBar(this);
    bar->addWidget(m_fit);
    bar->addWidget(m_percent);
    bar->addWidget(m_pages);
    layout()->setMenuBar(bar);
}

void PrintPreview::restore()
{
    const QSettings settings;
    const int fit = m_fit->findData(settings.value(fitKey()));
    m_fit->setCurrentIndex(qMax(fit, 0));
    m_percent->setValue(settings.value(percentKey(), 100).toInt());
    takeOver();
    refresh();
}

/** Lays the pages out as the fields say. */
void PrintPreview::takeOver()
{
    m_drawing.setLayout({Fit(m_fit->currentData().toInt()), m_percent->value() / 100.0});
}

/** Takes over what was chosen and shows it. */
void PrintPreview::follow()
{
    takeOver();
    QSettings settings;
    settings.setValue(fitKey(), m_fit->currentData());
    settings.setValue(percentKey(), m_percent->value());
    findChild<QPrintPreviewWidget *>()->updatePreview();
}

/** Says how many pages there are. */
void PrintPreview::refresh()
{
    m_percent->setEnabled(m_drawing.layout().fit == Fit::Scale);
    const int count = int(m_drawing.pages(*printer()).size());
    m_pages->setText(count > 0 ? tr("%n page(s)", nullptr, count)
                               : tr("Nothing to print, or more than %n page(s)", nullptr,
                                    DrawingPrinter::maximalPages));
}
