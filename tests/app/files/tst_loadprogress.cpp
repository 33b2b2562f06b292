// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <tests/app/appfixture.h>
#include <tests/program/testprogram.h>

#include <app/files/documentloader.h>

#include <QMessageBox>
#include <QProgressBar>
#include <QStatusBar>
#include <QTcpServer>
#include <QTcpSocket>
#include <QToolButton>

namespace {

/** A web server that sends of its reply what it is told to. */
class SlowServer
{
public:
    SlowServer()
    {
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            m_socket = m_server.nextPendingConnection();
            QObject::connect(m_socket, &QTcpSocket::readyRead, m_socket,
                             [this] { m_isAsked = m_socket->readAll().contains("\r\n\r\n"); });
        });
        m_listens = m_server.listen(QHostAddress::LocalHost);
    }

    bool listens() const { return m_listens; }
    bool isAsked() const { return m_isAsked; }
    bool isAlone() const { return m_socket->state() != QTcpSocket::ConnectedState; }
    QString url() const
    {
        return QStringLiteral("http://127.0.0.1:%1/a.json").arg(m_server.serverPort());
    }

    void send(const QByteArray &part) { m_socket->write(part); }

private:
    QTcpServer m_server;
    QTcpSocket *m_socket = nullptr;
    bool m_listens = false;
    bool m_isAsked = false;
};

/** A reply of 1000 bytes, in two halves. */
QByteArray header()
{
    return "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n";
}

QByteArray body()
{
    const QByteArray text = R"({"title": "Fetched"})";
    return text + QByteArray(1000 - text.size(), ' ');
}

/** A document of more bytes than are read at once. */
QByteArray largeDocument()
{
    return R"({"title": "Large", "children": [{"title": "Bone"}], "detail": ")" +
           QByteArray(DocumentLoader::largeFile, 'x') + "\"}";
}

} // namespace

class TestLoadProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldShowHowFarALoadIs();
    void shouldGoOnWithoutAKnownLength();
    void shouldEndALoadThatIsCancelled();
    void shouldLoadWhatWaitsBehindTheCancelledOne();
    void shouldReadALargeFileWhileTheWindowGoesOn();
    void shouldDropALargeFileThatIsCancelled();
    void shouldSayWhatIsWrongWithALargeFile();
    void shouldEndWhileALargeFileIsRead();
};

void TestLoadProgress::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setApplicationName(QStringLiteral("tst_loadprogress"));
}

