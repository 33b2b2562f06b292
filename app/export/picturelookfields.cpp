// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/export/picturelookfields.h>

#include <app/common/actionset.h>
#include <app/diagram/palettes.h>
#include <fishbone/drawing/lookinfo.h>
#include <fishbone/exchange/pagesize.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QSettings>

namespace {

QString picturePageKey()
{
    return QStringLiteral("export/page");
}

QString pictureLegendKey()
{
    return QStringLiteral("export/legend");
}

QComboBox *lookBox(const char *name, QWidget *parent)
{
    auto *const made = new QComboBox(parent);
    made->setObjectName(QLatin1String(name));
    return made;
}

/** Chooses the entry of @p box that stands for @p value, the first one when there is none. */
void chooseData(QComboBox *box, const QVariant &value)
{
    box->setCurrentIndex(qMax(box->findData(value), 0));
}

} // namespace

PictureLookFields::PictureLookFields(QFormLayout *layout, const DiagramView &shown, QWidget *parent)
    : QObject(parent)
    , m_shown(shown)
    , m_look(lookBox("look", parent))
    , m_page(lookBox("page", parent))
    , m_palette(lookBox("palette", parent))
    , m_head(lookBox("head", parent))
    , m_legend(new QCheckBox(tr("Le&gend"), parent))
{
    for (const LookInfo &look : LookInfo::all())
        m_look->addItem(ActionSet::plainText(look.title()), int(look.kind()));
    chooseData(m_look, int(shown.look));
    layout->addRow(tr("Loo&k:"), m_look);
    addPages(layout);
    addColours(layout);
    const QSettings settings;
    chooseData(m_page, settings.value(picturePageKey()));
    m_legend->setChecked(settings.value(pictureLegendKey(), true).toBool());
    for (QComboBox *field : {m_look, m_page, m_palette, m_head})
        connect(field, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &PictureLookFields::follow);
    connect(m_legend, &QCheckBox::toggled, this, &PictureLookFields::follow);
    follow();
}

void PictureLookFields::addPages(QFormLayout *layout)
{
    m_page->addItem(tr("As on the screen"), QString());
    const QStringList names = PageSize::names();
    for (const QString &name : names)
        m_page->addItem(name, name);
    layout->addRow(tr("&Page:"), m_page);
}

void PictureLookFields::addColours(QFormLayout *layout)
{
    for (const Palettes::Entry &entry : Palettes::all())
        m_palette->addItem(entry.name(), int(entry.palette));
    chooseData(m_palette, int(m_shown.options.palette));
    m_head->addItem(tr("On the right"), false);
    m_head->addItem(tr("On the left"), true);
    chooseData(m_head, m_shown.options.isHeadLeft);
    m_legend->setObjectName(QStringLiteral("legend"));
    layout->addRow(tr("Pale&tte:"), m_palette);
    layout->addRow(tr("Hea&d:"), m_head);
    layout->addRow(QString(), m_legend);
}

DiagramView PictureLookFields::view() const
{
    DiagramView view = m_shown;
    view.look = DiagramLook::Kind(m_look->currentData().toInt());
    view.page.clear();
    if (view.look != DiagramLook::Clear)
        return view;
    view.page = m_page->currentData().toString();
    view.options.palette = DiagramLook::Palette(m_palette->currentData().toInt());
    view.options.isHeadLeft = m_head->currentData().toBool();
    view.options.hasLegend = m_legend->isChecked();
    return view;
}

void PictureLookFields::remember() const
{
    QSettings settings;
    settings.setValue(picturePageKey(), m_page->currentData());
    settings.setValue(pictureLegendKey(), m_legend->isChecked());
}

/** Only the clear look has something to choose. */
void PictureLookFields::follow()
{
    const bool isClear = m_look->currentData() == int(DiagramLook::Clear);
    for (QWidget *field : QList<QWidget *>{m_page, m_palette, m_head, m_legend})
        field->setEnabled(isClear);
    Q_EMIT changed();
}
