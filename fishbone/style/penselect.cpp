// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/penselect.h>

#include <fishbone/base/dialogtexts.h>
#include <fishbone/style/colorchoice.h>
#include <fishbone/style/previewpixmap.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace {

struct Choice
{
    const char *name; ///< translated in the context of the dialog
    int value;        ///< the Qt value, which the combo box carries as item data
};

constexpr Choice styles[] = {
    {QT_TRANSLATE_NOOP("PenSelect", "NoPen"), Qt::NoPen},
    {QT_TRANSLATE_NOOP("PenSelect", "SolidLine"), Qt::SolidLine},
    {QT_TRANSLATE_NOOP("PenSelect", "DashLine"), Qt::DashLine},
    {QT_TRANSLATE_NOOP("PenSelect", "DotLine"), Qt::DotLine},
    {QT_TRANSLATE_NOOP("PenSelect", "DashDotLine"), Qt::DashDotLine},
    {QT_TRANSLATE_NOOP("PenSelect", "DashDotDotLine"), Qt::DashDotDotLine},
};

constexpr Choice capStyles[] = {
    {QT_TRANSLATE_NOOP("PenSelect", "FlatCap"), Qt::FlatCap},
    {QT_TRANSLATE_NOOP("PenSelect", "SquareCap"), Qt::SquareCap},
    {QT_TRANSLATE_NOOP("PenSelect", "RoundCap"), Qt::RoundCap},
};

constexpr Choice joinStyles[] = {
    {QT_TRANSLATE_NOOP("PenSelect", "MiterJoin"), Qt::MiterJoin},
    {QT_TRANSLATE_NOOP("PenSelect", "BevelJoin"), Qt::BevelJoin},
    {QT_TRANSLATE_NOOP("PenSelect", "RoundJoin"), Qt::RoundJoin},
};

/// Fills a combo box and lets it start on a value, on no item when it does not offer the value.
template <std::size_t size>
void fill(QComboBox *combo, const Choice (&choices)[size], int current)
{
    for (const Choice &choice : choices)
        combo->addItem(QString(), choice.value);
    combo->setCurrentIndex(combo->findData(current));
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    followLanguage(combo, [combo, &choices] {
        int row = 0;
        for (const Choice &choice : choices)
            combo->setItemText(row++, PenSelect::tr(choice.name));
    });
}

/// Hands the value of the chosen item to a slot of the dialog; its index would mean nothing there.
void connectValue(QComboBox *combo, PenSelect *dialog, void (PenSelect::*slot)(int))
{
    QObject::connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), dialog,
                     [combo, dialog, slot] { (dialog->*slot)(combo->currentData().toInt()); });
}

/// A line with corners, so that caps, joins and dashes can all be seen.
QPolygonF sampleLine(const QSizeF &area)
{
    const qreal middle = area.height() / 2;
    const qreal swing = area.height() / 3;
    const auto point = [&](qreal part, qreal y) { return QPointF(area.width() * part, y); };
    return QVector<QPointF>{point(0.08, middle),        point(0.5, middle),
                            point(0.6, middle - swing), point(0.72, middle + swing),
                            point(0.82, middle),        point(0.92, middle)};
}

} // namespace

PenSelect::PenSelect(const QPen &pen, QWidget *parent)
    : QDialog(parent)
    , m_pen(pen)
    , m_width(new QLineEdit(this))
    , m_style(new QComboBox(this))
    , m_capStyle(new QComboBox(this))
    , m_joinStyle(new QComboBox(this))
    , m_preview(new QLabel(this))
{
    setModal(true);
    m_width->setText(QStringLiteral("%1").arg(m_pen.widthF()));
    m_width->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("^[1-5]{1}$")), m_width));
    m_width->selectAll();
    connect(m_width, &QLineEdit::textChanged, this, &PenSelect::widthChanged);

    fill(m_style, styles, m_pen.style());
    fill(m_capStyle, capStyles, m_pen.capStyle());
    fill(m_joinStyle, joinStyles, m_pen.joinStyle());
    connectValue(m_style, this, &PenSelect::styleChanged);
    connectValue(m_capStyle, this, &PenSelect::capStyleChanged);
    connectValue(m_joinStyle, this, &PenSelect::joinStyleChanged);

    buildLayout();
    updatePreview();
}

void PenSelect::buildLayout()
{
    auto *const color = new QPushButton(this);
    connect(color, &QPushButton::clicked, this, &PenSelect::openColor);

    auto *const layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    auto *const form = new QFormLayout;
    layout->addLayout(form);
    addNamedRow<PenSelect>(form, QT_TR_NOOP("PenWidth"), m_width);
    addNamedRow<PenSelect>(form, QT_TR_NOOP("PenStyle"), m_style);
    addNamedRow<PenSelect>(form, QT_TR_NOOP("PenCapStyle"), m_capStyle);
    addNamedRow<PenSelect>(form, QT_TR_NOOP("PenJoinStyle"), m_joinStyle);
    addNamedRow<PenSelect>(form, QT_TR_NOOP("PenColor"), color);

    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    layout->addWidget(m_preview);

    auto *const buttons = new QDialogButtonBox(this);
    QPushButton *const accept = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    QPushButton *const cancel = buttons->addButton(QString(), QDialogButtonBox::RejectRole);
    accept->setDefault(true);
    followLanguage(this, [this, color, accept, cancel] {
        setWindowTitle(tr("Pen"));
        color->setText(tr("Color"));
        accept->setText(tr("Accept"));
        cancel->setText(tr("Cancel"));
    });
    connect(buttons, &QDialogButtonBox::accepted, this, &PenSelect::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PenSelect::reject);
    layout->addWidget(buttons);
}

QPen PenSelect::selectedPen() const
{
    return m_pen;
}

void PenSelect::widthChanged(const QString &text)
{
    bool ok = false;
    const int width = text.toInt(&ok);
    if (!ok)
        return;
    m_pen.setWidth(width);
    updatePreview();
}

void PenSelect::styleChanged(int style)
{
    const bool known = style >= Qt::NoPen && style <= Qt::CustomDashLine;
    m_pen.setStyle(known ? static_cast<Qt::PenStyle>(style) : Qt::NoPen);
    updatePreview();
}

void PenSelect::capStyleChanged(int style)
{
    const bool known = m_capStyle->findData(style) >= 0;
    m_pen.setCapStyle(known ? static_cast<Qt::PenCapStyle>(style) : Qt::FlatCap);
    updatePreview();
}

void PenSelect::joinStyleChanged(int style)
{
    const bool known = style == Qt::SvgMiterJoin || m_joinStyle->findData(style) >= 0;
    m_pen.setJoinStyle(known ? static_cast<Qt::PenJoinStyle>(style) : Qt::MiterJoin);
    updatePreview();
}

void PenSelect::openColor()
{
    if (const std::optional<QColor> color = chooseColor(m_pen.color(), this)) {
        m_pen.setColor(*color);
        updatePreview();
    }
}

void PenSelect::updatePreview()
{
    const QSize size(300, 64);
    QPixmap pixmap = previewPixmap(size, devicePixelRatioF());
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(m_pen);
    painter.drawPolyline(sampleLine(size));
    painter.end();
    m_preview->setPixmap(pixmap);
}
