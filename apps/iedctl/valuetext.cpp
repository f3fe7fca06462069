// SPDX-License-Identifier: Apache-2.0
#include "valuetext.h"

#include "references.h"

#include "driver/core/valuewords.h"
#include "driver/model/valueconversion.h"

#include <devicemodel/physicaldevice.h>

#include <QtCore/QHash>

#include <cmath>
#include <optional>

namespace {

struct Range
{
    qlonglong least;
    qulonglong greatest;
};

const Range *rangeOf(const QString &basicType)
{
    static const QHash<QString, Range> ranges{
        {QStringLiteral("INT8"), {-128, 127}},
        {QStringLiteral("INT16"), {-32768, 32767}},
        {QStringLiteral("INT24"), {-8388608, 8388607}},
        {QStringLiteral("INT32"), {INT32_MIN, INT32_MAX}},
        {QStringLiteral("INT64"), {INT64_MIN, INT64_MAX}},
        {QStringLiteral("INT128"), {INT64_MIN, INT64_MAX}},
        {QStringLiteral("INT8U"), {0, 255}},
        {QStringLiteral("INT16U"), {0, 65535}},
        {QStringLiteral("INT24U"), {0, 16777215}},
        {QStringLiteral("INT32U"), {0, UINT32_MAX}},
        {QStringLiteral("INT64U"), {0, UINT64_MAX}},
    };
    const auto found = ranges.constFind(basicType);
    return found == ranges.constEnd() ? nullptr : &found.value();
}

bool isCoded(const QString &basicType)
{
    return basicType == QLatin1String("Enum") || basicType == QLatin1String("Dbpos") ||
           basicType == QLatin1String("Tcmd") || basicType == QLatin1String("Check");
}

EnumType entriesOf(const PhysicalDevice &device, const DataAttribute &attribute)
{
    EnumType entries;
    entries.values = ValueWords::entries(device, attribute);
    return entries;
}

std::optional<int> entry(const EnumType &entries, const QString &text)
{
    for (auto it = entries.values.cbegin(); it != entries.values.cend(); ++it) {
        if (it.value().compare(text, Qt::CaseInsensitive) == 0)
            return it.key();
    }
    return {};
}

std::optional<bool> truth(const QString &text)
{
    const QString lower = text.toLower();
    if (lower == QLatin1String("true") || lower == QLatin1String("on") ||
        lower == QLatin1String("1"))
        return true;
    if (lower == QLatin1String("false") || lower == QLatin1String("off") ||
        lower == QLatin1String("0"))
        return false;
    return {};
}

QString doesNotFit(const QString &text, const QString &type)
{
    return QStringLiteral("\"%1\" does not fit %2.").arg(text, type);
}

QVariant integer(const QString &text, const QString &type, const Range &range, QString &error)
{
    bool isNumber = false;
    if (text.startsWith(QLatin1Char('-'))) {
        const qlonglong number = text.toLongLong(&isNumber, 0);
        if (isNumber && number >= range.least)
            return number < INT32_MIN ? QVariant(number) : QVariant(static_cast<int>(number));
    } else {
        const qulonglong number = text.toULongLong(&isNumber, 0);
        if (isNumber && number <= range.greatest) {
            if (number <= INT32_MAX && range.least < 0)
                return static_cast<int>(number);
            if (number <= UINT32_MAX && range.least == 0)
                return static_cast<uint>(number);
            return range.least < 0 ? QVariant(static_cast<qlonglong>(number)) : QVariant(number);
        }
    }
    error = doesNotFit(text, type);
    return {};
}

QVariant real(const QString &text, const QString &type, QString &error)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && std::isfinite(number))
        return number;
    error = doesNotFit(text, type);
    return {};
}

bool consistsOf(const QString &text, const QString &characters)
{
    for (const QChar &each : text) {
        if (!characters.contains(each))
            return false;
    }
    return true;
}

/// What the control value of an object is: its type, and the enumeration that names its values. A
/// type that is neither a boolean nor counts stands for the number that an analogue set point
/// takes.
DataAttribute takenBy(const PhysicalDevice &device, const DataObject &object)
{
    DataAttribute taken;
    const DAO *status = object.getDAOByName(QStringLiteral("stVal"));
    const DataAttribute *state = status ? status->attribute : nullptr;
    const DataAttribute *value =
        attributeOf(object, {QStringLiteral("Oper"), QStringLiteral("ctlVal")});
    if (!value)
        value = attributeOf(object, {QStringLiteral("SBOw"), QStringLiteral("ctlVal")});
    if (value) {
        taken.basicType = value->basicType;
        taken.enumTypeId = value->enumTypeId;
    } else if (state && !object.getDAOByName(QStringLiteral("Oper"))) {
        // A device that hides the command from its description takes what its status suggests.
        taken.basicType = state->basicType == QLatin1String("Dbpos") ? QStringLiteral("BOOLEAN")
                                                                     : state->basicType;
    }
    // Without a file the device tells no enumeration for the command: the status has the same.
    const bool isNumbered = taken.basicType == QLatin1String("Enum") || rangeOf(taken.basicType);
    if (isNumbered && state && state->basicType == QLatin1String("Enum") &&
        device.getEnumType(taken.enumTypeId).values.isEmpty()) {
        taken.basicType = QStringLiteral("Enum");
        taken.enumTypeId = state->enumTypeId;
    }
    return taken;
}

} // namespace

