// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/examples/taskmaps.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>

#include <modeltree.h>
#include <taskfields.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/undo/undostack.h>

#include <random>

using namespace TaskMaps;
using namespace TestSupport;

namespace {

/** The tasks with their fields as the library reads them. */
TaskMap normalized(TaskMap tasks)
{
    for (Task &each : tasks)
        each.fields = TaskFields::normalized(each.fields);
    return tasks;
}

bool areSame(const TaskMap &one, const TaskMap &other)
{
    if (TaskTree::preOrder(one) != TaskTree::preOrder(other))
        return false;
    return std::all_of(one.cbegin(), one.cend(), [&other](const Task &task) {
        const Task counterpart = other.value(task.uuid);
        return task.parent == counterpart.parent && task.fields == counterpart.fields;
    });
}

/** A tree of @p count tasks in which @p random decides who stands where. */
TaskMap randomTree(std::mt19937 &random, int count)
{
    TaskMap tasks;
    QStringList there{QString()};
    for (int i = 0; i < count; ++i) {
        // Others are left out each time, and the order is another.
        const QString uuid = QStringLiteral("t%1").arg((i * 7 + int(random() % 3)) % 50);
        if (tasks.contains(uuid))
            continue;
        tasks.insert(uuid,
                     task(uuid, there.at(int(random() % unsigned(there.size()))),
                          qint64(random() % 100000), QStringLiteral("title %1").arg(random() % 5)));
        there.append(uuid);
    }
    return normalized(tasks);
}

} // namespace

class TestModelTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyTreeIsShownOverAnyOther()
    {
        FishModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        std::mt19937 random(1);
        TaskMap shown;
        for (int i = 0; i < 100; ++i) {
            const TaskMap target = randomTree(random, 2 + i % 40);
            ModelTree::show(model, target);
            shown = ModelTree::read(model, target);
            QVERIFY2(areSame(shown, target),
                     qPrintable(outline(shown) + QLatin1Char('\n') + outline(target)));
            for (const Task &each : target) // and no position has changed, either
                QCOMPARE(shown.value(each.uuid).position, each.position);
        }
    }

    void allFieldsComeBackAsTheyWere()
    {
        Task one = task(QStringLiteral("h"), QString(), 1, QStringLiteral("Häupt"));
        one.fields.insert(QStringLiteral("detail"), QStringLiteral("two\nlines"));
        one.fields.insert(QStringLiteral("planenddate"), 1790000000000.0);
        one.fields.insert(QStringLiteral("verdict"), QStringLiteral("likely")); // not the format's
        one.fields.insert(QStringLiteral("spearstyle"),
                          QJsonObject{{QStringLiteral("wordcount"), 12}});
        const TaskMap target = normalized(map({one}));
        FishModel model;
        ModelTree::show(model, target);
        QCOMPARE(ModelTree::read(model, target).value(one.uuid).fields,
                 target.value(one.uuid).fields);
        QCOMPARE(target.value(one.uuid).fields.value(QStringLiteral("verdict")).toString(),
                 QStringLiteral("likely"));
        QVERIFY(target.value(one.uuid).fields.contains(QStringLiteral("planenddate")));
    }

    void selectionExpansionAndHistoryStay()
    {
        EditorFixture stage(QStringLiteral("Head[A[A1,A2[A21]],B[B1],C]"));
        QVERIFY(stage.show());
        stage.editor.expandAll();
        stage.select({QStringLiteral("A21")});
        stage.editor.renameItem(stage.index(QStringLiteral("B1")), QStringLiteral("Own"));
        const int steps = stage.editor.undoStack()->count();
        const SpearItem *const spear = stage.spear(QStringLiteral("A21"));

        TaskMap target = ModelTree::read(stage.model, {});
        const auto uuidOf = [&](const char *title) {
            return stage.subject(QString::fromLatin1(title))->uuid();
        };
        target[uuidOf("A2")].parent = uuidOf("B"); // with the selected one below it
        target[uuidOf("C")].position = -5;
        target.remove(uuidOf("A1"));
        target.insert(QStringLiteral("new"), task(QStringLiteral("new"), uuidOf("A"), 3));
        target = normalized(target);
        ModelTree::show(stage.model, target);
        stage.editor.updateFish(false);

        QVERIFY(areSame(ModelTree::read(stage.model, target), target));
        QCOMPARE(stage.spear(QStringLiteral("A21")), spear);
        QVERIFY(spear->isSelected());
        QVERIFY(spear->isVisible());
        QVERIFY(stage.spear(QStringLiteral("new")));
        QCOMPARE(stage.editor.undoStack()->count(), steps);
        stage.editor.undo();
        QVERIFY(stage.subject(QStringLiteral("B1")));
    }

    void whatHasNoUuidOrThatOfAnotherIsGivenOne()
    {
        FishModel model;
        QVERIFY(model.loadJsonFish(R"({"title": "h", "children": [
            {"title": "one", "uuid": "same"}, {"title": "two", "uuid": "same"}]})"));
        const TaskMap tasks = ModelTree::read(model, {});
        QCOMPARE(tasks.size(), 3);
        QVERIFY(tasks.contains(QStringLiteral("same")));
        QCOMPARE(TaskTree::preOrder(ModelTree::read(model, tasks)), TaskTree::preOrder(tasks));
    }

    void ofTenThousandTasksOneChangeTakesLittle()
    {
        TaskMap tasks = map({task(QStringLiteral("h"), QString(), 1)});
        for (int i = 0; i < 10000; ++i) {
            const QString uuid = QStringLiteral("t%1").arg(i);
            const QString parent =
                i < 10 ? QStringLiteral("h") : QStringLiteral("t%1").arg((i - 10) / 10);
            tasks.insert(uuid, task(uuid, parent, i));
        }
        tasks = normalized(tasks);
        FishModel model;
        QElapsedTimer timer;
        timer.start();
        ModelTree::show(model, tasks);
        const qint64 filled = timer.restart();
        tasks[QStringLiteral("t9999")].parent = QStringLiteral("t0");
        ModelTree::show(model, tasks);
        const qint64 changed = timer.restart();
        QVERIFY(areSame(ModelTree::read(model, tasks), tasks));
        QVERIFY2(filled < 20000 && changed < 5000,
                 qPrintable(QStringLiteral("%1 ms, %2 ms").arg(filled).arg(changed)));
        qInfo("10,000 tasks: filled in %lld ms, one moved in %lld ms", filled, changed);
    }
};

FISHBONE_TEST(TestModelTree)
#include "tst_modeltree.moc"
