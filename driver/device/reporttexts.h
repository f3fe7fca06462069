// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/reportblock.h"

#include <QtCore/QString>

#include <string>

/// How the operator's tools and a device name the data set of a block in the control block itself.
namespace ReportDataSet {

/// The bare name for a data set of the block's logical node, otherwise "LD/LN$name" or "@name".
QString shown(const acsi::Reference &block, const std::string &device);
/// The device's form of what the operator gave; as it stands when it is no name of a data set.
std::string wire(const acsi::Reference &block, const QString &shown);

} // namespace ReportDataSet

/// The settings of a block for a journal.
QString settingsText(const acsi::ReportBlock &block);
/// Who has the block, one sentence; empty when nobody has.
QString holderText(const acsi::Reference &block, const acsi::ReportHolder &holder);
