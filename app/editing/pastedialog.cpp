// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/editing/pastedialog.h>

#include <fishbone/model/treeitem.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>

#include <utility>
#include <vector>

namespace {

constexpr int shownSubjects = 1000; ///< of a preview; nobody looks at more

/** Adds the titles of what is below @p branches. */
void addTitles(const TreeItem &branches, QTreeWidgetItem *root)
{
    int count = 0;
    std::vector<std::pair<const TreeItem *, QTreeWidgetItem *>> waiting{{&branches, root}};
    for (std::size_t i = 0; i < waiting.size() && count < shownSubjects; ++i) {
        const auto [subject, parent] = waiting[i];
        for (const TreeItem *child : subject->childItems()) {
            auto *const item = new QTreeWidgetItem(parent, {child->title(), child->detail()});
            item->setExpanded(true);
            waiting.emplace_back(child, item);
            ++count;
        }
    }
}

} // namespace

PasteDialog::PasteDialog(const QString &text, QWidget *parent)
    : QDialog(parent)
    , m_text(text)
    , m_kind(new QComboBox(this))
    , m_preview(new QTreeWidget(this))
{
    setWindowTitle(tr("Paste"));
    setObjectName(QStringLiteral("pasteDialog"));
    m_kind->setObjectName(QStringLiteral("pasteKind"));
    m_preview->setObjectName(QStringLiteral("pastePreview"));
    m_kind->addItem(tr("Lines"), int(PastedNotes::Kind::Notes));
    m_kind->addItem(tr("Lines with links and emphasis"), int(PastedNotes::Kind::Markdown));
    m_kind->addItem(tr("Rows of a table"), int(PastedNotes::Kind::Table));
    m_kind->setCurrentIndex(qMax(m_kind->findData(int(PastedNotes::kindOf(text))), 0));
    m_preview->setHeaderLabels({tr("Title"), tr("Details")});
    m_preview->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Paste"));
    auto *const layout = new QFormLayout(this);
    layout->addRow(tr("&Read as:"), m_kind);
    layout->addRow(m_preview);
    layout->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_kind, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &PasteDialog::showPreview);
    showPreview();
}

PastedNotes::Kind PasteDialog::kind() const
{
    return PastedNotes::Kind(m_kind->currentData().toInt());
}

void PasteDialog::showPreview()
{
    m_preview->clear();
    QString reason;
    const auto branches = PastedNotes::read(m_text, kind(), &reason);
    if (branches)
        addTitles(*branches, m_preview->invisibleRootItem());
    else
        new QTreeWidgetItem(m_preview->invisibleRootItem(), {reason});
}
