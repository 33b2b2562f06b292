// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/items/shapedtextitem.h>

#include <functional>
#include <memory>
#include <utility>

#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneDragDropEvent>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QPropertyAnimation>
#include <QtTest>

#include <fishbone/items/spearitem.h>
#include <fishbone/items/textitem.h>
#include <tests/program/testprogram.h>
#include <tests/support/drawing.h>
#include <tests/support/pictures.h>
#include <tests/support/statelooks.h>

using namespace TestSupport;

namespace {

/** Asked of the base class, which makes none for this. */
bool hasDocument(const QGraphicsTextItem &item)
{
    return !item.QGraphicsTextItem::textCursor().isNull();
}

QFont largeFont()
{
    QFont font;
    font.setPixelSize(27);
    return font;
}

const QString twoLines = QStringLiteral("Cause\nالأسباب 42");

/** An item as a spear has it, without a document. */
struct Shown
{
    Shown()
    {
        item.showText(largeFont(), twoLines);
        item.showColor(Qt::darkGreen);
    }

    ShapedTextItem item{QString()};
};

/** The same by the toolkit alone. */
struct Bare
{
    Bare()
    {
        item.setFont(largeFont());
        item.setPlainText(twoLines);
        item.setDefaultTextColor(Qt::darkGreen);
    }

    QGraphicsTextItem item;
};

QImage pictureOfText(QGraphicsItem &item, QStyle::State state = QStyle::State_None)
{
    return paintedItem(item, {QRect(-10, -10, 300, 120), 2}, state);
}

/** An event of @p type as a scene sends it to its items; a drag carries @p data. */
std::unique_ptr<QEvent> eventOf(QEvent::Type type, const QMimeData &data)
{
    switch (type) {
    case QEvent::GraphicsSceneContextMenu:
        return std::make_unique<QGraphicsSceneContextMenuEvent>(type);
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return std::make_unique<QKeyEvent>(type, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        return std::make_unique<QFocusEvent>(type);
    case QEvent::InputMethod:
        return std::make_unique<QInputMethodEvent>();
    case QEvent::GraphicsSceneHoverEnter:
    case QEvent::GraphicsSceneHoverMove:
    case QEvent::GraphicsSceneHoverLeave:
        return std::make_unique<QGraphicsSceneHoverEvent>(type);
    case QEvent::GraphicsSceneDragEnter:
    case QEvent::GraphicsSceneDragMove:
    case QEvent::GraphicsSceneDrop: {
        auto drag = std::make_unique<QGraphicsSceneDragDropEvent>(type);
        drag->setMimeData(&data);
        return drag;
    }
    default:
        break;
    }
    auto mouse = std::make_unique<QGraphicsSceneMouseEvent>(type);
    mouse->setButton(Qt::LeftButton);
    mouse->setButtons(Qt::LeftButton);
    mouse->setPos(QPointF(20, 20));
    return mouse;
}

using Asking = std::function<void(ShapedTextItem &)>;

} // namespace

Q_DECLARE_METATYPE(Asking)

class TestShapedTextItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDoWithoutADocument();
    void shouldShowADrawingWithoutDocuments();
    void shouldAnswerAsADocumentDoes();
    void shouldMakeItsDocumentForWhoAsks_data();
    void shouldMakeItsDocumentForWhoAsks();
    void shouldPaintTheSameWithItsDocument_data();
    void shouldPaintTheSameWithItsDocument();
    void shouldWrapAsTheBaseClassDoes_data();
    void shouldWrapAsTheBaseClassDoes();
    void shouldHaveADocumentForATextThatNeedsOne_data();
    void shouldHaveADocumentForATextThatNeedsOne();
    void shouldFillTheDocumentThatTheBaseClassMade();
    void shouldShowTheTextThatTheBaseClassWasGiven();
    void shouldKeepTheFontThatTheBaseClassWasGiven();
    void shouldStayWithoutADocumentWhenSomethingElseIsAChild();
    void shouldRepaintWhatItShowedBefore();
    void shouldTakeEventsAsWithADocument_data();
    void shouldTakeEventsAsWithADocument();
    void shouldAnswerWhatTheBaseClassAsksADocument();
};

