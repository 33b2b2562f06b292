// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/exportdialog.h>

#include <app/common/plainbox.h>
#include <app/diagram/expansion.h>
#include <app/export/clearexport.h>
#include <app/export/picturelookfields.h>
#include <app/export/picturesizefields.h>

#include <fishbone/exchange/diagrampicture.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

#include <utility>

namespace {

/** What the bones are expanded to. */
enum class Expanded {
    AsShown,
    All,
    Levels,
};

enum class Background {
    White,
    Transparent,
    Canvas,
};

constexpr QSize previewSize(400, 300);

QString expandedKey()
{
    return QStringLiteral("export/expanded");
}

QString levelsKey()
{
    return QStringLiteral("export/levels");
}

QString lightKey()
{
    return QStringLiteral("export/light");
}

QString backgroundKey()
{
    return QStringLiteral("export/background");
}

/** Chooses the entry of @p box that stands for @p value, if there is one. */
void choose(QComboBox *box, const QVariant &value)
{
    box->setCurrentIndex(qMax(box->findData(value), 0));
}

} // namespace

ExportDialog::ExportDialog(const QString &path, Subject subject, QWidget *parent)
    : QDialog(parent)
    , m_subject(std::move(subject))
    , m_file(new QLineEdit(path, this))
    , m_expansion(new QComboBox(this))
    , m_levels(new QSpinBox(this))
    , m_light(new QCheckBox(tr("&Light, as on paper"), this))
    , m_background(new QComboBox(this))
    , m_preview(new QLabel(this))
{
    setWindowTitle(tr("Export picture"));
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setAccessibleName(tr("Preview"));
    m_preview->setFixedSize(previewSize);
    auto *const beside = new QHBoxLayout;
    beside->addWidget(makeFields(), 1);
    beside->addWidget(m_preview);
    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(beside);
    layout->addWidget(buttons);

    m_measuring.setSingleShot(true);
    m_measuring.setInterval(300);
    connect(&m_measuring, &QTimer::timeout, this, &ExportDialog::measure);
    restore();
    followLook();
    followLevels();
    measure();
}

QWidget *ExportDialog::makeFields()
{
    auto *const fields = new QWidget(this);
    auto *const layout = new QFormLayout(fields);
    layout->setContentsMargins(0, 0, 0, 0);
    addFile(layout);
    m_look = new PictureLookFields(layout, m_subject.view, this);
    connect(m_look, &PictureLookFields::changed, this, &ExportDialog::followLook);
    m_size = new PictureSizeFields(layout, this);
    addLevels(layout);
    addColours(layout);
    return fields;
}

void ExportDialog::addFile(QFormLayout *layout)
{
    m_file->setObjectName(QStringLiteral("file"));
    m_file->setMinimumWidth(320);
    auto *const browseButton = new QPushButton(tr("B&rowse…"), this);
    connect(browseButton, &QPushButton::clicked, this, &ExportDialog::browse);
    connect(m_file, &QLineEdit::textChanged, this, &ExportDialog::followFile);
    auto *const file = new QHBoxLayout;
    file->addWidget(m_file);
    file->addWidget(browseButton);
    auto *const label = new QLabel(tr("&File:"), this);
    label->setBuddy(m_file); // a row finds one by itself only for a widget
    layout->addRow(label, file);
}

void ExportDialog::addLevels(QFormLayout *layout)
{
    m_expansion->setObjectName(QStringLiteral("expansion"));
    m_expansion->addItem(tr("As shown"), int(Expanded::AsShown));
    m_expansion->addItem(tr("All levels"), int(Expanded::All));
    m_expansion->addItem(tr("Levels below the main bones:"), int(Expanded::Levels));
    m_levels->setObjectName(QStringLiteral("levels"));
    m_levels->setAccessibleName(tr("Levels below the main bones"));
    m_levels->setRange(0, m_subject.depth);
    connect(m_expansion, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ExportDialog::followLevels);
    connect(m_levels, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &ExportDialog::followLevels);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_expansion, 1);
    row->addWidget(m_levels);
    auto *const label = new QLabel(tr("&Expanded:"), this);
    label->setBuddy(m_expansion);
    layout->addRow(label, row);
}

void ExportDialog::addColours(QFormLayout *layout)
{
    m_light->setObjectName(QStringLiteral("light"));
    connect(m_light, &QCheckBox::toggled, this, &ExportDialog::followLight);
    m_background->setObjectName(QStringLiteral("background"));
    layout->addRow(QString(), m_light);
    layout->addRow(tr("&Background:"), m_background);
    connect(m_background, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ExportDialog::showPreview);
}

/** Chooses what was chosen the last time. */
void ExportDialog::restore()
{
    const QSettings settings;
    choose(m_expansion, settings.value(expandedKey(), int(Expanded::AsShown)));
    m_levels->setValue(settings.value(levelsKey(), 1).toInt());
    m_light->setChecked(settings.value(lightKey(), true).toBool());
    followLight();
    choose(m_background, settings.value(backgroundKey(), int(Background::White)));
}

void ExportDialog::remember() const
{
    QSettings settings;
    settings.setValue(expandedKey(), m_expansion->currentData());
    if (m_levels->isEnabled())
        settings.setValue(levelsKey(), m_levels->value());
    settings.setValue(lightKey(), m_light->isChecked());
    settings.setValue(backgroundKey(), m_background->currentData());
    m_look->remember();
    m_size->remember();
}

QString ExportDialog::fileName() const
{
    return m_file->text();
}

