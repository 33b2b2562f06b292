// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <app/export/picturecopy.h>
#include <app/export/picturesource.h>

#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>

class TestPictureCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QSettings().clear(); }
    void shouldCopyAllWhenNothingIsSelected();
    void shouldCopyWhatIsSelectedAndWhatLeadsThere();
    void shouldCopyAllWhenTheHeadIsSelected();
    void shouldKeepWhatIsContracted();
    void shouldCopyTheClassicDrawing();
    void shouldCopyOnPaperFromADarkCanvas();
    void shouldChangeNothing();

private:
    /** The SVG on the clipboard after the keys for a copy. */
    static QByteArray copied(AppFixture &app)
    {
        QGuiApplication::clipboard()->clear();
        QTest::keyClick(&app.window, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        AppFixture::settle();
        return QGuiApplication::clipboard()->mimeData()->data(QStringLiteral("image/svg+xml"));
    }
    static QImage copiedImage()
    {
        const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
        return QImage::fromData(data->data(QStringLiteral("image/png")));
    }
    /** Which of the titles stand in @p svg. */
    static QString titlesIn(const QByteArray &svg)
    {
        QStringList titles;
        for (const char *title :
             {"Illness", "Late", "Machines", "Material", "People", "Rust", "Too few", "Too new"}) {
            if (svg.contains('>' + QByteArray(title) + '<'))
                titles.append(QLatin1String(title));
        }
        return titles.join(QLatin1Char(','));
    }
};

void TestPictureCopy::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_picturecopy"));
}

void TestPictureCopy::shouldCopyAllWhenNothingIsSelected()
{
    AppFixture app;
    app.trigger("expandall");
    app.window.editor()->scene()->clearSelection();
    AppFixture::settle();
    QCOMPARE(titlesIn(copied(app)),
             QStringLiteral("Illness,Late,Machines,Material,People,Rust,Too few,Too new"));
    const QImage image = copiedImage();
    QVERIFY(!image.isNull());
    QVERIFY(QGuiApplication::clipboard()->mimeData()->hasImage());
    QCOMPARE(QGuiApplication::clipboard()->image().size(), image.size());
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
    QVERIFY(!app.window.statusBar()->currentMessage().isEmpty());
}

void TestPictureCopy::shouldCopyWhatIsSelectedAndWhatLeadsThere()
{
    AppFixture app;
    app.trigger("expandall");
    app.select("Too few");
    QCOMPARE(titlesIn(copied(app)), QStringLiteral("Illness,Late,People,Too few"));
    app.window.session()->select({app.find("Rust"), app.find("Too new")});
    AppFixture::settle();
    QCOMPARE(titlesIn(copied(app)), QStringLiteral("Late,Material,People,Rust,Too new"));
}

void TestPictureCopy::shouldCopyAllWhenTheHeadIsSelected()
{
    AppFixture app;
    app.trigger("expandall");
    app.select("Late");
    QCOMPARE(titlesIn(copied(app)),
             QStringLiteral("Illness,Late,Machines,Material,People,Rust,Too few,Too new"));
}

void TestPictureCopy::shouldKeepWhatIsContracted()
{
    AppFixture app;
    app.select("People");
    const QByteArray svg = copied(app);
    QCOMPARE(titlesIn(svg), QStringLiteral("Late,People"));
    QVERIFY(svg.contains(">+3<"));
}

void TestPictureCopy::shouldCopyTheClassicDrawing()
{
    AppFixture app;
    app.trigger("expandall");
    app.select("Rust");
    const QByteArray clear = copied(app);
    app.trigger("lookClassic");
    const QByteArray classic = copied(app);
    QVERIFY(!classic.isEmpty());
    QVERIFY(classic != clear);
    QCOMPARE(titlesIn(classic), QStringLiteral("Late,Material,Rust"));
    QVERIFY(!copiedImage().isNull());
}

void TestPictureCopy::shouldCopyOnPaperFromADarkCanvas()
{
    AppFixture app;
    const QByteArray onLight = copied(app);
    QPalette dark = app.window.palette();
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    app.window.setPalette(dark);
    AppFixture::settle();
    QCOMPARE(copied(app), onLight);
    QCOMPARE(copiedImage().pixelColor(0, 0), QColor(Qt::white));
    QVERIFY(app.window.editor()->view()->backgroundBrush().color().lightness() < 60);
}

void TestPictureCopy::shouldChangeNothing()
{
    AppFixture app;
    app.select("Machines");
    const QByteArray before = AppFixture::contentOf(app.path());
    copied(app);
    QVERIFY(!app.document()->modified());
    QCOMPARE(app.window.editor()->undoStack()->currentIndex(), -1);
    QCOMPARE(app.selectedInDrawing(), QStringList(QStringLiteral("Machines")));
    app.window.session()->select(QModelIndex());
    app.trigger("close");
    QVERIFY(!app.action("copyPicture")->isEnabled());
    QCOMPARE(AppFixture::contentOf(app.path()), before);
}

FISHBONE_TEST(TestPictureCopy)
#include "tst_picturecopy.moc"
