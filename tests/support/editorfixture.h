// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModelTester>
#include <QEvent>
#include <QGraphicsView>
#include <QScrollBar>
#include <QTest>

#include <fishbone/editor/fisheditor.h>
#include <fishbone/editor/fishscene.h>
#include <fishbone/editor/graphicsview.h>
#include <fishbone/items/expanditem.h>
#include <fishbone/items/spearitem.h>
#include <tests/support/documents.h>

namespace TestSupport {

/**
 * A model with one document and an editor that shows it. Heads show their plain title, unless the
 * model's type is set back to FISH_MODEL_NORMAL before show() is called.
 */
class EditorFixture
{
    Q_DISABLE_COPY(EditorFixture)

public:
    /** The document is written as documentFromText() reads it. */
    explicit EditorFixture(const QString &document)
        : EditorFixture(documentFromText(document))
    {
    }
    explicit EditorFixture(const QJsonObject &document)
    {
        model.setModelType(FISH_MODEL_DIAGRAM);
        info = loadDocument(model, document);
        editor.resize(900, 700);
        editor.setModel(&model);
        editor.setRootIndex(model.index(0, 0));
    }

    QModelIndex index(const QString &title) const { return indexTitled(model, title); }
    TreeItem *subject(const QString &title) const { return nodeTitled(model, title); }
    /** The spear of the subject of that title; null when it has none. */
    SpearItem *spear(const QString &title) const
    {
        const TreeItem *const node = subject(title);
        return node ? node->spear() : nullptr;
    }

    void select(const QStringList &titles)
    {
        editor.scene()->clearSelection();
        for (const QString &title : titles)
            spear(title)->setSelected(true);
    }

    /**
     * Puts the editor on the screen with the whole drawing in view, at 1:1 when @p fit is false.
     */
    bool show(bool fit = true)
    {
        editor.show();
        if (!QTest::qWaitForWindowExposed(&editor) || !isAtTheRequestedRatio())
            return false;
        if (fit)
            editor.equalRatio(editor.scene()->itemsBoundingRect());
        return true;
    }

    FishModel model;
    FishInfo *info = nullptr;
    FishEditor editor;

private:
    /** Whether a screen that shall have so many device pixels a pixel has them. */
    bool isAtTheRequestedRatio() const
    {
        const QByteArray ratio = qgetenv("QT_SCALE_FACTOR");
        return ratio.isEmpty() || qFuzzyCompare(editor.devicePixelRatioF(), ratio.toDouble());
    }

    QAbstractItemModelTester m_tester{&model,
                                      QAbstractItemModelTester::FailureReportingMode::QtTest};
};

/** Counts the events of one type that an object receives. */
class EventCounter : public QObject
{
public:
    EventCounter(QObject *watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }

    int count = 0;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        if (event->type() == m_type)
            ++count;
        return false;
    }

private:
    QEvent::Type m_type;
};

/** Handles events until no more come, so that what was scheduled is painted. */
inline void settle()
{
    for (int i = 0; i < 5; ++i)
        QTest::qWait(0);
}

} // namespace TestSupport
