// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QVariant>

/// The types that an attribute's value is represented by, and the only ones that are read back from
/// bytes: reading anything else could construct whatever type the bytes name.
namespace AttributeValue {

/// Numbers of the types in byte forms: those QDataStream writes for a QVariant.
enum Type : quint32 {
    Invalid = QMetaType::UnknownType,
    Bool = QMetaType::Bool,
    Int = QMetaType::Int,
    UInt = QMetaType::UInt,
    LongLong = QMetaType::LongLong,
    ULongLong = QMetaType::ULongLong,
    Double = QMetaType::Double,
    Text = QMetaType::QString,
    Bytes = QMetaType::QByteArray,
    Float = QMetaType::Float,
};

/// The value itself where its type is one of the above; otherwise the value as an integer or as
/// text, and invalid where it has no text.
QVariant represented(const QVariant &value);

} // namespace AttributeValue
