// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/linkitem.h>

#include <QDesktopServices>
#include <QGraphicsView>
#include <QtTest>

#include <fishbone/items/spearitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>

using namespace TestSupport;

class TestLinkItem : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void takeUrl(const QUrl &url) { m_opened.append(url); }

private Q_SLOTS:
    void init();
    void cleanup();

    void shouldShowTheLinkIcon();
    void shouldKeepTheUrlAsGiven_data();
    void shouldKeepTheUrlAsGiven();
    void shouldTakeTheLeftButtonOnly();
    void shouldOpenTheUrlOnALeftPress();
    void shouldParseTheUrlTolerantly_data();
    void shouldParseTheUrlTolerantly();
    void shouldOpenNothingOnOtherButtons_data();
    void shouldOpenNothingOnOtherButtons();
    void shouldOpenWithTheDesktopUnlessAnOpenerIsSet();
    void shouldOpenWithTheDesktopAgainWhenTheOpenerIsTakenAway();
    void shouldOpenALinkThatNoItemShows();
    void shouldOpenOutsideAnyScene();
    void shouldSurviveAnOpenerThatDeletesTheItem();
    void shouldSurviveAnOpenerThatSetsAnother();
    void shouldOpenWhenTheIconIsClickedInAView();
    void shouldOpenOnceWhenTheReleaseGetsLost();

private:
    QList<QUrl> m_opened;
};

void TestLinkItem::init()
{
    m_opened.clear();
    LinkItem::setOpener([this](const QUrl &url) { m_opened.append(url); });
}

void TestLinkItem::cleanup()
{
    LinkItem::setOpener({});
}

void TestLinkItem::shouldShowTheLinkIcon()
{
    LinkItem item(QStringLiteral("https://example.org"));
    QGraphicsItem *const base = &item;

    QCOMPARE(item.svgFile(), QStringLiteral(":/fishboneDiagram/link.png"));
    QVERIFY(!item.boundingRect().isEmpty());
    QCOMPARE(item.parentItem(), nullptr);
    QVERIFY(item.acceptHoverEvents());
    QCOMPARE(qgraphicsitem_cast<LinkItem *>(base), &item);
}

void TestLinkItem::shouldKeepTheUrlAsGiven_data()
{
    QTest::addColumn<QString>("url");

    QTest::newRow("plain") << QStringLiteral("https://example.org/a?b=c#d");
    QTest::newRow("spaces") << QStringLiteral(" a b ");
    QTest::newRow("Chinese") << QStringLiteral("https://例子.cn/路径");
    QTest::newRow("empty") << QString();
}

void TestLinkItem::shouldKeepTheUrlAsGiven()
{
    QFETCH(QString, url);

    QCOMPARE(LinkItem(url).url(), url);
}

void TestLinkItem::shouldTakeTheLeftButtonOnly()
{
    QCOMPARE(LinkItem(QString()).acceptedMouseButtons(), Qt::MouseButtons(Qt::LeftButton));
}

void TestLinkItem::shouldOpenTheUrlOnALeftPress()
{
    QGraphicsScene scene;
    auto *const item =
        std::make_unique<LinkItem>(QStringLiteral("https://example.org/a")).release();
    scene.addItem(item);

    sendPress(*item, Qt::LeftButton);

    QCOMPARE(m_opened, QList<QUrl>{QUrl(QStringLiteral("https://example.org/a"))});
}

void TestLinkItem::shouldParseTheUrlTolerantly_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("encoded");

    QTest::newRow("blank") << QStringLiteral("https://example.org/a b")
                           << QStringLiteral("https://example.org/a%20b");
    QTest::newRow("lonely percent sign") << QStringLiteral("https://example.org/100%")
                                         << QStringLiteral("https://example.org/100%25");
    QTest::newRow("file of Windows")
        << QStringLiteral("C:\\a b.html") << QStringLiteral("file:///C:/a%20b.html");
}

void TestLinkItem::shouldParseTheUrlTolerantly()
{
    QFETCH(QString, url);
    QFETCH(QString, encoded);
    QGraphicsScene scene;
    auto *const item = std::make_unique<LinkItem>(url).release();
    scene.addItem(item);

    sendPress(*item, Qt::LeftButton);

    QCOMPARE(m_opened.count(), 1);
    QCOMPARE(m_opened.first().toString(QUrl::FullyEncoded), encoded);
}

