// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QString>
#include <QtCore/QtEndian>

#include <vector>

/// Equal texts met while reading, so that each is kept in memory once. Texts are told apart by
/// their bytes, which the caller keeps alive.
class TextPool
{
public:
    TextPool();

    /// The text of `size` bytes in UTF-16, big endian.
    QString text(const uchar *bytes, int size);

    /// The same without looking for an equal one.
    QString decoded(const uchar *bytes, int size);

private:
    struct Slot
    {
        const uchar *bytes = nullptr;
        int size = 0;
        quint32 hash = 0;
        QString text;
    };

    void grow();

    quint64 m_seed;
    std::vector<Slot> m_slots; ///< a power of two, at most half of them taken
    std::size_t m_used = 0;
    std::vector<quint16> m_buffer;
};

/// Reads what QDataStream writes (version Qt_5_12, big endian) from bytes in memory. The first read
/// that fails ends the reading: it and all later ones answer with nothing.
class ByteReader
{
public:
    ByteReader(const char *bytes, int size)
        : m_begin(reinterpret_cast<const uchar *>(bytes))
        , m_next(m_begin)
        , m_end(m_begin + size)
    {
    }

    bool ok() const { return m_status == QDataStream::Ok; }
    QDataStream::Status status() const { return m_status; }

    /// Bytes behind which the stream goes on.
    int consumed() const { return static_cast<int>(m_next - m_begin); }

    /// End the reading because of what the bytes say.
    void refuse() { fail(QDataStream::ReadCorruptData); }

    template <typename Number>
    Number number()
    {
        const uchar *bytes = take(sizeof(Number));
        return bytes ? qFromBigEndian<Number>(bytes) : Number(0);
    }

    bool flag() { return number<quint8>() != 0; }

    double real();

    /// Number of records that follow, of at least `recordBytes` each; none when they cannot be
    /// there.
    int count(int recordBytes);

    /// A text that is likely to come again.
    QString text();

    /// A text that comes once.
    QString uniqueText();

    QByteArray bytes();

private:
    const uchar *take(std::size_t size)
    {
        if (static_cast<std::size_t>(m_end - m_next) < size) {
            fail(QDataStream::ReadPastEnd);
            return nullptr;
        }
        const uchar *bytes = m_next;
        m_next += size;
        return bytes;
    }

    /// A text or byte array as it stands in the bytes; size -1 is a null one.
    struct Sized
    {
        const uchar *bytes = nullptr;
        int size = -1;
    };

    Sized takeText();
    Sized takeSized();
    void fail(QDataStream::Status status);

    const uchar *m_begin;
    const uchar *m_next;
    const uchar *m_end;
    QDataStream::Status m_status = QDataStream::Ok;
    TextPool m_pool;
};
