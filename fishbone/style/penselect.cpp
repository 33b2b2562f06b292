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

/** Fills a combo box and lets it start on a value, on no item when it does not offer the value. */
template <std::size_t size>
void fill(QComboBox *combo, const Choice (&choices)[size], int current)
{
    for (const Choice &choice : choices)
        combo->addItem(QString(), choice.value);
    combo->setCurrentIndex(combo->findData(current));
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    followLanguage(combo, [combo, &choices] {
        QStringList names;
        for (const Choice &choice : choices)
            names.append(PenSelect::tr(choice.name));
        setItemTexts(combo, names);
    });
}

/**
 * Hands the value of the chosen item to a slot of the dialog; its index would mean nothing there.
 */
void connectValue(QComboBox *combo, PenSelect *dialog, void (PenSelect::*slot)(int))
{
    QObject::connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), dialog,
                     [combo, dialog, slot] { (dialog->*slot)(combo->currentData().toInt()); });
}

/** A line with corners, so that caps, joins and dashes can all be seen. */
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

/** The state of a dialog; it owns the widgets as their parent. */
struct FISHBONE_NO_EXPORT PenSelect::Private
{
    Q_DISABLE_COPY(Private)

    Private(const QPen &edited, PenSelect *dialog)
        : pen(edited)
        , width(new QLineEdit(dialog))
        , style(new QComboBox(dialog))
        , capStyle(new QComboBox(dialog))
        , joinStyle(new QComboBox(dialog))
        , preview(new QLabel(dialog))
    {
    }

    QPen pen;
    QColor background = Qt::white; ///< of the preview
    QLineEdit *const width;
    QComboBox *const style;
    QComboBox *const capStyle;
    QComboBox *const joinStyle;
    QLabel *const preview;
};

PenSelect::PenSelect(const QPen &pen, QWidget *parent)
    : QDialog(parent)
    , m_d(std::make_unique<Private>(pen, this))
{
    setModal(true);
    m_d->width->setText(QStringLiteral("%1").arg(m_d->pen.widthF()));
    m_d->width->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("^[1-5]{1}$")), m_d->width));
    m_d->width->selectAll();
    connect(m_d->width, &QLineEdit::textChanged, this, &PenSelect::widthChanged);

    fill(m_d->style, styles, m_d->pen.style());
    fill(m_d->capStyle, capStyles, m_d->pen.capStyle());
    fill(m_d->joinStyle, joinStyles, m_d->pen.joinStyle());
    connectValue(m_d->style, this, &PenSelect::styleChanged);
    connectValue(m_d->capStyle, this, &PenSelect::capStyleChanged);
    connectValue(m_d->joinStyle, this, &PenSelect::joinStyleChanged);

    buildLayout();
    updatePreview();
}

PenSelect::~PenSelect() = default;

void PenSelect::buildLayout()
{
    auto *const color = new QPushButton(this);
    connect(color, &QPushButton::clicked, this, &PenSelect::openColor);

    auto *const layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    auto *const form = new QFormLayout;
    layout->addLayout(form);
    addNamedRow<PenSelect>(form, QT_TR_NOOP("PenWidth"), m_d->width);
    addNamedRow<PenSelect>(form, QT_TR_NOOP("PenStyle"), m_d->style);
    addNamedRow<PenSelect>(form, QT_TR_NOOP("PenCapStyle"), m_d->capStyle);
    addNamedRow<PenSelect>(form, QT_TR_NOOP("PenJoinStyle"), m_d->joinStyle);
    addNamedRow<PenSelect>(form, QT_TR_NOOP("PenColor"), color);

    m_d->preview->setAlignment(Qt::AlignCenter);
    m_d->preview->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    layout->addWidget(m_d->preview);

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

void PenSelect::setPreviewBackground(const QColor &background)
{
    m_d->background = background;
    updatePreview();
}

QPen PenSelect::selectedPen() const
{
    return m_d->pen;
}

void PenSelect::widthChanged(const QString &text)
{
    bool ok = false;
    const int width = text.toInt(&ok);
    if (!ok)
        return;
    m_d->pen.setWidth(width);
    updatePreview();
}

void PenSelect::styleChanged(int style)
{
    const bool known = style >= Qt::NoPen && style <= Qt::CustomDashLine;
    m_d->pen.setStyle(known ? static_cast<Qt::PenStyle>(style) : Qt::NoPen);
    updatePreview();
}

void PenSelect::capStyleChanged(int style)
{
    const bool known = m_d->capStyle->findData(style) >= 0;
    m_d->pen.setCapStyle(known ? static_cast<Qt::PenCapStyle>(style) : Qt::FlatCap);
    updatePreview();
}

void PenSelect::joinStyleChanged(int style)
{
    const bool known = style == Qt::SvgMiterJoin || m_d->joinStyle->findData(style) >= 0;
    m_d->pen.setJoinStyle(known ? static_cast<Qt::PenJoinStyle>(style) : Qt::MiterJoin);
    updatePreview();
}

void PenSelect::openColor()
{
    if (const std::optional<QColor> color = chooseColor(m_d->pen.color(), this)) {
        m_d->pen.setColor(*color);
        updatePreview();
    }
}

void PenSelect::updatePreview()
{
    const QSize size(300, 64);
    QPixmap pixmap = previewPixmap(size, devicePixelRatioF(), m_d->background);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(m_d->pen);
    painter.drawPolyline(sampleLine(size));
    painter.end();
    m_d->preview->setPixmap(pixmap);
}
