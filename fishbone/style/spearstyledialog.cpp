// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/style/spearstyledialog.h>

#include <fishbone/base/dialogtexts.h>
#include <fishbone/style/colorchoice.h>
#include <fishbone/style/penselect.h>
#include <fishbone/style/stylepreview.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

/**
 * The font with the family that it is really drawn with. A font dialog starts on any family at all
 * when the one it is given is not installed, as generic ones are not.
 */
QFont resolved(QFont font)
{
    font.setFamily(QFontInfo(font).family());
    return font;
}

} // namespace

/** The state of a dialog; it owns the widgets as their parent. */
struct FISHBONE_NO_EXPORT SpearStyleDialog::Private
{
    Q_DISABLE_COPY(Private)

    Private(SpearStyle &edited, SpearStyleDialog *dialog)
        : style(edited)
        , textCount(new QLineEdit(dialog))
        , inheritanceParent(new QCheckBox(dialog))
        , state(new QComboBox(dialog))
        , previewText(new QLineEdit(dialog))
        , preview(new QLabel(dialog))
    {
    }

    SpearStyle &style;
    QJsonObject snapshot;          ///< the values when the dialog was made
    QColor background = Qt::white; ///< of the preview
    QLineEdit *const textCount;
    QCheckBox *const inheritanceParent;
    QComboBox *const state;
    QLineEdit *const previewText;
    QLabel *const preview;
};

SpearStyleDialog::SpearStyleDialog(SpearStyle &style, bool modal, QWidget *parent)
    : QDialog(parent)
    , m_d(std::make_unique<Private>(style, this))
{
    setModal(modal);
    m_d->style.write(m_d->snapshot);
    buildFields();
    buildLayout();
    updatePreview();
}

SpearStyleDialog::~SpearStyleDialog() = default;

void SpearStyleDialog::setInheritanceOffered(bool offered, const QString &toolTip)
{
    m_d->inheritanceParent->parentWidget()->setVisible(offered); // with its frame
    m_d->inheritanceParent->setToolTip(toolTip);
}

void SpearStyleDialog::setPreviewBackground(const QColor &background)
{
    m_d->background = background;
    updatePreview();
}

void SpearStyleDialog::buildFields()
{
    m_d->textCount->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("^[0-9]{1,2}$")), m_d->textCount));
    m_d->textCount->setText(QStringLiteral("%1").arg(m_d->style.textCount()));
    m_d->textCount->selectAll();
    connect(m_d->textCount, &QLineEdit::textChanged, this, &SpearStyleDialog::textCountChanged);

    m_d->inheritanceParent->setChecked(m_d->style.inheritanceParent());
    connect(m_d->inheritanceParent, &QCheckBox::toggled, this,
            &SpearStyleDialog::inheritanceParentChanged);

    m_d->state->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_d->previewText->setObjectName(QStringLiteral("PreviewText"));
    connect(m_d->previewText, &QLineEdit::textChanged, this, &SpearStyleDialog::updatePreview);
    followLanguage(this, [this] { showTexts(); });
    connect(m_d->state, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &SpearStyleDialog::updatePreview);
}

void SpearStyleDialog::showTexts()
{
    setWindowTitle(tr("Spear style"));
    m_d->inheritanceParent->setText(tr("InheritanceParent"));
    m_d->previewText->setAccessibleName(tr("Preview"));
    setItemTexts(m_d->state, {tr("ssNormal"), tr("ssSelected"), tr("ssHovered"), tr("ssLinked")});
    if (!m_d->previewText->isModified())
        m_d->previewText->setText(tr("Preview 预览测试 ABC xyz"));
}

void SpearStyleDialog::buildLayout()
{
    auto *const form = new QFormLayout;
    addNamedRow<SpearStyleDialog>(form, QT_TR_NOOP("textCount"), m_d->textCount);
    form->addRow(makeParentGroup());
    addNamedRow<SpearStyleDialog>(form, QT_TR_NOOP("SpearState"), m_d->state);

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
    layout->addWidget(m_d->inheritanceParent);
    return group;
}

QLayout *SpearStyleDialog::makeSetters()
{
    auto *const grid = new QGridLayout;
    const auto add = [&](const char *text, int row, int column, auto slot) {
        auto *const button = new QPushButton(this);
        button->setObjectName(QLatin1String(text));
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
    area->setWidget(m_d->preview);
    area->setWidgetResizable(true);
    area->setBackgroundRole(QPalette::Base);
    area->setMinimumSize(360, 120);
    followLanguage(group, [group, area] {
        group->setTitle(tr("Preview"));
        area->setAccessibleName(group->title());
    });
    m_d->preview->setAlignment(Qt::AlignCenter);

    auto *const layout = new QVBoxLayout(group);
    layout->addWidget(m_d->previewText);
    layout->addWidget(area, 1);
    return group;
}

SpearStyle::SpearState SpearStyleDialog::currentState() const
{
    return static_cast<SpearStyle::SpearState>(m_d->state->currentIndex());
}

QFont SpearStyleDialog::currentFont() const
{
    const QFont *const font = m_d->style.textFont(currentState());
    return font ? *font : QFont();
}

QPen SpearStyleDialog::currentPen() const
{
    const QPen *const pen = m_d->style.broderPen(currentState());
    return pen ? *pen : QPen();
}

void SpearStyleDialog::openTextFont()
{
    auto *const dialog = new QFontDialog(resolved(currentFont()), this);
    const QFont shown = dialog->currentFont(); // not always the one it was given
    const std::optional<QFont> font = modalAnswer(dialog, &QFontDialog::selectedFont);
    if (!font || *font == shown)
        return;
    m_d->style.setTextFont(currentState(), *font);
    updatePreview();
}

void SpearStyleDialog::openTextColor()
{
    if (const std::optional<QColor> color =
            chooseColor(m_d->style.textColor(currentState()), this)) {
        m_d->style.setTextColor(currentState(), *color);
        updatePreview();
    }
}

void SpearStyleDialog::openTextBkColor()
{
    if (const std::optional<QColor> color =
            chooseColor(m_d->style.textBkColor(currentState()), this)) {
        m_d->style.setTextBkColor(currentState(), *color);
        updatePreview();
    }
}

void SpearStyleDialog::openBroderPen()
{
    auto *const dialog = new PenSelect(currentPen(), this);
    dialog->setPreviewBackground(m_d->background);
    if (const std::optional<QPen> pen = modalAnswer(dialog, &PenSelect::selectedPen)) {
        m_d->style.setBroderPen(currentState(), *pen);
        updatePreview();
    }
}

void SpearStyleDialog::textCountChanged(const QString &text)
{
    bool ok = false;
    const int count = text.toInt(&ok);
    if (!ok)
        return;
    m_d->style.setTextCount(count);
    updatePreview();
}

void SpearStyleDialog::inheritanceParentChanged(bool inherit)
{
    m_d->style.setInheritanceParent(inherit);
    updatePreview();
}

void SpearStyleDialog::updatePreview()
{
    m_d->preview->setPixmap(stylePreview(m_d->style, currentState(), m_d->previewText->text(),
                                         m_d->background, devicePixelRatioF()));
}

void SpearStyleDialog::reject()
{
    m_d->style.read(m_d->snapshot);
    QDialog::reject();
}
