// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Drag payloads from anywhere: decoded by the model, dropped through the view and on the editor.
//
// The input is a list of commands of four bytes: what to do, and three arguments. Commands put
// records into the payload that comes next, with pointers that a fuzzer could not guess, or drop
// that payload.

#include <fuzz/fuzzing.h>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/spearitem.h>
#include <fishbone/undo/undostack.h>
#include <tests/support/commandfixture.h>

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QDataStream>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>

#include <memory>

using namespace Fuzzing;
using namespace TestSupport;

namespace {

class Dropping
{
public:
    Dropping()
    {
        m_model.setModelType(FISH_MODEL_DIAGRAM);
        m_other.setModelType(FISH_MODEL_DIAGRAM);
        const auto document = QStringLiteral("Effect[Man[Training,Rest[Shift]],Machine[Age],Way]");
        loadDocument(m_model, document);
        loadDocument(m_model, QStringLiteral("Second[One,Two]"));
        loadDocument(m_other, QStringLiteral("Stranger[Child]"));
        m_editor.resize(400, 300);
        m_editor.setModel(&m_model);
        m_editor.setRootIndex(m_model.index(0, 0));
        m_editor.expandAll();
    }

    void run(std::uint8_t command, std::uint8_t a, std::uint8_t b, std::uint8_t c)
    {
        switch (command % 10) {
        case 0:
        case 1:
            record(qint8(b), qint8(c), nodeAt(m_model, a));
            break;
        case 2:
            record(qint8(b), qint8(c), nodeAt(m_other, a));
            break;
        case 3:
            record(qint8(b), qint8(c), quintptr(a) << (c % 57));
            break;
        case 4: // a record that is cut
            m_payload.append(QByteArray(a % 16, char(b)));
            break;
        case 5:
            dropOnEditor(a, qint8(b));
            break;
        case 6:
            dropOnView(a, b);
            break;
        case 7:
            m_payload.clear();
            m_hasFormat = a % 4 != 0;
            break;
        case 8:
            a % 2 == 0 ? m_editor.undo() : m_editor.redo();
            break;
        default:
            m_editor.deleteItem(m_model.indexFromItem(node(m_model, a)));
            break;
        }
    }

    void check() const
    {
        const QString fault = spearFault(m_model);
        requireEqual(fault.toUtf8(), QByteArray(), "every bone hangs where its subject does");
        require(m_other.rowCount() == 1 && m_other.rowCount(m_other.index(0, 0)) == 1,
                "another model is left alone");
    }

private:
    static TreeItem *node(const FishModel &model, std::uint8_t number)
    {
        const std::vector<TreeItem *> nodes = allNodes(model);
        return nodes.empty() ? nullptr : nodes[number % nodes.size()];
    }

    static quintptr nodeAt(const FishModel &model, std::uint8_t number)
    {
        return reinterpret_cast<quintptr>(node(model, number));
    }

    void record(qint32 row, qint32 column, quintptr pointer)
    {
        QDataStream stream(&m_payload, QIODevice::WriteOnly | QIODevice::Append);
        stream << row << column << qint64(pointer);
    }

    std::unique_ptr<QMimeData> mimeData() const
    {
        auto data = std::make_unique<QMimeData>();
        if (m_hasFormat)
            data->setData(QStringLiteral("QModelIndexList"), m_payload);
        data->setText(QStringLiteral("Man;"));
        return data;
    }

    void dropOnEditor(std::uint8_t target, int row)
    {
        const std::unique_ptr<QMimeData> data = mimeData();
        const QModelIndexList dragged = m_model.indexList(data.get());
        for (const QModelIndex &index : dragged)
            require(!index.isValid() || m_model.contains(m_model.getTreeItem(index)),
                    "a dragged index is one of the model or none");
        const TreeItem *const last = m_editor.treeItemFromMimeData(data.get());
        require(!last || m_model.contains(last), "a dragged subject is one of the model or none");
        m_model.dropMimeData(data.get(), Qt::MoveAction, row, 0, m_model.index(0, 0));
        m_editor.onDropTo(data.get(), m_model.indexFromItem(node(m_model, target)), row);
    }

    void dropOnView(std::uint8_t x, std::uint8_t y)
    {
        const std::unique_ptr<QMimeData> data = mimeData();
        QWidget *const viewport = m_editor.view()->viewport();
        const QPoint at(viewport->width() * x / 255, viewport->height() * y / 255);
        QDragEnterEvent enter(at, Qt::MoveAction | Qt::CopyAction, data.get(), Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &enter);
        QDragMoveEvent move(at, Qt::MoveAction | Qt::CopyAction, data.get(), Qt::LeftButton,
                            Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
        QDropEvent drop(at, Qt::MoveAction | Qt::CopyAction, data.get(), Qt::LeftButton,
                        Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &drop);
        QCoreApplication::processEvents(); // the editor is connected with a queue
    }

    FishModel m_model;
    FishModel m_other;
    FishEditor m_editor;
    QByteArray m_payload;
    bool m_hasFormat = true;
    QAbstractItemModelTester m_tester{&m_model,
                                      QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr std::size_t longest = 4 * 200;
    startApplication();
    Dropping dropping;
    for (std::size_t at = 0; at + 4 <= std::min(size, longest); at += 4) {
        dropping.run(data[at], data[at + 1], data[at + 2], data[at + 3]);
        dropping.check();
    }
    return 0;
}
