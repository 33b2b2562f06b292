// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/reliability/hostilestage.h>

#include <QDialog>
#include <QFile>
#include <QJsonDocument>

#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/undo/attributecommands.h>
#include <tests/support/commandfixture.h>
#include <tests/support/orphans.h>

using namespace TestSupport;

namespace {

/**
 * Signals that the toolkit sends from its own event handling, in which it does not expect its
 * objects to go, and those that all QObjects have.
 */
bool isToolkits(const QByteArray &signal)
{
    static const QByteArrayList names = {"changed", "sceneRectChanged", "focusItemChanged",
                                         "destroyed", "objectNameChanged"};
    return names.contains(signal);
}

QModelIndex shownIndex(const FishEditor &editor)
{
    return editor.headSpear() ? editor.headSpear()->modelIndex() : QModelIndex();
}

} // namespace

/** Hears one signal of one object. */
class HostileStage::Ear : public QObject
{
public:
    std::function<void()> listener;

    void connectTo(QObject *sender, int signal)
    {
        // A slot that only this class knows: the first number behind those of QObject.
        QMetaObject::connect(sender, signal, this, QObject::staticMetaObject.methodCount());
    }
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id == 0 && call == QMetaObject::InvokeMetaMethod && listener) {
            const auto copy = listener;
            copy();
        }
        return id - 1;
    }
};

HostileStage::HostileStage()
{
    model = new FishModel;
    // The first to hear of everything: it compares what it is told with what there is.
    new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::Fatal,
                                 model);
    addEars(model, QStringLiteral("early model"), &FishModel::staticMetaObject);
    model->setModelType(FISH_MODEL_DIAGRAM);
    m_shown = loadDocument(
        *model, QStringLiteral("Effect[Man[Training,Skill],Machine[Age],Method[Plan],Money]"));
    loadDocument(*model, QStringLiteral("Other[Left[Inner],Right]"));
    otherModel = new FishModel;
    loadDocument(*otherModel, QStringLiteral("Foreign[One,Two]"));

    editor = new FishEditor;
    editor->setModel(model);
    editor->resize(900, 700);
    editor->show();
    addEars(model, QStringLiteral("model"), &FishModel::staticMetaObject);
    addEars(editor, QStringLiteral("editor"), &FishEditor::staticMetaObject);
    addEars(editor->scene(), QStringLiteral("scene"), &FishScene::staticMetaObject);
    addEars(editor->view(), QStringLiteral("view"), &GraphicsView::staticMetaObject);
    addEars(editor->undoStack(), QStringLiteral("stack"), &UndoStack::staticMetaObject);
    secondEditor = new FishEditor;
    secondEditor->setModel(model);
    otherEditor = new FishEditor;
    otherEditor->setModel(otherModel);

    editor->setRootIndex(model->index(0, 0));
    secondEditor->setRootIndex(model->index(1, 0));
    otherEditor->setRootIndex(otherModel->index(0, 0));
    editor->expandAll();
    editor->equalRatio(editor->scene()->itemsBoundingRect());
    // A step to undo and one to redo.
    editor->run(std::make_unique<ModifyName>(model, index("Age"), QStringLiteral("Years")));
    select({"Method"});
    editor->insertChildSubject();
    editor->undo();
    editor->expandAll();
    for (const TreeItem *item : allNodes(*model))
        note(*item);
    for (const TreeItem *item : allNodes(*otherModel))
        note(*item);

    QFile file(this->file());
    if (file.open(QIODevice::WriteOnly))
        file.write(QJsonDocument(documentFromText(QStringLiteral("Loaded[Bone]"))).toJson());
}

void HostileStage::note(const TreeItem &node)
{
    const TreeItem *const parent = node.isTopVaildItem() ? nullptr : node.parent();
    m_originals.insert(node.uuid(), {node.title(), parent ? parent->uuid() : QString()});
}

TreeItem *HostileStage::node(const char *title) const
{
    const QString uuid = QStringLiteral("u-") + QString::fromLatin1(title);
    for (FishModel *in : {model.data(), otherModel.data()}) {
        const QModelIndex found = in ? in->modelIndexByUuid(uuid) : QModelIndex();
        if (found.isValid())
            return in->getTreeItem(found);
    }
    return nullptr;
}

QModelIndex HostileStage::index(const char *title) const
{
    const TreeItem *const item = node(title);
    const QModelIndex found = item && model ? model->indexFromItem(item) : QModelIndex();
    return found.isValid() || !otherModel ? found : otherModel->indexFromItem(item);
}

SpearItem *HostileStage::spear(const char *title) const
{
    const TreeItem *const item = node(title);
    return item ? item->spear() : nullptr;
}

void HostileStage::select(const QList<const char *> &titles) const
{
    if (!editor)
        return;
    editor->scene()->clearSelection();
    for (const char *title : titles) {
        if (SpearItem *const bone = spear(title))
            bone->setSelected(true);
    }
}