void TestLinkItem::shouldOpenNothingOnOtherButtons_data()
{
    QTest::addColumn<int>("button");

    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void TestLinkItem::shouldOpenNothingOnOtherButtons()
{
    QFETCH(int, button);
    QGraphicsScene scene;
    auto *const item = std::make_unique<LinkItem>(QStringLiteral("https://example.org")).release();
    scene.addItem(item);

    sendPress(*item, Qt::MouseButton(button));

    QVERIFY(m_opened.isEmpty());
}

void TestLinkItem::shouldOpenWithTheDesktopUnlessAnOpenerIsSet()
{
    LinkItem::setOpener({});
    QDesktopServices::setUrlHandler(QStringLiteral("fishbone-test"), this, "takeUrl");

    LinkItem::open(QStringLiteral("fishbone-test:/page"));

    QDesktopServices::unsetUrlHandler(QStringLiteral("fishbone-test"));
    QCOMPARE(m_opened, QList<QUrl>{QUrl(QStringLiteral("fishbone-test:/page"))});
}

void TestLinkItem::shouldOpenWithTheDesktopAgainWhenTheOpenerIsTakenAway()
{
    QList<QUrl> mine;
    LinkItem::setOpener([&mine](const QUrl &url) { mine.append(url); });
    LinkItem::setOpener({});
    QDesktopServices::setUrlHandler(QStringLiteral("fishbone-test"), this, "takeUrl");

    LinkItem::open(QStringLiteral("fishbone-test:/page"));

    QDesktopServices::unsetUrlHandler(QStringLiteral("fishbone-test"));
    QVERIFY(mine.isEmpty());
    QCOMPARE(m_opened.count(), 1);
}

void TestLinkItem::shouldOpenALinkThatNoItemShows()
{
    LinkItem::open(QStringLiteral("https://example.org/b"));

    QCOMPARE(m_opened, QList<QUrl>{QUrl(QStringLiteral("https://example.org/b"))});
}

void TestLinkItem::shouldOpenOutsideAnyScene()
{
    class Link : public LinkItem
    {
    public:
        using LinkItem::LinkItem;
        using LinkItem::mousePressEvent;
    };
    Link link(QStringLiteral("https://example.org"));
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMousePress);
    event.setButton(Qt::LeftButton);

    link.mousePressEvent(&event);

    QCOMPARE(m_opened, QList<QUrl>{QUrl(QStringLiteral("https://example.org"))});
}

void TestLinkItem::shouldSurviveAnOpenerThatDeletesTheItem()
{
    QGraphicsScene scene;
    QGraphicsItem *const item =
        std::make_unique<LinkItem>(QStringLiteral("https://example.org")).release();
    scene.addItem(item);
    LinkItem::setOpener([this, &scene](const QUrl &url) {
        scene.clear();
        m_opened.append(url);
    });

    sendPress(*item, Qt::LeftButton);

    QCOMPARE(m_opened, QList<QUrl>{QUrl(QStringLiteral("https://example.org"))});
    QVERIFY(scene.items().isEmpty());
}

void TestLinkItem::shouldSurviveAnOpenerThatSetsAnother()
{
    const auto kept = std::make_shared<int>(1);
    LinkItem::setOpener([this, kept](const QUrl &url) {
        LinkItem::setOpener({});
        if (*kept == 1)
            m_opened.append(url);
    });

    LinkItem::open(QStringLiteral("https://example.org"));

    QCOMPARE(m_opened.count(), 1);
}

void TestLinkItem::shouldOpenWhenTheIconIsClickedInAView()
{
    Drawing drawing(QStringLiteral("Effect[Man]"));
    SpearItem *const spear = drawing.spear(QStringLiteral("Man"));
    auto *const item =
        std::make_unique<LinkItem>(QStringLiteral("https://example.org/c")).release();
    spear->setLinkItem(item);
    QGraphicsView view(&drawing.scene);
    view.resize(600, 400);
    view.centerOn(item);

    const QPoint pos = view.mapFromScene(item->mapToScene(item->boundingRect().center()));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, pos);

    QCOMPARE(m_opened, QList<QUrl>{QUrl(QStringLiteral("https://example.org/c"))});
}

void TestLinkItem::shouldOpenOnceWhenTheReleaseGetsLost()
{
    Drawing drawing(QStringLiteral("Effect[Man]"));
    auto *const item = std::make_unique<LinkItem>(QStringLiteral("https://example.org")).release();
    drawing.spear(QStringLiteral("Man"))->setLinkItem(item);
    QGraphicsView view(&drawing.scene);
    view.resize(600, 400);
    view.centerOn(item);
    const QPoint pos = view.mapFromScene(item->mapToScene(item->boundingRect().center()));

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // It says so of every press that a view leaves to what is below.
    QTest::ignoreMessage(QtWarningMsg,
                         "Mouse event \"MousePress\" not accepted by receiving widget");
#endif
    // A dialog that the opener shows takes the release.
    QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, {3, 3});

    QCOMPARE(m_opened.count(), 1);
}

FISHBONE_TEST(TestLinkItem)
#include "tst_linkitem.moc"
