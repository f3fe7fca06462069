// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

class SclExplanations;
struct IEDNode;

/// The tip of a node of the device tree: what its class, data object or attribute means, with data
/// type and values. Empty for nodes that the standard's tables do not explain, and for null.
QString nodeExplanation(const IEDNode *node, const SclExplanations &explanations);
