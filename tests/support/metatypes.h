// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QVariant>

namespace TestSupport {

/** Whether a type is registered under @p name, so that it can be queued and recorded. */
inline bool isRegisteredType(const QByteArray &name)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QMetaType::fromName(name).isValid();
#else
    return QMetaType::type(name) != QMetaType::UnknownType;
#endif
}

/** A copy of the @p value of a type that has the number @p type. */
inline QVariant variantOf(int type, const void *value)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QVariant(QMetaType(type), value);
#else
    return QVariant(type, value);
#endif
}

} // namespace TestSupport
