// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/picturesizefields.h>

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>
#include <QSpinBox>

#include <cmath>

namespace {

constexpr int largestSide = 999999; ///< what is too large for a format is refused with the reason

QString leaderKey()
{
    return QStringLiteral("export/sizeBy");
}

QString valueKey()
{
    return QStringLiteral("export/size");
}

QSpinBox *sideField(const char *name, QWidget *parent)
{
    auto *const field = new QSpinBox(parent);
    field->setObjectName(QLatin1String(name));
    field->setRange(1, largestSide);
    field->setSuffix(PictureSizeFields::tr(" px"));
    field->setKeyboardTracking(false); // the others follow what is entered, not each digit
    return field;
}

} // namespace

PictureSizeFields::PictureSizeFields(QFormLayout *layout, QWidget *parent)
    : QObject(parent)
    , m_scale(new QDoubleSpinBox(parent))
    , m_width(sideField("width", parent))
    , m_height(sideField("height", parent))
    , m_result(new QLabel(parent))
    , m_fit(new QPushButton(parent))
{
    m_scale->setObjectName(QStringLiteral("scale"));
    m_scale->setRange(0.001, 1000);
    m_scale->setDecimals(3);
    m_scale->setSingleStep(0.5);
    m_scale->setPrefix(QStringLiteral("× "));
    m_scale->setKeyboardTracking(false);
    m_result->setObjectName(QStringLiteral("result"));
    m_result->setWordWrap(true);
    layout->addRow(tr("Sc&ale:"), m_scale);
    layout->addRow(tr("&Width:"), m_width);
    layout->addRow(tr("&Height:"), m_height);
    layout->addRow(QString(), m_result);
    m_fit->setObjectName(QStringLiteral("fit"));
    layout->addRow(QString(), m_fit);
    connect(m_fit, &QPushButton::clicked, this, &PictureSizeFields::useFittingScale);

    const QSettings settings;
    m_leader = Leader(qBound(0, settings.value(leaderKey()).toInt(), int(Leader::Height)));
    const double value = settings.value(valueKey(), 1).toDouble();
    if (m_leader == Leader::Scale)
        m_scale->setValue(value);
    else
        (m_leader == Leader::Width ? m_width : m_height)->setValue(int(value));

    connect(m_scale, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this] { follow(Leader::Scale); });
    connect(m_width, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this] { follow(Leader::Width); });
    connect(m_height, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this] { follow(Leader::Height); });
}

void PictureSizeFields::setDrawing(const QRectF &drawing, double margin)
{
    m_drawing = drawing;
    m_margin = margin;
    follow(m_leader);
}

void PictureSizeFields::setPage(const std::optional<PageSize> &page)
{
    m_page = page;
    for (QWidget *field : QList<QWidget *>{m_scale, m_width, m_height})
        field->setEnabled(!page);
    showResult();
}

void PictureSizeFields::setFormat(std::optional<PictureExport::Format> format)
{
    m_format = format;
    showResult();
}

/** The size of the picture at a scale of 1, with its margin. */
QSizeF PictureSizeFields::unscaledSize() const
{
    return m_drawing.adjusted(-m_margin, -m_margin, m_margin, m_margin).size();
}

/** The scale that the leading field asks for. */
double PictureSizeFields::scale() const
{
    switch (m_leader) {
    case Leader::Scale:
        break;
    case Leader::Width:
        return m_width->value() / unscaledSize().width();
    case Leader::Height:
        return m_height->value() / unscaledSize().height();
    }
    return m_scale->value();
}

/** Makes the other fields follow @p leader. */
void PictureSizeFields::follow(Leader leader)
{
    m_leader = leader;
    if (!m_drawing.isNull()) {
        const double factor = scale();
        const QSizeF exact = unscaledSize() * factor;
        const QSignalBlocker quiet[] = {QSignalBlocker(m_scale), QSignalBlocker(m_width),
                                        QSignalBlocker(m_height)};
        if (leader != Leader::Scale)
            m_scale->setValue(factor);
        if (leader != Leader::Width)
            m_width->setValue(int(qMin(std::ceil(exact.width()), double(largestSide))));
        if (leader != Leader::Height)
            m_height->setValue(int(qMin(std::ceil(exact.height()), double(largestSide))));
    }
    showResult();
}

/** Says what comes of it: the size on paper, or why there will be no picture. */
void PictureSizeFields::showResult()
{
    QString text;
    const QSizeF size = this->size();
    if (m_format && !size.isEmpty()) {
        const QLocale locale;
        const auto check = PictureExport::check(*m_format, size);
        if (!check) {
            text = check.reason;
        } else if (*m_format == PictureExport::Format::Pdf) {
            const QSizeF page =
                m_page ? m_page->millimetres() : size * PictureExport::millimetresPerUnit();
            text = tr("A page of %1 × %2 mm")
                       .arg(locale.toString(page.width(), 'f', 0),
                            locale.toString(page.height(), 'f', 0));
        } else {
            text = tr("%1 × %2 pixels")
                       .arg(locale.toString(size.width(), 'f', 0),
                            locale.toString(size.height(), 'f', 0));
        }
    }
    m_result->setText(text);
    const QString scale = fittingScale();
    m_fit->setVisible(!scale.isEmpty());
    m_fit->setText(tr("&Use %1, which fits").arg(scale));
}

/** The largest scale that a picture of the chosen format can have. */
double PictureSizeFields::largestScale() const
{
    return PictureExport::roundedScale(scale() * PictureExport::fittingFactor(*m_format, size()));
}

QString PictureSizeFields::fittingScale() const
{
    if (!m_format || m_page || size().isEmpty() || PictureExport::check(*m_format, size()))
        return QString();
    const double largest = largestScale();
    return largest < m_scale->minimum() ? QString()
                                        : m_scale->prefix() + m_scale->textFromValue(largest);
}

void PictureSizeFields::useFittingScale()
{
    if (fittingScale().isEmpty())
        return;
    const double largest = largestScale();
    m_scale->setValue(largest);
    follow(Leader::Scale); // also when it was that already, by a side
}

void PictureSizeFields::apply(PictureOptions &options) const
{
    if (m_page)
        return;
    if (m_leader == Leader::Scale)
        options.scale = m_scale->value();
    else
        options.size = QSize(m_width->value(), m_height->value());
}

QSizeF PictureSizeFields::size() const
{
    if (m_page)
        return m_page->pixels();
    PictureOptions options;
    options.margin = m_margin;
    apply(options);
    return PictureExport::sizeOf(m_drawing, options);
}

void PictureSizeFields::remember() const
{
    QSettings settings;
    settings.setValue(leaderKey(), int(m_leader));
    settings.setValue(valueKey(), m_leader == Leader::Scale   ? m_scale->value()
                                  : m_leader == Leader::Width ? double(m_width->value())
                                                              : double(m_height->value()));
}
