// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/diagrammerge.h>

#include <fishbone/exchange/diagramexchange.h>
#include <fishbone/exchange/outlinewalk.h>
#include <fishbone/model/treeitem.h>
#include <tests/program/sanitized.h>
#include <tests/program/testprogram.h>

#include <QBuffer>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QtTest>

/** Merging two versions of a diagram. */
class TestDiagramMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeOverWhatOneVersionChanged_data();
    void shouldTakeOverWhatOneVersionChanged();
    void shouldKeepBothInAConflict_data();
    void shouldKeepBothInAConflict();
    void shouldMarkAConflictWithACause();
    void shouldKeepFieldsOfOthers();
    void shouldTakeTheViewOfOursWithoutAWord();
    void shouldMergeVersionsWithoutABase();
    void shouldTellSubjectsWithoutUuidsByTheirPlace();
    void shouldBeTheSameBothWaysRoundWithoutConflicts();
    void shouldLoseNoSubject();
    void shouldTakeTimeInProportion();
};

namespace {

constexpr int randomRounds = unlessSanitized(300, 90);

using Tree = std::unique_ptr<TreeItem>;

/** "h[a[c,d],b]" as a diagram in which each letter is title and uuid; "a=x" has the title x. */
Tree tree(const QString &text)
{
    Tree head;
    TreeItem *parent = nullptr;
    TreeItem *last = nullptr;
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text.at(i);
        if (letter == QLatin1Char('[')) {
            parent = last;
        } else if (letter == QLatin1Char(']')) {
            last = parent;
            parent = parent->parent();
        } else if (letter == QLatin1Char('=')) {
            last->setTitle(text.at(++i));
        } else if (letter != QLatin1Char(',')) {
            auto item = std::make_unique<TreeItem>(letter, letter, QString(),
                                                   parent ? parent->uuid() : QString(), 0, parent);
            last = item.get();
            if (parent)
                parent->appendChild(item.release());
            else
                head = std::move(item);
        }
    }
    return head;
}

/** The same backwards; causes that say what conflicts are "!". */
QString textOf(const TreeItem &item)
{
    if (item.title() == QLatin1String("Merge conflict"))
        return QStringLiteral("!");
    QString text = item.uuid();
    if (item.title() != text)
        text += QLatin1Char('=') + item.title();
    QStringList below;
    for (const TreeItem *const child : item.childItems())
        below.append(textOf(*child));
    return below.isEmpty()
               ? text
               : text + QLatin1Char('[') + below.join(QLatin1Char(',')) + QLatin1Char(']');
}

QByteArray bytesOf(const TreeItem &head)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    DiagramExchange::write(buffer, head, DiagramExchange::Format::Json);
    return buffer.data();
}

Tree copyOf(const TreeItem &head)
{
    QByteArray bytes = bytesOf(head);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return DiagramExchange::read(buffer, DiagramExchange::Format::Json);
}

QString merged(const QString &base, const QString &ours, const QString &theirs)
{
    return textOf(*DiagramMerge(tree(base).get(), tree(ours).get(), tree(theirs).get()).head());
}

/** Whether each pid names the parent. */
bool arePidsRight(const TreeItem &head)
{
    bool right = true;
    OutlineWalk::walk(head, [&right](const TreeItem &item, int level) {
        right = right && (level == 0 || item.pid() == item.parent()->uuid());
    });
    return right;
}

QList<TreeItem *> subjectsOf(TreeItem *head)
{
    QList<TreeItem *> subjects{head};
    for (int i = 0; i < subjects.size(); ++i)
        subjects += subjects.at(i)->children();
    return subjects;
}

/** A diagram of @p count subjects, each below a random one before it. */
Tree randomTree(int count, QRandomGenerator &random)
{
    auto head = std::make_unique<TreeItem>(QStringLiteral("h"), QStringLiteral("h"), QString(),
                                           QString(), 0);
    QList<TreeItem *> subjects{head.get()};
    for (int i = 0; i < count; ++i) {
        TreeItem *const parent = subjects.at(random.bounded(subjects.size()));
        const QString name = QStringLiteral("s%1").arg(i);
        subjects.append(new TreeItem(name, name, QString(), parent->uuid(), 0, parent));
        parent->appendChild(subjects.last());
    }
    return head;
}

/** Edits some of the subjects below @p head, only those whose number leaves @p rest when it is
 * divided by two; any with a negative one. */