std::optional<int> ExportDialog::levels() const
{
    switch (Expanded(m_expansion->currentData().toInt())) {
    case Expanded::AsShown:
        break;
    case Expanded::All:
        return Expansion::allLevels;
    case Expanded::Levels:
        return m_levels->value();
    }
    return std::nullopt;
}

PictureWish ExportDialog::wish() const
{
    return {levels(), m_look->view()};
}

std::optional<PageSize> ExportDialog::page() const
{
    return PageSize::of(m_look->view().page);
}

bool ExportDialog::isLight() const
{
    const DiagramView view = m_look->view();
    return view.look == DiagramLook::Clear ? view.options.palette != DiagramLook::DarkColors
                                           : m_light->isChecked();
}

PictureOptions ExportDialog::options() const
{
    PictureOptions options;
    m_size->apply(options);
    switch (Background(m_background->currentData().toInt())) {
    case Background::White:
        options.background = Qt::white;
        break;
    case Background::Transparent:
        options.background = Qt::transparent;
        break;
    case Background::Canvas:
        options.background = m_look->view().look == DiagramLook::Clear
                                 ? ClearExport::paperOf(DiagramLook::DarkColors)
                                 : m_subject.canvas;
        break;
    }
    if (m_look->view().look == DiagramLook::Clear)
        options.margin = ClearExport::margin;
    return options;
}

void ExportDialog::followFile()
{
    m_size->setFormat(PictureExport::formatOf(fileName()));
}

void ExportDialog::followLook()
{
    m_measuring.start();
    m_light->setEnabled(m_look->view().look == DiagramLook::Classic);
    m_size->setPage(page());
    followFile();
    followLight();
}

void ExportDialog::followLevels()
{
    m_levels->setEnabled(m_expansion->currentData() == int(Expanded::Levels));
    m_measuring.start();
}

/** Offers the backgrounds that go with the look of the bones. */
void ExportDialog::followLight()
{
    const QVariant chosen = m_background->currentData();
    const bool wasLight = m_background->findData(int(Background::Canvas)) < 0;
    m_background->clear();
    const bool isDark = m_look->view().look == DiagramLook::Clear && !isLight();
    if (!isLight()) // on white what is drawn for a dark screen can hardly be seen
        m_background->addItem(isDark ? tr("Dark") : tr("As on the screen"),
                              int(Background::Canvas));
    if (!isDark)
        m_background->addItem(tr("White"), int(Background::White));
    m_background->addItem(tr("Transparent"), int(Background::Transparent));
    if (wasLight == isLight() || chosen == int(Background::Transparent))
        choose(m_background, chosen);
}

void ExportDialog::measure()
{
    m_measuring.stop();
    m_size->setDrawing(m_subject.extent(wish()), options().margin);
    showPreview();
}

/** Shows the picture as it is now, on its page or its background. */
void ExportDialog::showPreview()
{
    if (m_measuring.isActive())
        return; // it comes with what is measured
    constexpr double marginOfPage = 0.03;
    const double dots = devicePixelRatioF();
    QPixmap pixmap((QSizeF(previewSize) * dots).toSize());
    pixmap.setDevicePixelRatio(dots);
    pixmap.fill(palette().color(QPalette::Window));
    const QSizeF whole = page() ? page()->size : m_size->size();
    if (!whole.isEmpty()) {
        QRectF paper(QPointF(0, 0), whole.scaled(previewSize, Qt::KeepAspectRatio));
        paper.moveCenter(QRectF(QPointF(0, 0), previewSize).center());
        const QColor background = options().background;
        QPainter painter(&pixmap);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        if (background.alpha() > 0)
            painter.fillRect(paper, background);
        else
            painter.fillRect(paper, QBrush(Qt::lightGray, Qt::Dense6Pattern));
        const double margin = marginOfPage * qMin(paper.width(), paper.height());
        m_subject.paint(painter, paper.adjusted(margin, margin, -margin, -margin), isLight());
    }
    m_preview->setPixmap(pixmap);
}

void ExportDialog::browse()
{
    const QString chosen = QFileDialog::getSaveFileName(this, windowTitle(), fileName(),
                                                        tr("Pictures (*.png *.svg *.pdf *.html)"),
                                                        nullptr, QFileDialog::DontConfirmOverwrite);
    if (!chosen.isEmpty())
        m_file->setText(chosen);
}

/** What is wrong with what was chosen; empty when nothing is. */
QString ExportDialog::objection() const
{
    if (!DiagramPicture::canWrite(fileName()))
        return tr("The file name must end in .png, .svg, .pdf or .html.");
    const auto format = PictureExport::formatOf(fileName());
    if (!format)
        return m_look->view().look == DiagramLook::Clear
                   ? QString()
                   : tr("A page for the browser needs the clear look.");
    const auto check = PictureExport::check(*format, m_size->size());
    return check ? QString() : tr("This cannot be exported: %1.").arg(check.reason);
}

void ExportDialog::accept()
{
    if (m_measuring.isActive())
        measure();
    if (const QString text = objection(); !text.isEmpty()) {
        const QString scale = m_size->fittingScale();
        if (scale.isEmpty())
            PlainBox::warning(this, windowTitle(), text);
        else if (PlainBox::ask(this, windowTitle(), tr("%1 Use %2, which fits?").arg(text, scale)))
            m_size->useFittingScale();
        return;
    }
    if (QFileInfo::exists(fileName()) &&
        !PlainBox::ask(this, windowTitle(),
                       tr("%1 exists already. Replace it?").arg(QFileInfo(fileName()).fileName())))
        return;
    remember();
    QDialog::accept();
}
