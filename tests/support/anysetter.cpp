// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/support/anysetter.h>

#include <QFont>
#include <QGraphicsRectItem>
#include <QModelIndex>
#include <QPen>
#include <QPixmap>
#include <QTextCursor>

#include <fishbone/items/expanditem.h>
#include <fishbone/items/linkitem.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/items/taskstatusitem.h>
#include <fishbone/items/textitem.h>
#include <fishbone/model/subjectmarks.h>
#include <fishbone/model/treeitem.h>
#include <tests/support/statelooks.h>

namespace AnySetter {

namespace {

QColor color(const Choice &choice)
{
    static const QColor colors[] = {Qt::red,  {0, 120, 0},    Qt::blue,
                                    QColor(), {255, 200, 90}, {90, 200, 255, 120}};
    return colors[choice.number % std::size(colors)];
}

SpearStyle::SpearState state(const Choice &choice)
{
    return SpearStyle::SpearState(choice.another % 4);
}

QString text(const Choice &choice)
{
    static const QString texts[] = {QStringLiteral("x"),
                                    QStringLiteral("Something longer"),
                                    QString(),
                                    QStringLiteral("Two (2) words"),
                                    QStringLiteral("原因"),
                                    QStringLiteral("Ag")};
    return texts[choice.number % std::size(texts)];
}

QString file(const Choice &choice)
{
    static const QString files[] = {QStringLiteral(":/fishboneDiagram/head.svg"),
                                    QStringLiteral(":/fishboneDiagram/expand.svg"),
                                    QString(),
                                    QStringLiteral(":/fishboneDiagram/contract.svg"),
                                    QStringLiteral(":/nowhere.svg"),
                                    QStringLiteral(":/fishboneDiagram/status/finish.svg")};
    return files[choice.number % std::size(files)];
}

QFont font(const Choice &choice)
{
    QFont made;
    made.setPixelSize(10 + int(choice.number % 12));
    made.setBold(choice.another % 2);
    return made;
}

QPen pen(const Choice &choice)
{
    // Without dashes: Qt computes them anew from where the clip begins.
    return {choice.another % 2 ? QColor(10, 90, 160) : QColor(160, 90, 10),
            1.0 + choice.number % 4};
}

QPointF point(const Choice &choice)
{
    return {double(choice.number % 60) - 30, double(choice.another % 60) - 30};
}

int number(const Choice &choice, int from, int to)
{
    return from + int(choice.number % quint32(to - from + 1));
}

QJsonObject style(const Choice &choice)
{
    SpearStyle made;
    made.setTextCount(number(choice, 0, 5));
    if (choice.another % 3 == 0)
        TestSupport::setLooks(made, 4);
    made.setTextColor(SpearStyle::ssNormal, color(choice));
    QJsonObject object;
    made.write(object);
    return object;
}

/** The style that a spear is drawn with: its own one or that of all. */
SpearStyle &styleOf(const SpearItem &spear)
{
    return *spear.style();
}

void addSubjectSetters(std::vector<Setter> &setters)
{
    const auto add = [&setters](const char *name, void (*change)(TreeItem &, const Choice &)) {
        setters.push_back({name, [change](SpearItem &spear, const Choice &choice) {
                               if (spear.treeItem())
                                   change(*spear.treeItem(), choice);
                           }});
    };
    add("title", [](TreeItem &node, const Choice &c) { node.setTitle(text(c)); });
    add("title as data", [](TreeItem &node, const Choice &c) { node.setData(0, text(c)); });
    add("url", [](TreeItem &node, const Choice &c) {
        node.setUrl(c.number % 3 ? QStringLiteral("https://example.org/%1").arg(c.number % 3)
                                 : QString());
    });
    add("status", [](TreeItem &node, const Choice &c) { node.setStatus(number(c, -1, 9)); });
    add("progress", [](TreeItem &node, const Choice &c) { node.setProgress(number(c, 0, 100)); });
    add("movable",
        [](TreeItem &node, const Choice &c) { node.setSpearItemIsMovable(c.number % 2); });
    add("own style", [](TreeItem &node, const Choice &c) { node.setSpearStyle(style(c)); });
    add("no own style", [](TreeItem &node, const Choice &) { node.delSpearStyle(); });
    add("other fields", [](TreeItem &node, const Choice &c) {
        QJsonObject fields;
        SubjectMarks::setColour(fields, color(c));
        SubjectMarks::setVerdict(fields, Verdict(c.another % 3));
        SubjectMarks::setVotes(fields, number(c, 0, 12));
        node.setOtherFields(fields);
    });
    add("detail", [](TreeItem &node, const Choice &c) { node.setDetail(text(c)); });
    add("type", [](TreeItem &node, const Choice &c) { node.setType(number(c, -1, 5)); });
    add("priority", [](TreeItem &node, const Choice &c) { node.setPriority(number(c, -1, 9)); });
    add("manager", [](TreeItem &node, const Choice &c) {
        node.setManagerName(text(c));
        node.setManagerId(text(c));
    });
    add("creator", [](TreeItem &node, const Choice &c) {
        node.setCreatorName(text(c));
        node.setCreatorId(text(c));
    });
    add("followers", [](TreeItem &node, const Choice &c) {
        node.setFollowers(QStringList(text(c)));
        node.addFollower(text(c));
    });
    add("dates", [](TreeItem &node, const Choice &c) {
        node.setCreateDate(qint64(c.number) << 24);
        node.setPlanEndDate(qint64(c.another) << 24);
    });
    add("modified", [](TreeItem &node, const Choice &c) { node.setEditModified(c.number % 2); });
    add("no spear", [](TreeItem &node, const Choice &c) {
        if (c.number % 8 == 0 && node.spear() && !node.spear()->isHeader())
            node.setSpear(nullptr, QModelIndex());
    });
}

void addStyleSetters(std::vector<Setter> &setters)
{
    const auto add = [&setters](const char *name, void (*change)(SpearStyle &, const Choice &)) {
        setters.push_back({name, [change](SpearItem &spear, const Choice &choice) {
                               change(styleOf(spear), choice);
                           }});
    };
    add("style font", [](SpearStyle &s, const Choice &c) { s.setTextFont(state(c), font(c)); });
    add("font in place", [](SpearStyle &s, const Choice &c) {
        if (QFont *const set = s.textFont(state(c)))
            set->setPixelSize(number(c, 8, 24));
    });
    add("style colour", [](SpearStyle &s, const Choice &c) { s.setTextColor(state(c), color(c)); });
    add("style background",
        [](SpearStyle &s, const Choice &c) { s.setTextBkColor(state(c), color(c)); });
    add("style pen", [](SpearStyle &s, const Choice &c) { s.setBroderPen(state(c), pen(c)); });
    add("pen in place", [](SpearStyle &s, const Choice &c) {
        if (QPen *const set = s.broderPen(state(c)))
            *set = pen(c);
    });
    add("style count", [](SpearStyle &s, const Choice &c) { s.setTextCount(number(c, 0, 9)); });
    add("style flag", [](SpearStyle &s, const Choice &c) { s.setInheritanceParent(c.number % 2); });
    add("style from JSON", [](SpearStyle &s, const Choice &c) { s.read(style(c)); });
}

void addSpearSetters(std::vector<Setter> &setters)
{
    const auto add = [&setters](const char *name, void (*change)(SpearItem &, const Choice &)) {
        setters.push_back({name, change});
    };
    add("spear text", [](SpearItem &s, const Choice &c) { s.setText(text(c)); });
    add("spear status", [](SpearItem &s, const Choice &c) { s.setTaskStatus(number(c, -1, 9)); });
    add("spear linked",
        [](SpearItem &s, const Choice &c) { s.setLinked(c.number % 2, number(c, 0, 4)); });
    add("spear moving", [](SpearItem &s, const Choice &c) { s.setMoving(c.number % 2); });
    add("spear expand", [](SpearItem &s, const Choice &c) { s.setExpand(c.number % 2); });
    add("spear state", [](SpearItem &s, const Choice &c) { s.applyState(state(c)); });
    add("spear line", [](SpearItem &s, const Choice &c) { s.setLine(QLineF({5, 5}, point(c))); });
    add("line of the base class", [](SpearItem &s, const Choice &c) {
        s.QGraphicsLineItem::setLine(QLineF({5, 5}, point(c)));
    });
    add("spear pen", [](SpearItem &s, const Choice &c) { s.setPen(pen(c)); });
    add("spear direction", [](SpearItem &s, const Choice &c) { s.setDirection(number(c, -1, 1)); });
    add("spear offset", [](SpearItem &s, const Choice &c) { s.setOffset(number(c, -40, 40)); });
    add("child size",
        [](SpearItem &s, const Choice &c) { s.sumChildSize(QSizeF(number(c, 0, 90), 40)); });
    add("spear data", [](SpearItem &s, const Choice &c) { s.initData(number(c, -1, 1)); });
    add("spear placed", [](SpearItem &s, const Choice &c) { s.updatePosition(point(c)); });
    add("spear pos", [](SpearItem &s, const Choice &c) { s.setPos(point(c)); });
    add("spear visible", [](SpearItem &s, const Choice &c) { s.setVisible(c.number % 2); });
    add("spear opacity",
        [](SpearItem &s, const Choice &c) { s.setOpacity(0.4 + 0.1 * number(c, 0, 6)); });
    add("spear selected", [](SpearItem &s, const Choice &c) { s.setSelected(c.number % 2); });
    add("spear index", [](SpearItem &s, const Choice &) { s.setModelIndex(s.modelIndex()); });
    add("spear rotation",
        [](SpearItem &s, const Choice &c) { s.setRotation(90 * number(c, 0, 3)); });
    add("spear scale", [](SpearItem &s, const Choice &c) { s.setScale(1 + number(c, 0, 2)); });
    add("spear transform", [](SpearItem &s, const Choice &c) {
        s.setTransform(QTransform::fromTranslate(number(c, 0, 20), 5));
    });
    add("spear above others", [](SpearItem &s, const Choice &c) { s.setZValue(number(c, -2, 2)); });
    add("spear follows", [](SpearItem &s, const Choice &) {
        s.updateMovableFlag();
        s.updateTaskStatus();
        s.updateToolTip();
        s.updateExpandButton();
    });
    add("spear text follows", [](SpearItem &s, const Choice &c) {
        if (c.number % 2)
            s.updateTextMetrics();
        else
            s.updateTextLooks();
    });
    add("link icon", [](SpearItem &s, const Choice &c) {
        s.setLinkItem(c.number % 2 ? new LinkItem(QStringLiteral("https://other")) : nullptr);
    });
    add("link icon deleted", [](SpearItem &s, const Choice &) { delete s.linkItem(); });
    add("button", [](SpearItem &s, const Choice &c) {
        s.setExpandBuddy(c.number % 2 ? new ExpandItem(&s) : nullptr);
    });
    add("button of another kind", [](SpearItem &s, const Choice &c) {
        s.setExpandBuddy(new QGraphicsRectItem(0, 0, number(c, 4, 30), 9));
    });
    add("order of the children", [](SpearItem &s, const Choice &) { s.stackChildrenInRowOrder(); });
    add("child spear deleted", [](SpearItem &s, const Choice &c) {
        const QList<SpearItem *> children = s.childSpears();
        if (c.number % 6 == 0 && !children.isEmpty())
            delete children.at(int(c.another % quint32(children.size())));
    });
    add("head picture", [](SpearItem &, const Choice &c) {
        *SpearItem::m_pixHeader = QPixmap(number(c, 20, 60), 40);
        SpearItem::m_pixHeader->fill(QColor(200, 20, 120));
    });
    add("tail picture", [](SpearItem &, const Choice &c) {
        *SpearItem::m_pixTail = QPixmap(number(c, 20, 60), 40);
        SpearItem::m_pixTail->fill(QColor(20, 200, 120));
    });
}

void addItemSetters(std::vector<Setter> &setters, const char *const (&names)[6],
                    QGraphicsItem *(*itemOf)(SpearItem &))
{
    using Change = void (*)(QGraphicsItem &, const Choice &);
    const Change changes[] = {
        [](QGraphicsItem &item, const Choice &c) { item.setPos(point(c)); },
        [](QGraphicsItem &item, const Choice &c) { item.moveBy(number(c, -9, 9), 3); },
        [](QGraphicsItem &item, const Choice &c) { item.setVisible(c.number % 2); },
        [](QGraphicsItem &item, const Choice &c) { item.setRotation(number(c, -90, 90)); },
        [](QGraphicsItem &item, const Choice &c) { item.setScale(1 + 0.1 * number(c, 0, 8)); },
        [](QGraphicsItem &item, const Choice &c) { item.setOpacity(0.3 + 0.1 * number(c, 0, 7)); },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        setters.push_back(
            {names[i], [change = changes[i], itemOf](SpearItem &spear, const Choice &choice) {
                 if (QGraphicsItem *const item = itemOf(spear))
                     change(*item, choice);
             }});
    }
}

void addTextSetters(std::vector<Setter> &setters)
{
    addItemSetters(
        setters,
        {"text pos", "text moved", "text visible", "text rotation", "text scale", "text opacity"},
        [](SpearItem &s) -> QGraphicsItem * { return s.textItem(); });
    const auto add = [&setters](const char *name, void (*change)(TextItem &, const Choice &)) {
        setters.push_back({name, [change](SpearItem &spear, const Choice &choice) {
                               change(*spear.textItem(), choice);
                           }});
    };
    add("text", [](TextItem &t, const Choice &c) { t.setPlainText(text(c)); });
    add("text as HTML", [](TextItem &t, const Choice &c) {
        t.setHtml(QStringLiteral("<b>bold</b> <i>%1</i>").arg(text(c)));
    });
    add("text typed", [](TextItem &t, const Choice &c) {
        QTextCursor cursor(t.document());
        cursor.insertText(QStringLiteral("typed") + text(c));
    });
    add("text emphasized", [](TextItem &t, const Choice &) {
        QTextCursor cursor(t.document());
        cursor.select(QTextCursor::Document);
        QTextCharFormat format;
        format.setFontItalic(true);
        format.setForeground(Qt::magenta);
        cursor.mergeCharFormat(format);
    });
    add("another document",
        [](TextItem &t, const Choice &c) { t.setDocument(new QTextDocument(text(c), &t)); });
    add("text font", [](TextItem &t, const Choice &c) { t.setFont(font(c)); });
    add("text colour", [](TextItem &t, const Choice &c) { t.setDefaultTextColor(color(c)); });
    add("text width", [](TextItem &t, const Choice &c) { t.setTextWidth(number(c, 20, 80)); });
    add("text shown", [](TextItem &t, const Choice &c) { t.showText(font(c), text(c)); });
    add("colour shown", [](TextItem &t, const Choice &c) { t.showColor(color(c)); });
    add("text restored", [](TextItem &t, const Choice &) { t.restoreText(); });
    add("text box", [](TextItem &t, const Choice &) { t.boxChanges(); });
}

void addIconSetters(std::vector<Setter> &setters)
{
    addItemSetters(setters,
                   {"status pos", "status moved", "status visible", "status rotation",
                    "status scale", "status opacity"},
                   [](SpearItem &s) -> QGraphicsItem * { return s.statusItem(); });
    addItemSetters(
        setters,
        {"link pos", "link moved", "link visible", "link rotation", "link scale", "link opacity"},
        [](SpearItem &s) { return s.linkItem(); });
    addItemSetters(setters,
                   {"button pos", "button moved", "button visible", "button rotation",
                    "button scale", "button opacity"},
                   [](SpearItem &s) { return s.expandBuddy(); });
    const auto add = [&setters](const char *name,
                                void (*change)(TaskStatusItem &, const Choice &)) {
        setters.push_back({name, [change](SpearItem &spear, const Choice &choice) {
                               change(*spear.statusItem(), choice);
                           }});
    };
    add("icon status",
        [](TaskStatusItem &i, const Choice &c) { i.setStatus(TaskStatus(number(c, 0, 7))); });
    add("icon progress",
        [](TaskStatusItem &i, const Choice &c) { i.setProgress(number(c, 0, 100)); });
    add("icon task", [](TaskStatusItem &i, const Choice &c) { i.setTask(number(c, -1, 9), 50); });
    add("icon follows", [](TaskStatusItem &i, const Choice &) { i.updateStatusIcon(); });
    add("status picture", [](TaskStatusItem &i, const Choice &c) { i.setSvgFile(file(c)); });
    setters.push_back({"icons follow", [](SpearItem &spear, const Choice &) {
                           if (auto *const link = dynamic_cast<LinkItem *>(spear.linkItem()))
                               link->updateSvgIcon();
                           if (auto *const button =
                                   dynamic_cast<ExpandItem *>(spear.expandBuddy())) {
                               button->updateSvgIcon();
                               button->boxChanges();
                           }
                       }});
    setters.push_back({"button picture", [](SpearItem &spear, const Choice &c) {
                           if (auto *const icon = dynamic_cast<SvgItem *>(spear.expandBuddy()))
                               icon->setSvgFile(file(c));
                       }});
    setters.push_back({"link picture", [](SpearItem &spear, const Choice &c) {
                           if (auto *const icon = dynamic_cast<SvgItem *>(spear.linkItem()))
                               icon->setSvgFile(file(c));
                       }});
}

} // namespace

const std::vector<Setter> &all()
{
    static const std::vector<Setter> setters = [] {
        std::vector<Setter> made;
        addSubjectSetters(made);
        addStyleSetters(made);
        addSpearSetters(made);
        addTextSetters(made);
        addIconSetters(made);
        return made;
    }();
    return setters;
}

void restoreShared()
{
    SpearStyle &shared = *SpearStyle::global();
    TestSupport::setLooks(shared, 6);
}

} // namespace AnySetter
