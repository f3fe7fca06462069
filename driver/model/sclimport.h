// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "filechoice.h"

#include <devicemodel/physicaldevice.h>

#include "scl/reader.h"

#include <QtCore/QString>

#include <memory>

/// From SCL files to the device model of the SDK.
namespace SclImport {

/// Reads a file, Qt resources (":/...") included. Any thread.
scl::ReadResult readFile(const QString &path, const scl::ReadOptions &options = {});

/// What is wrong with a file that cannot be used, in one sentence with the line where there is one;
/// empty for a file that was read.
QString errorText(const scl::ReadResult &result);

/// The IED of that name; of a file with a single IED also for an empty name.
/// @param error one sentence when null is returned
const scl::Ied *chooseIed(const scl::Document &document, const QString &name, QString &error);

/// The device model of an IED: the logical devices of all its servers, each once, with configured
/// values in the representation of `DataAttribute`. What the file names but does not define is
/// there without presence (red in the tree). An attribute has a value only where the file gives
/// one that fits its type; a setting has the value of the active setting group. Any thread.
/// @param choice which of the servers, and the names that the device gives its logical devices
std::unique_ptr<PhysicalDevice> makeDevice(const scl::Ied &ied, const FileChoice &choice = {});

} // namespace SclImport
