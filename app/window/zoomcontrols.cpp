// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/window/zoomcontrols.h>

#include <app/common/language.h>

#include <fishbone/editor/fisheditor.h>

#include <QHBoxLayout>
#include <QLocale>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

#include <cmath>

ZoomControls::ZoomControls(FishEditor *editor, QWidget *parent)
    : QWidget(parent)
    , m_zoom(new QSlider(Qt::Horizontal, this))
    , m_percentage(new QToolButton(this))
    , m_rotation(new QSpinBox(this))
{
    m_zoom->setObjectName(QStringLiteral("zoom"));
    m_zoom->setRange(minimum, maximum);
    m_zoom->setPageStep(50);
    m_zoom->setSingleStep(5);
    m_zoom->setFixedWidth(160);
    m_percentage->setObjectName(QStringLiteral("percentage"));
    m_percentage->setAutoRaise(true);
    m_percentage->setMinimumWidth(
        m_percentage->fontMetrics().horizontalAdvance(percentage(maximum)) + 16);
    m_rotation->setObjectName(QStringLiteral("rotation"));
    m_rotation->setRange(-180, 180);
    m_rotation->setSingleStep(5);
    m_rotation->setWrapping(true);
    m_rotation->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_rotation->setSuffix(QStringLiteral("°"));

    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(m_rotation);
    layout->addWidget(m_zoom);
    layout->addWidget(m_percentage);

    connect(m_zoom, &QSlider::valueChanged, this, &ZoomControls::applyZoom);
    connect(m_percentage, &QToolButton::clicked, this, [this] { m_editor->fullSize(); });
    connect(m_rotation, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int degrees) { m_editor->rotateFish(degrees); });
    setEditor(editor);
    Language::bind(this, [this] { showTexts(); });
}

void ZoomControls::showTexts()
{
    m_zoom->setToolTip(tr("Zoom"));
    m_zoom->setAccessibleName(m_zoom->toolTip());
    m_percentage->setToolTip(tr("Show at 100 %"));
    showZoom(m_editor->zoomValue());
    m_rotation->setToolTip(tr("Rotation"));
    m_rotation->setAccessibleName(m_rotation->toolTip());
}

void ZoomControls::setEditor(FishEditor *editor)
{
    if (m_editor)
        m_editor->disconnect(this);
    m_editor = editor;
    connect(editor, &FishEditor::zoomValueChanged, this, &ZoomControls::applyZoom);
    connect(editor, &FishEditor::rotateValueChanged, this, &ZoomControls::showRotation);
    showZoom(editor->zoomValue());
    showRotation(editor->rotateValue());
}

QString ZoomControls::percentage(int zoomValue)
{
    const double factor = std::pow(2.0, (zoomValue - 250) / 50.0);
    return QStringLiteral("%1 %").arg(
        QLocale().toString(factor * 100, 'f', factor < 0.095 ? 1 : 0));
}

void ZoomControls::applyZoom(int value)
{
    const int reachable = qBound(minimum, value, maximum);
    m_editor->zoomFish(reachable);
    showZoom(reachable);
}

void ZoomControls::showZoom(int value)
{
    const QSignalBlocker blocker(m_zoom);
    m_zoom->setValue(value);
    m_percentage->setText(percentage(value));
}

void ZoomControls::setRotation(int degrees)
{
    const int turned = ((degrees % 360) + 360) % 360;
    m_rotation->setValue(turned > 180 ? turned - 360 : turned);
}

void ZoomControls::showRotation(int degrees)
{
    const QSignalBlocker blocker(m_rotation);
    m_rotation->setValue(degrees);
}
