// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsTextItem>
#include <QHash>
#include <QLineF>
#include <QSet>
#include <QSvgRenderer>
#include <QTextDocument>

#include <cmath>
#include <vector>

#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/svgitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/fishmodel.h>
#include <fishbone/model/treeitem.h>

/**
 * Where every bone of a diagram has to be, computed from the tree of subjects and the formulas
 * alone: nothing is asked of a spear. The global style has to be a fresh one.
 */
class ReferenceLayout
{
public:
    struct Bone
    {
        const TreeItem *subject = nullptr;
        int parent = -1; ///< number of the parent bone; -1 for the head
        int level = 0;   ///< 0 for the head, 1 for main bones
        int row = 0;
        int direction = 0;
        bool isExpanded = false;
        bool isVisible = true;
        QSizeF text;
        double width = 0;
        double height = 0;
        double offset = 0;
        QLineF line;
    };

    /**
     * @p shown are the subjects below @p root that have a spear; @p expanded those whose children
     * are visible. The root counts as both.
     */
    ReferenceLayout(const FishModel &model, const TreeItem *root,
                    const QSet<const TreeItem *> &shown, const QSet<const TreeItem *> &expanded)
    {
        collect(root, shown, expanded);
        measureTexts(model);
        computeDirections();
        computeSizes();
        computePositions();
    }

    const std::vector<Bone> &bones() const { return m_bones; }

    /** The first thing that the drawing has different; empty when there is none. */
    QString differenceTo(const SpearItem *head) const
    {
        if (m_bones.front().subject->spear() != head)
            return QStringLiteral("the root has another spear");
        for (const Bone &bone : m_bones) {
            const QString difference = differenceOf(bone);
            if (!difference.isEmpty())
                return bone.subject->title() + QStringLiteral(": ") + difference;
        }
        return {};
    }

private:
    static constexpr double s = -1; ///< the side to which everything grows
    static double degrees(double angle) { return angle * M_PI / 180; }

    void collect(const TreeItem *root, const QSet<const TreeItem *> &shown,
                 const QSet<const TreeItem *> &expanded)
    {
        Bone head;
        head.subject = root;
        head.isExpanded = true;
        m_bones.push_back(head);
        for (std::size_t i = 0; i < m_bones.size(); ++i) {
            const Bone parent = m_bones[i];
            int row = 0;
            for (const TreeItem *subject : parent.subject->children()) {
                if (!shown.contains(subject)) {
                    m_absent.insert(subject);
                    continue;
                }
                Bone bone;
                bone.subject = subject;
                bone.parent = int(i);
                bone.level = parent.level + 1;
                bone.row = row++;
                bone.isExpanded = expanded.contains(subject);
                bone.isVisible = parent.isVisible && parent.isExpanded;
                m_bones.push_back(bone);
            }
        }
    }

    void measureTexts(const FishModel &model)
    {
        QHash<QString, QSizeF> known;
        for (Bone &bone : m_bones) {
            const QString full = model.indexFromItem(bone.subject).data().toString();
            const QString shown = full.length() > 6 ? full.left(6) : full;
            auto size = known.constFind(shown);
            if (size == known.constEnd()) {
                QGraphicsTextItem probe(shown);
                probe.setFont(QFont());
                size = known.insert(shown, probe.document()->size());
            }
            bone.text = size.value();
        }
    }

    void computeDirections()
    {
        for (Bone &bone : m_bones) {
            if (bone.parent < 0 || bone.level % 2 == 0)
                bone.direction = 0;
            else if (bone.level == 1)
                bone.direction = bone.row % 2 == 0 ? 1 : -1;
            else
                bone.direction = at(at(bone.parent).parent).direction;
        }
    }

    void computeSizes()
    {
        for (std::size_t i = m_bones.size(); i-- > 0;) {
            Bone &bone = m_bones[i];
            std::vector<QSizeF> children;
            for (std::size_t j = i + 1; j < m_bones.size() && bone.isExpanded; ++j) {
                if (m_bones[j].parent == int(i))
                    children.push_back({m_bones[j].width, m_bones[j].height});
            }
            double widest = 0, tallest = 0, sum = 0;
            const std::size_t sides = bone.parent < 0 ? 2 : 1;
            double sideSums[2] = {0, 0};
            for (std::size_t j = 0; j < children.size(); ++j) {
                widest = std::fmax(widest, children[j].width());
                tallest = std::fmax(tallest, children[j].height());
                sum += children[j].height();
                sideSums[j % sides] += children[j].width();
            }
            const double w = bone.text.width();
            const double h = bone.text.height();
            if (bone.direction != 0) {
                bone.width = h + w * std::cos(degrees(70)) + widest;
                bone.height = std::fmax(sum, w) + 30;
            } else {
                bone.width = w + std::fmax(sideSums[0], sideSums[1]);
                const bool belowOne = bone.parent >= 0 && at(bone.parent).direction == 1;
                bone.height = belowOne ? h + 20 + tallest : std::fmax(tallest, h + 20);
            }
        }
    }

