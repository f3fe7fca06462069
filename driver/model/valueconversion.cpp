// SPDX-License-Identifier: Apache-2.0
#include "valueconversion.h"

#include "acsi/typedvalue.h"

#include <devicemodel/mmsvalue.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDataStream>
#include <QtCore/QDateTime>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

using mms::Data;
using mms::TypeDescription;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ValueConversion)
};

constexpr int qualityBits = 13;
constexpr int validityBits = 2;
/// Stands for a bit that was not sent.
constexpr QLatin1Char unknownBit('?');

mms::Error error(const QString &sentence)
{
    return {mms::verbatim(sentence.toStdString()), 0};
}

QString bitText(const mms::BitString &bits)
{
    return QString::fromStdString(bits.toText());
}

/// The bits as a number, bit 0 the most significant.
int ordinalOf(const mms::BitString &bits)
{
    int result = 0;
    for (std::size_t i = 0; i < bits.size(); ++i)
        result = result * 2 + (bits.test(i) ? 1 : 0);
    return result;
}

/// The fewest digits that are read as the same number.
template <typename Number>
QString shortest(Number number)
{
    std::array<char, 32> digits;
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return QString::fromLatin1(digits.data(), static_cast<int>(result.ptr - digits.data()));
}

bool isCoded(const QString &basicType)
{
    return basicType == QLatin1String("Dbpos") || basicType == QLatin1String("Tcmd") ||
           basicType == QLatin1String("Check");
}

QString hexText(mms::Bytes octets)
{
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char *>(octets.data()), static_cast<int>(octets.size()))
            .toHex());
}

QVariant fromInteger(const QString &basicType, std::int64_t number)
{
    const bool isWide =
        basicType == QLatin1String("INT64") || basicType == QLatin1String("INT128") ||
        number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max();
    return isWide ? QVariant(static_cast<qlonglong>(number)) : QVariant(static_cast<int>(number));
}

QVariant fromUnsigned(const QString &basicType, std::uint64_t number)
{
    if (basicType == QLatin1String("INT64U") || number > std::numeric_limits<quint32>::max())
        return static_cast<qulonglong>(number);
    if (basicType == QLatin1String("INT32U") ||
        number > static_cast<std::uint64_t>(std::numeric_limits<int>::max()))
        return static_cast<uint>(number);
    return static_cast<int>(number);
}

/// An integer of any kind of variant that stands for one, texts included.
struct Integer
{
    bool isNegative = false;
    std::uint64_t magnitude = 0;
};

std::optional<Integer> integerOf(const QVariant &value)
{
    const auto fromSigned = [](qlonglong number) {
        return number < 0 ? Integer{true, ~static_cast<std::uint64_t>(number) + 1U}
                          : Integer{false, static_cast<std::uint64_t>(number)};
    };
    switch (value.userType()) {
    case QMetaType::Bool:
        return Integer{false, value.toBool() ? 1U : 0U};
    case QMetaType::Float:
    case QMetaType::Double: {
        const double number = value.toDouble();
        if (!std::isfinite(number) || number != std::floor(number) || std::abs(number) > 9e15)
            return std::nullopt;
        return fromSigned(static_cast<qlonglong>(number));
    }
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return Integer{false, value.toULongLong()};
    default:
        break;
    }
    bool ok = false;
    const qlonglong number = value.toLongLong(&ok);
    if (ok)
        return fromSigned(number);
    const qulonglong positive = value.toULongLong(&ok);
    return ok ? std::optional<Integer>(Integer{false, positive}) : std::nullopt;
}

QString typeName(const QString &basicType, const TypeDescription &type)
{
    return basicType.isEmpty() ? ValueConversion::basicTypeOf(type) : basicType;
}

mms::Error misfit(const QVariant &value, const QString &name)
{
    return error(Texts::tr("%1 does not fit %2.").arg(ValueConversion::text(value), name));
}

