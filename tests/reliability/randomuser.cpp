// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/reliability/randomuser.h>

#include <fishbone/dialogs/replacefinddialog.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/model/fishproxymodel.h>
#include <fishbone/undo/undostack.h>
#include <tests/support/commandfixture.h>
#include <tests/support/viewmouse.h>

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>

using namespace TestSupport;

namespace {

Qt::KeyboardModifiers anyModifiers(QRandomGenerator &random)
{
    static const Qt::KeyboardModifiers all[] = {Qt::NoModifier, Qt::ControlModifier,
                                                Qt::ShiftModifier, Qt::AltModifier};
    return all[random.bounded(6) < 3 ? 0 : random.bounded(4)];
}

/** The slots that the editor itself declares public. */
QVector<QMetaMethod> editorSlots()
{
    QVector<QMetaMethod> found;
    const QMetaObject &meta = FishEditor::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Public)
            found.append(method);
    }
    return found;
}

} // namespace

RandomUser::RandomUser(RandomWorld &world, QRandomGenerator &random)
    : m_world(world)
    , m_random(random)
    , m_slots(editorSlots())
    , m_listener(world, random)
{
}

QString RandomUser::act()
{
    switch (m_random.bounded(20)) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
        return useMouse();
    case 5:
    case 6:
        return useKeys();
    case 7:
        return drop();
    case 8:
    case 9:
    case 10:
        return useModel();
    case 11:
        return m_random.bounded(4) == 0 ? changeWorld() : callSlot();
    default:
        return callSlot();
    }
}

QString RandomUser::callSlot()
{
    FishEditor *const editor = m_world.anyEditor();
    if (!editor)
        return QStringLiteral("no editor");
    if (m_random.bounded(3) != 0)
        selectSome(*editor);
    const QMetaMethod slot = m_slots.at(m_random.bounded(int(m_slots.size())));
    const QString name = QString::fromLatin1(slot.methodSignature());
    const bool isHeard = m_random.bounded(4) == 0;
    if (isHeard)
        m_listener.arm(*editor);
    if (call(*editor, slot))
        ++m_calls[slot.methodSignature()];
    if (!isHeard || !m_listener.disarm())
        return name;
    m_world.redrawAll();
    ++m_reactions;
    return name + QStringLiteral(" with a listener");
}

/** Calls a slot with arguments of its types; false when there is none to be had. */
bool RandomUser::call(FishEditor &editor, const QMetaMethod &slot)
{
    const QByteArray signature = slot.methodSignature();
    auto *const model = qobject_cast<FishModel *>(editor.model());
    // At times an index of a model that the editor does not show.
    const QModelIndex index =
        m_world.anyIndex(m_random.bounded(10) == 0 ? m_world.anyModel() : model);
    if (signature == "print()" && m_random.bounded(20) != 0)
        return false; // slow, and the same each time
    if (slot.parameterCount() == 0)
        return slot.invoke(&editor, Qt::DirectConnection);
    if (slot.parameterTypes() == QList<QByteArray>{"int"})
        return slot.invoke(&editor, Qt::DirectConnection, Q_ARG(int, anyNumber()));
    if (slot.parameterTypes() == QList<QByteArray>{"QModelIndex"})
        return slot.invoke(&editor, Qt::DirectConnection, Q_ARG(QModelIndex, index));
    if (signature == "insertChildSubject(QModelIndex,TreeItem*)") {
        auto item = std::make_unique<TreeItem>();
        item->setTitle(anyText());
        item->ensureUuid();
        if (!model || index.model() != model)
            return false; // nobody would take the subject over
        editor.insertChildSubject(index, item.release());
        return true;
    }
    if (signature == "editSubject(QModelIndex,TreeItem*)") {
        TreeItem item;
        item.setTitle(anyText());
        editor.editSubject(index, &item);
        return true;
    }
    if (signature == "modelDataChanged(QModelIndex,QModelIndex)") {
        editor.modelDataChanged(index, index);
        return true;
    }
    if (signature == "onRightClicked(void*)") {
        editor.onRightClicked(m_world.anySpear(&editor));
        return true;
    }
    if (signature.startsWith("moveItems(")) {
        moveSpears(editor);
        return true;
    }
    return false; // onDropTo() has a turn of its own
}

void RandomUser::moveSpears(FishEditor &editor)
{
    const SpearItem *const target = m_world.anySpear(&editor);
    if (!target || !target->treeItem())
        return;
    editor.moveItems({}, editor.selectedItems(), target->modelIndex(),
                     m_random.bounded(target->treeItem()->childCount() + 2) - 1);
}

