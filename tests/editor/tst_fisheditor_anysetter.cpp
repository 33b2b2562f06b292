// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Whatever was changed by whatever function, updateFish(false) shows it.

#include <fishbone/editor/fisheditor.h>

#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>
#include <tests/support/anysetter.h>
#include <tests/support/drawingtext.h>
#include <tests/support/editorfixture.h>
#include <tests/support/filecontent.h>
#include <tests/support/pictures.h>
#include <tests/support/sourcefolder.h>
#include <tests/support/statelooks.h>

using namespace TestSupport;

class TestFishEditorAnySetter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { AnySetter::restoreShared(); }

    void shouldKnowEverySetter_data();
    void shouldKnowEverySetter();
    void shouldShowWhatOneSetterChanged_data();
    void shouldShowWhatOneSetterChanged();
    void shouldShowWhatRandomSettersChanged_data();
    void shouldShowWhatRandomSettersChanged();
};

namespace {

/**
 * How many pixels at the end of a line may be another when it was painted in pieces: Qt computes
 * smoothed edges anew from where the clip begins.
 */
constexpr int clippedEdges = 3;

int differingPixels(const QImage &picture, const QImage &expected)
{
    int count = 0;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            const QRgb a = picture.pixel(x, y);
            const QRgb b = expected.pixel(x, y);
            const int levels =
                std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                          std::abs(qBlue(a) - qBlue(b))});
            count += levels > clipRounding ? 1 : 0;
        }
    }
    return count;
}

/**
 * Two editors on documents that are alike. One brings its drawing up to date, in the other the
 * three passes run and everything is painted.
 */
class Twins
{
public:
    Twins(const QJsonObject &document, DiagramLook::Kind look)
        : m_updated(document)
        , m_passed(document)
    {
        for (EditorFixture *fish : {&m_updated, &m_passed}) {
            fish->editor.resize(420, 360);
            fish->editor.setLook(look);
            fish->editor.expandAll();
            // A scene's own grows with whatever an item has ever taken up between two layouts.
            fish->editor.view()->setSceneRect(-3000, -3000, 6000, 6000);
        }
    }

    bool show() { return m_updated.show() && m_passed.show() && paintBoth(); }

    /** Brings the whole drawing into view. */
    bool fit()
    {
        m_updated.editor.equalRatio(m_updated.editor.scene()->itemsBoundingRect());
        m_passed.editor.equalRatio(m_updated.editor.scene()->itemsBoundingRect());
        return paintBoth();
    }

    void selectEverySecondBone()
    {
        for (EditorFixture *fish : {&m_updated, &m_passed}) {
            const std::vector<SpearItem *> spears = spearsInOrder(fish->editor.headSpear());
            for (std::size_t i = 0; i < spears.size(); i += 2)
                spears[i]->setSelected(true);
        }
    }

    void change(const AnySetter::Setter &setter, quint32 spear, const AnySetter::Choice &choice)
    {
        for (EditorFixture *fish : {&m_updated, &m_passed}) {
            const std::vector<SpearItem *> spears = spearsInOrder(fish->editor.headSpear());
            if (!spears.empty())
                setter.change(*spears[spear % spears.size()], choice);
        }
    }

    /** What the two show differently after a layout; empty when nothing does. */
    QString difference()
    {
        m_updated.editor.updateFish(false);
        if (m_passed.editor.headSpear()) {
            m_passed.editor.refreshFish();
            m_passed.editor.updateSpearSize();
            m_passed.editor.updateSpearPostion();
        }
        const QStringList updated = drawingText(m_updated.editor.headSpear());
        const QStringList passed = drawingText(m_passed.editor.headSpear());
        for (int i = 0; i < qMax(updated.size(), passed.size()); ++i) {
            if (updated.value(i) != passed.value(i))
                return QStringLiteral("is       %1\nnot      %2")
                    .arg(updated.value(i), passed.value(i));
        }
        m_passed.editor.view()->viewport()->update();
        if (!paintBoth())
            return QStringLiteral("nothing was painted");
        const QImage picture = shownPicture(*m_updated.editor.view());
        const QImage expected = shownPicture(*m_passed.editor.view());
        return differingPixels(picture, expected) <= clippedEdges
                   ? QString()
                   : TestSupport::difference(picture, expected, clipRounding);
    }

private:
    bool paintBoth()
    {
        return paintScheduled(*m_updated.editor.view()) && paintScheduled(*m_passed.editor.view());
    }