    void computePositions()
    {
        m_bones.front().line = QLineF(0, 0, s * m_bones.front().width, 0);
        for (std::size_t i = 0; i < m_bones.size(); ++i) {
            const Bone parent = m_bones[i];
            double along = 30;
            double slots[2] = {30, 60};
            int number = 0;
            for (std::size_t j = i + 1; j < m_bones.size(); ++j) {
                if (m_bones[j].parent != int(i))
                    continue;
                Bone &bone = m_bones[j];
                if (parent.direction != 0) {
                    bone.offset = along;
                    along += bone.height;
                } else {
                    double &slot = slots[parent.parent < 0 ? number % 2 : 0];
                    bone.offset = slot;
                    if (parent.parent >= 0 && bone.direction == -1)
                        bone.offset += parent.text.width() + 10;
                    slot += std::fmax(30, bone.width);
                }
                bone.line = lineOf(bone, parent);
                ++number;
            }
        }
    }

    static QLineF lineOf(const Bone &bone, const Bone &parent)
    {
        const QLineF above = parent.line;
        const double length = std::hypot(above.dx(), above.dy());
        if (bone.direction == 0) {
            const double angle = std::acos(above.dx() / length);
            const QPointF start(above.x1() + bone.offset * std::cos(angle),
                                above.y1() + parent.direction * bone.offset * std::sin(angle));
            return {start, QPointF(start.x() + s * bone.width, start.y())};
        }
        double y = above.y1();
        if (parent.parent < 0) {
            const double wedge = std::fmin(std::atan(5 / length), 0.002181661564992912);
            y += bone.direction * (length - bone.offset) * std::tan(wedge);
        }
        const QPointF start(above.x1() + s * bone.offset, y);
        return {start, QPointF(start.x() + s * std::cos(degrees(70)) * bone.height,
                               start.y() + bone.direction * std::sin(degrees(70)) * bone.height)};
    }

    QPointF textPosition(const Bone &bone) const
    {
        const QPointF start = bone.line.p1();
        const double w = bone.text.width();
        const double h = bone.text.height();
        if (bone.parent < 0)
            return start;
        if (bone.direction == 0)
            return start + QPointF((w + 10) * s, -h);
        if (bone.direction == 1)
            return start + QPointF(w * std::cos(degrees(70)) * s, w * std::sin(degrees(70)));
        const double diagonal = std::sqrt(w * w + h * h);
        const double angle = std::acos(w / diagonal) + degrees(70);
        return start + QPointF(diagonal * std::cos(angle) * s, -diagonal * std::sin(angle));
    }

    QPointF statusPosition(const Bone &bone) const
    {
        const QPointF text = textPosition(bone);
        if (bone.direction == 0)
            return text + QPointF(10 * s, 10);
        return bone.direction == -1 ? text + QPointF(20 * s, -10) : text;
    }

    static QPointF expandPosition(const Bone &bone)
    {
        const QPointF end = bone.line.p2();
        if (bone.direction == 0)
            return end - QPointF(0, 8);
        return bone.direction == 1 ? end - QPointF(10, 10) : end - QPointF(5, 0);
    }

    static QPointF linkPosition(const Bone &bone, bool hasButton)
    {
        const auto width = [](const QString &file) {
            return QSvgRenderer(file).defaultSize().width();
        };
        static const double button = width(QStringLiteral(":/fishboneDiagram/expand.svg"));
        static const double link = width(QStringLiteral(":/fishboneDiagram/link.png"));
        return bone.line.p2() - QPointF((hasButton ? button / 2 : 0) + link / 2, 0);
    }

    static bool alike(double a, double b) { return std::fabs(a - b) < 1e-6; }
    static bool alike(const QPointF &a, const QPointF &b)
    {
        return alike(a.x(), b.x()) && alike(a.y(), b.y());
    }
    static QString text(const QPointF &point)
    {
        return QStringLiteral("(%1, %2)").arg(point.x()).arg(point.y());
    }
    static QString mismatch(const char *what, const QPointF &actual, const QPointF &expected)
    {
        return QStringLiteral("%1 is %2, expected %3")
            .arg(QString::fromLatin1(what), text(actual), text(expected));
    }

