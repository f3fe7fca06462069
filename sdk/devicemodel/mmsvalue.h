// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicemodelglobal.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

class QDataStream;

/// One live value on its way from the driver to a browser. A value type: copy it freely, hand it
/// from thread to thread.
///
/// Byte form: at most `rawSize` bytes, so that a record of the event middleware holds one value;
/// unused bytes are zero. Texts that would not fit are cut by toStream() and end in "…".
class DEVICEMODEL_EXPORT MMSValue
{
public:
    static constexpr int rawSize = 512;

    MMSValue();
    MMSValue(const MMSValue &other);
    MMSValue(MMSValue &&other) noexcept;
    MMSValue &operator=(const MMSValue &other);
    MMSValue &operator=(MMSValue &&other) noexcept;
    ~MMSValue();

    /// Read one value. On malformed bytes the value is left default-constructed.
    void fromStream(QDataStream &stream);

    /// Write one value in at most `rawSize` bytes, whatever the lengths of its texts.
    void toStream(QDataStream &stream) const;

    /// Whether the text of `value` arrives as it is, whatever quality and time stamp stand beside
    /// it; otherwise toStream() may cut it.
    bool keepsValueWhole() const;

    QVariant value;    ///< represented as DataAttribute::value
    QString reference; ///< logical device "/" logical node "$" FC "$" path

    QString quality;     ///< 13 characters '0' and '1', or empty
    QString timeStamp;   ///< ISO 8601 in UTC, or empty
    qint32 deviceNo = 0; ///< number of the IED on its driver
    quint32 cause = 0;   ///< why the value was sent; the driver defines the codes
};

Q_DECLARE_METATYPE(MMSValue)
