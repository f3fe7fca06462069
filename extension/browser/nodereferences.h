// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

struct IEDNode;

/// The texts by which the browser names a node. Those for the driver leave out the logical device,
/// which the services pass on its own.

/// The node's full reference, for the operator: that of a member as it is, of an attribute as the
/// device has it, of a data object or sub data object in the form logical device "/" logical node
/// "." data object, and so on up to the plain name of the device.
QString fullReference(const IEDNode *node);

/// References of the node for a read: the single reference of an attribute, otherwise one per
/// functional constraint of a data object, sub data object or array. Empty for any other kind.
QStringList variableReferences(const IEDNode *node);

/// The attribute's own reference without its logical device; empty for a node without attribute.
QString attributeReference(const IEDNode *node);

/// The owning logical node's name, "$" and the data set's name.
QString nodeDataSetReference(const IEDNode *node);