void editAtRandom(TreeItem *head, int rest, const QString &by, QRandomGenerator &random)
{
    for (int i = 0; i < 6; ++i) {
        const QList<TreeItem *> all = subjectsOf(head);
        TreeItem *const subject = all.at(random.bounded(all.size()));
        const int number = subject->uuid().mid(1).toInt();
        if (subject == head || !subject->uuid().startsWith(QLatin1Char('s')) ||
            (rest >= 0 && number % 2 != rest))
            continue;
        TreeItem *const parent = subject->parent();
        switch (random.bounded(rest < 0 ? 4 : 2)) {
        case 0:
            subject->setTitle(by + QString::number(i));
            break;
        case 1: {
            const QString name = by + QString::number(i);
            auto *const child = new TreeItem(name, name, QString(), subject->uuid(), 0, subject);
            subject->appendChild(child, random.bounded(subject->childCount() + 1));
            break;
        }
        case 2:
            parent->removeChildren(subject->index(), 1);
            break;
        default:
            TreeItem *const target = all.at(random.bounded(all.size()));
            if (target == subject || subject->isAncestorOf(target))
                break;
            target->appendChild(parent->takeAt(subject->index()));
            subject->setPid(target->uuid());
        }
    }
}

QSet<QString> uuidsOf(TreeItem *head)
{
    QSet<QString> uuids;
    for (const TreeItem *const subject : subjectsOf(head))
        uuids.insert(subject->uuid());
    return uuids;
}

} // namespace

void TestDiagramMerge::shouldTakeOverWhatOneVersionChanged_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("ours");
    QTest::addColumn<QString>("theirs");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *base, const char *ours, const char *theirs,
                        const char *expected) {
        QTest::newRow(name) << QString(QLatin1String(base)) << QString(QLatin1String(ours))
                            << QString(QLatin1String(theirs)) << QString(QLatin1String(expected));
    };
    row("nothing", "h[a,b]", "h[a,b]", "h[a,b]", "h[a,b]");
    row("a title", "h[a,b]", "h[a,b]", "h[a=x,b]", "h[a=x,b]");
    row("titles", "h[a,b]", "h[a,b=y]", "h[a=x,b]", "h[a=x,b=y]");
    row("the same title", "h[a]", "h[a=x]", "h[a=x]", "h[a=x]");
    row("a new subject", "h[a,b]", "h[a,b]", "h[a,n,b]", "h[a,n,b]");
    row("new subjects", "h[a,b]", "h[m,a,b]", "h[a,b[n]]", "h[m,a,b[n]]");
    row("new subjects in one place", "h[a,b]", "h[a,n,b]", "h[a,m,b]", "h[a,m,n,b]");
    row("a deletion", "h[a[c],b]", "h[a[c],b]", "h[b]", "h[b]");
    row("the same deletion", "h[a,b]", "h[b]", "h[b]", "h[b]");
    row("a move", "h[a[c],b]", "h[a[c],b]", "h[a,b[c]]", "h[a,b[c]]");
    row("a move and a title", "h[a[c],b]", "h[a[c=x],b]", "h[a,b[c]]", "h[a,b[c=x]]");
    row("a move out of a deletion", "h[a[c],b]", "h[a,b[c]]", "h[a[c],b]", "h[a,b[c]]");
    row("an order", "h[a,b,c]", "h[a,b,c]", "h[c,a,b]", "h[c,a,b]");
    row("an order and a new one", "h[a,b,c]", "h[c,a,b]", "h[a,n,b,c]", "h[c,a,n,b]");
    row("a new head", "h[a]", "n[h[a]]", "h[a,b]", "n[h[a,b]]");
}

void TestDiagramMerge::shouldTakeOverWhatOneVersionChanged()
{
    QFETCH(QString, base);
    QFETCH(QString, ours);
    QFETCH(QString, theirs);
    QFETCH(QString, expected);
    QCOMPARE(merged(base, ours, theirs), expected);
    QCOMPARE(merged(base, theirs, ours), expected);
    const DiagramMerge merge(tree(base).get(), tree(ours).get(), tree(theirs).get());
    QCOMPARE(merge.conflicts(), QStringList());
    QVERIFY(arePidsRight(*merge.head()));
}