void TestShapedTextItem::shouldDoWithoutADocument()
{
    Shown shown;

    QVERIFY(shown.item.textSize().width() > 8);
    QVERIFY(shown.item.boundingRect().isValid());
    QVERIFY(shown.item.contains(QPointF(5, 5)));
    QCOMPARE(shown.item.toPlainText(), twoLines);
    QCOMPARE(shown.item.font(), largeFont());
    QCOMPARE(shown.item.defaultTextColor(), QColor(Qt::darkGreen));
    QCOMPARE(int(shown.item.lines().size()), 2);
    QVERIFY(inkedPixels(pictureOfText(shown.item)) > 0);
    shown.item.setTextInteractionFlags(Qt::NoTextInteraction);
    shown.item.restoreText();

    QVERIFY(!hasDocument(shown.item));
}

void TestShapedTextItem::shouldShowADrawingWithoutDocuments()
{
    Drawing drawing(QStringLiteral("Effect[Man[Training],Machine]"), styleWithLooks());
    const auto shouldHaveNone = [&drawing] {
        drawing.layOut();
        QImage picture = whitePicture(QSize(600, 400));
        QPainter painter(&picture);
        drawing.scene.render(&painter);
        const QList<QGraphicsItem *> items = drawing.scene.items();
        int texts = 0;
        for (QGraphicsItem *item : items) {
            const auto *const text = qgraphicsitem_cast<TextItem *>(item);
            texts += text ? 1 : 0;
            QVERIFY(!text || !hasDocument(*text));
        }
        QCOMPARE(texts, 4);
    };
    shouldHaveNone();
    SpearItem *const man = drawing.spear(QStringLiteral("Man"));

    man->setText(QStringLiteral("People"));
    shouldHaveNone();
    man->setSelected(true);
    sendHover(*man->textItem(), QEvent::GraphicsSceneHoverEnter, QPointF(5, 5));
    shouldHaveNone();
    man->setLinked(true, 0);
    shouldHaveNone();
}

void TestShapedTextItem::shouldAnswerAsADocumentDoes()
{
    const Shown shown;
    const Bare bare;

    QCOMPARE(shown.item.toPlainText(), bare.item.toPlainText());
    QCOMPARE(shown.item.font(), bare.item.font());
    QCOMPARE(shown.item.defaultTextColor(), bare.item.defaultTextColor());
    QCOMPARE(shown.item.boundingRect(), bare.item.boundingRect());
    QCOMPARE(shown.item.shape(), bare.item.shape());
    QCOMPARE(shown.item.textSize(), bare.item.document()->size());
    QCOMPARE(shown.item.textInteractionFlags(), bare.item.textInteractionFlags());
    QCOMPARE(shown.item.flags(), bare.item.flags());
    QCOMPARE(shown.item.acceptDrops(), bare.item.acceptDrops());
    QVERIFY(!hasDocument(shown.item));
    // And with the document that these make:
    QCOMPARE(shown.item.toHtml(), bare.item.toHtml());
    QCOMPARE(shown.item.document()->toPlainText(), bare.item.document()->toPlainText());
    QCOMPARE(shown.item.textSize(), bare.item.document()->size());
    QCOMPARE(shown.item.boundingRect(), bare.item.boundingRect());
    QVERIFY(hasDocument(shown.item));

    ShapedTextItem fresh(QStringLiteral("no\u00a0break"));
    QGraphicsTextItem bareFresh(QStringLiteral("no\u00a0break"));
    QCOMPARE(fresh.toPlainText(), bareFresh.toPlainText());
    QCOMPARE(fresh.defaultTextColor(), bareFresh.defaultTextColor());
    QCOMPARE(fresh.font(), bareFresh.font());
}

