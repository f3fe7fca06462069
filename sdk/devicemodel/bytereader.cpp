// SPDX-License-Identifier: Apache-2.0
#include "bytereader.h"

#include "texthash.h"

#include <QtCore/QRandomGenerator>

#include <cstring>
#include <utility>

namespace {

constexpr std::size_t firstSlots = 256;
constexpr quint32 nullSize = 0xFFFFFFFFU;

} // namespace

TextPool::TextPool()
    : m_seed(QRandomGenerator::global()->generate64())
    , m_slots(firstSlots)
{
}

QString TextPool::text(const uchar *bytes, int size)
{
    const quint32 hash = TextHash::of(bytes, static_cast<std::size_t>(size), m_seed);
    const std::size_t mask = m_slots.size() - 1;
    std::size_t position = hash & mask;
    while (m_slots[position].bytes) {
        const Slot &slot = m_slots[position];
        if (slot.hash == hash && slot.size == size &&
            std::memcmp(slot.bytes, bytes, static_cast<std::size_t>(size)) == 0)
            return slot.text;
        position = (position + 1) & mask;
    }
    QString result = decoded(bytes, size);
    m_slots[position] = {bytes, size, hash, result};
    if (++m_used * 2 > m_slots.size())
        grow();
    return result;
}

QString TextPool::decoded(const uchar *bytes, int size)
{
    const int length = size / static_cast<int>(sizeof(QChar));
    if (m_buffer.size() < static_cast<std::size_t>(length))
        m_buffer.resize(static_cast<std::size_t>(length));
    qFromBigEndian<quint16>(bytes, length, m_buffer.data());
    return QString(reinterpret_cast<const QChar *>(m_buffer.data()), length);
}

void TextPool::grow()
{
    std::vector<Slot> larger(m_slots.size() * 2);
    const std::size_t mask = larger.size() - 1;
    for (Slot &slot : m_slots) {
        if (!slot.bytes)
            continue;
        std::size_t position = slot.hash & mask;
        while (larger[position].bytes)
            position = (position + 1) & mask;
        larger[position] = std::move(slot);
    }
    m_slots = std::move(larger);
}

double ByteReader::real()
{
    const quint64 bits = number<quint64>();
    double result;
    std::memcpy(&result, &bits, sizeof result);
    return result;
}

int ByteReader::count(int recordBytes)
{
    const quint32 result = number<quint32>();
    const auto left = static_cast<std::size_t>(m_end - m_next);
    if (result > left / static_cast<std::size_t>(recordBytes)) {
        fail(QDataStream::ReadPastEnd);
        return 0;
    }
    return static_cast<int>(result);
}

QString ByteReader::text()
{
    const Sized sized = takeText();
    if (sized.size > 0)
        return m_pool.text(sized.bytes, sized.size);
    return sized.size == 0 ? QString::fromLatin1("") : QString();
}

QString ByteReader::uniqueText()
{
    const Sized sized = takeText();
    if (sized.size > 0)
        return m_pool.decoded(sized.bytes, sized.size);
    return sized.size == 0 ? QString::fromLatin1("") : QString();
}

QByteArray ByteReader::bytes()
{
    const Sized sized = takeSized();
    if (sized.size > 0)
        return QByteArray(reinterpret_cast<const char *>(sized.bytes), sized.size);
    return sized.size == 0 ? QByteArray("") : QByteArray();
}

ByteReader::Sized ByteReader::takeText()
{
    const Sized sized = takeSized();
    if (sized.size > 0 && sized.size % static_cast<int>(sizeof(QChar)) != 0) {
        refuse();
        return {};
    }
    return sized;
}

ByteReader::Sized ByteReader::takeSized()
{
    const quint32 size = number<quint32>();
    if (size == nullSize || !ok())
        return {};
    const uchar *bytes = take(size);
    return ok() ? Sized{bytes, static_cast<int>(size)} : Sized{};
}

void ByteReader::fail(QDataStream::Status status)
{
    if (ok())
        m_status = status;
    m_end = m_next;
}
