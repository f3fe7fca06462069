// SPDX-License-Identifier: Apache-2.0
#include "attributevalue.h"

QVariant AttributeValue::represented(const QVariant &value)
{
    switch (value.userType()) {
    case Invalid:
    case Bool:
    case Int:
    case UInt:
    case LongLong:
    case ULongLong:
    case Double:
    case Text:
    case Bytes:
    case Float:
        return value;
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
        return value.toInt();
    case QMetaType::Long:
        return value.toLongLong();
    case QMetaType::ULong:
        return value.toULongLong();
    default:
        return value.canConvert<QString>() ? QVariant(value.toString()) : QVariant();
    }
}
