// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/files/largefilereader.h>

#include <app/files/loadfailure.h>

#include <fishbone/exchange/jsondiagram.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonParseError>

namespace {

/** What the file @p path holds, and, in @p reason, why that is no diagram. */
QJsonDocument parsedFile(const QString &path, QString &reason)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        reason = file.errorString();
        return {};
    }
    const QByteArray content = file.readAll();
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(content, &error);
    reason = json.isNull() ? LoadFailure::reasonOfText(content, error)
                           : JsonDiagram::reasonAgainst(json);
    return json;
}

} // namespace

LargeFileReader::LargeFileReader(QObject *parent)
    : QObject(parent)
{
}

void LargeFileReader::read(const QString &path)
{
    m_isReading = true;
    const int reading = ++m_reading;
    m_readers.start([this, path, reading] {
        QString reason;
        const QJsonDocument json = parsedFile(path, reason);
        QMetaObject::invokeMethod(
            this, [this, reading, path, json, reason] { end(reading, path, json, reason); });
    });
}

void LargeFileReader::drop()
{
    m_isReading = false;
}

void LargeFileReader::end(int reading, const QString &path, const QJsonDocument &json,
                          const QString &reason)
{
    if (!m_isReading || reading != m_reading)
        return; // nobody wants it any more
    m_isReading = false;
    Q_EMIT ended(path, json, reason);
}