void TestShapedTextItem::shouldMakeItsDocumentForWhoAsks_data()
{
    QTest::addColumn<Asking>("ask");

    QTest::newRow("document") << Asking([](ShapedTextItem &item) { item.document(); });
    QTest::newRow("cursor") << Asking([](ShapedTextItem &item) { item.textCursor(); });
    QTest::newRow("HTML") << Asking([](ShapedTextItem &item) { item.toHtml(); });
    QTest::newRow("width") << Asking([](ShapedTextItem &item) { item.setTextWidth(-1); });
    QTest::newRow("size") << Asking([](ShapedTextItem &item) { item.adjustSize(); });
    QTest::newRow("links") << Asking([](ShapedTextItem &item) { item.setOpenExternalLinks(true); });
    QTest::newRow("interaction") << Asking(
        [](ShapedTextItem &item) { item.setTextInteractionFlags(Qt::TextEditorInteraction); });
    QTest::newRow("edited") << Asking([](ShapedTextItem &item) {
        QTextCursor cursor(item.document());
        cursor.insertText(QStringLiteral("x"));
        item.restoreText();
    });
    QTest::newRow("other document") << Asking([](ShapedTextItem &item) {
        item.setDocument(std::make_unique<QTextDocument>(&item).release());
        item.restoreText();
    });
    QTest::newRow("other text") << Asking([](ShapedTextItem &item) {
        item.setPlainText(QStringLiteral("x"));
        QCOMPARE(item.toPlainText(), QStringLiteral("x"));
        item.restoreText();
    });
    QTest::newRow("other HTML") << Asking([](ShapedTextItem &item) {
        item.setHtml(QStringLiteral("<b>x</b>"));
        QCOMPARE(item.toPlainText(), QStringLiteral("x"));
        item.restoreText();
    });
    QTest::newRow("other font") << Asking([](ShapedTextItem &item) {
        item.setFont(QFont());
        QCOMPARE(item.font(), QFont());
        item.restoreText();
    });
}

void TestShapedTextItem::shouldMakeItsDocumentForWhoAsks()
{
    QFETCH(Asking, ask);
    Shown shown;
    const Bare bare;
    QVERIFY(!hasDocument(shown.item));

    ask(shown.item);

    QVERIFY(hasDocument(shown.item));
    const QGraphicsTextItem &base = shown.item;
    QCOMPARE(base.toPlainText(), twoLines);
    QCOMPARE(base.font(), largeFont());
    QCOMPARE(base.defaultTextColor(), QColor(Qt::darkGreen));
    QCOMPARE(shown.item.boundingRect(), bare.item.boundingRect());
    QCOMPARE(shown.item.textSize(), bare.item.document()->size());
}

void TestShapedTextItem::shouldPaintTheSameWithItsDocument_data()
{
    QTest::addColumn<int>("state");

    QTest::newRow("nothing") << int(QStyle::State_None);
    QTest::newRow("selected") << int(QStyle::State_Selected);
    QTest::newRow("focus") << int(QStyle::State_HasFocus);
}

void TestShapedTextItem::shouldPaintTheSameWithItsDocument()
{
    QFETCH(int, state);
    Shown shown;
    const QImage without = pictureOfText(shown.item, QStyle::State(state));
    QVERIFY(!hasDocument(shown.item));
    shown.item.document();

    QCOMPARE(difference(without, pictureOfText(shown.item, QStyle::State(state)), 1), QString());
    QVERIFY(inkedPixels(without) > 0);
}

void TestShapedTextItem::shouldWrapAsTheBaseClassDoes_data()
{
    QTest::addColumn<double>("width");

    for (const double width : {10.0, 60.0, 90.0, 400.0})
        QTest::addRow("%g", width) << width;
}