/// The bits that a standard name such as "INT24U" stands for; more of them may be on the wire.
int namedBits(const QString &name)
{
    if (!name.startsWith(QLatin1String("INT")))
        return 64;
    const bool isUnsigned = name.endsWith(QLatin1Char('U'));
    bool isNumber = false;
    const int bits = name.midRef(3, name.size() - (isUnsigned ? 4 : 3)).toInt(&isNumber);
    return isNumber && bits > 0 ? std::min(bits, 64) : 64;
}

mms::Result<Data> toInteger(const QString &name, const TypeDescription &type, const QVariant &value)
{
    const std::optional<Integer> number = integerOf(value);
    const int bits = std::min(type.size > 0 && type.size <= 64 ? type.size : 64, namedBits(name));
    if (!number)
        return misfit(value, name);
    if (type.kind == TypeDescription::Kind::Unsigned) {
        const std::uint64_t highest =
            bits == 64 ? std::numeric_limits<std::uint64_t>::max() : (1ULL << bits) - 1U;
        if ((number->isNegative && number->magnitude != 0) || number->magnitude > highest)
            return misfit(value, name);
        return Data::unsignedInteger(number->magnitude);
    }
    const std::uint64_t limit = 1ULL << (bits - 1);
    if (number->isNegative ? number->magnitude > limit : number->magnitude >= limit)
        return misfit(value, name);
    return Data::integer(number->isNegative ? -static_cast<std::int64_t>(number->magnitude - 1U) - 1
                                            : static_cast<std::int64_t>(number->magnitude));
}

/// The size of the type counts digits.
mms::Result<Data> toBcd(const QString &name, const TypeDescription &type, const QVariant &value)
{
    constexpr int mostDigits = 18;
    const std::optional<Integer> number = integerOf(value);
    std::uint64_t end = 1;
    for (int i = 0; i < (type.size > 0 && type.size < mostDigits ? type.size : mostDigits); ++i)
        end *= 10;
    if (!number || (number->isNegative && number->magnitude != 0) || number->magnitude >= end)
        return misfit(value, name);
    return Data::bcd(number->magnitude);
}

mms::Result<Data> toBoolean(const QString &name, const QVariant &value)
{
    if (value.userType() == QMetaType::Bool)
        return Data::boolean(value.toBool());
    if (value.userType() == QMetaType::QString) {
        const QString text = value.toString().trimmed().toLower();
        if (text == QLatin1String("true"))
            return Data::boolean(true);
        if (text == QLatin1String("false"))
            return Data::boolean(false);
    }
    const std::optional<Integer> number = integerOf(value);
    if (!number || number->isNegative || number->magnitude > 1)
        return misfit(value, name);
    return Data::boolean(number->magnitude == 1);
}

mms::Result<Data> toFloat(const QString &name, const TypeDescription &type, const QVariant &value)
{
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok)
        return misfit(value, name);
    if (!std::isfinite(number))
        return error(Texts::tr("%1 is no finite number.").arg(ValueConversion::text(value)));
    if (type.size == 64)
        return Data::float64(number);
    const std::optional<float> nearest = acsi::nearestFloat(number);
    return nearest ? mms::Result<Data>(Data::float32(*nearest)) : misfit(value, name);
}

mms::Result<Data> toBits(const QString &name, const TypeDescription &type, const QVariant &value)
{
    if (isCoded(name)) {
        const std::optional<Integer> number = integerOf(value);
        if (!number || number->isNegative || number->magnitude > 3)
            return misfit(value, name);
        mms::BitString bits(2);
        bits.set(0, (number->magnitude & 2U) != 0);
        bits.set(1, (number->magnitude & 1U) != 0);
        return Data::bitString(bits);
    }
    const QString text = value.toString();
    const bool isText = std::all_of(text.begin(), text.end(), [](QChar c) {
        return c == QLatin1Char('0') || c == QLatin1Char('1');
    });
    // Of any length that the type allows, only the full one leaves no bit to the device.
    const bool isWhole = type.size == 0 || text.size() == std::abs(type.size);
    if (!isText || !isWhole)
        return misfit(value, name);
    return Data::bitString(mms::BitString::fromText(text.toStdString()));
}

