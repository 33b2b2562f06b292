// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/templategallery.h>

#include <app/common/plainbox.h>
#include <app/recovery/documentpicture.h>

#include <fishbone/model/treeitem.h>

#include <QDialogButtonBox>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

TemplateGallery::TemplateGallery(QWidget *parent)
    : QDialog(parent)
    , m_list(new QListWidget(this))
{
    constexpr QSize pictureSize(210, 120);
    constexpr QSize cellSize(230, 156);
    setObjectName(QStringLiteral("templateGallery"));
    setWindowTitle(tr("New from template"));
    m_list->setObjectName(QStringLiteral("templateList"));
    m_list->setAccessibleName(tr("Templates"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setMovement(QListView::Static);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setIconSize(pictureSize);
    m_list->setGridSize(cellSize);
    m_list->setWordWrap(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    addButtons();
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    connect(m_list, &QListWidget::currentRowChanged, this, &TemplateGallery::updateButtons);
    list();
    m_list->setFocus();
    constexpr int columns = 4;
    constexpr int rows = 2;
    constexpr int margins = 50; // with the scroll bar
    resize(columns * cellSize.width() + margins, rows * cellSize.height() + 2 * margins);
}

void TemplateGallery::addButtons()
{
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_create = buttons->addButton(tr("C&reate"), QDialogButtonBox::AcceptRole);
    m_create->setObjectName(QStringLiteral("templateCreate"));
    m_create->setDefault(true);
    QPushButton *const file = buttons->addButton(tr("From a &file…"), QDialogButtonBox::ActionRole);
    file->setObjectName(QStringLiteral("templateFile"));
    m_remove = buttons->addButton(tr("&Delete"), QDialogButtonBox::DestructiveRole);
    m_remove->setObjectName(QStringLiteral("templateDelete"));
    layout()->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_remove, &QPushButton::clicked, this, &TemplateGallery::removeChosen);
    connect(file, &QPushButton::clicked, this, [this] {
        m_wantsFile = true;
        accept();
    });
}

/** Shows all templates, the first one chosen. */
void TemplateGallery::list()
{
    m_list->clear();
    m_templates = Templates::all();
    for (const Templates::Template &each : qAsConst(m_templates)) {
        const auto diagram = Templates::diagram(each);
        const QPixmap picture =
            diagram ? DocumentPicture::of(*diagram, m_list->iconSize()) : QPixmap();
        auto *const item = new QListWidgetItem(QIcon(picture), each.name, m_list);
        item->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
        item->setToolTip(each.name);
    }
    m_list->setCurrentRow(0);
}

void TemplateGallery::updateButtons()
{
    m_create->setEnabled(m_list->currentRow() >= 0);
    m_remove->setEnabled(chosen().isOwn);
}

Templates::Template TemplateGallery::chosen() const
{
    return m_templates.value(m_list->currentRow());
}

void TemplateGallery::removeChosen()
{
    const Templates::Template unwanted = chosen();
    if (unwanted.isOwn &&
        PlainBox::ask(this, windowTitle(), tr("Delete the template %1?").arg(unwanted.name)) &&
        QFile::remove(unwanted.path))
        list();
}
