// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

// Loading from a web server that means harm or is broken: one error, in bounded time and memory,
// and what is loaded already stays as it is.

#include <tests/program/testprogram.h>
#include <tests/support/commandfixture.h>

#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QNetworkAccessManager>
#include <QPointer>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

using namespace TestSupport;

namespace {

constexpr int serverPatience = 20000;
constexpr int transferTimeout = 200;
constexpr qint64 replyLimit = 1 << 20;

const QByteArray document(R"({"title": "Effect", "children": [{"title": "Man"}]})");

QByteArray response(const QByteArray &headers, const QByteArray &body = document)
{
    return "HTTP/1.1 200 OK\r\n" + headers + "\r\n" + body;
}

QByteArray redirect(const QByteArray &location)
{
    return "HTTP/1.1 302 Found\r\nLocation: " + location + "\r\nContent-Length: 0\r\n\r\n";
}

/** Does with each visitor what it was told for the path. */
class HostileServer : public QTcpServer
{
public:
    using Behaviour = std::function<void(QTcpSocket *)>;

    HostileServer()
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *const socket = nextPendingConnection())
                connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(socket); });
        });
        listen(QHostAddress::LocalHost);
    }

    QUrl url(const QString &path = QStringLiteral("/")) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path));
    }

    void tell(Behaviour behaviour) { m_behaviour = std::move(behaviour); }

    int requests = 0;

private:
    void answer(QTcpSocket *socket)
    {
        if (!socket->readAll().startsWith("GET "))
            return;
        ++requests;
        m_behaviour(socket);
    }

    Behaviour m_behaviour;
};

/** Sends bytes and closes the connection. */
HostileServer::Behaviour sends(const QByteArray &bytes)
{
    return [bytes](QTcpSocket *socket) {
        socket->write(bytes);
        socket->disconnectFromHost();
    };
}

/** Sends bytes, then @p part again and again, as fast as it is read with @p pause 0. */
HostileServer::Behaviour repeats(const QByteArray &bytes, const QByteArray &part, int pause)
{
    return [bytes, part, pause](QTcpSocket *socket) {
        socket->write(bytes);
        auto *const timer = new QTimer(socket);
        QObject::connect(timer, &QTimer::timeout, socket, [socket, part] {
            if (socket->isOpen() && socket->bytesToWrite() < 1 << 20)
                socket->write(part);
        });
        timer->start(pause);
    };
}

/** A size in KiB out of what the system knows of this process; 0 when it does not tell. */
qint64 processSize(const char *name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name))
            return line.split(':').at(1).simplified().split(' ').first().toLongLong();
    }
    return 0;
}

/** How much larger than at its beginning the process has become since then, in KiB. */
class PeakGrowth
{
public:
    PeakGrowth()
    {
        QFile reset(QStringLiteral("/proc/self/clear_refs"));
        if (reset.open(QIODevice::WriteOnly))
            reset.write("5");
        m_before = processSize("VmRSS");
    }

    qint64 kib() const { return processSize("VmHWM") - m_before; }

private:
    qint64 m_before = 0;
};

/** 512 MiB of blanks before a document, packed to a thousandth as "deflate". */
QByteArray bomb()
{
    return qCompress(QByteArray(512 << 20, ' ') + document, 9).mid(4);
}

} // namespace

class TestHostileServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shouldFailOnceOn_data();
    void shouldFailOnceOn();
    void shouldNotFollowARedirectToAFile();
    void shouldEndATransferThatCreeps();
    void shouldEndWhatHasNoEnd_data();
    void shouldEndWhatHasNoEnd();
    void shouldNotUnpackWithoutALimit();
    void shouldUnpackADocument();
    void shouldTakeNoMoreThanWasAnnounced();
    void shouldFailWhereTheServerKnowsNoTls();
    void shouldFailOnAServerThatNeverAccepts();
    void shouldFreeLoadsThatFailTogether();

private:
    /** Loads @p url: the errors that were signalled until all of the load was freed. */
    QString load(const QUrl &url);

    std::unique_ptr<HostileServer> m_server;
    std::unique_ptr<CommandFixture> m_fixture;
    qint64 m_milliseconds = 0;
};

void TestHostileServer::init()
{
    m_server = std::make_unique<HostileServer>();
    QVERIFY(m_server->isListening());
    m_fixture = std::make_unique<CommandFixture>(QStringLiteral("Shown[One[Two],Three]"));
    m_fixture->draw();
    m_fixture->model->setTransferTimeout(transferTimeout);
    m_fixture->model->setReplyLimit(replyLimit);
}

