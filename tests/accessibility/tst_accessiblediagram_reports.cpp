// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <QAccessible>
#include <QtTest>

#include <fishbone/accessibility/accessiblebone.h>
#include <fishbone/accessibility/accessiblediagram.h>
#include <fishbone/items/taskstatusinfo.h>
#include <fishbone/items/textitem.h>
#include <fishbone/undo/undostack.h>
#include <tests/accessibility/accessiblestage.h>
#include <tests/program/testprogram.h>
#include <tests/support/dialogchecks.h>
#include <tests/support/editorfixture.h>

using namespace TestSupport;

namespace {

/** What was reported since the last take(): "Selection People". */
class Events
{
    Q_DISABLE_COPY(Events)

public:
    Events()
    {
        entries().clear();
        AccessibleDiagram::setReporter([](QAccessibleEvent &event) {
            const char *const name = nameOf(event.type());
            QAccessibleInterface *const about = event.accessibleInterface();
            if (name && about)
                entries().append(QStringLiteral("%1 %2").arg(QLatin1String(name),
                                                             about->text(QAccessible::Name)));
        });
    }
    ~Events() { AccessibleDiagram::setReporter(nullptr); }

    QString take()
    {
        QTest::qWait(20);
        const QString text = entries().join(QLatin1String(", "));
        entries().clear();
        return text;
    }

private:
    static QStringList &entries()
    {
        static QStringList list;
        return list;
    }
    static const char *nameOf(QAccessible::Event type)
    {
        switch (int(type)) {
        case QAccessible::Selection:
            return "Selection";
        case QAccessible::SelectionWithin:
            return "SelectionWithin";
        case QAccessible::Focus:
            return "Focus";
        case QAccessible::StateChanged:
            return "StateChanged";
        case QAccessible::ObjectReorder:
            return "ObjectReorder";
        default:
            return nullptr;
        }
    }
};

/** Asks for the interface of each view that gets a parent, as assistive technology does. */
class Asker : public QObject
{
public:
    Asker() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const view = qobject_cast<GraphicsView *>(watched);
        if (view && event->type() == QEvent::ParentChange)
            isAsked = QAccessible::queryAccessibleInterface(view);
        return false;
    }

public:
    bool isAsked = false;
};

} // namespace

/** What assistive technology is told. */
class TestAccessibleDiagramReports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReportTheSelection();
    void shouldReportFocusInTheFocusedView();
    void shouldReportExpansion();
    void shouldReportAChangedDrawing();
    void shouldReportForAViewThatWasAskedForEarly();
    void shouldReportNothingWhenNobodyListens();
};

void TestAccessibleDiagramReports::shouldReportTheSelection()
{
    Fixture f;
    QVERIFY(f.show());
    f.editor.clearFocus();
    f.editor.view()->clearFocus();
    Events events;
    QVERIFY(f.view());
    f.editor.selectAll(); // what is selected for the first time is measured
    f.editor.scene()->clearSelection();
    events.take();
    f.select({QStringLiteral("People")});
    QCOMPARE(events.take(), QStringLiteral("Selection People"));
    f.select({QStringLiteral("Machines")});
    QCOMPARE(events.take(), QStringLiteral("Selection Machines"));
    f.select({QStringLiteral("People"), QStringLiteral("Machines")});
    QCOMPARE(events.take(), QStringLiteral("SelectionWithin Diagram: Late"));
    f.editor.scene()->clearSelection();
    QCOMPARE(events.take(), QStringLiteral("SelectionWithin Diagram: Late"));
}

void TestAccessibleDiagramReports::shouldReportFocusInTheFocusedView()
{
    Fixture f;
    QVERIFY(f.show());
    f.editor.activateWindow();
    f.editor.view()->setFocus();
    QTRY_VERIFY(f.editor.view()->hasFocus());
    Events events;
    QVERIFY(f.view());
    f.editor.selectAll(); // what is selected for the first time is measured
    f.editor.scene()->clearSelection();
    events.take();
    f.select({QStringLiteral("People")});
    QCOMPARE(events.take(), QStringLiteral("Selection People, Focus People"));
    QVERIFY(f.bone("People")->state().focused);
    QCOMPARE(f.view()->focusChild(), f.bone("People"));
}

void TestAccessibleDiagramReports::shouldReportExpansion()
{
    Fixture f;
    QVERIFY(f.show());
    Events events;
    QVERIFY(f.bone("People"));
    QVERIFY(f.bone("Machines"));
    events.take();
    f.act("People", toggle());
    const QString expanded = events.take();
    QVERIFY2(expanded.contains(QLatin1String("StateChanged People")), qPrintable(expanded));
    QVERIFY(!expanded.contains(QLatin1String("StateChanged Machines")));
    QVERIFY(expanded.contains(QLatin1String("ObjectReorder Diagram: Late")));
    f.act("People", toggle());
    QVERIFY(events.take().contains(QLatin1String("StateChanged People")));
}

void TestAccessibleDiagramReports::shouldReportAChangedDrawing()
{
    Fixture f;
    QVERIFY(f.show());
    Events events;
    QVERIFY(f.bone("People"));
    events.take();
    f.editor.deleteItem(f.index(QStringLiteral("Machines")));
    QVERIFY(events.take().contains(QLatin1String("ObjectReorder Diagram: Late")));
    QCOMPARE(tree(*f.head()), QStringLiteral("Late[People,Material]"));
    f.editor.undo();
    QVERIFY(events.take().contains(QLatin1String("ObjectReorder Diagram: Late")));
    QCOMPARE(tree(*f.head()), QStringLiteral("Late[People,Machines,Material]"));
    f.editor.scene()->update(); // the same drawing once more
    QCOMPARE(events.take(), QString());
}

void TestAccessibleDiagramReports::shouldReportForAViewThatWasAskedForEarly()
{
    const Asker asker;
    Fixture f;
    QVERIFY(asker.isAsked);
    QVERIFY(f.show());
    Events events;
    f.select({QStringLiteral("People")});
    QVERIFY(events.take().contains(QLatin1String("Selection People")));
    QCOMPARE(tree(*f.head()), QStringLiteral("Late[People,Machines,Material]"));
}

void TestAccessibleDiagramReports::shouldReportNothingWhenNobodyListens()
{
    Fixture f;
    QVERIFY(f.show());
    Events events;
    QVERIFY(f.bone("People"));
    events.take();
    AccessibleDiagram::setReporter(nullptr);
    f.select({QStringLiteral("People")});
    f.act("People", toggle());
    QCOMPARE(events.take(), QString());
}

FISHBONE_TEST(TestAccessibleDiagramReports)
#include "tst_accessiblediagram_reports.moc"
