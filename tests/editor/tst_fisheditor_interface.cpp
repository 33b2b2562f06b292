// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QMetaMethod>
#include <QtTest>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <tests/program/testprogram.h>
#include <tests/support/editorfixture.h>
#include <tests/support/metatypes.h>
#include <tests/support/signalrecorder.h>

using namespace TestSupport;

class TestFishEditorInterface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldBeAFrame();
    void shouldDeclareSignalsInOrder();
    void shouldDeclareSlotsInOrder();
    void shouldOfferNothingElseToTheMetaObjectSystem();
    void shouldNumberTheWaysAParentChanges();
    void shouldRegisterTheTypesOfItsSlots();
    void shouldRunItsSlotsByName();
    void shouldPassEveryArgumentOfAQueuedSignal();
    void shouldNeverSayThatContentsChanged();
};

namespace {
/** "zoomIn(int level)": the types and names of the parameters as declared. */
QString declarationOf(const QMetaMethod &method)
{
    const QList<QByteArray> types = method.parameterTypes();
    const QList<QByteArray> names = method.parameterNames();
    QStringList parameters;
    for (int i = 0; i < types.size(); ++i)
        parameters.append(QString::fromLatin1(types.at(i) + ' ' + names.at(i)).trimmed());
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(method.name()),
                                        parameters.join(QLatin1String(", ")));
}

QStringList declarations(const QMetaObject &type, QMetaMethod::MethodType kind)
{
    QStringList found;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        if (type.method(i).methodType() == kind)
            found.append(declarationOf(type.method(i)));
    }
    return found;
}
} // namespace

void TestFishEditorInterface::shouldBeAFrame()
{
    QCOMPARE(FishEditor::staticMetaObject.superClass(), &QFrame::staticMetaObject);
}

void TestFishEditorInterface::shouldDeclareSignalsInOrder()
{
    const QStringList expected{
        QStringLiteral("copyAvailable(bool)"),
        QStringLiteral("onCollaps(QModelIndex index)"),
        QStringLiteral("onExpand(QModelIndex index)"),
        QStringLiteral("onCollapsAll()"),
        QStringLiteral("onExpandAll()"),
        QStringLiteral("clipBoardAvailable(bool)"),
        QStringLiteral("contentsChanged()"),
        QStringLiteral("oneTaskClicked(QString title, QString taskId)"),
        QStringLiteral("createNewSubTask(QString title, QString taskId, QString showid)"),
        QStringLiteral("changeTaskParent(QStringList childIds, QString, CHANGE_PARENT_TYPE type)"),
        QStringLiteral("changeFishWithModelIndex(QModelIndex index)"),
        QStringLiteral("editTaskDetail(QModelIndex index)"),
        QStringLiteral("insertChildTask(QModelIndex parentIndex)"),
        QStringLiteral("zoomValueChanged(int value)"),
        QStringLiteral("rotateValueChanged(int value)"),
    };
    QCOMPARE(declarations(FishEditor::staticMetaObject, QMetaMethod::Signal), expected);
}

void TestFishEditorInterface::shouldDeclareSlotsInOrder()
{
    const QStringList expected{
        QStringLiteral("print()"),
        QStringLiteral("fullSize()"),
        QStringLiteral("zoomIn(int level)"),
        QStringLiteral("zoomOut(int level)"),
        QStringLiteral("setZoomValue(int value)"),
        QStringLiteral("setRotateValue(int value)"),
        QStringLiteral("zoomFish(int value)"),
        QStringLiteral("rotateFish(int value)"),
        QStringLiteral("rotateReset()"),
        QStringLiteral("showEntire()"),
        QStringLiteral("showSelected()"),
        QStringLiteral("contractAll()"),
        QStringLiteral("expandAll()"),
        QStringLiteral("undo()"),
        QStringLiteral("redo()"),
        QStringLiteral("cut()"),
        QStringLiteral("copy()"),
        QStringLiteral("paste()"),
        QStringLiteral("del()"),
        QStringLiteral("selectAll()"),
        QStringLiteral("insertSubject()"),
        QStringLiteral("appendSubject()"),
        QStringLiteral("insertChildSubject()"),
        QStringLiteral("insertParentSubject()"),
        QStringLiteral("insertFreeSubject()"),
        QStringLiteral("insertChildSubject(QModelIndex, TreeItem* item)"),
        QStringLiteral("editSubject(QModelIndex, TreeItem* item)"),
        QStringLiteral("deleteSubject(QModelIndex)"),
        QStringLiteral("modifyLink()"),
        QStringLiteral("modifyDelLink()"),
        QStringLiteral("modifyOpenLink()"),
        QStringLiteral("modifyExpand()"),
        QStringLiteral("modifyContract()"),
        QStringLiteral("modifyExpandAll()"),
        QStringLiteral("modifyContractAll()"),
        QStringLiteral("setRootIndex(QModelIndex)"),
        QStringLiteral("setupMatrix()"),
        QStringLiteral("sceneSelectionChanged()"),
        QStringLiteral("modelDataChanged(QModelIndex topLeft, QModelIndex bottomRight)"),
        QStringLiteral("refreshFish()"),
        QStringLiteral("onRightClicked(void* data)"),
        QStringLiteral("moveItems(QPoint, QList<QGraphicsItem*> srcs, QModelIndex, int)"),
        QStringLiteral("onDropTo(const QMimeData* mimeData, QModelIndex indexTo, int)"),
        QStringLiteral("saveTmpFile()"),
    };
    QCOMPARE(declarations(FishEditor::staticMetaObject, QMetaMethod::Slot), expected);
}