    EditorFixture m_updated;
    EditorFixture m_passed;
};

/** How the looks are called in the tables. */
struct NamedLook
{
    const char *name;
    DiagramLook::Kind kind;
};
constexpr NamedLook looks[] = {{"classic", DiagramLook::Classic}, {"clear", DiagramLook::Clear}};

QString textOf(const QString &path)
{
    return QString::fromUtf8(TestSupport::contentOf(path));
}

/** The names of the public functions of a header that change an object. */
QStringList settersOf(const QString &header)
{
    const QRegularExpression access(QStringLiteral("^(?=public:|protected:|private:|Q_SIGNALS:)"),
                                    QRegularExpression::MultilineOption);
    const QRegularExpression function(
        QStringLiteral("^    (?:void|bool) (\\w+)\\([^;{]*\\)(?! const| override)\\s*[;{]"),
        QRegularExpression::MultilineOption);
    QStringList names;
    const QStringList parts = header.split(access);
    for (const QString &part : parts) {
        auto found =
            function.globalMatch(part.startsWith(QLatin1String("public:")) ? part : QString());
        while (found.hasNext())
            names.append(found.next().captured(1));
    }
    names.removeDuplicates();
    return names;
}

/** The text of a function of a source file. */
QString functionOf(const QString &source, const QString &name)
{
    const int begin = source.indexOf(QStringLiteral("\nvoid %1(").arg(name));
    return begin < 0 ? QString()
                     : source.mid(begin, source.indexOf(QLatin1String("\n}\n"), begin) - begin);
}

QJsonObject document(quint32 seed)
{
    return randomDocument(seed, {10, 3, 9, 40});
}

} // namespace

void TestFishEditorAnySetter::shouldKnowEverySetter_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<QString>("section");     // the function that lists the setters of the class
    QTest::addColumn<QStringList>("leftOut"); // setters that it need not have

    // The first three say who a subject is; the others rearrange a tree unseen by its model, which
    // has to announce that.
    QTest::newRow("subjects")
        << QStringLiteral("model/treeitem.h") << QStringLiteral("addSubjectSetters")
        << QStringLiteral("setUuid setShowid setPid ensureUuid setParent appendChild "
                          "insertChildAtPosition insertChildren moveChildren removeChildren")
               .split(QLatin1Char(' '));
    QTest::newRow("styles") << QStringLiteral("style/spearstyle.h")
                            << QStringLiteral("addStyleSetters") << QStringList();
    // A look and what it keeps with a bone are the editor's to set, for all bones at a time.
    QTest::newRow("spears") << QStringLiteral("items/spearitem.h")
                            << QStringLiteral("addSpearSetters")
                            << QStringList(
                                   {QStringLiteral("setLook"), QStringLiteral("setLookData")});
    QTest::newRow("texts") << QStringLiteral("items/textitem.h") << QStringLiteral("addTextSetters")
                           << QStringList();
    // These say how a text is edited and whose document it shows, which is among the setters.
    QTest::newRow("texts without a document")
        << QStringLiteral("items/shapedtextitem.h") << QStringLiteral("addTextSetters")
        << QStringLiteral("setTextCursor setOpenExternalLinks setTextInteractionFlags adjustSize")
               .split(QLatin1Char(' '));
    QTest::newRow("icons") << QStringLiteral("items/svgitem.h") << QStringLiteral("addIconSetters")
                           << QStringList();
    // It fills a menu.
    QTest::newRow("status icons") << QStringLiteral("items/taskstatusitem.h")
                                  << QStringLiteral("addIconSetters")
                                  << QStringList(QStringLiteral("createPopMenu"));
    QTest::newRow("link icons") << QStringLiteral("items/linkitem.h")
                                << QStringLiteral("addIconSetters") << QStringList();
    QTest::newRow("buttons") << QStringLiteral("items/expanditem.h")
                             << QStringLiteral("addIconSetters") << QStringList();
}

