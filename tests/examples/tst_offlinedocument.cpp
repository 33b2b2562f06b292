// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/examples/taskmaps.h>
#include <tests/program/testprogram.h>

#include <modeltree.h>
#include <offlinedocument.h>
#include <taskfields.h>

#include <fishbone/model/fishmodel.h>

using namespace TaskMaps;

class TestOfflineDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_known = small();
        m_known.insert(QStringLiteral("other"), task(QStringLiteral("other"), QString(), 99));
        for (Task &each : m_known) {
            each.fields = TaskFields::normalized(each.fields);
            each.version = 5;
        }
        FishModel model;
        ModelTree::show(model, m_known);
        m_document = OfflineDocument::write(model, model.modelIndexByUuid(QStringLiteral("h")), 5);
    }

    void aDocumentThatComesBackUnchangedChangesNothing()
    {
        const TaskMerge::Result merged = OfflineDocument::merge(m_known, m_document);
        QVERIFY(merged.conflicts.isEmpty());
        QCOMPARE(outline(merged.tasks), outline(m_known));
        for (const Task &each : std::as_const(m_known))
            QCOMPARE(merged.tasks.value(each.uuid).fields, each.fields);
    }

    void whatWasEditedElsewhereComesIn()
    {
        m_document.replace(R"("title": "b")", R"("title": "Edited")");
        const TaskMerge::Result merged = OfflineDocument::merge(m_known, m_document);
        QVERIFY(merged.conflicts.isEmpty());
        QCOMPARE(merged.tasks.value(QStringLiteral("b")).title(), QStringLiteral("Edited"));
    }

    void whatWasAddedMovedAndRemovedElsewhereComesIn()
    {
        FishModel elsewhere;
        QVERIFY(elsewhere.loadJsonFish(m_document));
        const QModelIndex head = elsewhere.index(0, 0);
        QVERIFY(elsewhere.moveRows(elsewhere.modelIndexByUuid(QStringLiteral("a")), 0, 1, head, 2));
        QVERIFY(elsewhere.removeRows(0, 1, head)); // a
        QVERIFY(elsewhere.insertRows(0, 1, head));
        QJsonObject saved;
        FishModel::write(saved, elsewhere.getTreeItem(elsewhere.index(0, 0)), true);
        const TaskMerge::Result merged =
            OfflineDocument::merge(m_known, QJsonDocument(saved).toJson());
        QVERIFY(merged.conflicts.isEmpty());
        const QString added = elsewhere.index(0, 1, elsewhere.index(0, 0)).data().toString();
        QCOMPARE(outline(merged.tasks), QStringLiteral("h(%1bc)other").arg(added));
    }

    void whatBothHaveChangedIsAConflict()
    {
        m_document.replace(R"("title": "b")", R"("title": "Edited")");
        Task &changed = m_known[QStringLiteral("b")];
        changed.fields.insert(QStringLiteral("title"), QStringLiteral("Meanwhile"));
        changed.version = 6;
        const TaskMerge::Result merged = OfflineDocument::merge(m_known, m_document);
        QCOMPARE(merged.tasks.value(QStringLiteral("b")).title(), QStringLiteral("Meanwhile"));
        QCOMPARE(merged.conflicts.size(), 1);
        QCOMPARE(merged.conflicts.constFirst().key, QStringLiteral("title"));
        QCOMPARE(merged.conflicts.constFirst().mine.title(), QStringLiteral("Edited"));
    }

    void whatIsNewerThanTheDocumentStays()
    {
        Task newer = task(QStringLiteral("n"), QStringLiteral("b"), 1);
        newer.version = 6;
        m_known.insert(newer.uuid, newer);
        QCOMPARE(outline(OfflineDocument::merge(m_known, m_document).tasks),
                 QStringLiteral("h(a(c)b(n))other"));
    }

    void aDiagramFromElsewhereIsAddedAndDeletesNothing()
    {
        const TaskMerge::Result merged = OfflineDocument::merge(
            m_known, R"({"title": "New", "uuid": "x", "children": [{"title": "y", "uuid": "y"}]})");
        QVERIFY(merged.conflicts.isEmpty());
        QCOMPARE(merged.tasks.size(), m_known.size() + 2);
        QCOMPARE(merged.tasks.value(QStringLiteral("y")).parent, QStringLiteral("x"));
    }

    void whatIsNoDiagramChangesNothing()
    {
        QCOMPARE(OfflineDocument::merge(m_known, "no diagram").tasks.size(), m_known.size());
    }

private:
    TaskMap m_known;
    QByteArray m_document;
};

FISHBONE_GUILESS_TEST(TestOfflineDocument)
#include "tst_offlinedocument.moc"
