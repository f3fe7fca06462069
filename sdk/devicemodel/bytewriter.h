// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "streamsettings.h"

#include <QtCore/QBuffer>
#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QtEndian>

#include <type_traits>

/// Writes to memory what QDataStream would write (version Qt_5_12, big endian, double precision).
/// QDataStream hands each number to its device on its own, which takes most of the time that a
/// large device needs.
class ByteWriter
{
public:
    ByteWriter()
        : m_other(&m_otherBytes)
    {
        m_other.open(QIODevice::WriteOnly);
    }

    const QByteArray &bytes() const { return m_bytes; }

    template <typename Number, typename = std::enable_if_t<std::is_arithmetic<Number>::value>>
    ByteWriter &operator<<(Number number)
    {
        if constexpr (std::is_same<Number, bool>::value) {
            m_bytes.append(number ? '\1' : '\0');
        } else {
            char bytes[sizeof(Number)];
            qToBigEndian(number, bytes);
            m_bytes.append(bytes, sizeof bytes);
        }
        return *this;
    }

    ByteWriter &operator<<(const QString &text)
    {
        if (text.isNull())
            return *this << quint32(0xFFFFFFFF);
        const int size = text.size() * 2;
        *this << static_cast<quint32>(size);
        const int begin = m_bytes.size();
        m_bytes.resize(begin + size);
        qToBigEndian<quint16>(text.utf16(), text.size(), m_bytes.data() + begin);
        return *this;
    }

    ByteWriter &operator<<(const QVariant &value)
    {
        switch (value.userType()) {
        case QMetaType::UnknownType:
            return header(value);
        case QMetaType::Bool:
            return header(value) << value.toBool();
        case QMetaType::Int:
            return header(value) << static_cast<qint32>(value.toInt());
        case QMetaType::Double:
        case QMetaType::Float:
            return header(value) << value.toDouble();
        case QMetaType::QString:
            // A null text in a variant that is none has a form of its own.
            if (const QString text = value.toString(); !text.isNull())
                return header(value) << text;
            break;
        default:
            break;
        }
        m_other.seek(0);
        {
            QDataStream stream(&m_other);
            const StreamSettings settings(stream);
            stream << value;
        }
        m_bytes.append(m_otherBytes.constData(), static_cast<int>(m_other.pos()));
        return *this;
    }

private:
    ByteWriter &header(const QVariant &value)
    {
        return *this << static_cast<quint32>(value.userType()) << static_cast<qint8>(value.isNull());
    }

    QByteArray m_bytes;
    QByteArray m_otherBytes;
    QBuffer m_other; ///< for what comes seldom
};