namespace ValueText {

QVariant parse(const PhysicalDevice &device, const DataAttribute &attribute, const QString &text,
               QString &error)
{
    const QString &type = attribute.basicType;
    if (isCoded(type)) {
        const EnumType entries = entriesOf(device, attribute);
        if (const std::optional<int> ordinal = entry(entries, text))
            return *ordinal;
        bool isNumber = false;
        const int ordinal = text.toInt(&isNumber, 0);
        if (isNumber)
            return ordinal;
        const QStringList names = entries.values.values();
        error = names.isEmpty()
                    ? QStringLiteral("\"%1\" is not a number, and %2 has no known entries.")
                          .arg(text, type)
                    : QStringLiteral("\"%1\" is none of %2.")
                          .arg(text, names.join(QLatin1String(", ")));
        return {};
    }
    if (type == QLatin1String("BOOLEAN")) {
        if (const std::optional<bool> value = truth(text))
            return *value;
        error = doesNotFit(text, type);
        return {};
    }
    if (const Range *range = rangeOf(type))
        return integer(text, type, *range, error);
    if (type == QLatin1String("FLOAT32") || type == QLatin1String("FLOAT64"))
        return real(text, type, error);
    if (type == QLatin1String("Quality")) {
        if (text.size() == 13 && consistsOf(text, QStringLiteral("01")))
            return text;
        error = QStringLiteral("A quality is 13 characters 0 and 1, not \"%1\".").arg(text);
        return {};
    }
    return text;
}

QVariant parseLike(const QVariant &before, const QString &text, QString &error)
{
    switch (static_cast<QMetaType::Type>(before.userType())) {
    case QMetaType::Bool: {
        const std::optional<bool> value = truth(text);
        if (!value)
            error = doesNotFit(text, QStringLiteral("BOOLEAN"));
        return value ? QVariant(*value) : QVariant();
    }
    case QMetaType::Int:
    case QMetaType::LongLong: {
        bool isNumber = false;
        const qlonglong number = text.toLongLong(&isNumber, 0);
        QVariant value(number);
        if (isNumber &&
            (before.userType() != QMetaType::Int || (number >= INT32_MIN && number <= INT32_MAX)) &&
            value.convert(before.userType()))
            return value;
        error = doesNotFit(text, QStringLiteral("an integer"));
        return {};
    }
    case QMetaType::UInt:
    case QMetaType::ULongLong: {
        bool isNumber = false;
        const qulonglong number = text.toULongLong(&isNumber, 0);
        QVariant value(number);
        if (isNumber && (before.userType() != QMetaType::UInt || number <= UINT32_MAX) &&
            value.convert(before.userType()))
            return value;
        error = doesNotFit(text, QStringLiteral("an integer without sign"));
        return {};
    }
    case QMetaType::Float:
    case QMetaType::Double: {
        QVariant value = real(text, QStringLiteral("a number"), error);
        if (value.isValid())
            value.convert(before.userType());
        return value;
    }
    default:
        return text;
    }
}

double parseControl(const PhysicalDevice &device, const DataObject &object, const QString &text,
                    QString &error)
{
    const DataAttribute taken = takenBy(device, object);
    const EnumType entries = entriesOf(device, taken);
    if (const std::optional<int> ordinal = entry(entries, text))
        return *ordinal;
    if (taken.basicType == QLatin1String("BOOLEAN")) {
        if (const std::optional<bool> value = truth(text))
            return *value ? 1 : 0;
        error = doesNotFit(text, taken.basicType);
        return 0;
    }
    const bool isWhole = isCoded(taken.basicType) || rangeOf(taken.basicType);
    if (isWhole) {
        const QVariant number = integer(text, taken.basicType,
                                        isCoded(taken.basicType) ? *rangeOf(QStringLiteral("INT32"))
                                                                 : *rangeOf(taken.basicType),
                                        error);
        const QStringList names = entries.values.values();
        if (!number.isValid() && !names.isEmpty())
            error =
                QStringLiteral("\"%1\" is none of %2.").arg(text, names.join(QLatin1String(", ")));
        return number.toDouble();
    }
    return real(text, QStringLiteral("a control value that is a number"), error).toDouble();
}

QJsonValue toJson(const QVariant &value)
{
    constexpr qlonglong exactUpTo = Q_INT64_C(1) << 53;
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Double: {
        const double number = value.toDouble();
        return std::isfinite(number) ? QJsonValue(number) : QJsonValue(value.toString());
    }
    case QMetaType::Float: {
        const float number = value.toFloat();
        // The double of 12.4F is 12.3999996.
        return std::isfinite(number) ? QJsonValue(ValueConversion::text(value).toDouble())
                                     : QJsonValue(value.toString());
    }
    case QMetaType::LongLong: {
        const qlonglong number = value.toLongLong();
        return number >= -exactUpTo && number <= exactUpTo ? QJsonValue(static_cast<double>(number))
                                                           : QJsonValue(value.toString());
    }
    case QMetaType::ULongLong: {
        const qulonglong number = value.toULongLong();
        return number <= static_cast<qulonglong>(exactUpTo)
                   ? QJsonValue(static_cast<double>(number))
                   : QJsonValue(value.toString());
    }
    case QMetaType::UnknownType:
        return {};
    default:
        return value.toString();
    }
}

} // namespace ValueText