void TestLoadProgress::shouldShowHowFarALoadIs()
{
    SlowServer server;
    QVERIFY(server.listens());
    AppFixture app;
    const auto *const progress = app.widget<QWidget>("loadProgress");
    const auto *const bar = app.widget<QProgressBar>("loadBar");
    QVERIFY(!progress->isVisible());
    app.window.open({server.url()});
    QVERIFY(progress->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(server.isAsked(), 20000);
    server.send(header() + body().left(500));
    QTRY_COMPARE_WITH_TIMEOUT(bar->value() * 2, bar->maximum(), 20000);
    QCOMPARE(app.tabCount(), 1);
    server.send(body().mid(500));
    QTRY_COMPARE_WITH_TIMEOUT(app.tabCount(), 2, 20000);
    AppFixture::settle();
    QVERIFY(!progress->isVisible());
    QCOMPARE(app.text(), QStringLiteral("Fetched"));
}

void TestLoadProgress::shouldGoOnWithoutAKnownLength()
{
    SlowServer server;
    AppFixture app;
    app.window.open({server.url()});
    QTRY_VERIFY_WITH_TIMEOUT(server.isAsked(), 20000);
    const auto *const bar = app.widget<QProgressBar>("loadBar");
    server.send("HTTP/1.0 200 OK\r\n\r\n" + body().left(500));
    QTRY_VERIFY_WITH_TIMEOUT(bar->toolTip().startsWith(QLatin1String("500 ")), 20000);
    QCOMPARE(bar->maximum(), 0); // busy
    QTest::mouseClick(app.widget<QToolButton>("loadCancel"), Qt::LeftButton);
    QTRY_VERIFY(!app.widget<QWidget>("loadProgress")->isVisible());
}

void TestLoadProgress::shouldEndALoadThatIsCancelled()
{
    SlowServer server;
    AppFixture app;
    app.window.open({server.url()});
    QTRY_VERIFY_WITH_TIMEOUT(server.isAsked(), 20000);
    server.send(header() + body().left(500));
    const auto *const bar = app.widget<QProgressBar>("loadBar");
    QTRY_VERIFY_WITH_TIMEOUT(bar->value() > 0, 20000);
    QTest::mouseClick(app.widget<QToolButton>("loadCancel"), Qt::LeftButton);
    QTRY_VERIFY(!app.widget<QWidget>("loadProgress")->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(server.isAlone(), 20000);
    QVERIFY2(app.window.statusBar()->currentMessage().contains(server.url()),
             qPrintable(app.window.statusBar()->currentMessage()));
    QCOMPARE(app.tabCount(), 1);
    AppFixture::settle();
    QVERIFY(!app.window.findChild<QMessageBox *>()); // nobody need be told what they wanted
}

void TestLoadProgress::shouldLoadWhatWaitsBehindTheCancelledOne()
{
    SlowServer server;
    AppFixture app;
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(other, R"({"title": "Other"})");
    app.window.open({server.url(), other});
    QTRY_VERIFY_WITH_TIMEOUT(server.isAsked(), 20000);
    QTest::mouseClick(app.widget<QToolButton>("loadCancel"), Qt::LeftButton);
    QTRY_COMPARE_WITH_TIMEOUT(app.tabCount(), 2, 20000);
    QCOMPARE(app.text(), QStringLiteral("Other"));
}

void TestLoadProgress::shouldReadALargeFileWhileTheWindowGoesOn()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("large.json"));
    AppFixture::writeFile(path, largeDocument());
    app.window.open({path});
    QCOMPARE(app.tabCount(), 1); // it goes on in the background
    app.select("Machines");
    app.trigger("delete");
    QTRY_COMPARE_WITH_TIMEOUT(app.tabCount(), 2, 20000);
    AppFixture::settle();
    QVERIFY(!app.widget<QWidget>("loadProgress")->isVisible());
    QCOMPARE(app.text(), QStringLiteral("Large[Bone]"));
    QCOMPARE(app.document()->fileName(), QFileInfo(path).canonicalFilePath());
    QVERIFY(!app.document()->modified());
    app.window.open({path}); // which is open by now
    QCOMPARE(app.tabCount(), 2);
    app.showTab(0);
    QVERIFY(app.document()->modified());
}

void TestLoadProgress::shouldDropALargeFileThatIsCancelled()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("large.json"));
    const QString other = app.path(QStringLiteral("other.json"));
    AppFixture::writeFile(path, largeDocument());
    AppFixture::writeFile(other, R"({"title": "Other"})");
    app.window.open({path, other});
    app.widget<QToolButton>("loadCancel")->click(); // it may not be shown yet
    QVERIFY2(app.window.statusBar()->currentMessage().contains(path),
             qPrintable(app.window.statusBar()->currentMessage()));
    QTRY_COMPARE_WITH_TIMEOUT(app.tabCount(), 2, 20000);
    QCOMPARE(app.text(), QStringLiteral("Other"));
    app.window.open({path}); // a second time, of which only the second counts
    QTRY_COMPARE_WITH_TIMEOUT(app.tabCount(), 3, 20000);
    AppFixture::settle();
    QCOMPARE(app.tabCount(), 3);
    QCOMPARE(app.text(), QStringLiteral("Large[Bone]"));
    QVERIFY(!app.window.findChild<QMessageBox *>());
}

void TestLoadProgress::shouldSayWhatIsWrongWithALargeFile()
{
    AppFixture app;
    const QString path = app.path(QStringLiteral("large.json"));
    AppFixture::writeFile(path, largeDocument().replace('}', ' '));
    app.window.open({path});
    QTRY_VERIFY_WITH_TIMEOUT(app.window.findChild<QMessageBox *>(), 20000);
    const auto *const box = app.window.findChild<QMessageBox *>();
    QVERIFY2(box->text().contains(path), qPrintable(box->text()));
    QVERIFY2(box->text().contains(QLatin1String("JSON")), qPrintable(box->text()));
    QCOMPARE(app.tabCount(), 1);
}

void TestLoadProgress::shouldEndWhileALargeFileIsRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("large.json"));
    AppFixture::writeFile(path, largeDocument());
    {
        AppFixture app;
        app.window.open({path});
    }
    AppFixture::settle(); // nothing comes for a window that is gone
}

FISHBONE_TEST(TestLoadProgress)
#include "tst_loadprogress.moc"