void TestShapedTextItem::shouldWrapAsTheBaseClassDoes()
{
    QFETCH(double, width);
    Shown shown;
    const QSizeF unwrapped = shown.item.textSize();
    Bare bare;

    shown.item.setTextWidth(width);
    bare.item.setTextWidth(width);

    QCOMPARE(shown.item.textSize(), bare.item.document()->size());
    QCOMPARE(shown.item.boundingRect(), bare.item.boundingRect());
    QCOMPARE(difference(pictureOfText(shown.item), pictureOfText(bare.item), 1), QString());
    shown.item.restoreText();
    QCOMPARE(shown.item.textSize(), unwrapped);
}

void TestShapedTextItem::shouldHaveADocumentForATextThatNeedsOne_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("tabulator") << QStringLiteral("a\tb");
    QTest::newRow("line") << QStringLiteral("a\u2028b");
}

void TestShapedTextItem::shouldHaveADocumentForATextThatNeedsOne()
{
    QFETCH(QString, text);
    Bare bare;
    bare.item.setPlainText(text);
    Shown shown;
    QVERIFY(shown.item.boundingRect().isValid());

    shown.item.showText(largeFont(), text);

    QVERIFY(hasDocument(shown.item));
    QVERIFY(hasDocument(ShapedTextItem(text)));
    QCOMPARE(shown.item.toPlainText(), bare.item.toPlainText());
    QCOMPARE(shown.item.boundingRect(), bare.item.boundingRect());
    QCOMPARE(difference(pictureOfText(shown.item), pictureOfText(bare.item), 1), QString());
}

void TestShapedTextItem::shouldFillTheDocumentThatTheBaseClassMade()
{
    Shown shown;
    Bare bare;
    QGraphicsTextItem &base = shown.item;

    QVERIFY(base.document()->isEmpty()); // as the header says

    QCOMPARE(shown.item.textSize(), bare.item.document()->size());
    QCOMPARE(base.toPlainText(), twoLines);
    QCOMPARE(base.font(), largeFont());
    QCOMPARE(difference(pictureOfText(shown.item), pictureOfText(bare.item), 1), QString());
}

void TestShapedTextItem::shouldShowTheTextThatTheBaseClassWasGiven()
{
    Shown shown;
    QGraphicsTextItem &base = shown.item;

    base.setPlainText(QStringLiteral("by the base"));
    QCOMPARE(shown.item.toPlainText(), QStringLiteral("by the base"));
    shown.item.restoreText();
    QCOMPARE(shown.item.toPlainText(), twoLines);
    base.setPlainText(QStringLiteral("by the base"));
    shown.item.showText(largeFont(), QStringLiteral("another"));

    QCOMPARE(shown.item.toPlainText(), QStringLiteral("another"));
    const Bare bare;
    shown.item.showText(largeFont(), twoLines);
    QCOMPARE(shown.item.textSize(), bare.item.document()->size());
}

void TestShapedTextItem::shouldKeepTheFontThatTheBaseClassWasGiven()
{
    Shown shown;
    Bare bare;
    QFont font;
    font.setPixelSize(40);
    static_cast<QGraphicsTextItem &>(shown.item).setFont(font);
    bare.item.setFont(font);

    QCOMPARE(shown.item.textSize(), bare.item.document()->size());
    shown.item.restoreText();

    QCOMPARE(shown.item.font(), largeFont());
    QCOMPARE(shown.item.toPlainText(), twoLines);
}

void TestShapedTextItem::shouldStayWithoutADocumentWhenSomethingElseIsAChild()
{
    Shown shown;
    const Bare bare;
    const QPropertyAnimation animation(&shown.item, "opacity", &shown.item);

    QCOMPARE(shown.item.textSize(), bare.item.document()->size());
    shown.item.restoreText();
    QVERIFY(inkedPixels(pictureOfText(shown.item)) > 0);

    QVERIFY(!hasDocument(shown.item));
}

