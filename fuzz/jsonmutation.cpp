// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fuzz/fuzzing.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QStringList>

#include <cstring>
#include <limits>

namespace {

/** Keys of diagrams and styles. */
const QStringList &keys()
{
    static const QStringList all =
        QStringLiteral("children createdate creatorid creatorname detail followers ismovable mgrid "
                       "mgrname pid planenddate priority progress showid spearstyle status title "
                       "type url uuid inheritanceParent textCount spearStates state font textColor "
                       "textBkColor broderPen r g b a width style capStyle joinStyle")
            .split(QLatin1Char(' '));
    return all;
}

/** Texts that somebody may take for something else. */
const QStringList &texts()
{
    static const QStringList all = {
        QString(),
        QStringLiteral("-1"),
        QStringLiteral("Title"),
        QStringLiteral("..\\..\\CON"),
        QStringLiteral("a\nb\tc\r\n"),
        QString(QChar(0)),
        QString(QChar(0xd800)),
        QString::fromUtf8("\u05d0\u202e\u0301\u200d"),
        QString::fromUtf8("\U0001F469\u200D\U0001F469"),
        QStringLiteral("<b>&amp;</b>%1%2"),
        QString(5000, QLatin1Char('w')),
        QStringLiteral("https://example.org/?a=b#c"),
        QStringLiteral("javascript:alert(1)"),
        QStringLiteral("Noto Sans CJK SC,10,-1,5,50,0,0,0,0,0"),
        QStringLiteral("Sans,1e9,2147483647,5,99,1,1,1,1,0"),
        QStringLiteral("Sans,-5,0,-1,1000,7,0,0,0,0,Bold"),
    };
    return all;
}

class JsonMutation
{
public:
    explicit JsonMutation(unsigned int seed)
        : m_random(seed)
    {
    }

    QJsonValue changed(const QJsonValue &value)
    {
        // Most of a document lies deep.
        if (m_random.bounded(4) != 0) {
            if (value.isObject() && !value.toObject().isEmpty())
                return changedBelow(value.toObject());
            if (value.isArray() && !value.toArray().isEmpty())
                return changedBelow(value.toArray());
        }
        return replaced(value);
    }

private:
    QJsonObject changedBelow(QJsonObject object)
    {
        const QString key = object.keys().at(m_random.bounded(int(object.size())));
        switch (m_random.bounded(8)) {
        case 0:
            object.remove(key);
            break;
        case 1:
            object.insert(keys().at(m_random.bounded(int(keys().size()))), fresh());
            break;
        case 2:
            object.insert(keys().at(m_random.bounded(int(keys().size()))), object.value(key));
            break;
        default:
            object.insert(key, changed(object.value(key)));
            break;
        }
        return object;
    }

    QJsonArray changedBelow(QJsonArray array)
    {
        const int at = m_random.bounded(int(array.size()));
        switch (m_random.bounded(8)) {
        case 0:
            array.removeAt(at);
            break;
        case 1:
            array.insert(at, array.at(at));
            break;
        case 2:
            array.insert(at, fresh());
            break;
        default:
            array.replace(at, changed(array.at(at)));
            break;
        }
        return array;
    }

    QJsonValue replaced(const QJsonValue &value)
    {
        switch (m_random.bounded(4)) {
        case 0:
            return QJsonArray{value};
        case 1:
            return QJsonObject{{QStringLiteral("title"), QStringLiteral("above")},
                               {QStringLiteral("children"), QJsonArray{value}}};
        default:
            return fresh();
        }
    }

    QJsonValue fresh()
    {
        static const double numbers[] = {0,
                                         -1,
                                         1,
                                         99,
                                         101,
                                         0.5,
                                         255,
                                         256,
                                         1e10,
                                         -1e308,
                                         1e308,
                                         9223372036854775807.0,
                                         -9223372036854775808.0,
                                         double(std::numeric_limits<int>::max()),
                                         double(std::numeric_limits<int>::min())};
        switch (m_random.bounded(8)) {
        case 0:
            return QJsonValue();
        case 1:
            return m_random.bounded(2) == 0;
        case 2:
            return QJsonObject();
        case 3:
            return QJsonArray();
        case 4:
        case 5:
            return numbers[m_random.bounded(int(std::size(numbers)))];
        default:
            return texts().at(m_random.bounded(int(texts().size())));
        }
    }

    QRandomGenerator m_random;
};

} // namespace

std::size_t Fuzzing::mutateJson(std::uint8_t *data, std::size_t size, std::size_t room,
                                unsigned int seed)
{
    const auto *const bytes = reinterpret_cast<const char *>(data);
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray(bytes, int(size)));
    // Text that is cut or bent in the middle has to be met with as well.
    if (document.isNull() || seed % 16 == 0)
        return LLVMFuzzerMutate(data, size, room);
    JsonMutation mutation(seed);
    QJsonObject object = document.object();
    const QJsonObject whole =
        mutation.changed(QJsonObject{{QStringLiteral("whole"), object}}).toObject();
    const QJsonValue top = whole.value(QStringLiteral("whole"));
    const QByteArray text =
        (top.isArray() ? QJsonDocument(top.toArray()) : QJsonDocument(top.toObject()))
            .toJson(QJsonDocument::Compact);
    if (std::size_t(text.size()) > room)
        return LLVMFuzzerMutate(data, size, room);
    std::memcpy(data, text.constData(), std::size_t(text.size()));
    return std::size_t(text.size());
}
