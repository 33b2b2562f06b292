// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/svgpicture.h>

#include <tests/exchange/describedfish.h>
#include <tests/program/testprogram.h>

#include <QXmlStreamReader>
#include <QtTest>

#include <algorithm>

using namespace DescribedFish;

namespace {

/** Takes what is written bit by bit, as a pipe does, and remembers how much there was at once. */
class Pipe : public QIODevice
{
public:
    Pipe() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }
    bool isSequential() const override { return true; }

    QByteArray written;
    qint64 largest = 0;

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 length) override
    {
        written.append(data, int(length));
        largest = std::max(largest, length);
        return length;
    }
};

/** A category with so many causes, each of them with a status and a link. */
ClearPictureContent manyCauses(int count)
{
    QStringList titles;
    for (int i = 0; i < count; ++i)
        titles << QStringLiteral("Cause number %1").arg(i);
    ClearPictureContent content = contentWith(titles, QStringLiteral("https://example.org"));
    const int statuses[] = {tsRunning, tsFinish, tsCancel};
    for (std::size_t i = 2; i < content.subjects.size(); ++i) {
        content.subjects[i].hasStatus = true;
        content.looks[i].icon = TaskStatusInfo(TaskStatus(statuses[i % 3]), 40).iconPath();
    }
    return content;
}

} // namespace

/** How a picture comes into its file. */
class TestSvgPictureWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteWhileItIsDescribed();
    void shouldEndWhenNoMoreIsTaken();
    void shouldHoldEachIconOnce();
};

/** So that a picture of any size takes no more memory than a small one. */
void TestSvgPictureWriting::shouldWriteWhileItIsDescribed()
{
    constexpr qint64 atOnce = 128 * 1024;
    Made made(manyCauses(6000));
    Pipe pipe;
    qint64 unwritten = 0;
    QVector<qint64> sizes;
    made.picture.setFollower([&](int) {
        sizes.append(pipe.written.size());
        return true;
    });

    QVERIFY(SvgPicture::write(made.picture, {}, pipe));

    QCOMPARE(pipe.written, made.svg());
    QVERIFY(pipe.written.size() > 8 * atOnce);
    QVERIFY2(pipe.largest <= atOnce, qPrintable(QString::number(pipe.largest)));
    // What is written follows what is described, evenly.
    QVERIFY(sizes.size() > 20);
    for (int i = 0; i < sizes.size(); ++i) {
        const qint64 described = qint64(pipe.written.size()) * i / sizes.size();
        unwritten = std::max(unwritten, described - sizes.at(i));
    }
    QVERIFY2(unwritten <= 2 * atOnce, qPrintable(QString::number(unwritten)));
}

void TestSvgPictureWriting::shouldEndWhenNoMoreIsTaken()
{
    const Made made(manyCauses(10));
    QBuffer closed;
    closed.open(QIODevice::ReadOnly);
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QBuffer): ReadOnly device");
    QVERIFY(!SvgPicture::write(made.picture, {}, closed));
}

void TestSvgPictureWriting::shouldHoldEachIconOnce()
{
    const Made made(manyCauses(30));
    QHash<QString, int> shown; // by the ids of the symbols
    QXmlStreamReader xml(made.svg());
    int symbols = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == QLatin1String("symbol")) {
            ++symbols;
            shown.insert(attributes.value(QLatin1String("id")).toString(), 0);
        } else if (xml.name() == QLatin1String("use")) {
            const QString id =
                attributes
                    .value(QStringLiteral("http://www.w3.org/1999/xlink"), QStringLiteral("href"))
                    .toString()
                    .mid(1);
            QVERIFY2(shown.contains(id), qPrintable(id));
            ++shown[id];
        }
    }
    QVERIFY(!xml.hasError());
    QCOMPARE(symbols, shown.size());
    QList<int> counts = shown.values();
    std::sort(counts.begin(), counts.end());
    QCOMPARE(counts, (QList<int>{10, 10, 10, 30})); // three statuses and the link
}

FISHBONE_TEST(TestSvgPictureWriting)
#include "tst_svgpicture_writing.moc"