QString RandomUser::useMouse()
{
    FishEditor *const editor =
        m_pressed && m_random.bounded(8) != 0 ? m_pressed.data() : m_world.anyEditor();
    if (!editor)
        return QStringLiteral("no editor");
    ViewMouse mouse(*editor->view());
    const QPoint at = anyPoint(*editor);
    switch (m_random.bounded(9)) {
    case 0:
        mouse.press(at, Qt::LeftButton, anyModifiers(m_random));
        m_pressed = editor;
        return QStringLiteral("press");
    case 1:
    case 2:
        mouse.move(at);
        return QStringLiteral("move");
    case 3:
        mouse.release(at);
        m_pressed = nullptr;
        return QStringLiteral("release");
    case 4: { // a whole drag, unless something ends it
        const QPointer<FishEditor> alive(editor);
        mouse.press(at);
        mouse.move(anyPoint(*editor));
        mouse.move(anyPoint(*editor));
        if (alive)
            mouse.release(anyPoint(*editor));
        return QStringLiteral("drag");
    }
    case 5:
        mouse.doubleClick(at);
        mouse.release(at);
        return QStringLiteral("double click");
    case 6:
        mouse.wheel(at, QPoint(0, m_random.bounded(-240, 241)), anyModifiers(m_random));
        return QStringLiteral("wheel");
    case 7:
        mouse.askForMenu(at);
        return QStringLiteral("context menu");
    default:
        mouse.click(at);
        return QStringLiteral("click");
    }
}

QString RandomUser::useKeys()
{
    static const Qt::Key keys[] = {Qt::Key_Delete, Qt::Key_Return, Qt::Key_Tab,   Qt::Key_Escape,
                                   Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,    Qt::Key_Down,
                                   Qt::Key_C,      Qt::Key_V,      Qt::Key_X,     Qt::Key_Z,
                                   Qt::Key_A,      Qt::Key_F2,     Qt::Key_Space, Qt::Key_Home};
    FishEditor *const editor = m_world.anyEditor();
    if (!editor)
        return QStringLiteral("no editor");
    const Qt::Key key = keys[m_random.bounded(int(std::size(keys)))];
    const Qt::KeyboardModifiers modifiers = anyModifiers(m_random);
    const QPointer<QWidget> target =
        m_random.bounded(2) == 0 ? static_cast<QWidget *>(editor) : editor->view();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        if (target)
            QCoreApplication::sendEvent(target, &event);
    }
    return QStringLiteral("key %1").arg(int(key), 0, 16);
}

QString RandomUser::drop()
{
    FishEditor *const editor = m_world.anyEditor();
    auto *const model = editor ? qobject_cast<FishModel *>(editor->model()) : nullptr;
    // At times rows of a model that the editor does not show.
    FishModel *const source = m_random.bounded(6) == 0 ? m_world.anyModel() : model;
    if (!model || !source)
        return QStringLiteral("no model");
    const std::unique_ptr<QMimeData> data(
        source->mimeData({m_world.anyIndex(source), m_world.anyIndex(source)}));
    if (m_random.bounded(2) == 0) {
        const QModelIndex target = m_world.anyIndex(model);
        editor->onDropTo(data.get(), target, m_random.bounded(-1, model->rowCount(target) + 2));
        ++m_calls["onDropTo"];
        return QStringLiteral("drop on the editor");
    }
    QWidget *const viewport = editor->view()->viewport();
    const QPoint at = anyPoint(*editor);
    QDragEnterEvent enter(at, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &enter);
    QDragMoveEvent move(at, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &move);
    if (m_random.bounded(4) == 0) {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(viewport, &leave);
        return QStringLiteral("drag over the view");
    }
    QDropEvent drop(at, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &drop);
    return QStringLiteral("drop on the view");
}

QString RandomUser::useModel()
{
    FishModel *const model = m_world.anyModel();
    if (!model)
        return QStringLiteral("no model");
    const QModelIndex index = m_world.anyIndex(model);
    const int rows = model->rowCount(index);
    switch (m_random.bounded(14)) {
    case 0:
        m_world.loadDocument(model);
        return QStringLiteral("load");
    case 1:
        m_world.loadBrokenDocument(model);
        return QStringLiteral("load a broken document");
    case 2:
        m_world.reloadDocument(model);
        return QStringLiteral("reload");
    case 3:
        m_world.saveDocument(model);
        return QStringLiteral("save");
    case 4:
        if (model->rowCount() > 0)
            model->unloadFish(model->fishList().at(m_random.bounded(model->rowCount())));
        return QStringLiteral("unload");
    case 5:
        model->insertRows(m_random.bounded(-1, rows + 2), m_random.bounded(3), index);
        m_world.redraw(model);
        return QStringLiteral("insert rows");
    case 6:
        model->removeRows(m_random.bounded(-1, rows + 1), m_random.bounded(3), index);
        m_world.redraw(model);
        return QStringLiteral("remove rows");
    case 7: {
        const QModelIndex to = m_world.anyIndex(model);
        model->moveRows(index, m_random.bounded(-1, rows + 1), m_random.bounded(3), to,
                        m_random.bounded(-1, model->rowCount(to) + 2));
        m_world.redraw(model);
        return QStringLiteral("move rows");
    }
    case 8: // titles and short identifiers: another uuid would not be found again
        model->setData(m_random.bounded(2) == 0 ? index.siblingAtColumn(0)
                                                : index.siblingAtColumn(2),
                       anyText());
        return QStringLiteral("set data");
    case 9:
        model->refreshModel();
        return QStringLiteral("refresh the model");
    case 10:
        if (TreeItem *const taken = model->takeRow(m_random.bounded(-1, rows + 1), index))
            delete taken;
        m_world.redraw(model);
        return QStringLiteral("take a row");
    case 11: {
        FishProxyModel proxy;
        proxy.setSourceModel(model);
        proxy.setFilterFixedString(anyText().left(2));
        return QStringLiteral("filter");
    }
    case 12: {
        ReplaceFindDialog dialog;
        dialog.setModel(model);
        dialog.find();
        return QStringLiteral("find");
    }
    default:
        model->searchModelIndexes(anyText().left(2));
        model->modelIndexByUuid(QStringLiteral("nobody"));
        return QStringLiteral("search");
    }
}