/// @p data when its length fits.
mms::Result<Data> ofLength(const QString &name, const TypeDescription &type, const QVariant &value,
                           Data data)
{
    if (!acsi::fitsLength(type, data))
        return misfit(value, name);
    return data;
}

mms::Result<Data> toOctets(const QString &name, const TypeDescription &type, const QVariant &value)
{
    QByteArray octets;
    if (value.userType() == QMetaType::QByteArray) {
        octets = value.toByteArray();
    } else {
        const QByteArray text = value.toString().toLatin1();
        octets = QByteArray::fromHex(text);
        if (octets.toHex() != text.toLower())
            return misfit(value, name);
    }
    return ofLength(
        name, type, value,
        Data::octetString(mms::Bytes(reinterpret_cast<const std::uint8_t *>(octets.constData()),
                                     static_cast<std::size_t>(octets.size()))));
}

mms::Result<Data> toVisibleString(const QString &name, const TypeDescription &type,
                                  const QVariant &value)
{
    const QString text = value.toString();
    for (const QChar c : text) {
        if (c.unicode() < 0x20 || c.unicode() > 0x7E)
            return error(
                Texts::tr("\"%1\" holds characters that %2 does not have.").arg(text, name));
    }
    return ofLength(name, type, value, Data::visibleString(text.toStdString()));
}

mms::Result<Data> toMmsString(const QString &name, const TypeDescription &type,
                              const QVariant &value)
{
    const QString text = value.toString();
    // What stands for octets that are no text is not the text of the device.
    if (text.contains(QChar(QChar::ReplacementCharacter)) || !text.isValidUtf16())
        return error(Texts::tr("\"%1\" holds characters that %2 does not have.").arg(text, name));
    return ofLength(name, type, value, Data::mmsString(text.toStdString()));
}

mms::Result<Data> toUtcTime(const QString &name, const QVariant &value)
{
    const auto time = mms::utcTimeFrom(value.toString().trimmed().toStdString());
    return time ? mms::Result<Data>(Data::utcTime(*time)) : misfit(value, name);
}

mms::Result<Data> toBinaryTime(const QString &name, const TypeDescription &type,
                               const QVariant &value)
{
    const auto time = mms::binaryTimeFrom(value.toString().trimmed().toStdString());
    if (!time || time->days.has_value() != type.withDate)
        return misfit(value, name);
    return Data::binaryTime(*time);
}

/// "20210304050607.123Z": the date and the time without separators (ISO 8601, basic format).
mms::Result<Data> toGeneralizedTime(const QString &name, const QVariant &value)
{
    static const QRegularExpression form(
        QStringLiteral("\\A([0-9]{8})([0-9]{6})([.,][0-9]+)?(Z|[+-][0-9]{4})?\\z"));
    const QString text = value.toString();
    const QRegularExpressionMatch match = form.match(text);
    if (!QDate::fromString(match.captured(1), QStringLiteral("yyyyMMdd")).isValid() ||
        !QTime::fromString(match.captured(2), QStringLiteral("HHmmss")).isValid())
        return misfit(value, name);
    return Data::generalizedTime(text.toStdString());
}

bool hasSize(const TypeDescription &type, TypeDescription::Kind kind,
             std::initializer_list<int> sizes)
{
    return type.kind == kind &&
           (sizes.size() == 0 ||
            std::find(sizes.begin(), sizes.end(), std::abs(type.size)) != sizes.end());
}

} // namespace

