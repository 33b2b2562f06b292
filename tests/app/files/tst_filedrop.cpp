// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <app/files/filedrop.h>

#include <QDragEnterEvent>
#include <QMimeData>

class TestFileDrop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldOpenFilesDroppedOnTheDrawing_data();
    void shouldOpenFilesDroppedOnTheDrawing();
    void shouldTakeFilesAndWebAddressesOnly();
    void shouldLeaveOtherDragsToTheWidget();
};

void TestFileDrop::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_filedrop"));
}

void TestFileDrop::shouldOpenFilesDroppedOnTheDrawing_data()
{
    QTest::addColumn<bool>("onWindow");
    QTest::newRow("drawing") << false;
    QTest::newRow("window") << true;
}

void TestFileDrop::shouldOpenFilesDroppedOnTheDrawing()
{
    QFETCH(bool, onWindow);
    AppFixture app;
    QWidget *const target =
        onWindow ? static_cast<QWidget *>(&app.window) : app.window.editor()->view()->viewport();
    const QString own = app.path(QStringLiteral("own.json"));
    const QString foreign = app.path(QStringLiteral("foreign.md"));
    AppFixture::writeFile(own, R"({"title": "Own"})");
    AppFixture::writeFile(foreign, "# Foreign\n");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(own), QUrl::fromLocalFile(foreign)});

    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(target, &enter);
    QVERIFY(enter.isAccepted());
    QCOMPARE(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(app.tabCount(), 1); // the other program is not kept waiting
    QTRY_COMPARE(app.tabCount(), 3);
    QCOMPARE(app.text(), QStringLiteral("Foreign"));
    app.showTab(1);
    QCOMPARE(app.text(), QStringLiteral("Own"));
}

void TestFileDrop::shouldTakeFilesAndWebAddressesOnly()
{
    QWidget widget;
    FileDrop drops;
    drops.watch(&widget);
    QStringList dropped;
    connect(&drops, &FileDrop::dropped, this,
            [&dropped](const QStringList &sources) { dropped = sources; });
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("file:///tmp/a%20b.json")),
                  QUrl(QStringLiteral("https://localhost/a%20b")),
                  QUrl(QStringLiteral("mailto:somebody@localhost"))});
    QDragEnterEvent enter(QPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&widget, &enter);
    QVERIFY(dropped.isEmpty());
    QDropEvent drop(QPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&widget, &drop);
    QCOMPARE(dropped, QStringList({QStringLiteral("/tmp/a b.json"),
                                   QStringLiteral("https://localhost/a%20b")}));
}

void TestFileDrop::shouldLeaveOtherDragsToTheWidget()
{
    QWidget widget;
    FileDrop drops;
    drops.watch(&widget);
    QMimeData data;
    data.setText(QStringLiteral("/tmp/a.json"));
    QDragEnterEvent enter(QPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(&widget, &enter);
    QVERIFY(!enter.isAccepted());
}

FISHBONE_TEST(TestFileDrop)
#include "tst_filedrop.moc"