TreeItem *HostileStage::newNode() const
{
    if (!model)
        return nullptr;
    for (TreeItem *item : allNodes(*model)) {
        if (!m_originals.contains(item->uuid()))
            return item;
    }
    // Or a copy with the uuid of an original, which comes behind it.
    QHash<QString, int> count;
    for (TreeItem *item : allNodes(*model)) {
        if (++count[item->uuid()] > 1)
            return item;
    }
    return nullptr;
}

FishInfo *HostileStage::shownDocument() const
{
    return model && m_shown && model->fishList().contains(m_shown) ? m_shown.data() : nullptr;
}

void HostileStage::addEars(QObject *sender, const QString &name, const QMetaObject *meta)
{
    for (int i = QObject::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() != QMetaMethod::Signal || isToolkits(method.name()) ||
            QByteArray(method.enclosingMetaObject()->className()).startsWith("QWidget"))
            continue;
        Ear *&ear = m_ears[name + QLatin1Char('.') + QString::fromLatin1(method.name())];
        if (!ear)
            ear = new Ear;
        ear->connectTo(sender, i);
    }
}

void HostileStage::watchDialog(QObject *dialog)
{
    // Not accepted() and rejected(), after which the toolkit itself goes on with the dialog.
    Ear *&ear = m_ears[QStringLiteral("dialog.finished")];
    if (!ear)
        ear = new Ear;
    ear->connectTo(dialog, QDialog::staticMetaObject.indexOfSignal("finished(int)"));
}

void HostileStage::listen(const QString &signal, const std::function<void()> &listener)
{
    Ear *&ear = m_ears[signal];
    if (!ear)
        ear = new Ear; // of a dialog that will come
    ear->listener = listener;
}

QStringList HostileStage::signalNames() const
{
    QStringList names = m_ears.keys();
    names.append(QStringLiteral("dialog.finished"));
    names.sort();
    return names;
}

void HostileStage::giveUp(const QList<const char *> &titles)
{
    for (const char *title : titles) {
        const TreeItem *const top = node(qstrcmp(title, "*") == 0 ? "Effect" : title);
        for (auto original = m_originals.begin(); original != m_originals.end(); ++original) {
            const TreeItem *const item = node(qPrintable(original.key().mid(2)));
            original->isGivenUp =
                original->isGivenUp || (top && item && (item == top || top->isAncestorOf(item)));
        }
    }
}

QString HostileStage::treeText() const
{
    QStringList lines;
    for (const TreeItem *item : model ? allNodes(*model) : std::vector<TreeItem *>()) {
        const TreeItem *const parent = item->isTopVaildItem() ? nullptr : item->parent();
        lines.append(QStringLiteral("%1 below %2 at %3")
                         .arg(item->uuid(), parent ? parent->uuid() : QString())
                         .arg(model->indexFromItem(item).row()));
    }
    return lines.join(QLatin1Char('\n'));
}

QString HostileStage::originalsFault() const
{
    QHash<QString, QList<const TreeItem *>> present;
    for (const FishModel *in : {model.data(), otherModel.data()}) {
        for (const TreeItem *item : in ? allNodes(*in) : std::vector<TreeItem *>())
            present[item->uuid()].append(item);
    }
    for (auto it = m_originals.cbegin(); it != m_originals.cend(); ++it) {
        const QList<const TreeItem *> found = present.value(it.key());
        const bool isForeign =
            it->title == QLatin1String("Foreign") || it->parent == QLatin1String("u-Foreign");
        if (it->isGivenUp || (isForeign ? !otherModel : !model))
            continue;
        if (found.isEmpty())
            return it->title + QStringLiteral(" is gone");
        // The first one: a copy may follow.
        const TreeItem *const parent =
            found.first()->isTopVaildItem() ? nullptr : found.first()->parent();
        if (found.first()->title() != it->title)
            return it->title + QStringLiteral(" is now called ") + found.first()->title();
        if ((parent ? parent->uuid() : QString()) != it->parent)
            return it->title + QStringLiteral(" stands elsewhere");
    }
    return {};
}

QString HostileStage::drawingFault() const
{
    for (FishEditor *shown : {editor.data(), secondEditor.data(), otherEditor.data()}) {
        if (!shown)
            continue;
        shown->updateFish(true);
        const QString orphans = orphanFault(*shown);
        if (!orphans.isEmpty())
            return orphans;
        if (shown->headSpear() && !shownIndex(*shown).isValid())
            return QStringLiteral("a head is shown that has no index");
        const SpearItem *const selected = shown->firstSelectedSpear();
        if (selected && selected->scene() != shown->scene())
            return QStringLiteral("a selected spear of another scene");
    }
    return model ? spearFault(*model) : QString();
}

QString HostileStage::fault() const
{
    const QString originals = originalsFault();
    return originals.isEmpty() ? drawingFault() : originals;
}