QVariant ValueConversion::toVariant(const QString &basicType, const mms::Data &data)
{
    switch (data.kind()) {
    case Data::Kind::Boolean:
        return data.toBoolean().value_or(false);
    case Data::Kind::Integer:
        if (const auto number = data.toInteger())
            return fromInteger(basicType, *number);
        return {};
    case Data::Kind::Unsigned:
    case Data::Kind::Bcd:
        if (const auto number = data.toUnsigned())
            return fromUnsigned(basicType, *number);
        return {};
    case Data::Kind::FloatingPoint: {
        const double number = data.toDouble().value_or(0);
        if (data.isDouble() || basicType == QLatin1String("FLOAT64"))
            return number;
        return static_cast<float>(number);
    }
    case Data::Kind::BitString:
    case Data::Kind::BooleanArray: {
        if (basicType == QLatin1String("Quality"))
            return qualityText(data);
        const mms::BitString bits = data.bits();
        if (!isCoded(basicType))
            return bitText(bits);
        // Half of the bits are no ordinal.
        return bits.size() == 2 ? QVariant(ordinalOf(bits))
                                : bitText(bits).leftJustified(2, unknownBit);
    }
    case Data::Kind::OctetString:
        return hexText(data.octets());
    case Data::Kind::VisibleString:
    case Data::Kind::MmsString:
    case Data::Kind::GeneralizedTime: {
        const std::string_view text = data.text();
        return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
    }
    case Data::Kind::UtcTime:
    case Data::Kind::BinaryTime:
        return timeText(data);
    case Data::Kind::ObjectIdentifier: {
        QStringList numbers;
        for (const std::uint32_t number : data.toObjectIdentifier())
            numbers.append(QString::number(number));
        return numbers.join(QLatin1Char('.'));
    }
    case Data::Kind::Array:
    case Data::Kind::Structure:
        break;
    }
    return {};
}

mms::Result<mms::Data> ValueConversion::toData(const QString &basicType,
                                               const mms::TypeDescription &type,
                                               const QVariant &value)
{
    using Kind = TypeDescription::Kind;
    const QString name = typeName(basicType, type);
    if (!value.isValid())
        return error(Texts::tr("There is no value to write."));
    switch (type.kind) {
    case Kind::Boolean:
        return toBoolean(name, value);
    case Kind::Integer:
    case Kind::Unsigned:
        return toInteger(name, type, value);
    case Kind::Bcd:
        return toBcd(name, type, value);
    case Kind::FloatingPoint:
        return toFloat(name, type, value);
    case Kind::BitString:
        return toBits(name, type, value);
    case Kind::OctetString:
        return toOctets(name, type, value);
    case Kind::VisibleString:
        return toVisibleString(name, type, value);
    case Kind::MmsString:
        return toMmsString(name, type, value);
    case Kind::GeneralizedTime:
        return toGeneralizedTime(name, value);
    case Kind::UtcTime:
        return toUtcTime(name, value);
    case Kind::BinaryTime:
        return toBinaryTime(name, type, value);
    case Kind::TypeName:
    case Kind::Array:
    case Kind::Structure:
    case Kind::ObjectIdentifier:
        break;
    }
    return error(Texts::tr("A value of type %1 cannot be written as a whole.").arg(name));
}

QString ValueConversion::whyReadOnly(const QString &reference, const QVariant &known)
{
    if (known.userType() != QMetaType::QString)
        return {};
    MMSValue record;
    record.reference = reference;
    record.value = known;
    if (!record.keepsValueWhole())
        return Texts::tr("The text of %1 is longer than can be shown, so it can only be read.")
            .arg(reference);
    if (known.toString().contains(QChar(QChar::ReplacementCharacter)))
        return Texts::tr("%1 holds octets that are no text, so it can only be read.")
            .arg(reference);
    return {};
}

QString ValueConversion::basicTypeOf(const mms::TypeDescription &type)
{
    using Kind = TypeDescription::Kind;
    const QString size = QString::number(std::abs(type.size));
    switch (type.kind) {
    case Kind::Boolean:
        return QStringLiteral("BOOLEAN");
    case Kind::Integer:
        return QStringLiteral("INT") + size;
    case Kind::Unsigned:
        return QStringLiteral("INT%1U").arg(size);
    case Kind::FloatingPoint:
        return QStringLiteral("FLOAT") + size;
    case Kind::BitString:
        if (type.size == -13 || type.size == 13)
            return QStringLiteral("Quality");
        return QStringLiteral("BitString") + size;
    case Kind::OctetString:
        return QStringLiteral("Octet") + size;
    case Kind::VisibleString:
        return QStringLiteral("VisString") + size;
    case Kind::MmsString:
        return QStringLiteral("Unicode") + size;
    case Kind::UtcTime:
        return QStringLiteral("Timestamp");
    case Kind::BinaryTime:
        return QStringLiteral("EntryTime");
    case Kind::GeneralizedTime:
        return QStringLiteral("GeneralizedTime");
    case Kind::Bcd:
        return QStringLiteral("BCD");
    case Kind::ObjectIdentifier:
        return QStringLiteral("ObjectIdentifier");
    case Kind::TypeName:
    case Kind::Array:
    case Kind::Structure:
        break;
    }
    return QStringLiteral("Struct");
}

