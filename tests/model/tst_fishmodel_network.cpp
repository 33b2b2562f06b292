// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/fishinfo.h>
#include <fishbone/model/treeitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/signalrecorder.h>

#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <memory>

#include <limits>

using namespace TestSupport;

namespace {

constexpr int patience = 20000;

const char *const sentDocument = R"({"title": "Effect", "children": [{"title": "Man"}]})";

QByteArray response(const QByteArray &status, const QByteArray &body,
                    const QByteArray &headers = {})
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\n" + headers + "Connection: close\r\n\r\n" + body;
}

/** A reply that is complete, and that no manager made. */
class LooseReply : public QNetworkReply
{
public:
    explicit LooseReply(const QByteArray &content)
        : m_content(content)
    {
        setUrl(QUrl(QStringLiteral("x://loose")));
        open(QIODevice::ReadOnly);
        setFinished(true);
    }
    void abort() override {}
    qint64 bytesAvailable() const override
    {
        return m_content.size() + QNetworkReply::bytesAvailable();
    }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const QByteArray part = m_content.left(int(size));
        m_content.remove(0, part.size());
        std::copy(part.cbegin(), part.cend(), data);
        return part.isEmpty() ? -1 : part.size();
    }

private:
    QByteArray m_content;
};

/** A web server on this machine that answers each path as it was told, and says nothing else. */
class WebServer : public QTcpServer
{
public:
    WebServer()
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *const socket = nextPendingConnection())
                connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(socket); });
        });
        listen(QHostAddress::LocalHost);
    }

    QUrl url(const char *path) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2")
                        .arg(serverPort())
                        .arg(QString::fromLatin1(path)));
    }

    /** Sends @p bytes for @p path and ends the connection, or leaves it open. */
    void tell(const char *path, const QByteArray &bytes, bool thenClose = true)
    {
        m_answers.insert(path, {bytes, thenClose});
    }

    QStringList requests() const { return m_requests; }

private:
    struct Answer
    {
        QByteArray bytes;
        bool thenClose;
    };

    void answer(QTcpSocket *socket)
    {
        const QByteArray request = socket->readAll();
        if (!request.startsWith("GET "))
            return;
        const QByteArray path = request.split(' ').at(1);
        m_requests.append(QString::fromLatin1(path));
        const Answer reply = m_answers.value(path);
        socket->write(reply.bytes);
        if (reply.thenClose)
            socket->disconnectFromHost();
    }

    QHash<QByteArray, Answer> m_answers;
    QStringList m_requests;
};

} // namespace

/** Loading over HTTP, from a server on this machine. */
class TestFishModelNetwork : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shouldLoadADiagram();
    void shouldLoadWithinTheLimit();
    void shouldReadLinearlyOftenAtAnyLimit();
    void shouldTellHowFarALoadIs();
    void shouldCancelLoads();
    void shouldTellWhyALoadFailed();
    void shouldFollowRedirects();
    void shouldNotFollowRedirectsForEver();
    void shouldReportWhatIsNoDiagram_data();
    void shouldReportWhatIsNoDiagram();
    void shouldGiveUpOnAServerThatIsSilent_data();
    void shouldGiveUpOnAServerThatIsSilent();
    void shouldEndRepliesThatAreTooLarge_data();
    void shouldEndRepliesThatAreTooLarge();
    void shouldReportARefusedConnection();
    void shouldReportAddressesThatLeadNowhere_data();
    void shouldReportAddressesThatLeadNowhere();
    void shouldLoadSeveralAtATime();
    void shouldFreeEverythingAfterALoad();
    void shouldBeDestroyedWhileLoading();
    void shouldTakeTheReplyOfTheHostsOwnRequest();
    void shouldTakeAReplyWithoutAManager();
    void shouldIgnoreNoReply();

private:
    /** Loads @p url, waits, and returns the signals that came. */
    QString load(const QUrl &url);

    std::unique_ptr<WebServer> m_server;
    std::unique_ptr<FishModel> m_model;
};

void TestFishModelNetwork::init()
{
    m_server = std::make_unique<WebServer>();
    QVERIFY(m_server->isListening());
    m_model = std::make_unique<FishModel>();
    m_model->setModelType(FISH_MODEL_DIAGRAM);
    m_model->setTransferTimeout(patience / 2);
}

void TestFishModelNetwork::cleanup()
{
    m_model.reset();
    m_server.reset();
}

QString TestFishModelNetwork::load(const QUrl &url)
{
    SignalRecorder signals(*m_model, {QStringLiteral("fishLoaded")});
    QSignalSpy loaded(m_model.get(), &FishModel::fishLoaded);
    m_model->loadFishFromUrl(url);
    if (!loaded.isEmpty())
        return QStringLiteral("before the call returned");
    // Once everything of the load is freed, no second signal can come.
    const auto isFreed = [this] { return !m_model->findChild<QNetworkAccessManager *>(); };
    return QTest::qWaitFor(isFreed, patience) ? signals.take() : QStringLiteral("not freed");
}