QString TestHostileServer::load(const QUrl &url)
{
    FishModel &model = *m_fixture->model;
    const QString before = modelText(model);
    QStringList errors;
    const auto noted =
        connect(&model, &FishModel::fishLoaded, this,
                [&errors](const QModelIndex &index, MODEL_ERROR error) {
                    errors.append(QStringLiteral("%1 %2").arg(
                        index.isValid() ? QStringLiteral("valid") : QStringLiteral("invalid"),
                        QString::number(error)));
                });
    QElapsedTimer elapsed;
    elapsed.start();
    model.loadFishFromUrl(url);
    const auto isFreed = [&model] { return !model.findChild<QNetworkAccessManager *>(); };
    if (!QTest::qWaitFor(isFreed, serverPatience))
        errors.append(QStringLiteral("never freed"));
    m_milliseconds = elapsed.elapsed();
    disconnect(noted);
    if (model.rowCount() == 1 && modelText(model) != before)
        errors.append(QStringLiteral("what was loaded before has changed"));
    if (const QString fault = spearFault(model); !fault.isEmpty())
        errors.append(fault);
    return errors.join(QStringLiteral(", "));
}

void TestHostileServer::shouldFailOnceOn_data()
{
    QTest::addColumn<QByteArray>("answer");

    QTest::newRow("length too long") << response("Content-Length: 5000\r\n");
    QTest::newRow("length of a giant") << response("Content-Length: 9223372036854775807\r\n");
    QTest::newRow("length beyond numbers")
        << response("Content-Length: 99999999999999999999999\r\nX: y\r\n", "{\"title\":");
    QTest::newRow("length of 0") << response("Content-Length: 0\r\n");
    QTest::newRow("length cuts") << response("Content-Length: 20\r\n");
    QTest::newRow("chunk of a giant")
        << response("Transfer-Encoding: chunked\r\n", "7fffffffffffffff\r\n" + document);
    QTest::newRow("chunk that is no number")
        << response("Transfer-Encoding: chunked\r\n", "zz\r\n" + document);
    QTest::newRow("chunk that is cut")
        << response("Transfer-Encoding: chunked\r\n", "10\r\n{\"title\"");
    QTest::newRow("packed, but is not") << response("Content-Encoding: gzip\r\n");
    QTest::newRow("packed and cut")
        << response("Content-Encoding: deflate\r\n", qCompress(document).mid(4).left(20));
    QTest::newRow("missing, with a page")
        << QByteArray("HTTP/1.1 404 Not Found\r\nContent-Type: text/html\r\n\r\n<html></html>");
    QTest::newRow("asks for a password")
        << QByteArray("HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"x\"\r\n"
                      "Content-Length: 0\r\n\r\n");
    QTest::newRow("redirects to itself") << redirect("/");
    QTest::newRow("redirects nowhere") << redirect("");
    QTest::newRow("redirects to no host") << redirect("http://");
    QTest::newRow("redirects to data")
        << redirect("data:application/json,{%22title%22:%22stolen%22}");
    QTest::newRow("status beyond numbers") << QByteArray("HTTP/1.1 99999999999 OK\r\n\r\n{}");
    QTest::newRow("of another protocol") << QByteArray("220 ready\r\n");
    QTest::newRow("null characters") << QByteArray(4000, '\0');
}

void TestHostileServer::shouldFailOnceOn()
{
    QFETCH(QByteArray, answer);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    if (answer.contains("9223372036854775807")) // which the toolkit takes for a mistake of its own
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Internal problem")));
#endif
    m_server->tell(sends(answer));
    QCOMPARE(load(m_server->url()), QStringLiteral("invalid -10002"));
    QCOMPARE(m_fixture->model->rowCount(), 1);
}

/** A file of this machine is nothing that a server may have loaded. */
void TestHostileServer::shouldNotFollowARedirectToAFile()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("own.json")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(document) == document.size());
    file.close();
    m_server->tell(sends(redirect(QUrl::fromLocalFile(file.fileName()).toEncoded())));
    QCOMPARE(load(m_server->url()), QStringLiteral("invalid -10002"));
    QCOMPARE(m_fixture->model->rowCount(), 1);
}