bool ValueConversion::fits(const QString &basicType, const mms::TypeDescription &type)
{
    using Kind = TypeDescription::Kind;
    if (basicType == QLatin1String("Enum"))
        return type.kind == Kind::Integer || type.kind == Kind::Unsigned;
    if (isCoded(basicType))
        return hasSize(type, Kind::BitString, {2});
    if (basicType == QLatin1String("Quality"))
        return hasSize(type, Kind::BitString, {13});
    if (basicType == QLatin1String("Timestamp"))
        return type.kind == Kind::UtcTime;
    if (basicType == QLatin1String("EntryTime"))
        return type.kind == Kind::BinaryTime;
    if (basicType == QLatin1String("Struct") || basicType.isEmpty())
        return type.kind == Kind::Structure;
    if (basicType == QLatin1String("TrgOps") || basicType == QLatin1String("OptFlds") ||
        basicType == QLatin1String("SvOptFlds"))
        return type.kind == Kind::BitString;
    if (basicType.startsWith(QLatin1String("INT"))) {
        const bool isUnsigned = basicType.endsWith(QLatin1Char('U'));
        const Kind kind = isUnsigned ? Kind::Unsigned : Kind::Integer;
        const int bits = basicType.midRef(3, basicType.size() - (isUnsigned ? 4 : 3)).toInt();
        // A 24-bit number travels as one of 32 bits with many peers.
        return hasSize(type, kind, {bits}) || (bits == 24 && hasSize(type, kind, {32}));
    }
    if (basicType == QLatin1String("ObjRef") || basicType == QLatin1String("Currency"))
        return type.kind == Kind::VisibleString;
    if (basicType == QLatin1String("EntryID"))
        return type.kind == Kind::OctetString;
    return basicType == basicTypeOf(type);
}

QString ValueConversion::qualityText(const mms::Data &data)
{
    const mms::BitString bits = data.bits();
    QString text = bitText(bits).leftJustified(qualityBits, unknownBit);
    // A validity that was not sent whole must not be taken for a good one.
    if (bits.size() < static_cast<std::size_t>(validityBits))
        text.replace(0, validityBits, QStringLiteral("11"));
    return text;
}

QString ValueConversion::timeText(const mms::Data &data)
{
    if (const auto time = data.toUtcTime())
        return QString::fromStdString(mms::toText(*time));
    if (const auto time = data.toBinaryTime(); time && mms::isTimeOfDay(*time))
        return QString::fromStdString(mms::toText(*time));
    return {};
}

bool ValueConversion::readVariant(const QByteArray &bytes, QVariant &value)
{
    // The type is looked at first: reading constructs whatever type the bytes name.
    static constexpr std::array<quint32, 9> allowed = {
        QMetaType::Bool,     QMetaType::Int,        QMetaType::UInt,
        QMetaType::LongLong, QMetaType::ULongLong,  QMetaType::Double,
        QMetaType::QString,  QMetaType::QByteArray, QMetaType::Float};
    QDataStream head(bytes);
    quint32 type = 0;
    head >> type;
    if (head.status() != QDataStream::Ok ||
        std::find(allowed.begin(), allowed.end(), type) == allowed.end())
        return false;
    QDataStream stream(bytes);
    stream >> value;
    return stream.status() == QDataStream::Ok && stream.atEnd() && value.isValid();
}

QString ValueConversion::text(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QByteArray:
        return QString::fromLatin1(value.toByteArray().toHex());
    case QMetaType::Float:
        return shortest(value.toFloat());
    case QMetaType::Double:
        return shortest(value.toDouble());
    default:
        return value.toString();
    }
}
