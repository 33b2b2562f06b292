// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/common/linkopener.h>

#include <fishbone/items/linkitem.h>

#include <tests/program/testprogram.h>
#include <tests/support/modaldriver.h>

#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QUrl>
#include <QWidget>
#include <QtTest>

using TestSupport::ModalDriver;

/** Takes the place of the desktop. */
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop()
    {
        for (const char *scheme : {"http", "https", "mailto", "file", "ssh"})
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "open");
    }
    ~Desktop() override
    {
        for (const char *scheme : {"http", "https", "mailto", "file", "ssh"})
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    }

    QStringList opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url.toString()); }
};

class TestLinkOpener : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKnowWhatIsHarmless_data();
    void shouldKnowWhatIsHarmless();
    void shouldOpenHarmlessLinksAtOnce_data();
    void shouldOpenHarmlessLinksAtOnce();
    void shouldAskBeforeOtherLinks_data();
    void shouldAskBeforeOtherLinks();
};

void TestLinkOpener::shouldKnowWhatIsHarmless_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("harmless");

    QTest::newRow("http") << QStringLiteral("http://localhost/") << true;
    QTest::newRow("https") << QStringLiteral("https://localhost/") << true;
    QTest::newRow("mailto") << QStringLiteral("mailto:a@localhost") << true;
    QTest::newRow("capitals") << QStringLiteral("HTTPS://localhost/") << true;
    QTest::newRow("file") << QStringLiteral("file:///etc/hosts") << false;
    QTest::newRow("javascript") << QStringLiteral("javascript:alert(1)") << false;
    QTest::newRow("ssh") << QStringLiteral("ssh://localhost") << false;
    QTest::newRow("no scheme") << QStringLiteral("localhost") << false;
    QTest::newRow("empty") << QString() << false;
}

void TestLinkOpener::shouldKnowWhatIsHarmless()
{
    QFETCH(QString, url);
    QTEST(LinkOpener::isHarmless(QUrl(url)), "harmless");
}

void TestLinkOpener::shouldOpenHarmlessLinksAtOnce_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("opened");

    QTest::newRow("http") << QStringLiteral("http://localhost/a")
                          << QStringLiteral("http://localhost/a");
    QTest::newRow("mail") << QStringLiteral("mailto:a@localhost")
                          << QStringLiteral("mailto:a@localhost");
    QTest::newRow("typed without a scheme")
        << QStringLiteral("www.example.org/a") << QStringLiteral("http://www.example.org/a");
}

void TestLinkOpener::shouldOpenHarmlessLinksAtOnce()
{
    QFETCH(QString, link);
    QFETCH(QString, opened);
    Desktop desktop;
    QWidget window;
    new LinkOpener(&window);
    bool asked = false;
    const ModalDriver<QMessageBox> driver([&asked](QMessageBox &box) {
        asked = true;
        box.reject();
    });

    LinkItem::open(link);
    QVERIFY(desktop.opened.isEmpty()); // not in the middle of a press
    QTRY_COMPARE(desktop.opened, QStringList(opened));
    QVERIFY(!asked);
}

void TestLinkOpener::shouldAskBeforeOtherLinks_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<int>("answer");

    for (const char *link : {"file:///etc/hosts", "ssh://localhost"}) {
        QTest::newRow(qPrintable(QStringLiteral("open %1").arg(QLatin1String(link))))
            << QString::fromLatin1(link) << int(QMessageBox::Open);
        QTest::newRow(qPrintable(QStringLiteral("cancel %1").arg(QLatin1String(link))))
            << QString::fromLatin1(link) << int(QMessageBox::Cancel);
    }
}

void TestLinkOpener::shouldAskBeforeOtherLinks()
{
    QFETCH(QString, link);
    QFETCH(int, answer);
    Desktop desktop;
    QWidget window;
    window.show();
    new LinkOpener(&window);
    QString named;
    bool cancelIsPreset = false;
    const ModalDriver<QMessageBox> driver([&](QMessageBox &box) {
        named = box.informativeText();
        cancelIsPreset = box.standardButton(box.defaultButton()) == QMessageBox::Cancel;
        box.button(QMessageBox::StandardButton(answer))->click();
    });

    LinkItem::open(link);
    QTRY_VERIFY(driver.isDone());
    QVERIFY(named.contains(link));
    QVERIFY(cancelIsPreset); // Return alone opens nothing
    QCOMPARE(desktop.opened, answer == QMessageBox::Open ? QStringList(link) : QStringList());
}

FISHBONE_TEST(TestLinkOpener)
#include "tst_linkopener.moc"
