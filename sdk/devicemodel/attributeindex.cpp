// SPDX-License-Identifier: Apache-2.0
#include "attributeindex.h"

#include "texthash.h"

#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

constexpr std::size_t firstSlots = 64;
constexpr std::size_t lengthUnits = sizeof(quint32) / sizeof(char16_t);

// Attributes for which there are buckets: of four slots each, that leaves few of them overflowing.
constexpr std::size_t attributesInBuckets = 8;
constexpr std::size_t bucketsForThem = 3;

std::size_t bytesOf(QStringView text)
{
    return static_cast<std::size_t>(text.size()) * sizeof(QChar);
}

QStringView nodeOf(const QString &reference, int separator)
{
    return separator < 0 ? QStringView(reference) : QStringView(reference).left(separator);
}

QStringView pathOf(const QString &reference, int separator)
{
    return separator < 0 ? QStringView() : QStringView(reference).mid(separator);
}

quint64 keyOf(quint32 node, quint32 path)
{
    return (static_cast<quint64>(node) << 32) | path;
}

} // namespace

TextNumbers::TextNumbers()
    : m_seed(QRandomGenerator::global()->generate64())
{
}

void TextNumbers::clear()
{
    m_slots = std::vector<Slot>();
    m_texts = std::vector<char16_t>();
    m_used = 0;
}

quint32 TextNumbers::add(QStringView text)
{
    if (m_used * 2 >= m_slots.size())
        grow();
    const quint32 hash = hashOf(text);
    Slot &slot = m_slots[slotOf(text, hash)];
    if (slot.number == none) {
        slot = {hash, static_cast<quint32>(m_texts.size())};
        ++m_used;
        const auto length = static_cast<quint32>(text.size());
        const std::size_t start = m_texts.size() + lengthUnits;
        m_texts.resize(start + length);
        std::memcpy(m_texts.data() + slot.number, &length, sizeof length);
        if (length > 0)
            std::memcpy(m_texts.data() + start, text.data(), bytesOf(text));
    }
    return slot.number;
}

quint32 TextNumbers::find(QStringView text) const
{
    return m_slots.empty() ? none : m_slots[slotOf(text, hashOf(text))].number;
}

quint32 TextNumbers::hashOf(QStringView text) const
{
    return TextHash::of(text.data(), bytesOf(text), m_seed);
}

std::size_t TextNumbers::slotOf(QStringView text, quint32 hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t position = hash & mask;
    while (m_slots[position].number != none &&
           !(m_slots[position].hash == hash && holds(m_slots[position].number, text)))
        position = (position + 1) & mask;
    return position;
}

bool TextNumbers::holds(quint32 number, QStringView text) const
{
    quint32 length;
    std::memcpy(&length, m_texts.data() + number, sizeof length);
    return length == static_cast<quint32>(text.size()) &&
           (length == 0 ||
            std::memcmp(m_texts.data() + number + lengthUnits, text.data(), bytesOf(text)) == 0);
}

void TextNumbers::grow()
{
    std::vector<Slot> larger(std::max(firstSlots, m_slots.size() * 2));
    const std::size_t mask = larger.size() - 1;
    for (const Slot &slot : m_slots) {
        if (slot.number == none)
            continue;
        std::size_t position = slot.hash & mask;
        while (larger[position].number != none)
            position = (position + 1) & mask;
        larger[position] = slot;
    }
    m_slots = std::move(larger);
}

void AttributeIndex::clear()
{
    m_nodes.clear();
    m_paths.clear();
    m_noted = std::deque<Noted>();
    m_buckets = std::vector<Bucket>();
}

void AttributeIndex::add(DataAttribute *attribute)
{
    const QString &reference = attribute->reference;
    if (reference.isEmpty())
        return;
    const int separator = reference.indexOf(QLatin1Char('$'));
    m_noted.push_back({attribute, keyOf(m_nodes.add(nodeOf(reference, separator)),
                                        m_paths.add(pathOf(reference, separator)))});
}

void AttributeIndex::build()
{
    m_buckets = std::vector<Bucket>(m_noted.size() * bucketsForThem / attributesInBuckets + 1);
    for (const Noted &entry : m_noted)
        insert(entry);
    m_noted = std::deque<Noted>();
}

void AttributeIndex::insert(const Noted &entry)
{
    for (std::size_t position = bucketOf(entry.key);; position = bucketAfter(position)) {
        Bucket &bucket = m_buckets[position];
        for (std::size_t i = 0; i < bucketSize; ++i) {
            if (!bucket.attributes[i]) {
                bucket.keys[i] = entry.key;
                bucket.attributes[i] = entry.attribute;
                return;
            }
            if (bucket.keys[i] == entry.key)
                return;
        }
    }
}

DataAttribute *AttributeIndex::find(const QString &reference) const
{
    if (m_buckets.empty() || reference.isEmpty())
        return nullptr;
    const int separator = reference.indexOf(QLatin1Char('$'));
    const quint32 node = m_nodes.find(nodeOf(reference, separator));
    const quint32 path = m_paths.find(pathOf(reference, separator));
    if (node == TextNumbers::none || path == TextNumbers::none)
        return nullptr;
    const quint64 key = keyOf(node, path);
    for (std::size_t position = bucketOf(key);; position = bucketAfter(position)) {
        const Bucket &bucket = m_buckets[position];
        // Gathered without a branch, since which slot it is cannot be predicted.
        DataAttribute *found = nullptr;
        for (std::size_t i = 0; i < bucketSize; ++i)
            found = bucket.keys[i] == key ? bucket.attributes[i] : found;
        if (found || !bucket.attributes.back())
            return found;
    }
}

std::size_t AttributeIndex::bucketOf(quint64 key) const
{
    const quint64 hash = TextHash::mixed(TextHash::mixed(key, 0), key) >> 32;
    return static_cast<std::size_t>((hash * m_buckets.size()) >> 32);
}

std::size_t AttributeIndex::bucketAfter(std::size_t bucket) const
{
    return bucket + 1 < m_buckets.size() ? bucket + 1 : 0;
}
