// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/QString>

#include <chrono>

/// What a try to reach a device came to. A value type.
struct DeviceTestResult
{
    QString error; ///< one sentence; empty when the association was made
    QString vendor;
    QString model;
    QString revision;
    std::chrono::microseconds roundTrip{0};
    int logicalDevices = 0;
    /// What the names of the logical devices begin with, which is the IED's name as a rule;
    /// empty when there is one only, or when they have nothing in common.
    QString iedName;
};
