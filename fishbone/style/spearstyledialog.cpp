// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyledialog.h>

#include <fishbone/base/dialogtexts.h>
#include <fishbone/style/colorchoice.h>
#include <fishbone/style/penselect.h>
#include <fishbone/style/previewpixmap.h>
#include <fishbone/style/textbox.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QFontMetrics>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

/// The preview text as a bone with that many characters would cut it, never through a surrogate
/// pair, and marked as cut.
QString shortened(const QString &text, int count)
{
    if (count < 1 || count >= text.length())
        return text;
    const int length = text.at(count - 1).isHighSurrogate() ? count - 1 : count;
    return text.left(length) + QLatin1String("...");
}

/// The font with the family that it is really drawn with. A font dialog starts on any family at all
/// when the one it is given is not installed, as generic ones are not.
QFont resolved(QFont font)
{
    font.setFamily(QFontInfo(font).family());
    return font;
}

} // namespace

SpearStyleDialog::SpearStyleDialog(SpearStyle &style, bool modal, QWidget *parent)
    : QDialog(parent)
    , m_style(style)
    , m_textCount(new QLineEdit(this))
    , m_inheritanceParent(new QCheckBox(this))
    , m_state(new QComboBox(this))
    , m_previewText(new QLineEdit(this))
    , m_preview(new QLabel(this))
{
    setModal(modal);
    m_style.write(m_snapshot);
    buildFields();
    buildLayout();
    updatePreview();
}

void SpearStyleDialog::buildFields()
{
    m_textCount->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("^[0-9]{1,2}$")), m_textCount));
    m_textCount->setText(QStringLiteral("%1").arg(m_style.textCount()));
    m_textCount->selectAll();
    connect(m_textCount, &QLineEdit::textChanged, this, &SpearStyleDialog::textCountChanged);

    m_inheritanceParent->setChecked(m_style.inheritanceParent());
    connect(m_inheritanceParent, &QCheckBox::toggled, this,
            &SpearStyleDialog::inheritanceParentChanged);

    m_state->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_previewText->setObjectName(QStringLiteral("PreviewText"));
    connect(m_previewText, &QLineEdit::textChanged, this, &SpearStyleDialog::updatePreview);
    followLanguage(this, [this] { showTexts(); });
    connect(m_state, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &SpearStyleDialog::updatePreview);
}

void SpearStyleDialog::showTexts()
{
    setWindowTitle(tr("Spear style"));
    m_inheritanceParent->setText(tr("InheritanceParent"));
    m_previewText->setAccessibleName(tr("Preview"));
    setItemTexts(m_state, {tr("ssNormal"), tr("ssSelected"), tr("ssHovered"), tr("ssLinked")});
    if (!m_previewText->isModified())
        m_previewText->setText(tr("Preview 预览测试 ABC xyz"));
}

void SpearStyleDialog::buildLayout()
{
    auto *const form = new QFormLayout;
    addNamedRow<SpearStyleDialog>(form, QT_TR_NOOP("textCount"), m_textCount);
    form->addRow(makeParentGroup());
    addNamedRow<SpearStyleDialog>(form, QT_TR_NOOP("SpearState"), m_state);

    // The focusable widgets are made in this order as well, which makes it the tab order.
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(makePreviewGroup(), 1);
    layout->addLayout(makeSetters());

    auto *const buttons = new QDialogButtonBox(this);
    QPushButton *const accept = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    QPushButton *const cancel = buttons->addButton(QString(), QDialogButtonBox::RejectRole);
    accept->setDefault(true);
    followLanguage(this, [accept, cancel] {
        accept->setText(tr("Accept"));
        cancel->setText(tr("Cancel"));
    });
    connect(buttons, &QDialogButtonBox::accepted, this, &SpearStyleDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SpearStyleDialog::reject);
    layout->addWidget(buttons);
}

QGroupBox *SpearStyleDialog::makeParentGroup()
{
    auto *const group = new QGroupBox(this);
    followLanguage(group, [group] { group->setTitle(tr("Parent")); });
    auto *const layout = new QVBoxLayout(group);
    layout->addWidget(m_inheritanceParent);
    return group;
}

