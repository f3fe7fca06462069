// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

class PhysicalDevice;
struct DataAttribute;
struct DataObject;
struct LogicalNode;

/// What a reference on the command line means in the model of a device. Two notations are
/// understood: "LD/LN$FC$Data$attribute" as the wire has it, and "LD/LN.Data.attribute", which
/// means the data under every functional constraint; "[FC]" behind the latter takes one of them.
/// Less than a whole reference means all that is below.
struct Selection
{
    QString device;         ///< logical device
    QStringList references; ///< to read, without the logical device
    QList<const DataAttribute *> attributes;
};

/// @param error one sentence when the selection is empty
Selection selectData(const PhysicalDevice &device, const QString &text, QString &error);

/// A data object in either notation ("LD/LN.Pos", "LD/LN$CO$Pos").
struct ObjectSelection
{
    QString device;
    const LogicalNode *node = nullptr;
    const DataObject *object = nullptr;
};
ObjectSelection findObject(const PhysicalDevice &device, const QString &text, QString &error);

/// "LD/rest" taken apart at the first slash.
/// @param rest is empty when there is no slash
void splitReference(const QString &text, QString &device, QString &rest);

/// All attributes of a device in the order of its model.
QList<const DataAttribute *> allAttributes(const PhysicalDevice &device);
/// The attribute of a data object by the names on the way, null when there is none.
const DataAttribute *attributeOf(const DataObject &object, const QStringList &path);
