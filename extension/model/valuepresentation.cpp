// SPDX-License-Identifier: Apache-2.0
#include "valuepresentation.h"

#include "scltemplatestore.h"

#include <devicemodel/physicaldevice.h>

#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <limits>

namespace {

QString enumerationText(const DataAttribute &attribute, const QString &templateId,
                        const PhysicalDevice &device, const SclTemplateStore &templates)
{
    const int ordinal = attribute.value.toInt();
    const EnumType enumeration = device.getEnumType(attribute.enumTypeId);
    if (!enumeration.id.isEmpty())
        return enumeration.values.value(ordinal);
    return templates.displayText(templateId, ordinal);
}

QString validityText(const QString &bits)
{
    const QString validity = bits.left(2).leftJustified(2, QLatin1Char('0'));
    if (validity == QLatin1String("01"))
        return QStringLiteral("Invalid ");
    if (validity == QLatin1String("11"))
        return QStringLiteral("Questionable ");
    if (validity == QLatin1String("10"))
        return QStringLiteral("Reserved ");
    return QStringLiteral("Good ");
}

bool isConvertedToInt(const QString &basicType)
{
    static const std::array<QLatin1String, 5> names = {
        QLatin1String("Enum"), QLatin1String("BOOLEAN"), QLatin1String("Dbpos"),
        QLatin1String("Check"), QLatin1String("Tcmd")};
    return basicType.contains(QLatin1String("INT")) ||
           std::find(names.begin(), names.end(), basicType) != names.end();
}

/// A text beyond the largest number of the type would otherwise become infinity.
template <typename T>
T numberOf(const QString &text, T (QString::*convert)(bool *) const)
{
    bool isNumber = false;
    const T number = (text.*convert)(&isNumber);
    return isNumber ? number : T(0);
}

template <typename T>
EditedValue converted(T typed, T stored)
{
    return {QVariant::fromValue(typed), true, typed != stored};
}

} // namespace

QVariant presentedValue(const DataAttribute &attribute, const PhysicalDevice &device,
                        const SclTemplateStore &templates)
{
    const QString &type = attribute.basicType;
    if (type == QLatin1String("Dbpos") || type == QLatin1String("Tcmd") ||
        type == QLatin1String("Check")) {
        return enumerationText(attribute, type, device, templates);
    }
    if (type == QLatin1String("Enum"))
        return enumerationText(attribute, attribute.enumTypeId, device, templates);
    if (type == QLatin1String("Quality"))
        return qualityText(attribute.value.toString());
    if (type == QLatin1String("BOOLEAN"))
        return attribute.value.toInt() == 1 ? QStringLiteral("true") : QStringLiteral("False");
    if (type.contains(QLatin1String("FLOAT")))
        return attribute.value.toDouble();
    return attribute.value;
}

QString qualityText(const QString &bits)
{
    const auto detail = [&bits](int position) {
        return bits.size() > position + 2 && bits.at(position + 2) == QLatin1Char('1');
    };
    QStringList names;
    const auto addIfSet = [&](int position, const QString &name) {
        if (detail(position))
            names.append(name);
    };
    addIfSet(0, QStringLiteral("OverFlow"));
    addIfSet(1, QStringLiteral("OutOfRange"));
    addIfSet(2, QStringLiteral("BadReference"));
    addIfSet(4, QStringLiteral("Failure"));
    addIfSet(5, QStringLiteral("OldData"));
    addIfSet(6, QStringLiteral("Inconsistent"));
    addIfSet(3, QStringLiteral("Oscillatory"));
    addIfSet(9, QStringLiteral("Test"));
    addIfSet(7, QStringLiteral("Inaccurate"));
    names.append(detail(8) ? QStringLiteral("Substituted") : QStringLiteral("Process"));
    addIfSet(10, QStringLiteral("OperateBlocked"));
    return validityText(bits) + names.join(QLatin1Char(','));
}

EditedValue readEditedValue(const DataAttribute &attribute, const QVariant &edited)
{
    const QString text = edited.toString();
    const QVariant &stored = attribute.value;
    const QString &type = attribute.basicType;
    if (type == QLatin1String("FLOAT32"))
        return converted(numberOf(text, &QString::toFloat), stored.toFloat());
    if (type == QLatin1String("FLOAT64"))
        return converted(numberOf(text, &QString::toDouble), stored.toDouble());
    if (type == QLatin1String("INT64"))
        return converted(text.toLongLong(), stored.toLongLong());
    if (type == QLatin1String("INT64U"))
        return converted(text.toULongLong(), stored.toULongLong());
    if (type == QLatin1String("INT32U"))
        return converted(text.toUInt(), stored.toUInt());
    if (isConvertedToInt(type))
        return converted(text.toInt(), stored.toInt());
    return {edited, false, text != stored.toString()};
}

std::optional<NumberRange> numberRange(const QString &basicType)
{
    struct Whole
    {
        QLatin1String name;
        qlonglong smallest;
        qulonglong largest;
    };
    static const std::array<Whole, 9> wholes = {{
        {QLatin1String("INT8"), -128, 127},
        {QLatin1String("INT16"), -32768, 32767},
        {QLatin1String("INT24"), -8388608, 8388607},
        {QLatin1String("INT64"), std::numeric_limits<qlonglong>::min(),
         std::numeric_limits<qlonglong>::max()},
        {QLatin1String("INT8U"), 0, 255},
        {QLatin1String("INT16U"), 0, 65535},
        {QLatin1String("INT24U"), 0, 16777215},
        {QLatin1String("INT32U"), 0, 4294967295U},
        {QLatin1String("INT64U"), 0, std::numeric_limits<qulonglong>::max()},
    }};
    if (basicType == QLatin1String("FLOAT32"))
        return NumberRange::fraction(NumberRange::Single);
    if (basicType == QLatin1String("FLOAT64"))
        return NumberRange::fraction(NumberRange::Double);
    if (basicType == QLatin1String("Tcmd"))
        return NumberRange::whole(0, 3);
    for (const Whole &whole : wholes) {
        if (basicType == whole.name)
            return NumberRange::whole(whole.smallest, whole.largest);
    }
    if (isConvertedToInt(basicType)) {
        return NumberRange::whole(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    }
    return std::nullopt;
}