QString RandomUser::changeWorld()
{
    switch (m_random.bounded(8)) {
    case 0:
        m_world.addModel();
        return QStringLiteral("add a model");
    case 1:
        m_world.addEditor();
        return QStringLiteral("add an editor");
    case 2:
        m_world.removeModel();
        return QStringLiteral("remove a model");
    case 3:
        m_world.removeEditor();
        return QStringLiteral("remove an editor");
    case 4:
        m_world.setModel(m_world.anyEditor());
        return QStringLiteral("set a model");
    case 5:
        if (FishEditor *const editor = m_world.anyEditor())
            editor->resize(m_random.bounded(1, 700), m_random.bounded(1, 500));
        return QStringLiteral("resize");
    default:
        m_world.showSomething(m_world.anyEditor());
        return QStringLiteral("show another root");
    }
}

QString RandomUser::undoFault()
{
    static void (FishEditor::*const edits[])() = {
        &FishEditor::appendSubject, &FishEditor::insertChildSubject,
        &FishEditor::del,           &FishEditor::cut,
        &FishEditor::paste,         &FishEditor::modifyDelLink,
        &FishEditor::insertSubject, &FishEditor::insertParentSubject};
    FishEditor *const editor = m_world.anyEditor();
    auto *const model = editor ? qobject_cast<FishModel *>(editor->model()) : nullptr;
    if (!model)
        return {};
    selectSome(*editor);
    const int edit = m_random.bounded(int(std::size(edits)) + 1);
    const QString before = modelText(*model);
    if (edit < int(std::size(edits)))
        (editor->*edits[edit])();
    else
        moveSpears(*editor);
    const QString after = modelText(*model);
    if (after == before)
        return {};
    if (!editor->canUndo())
        return QStringLiteral("an edit that cannot be undone: %1").arg(edit);
    editor->undo();
    if (modelText(*model) != before)
        return QStringLiteral("an edit that is not undone: %1\nbefore\n%2\nundone\n%3")
            .arg(QString::number(edit), before, modelText(*model));
    editor->redo();
    if (modelText(*model) != after)
        return QStringLiteral("an edit that is not repeated: %1").arg(edit);
    return {};
}

void RandomUser::selectSome(FishEditor &editor)
{
    editor.scene()->clearSelection();
    for (int count = m_random.bounded(1, 4); count > 0; --count) {
        if (SpearItem *const spear = m_world.anySpear(&editor))
            spear->setSelected(true);
    }
}

/** Mostly on a bone, which a point of the view alone seldom hits. */
QPoint RandomUser::anyPoint(FishEditor &editor)
{
    const SpearItem *const spear = m_random.bounded(4) == 0 ? nullptr : m_world.anySpear(&editor);
    if (!spear)
        return {m_random.bounded(-10, 510), m_random.bounded(-10, 410)};
    return m_random.bounded(2) == 0 ? tipOf(*editor.view(), spear) : startOf(*editor.view(), spear);
}

int RandomUser::anyNumber()
{
    static const int numbers[] = {0, 1, -1, 50, -50, 250, 600, -600, 2147483647, -2147483647 - 1};
    return m_random.bounded(4) == 0 ? numbers[m_random.bounded(int(std::size(numbers)))]
                                    : m_random.bounded(50, 400);
}

QString RandomUser::anyText()
{
    switch (m_random.bounded(6)) {
    case 0:
        return QString();
    case 1:
        return QString::fromUtf8("延误 👩‍👩‍👧 \u202eתרשים e\u0301");
    case 2:
        return QStringLiteral("two\nlines\tand") + QChar(0) + QStringLiteral("null");
    case 3:
        return QString(m_random.bounded(2000), QLatin1Char('w'));
    default:
        return QString::number(m_random.generate());
    }
}
