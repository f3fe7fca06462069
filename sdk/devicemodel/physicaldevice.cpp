// SPDX-License-Identifier: Apache-2.0
#include "physicaldevice.h"

#include "attributeindex.h"
#include "devicestream.h"

LogicalDevice::~LogicalDevice()
{
    qDeleteAll(logicalNodes);
}

PhysicalDevice::PhysicalDevice()
    : m_index(new AttributeIndex)
{
}

PhysicalDevice::~PhysicalDevice()
{
    clear();
}

void PhysicalDevice::fromStream(QDataStream &stream)
{
    clear();
    DeviceStream::read(stream, *this, *m_index);
    m_index->build();
}

void PhysicalDevice::toStream(QDataStream &stream) const
{
    DeviceStream::write(stream, *this);
}

QByteArray PhysicalDevice::toBytes() const
{
    return DeviceStream::bytes(*this);
}

void PhysicalDevice::clear()
{
    m_index->clear();
    qDeleteAll(logicalDevices);
    logicalDevices.clear();
    qDeleteAll(dataSets);
    dataSets.clear();
    enumTypes.clear();
    name.clear();
    offline = false;
}

EnumType PhysicalDevice::getEnumType(const QString &id) const
{
    return id.isEmpty() ? EnumType() : enumTypes.value(id);
}

DataAttribute *PhysicalDevice::findTag(const QString &reference) const
{
    return m_index->find(reference);
}

void PhysicalDevice::rebuildIndex()
{
    m_index->clear();
    // Depth first without recursion: a tree built by hand may be of any depth.
    QList<const DAO *> pending;
    const auto push = [&pending](const QList<DAO *> &nodes) {
        for (int i = nodes.size() - 1; i >= 0; --i)
            pending.append(nodes.at(i));
    };
    for (const LogicalDevice *device : qAsConst(logicalDevices)) {
        for (const LogicalNode *node : device->logicalNodes) {
            for (const DataObject *object : node->dataObjects) {
                push(object->attributes);
                while (!pending.isEmpty()) {
                    const DAO *next = pending.takeLast();
                    if (next->attribute)
                        m_index->add(next->attribute);
                    push(next->children);
                }
            }
        }
    }
    m_index->build();
}

void PhysicalDevice::removeDS(DataSet *dataSet)
{
    if (dataSets.removeOne(dataSet))
        delete dataSet;
}
