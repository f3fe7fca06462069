// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "acsi/control.h"

#include <remoteclient/records.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <chrono>
#include <cstdint>
#include <optional>

/// A control request as a tool hands it to the driver, and what becomes of it on the device.
namespace ControlOrder {

/// The record that ControlBlock::toStream() wrote; nothing for other bytes.
std::optional<ControlBlock> read(const QByteArray &bytes);

/// Whether nothing but object and control model is given.
bool isEmpty(const ControlBlock &block);

/// The highest originator category of IEC 61850-7-3.
constexpr quint8 highestCategory = 8;

/// What is sent with the number and the time of now. The error says what cannot be sent; whether
/// the value fits the object is decided with its type.
mms::Result<acsi::ControlRequest> toRequest(const ControlBlock &block, const QByteArray &originator,
                                            std::uint8_t ctlNum);

/// How long the end of a command is waited for on a device that says so much of operTimeout.
std::chrono::milliseconds
terminationPatience(const std::optional<std::chrono::milliseconds> &operateTimeout);

/// Whether the record, where it is not empty, asks for what was selected.
bool repeats(const ControlBlock &block, const ControlBlock &selected);

mms::UtcTime now();

/// For the journal: value, originator category, conditions and test.
QString text(const ControlBlock &block);

} // namespace ControlOrder