void TestFishEditorAnySetter::shouldKnowEverySetter()
{
    QFETCH(QString, header);
    QFETCH(QString, section);
    QFETCH(const QStringList, leftOut);
    const QStringList setters = settersOf(textOf(sourceFile(QStringLiteral("fishbone/") + header)));
    const QString listed =
        functionOf(textOf(sourceFile(QStringLiteral("tests/support/anysetter.cpp"))), section);
    QVERIFY(!setters.isEmpty());
    QVERIFY(!listed.isEmpty());

    for (const QString &setter : setters) {
        const QRegularExpression call(QStringLiteral("(\\.|->)%1\\(").arg(setter));
        const bool isListed = listed.contains(call);
        QVERIFY2(isListed != leftOut.contains(setter), qPrintable(setter));
    }
    for (const QString &name : leftOut)
        QVERIFY2(setters.contains(name), qPrintable(name));
}

void TestFishEditorAnySetter::shouldShowWhatOneSetterChanged_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("look");

    for (const NamedLook &look : looks) {
        int number = 0;
        for (const AnySetter::Setter &setter : AnySetter::all())
            QTest::addRow("%s, %s", look.name, setter.name) << number++ << int(look.kind);
    }
}

void TestFishEditorAnySetter::shouldShowWhatOneSetterChanged()
{
    QFETCH(int, number);
    QFETCH(int, look);
    const AnySetter::Setter &setter = AnySetter::all()[std::size_t(number)];
    Twins twins(document(3), DiagramLook::Kind(look));
    twins.selectEverySecondBone(); // which shows its box
    QVERIFY(twins.show());
    QCOMPARE(twins.difference(), QString());

    for (quint32 spear = 0; spear < 6; ++spear) {
        twins.change(setter, spear, {spear, spear + 1});
        QCOMPARE(twins.difference(), QString());
    }
}

void TestFishEditorAnySetter::shouldShowWhatRandomSettersChanged_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<int>("look");

    for (const NamedLook &look : looks) {
        for (quint32 seed = 1; seed <= unlessSanitized(20u, 7u); ++seed)
            QTest::addRow("%s, seed %u", look.name, seed) << seed << int(look.kind);
    }
}

void TestFishEditorAnySetter::shouldShowWhatRandomSettersChanged()
{
    QFETCH(quint32, seed);
    QFETCH(int, look);
    QRandomGenerator random(seed);
    Twins twins(document(seed), DiagramLook::Kind(look));
    QVERIFY(twins.show());
    QStringList done;

    for (int round = 0; round < 8; ++round) {
        for (int i = random.bounded(1, 5); i > 0; --i) {
            const auto &setters = AnySetter::all();
            const auto &setter = setters[std::size_t(random.bounded(int(setters.size())))];
            const quint32 spear = random.generate() >> 8;
            const AnySetter::Choice choice{random.generate() >> 8, random.generate() >> 8};
            twins.change(setter, spear, choice);
            done.append(QLatin1String(setter.name));
        }
        const QString difference = twins.difference();
        QVERIFY2(difference.isEmpty(),
                 qPrintable(done.join(QLatin1String(", ")) + QLatin1Char('\n') + difference));
        if (round % 4 == 3)
            QVERIFY(twins.fit());
    }
}

FISHBONE_TEST(TestFishEditorAnySetter)
#include "tst_fisheditor_anysetter.moc"
