// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "streamsettings.h"

#include <QtCore/QBuffer>
#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QtEndian>

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

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

    const char *data() const { return m_bytes.constData(); }
    int size() const { return m_size; }

    /// What was written; nothing is left.
    QByteArray takeBytes()
    {
        m_bytes.truncate(std::exchange(m_size, 0));
        return std::move(m_bytes);
    }

    template <typename Number, typename = std::enable_if_t<std::is_arithmetic<Number>::value>>
    ByteWriter &operator<<(Number number)
    {
        if constexpr (std::is_same<Number, bool>::value)
            *take(1) = number ? '\1' : '\0';
        else
            qToBigEndian(number, take(sizeof(Number)));
        return *this;
    }

    ByteWriter &operator<<(const QString &text)
    {
        if (text.isNull())
            return *this << quint32(0xFFFFFFFF);
        const int size = text.size();
        const int bytes = size * int(sizeof(QChar));
        char *to = take(int(sizeof(quint32)) + bytes);
        qToBigEndian(static_cast<quint32>(bytes), to);
        to += sizeof(quint32);
        const QChar *from = text.constData();
        for (int i = 0; i < size; ++i)
            qToBigEndian(from[i].unicode(), to + i * int(sizeof(QChar)));
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
        const int size = static_cast<int>(m_other.pos());
        std::memcpy(take(size), m_otherBytes.constData(), static_cast<std::size_t>(size));
        return *this;
    }

private:
    /// Room for that many bytes at the end.
    char *take(int size)
    {
        const int begin = m_size;
        m_size += size;
        if (m_size > m_bytes.size())
            m_bytes.resize(qMax(m_size, m_bytes.size() * 2));
        return m_bytes.data() + begin;
    }

    ByteWriter &header(const QVariant &value)
    {
        return *this << static_cast<quint32>(value.userType())
                     << static_cast<qint8>(value.isNull());
    }

    QByteArray m_bytes; ///< the first m_size of them are written
    int m_size = 0;
    QByteArray m_otherBytes;
    QBuffer m_other; ///< for what comes seldom
};