void TestFishModelNetwork::shouldLoadADiagram()
{
    m_server->tell("/effect.json", response("200 OK", sentDocument));

    QCOMPARE(load(m_server->url("/effect.json")), QStringLiteral("fishLoaded(Effect, 0)"));

    QCOMPARE(m_model->rowCount(), 1);
    QCOMPARE(m_model->fishList().first()->fileName(), m_server->url("/effect.json").toString());
    QCOMPARE(m_model->fishList().first()->nodeCount(), 2);
    QCOMPARE(m_server->requests(), QStringList(QStringLiteral("/effect.json")));
}

void TestFishModelNetwork::shouldLoadWithinTheLimit()
{
    m_server->tell("/a", response("200 OK", sentDocument));
    m_model->setReplyLimit(qint64(qstrlen(sentDocument)));

    QCOMPARE(load(m_server->url("/a")), QStringLiteral("fishLoaded(Effect, 0)"));
    m_model->setReplyLimit(0); // any size
    QCOMPARE(load(m_server->url("/a")), QStringLiteral("fishLoaded(Effect, 0)"));
    m_server->tell("/large",
                   response("200 OK", QByteArray(sentDocument) + QByteArray(2000000, ' ')));
    for (const qint64 limit : {std::numeric_limits<qint64>::max(), qint64(4000000)}) {
        m_model->setReplyLimit(limit);
        QCOMPARE(load(m_server->url("/large")), QStringLiteral("fishLoaded(Effect, 0)"));
    }
}

void TestFishModelNetwork::shouldReadLinearlyOftenAtAnyLimit()
{
    const qint64 greatest = std::numeric_limits<qint64>::max();
    QSignalSpy progress(m_model.get(), &FishModel::loadProgress);
    for (const qint64 limit : {greatest, greatest - 1, greatest / 2, qint64(0)}) {
        m_model->setReplyLimit(limit);
        for (const int size : {100000, 4000000}) {
            m_server->tell("/a", response("200 OK", QByteArray(size, ' ') + sentDocument));
            progress.clear();
            QCOMPARE(load(m_server->url("/a")), QStringLiteral("fishLoaded(Effect, 0)"));
            QVERIFY(progress.count() <= 20 + size / 4000); // parts that are not tiny
            qint64 before = 0;
            for (const QVariantList &arguments : progress) {
                QVERIFY(arguments.at(1).toLongLong() > before); // each is looked at once
                before = arguments.at(1).toLongLong();
            }
        }
    }
}

void TestFishModelNetwork::shouldTellHowFarALoadIs()
{
    const QByteArray large = QByteArray(sentDocument) + QByteArray(200000, ' ');
    m_server->tell("/large", response("200 OK", large));
    m_server->tell("/unknown",
                   QByteArray("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n") + sentDocument);
    QSignalSpy progress(m_model.get(), &FishModel::loadProgress);
    QVERIFY(!m_model->isLoading());

    QCOMPARE(load(m_server->url("/large")), QStringLiteral("fishLoaded(Effect, 0)"));

    QVERIFY(!m_model->isLoading());
    QVERIFY(progress.count() > 0);
    QCOMPARE(progress.last(),
             QVariantList({m_server->url("/large"), qint64(large.size()), qint64(large.size())}));
    progress.clear();
    QCOMPARE(load(m_server->url("/unknown")), QStringLiteral("fishLoaded(Effect, 0)"));
    QCOMPARE(progress.last().last().toLongLong(), Q_INT64_C(-1));
    QCOMPARE(m_model->loadError(), QString());
}

void TestFishModelNetwork::shouldCancelLoads()
{
    m_server->tell("/a", response("200 OK", QByteArray(sentDocument)).left(60), false);
    QSignalSpy loaded(m_model.get(), &FishModel::fishLoaded);
    m_model->loadFishFromUrl(m_server->url("/a"));
    m_model->loadFishFromUrl(m_server->url("/a"));
    QVERIFY(m_model->isLoading());

    m_model->cancelLoads();

    QVERIFY(!m_model->isLoading());
    QTRY_COMPARE(loaded.count(), 2);
    QCOMPARE(loaded.first().last().value<MODEL_ERROR>(), MODEL_DATA_ERROR);
    QVERIFY(!m_model->loadError().isEmpty());
    m_model->cancelLoads(); // nothing is left
}