void TestDiagramMerge::shouldKeepBothInAConflict_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("ours");
    QTest::addColumn<QString>("theirs");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *reason, const char *base, const char *ours, const char *theirs,
                        const char *expected) {
        QTest::newRow(reason) << QString(QLatin1String(base)) << QString(QLatin1String(ours))
                              << QString(QLatin1String(theirs)) << QString(QLatin1String(expected))
                              << QString(QLatin1String(reason));
    };
    row("\"x\": Its title is \"x\" in ours and \"y\" in theirs.", "h[a]", "h[a=x]", "h[a=y]",
        "h[a=x[!]]");
    row("\"x\": It was deleted in ours and changed in theirs.", "h[a,b]", "h[b]", "h[a=x,b]",
        "h[a=x[!],b]");
    row("\"x\": It was changed in ours and deleted in theirs.", "h[a,b]", "h[a=x,b]", "h[b]",
        "h[a=x[!],b]");
    row("\"a\": It was deleted in theirs and has more below it in ours.", "h[a,b]", "h[a[n],b]",
        "h[b]", "h[a[!,n],b]");
    row("\"c\": Theirs has it below \"b\".", "h[a,b,c]", "h[a[c],b]", "h[a,b[c]]", "h[a[c[!]],b]");
    row("\"b\": Theirs has it below \"a\".", "h[a,b]", "h[b[a]]", "h[a[b]]", "h[b[!,a]]");
    row("\"h\": What is below it has another order in theirs.", "h[a,b,c]", "h[b,a,c]", "h[a,c,b]",
        "h[!,b,a,c]");
}

void TestDiagramMerge::shouldKeepBothInAConflict()
{
    QFETCH(QString, base);
    QFETCH(QString, ours);
    QFETCH(QString, theirs);
    QFETCH(QString, expected);
    QFETCH(QString, reason);
    const DiagramMerge merge(tree(base).get(), tree(ours).get(), tree(theirs).get());
    QCOMPARE(textOf(*merge.head()), expected);
    QCOMPARE(merge.conflicts(), QStringList(reason));
    QVERIFY(arePidsRight(*merge.head()));
}

void TestDiagramMerge::shouldMarkAConflictWithACause()
{
    const DiagramMerge merge(tree(QStringLiteral("h[a]")).get(),
                             tree(QStringLiteral("h[a=x]")).get(),
                             tree(QStringLiteral("h[a=y]")).get());
    const Tree head = merge.head();
    const TreeItem *const cause = head->childAtIndex(0)->childAtIndex(0);
    QVERIFY(cause);
    QCOMPARE(cause->title(), QStringLiteral("Merge conflict"));
    QCOMPARE(cause->detail(), QStringLiteral("Its title is \"x\" in ours and \"y\" in theirs."));
    QCOMPARE(cause->pid(), QStringLiteral("a"));
    QVERIFY(TreeItem::isIdentity(cause->uuid()));
    QCOMPARE(bytesOf(*head), bytesOf(*merge.head())); // the same each time
}

void TestDiagramMerge::shouldKeepFieldsOfOthers()
{
    const Tree base = tree(QStringLiteral("h[a]"));
    const Tree ours = tree(QStringLiteral("h[a]"));
    const Tree theirs = tree(QStringLiteral("h[a]"));
    ours->childAtIndex(0)->setOtherFields({{QStringLiteral("cost"), 7}});
    theirs->childAtIndex(0)->setOtherFields({{QStringLiteral("team"), QStringLiteral("B")}});
    const DiagramMerge merge(base.get(), ours.get(), theirs.get());
    QCOMPARE(merge.conflicts(), QStringList());
    const Tree head = merge.head();
    const QJsonObject both{{QStringLiteral("cost"), 7},
                           {QStringLiteral("team"), QStringLiteral("B")}};
    QCOMPARE(head->childAtIndex(0)->otherFields(), both);
}

void TestDiagramMerge::shouldTakeTheViewOfOursWithoutAWord()
{
    const Tree ours = tree(QStringLiteral("h"));
    const Tree theirs = tree(QStringLiteral("h"));
    const QJsonObject view{{QStringLiteral("zoom"), 1}};
    ours->setOtherFields({{QStringLiteral("view"), view}});
    theirs->setOtherFields({{QStringLiteral("view"), QJsonObject{{QStringLiteral("zoom"), 2}}}});
    const DiagramMerge merge(tree(QStringLiteral("h")).get(), ours.get(), theirs.get());
    QCOMPARE(merge.conflicts(), QStringList());
    QCOMPARE(merge.head()->otherFields().value(QStringLiteral("view")).toObject(), view);
}

