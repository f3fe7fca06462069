// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/discovery.h"
#include "acsi/reportblock.h"

#include <devicemodel/physicaldevice.h>

#include <QtCore/QString>

#include <memory>

/// From what a device tells of itself to the device model of the SDK.
namespace DiscoveredModel {

/// The model of the device, without values. Where @p fromFile is given, it decides order and names
/// of types, and the two are compared: what only the file has is there as absent (presence false,
/// state 0), what only the device has gets state 2, what differs 3, what agrees 1. Data sets of
/// logical nodes keep state 0. Without a file the types come from the standard's classes as far as
/// they are known there.
std::unique_ptr<PhysicalDevice> makeDevice(const acsi::ServerDescription &description,
                                           const QString &name, const PhysicalDevice *fromFile);

/// The data sets of the description instead of those that @p device has.
void setDataSets(PhysicalDevice &device, const acsi::ServerDescription &description,
                 const PhysicalDevice *fromFile);

/// Enters the settings of a block as read. @p fromFile may be null; a block that differs from it in
/// any of them gets state 3.
void setSettings(ReportControlBlock &block, const QString &logicalDevice,
                 const acsi::ReportBlock &read, const ReportControlBlock *fromFile);

/// Enters the configuration revision of a logical device (its LLN0's NamPlt.configRev); the leaf
/// gets state 3 when the file gives one and the device another or none. @p fromFile may be null.
void setRevision(PhysicalDevice &device, const QString &logicalDevice, const QString &revision,
                 const PhysicalDevice *fromFile);

/// Enters the number of groups and the active group from the value of a setting group control
/// block.
void setGroups(SettingGroupControl &control, const mms::TypeDescription &type,
               const mms::Data &value);

/// The block of that reference ("LLN0$BR$name"); null when there is none, or no device.
const ReportControlBlock *blockOf(const PhysicalDevice *device, const QString &logicalDevice,
                                  const QString &reference);

/// The name alone of a data set as control blocks give it ("LD/LLN0$name", "LLN0$name", "name").
QString dataSetName(const QString &text);

} // namespace DiscoveredModel
