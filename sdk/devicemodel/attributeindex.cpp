// SPDX-License-Identifier: Apache-2.0
#include "attributeindex.h"

#include "texthash.h"

#include <QtCore/QRandomGenerator>

#include <cstring>
#include <utility>

namespace {

constexpr std::size_t wordSize = sizeof(quint64);
constexpr std::size_t headWords = 2; ///< attribute, then hash and key
constexpr quint32 latin1Flag = 0x80000000U;

quint32 hashOf(const QString &text, quint64 seed)
{
    return TextHash::of(text.constData(), static_cast<std::size_t>(text.size()) * sizeof(QChar),
                        seed);
}

bool isLatin1(const QString &text)
{
    ushort all = 0;
    for (const QChar character : text)
        all |= character.unicode();
    return all <= 0xFF;
}

quint32 keyOf(const QString &text)
{
    return static_cast<quint32>(text.size()) | (isLatin1(text) ? latin1Flag : 0);
}

std::size_t textBytes(quint32 key)
{
    const std::size_t length = key & ~latin1Flag;
    return (key & latin1Flag) ? length : length * sizeof(QChar);
}

std::size_t entryWords(quint32 key)
{
    return headWords + (textBytes(key) + wordSize - 1) / wordSize;
}

void storeText(quint64 *words, const QString &text, quint32 key)
{
    if (!(key & latin1Flag)) {
        std::memcpy(words, text.constData(), textBytes(key));
        return;
    }
    auto *bytes = reinterpret_cast<uchar *>(words);
    for (const QChar character : text)
        *bytes++ = static_cast<uchar>(character.unicode());
}

bool textEquals(const quint64 *words, quint32 key, const QString &text)
{
    if (key & latin1Flag)
        return text == QLatin1String(reinterpret_cast<const char *>(words), text.size());
    return std::memcmp(words, text.constData(), textBytes(key)) == 0;
}

} // namespace

AttributeIndex::AttributeIndex()
    : m_seed(QRandomGenerator::global()->generate64())
{
}

void AttributeIndex::clear()
{
    m_noted.clear();
    m_starts.clear();
    m_entries.clear();
}

std::size_t AttributeIndex::bucketOf(quint32 hash) const
{
    const quint64 buckets = m_starts.size() - 1;
    return static_cast<std::size_t>((hash * buckets) >> 32);
}

void AttributeIndex::add(DataAttribute *attribute)
{
    const QString &reference = attribute->reference;
    if (!reference.isEmpty())
        m_noted.push_back({attribute, hashOf(reference, m_seed), keyOf(reference)});
}

void AttributeIndex::build()
{
    const std::vector<Noted> noted = std::move(m_noted);
    clear();
    if (noted.empty())
        return;

    m_starts.assign(noted.size() + 1, 0);
    std::size_t words = 0;
    for (const Noted &entry : noted) {
        const std::size_t size = entryWords(entry.key);
        m_starts[bucketOf(entry.hash) + 1] += static_cast<quint32>(size);
        words += size;
    }
    for (std::size_t i = 1; i < m_starts.size(); ++i)
        m_starts[i] += m_starts[i - 1];

    // While entries are placed, a bucket's start is where its next entry goes; afterwards that is
    // where the next bucket starts.
    m_entries.resize(words);
    for (const Noted &entry : noted) {
        quint32 &position = m_starts[bucketOf(entry.hash)];
        quint64 *target = m_entries.data() + position;
        target[0] = reinterpret_cast<quintptr>(entry.attribute);
        target[1] = (static_cast<quint64>(entry.hash) << 32) | entry.key;
        storeText(target + headWords, entry.attribute->reference, entry.key);
        position += static_cast<quint32>(entryWords(entry.key));
    }
    std::memmove(m_starts.data() + 1, m_starts.data(), noted.size() * sizeof m_starts[0]);
    m_starts[0] = 0;
}

DataAttribute *AttributeIndex::find(const QString &reference) const
{
    if (m_starts.empty() || reference.isEmpty())
        return nullptr;
    const quint32 hash = hashOf(reference, m_seed);
    const std::size_t bucket = bucketOf(hash);
    const quint64 *entry = m_entries.data() + m_starts[bucket];
    const quint64 *const end = m_entries.data() + m_starts[bucket + 1];
    while (entry != end) {
        const quint32 key = static_cast<quint32>(entry[1]);
        if (static_cast<quint32>(entry[1] >> 32) == hash &&
            (key & ~latin1Flag) == static_cast<quint32>(reference.size()) &&
            textEquals(entry + headWords, key, reference))
            return reinterpret_cast<DataAttribute *>(static_cast<quintptr>(entry[0]));
        entry += entryWords(key);
    }
    return nullptr;
}
