// SPDX-License-Identifier: Apache-2.0
#include "interop/jsondata.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace interop {

namespace {

QString text(std::string_view content)
{
    return QString::fromUtf8(content.data(), static_cast<int>(content.size()));
}

QString hexadecimal(mms::Bytes octets)
{
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char *>(octets.data()), static_cast<int>(octets.size()))
            .toHex());
}

QJsonArray members(const mms::Data &group)
{
    QJsonArray result;
    for (const mms::Data &member : group.children())
        result.append(toJson(member));
    return result;
}

QJsonObject pair(const char *key, const QJsonValue &content)
{
    return {{QString::fromLatin1(key), content}};
}

QString bitText(const mms::Data &data)
{
    QString result;
    for (std::size_t i = 0; i < data.size(); ++i)
        result.append(data.testBit(i) ? '1' : '0');
    return result;
}

QString binaryTimeText(const mms::BinaryTime &time)
{
    constexpr qint64 secondsFrom1970To1984 = 441763200;
    const qint64 days = time.days.value_or(0);
    return QString::number((secondsFrom1970To1984 + days * 86400) * 1000 + time.milliseconds);
}

} // namespace

QJsonValue toJson(const mms::Data &data)
{
    using Kind = mms::Data::Kind;
    switch (data.kind()) {
    case Kind::Array:
        return pair("array", members(data));
    case Kind::Structure:
        return pair("structure", members(data));
    case Kind::Boolean:
        return *data.toBoolean();
    case Kind::BitString:
        return pair("bits", bitText(data));
    case Kind::Integer:
        return pair("integer", QString::number(*data.toInteger()));
    case Kind::Unsigned:
        return pair("unsigned", QString::number(*data.toUnsigned()));
    case Kind::FloatingPoint:
        return pair("float", *data.toDouble());
    case Kind::OctetString:
        return pair("octets", hexadecimal(data.octets()));
    case Kind::VisibleString:
        return pair("text", text(data.text()));
    case Kind::MmsString:
        return pair("mmsText", text(data.text()));
    case Kind::BinaryTime:
        return pair("binaryTime", binaryTimeText(*data.toBinaryTime()));
    case Kind::UtcTime:
        return pair("utc", hexadecimal(data.octets()));
    default:
        return pair("kind", static_cast<int>(data.kind()));
    }
}

QJsonValue toJson(const mms::AccessResult &result)
{
    return result.ok() ? toJson(result.data()) : pair("error", static_cast<int>(result.error()));
}

QJsonValue toJson(const mms::TypeDescription &type)
{
    using Kind = mms::TypeDescription::Kind;
    const auto simple = [](int kind, int size) {
        return QJsonObject{{"kind", kind}, {"size", size}};
    };
    switch (type.kind) {
    case Kind::Structure: {
        QJsonArray components;
        for (const auto &component : type.components)
            components.append(QJsonArray{text(component.name), toJson(component.type)});
        return pair("structure", components);
    }
    case Kind::Array:
        return QJsonObject{{"array", static_cast<int>(type.elementCount)},
                           {"element", toJson(type.components.front().type)}};
    case Kind::Boolean:
        return simple(2, -1);
    case Kind::BitString:
        return simple(3, type.size);
    case Kind::Integer:
        return simple(4, type.size);
    case Kind::Unsigned:
        return simple(5, type.size);
    case Kind::FloatingPoint:
        return simple(6, type.size);
    case Kind::OctetString:
        return simple(7, type.size);
    case Kind::VisibleString:
        return simple(8, type.size);
    case Kind::BinaryTime:
        return simple(10, type.withDate ? 6 : 4);
    case Kind::MmsString:
        return simple(13, type.size);
    case Kind::UtcTime:
        return simple(14, -1);
    default:
        return simple(-1, 0);
    }
}

} // namespace interop
