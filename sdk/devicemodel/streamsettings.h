// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QDataStream>

/// Sets a stream to the form in which the device model is written, and puts the stream's own
/// settings back at the end of its life.
class StreamSettings
{
public:
    explicit StreamSettings(QDataStream &stream)
        : m_stream(stream)
        , m_version(stream.version())
        , m_byteOrder(stream.byteOrder())
        , m_precision(stream.floatingPointPrecision())
    {
        stream.setVersion(QDataStream::Qt_5_12);
        stream.setByteOrder(QDataStream::BigEndian);
        stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    }

    ~StreamSettings()
    {
        m_stream.setVersion(m_version);
        m_stream.setByteOrder(m_byteOrder);
        m_stream.setFloatingPointPrecision(m_precision);
    }

    Q_DISABLE_COPY(StreamSettings)

private:
    QDataStream &m_stream;
    int m_version;
    QDataStream::ByteOrder m_byteOrder;
    QDataStream::FloatingPointPrecision m_precision;
};