void TestHostileServer::shouldEndATransferThatCreeps()
{
    m_server->tell(repeats(response("", ""), " ", 20));
    QCOMPARE(load(m_server->url()), QStringLiteral("invalid -10002"));
    QVERIFY2(m_milliseconds < 30 * transferTimeout, qPrintable(QString::number(m_milliseconds)));
}

void TestHostileServer::shouldEndWhatHasNoEnd_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::addColumn<QByteArray>("part");

    const QByteArray blanks(1 << 16, ' ');
    QTest::newRow("body") << response("", "") << blanks;
    QTest::newRow("body in chunks")
        << response("Transfer-Encoding: chunked\r\n", "") << "10000\r\n" + blanks + "\r\n";
    QTest::newRow("header") << QByteArray("HTTP/1.1 200 OK\r\nX: ") << QByteArray(1 << 16, 'x');
    QTest::newRow("headers") << QByteArray("HTTP/1.1 200 OK\r\n") << QByteArray("X: y\r\n");
    QTest::newRow("status line") << QByteArray("HTTP/1.1 200 ") << QByteArray(1 << 16, 'x');
    QTest::newRow("continue") << QByteArray() << QByteArray("HTTP/1.1 100 Continue\r\n\r\n");
}

void TestHostileServer::shouldEndWhatHasNoEnd()
{
    QFETCH(QByteArray, begin);
    QFETCH(QByteArray, part);
    m_server->tell(repeats(begin, part, 0));
    const PeakGrowth growth;
    QCOMPARE(load(m_server->url()), QStringLiteral("invalid -10002"));
    QVERIFY2(m_milliseconds < 30 * transferTimeout, qPrintable(QString::number(m_milliseconds)));
    QVERIFY2(growth.kib() < 200 * 1024, qPrintable(QString::number(growth.kib())));
}

void TestHostileServer::shouldNotUnpackWithoutALimit()
{
    m_server->tell(sends(response("Content-Encoding: deflate\r\n", bomb())));
    const PeakGrowth growth;
    QCOMPARE(load(m_server->url()), QStringLiteral("invalid -10002"));
    QCOMPARE(m_fixture->model->rowCount(), 1);
    // What one packet of the network unpacks to is there before it can be looked at.
    QVERIFY2(growth.kib() < 200 * 1024, qPrintable(QString::number(growth.kib())));
}

void TestHostileServer::shouldUnpackADocument()
{
    m_fixture->model->setTransferTimeout(serverPatience);
    m_server->tell(sends(response("Content-Encoding: deflate\r\n", qCompress(document).mid(4))));
    QCOMPARE(load(m_server->url()), QStringLiteral("valid 0"));
    QCOMPARE(m_fixture->model->rowCount(), 2);
}

void TestHostileServer::shouldTakeNoMoreThanWasAnnounced()
{
    m_fixture->model->setTransferTimeout(serverPatience);
    m_server->tell(sends(response("Content-Length: " + QByteArray::number(document.size()) + "\r\n",
                                  document + "and more")));
    QCOMPARE(load(m_server->url()), QStringLiteral("valid 0"));
}

void TestHostileServer::shouldFailWhereTheServerKnowsNoTls()
{
    m_server->tell(sends(response("")));
    QUrl url = m_server->url();
    url.setScheme(QStringLiteral("https"));
    QCOMPARE(load(url), QStringLiteral("invalid -10002"));
    QCOMPARE(m_server->requests, 0);
}

void TestHostileServer::shouldFailOnAServerThatNeverAccepts()
{
    m_server->pauseAccepting();
    QCOMPARE(load(m_server->url()), QStringLiteral("invalid -10002"));
    QVERIFY(m_milliseconds < 10 * transferTimeout);
}

void TestHostileServer::shouldFreeLoadsThatFailTogether()
{
    m_server->tell(repeats(response("", ""), QByteArray(1 << 16, ' '), 0));
    FishModel &model = *m_fixture->model;
    QSignalSpy loaded(&model, &FishModel::fishLoaded);
    constexpr int loads = 20;
    for (int i = 0; i < loads; ++i)
        model.loadFishFromUrl(m_server->url());
    QTRY_VERIFY_WITH_TIMEOUT(!model.findChild<QNetworkAccessManager *>(), serverPatience);
    QCOMPARE(loaded.count(), loads);
    QCOMPARE(model.rowCount(), 1);
}

FISHBONE_TEST(TestHostileServer)
#include "tst_hostileserver.moc"