void TestShapedTextItem::shouldRepaintWhatItShowedBefore()
{
    QGraphicsScene scene;
    scene.setSceneRect(0, 0, 400, 100);
    auto *const item = std::make_unique<ShapedTextItem>(QString()).release();
    scene.addItem(item);
    QGraphicsView view(&scene);
    view.resize(420, 120);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    item->showText(largeFont(), QStringLiteral("A long text that was there before"));
    QCoreApplication::processEvents();
    const QImage before = view.grab().toImage();

    item->showText(largeFont(), QStringLiteral("short"));
    QCoreApplication::processEvents();

    const QImage after = view.grab().toImage();
    QVERIFY(before != after);
    QCOMPARE(item->boundingRect().width(), item->textWidth());
    QVERIFY(!scene.itemAt(QPointF(300, 20), {}));
    QCOMPARE(scene.itemAt(QPointF(20, 20), {}), static_cast<QGraphicsItem *>(item));
}

void TestShapedTextItem::shouldTakeEventsAsWithADocument_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isSelectable");

    const std::pair<const char *, QEvent::Type> types[] = {
        {"menu", QEvent::GraphicsSceneContextMenu},
        {"drag in", QEvent::GraphicsSceneDragEnter},
        {"drag on", QEvent::GraphicsSceneDragMove},
        {"drop", QEvent::GraphicsSceneDrop},
        {"key", QEvent::KeyPress},
        {"key up", QEvent::KeyRelease},
        {"shortcut", QEvent::ShortcutOverride},
        {"press", QEvent::GraphicsSceneMousePress},
        {"move", QEvent::GraphicsSceneMouseMove},
        {"release", QEvent::GraphicsSceneMouseRelease},
        {"double click", QEvent::GraphicsSceneMouseDoubleClick},
        {"hover in", QEvent::GraphicsSceneHoverEnter},
        {"hover", QEvent::GraphicsSceneHoverMove},
        {"hover out", QEvent::GraphicsSceneHoverLeave},
        {"focus", QEvent::FocusIn},
        {"focus out", QEvent::FocusOut},
        {"input method", QEvent::InputMethod}};
    for (const auto &[name, type] : types) {
        QTest::newRow(name) << int(type) << false;
        QTest::addRow("%s, selectable", name) << int(type) << true;
    }
}

void TestShapedTextItem::shouldTakeEventsAsWithADocument()
{
    QFETCH(int, type);
    QFETCH(bool, isSelectable);
    QGraphicsScene scene;
    auto *const item = std::make_unique<ShapedTextItem>(twoLines).release();
    auto *const bare = std::make_unique<QGraphicsTextItem>(twoLines).release();
    scene.addItem(item);
    scene.addItem(bare);
    item->setFlag(QGraphicsItem::ItemIsSelectable, isSelectable);
    bare->setFlag(QGraphicsItem::ItemIsSelectable, isSelectable);
    QMimeData data;
    data.setText(QStringLiteral("x"));
    const auto outcome = [&](QGraphicsItem *target) {
        const std::unique_ptr<QEvent> event = eventOf(QEvent::Type(type), data);
        scene.sendEvent(target, event.get());
        return std::make_pair(event->isAccepted(), target->isSelected());
    };

    const auto actual = outcome(item);
    QCOMPARE(actual, outcome(bare));
    QCOMPARE(item->toPlainText(), twoLines);
}

void TestShapedTextItem::shouldAnswerWhatTheBaseClassAsksADocument()
{
    Shown shown;
    const Bare bare;

    QCOMPARE(shown.item.openExternalLinks(), bare.item.openExternalLinks());
    QCOMPARE(shown.item.tabChangesFocus(), bare.item.tabChangesFocus());
    QCOMPARE(shown.item.opaqueArea(), bare.item.opaqueArea());
    QCOMPARE(shown.item.isObscuredBy(&bare.item), bare.item.isObscuredBy(&shown.item));
    shown.item.setTabChangesFocus(true);
    QVERIFY(shown.item.tabChangesFocus());
    QVERIFY(!hasDocument(shown.item));
}

FISHBONE_TEST(TestShapedTextItem)
#include "tst_shapedtextitem.moc"