void TestFishEditorInterface::shouldOfferNothingElseToTheMetaObjectSystem()
{
    const QMetaObject &type = FishEditor::staticMetaObject;

    QCOMPARE(declarations(type, QMetaMethod::Method), QStringList());
    QCOMPARE(type.constructorCount(), 0);
    QStringList properties;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        properties.append(QString::fromLatin1(type.property(i).name()));
    QCOMPARE(properties, QStringList({QStringLiteral("zoom"), QStringLiteral("rotation")}));
    for (int i = type.methodOffset(); i < type.methodCount(); ++i)
        QVERIFY2(type.method(i).access() == QMetaMethod::Public,
                 qPrintable(declarationOf(type.method(i))));
}

void TestFishEditorInterface::shouldNumberTheWaysAParentChanges()
{
    QCOMPARE(int(CHANGE_PARENT_BY_DROP), 0);
    QCOMPARE(int(CHANGE_PARENT_BY_MOVE), 1);
    QCOMPARE(sizeof(CHANGE_PARENT_TYPE), sizeof(int));
}

void TestFishEditorInterface::shouldRegisterTheTypesOfItsSlots()
{
    const FishEditor editor;

    QVERIFY(isRegisteredType("TreeItem*"));
    QVERIFY(isRegisteredType("QList<QGraphicsItem*>"));
    QVERIFY(isRegisteredType("CHANGE_PARENT_TYPE"));
    const QMetaObject &type = *editor.metaObject();
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        for (int parameter = 0; parameter < method.parameterCount(); ++parameter)
            QVERIFY2(method.parameterType(parameter) != QMetaType::UnknownType,
                     qPrintable(declarationOf(method)));
    }
}

void TestFishEditorInterface::shouldRunItsSlotsByName()
{
    EditorFixture fish(QStringLiteral("Effect[Man[Training],Machine]"));
    auto *const item =
        new TreeItem(QStringLiteral("New"), QStringLiteral("u-New"), QString(), QString(), 0);

    QVERIFY(QMetaObject::invokeMethod(&fish.editor, "insertChildSubject",
                                      Q_ARG(QModelIndex, fish.index(QStringLiteral("Man"))),
                                      Q_ARG(TreeItem *, item)));
    QCOMPARE(treeToText(*fish.subject(QStringLiteral("Effect"))),
             QStringLiteral("Effect[Man[Training,New],Machine]"));

    const QList<QGraphicsItem *> moved{fish.spear(QStringLiteral("Machine"))};
    QVERIFY(QMetaObject::invokeMethod(
        &fish.editor, "moveItems", Q_ARG(QPoint, QPoint()), Q_ARG(QList<QGraphicsItem *>, moved),
        Q_ARG(QModelIndex, fish.index(QStringLiteral("Man"))), Q_ARG(int, 0)));
    QCOMPARE(treeToText(*fish.subject(QStringLiteral("Effect"))),
             QStringLiteral("Effect[Man[Machine,Training,New]]"));

    QVERIFY(QMetaObject::invokeMethod(&fish.editor, "zoomFish", Q_ARG(int, 300)));
    QCOMPARE(fish.editor.zoomValue(), 300);
}

void TestFishEditorInterface::shouldPassEveryArgumentOfAQueuedSignal()
{
    FishEditor editor;
    QString received;
    connect(
        &editor, &FishEditor::changeTaskParent, &editor,
        [&received](const QStringList &ids, const QString &parent, CHANGE_PARENT_TYPE type) {
            received =
                QStringLiteral("%1 %2 %3").arg(ids.join(QLatin1Char('+')), parent).arg(int(type));
        },
        Qt::QueuedConnection);

    Q_EMIT editor.changeTaskParent({QStringLiteral("a"), QStringLiteral("b")}, QStringLiteral("p"),
                                   CHANGE_PARENT_BY_MOVE);

    QCOMPARE(received, QString());
    QTRY_COMPARE(received, QStringLiteral("a+b p 1"));
}

void TestFishEditorInterface::shouldNeverSayThatContentsChanged()
{
    EditorFixture fish(QStringLiteral("Effect[Man[Training],Machine]"));
    SignalRecorder recorder(fish.editor, {QStringLiteral("contentsChanged")});

    fish.select({QStringLiteral("Man")});
    fish.editor.insertChildSubject();
    fish.editor.renameItem(fish.index(QStringLiteral("Man")), QStringLiteral("Men"));
    fish.editor.copy();
    fish.editor.paste();
    fish.editor.undo();
    fish.editor.redo();
    fish.editor.expandAll();
    fish.editor.fullSize();

    QCOMPARE(recorder.take(), QString());
}

FISHBONE_TEST(TestFishEditorInterface)
#include "tst_fisheditor_interface.moc"
