// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/display/accessibilitybus.h>

#include <tests/program/testprogram.h>
#include <tests/support/sourcefolder.h>

#include <QFile>
#include <QJsonArray>
#include <QRegularExpression>

#include <functional>

namespace {

QString textOf(const QJsonObject &object, const char *field)
{
    return object[QLatin1String(field)].toString();
}

bool has(const QJsonObject &object, const char *state)
{
    return object[QLatin1String("states")].toArray().contains(QLatin1String(state));
}

QVector<QJsonObject> childrenOf(const QJsonObject &object)
{
    QVector<QJsonObject> children;
    const QJsonArray all = object[QLatin1String("children")].toArray();
    for (const QJsonValue &child : all)
        children.append(child.toObject());
    return children;
}

/** All objects from @p root down, of which @p isWanted. */
QVector<QJsonObject> all(const QJsonObject &root,
                         const std::function<bool(const QJsonObject &)> &isWanted)
{
    QVector<QJsonObject> found;
    QVector<QJsonObject> open{root};
    while (!open.isEmpty()) {
        const QJsonObject object = open.takeFirst();
        if (isWanted(object))
            found.append(object);
        open += childrenOf(object);
    }
    return found;
}

QVector<QJsonObject> ofRole(const QJsonObject &root, const char *role)
{
    return all(root, [role](const QJsonObject &object) {
        return textOf(object, "role") == QLatin1String(role);
    });
}

QJsonObject named(const QJsonObject &root, const char *role, const char *name)
{
    return all(root,
               [role, name](const QJsonObject &object) {
                   return textOf(object, "role") == QLatin1String(role) &&
                          textOf(object, "name") == QString::fromUtf8(name);
               })
        .value(0);
}

/** What is shown as text: "Late[People,Machines]". */
QString outline(const QJsonObject &item)
{
    QStringList below;
    const QVector<QJsonObject> children = childrenOf(item);
    for (const QJsonObject &child : children)
        below.append(outline(child));
    const QString name = textOf(item, "name");
    return below.isEmpty()
               ? name
               : name + QLatin1Char('[') + below.join(QLatin1Char(',')) + QLatin1Char(']');
}

const char *const lateDiagram = R"({"title": "Late", "uuid": "{h}", "pid": "-1", "children": [
    {"title": "People", "uuid": "{a}", "pid": "{h}", "status": 5, "progress": 40, "children": [
        {"title": "Too few", "uuid": "{b}", "pid": "{a}"},
        {"title": "Too new", "uuid": "{d}", "pid": "{a}"}]},
    {"title": "Machines", "uuid": "{e}", "pid": "{h}"}]})";
const char *const lostDiagram = R"({"title": "Lost", "uuid": "{x}", "pid": "-1", "children": [
    {"title": "Post", "uuid": "{y}", "pid": "{x}"}]})";

} // namespace

/** What a real client of the accessibility bus is told by the real program. */
class TestAssistiveTechnology : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_program.reset(); }
    void shouldShowTheDiagramAsATree();
    void shouldTellLevelsAndStatuses();
    void shouldTellWhatIsExpanded();
    void shouldShowTheTreeOfSubjectsOnce();
    void shouldShowNoIdentities();
    void shouldTellWhatIsExpandedInTheTree();
    void shouldShowTheCurrentDocumentAlone();
    void shouldFollowTheSelection();

private:
    /** What the program shows when @p isSo; nothing, and the test fails, if it never is. */
    QJsonObject shownWhen(const std::function<bool(const QJsonObject &)> &isSo)
    {
        QJsonObject shown;
        const bool came = QTest::qWaitFor(
            [&] {
                shown = m_program->tree();
                return isSo(shown);
            },
            10000);
        if (came)
            return shown;
        qWarning().noquote() << QJsonDocument(shown).toJson(); // which fails the test
        return {};
    }
    /** The trees, one of which is the diagram @p title. */
    QJsonObject shownWith(const QString &title)
    {
        return shownWhen([&title](const QJsonObject &shown) {
            const QVector<QJsonObject> trees = ofRole(shown, "tree");
            return std::any_of(trees.begin(), trees.end(), [&title](const QJsonObject &tree) {
                return textOf(tree, "name") == QStringLiteral("Diagram: ") + title;
            });
        });
    }

    AccessibilityBus m_bus;
    std::unique_ptr<AssistedProgram> m_program;
};

