// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/picturelevelfields.h>

#include <app/diagram/expansion.h>

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSettings>
#include <QSpinBox>
#include <QWidget>

namespace {

/** What the bones are expanded to. */
enum class Expanded {
    AsShown,
    All,
    Levels,
};

QString expandedKey()
{
    return QStringLiteral("export/expanded");
}

QString levelsKey()
{
    return QStringLiteral("export/levels");
}

} // namespace

PictureLevelFields::PictureLevelFields(QFormLayout *layout, int depth, QWidget *parent)
    : QObject(parent)
    , m_expansion(new QComboBox(parent))
    , m_levels(new QSpinBox(parent))
{
    const QSettings settings;
    m_expansion->setObjectName(QStringLiteral("expansion"));
    m_expansion->addItem(tr("As shown"), int(Expanded::AsShown));
    m_expansion->addItem(tr("All levels"), int(Expanded::All));
    m_expansion->addItem(tr("Levels below the main bones:"), int(Expanded::Levels));
    m_expansion->setCurrentIndex(qMax(m_expansion->findData(settings.value(expandedKey())), 0));
    m_levels->setObjectName(QStringLiteral("levels"));
    m_levels->setAccessibleName(tr("Levels below the main bones"));
    m_levels->setRange(0, depth);
    m_levels->setValue(settings.value(levelsKey(), 1).toInt());
    connect(m_expansion, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &PictureLevelFields::follow);
    connect(m_levels, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &PictureLevelFields::follow);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_expansion, 1);
    row->addWidget(m_levels);
    auto *const label = new QLabel(tr("&Expanded:"), parent);
    label->setBuddy(m_expansion); // a row finds one by itself only for a widget
    layout->addRow(label, row);
    follow();
}

std::optional<int> PictureLevelFields::levels() const
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

void PictureLevelFields::remember() const
{
    QSettings settings;
    settings.setValue(expandedKey(), m_expansion->currentData());
    if (m_levels->isEnabled())
        settings.setValue(levelsKey(), m_levels->value());
}

void PictureLevelFields::follow()
{
    m_levels->setEnabled(m_expansion->currentData() == int(Expanded::Levels));
    Q_EMIT changed();
}
