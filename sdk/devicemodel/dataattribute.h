// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// One data attribute of an IED (IEC 61850-7-2, clause 12): what it is and its current value.
///
/// Owned by the DAO that wraps it. GUI thread.
///
/// Representation of `value`, by `basicType`:
/// - "Enum", "Dbpos", "Tcmd", "Check": the ordinal, as an integer variant;
/// - "BOOLEAN": bool; integers: int or uint, 64-bit ones qlonglong or qulonglong;
///   "FLOAT32": float, "FLOAT64": double;
/// - "Quality": text of 13 characters '0' and '1', bit 0 of the bit string first;
/// - time stamps: ISO 8601 text in UTC, followed by the clock flags that are set, if any;
/// - other bit strings: text of '0' and '1'; octet strings: hexadecimal text;
/// - anything else: text.
/// An invalid variant means that no value is known.
struct DataAttribute
{
    bool present = true; ///< false: configured, but the device lacks it
    QString name;
    QString fc;         ///< functional constraint, two capital letters ("ST", "MX", ...)
    QString enumTypeId; ///< for "Enum" (and coded enumerations): id of the EnumType, may be empty
    QString basicType;  ///< "BOOLEAN", "INT8" ... "FLOAT64", "Enum", "Dbpos", "Quality", ...
    QVariant value;
    /// Full reference, logical device "/" logical node "$" FC "$" path, array elements as "har(3)".
    QString reference;
};
