// SPDX-License-Identifier: Apache-2.0
#include "attributenodes.h"

#include "iednode.h"

AttributeNodes::AttributeNodes(const QVector<IEDNode *> &nodes)
    : m_slots(nodes.size() + nodes.size() / 4 + 1)
{
    Slot *const entries = m_slots.data();
    for (IEDNode *const node : nodes) {
        DataAttribute *const attribute = node->dataAttribute();
        Slot &slot = entries[slotOf(attribute)];
        if (!slot.attribute)
            ++m_size;
        slot = {attribute, node};
    }
}

IEDNode *AttributeNodes::value(const DataAttribute *attribute) const
{
    return m_slots.isEmpty() || !attribute ? nullptr : m_slots.at(slotOf(attribute)).node;
}

int AttributeNodes::slotOf(const DataAttribute *attribute) const
{
    // Addresses differ in a few bits in their middle; the factor spreads these over the upper half.
    const quint64 hash =
        quint64(reinterpret_cast<quintptr>(attribute)) * Q_UINT64_C(0x9E3779B97F4A7C15);
    const int count = m_slots.size();
    int position = static_cast<int>(((hash >> 32) * static_cast<quint64>(count)) >> 32);
    const Slot *const entries = m_slots.constData();
    while (entries[position].attribute && entries[position].attribute != attribute)
        position = position + 1 < count ? position + 1 : 0;
    return position;
}