void TestAssistiveTechnology::initTestCase()
{
    QVERIFY2(m_bus.isThere(),
             "Xvfb or dbus-daemon, from the packages xvfb and dbus, does not start");
    QVERIFY2(QProcess::execute(QStringLiteral("/usr/bin/python3"),
                               {QStringLiteral("-c"), QStringLiteral("import pyatspi")}) == 0,
             "the package python3-pyatspi is missing");
    const auto write = [this](const char *name, const char *content) {
        QFile file(m_bus.home() + QLatin1Char('/') + QLatin1String(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(content) > 0);
    };
    write("lost.json", lostDiagram);
    write("late.json", lateDiagram);
}

void TestAssistiveTechnology::init()
{
    const QString home = m_bus.home();
    m_program = std::make_unique<AssistedProgram>(
        m_bus, QStringLiteral(FISHBONE_PROGRAM),
        QStringList{QStringLiteral("--language"), QStringLiteral("en"),
                    home + QStringLiteral("/lost.json"), home + QStringLiteral("/late.json")},
        TestSupport::sourceFile(QStringLiteral("tests/display/atspi_client.py")));
}

void TestAssistiveTechnology::shouldShowTheDiagramAsATree()
{
    const QJsonObject shown = shownWith(QStringLiteral("Late"));
    const QJsonObject diagram = named(shown, "tree", "Diagram: Late");
    QCOMPARE(childrenOf(diagram).size(), 1);
    QCOMPARE(outline(childrenOf(diagram).constFirst()), QStringLiteral("Late[People,Machines]"));
    QCOMPARE(ofRole(diagram, "tree item").size(), 3);
    QCOMPARE(ofRole(diagram, "table cell").size(), 0);
}

void TestAssistiveTechnology::shouldTellLevelsAndStatuses()
{
    const QJsonObject diagram = named(shownWith(QStringLiteral("Late")), "tree", "Diagram: Late");
    QCOMPARE(textOf(named(diagram, "tree item", "Late"), "description"), QStringLiteral("level 0"));
    QCOMPARE(textOf(named(diagram, "tree item", "Machines"), "description"),
             QStringLiteral("level 1"));
    QCOMPARE(textOf(named(diagram, "tree item", "People"), "description"),
             QStringLiteral("level 1, under way, 40 %"));
}

void TestAssistiveTechnology::shouldTellWhatIsExpanded()
{
    QJsonObject diagram = named(shownWith(QStringLiteral("Late")), "tree", "Diagram: Late");
    QJsonObject people = named(diagram, "tree item", "People");
    QVERIFY(has(people, "expandable"));
    QVERIFY(has(people, "collapsed"));
    QVERIFY(!has(people, "expanded"));
    QVERIFY(!has(named(diagram, "tree item", "Machines"), "expandable"));

    QVERIFY(m_program->act("Toggle", "tree item", "People"));
    diagram = named(shownWhen([](const QJsonObject &shown) {
                        const QJsonObject tree = named(shown, "tree", "Diagram: Late");
                        return !named(tree, "tree item", "Too new").isEmpty();
                    }),
                    "tree", "Diagram: Late");
    people = named(diagram, "tree item", "People");
    QVERIFY(has(people, "expanded"));
    QVERIFY(!has(people, "collapsed"));
    QCOMPARE(outline(childrenOf(diagram).constFirst()),
             QStringLiteral("Late[People[Too few,Too new],Machines]"));
    QCOMPARE(textOf(named(diagram, "tree item", "Too new"), "description"),
             QStringLiteral("level 2"));
}

void TestAssistiveTechnology::shouldShowTheTreeOfSubjectsOnce()
{
    const QJsonObject shown = shownWith(QStringLiteral("Late"));
    QStringList names;
    const QVector<QJsonObject> trees = ofRole(shown, "tree");
    for (const QJsonObject &tree : trees)
        names.append(textOf(tree, "name"));
    names.sort();
    QCOMPARE(names, (QStringList{QStringLiteral("Actions"), QStringLiteral("Diagram: Late"),
                                 QStringLiteral("History"), QStringLiteral("Subjects")}));
    const QJsonObject subjects = named(shown, "tree", "Subjects");
    QCOMPARE(childrenOf(subjects).size(), 1);
    QCOMPARE(outline(childrenOf(subjects).constFirst()), QStringLiteral("Late[People,Machines]"));
    QCOMPARE(ofRole(subjects, "tree item").size(), 3);
    QCOMPARE(all(subjects, [](const QJsonObject &) { return true; }).size(), 4);
    QCOMPARE(textOf(named(subjects, "tree item", "People"), "description"),
             QStringLiteral("level 1, under way"));
}

void TestAssistiveTechnology::shouldShowNoIdentities()
{
    static const QRegularExpression identity(QStringLiteral("[{]|^(uuid|pid|showid|type)$"));
    const QJsonObject shown = shownWith(QStringLiteral("Late"));
    QVERIFY(ofRole(shown, "tree item").size() >= 6);
    const QVector<QJsonObject> found = all(shown, [](const QJsonObject &object) {
        return textOf(object, "name").contains(identity) ||
               textOf(object, "description").contains(identity);
    });
    QCOMPARE(found.size(), 0);
}

void TestAssistiveTechnology::shouldTellWhatIsExpandedInTheTree()
{
    const auto subjects = [](const QJsonObject &shown) { return named(shown, "tree", "Subjects"); };
    const QJsonObject before = subjects(shownWith(QStringLiteral("Late")));
    QVERIFY(has(named(before, "tree item", "Late"), "expanded"));
    QVERIFY(has(named(before, "tree item", "People"), "collapsed"));
    QVERIFY(!has(named(before, "tree item", "Machines"), "expandable"));

    // The first such item is the bone: drawing and tree are expanded as one.
    QVERIFY(m_program->act("Toggle", "tree item", "People"));
    const QJsonObject after = subjects(shownWhen([&](const QJsonObject &shown) {
        return !named(subjects(shown), "tree item", "Too new").isEmpty();
    }));
    QVERIFY(has(named(after, "tree item", "People"), "expanded"));
    QCOMPARE(outline(childrenOf(after).value(0)),
             QStringLiteral("Late[People[Too few,Too new],Machines]"));
}

void TestAssistiveTechnology::shouldShowTheCurrentDocumentAlone()
{
    const auto diagrams = [](const QJsonObject &shown) {
        QStringList names;
        const QVector<QJsonObject> trees = ofRole(shown, "tree");
        for (const QJsonObject &tree : trees) {
            if (textOf(tree, "name").startsWith(QLatin1String("Diagram")))
                names.append(textOf(tree, "name"));
        }
        return names;
    };
    QCOMPARE(diagrams(shownWith(QStringLiteral("Late"))),
             QStringList(QStringLiteral("Diagram: Late")));
    QVERIFY(m_program->act("Press", "page tab", "lost.json"));
    const QJsonObject shown = shownWith(QStringLiteral("Lost"));
    QCOMPARE(diagrams(shown), QStringList(QStringLiteral("Diagram: Lost")));
    QCOMPARE(outline(childrenOf(named(shown, "tree", "Subjects")).value(0)),
             QStringLiteral("Lost[Post]"));
}

void TestAssistiveTechnology::shouldFollowTheSelection()
{
    shownWith(QStringLiteral("Late"));
    QVERIFY(m_program->act("Press", "tree item", "Machines"));
    const QJsonObject shown = shownWhen([](const QJsonObject &now) {
        return has(named(named(now, "tree", "Subjects"), "tree item", "Machines"), "selected");
    });
    QVERIFY(has(named(named(shown, "tree", "Diagram: Late"), "tree item", "Machines"), "selected"));
    QVERIFY(!has(named(named(shown, "tree", "Subjects"), "tree item", "People"), "selected"));
}

/** Without windows of its own: what it shows, it has others show. */
FISHBONE_GUILESS_TEST(TestAssistiveTechnology)
#include "tst_assistivetechnology.moc"
