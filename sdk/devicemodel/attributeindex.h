// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dataattribute.h"

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <array>
#include <deque>
#include <vector>

/// Numbers for texts: equal texts have equal numbers, different texts different ones.
class TextNumbers
{
public:
    static constexpr quint32 none = 0xFFFFFFFFU;

    TextNumbers();

    void clear();

    /// The number of the text, which is given one where it has none yet.
    quint32 add(QStringView text);

    /// The number of the text; `none` where it has none.
    quint32 find(QStringView text) const;

private:
    struct Slot
    {
        quint32 hash = 0;
        quint32 number = none;
    };

    quint32 hashOf(QStringView text) const;
    /// The slot of the text, or the free one where it belongs.
    std::size_t slotOf(QStringView text, quint32 hash) const;
    bool holds(quint32 number, QStringView text) const;
    void grow();

    quint64 m_seed;
    std::vector<Slot> m_slots; ///< a power of two, at most half of them taken
    std::size_t m_used = 0;
    std::vector<char16_t> m_texts; ///< each behind its length; a text's number is its position
};

/// Look-up of attributes by reference. Filled once, then only read.
///
/// References are compared in two parts, the logical node and the path in it. Both repeat all over
/// a device, so that their texts stay in the processor's caches however large the device is; the
/// pair of their numbers names the attribute, and finding it costs one access to cold memory.
class AttributeIndex
{
public:
    void clear();

    /// Note an attribute for the next build(). One without a reference is left out.
    void add(DataAttribute *attribute);

    /// Make the noted attributes findable, in place of those of the build before.
    void build();

    /// The attribute of that reference, of several the one added first; null when there is none.
    DataAttribute *find(const QString &reference) const;

private:
    static constexpr std::size_t bucketSize = 4;
    static constexpr quint64 noKey = ~Q_UINT64_C(0); ///< two texts without a number

    struct Noted
    {
        DataAttribute *attribute;
        quint64 key;
    };

    /// One line of the processor's cache. The slots are taken from the first; what finds none free
    /// goes to the next bucket.
    struct alignas(64) Bucket
    {
        Bucket() { keys.fill(noKey); }

        std::array<quint64, bucketSize> keys;
        std::array<DataAttribute *, bucketSize> attributes{};
    };

    std::size_t bucketOf(quint64 key) const;
    std::size_t bucketAfter(std::size_t bucket) const;
    void insert(const Noted &entry);

    TextNumbers m_nodes;
    TextNumbers m_paths;
    std::deque<Noted> m_noted;
    std::vector<Bucket> m_buckets;
};
