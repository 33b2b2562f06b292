// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/exportdialog.h>

#include <app/common/plainbox.h>
#include <app/common/rowtaborder.h>
#include <app/export/clearexport.h>
#include <app/export/picturelevelfields.h>
#include <app/export/picturelookfields.h>
#include <app/export/picturepreview.h>
#include <app/export/picturesizefields.h>

#include <fishbone/exchange/diagrampicture.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include <utility>

namespace {

enum class Background {
    White,
    Transparent,
    Canvas,
};

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
    , m_light(new QCheckBox(tr("&Light, as on paper"), this))
    , m_background(new QComboBox(this))
    , m_preview(new PicturePreview(this))
{
    setWindowTitle(tr("Export picture"));
    addFields(new QVBoxLayout(this));
    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);
    layout()->addWidget(buttons);

    m_measuring.setSingleShot(true);
    m_measuring.setInterval(300);
    connect(&m_measuring, &QTimer::timeout, this, &ExportDialog::measure);
    m_measuring.start(); // there is nothing to show yet
    restore();
    followLook();
    measure();
}

/** In two columns, so that a small screen has room for them: what it looks like, and how large it
 * becomes with the preview of that. */
void ExportDialog::addFields(QVBoxLayout *layout)
{
    auto *const file = new QFormLayout;
    auto *const looks = new QFormLayout;
    auto *const sizes = new QFormLayout;
    addFile(file);
    m_look = new PictureLookFields(looks, m_subject.view, this);
    connect(m_look, &PictureLookFields::changed, this, &ExportDialog::followLook);
    addColours(looks);
    m_levels = new PictureLevelFields(sizes, m_subject.depth, this);
    connect(m_levels, &PictureLevelFields::changed, this, [this] { m_measuring.start(); });
    m_size = new PictureSizeFields(sizes, this);
    auto *const right = new QVBoxLayout;
    right->addWidget(m_preview, 1);
    right->addLayout(sizes);
    auto *const columns = new QHBoxLayout;
    columns->addLayout(looks);
    columns->addLayout(right, 1);
    layout->addLayout(file);
    layout->addLayout(columns);
    RowTabOrder::apply({file, looks, sizes});
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
    m_light->setChecked(settings.value(lightKey(), true).toBool());
    followLight();
    choose(m_background, settings.value(backgroundKey(), int(Background::White)));
}

void ExportDialog::remember() const
{
    QSettings settings;
    settings.setValue(lightKey(), m_light->isChecked());
    settings.setValue(backgroundKey(), m_background->currentData());
    m_look->remember();
    m_levels->remember();
    m_size->remember();
}

std::optional<int> ExportDialog::levels() const
{
    return m_levels->levels();
}

QString ExportDialog::fileName() const
{
    return m_file->text();
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
    return view.look == DiagramLook::Clear ? !DiagramLook::isDark(view.options.palette)
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
    m_light->setEnabled(m_look->view().look != DiagramLook::Clear);
    m_size->setPage(page());
    followFile();
    followLight();
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
    const bool lightly = isLight();
    m_preview->draw(page() ? page()->size : m_size->size(), options().background,
                    [this, lightly](QPainter &painter, const QRectF &target) {
                        m_subject.paint(painter, target, lightly);
                    });
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
