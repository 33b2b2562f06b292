// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/spearcompanions.h>

#include <memory>
#include <optional>
#include <utility>

#include <fishbone/base/prefetch.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/spearlook.h>
#include <fishbone/items/spearparts.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/treeitem.h>

SpearCompanions::SpearCompanions(SpearItem &spear)
    : m_spear(spear)
{
}

void SpearCompanions::make()
{
    m_text = std::make_unique<TextItem>(QString(), &m_spear).release();
}

TaskStatusItem *SpearCompanions::status()
{
    if (!m_status)
        makeStatus();
    return m_status;
}

void SpearCompanions::makeStatus()
{
    m_status = std::make_unique<TaskStatusItem>(&m_spear, tsUnknown, 0).release();
    m_status->setTask(m_taskStatus, m_taskProgress);
    // Right above the text, whatever came meanwhile, since that is how a drawing made anew has it.
    if (m_text && m_spear.childItems().size() > 2) {
        m_status->stackBefore(m_text);
        m_text->stackBefore(m_status);
    }
    if (!m_isPlaced)
        return;
    if (m_spear.look().scalesIcons())
        scaleIcon(m_status);
    placeStatus();
}

void SpearCompanions::replace(QGraphicsItem *&companion, QGraphicsItem *item)
{
    if (item == companion)
        return;
    const std::unique_ptr<QGraphicsItem> replaced(companion);
    companion = item;
    if (item)
        item->setParentItem(&m_spear);
}

void SpearCompanions::setLink(QGraphicsItem *item)
{
    replace(m_link, item);
    if (m_link)
        m_link->setPos(m_spear.linkBuddyPosition());
}

void SpearCompanions::setButton(QGraphicsItem *item)
{
    replace(m_button, item);
    m_isButtonHidden = false;
    if (m_button)
        m_button->setPos(m_spear.expandBuddyPosition());
}

void SpearCompanions::forget(const QGraphicsItem *item)
{
    if (item == m_link)
        m_link = nullptr;
    if (item == m_button)
        m_button = nullptr;
}

void SpearCompanions::setStatus(int status)
{
    TreeItem *const subject = m_spear.treeItem();
    if (!subject)
        return;
    subject->setStatus(status);
    this->status()->setStatus(static_cast<TaskStatus>(status));
    m_spear.updatePosition(QPointF(0, 0));
}

void SpearCompanions::updateStatus()
{
    const TreeItem *const subject = m_spear.treeItem();
    if (!subject)
        return;
    const int number = subject->status();
    const int progress = subject->progress();
    if (m_status) {
        m_status->setTask(number, progress);
    } else if (number != m_taskStatus || progress != m_taskProgress) {
        m_taskStatus = number;
        m_taskProgress = progress;
        if (!TaskStatusInfo(static_cast<TaskStatus>(number), progress).iconPath().isEmpty())
            makeStatus();
    }
}

void SpearCompanions::updateLink()
{
    const TreeItem *const subject = m_spear.treeItem();
    auto *const link = qgraphicsitem_cast<LinkItem *>(m_link);
    if (subject && link && link->leadsTo(subject->url()))
        link->updateSvgIcon();
    else if (!subject || subject->url().isEmpty())
        setLink(nullptr);
    else
        showLink(subject->url());
}

void SpearCompanions::showLink(const QString &url)
{
    setLink(std::make_unique<LinkItem>(url).release());
}

void SpearCompanions::updateButton()
{
    if (auto *const button = qgraphicsitem_cast<ExpandItem *>(m_button))
        button->updateSvgIcon();
    else
        setButton(std::make_unique<ExpandItem>(&m_spear).release());
}

void SpearCompanions::showButton()
{
    if (m_button && m_spear.look().showsButton(m_spear) == m_isButtonHidden) {
        m_isButtonHidden = !m_isButtonHidden;
        m_button->setVisible(!m_isButtonHidden);
    }
}

void SpearCompanions::place()
{
    m_isPlaced = true;
    placeText();
    if (m_spear.look().scalesIcons())
        scaleIcons();
    if (m_link)
        m_link->setPos(m_spear.linkBuddyPosition());
    if (m_button)
        m_button->setPos(m_spear.expandBuddyPosition());
    showButton();
    placeStatus();
}

void SpearCompanions::placeText()
{
    const QPointF position = m_spear.textBuddyPosition();
    if (m_text->pos() == position)
        return;
    // The bounding rectangle covers the text box of a horizontal bone.
    SpearParts::geometryChanges(m_spear);
    m_text->setPos(position);
}

void SpearCompanions::placeStatus()
{
    if (!m_status)
        return;
    if (!m_spear.look().showsStatus(m_spear)) {
        m_hasHiddenStatus = m_hasHiddenStatus || m_status->isVisible();
        m_status->setVisible(false);
        return;
    }
    // Otherwise left as it is: a host may have hidden it.
    if (std::exchange(m_hasHiddenStatus, false))
        m_status->setVisible(true);
    m_status->setPos(m_spear.TaskStateItemPosition());
}

void SpearCompanions::turnText()
{
    // Compared first: setting the rotation that is there already would schedule a repaint.
    const std::optional<double> rotation = m_spear.look().textRotation(m_spear);
    if (rotation && !qFuzzyCompare(m_text->rotation() + 1, *rotation + 1))
        m_text->setRotation(*rotation);
}

void SpearCompanions::scaleIcons()
{
    if (m_status)
        scaleIcon(m_status);
    if (m_link)
        scaleIcon(m_link);
}

void SpearCompanions::scaleIcon(QGraphicsItem *icon)
{
    // Compared first: the scale that is there already would schedule a repaint.
    const double scale = m_spear.look().iconScale(*icon);
    if (icon->scale() != scale)
        icon->setScale(scale);
}

void SpearCompanions::boxesChange()
{
    m_text->boxChanges();
    if (auto *const button = qgraphicsitem_cast<ExpandItem *>(m_button))
        button->boxChanges();
}

void SpearCompanions::prefetchAll() const
{
    prefetchText();
    prefetch(m_status, int(sizeof(TaskStatusItem)));
    prefetch(m_link, int(sizeof(LinkItem)));
    prefetch(m_button, int(sizeof(ExpandItem)));
}

void SpearCompanions::prefetchInsides() const
{
    m_text->prefetchInsides();
    if (m_status)
        m_status->prefetchInsides();
    if (const auto *const link = qgraphicsitem_cast<LinkItem *>(m_link))
        link->prefetchInsides();
    if (const auto *const button = qgraphicsitem_cast<ExpandItem *>(m_button))
        button->prefetchInsides();
}

void SpearCompanions::prefetchListeners() const
{
    m_text->prefetchListeners();
    if (m_status)
        m_status->prefetchListeners();
    if (const auto *const link = qgraphicsitem_cast<LinkItem *>(m_link))
        link->prefetchListeners();
    if (const auto *const button = qgraphicsitem_cast<ExpandItem *>(m_button))
        button->prefetchListeners();
}

void SpearCompanions::prefetchText() const
{
    prefetch(m_text, int(sizeof(TextItem)));
}
