// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaMethod>
#include <QMetaType>
#include <QModelIndex>
#include <QObject>
#include <QStringList>

#include <tests/support/metatypes.h>

namespace TestSupport {

/**
 * Writes down the signals of an object, in the order in which they come and with their arguments:
 * "zoomValueChanged(260), rotateValueChanged(0)". An index is written as its display text, a
 * pointer as "null" or "object", a list of texts in brackets. Signals of QObject are left out.
 */
class SignalRecorder : public QObject
{
public:
    /**
     * Records all signals that the object's class and its bases declare, or only the named ones.
     */
    explicit SignalRecorder(const QObject &sender, const QStringList &names = {})
    {
        const QMetaObject &type = *sender.metaObject();
        for (int i = QObject::staticMetaObject.methodCount(); i < type.methodCount(); ++i) {
            const QMetaMethod method = type.method(i);
            if (method.methodType() != QMetaMethod::Signal ||
                (!names.isEmpty() && !names.contains(QString::fromLatin1(method.name()))))
                continue;
            QMetaObject::connect(&sender, i, this,
                                 QObject::staticMetaObject.methodCount() + m_signals.size(),
                                 Qt::DirectConnection);
            m_signals.append(method);
        }
    }

    /** Returns what came since the last time. */
    QString take()
    {
        const QString text = m_entries.join(QLatin1String(", "));
        m_entries.clear();
        return text;
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        const QMetaMethod &method = m_signals.at(id);
        QStringList texts;
        for (int i = 0; i < method.parameterCount(); ++i)
            texts.append(text(method.parameterType(i), arguments[i + 1]));
        m_entries.append(QStringLiteral("%1(%2)").arg(QString::fromLatin1(method.name()),
                                                      texts.join(QLatin1String(", "))));
        return -1;
    }

private:
    static QString text(int type, const void *value)
    {
        if (type == QMetaType::QModelIndex) {
            const auto &index = *static_cast<const QModelIndex *>(value);
            return index.isValid() ? index.data().toString() : QStringLiteral("invalid");
        }
        if (type == QMetaType::QStringList) {
            const auto &list = *static_cast<const QStringList *>(value);
            return QLatin1Char('[') + list.join(QLatin1String(", ")) + QLatin1Char(']');
        }
        if (type == QMetaType::UnknownType)
            return QStringLiteral("?");
        const QMetaType metaType(type);
        if (QByteArray(metaType.name()).endsWith('*'))
            return *static_cast<void *const *>(value) ? QStringLiteral("object")
                                                      : QStringLiteral("null");
        if (metaType.flags() & QMetaType::IsEnumeration)
            return QString::number(*static_cast<const int *>(value));
        return variantOf(type, value).toString();
    }

    QList<QMetaMethod> m_signals;
    QStringList m_entries;
};

} // namespace TestSupport
