// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/model/systemhelper.h>

#include <fishbone/base/programfolder.h>

#include <QDateTime>
#include <QLocale>
#include <QStandardPaths>
#include <QUuid>

SystemHelper::SystemHelper(QObject *parent)
    : QObject(parent)
{
}

QString SystemHelper::randomUuid()
{
    return QUuid::createUuid().toString();
}

QString SystemHelper::stringFromDateTimeMsecs(qint64 msecs)
{
    // The system's locale would bring digits of its own.
    return QLocale::c().toString(QDateTime::fromMSecsSinceEpoch(msecs),
                                 QStringLiteral("yyyy-MM-dd"));
}

double SystemHelper::radianToAngle(double radian)
{
    return 180.0 * radian / 3.141592653589793;
}

double SystemHelper::angleToRadian(double angle)
{
    return 0.017453292519943295 * angle;
}

QString SystemHelper::appliactionDirPath()
{
    return programFolder();
}

QString SystemHelper::documentsLocation()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}
