// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "devicemodelglobal.h"
#include "enumtype.h"
#include "logicalnode.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <memory>

class AttributeIndex;
class QDataStream;

/// A logical device (IEC 61850-7-2, clause 9). Owns its logical nodes.
struct DEVICEMODEL_EXPORT LogicalDevice
{
    LogicalDevice() = default;
    ~LogicalDevice();
    Q_DISABLE_COPY(LogicalDevice)

    bool present = true;
    QString name; ///< as in references: the MMS domain's name
    QList<LogicalNode *> logicalNodes;
};

/// The data model of one IED. Owns the whole graph and deletes it in its destructor. GUI thread,
/// or any one thread at a time.
///
/// Byte form (version 1): written and read with QDataStream version Qt_5_12 whatever the stream was
/// set to; the stream's own version is put back afterwards. First a magic number and the format
/// version, then the fields of each record in the order of its declaration.
class DEVICEMODEL_EXPORT PhysicalDevice
{
public:
    PhysicalDevice();
    virtual ~PhysicalDevice();
    Q_DISABLE_COPY(PhysicalDevice)

    /// Replace the content by the device on the stream. Every count is checked against the bytes
    /// that are left and nesting ends at 32 levels: on malformed bytes the device is left partly
    /// filled, consistent and destroyable, and the stream's status says so. Equal texts are shared.
    /// The stream is left behind the bytes that were used. From a sequential source, such as a
    /// socket, the whole device must have arrived.
    void fromStream(QDataStream &stream);

    /// Write the device in the form that fromStream() reads. Data nested deeper than it accepts is
    /// left out, and the stream's status becomes WriteFailed. A value of a type by which no
    /// attribute is represented is written as its text.
    void toStream(QDataStream &stream) const;

    /// What toStream() writes, for whom needs only the bytes: a large device is not copied once
    /// more. Data nested too deeply is left out.
    QByteArray toBytes() const;

    /// Delete the whole content.
    void clear();

    /// The enumeration of that id; one with an empty id when the device has none, or for "".
    EnumType getEnumType(const QString &id) const;

    /// The attribute whose reference equals the text exactly; null when there is none. Constant
    /// time.
    DataAttribute *findTag(const QString &reference) const;

    /// Fill the look-up of findTag() from the model. fromStream() does it by itself; whoever builds
    /// or changes the tree by hand calls it afterwards.
    void rebuildIndex();

    /// Take a data set of the device as a whole out and delete it; does nothing for any other.
    void removeDS(DataSet *dataSet);

    QString name;
    QList<LogicalDevice *> logicalDevices;
    QList<DataSet *> dataSets; ///< data sets of the device as a whole
    bool offline = false;      ///< the model of a device without a connection
    QMap<QString, EnumType> enumTypes;

private:
    std::unique_ptr<AttributeIndex> m_index;
};
