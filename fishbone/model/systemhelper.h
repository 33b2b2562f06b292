// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/fishbone_export.h>

#include <QObject>
#include <QString>

/**
 * The utilities that the whole library shares: identifiers, dates, angles and folders.
 *
 * All operations are static, no instance is needed.
 */
class FISHBONE_EXPORT SystemHelper : public QObject
{
    Q_OBJECT

public:
    /** Makes an object without any state; the operations do not need one. */
    explicit SystemHelper(QObject *parent = nullptr);

    /** Returns a new random UUID, 38 characters: "{8-4-4-4-12}" in lower-case hexadecimal digits.
     */
    static QString randomUuid();

    /**
     * Returns the local date of @p msecs milliseconds since the Unix epoch as "yyyy-MM-dd".
     *
     * The digits are the same in every locale. Any value may be asked for; a year of more than four
     * digits is written out.
     */
    static QString stringFromDateTimeMsecs(qint64 msecs);

    /** Converts @p radian from radians to degrees. */
    static double radianToAngle(double radian);

    /** Converts @p angle from degrees to radians. */
    static double angleToRadian(double angle);

    /** Returns the folder of the running program, with a "/" at the end. Needs an application
     * object. */
    static QString appliactionDirPath();

    /** Returns the folder of the user's documents, without a "/" at the end. */
    static QString documentsLocation();
};