void TestFishModelNetwork::shouldTellWhyALoadFailed()
{
    m_server->tell("/text", response("200 OK", "{\n\"title\":"));
    QCOMPARE(load(m_server->url("/text")), QStringLiteral("fishLoaded(invalid, -10002)"));
    QVERIFY(m_model->loadError().contains(QStringLiteral("line 2")));
    m_server->tell("/a", response("200 OK", sentDocument));
    m_model->setReplyLimit(10);
    QCOMPARE(load(m_server->url("/a")), QStringLiteral("fishLoaded(invalid, -10002)"));
    QVERIFY(m_model->loadError().contains(QStringLiteral("too large")));
    m_model->setReplyLimit(0);
    QCOMPARE(load(m_server->url("/a")), QStringLiteral("fishLoaded(Effect, 0)"));
    QCOMPARE(m_model->loadError(), QString());
    QCOMPARE(m_model->loadFishFromFile(QStringLiteral("/there is none")), -10001);
    QVERIFY(!m_model->loadError().isEmpty());
}

void TestFishModelNetwork::shouldFollowRedirects()
{
    m_server->tell("/old", response("302 Found", "moved", "Location: /older\r\n"));
    m_server->tell("/older", response("301 Moved Permanently", "", "Location: /new\r\n"));
    m_server->tell("/new", response("200 OK", sentDocument));

    QCOMPARE(load(m_server->url("/old")), QStringLiteral("fishLoaded(Effect, 0)"));

    QCOMPARE(m_model->fishList().first()->fileName(), m_server->url("/new").toString());
}

void TestFishModelNetwork::shouldNotFollowRedirectsForEver()
{
    m_server->tell("/loop", response("302 Found", sentDocument, "Location: /loop\r\n"));

    QCOMPARE(load(m_server->url("/loop")), QStringLiteral("fishLoaded(invalid, -10002)"));
}

void TestFishModelNetwork::shouldReportWhatIsNoDiagram_data()
{
    QTest::addColumn<QByteArray>("answer");

    QTest::newRow("page instead of a diagram") << response("200 OK", "<html></html>");
    QTest::newRow("nothing") << response("200 OK", "");
    QTest::newRow("no content") << QByteArray("HTTP/1.1 204 No Content\r\n\r\n");
    QTest::newRow("not found, with a page") << response("404 Not Found", "<html></html>");
    QTest::newRow("not found, with a diagram") << response("404 Not Found", sentDocument);
    QTest::newRow("server error, with a diagram")
        << response("500 Internal Server Error", sentDocument);
    QTest::newRow("forbidden, with a diagram") << response("403 Forbidden", sentDocument);
    QTest::newRow("cut in the body")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n") + sentDocument;
    QTest::newRow("cut in the head") << QByteArray("HTTP/1.1 200 OK\r\nContent-Le");
    QTest::newRow("not HTTP") << QByteArray("hello\r\n\r\n");
    QTest::newRow("connection closed at once") << QByteArray();
}

void TestFishModelNetwork::shouldReportWhatIsNoDiagram()
{
    QFETCH(QByteArray, answer);
    m_server->tell("/", answer);

    QCOMPARE(load(m_server->url("/")), QStringLiteral("fishLoaded(invalid, -10002)"));

    QCOMPARE(m_model->rowCount(), 0);
}

void TestFishModelNetwork::shouldGiveUpOnAServerThatIsSilent_data()
{
    QTest::addColumn<QByteArray>("begun");

    QTest::newRow("from the start") << QByteArray();
    QTest::newRow("in the middle")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n{\"title\":");
}

void TestFishModelNetwork::shouldGiveUpOnAServerThatIsSilent()
{
    QFETCH(QByteArray, begun);
    m_server->tell("/", begun, false);
    m_model->setTransferTimeout(200);

    QCOMPARE(load(m_server->url("/")), QStringLiteral("fishLoaded(invalid, -10002)"));
}

void TestFishModelNetwork::shouldEndRepliesThatAreTooLarge_data()
{
    QTest::addColumn<QByteArray>("answer");

    const QByteArray large = QByteArray(sentDocument) + QByteArray(100000, ' ');
    QTest::newRow("announced") << response("200 OK", large);
    QTest::newRow("announced and never sent")
        << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 99999999\r\n\r\n") + sentDocument;
    QTest::newRow("of unknown size")
        << QByteArray("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n") + large;
    QTest::newRow("one byte too large") << response(
        "200 OK", QByteArray(sentDocument) + QByteArray(1001 - int(qstrlen(sentDocument)), ' '));
}

void TestFishModelNetwork::shouldEndRepliesThatAreTooLarge()
{
    QFETCH(QByteArray, answer);
    m_server->tell("/", answer, false); // it would wait for the rest for ever
    m_model->setReplyLimit(1000);
    m_model->setTransferTimeout(0);

    QCOMPARE(load(m_server->url("/")), QStringLiteral("fishLoaded(invalid, -10002)"));

    QCOMPARE(m_model->rowCount(), 0);
}