void TestDiagramMerge::shouldMergeVersionsWithoutABase()
{
    const DiagramMerge merge(nullptr, tree(QStringLiteral("h[a]")).get(),
                             tree(QStringLiteral("h[b]")).get());
    QCOMPARE(textOf(*merge.head()), QStringLiteral("h[a,b]"));
    QCOMPARE(merge.conflicts(), QStringList());
}

void TestDiagramMerge::shouldTellSubjectsWithoutUuidsByTheirPlace()
{
    const auto anonymous = [](const QString &text) {
        Tree head = tree(text);
        for (TreeItem *const subject : subjectsOf(head.get())) {
            subject->setUuid(QString());
            subject->setPid(QString());
        }
        return head;
    };
    const DiagramMerge merge(anonymous(QStringLiteral("h[a,a,b]")).get(),
                             anonymous(QStringLiteral("h[a,a[c],b]")).get(),
                             anonymous(QStringLiteral("h[a,a,b,d]")).get());
    QCOMPARE(textOf(*merge.head()), QStringLiteral("=h[=a,=a[=c],=b,=d]"));
    QCOMPARE(merge.conflicts(), QStringList());
}

void TestDiagramMerge::shouldBeTheSameBothWaysRoundWithoutConflicts()
{
    QRandomGenerator random(1);
    int quiet = 0;
    for (int round = 0; round < randomRounds; ++round) {
        const Tree base = randomTree(25, random);
        const Tree ours = copyOf(*base);
        const Tree theirs = copyOf(*base);
        const bool any = round % 3 == 0;
        editAtRandom(ours.get(), any ? -1 : 0, QStringLiteral("o"), random);
        editAtRandom(theirs.get(), any ? -1 : 1, QStringLiteral("t"), random);
        const DiagramMerge there(base.get(), ours.get(), theirs.get());
        const DiagramMerge back(base.get(), theirs.get(), ours.get());
        QVERIFY(arePidsRight(*there.head()));
        QCOMPARE(there.conflicts().isEmpty(), back.conflicts().isEmpty());
        if (!any)
            QCOMPARE(there.conflicts(), QStringList());
        if (!there.conflicts().isEmpty())
            continue;
        ++quiet;
        QCOMPARE(bytesOf(*back.head()), bytesOf(*there.head()));
    }
    QVERIFY(quiet > randomRounds * 2 / 3);
}

void TestDiagramMerge::shouldLoseNoSubject()
{
    QRandomGenerator random(2);
    for (int round = 0; round < randomRounds; ++round) {
        const Tree base = randomTree(20, random);
        const Tree ours = copyOf(*base);
        const Tree theirs = copyOf(*base);
        editAtRandom(ours.get(), -1, QStringLiteral("o"), random);
        editAtRandom(theirs.get(), -1, QStringLiteral("t"), random);
        const Tree head = DiagramMerge(base.get(), ours.get(), theirs.get()).head();
        const QSet<QString> before = uuidsOf(base.get());
        const QSet<QString> inOurs = uuidsOf(ours.get());
        const QSet<QString> inTheirs = uuidsOf(theirs.get());
        const QSet<QString> result = uuidsOf(head.get());
        for (const QString &uuid : inOurs + inTheirs) {
            const bool wasDeleted =
                before.contains(uuid) && !(inOurs.contains(uuid) && inTheirs.contains(uuid));
            QVERIFY2(wasDeleted || result.contains(uuid), qPrintable(uuid));
        }
        QCOMPARE(subjectsOf(head.get()).size(), result.size()); // none twice
    }
}

void TestDiagramMerge::shouldTakeTimeInProportion()
{
    const auto millisecondsFor = [](int count) {
        QRandomGenerator random(3);
        const Tree base = randomTree(count, random);
        const Tree ours = copyOf(*base);
        const Tree theirs = copyOf(*base);
        ours->childAtIndex(0)->setTitle(QStringLiteral("x"));
        QElapsedTimer timer;
        timer.start();
        const Tree head = DiagramMerge(base.get(), ours.get(), theirs.get()).head();
        return head ? qMax(qint64(1), timer.elapsed()) : 0;
    };
    const qint64 few = millisecondsFor(2000);
    const qint64 many = millisecondsFor(16000);
    // Eight times as many; a square would take sixty-four times as long.
    QVERIFY2(many < 32 * qMax(few, qint64(5)),
             qPrintable(QStringLiteral("%1 and %2 ms").arg(few).arg(many)));
}

FISHBONE_GUILESS_TEST(TestDiagramMerge)
#include "tst_diagrammerge.moc"
