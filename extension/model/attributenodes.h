// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QVector>

struct DataAttribute;
struct IEDNode;

/// Which node of the device tree shows an attribute. Filled once, then only read; a copy shares the
/// content. Takes about 20 bytes per attribute, a third of what a QHash would: there is one entry
/// for each value of a device.
class AttributeNodes
{
public:
    AttributeNodes() = default;

    /// From the nodes that each show an attribute. Of several for the same attribute the last
    /// holds.
    explicit AttributeNodes(const QVector<IEDNode *> &nodes);

    /// The node of the attribute; null when there is none.
    IEDNode *value(const DataAttribute *attribute) const;

    bool contains(const DataAttribute *attribute) const { return value(attribute) != nullptr; }
    int size() const { return m_size; }
    bool isEmpty() const { return m_size == 0; }

private:
    struct Slot
    {
        DataAttribute *attribute = nullptr;
        IEDNode *node = nullptr;
    };

    /// Position of the attribute's slot, or of the free one where it belongs.
    int slotOf(const DataAttribute *attribute) const;

    QVector<Slot> m_slots; ///< at most four fifths of them taken
    int m_size = 0;
};