void TestFishModelNetwork::shouldReportARefusedConnection()
{
    const QUrl url = m_server->url("/");
    m_server->close();

    QCOMPARE(load(url), QStringLiteral("fishLoaded(invalid, -10002)"));
}

void TestFishModelNetwork::shouldReportAddressesThatLeadNowhere_data()
{
    QTest::addColumn<QUrl>("url");

    QTest::newRow("none") << QUrl();
    QTest::newRow("unknown scheme") << QUrl(QStringLiteral("fish://effect"));
    QTest::newRow("no host") << QUrl(QStringLiteral("http://"));
    QTest::newRow("missing file") << QUrl(QStringLiteral("file:///nowhere/effect.json"));
}

void TestFishModelNetwork::shouldReportAddressesThatLeadNowhere()
{
    QFETCH(QUrl, url);

    QCOMPARE(load(url), QStringLiteral("fishLoaded(invalid, -10002)"));
}

void TestFishModelNetwork::shouldLoadSeveralAtATime()
{
    m_server->tell("/a", response("200 OK", R"({"title": "A"})"));
    m_server->tell("/b", response("404 Not Found", R"({"title": "B"})"));
    m_server->tell("/c", response("200 OK", R"({"title": "C"})"));
    QSignalSpy loaded(m_model.get(), &FishModel::fishLoaded);

    for (const char *path : {"/a", "/b", "/c"})
        m_model->loadFishFromUrl(m_server->url(path));

    QTRY_COMPARE_WITH_TIMEOUT(loaded.count(), 3, patience);
    QSet<QString> titles;
    for (int row = 0; row < m_model->rowCount(); ++row)
        titles.insert(m_model->index(row, 0).data().toString());
    QCOMPARE(titles, QSet<QString>({QStringLiteral("A"), QStringLiteral("C")}));
}

void TestFishModelNetwork::shouldFreeEverythingAfterALoad()
{
    m_server->tell("/", response("200 OK", sentDocument));

    m_model->loadFishFromUrl(m_server->url("/"));

    const QPointer<QNetworkAccessManager> manager = m_model->findChild<QNetworkAccessManager *>();
    QVERIFY(manager);
    const QPointer<QNetworkReply> reply = manager->findChild<QNetworkReply *>();
    QVERIFY(reply);
    QTRY_VERIFY_WITH_TIMEOUT(!manager && !reply, patience);
}

void TestFishModelNetwork::shouldBeDestroyedWhileLoading()
{
    m_server->tell("/", response("200 OK", sentDocument));
    m_model->loadFishFromUrl(m_server->url("/"));
    const QPointer<QNetworkAccessManager> manager = m_model->findChild<QNetworkAccessManager *>();

    m_model.reset();

    QVERIFY(!manager);
}

void TestFishModelNetwork::shouldTakeTheReplyOfTheHostsOwnRequest()
{
    m_server->tell("/", response("200 OK", sentDocument));
    QNetworkAccessManager manager;
    connect(&manager, &QNetworkAccessManager::finished, m_model.get(), &FishModel::replyFinished);
    QSignalSpy loaded(m_model.get(), &FishModel::fishLoaded);
    const QPointer<QNetworkReply> reply = manager.get(QNetworkRequest(m_server->url("/")));

    QTRY_COMPARE_WITH_TIMEOUT(loaded.count(), 1, patience);

    QCOMPARE(m_model->fishList().first()->fileName(), m_server->url("/").toString());
    QTRY_VERIFY(!reply);
}

void TestFishModelNetwork::shouldTakeAReplyWithoutAManager()
{
    QPointer<QNetworkReply> reply = new LooseReply(sentDocument);
    m_model->replyFinished(reply);
    QCOMPARE(m_model->fishList().size(), 1);
    QCOMPARE(m_model->fishList().first()->fileName(), QStringLiteral("x://loose"));
    QTRY_VERIFY(!reply);

    m_model->setReplyLimit(10);
    QSignalSpy loaded(m_model.get(), &FishModel::fishLoaded);
    m_model->replyFinished(new LooseReply(sentDocument)); // complete before anybody could end it
    QCOMPARE(m_model->fishList().size(), 1);
    QCOMPARE(loaded.count(), 1);
    QCOMPARE(loaded.first().at(1).value<MODEL_ERROR>(), MODEL_DATA_ERROR);
}

void TestFishModelNetwork::shouldIgnoreNoReply()
{
    QSignalSpy loaded(m_model.get(), &FishModel::fishLoaded);

    m_model->replyFinished(nullptr);

    QCOMPARE(loaded.count(), 0);
}

FISHBONE_TEST(TestFishModelNetwork)

#include "tst_fishmodel_network.moc"