QLayout *SpearStyleDialog::makeSetters()
{
    auto *const grid = new QGridLayout;
    const auto add = [&](const char *text, int row, int column, auto slot) {
        auto *const button = new QPushButton(this);
        followLanguage(button, [button, text] { button->setText(tr(text)); });
        connect(button, &QPushButton::clicked, this, slot);
        grid->addWidget(button, row, column);
    };
    add(QT_TR_NOOP("Set TextFont"), 0, 0, &SpearStyleDialog::openTextFont);
    add(QT_TR_NOOP("Set TextColor"), 0, 1, &SpearStyleDialog::openTextColor);
    add(QT_TR_NOOP("Set TextBkColor"), 1, 0, &SpearStyleDialog::openTextBkColor);
    add(QT_TR_NOOP("Set BroderPen"), 1, 1, &SpearStyleDialog::openBroderPen);
    return grid;
}

QGroupBox *SpearStyleDialog::makePreviewGroup()
{
    auto *const group = new QGroupBox(this);

    // Large fonts are scrolled to, so that the dialog keeps its size while one tries them.
    auto *const area = new QScrollArea(group);
    area->setWidget(m_preview);
    area->setWidgetResizable(true);
    area->setBackgroundRole(QPalette::Base);
    area->setMinimumSize(360, 120);
    followLanguage(group, [group, area] {
        group->setTitle(tr("Preview"));
        area->setAccessibleName(group->title());
    });
    m_preview->setAlignment(Qt::AlignCenter);

    auto *const layout = new QVBoxLayout(group);
    layout->addWidget(m_previewText);
    layout->addWidget(area, 1);
    return group;
}

SpearStyle::SpearState SpearStyleDialog::currentState() const
{
    return static_cast<SpearStyle::SpearState>(m_state->currentIndex());
}

QFont SpearStyleDialog::currentFont() const
{
    const QFont *const font = m_style.textFont(currentState());
    return font ? *font : QFont();
}

QPen SpearStyleDialog::currentPen() const
{
    const QPen *const pen = m_style.broderPen(currentState());
    return pen ? *pen : QPen();
}

void SpearStyleDialog::openTextFont()
{
    auto *const dialog = new QFontDialog(resolved(currentFont()), this);
    const QFont shown = dialog->currentFont(); // not always the one it was given
    const std::optional<QFont> font = modalAnswer(dialog, &QFontDialog::selectedFont);
    if (!font || *font == shown)
        return;
    m_style.setTextFont(currentState(), *font);
    updatePreview();
}

void SpearStyleDialog::openTextColor()
{
    if (const std::optional<QColor> color = chooseColor(m_style.textColor(currentState()), this)) {
        m_style.setTextColor(currentState(), *color);
        updatePreview();
    }
}

void SpearStyleDialog::openTextBkColor()
{
    if (const std::optional<QColor> color =
            chooseColor(m_style.textBkColor(currentState()), this)) {
        m_style.setTextBkColor(currentState(), *color);
        updatePreview();
    }
}

void SpearStyleDialog::openBroderPen()
{
    auto *const dialog = new PenSelect(currentPen(), this);
    if (const std::optional<QPen> pen = modalAnswer(dialog, &PenSelect::selectedPen)) {
        m_style.setBroderPen(currentState(), *pen);
        updatePreview();
    }
}

void SpearStyleDialog::textCountChanged(const QString &text)
{
    bool ok = false;
    const int count = text.toInt(&ok);
    if (!ok)
        return;
    m_style.setTextCount(count);
    updatePreview();
}

void SpearStyleDialog::inheritanceParentChanged(bool inherit)
{
    m_style.setInheritanceParent(inherit);
    updatePreview();
}

void SpearStyleDialog::updatePreview()
{
    m_preview->setPixmap(drawPreview(shortened(m_previewText->text(), m_style.textCount())));
}

QPixmap SpearStyleDialog::drawPreview(const QString &text) const
{
    const QFont font = currentFont();
    const QPen pen = currentPen();
    const QColor textColor = m_style.textColor(currentState());
    const QColor background = m_style.textBkColor(currentState());

    const int padding = 4;
    const int margin = padding;
    const QFontMetrics metrics(font);
    const QRect box(margin, margin, metrics.horizontalAdvance(text) + 2 * padding,
                    metrics.height() + 2 * padding);
    // A long text in a large font must not take up more memory than a screen can show.
    const QSize size = (box.size() + QSize(2 * margin, 2 * margin)).boundedTo(QSize(2400, 800));

    QPixmap pixmap = previewPixmap(size, devicePixelRatioF());
    QPainter painter(&pixmap);
    paintTextBox(painter, box, box, background, pen);
    painter.setFont(font);
    painter.setPen(textColor); // black when invalid
    painter.drawText(box, Qt::AlignCenter | Qt::TextSingleLine, text);
    painter.end();
    return pixmap;
}

void SpearStyleDialog::reject()
{
    m_style.read(m_snapshot);
    QDialog::reject();
}
