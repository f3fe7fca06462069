// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dataattribute.h"

#include <QtCore/QString>

#include <vector>

/// Look-up of attributes by reference. Filled once, then only read: the entries of a bucket lie one
/// behind the other, each with the text it is compared with, so that a look-up in a large device
/// touches two places of memory.
class AttributeIndex
{
public:
    AttributeIndex();

    void clear();

    /// Note an attribute for the next build(). One without a reference is left out.
    void add(DataAttribute *attribute);

    /// Make the noted attributes findable, in place of those of the build before.
    void build();

    /// The attribute of that reference, of several the one added first; null when there is none.
    DataAttribute *find(const QString &reference) const;

private:
    struct Noted
    {
        DataAttribute *attribute;
        quint32 hash;
        quint32 key; ///< length of the text, and whether it is stored as Latin-1
    };

    std::size_t bucketOf(quint32 hash) const;

    quint64 m_seed;
    std::vector<Noted> m_noted;
    std::vector<quint32> m_starts; ///< per bucket, in words of m_entries; one more than buckets
    std::vector<quint64> m_entries;
};