    QString differenceOf(const Bone &bone) const
    {
        const SpearItem *const spear = bone.subject->spear();
        if (!spear)
            return QStringLiteral("has no spear");
        for (const TreeItem *child : bone.subject->childItems()) {
            if (m_absent.contains(child) && child->spear())
                return QStringLiteral("child %1 has a spear").arg(child->title());
        }
        const bool isHead = bone.parent < 0;
        if (!isHead && (spear->parentItem() != at(bone.parent).subject->spear() ||
                        spear->parentItem() == nullptr))
            return QStringLiteral("hangs elsewhere");
        if (!isHead && at(bone.parent).subject->spear()->childSpears().value(bone.row) != spear)
            return QStringLiteral("is not in row %1").arg(bone.row);
        if (spear->direction() != bone.direction)
            return QStringLiteral("direction is %1").arg(spear->direction());
        if (spear->isExpand() != bone.isExpanded)
            return QStringLiteral("the expand flag is %1").arg(spear->isExpand());
        if (spear->isVisible() != bone.isVisible)
            return QStringLiteral("visible is %1").arg(spear->isVisible());
        if (spear->zValue() != (isHead ? -100 : 0))
            return QStringLiteral("z is %1").arg(spear->zValue());
        if (!alike(spear->spearSize(), 20))
            return QStringLiteral("the spear size is %1").arg(spear->spearSize());
        if (!alike(spear->spearWidth(), bone.width) || !alike(spear->spearHeight(), bone.height))
            return mismatch("size", {spear->spearWidth(), spear->spearHeight()},
                            {bone.width, bone.height});
        if (!alike(spear->offset(), bone.offset))
            return QStringLiteral("offset is %1, expected %2")
                .arg(spear->offset())
                .arg(bone.offset);
        if (!alike(spear->pos(), QPointF()))
            return mismatch("position", spear->pos(), QPointF());
        if (!alike(spear->line().p1(), bone.line.p1()))
            return mismatch("line start", spear->line().p1(), bone.line.p1());
        if (!alike(spear->line().p2(), bone.line.p2()))
            return mismatch("line end", spear->line().p2(), bone.line.p2());
        return differenceOfCompanions(*spear, bone);
    }

    QString differenceOfCompanions(const SpearItem &spear, const Bone &bone) const
    {
        const bool isHead = bone.parent < 0;
        const TextItem *const text = spear.textItem();
        if (!alike(text->pos(), textPosition(bone)))
            return mismatch("text", text->pos(), textPosition(bone));
        if (!alike(text->rotation(), isHead ? 0 : -70 * bone.direction))
            return QStringLiteral("the text's rotation is %1").arg(text->rotation());
        const TaskStatusItem *const status = spear.statusItem();
        if (isHead && status->isVisible())
            return QStringLiteral("the head shows a status");
        if (!isHead && !alike(status->pos(), statusPosition(bone)))
            return mismatch("status icon", status->pos(), statusPosition(bone));
        const bool hasButton = !isHead && bone.subject->childCount() > 0;
        const auto *const button = dynamic_cast<const SvgItem *>(spear.expandBuddy());
        if ((button != nullptr) != hasButton)
            return QStringLiteral("the expand button is wrong");
        if (hasButton && !alike(button->pos(), expandPosition(bone)))
            return mismatch("expand button", button->pos(), expandPosition(bone));
        const QString icon = bone.isExpanded ? QStringLiteral(":/fishboneDiagram/contract.svg")
                                             : QStringLiteral(":/fishboneDiagram/expand.svg");
        // A button is brought up to date by a layout when there is something to show or hide.
        if (hasButton && spear.childCount() > 0 && button->svgFile() != icon)
            return QStringLiteral("the expand button shows ") + button->svgFile();
        const auto *const link = dynamic_cast<const LinkItem *>(spear.linkItem());
        if ((link != nullptr) != !bone.subject->url().isEmpty())
            return QStringLiteral("the link icon is wrong");
        if (link && link->url() != bone.subject->url())
            return QStringLiteral("the link is ") + link->url();
        if (link && !alike(link->pos(), linkPosition(bone, hasButton)))
            return mismatch("link icon", link->pos(), linkPosition(bone, hasButton));
        return {};
    }

    const Bone &at(int number) const { return m_bones[std::size_t(number)]; }

    std::vector<Bone> m_bones; ///< breadth-first
    QSet<const TreeItem *> m_absent;
};
